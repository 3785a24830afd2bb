#include "legacy/DBFastReader.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "legacy/GeometrySections.h"
#include "xml/XMLInterfaces.h"

#include <cstdint>

namespace KeZel {

using namespace Kestra;

namespace {

inline bool IsBlank(int c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

inline bool IsDigit(int c) {
    return static_cast<unsigned int>(c - '0') < 10u;
}

inline bool Is(int c, char lower) {
    return c == lower || c == lower - ('a' - 'A');
}

// Up to this many digits the integer part is exact in 64 bits and in a double alike, so
// it may be gathered as an integer and converted once with the same result.
const int kExactDigits = 15;

X_NORETURN X_COLD void EndOfData() {
    XThrow("End of file unexpected");
}
X_NORETURN X_COLD void NotANumber() {
    XThrow("This is not a number");
}

} // namespace

CDBFastReader::CDBFastReader(KestraXML::CXMLReadStream* stream, CZEL* zel)
    : mStream(stream), mZel(zel), mCursor(nullptr), mEnd(nullptr), mEof(false) {
    if (!mStream) XThrow("CDBIO::read() : no reader provided!");
    mBuffer.reset(new unsigned char[kBufferSize]);
    mCursor = mEnd = mBuffer.get();
}

CDBFastReader::~CDBFastReader() {}

void CDBFastReader::readPoints() {
    GeometrySections::ReadPoints(*this, mZel, true);
}

void CDBFastReader::readPolygons() {
    GeometrySections::ReadPolygons(*this, mZel, "Numbers of polygons seems wrong");
}

int CDBFastReader::Fill() {
    if (mEof) return -1;
    // The block stream fills the request unless the block ends.
    int got = mStream->Read(mBuffer.get(), kBufferSize);
    if (got <= 0) {
        mEof = true;
        mCursor = mEnd = mBuffer.get();
        return -1;
    }
    mCursor = mBuffer.get();
    mEnd = mCursor + got;
    return *mCursor++;
}

int CDBFastReader::SkipBlanks() {
    int c;
    do c = Next();
    while (IsBlank(c));
    return c;
}

int CDBFastReader::ReadMarker() {
    for (;;) {
        int c = SkipBlanks();
        if (c != '#') return c;
        do c = Next();
        while (c >= 0 && c != '\n' && c != '\r');
        if (c < 0) EndOfData();
    }
}

int CDBFastReader::ReadInt() {
    int c = SkipBlanks();
    bool negative = false;
    if (c == '+' || c == '-') {
        negative = c == '-';
        c = SkipBlanks();
    }
    if (!IsDigit(c)) {
        if (c < 0) EndOfData();
        NotANumber();
    }
    unsigned int v = 0;
    do {
        v = v * 10u + static_cast<unsigned int>(c - '0');
        c = Next();
    } while (IsDigit(c));
    if (c == '.') XThrow("This is not a integer");
    if (c >= 0) PutBack();
    return static_cast<int>(negative ? 0u - v : v);
}

double CDBFastReader::ReadDouble() {
    int c = SkipBlanks();
    bool negative = false;
    if (c == '+' || c == '-') {
        negative = c == '-';
        c = SkipBlanks();
    }
    double v;
    if (IsDigit(c) || c == '.') {
        // Digit by digit, v = v * 10 + digit and then v += digit * w with w shrinking by
        // tenths: the token reader's arithmetic, so that both readers agree to the bit.
        uint64_t whole = 0;
        int digits = 0;
        for (; IsDigit(c) && digits < kExactDigits; ++digits, c = Next())
            whole = whole * 10u + static_cast<unsigned int>(c - '0');
        v = static_cast<double>(whole);
        for (; IsDigit(c); c = Next()) v = v * 10 + (c - '0');
        if (c == '.') {
            double w = 1.0;
            for (c = Next(); IsDigit(c); c = Next()) {
                w = w * 0.1;
                v = v + (c - '0') * w;
            }
        }
        if (c >= 0) PutBack();
    } else {
        v = ReadWord(c);
    }
    return negative ? -v : v;
}

double CDBFastReader::ReadWord(int c) {
    if (c < 0) EndOfData();
    if (Is(c, 'n')) {
        if (Is(Next(), 'a') && Is(Next(), 'n')) {
            mZel->report("NaN double.");
            return 1e30;
        }
    } else if (Is(c, 'i')) {
        if (Is(Next(), 'n') && Is(Next(), 'f')) {
            mZel->report("INF double.");
            return 1e30;
        }
    }
    NotANumber();
}

} // namespace KeZel
