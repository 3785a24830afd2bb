#include "legacy/TokenReader.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/ZelStream.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace KeZel {

using namespace Kestra;

namespace {

// Shared by every reader of the process; see CReader::CurrentLine.
int gLine = 1;
int gColumn = 0;
unsigned int gBytes = 0;

// ASCII classes: a host's locale must not change how a file is cut into tokens.
inline bool IsDigit(int c) {
    return c >= '0' && c <= '9';
}
inline bool IsAlpha(int c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
inline bool IsWordByte(int c) {
    return IsAlpha(c) || IsDigit(c) || c == '_';
}
inline bool IsSpaceOrTab(int c) {
    return c == ' ' || c == '\t';
}
inline bool IsLineEnd(int c) {
    return c == '\r' || c == '\n';
}
inline bool IsBlank(int c) {
    return IsSpaceOrTab(c) || IsLineEnd(c);
}

// The text buffers never store a zero byte.
inline void Append(std::string& s, int c) {
    if (c != 0) s.push_back(static_cast<char>(c));
}

// Truncation toward zero that stays defined for values beyond the int range.
int TruncateToInt(double v) {
    if (!(v > -2147483648.0)) return -2147483647 - 1;
    if (v >= 2147483647.0) return 2147483647;
    return static_cast<int>(v);
}

} // namespace

CReader::CReader(CZelStream* stream, CZEL* scene) : mStream(stream), mScene(scene) {}

CReader::~CReader() {}

int CReader::CurrentLine() {
    return gLine;
}
int CReader::CurrentColumn() {
    return gColumn;
}
unsigned int CReader::BytesConsumed() {
    return gBytes;
}

void CReader::CountLine() {
    ++gLine;
    gColumn = 0;
}

void CReader::Warn(const char* text) {
    if (mScene) mScene->report(text);
}

int CReader::ReadChar() {
    unsigned char byte;
    if (!mStream || mStream->read(&byte, 1) < 1) return -1;
    ++gBytes;
    ++gColumn;
    return byte;
}

void CReader::Unread() {
    if (!mStream) return;
    unsigned int position = mStream->tell();
    if (position == 0) return;
    mStream->seek(position - 1);
    --gBytes;
    if (gColumn > 0) --gColumn;
}

int CReader::ReadAlnum() {
    int c;
    do c = ReadChar();
    while (c >= 0 && !IsAlpha(c) && !IsDigit(c));
    return c;
}

bool CReader::Skip(int n) {
    for (int i = 0; i < n; ++i)
        if (ReadChar() < 0) return false;
    return true;
}

int CReader::SkipTo(int byte) {
    int c;
    do c = ReadChar();
    while (c >= 0 && c != byte);
    return c;
}

int CReader::SkipBlanks() {
    int c;
    do c = ReadChar();
    while (IsSpaceOrTab(c));
    return c;
}

int CReader::NextSignificant() {
    for (;;) {
        int c = ReadChar();
        if (c < 0) XThrow("End of file unexpected");
        if (IsBlank(c)) continue;
        if (c == '#') {
            do c = ReadChar();
            while (c >= 0 && !IsLineEnd(c));
            continue;
        }
        return c;
    }
}

bool CReader::AtEndOfLine() {
    if (!mStream) return false;
    unsigned int position = mStream->tell();
    int line = gLine, column = gColumn;
    unsigned int bytes = gBytes;
    int c = SkipBlanks();
    mStream->seek(position);
    gLine = line;
    gColumn = column;
    gBytes = bytes;
    return IsLineEnd(c) || c == '#';
}

double CReader::ReadDouble(bool* hadPoint) {
    bool point = false;
    bool negative = false;
    double v = 0.0;
    int c = NextSignificant();
    if (c == '+' || c == '-') {
        negative = c == '-';
        c = NextSignificant();
    }
    if (!IsDigit(c) && c != '.') {
        char word[10];
        int n = 0;
        while (n < 9 && c >= 0 && !IsBlank(c)) {
            word[n++] = static_cast<char>(c);
            c = ReadChar();
        }
        word[n] = 0;
        if (!SameText(word, "NaN") && !SameText(word, "INF")) XThrow("This is not a number");
        point = true;
        Warn("NaN or INF double.");
        v = 1e30;
    } else {
        while (IsDigit(c)) {
            v = v * 10 + (c - '0');
            c = ReadChar();
        }
        if (c == '.') {
            point = true;
            double w = 1.0;
            for (c = ReadChar(); IsDigit(c); c = ReadChar()) {
                w = w * 0.1;
                v = v + (c - '0') * w;
            }
        }
    }
    // The byte that ended the number goes back; at the end nothing was taken.
    if (c >= 0) Unread();
    if (hadPoint) *hadPoint = point;
    return negative ? -v : v;
}

int CReader::ReadInt() {
    bool negative = false;
    int c = NextSignificant();
    if (c == '+' || c == '-') {
        negative = c == '-';
        c = NextSignificant();
    }
    if (!IsDigit(c)) XThrow("This is not a number");
    unsigned int v = 0;
    while (IsDigit(c)) {
        v = v * 10u + static_cast<unsigned int>(c - '0');
        c = ReadChar();
    }
    if (c == '.') XThrow("This is not an integer");
    if (c >= 0) Unread();
    return static_cast<int>(negative ? 0u - v : v);
}

unsigned char CReader::ReadColorComponent() {
    bool point = false;
    double v = ReadDouble(&point);
    if (v < 0.0 || v > 255.0) Warn("Invalid color value");
    if (point && v <= 1.0) v *= 255.0;
    return static_cast<unsigned char>(TruncateToInt(v + 0.25));
}

void CReader::ReadVector(double v[3]) {
    double x = ReadDouble();
    double y = ReadDouble();
    double z = ReadDouble();
    if (mScene) mScene->importPoint(x, y, z);
    v[0] = x;
    v[1] = y;
    v[2] = z;
}

CZelColor CReader::ReadColor(unsigned char* bytes) {
    CZelColor color;
    color.mSpare = 0;
    color.mRed = ReadColorComponent();
    color.mGreen = ReadColorComponent();
    color.mBlue = ReadColorComponent();
    if (bytes) {
        bytes[0] = color.mSpare;
        bytes[1] = color.mRed;
        bytes[2] = color.mGreen;
        bytes[3] = color.mBlue;
    }
    return color;
}

CZelColor CReader::ReadSignedColor(unsigned char* bytes) {
    unsigned char b[4] = {0, 0, 0, 0};
    bool clamped = false;
    for (int i = 1; i < 4; ++i) {
        int v = ReadInt();
        if (v < -63) {
            v = -63;
            clamped = true;
        } else if (v > 63) {
            v = 63;
            clamped = true;
        }
        b[i] = static_cast<unsigned char>(static_cast<signed char>(v));
    }
    if (clamped) Warn("Invalid color value");
    if (bytes) std::memcpy(bytes, b, 4);
    CZelColor color = {b[0], b[1], b[2], b[3]};
    return color;
}

std::vector<float> CReader::ReadFloats(int count) {
    return std::vector<float>(count > 0 ? count : 0, 0.0f);
}

std::string CReader::ReadWord() {
    int c;
    do c = ReadChar();
    while (c >= 0 && !IsBlank(c));
    std::string word;
    c = ReadChar();
    if (c < 0) return word;
    Append(word, c);
    while ((c = ReadChar()) >= 0 && !IsBlank(c)) Append(word, c);
    if (c >= 0) Unread();
    return word;
}

std::string CReader::ReadText() {
    int c = SkipBlanks();
    if (c < 0) XThrow("End of file unexpected");
    std::string text;
    if (c == '"') {
        c = ReadChar();
        for (;;) {
            if (c < 0) XThrow("End of file unexpected");
            if (c == '"') return text;
            if (c == 0x7F) {
                // 0x7F before a quote stands for the quote; alone it is an ordinary byte.
                int next = ReadChar();
                if (next == '"') {
                    text.push_back('"');
                    c = ReadChar();
                } else {
                    Append(text, c);
                    c = next;
                }
                continue;
            }
            Append(text, c);
            c = ReadChar();
        }
    }
    while (!IsLineEnd(c)) {
        Append(text, c);
        c = ReadChar();
        if (c < 0) XThrow("End of file unexpected");
    }
    return text;
}

std::string CReader::ReadLine() {
    int c = SkipBlanks();
    std::string line;
    while (!IsLineEnd(c)) {
        if (c < 0) XThrow("End of file unexpected");
        Append(line, c);
        c = ReadChar();
    }
    size_t end = line.find_last_not_of(" \t");
    line.erase(end == std::string::npos ? 0 : end + 1);
    if (line.size() >= 2 && line.front() == '"' && line.back() == '"') {
        std::string inner;
        for (size_t i = 1; i + 1 < line.size(); ++i) {
            if (line[i] == '\x7F' && line[i + 1] == '"' && i + 2 < line.size()) continue;
            inner.push_back(line[i]);
        }
        line.swap(inner);
    }
    return line;
}

std::string CReader::ReadUtf8Text() {
    int c = NextSignificant();
    if (c == 'U') {
        int next = ReadChar();
        if (next == '"') {
            Unread();
            return ReadText();
        }
        if (next >= 0) Unread();
    }
    Unread();
    std::string raw = ReadText();
    try {
        return LegacyCodePageToUtf8(raw);
    } catch (const std::exception&) {
        return std::string();
    }
}

bool CReader::SameText(const char* a, const char* b) {
    if (!a || !b) return a == b;
    for (;; ++a, ++b) {
        int x = static_cast<unsigned char>(*a), y = static_cast<unsigned char>(*b);
        if (x >= 'A' && x <= 'Z') x += 'a' - 'A';
        if (y >= 'A' && y <= 'Z') y += 'a' - 'A';
        if (x != y) return false;
        if (x == 0) return true;
    }
}

bool CReader::ReadToken(CToken& token) {
    return Tokenise(token);
}

bool CReader::Tokenise(CToken& token) {
    for (;;) {
        token.position = mStream ? mStream->tell() : 0;
        token.line = gLine;
        token.column = gColumn;
        int c = ReadChar();
        token.text.clear();
        if (c < 0) {
            token.type = eTokenEnd;
            return false;
        }
        if (IsLineEnd(c)) {
            CountLine();
            continue;
        }
        if (c == '#') {
            do c = ReadChar();
            while (c >= 0 && !IsLineEnd(c));
            CountLine();
            if (c < 0) {
                token.type = eTokenEnd;
                return false;
            }
            continue;
        }
        if (c == '"') {
            for (c = ReadChar(); c != '"'; c = ReadChar()) {
                if (c < 0) {
                    token.text.clear();
                    token.type = eTokenEnd;
                    return false;
                }
                Append(token.text, c);
            }
            token.type = eTokenString;
            return true;
        }

        bool number = false;
        if (c == '-') {
            token.text.push_back('-');
            c = ReadChar();
            if (IsDigit(c)) {
                number = true;
            } else if (c == '.') {
                token.text = "-0";
                number = true;
            } else if (IsAlpha(c)) {
                do {
                    token.text.push_back(static_cast<char>(c));
                    c = ReadChar();
                } while (IsWordByte(c));
                if (c >= 0) Unread();
                token.type = eTokenOption;
                return true;
            } else {
                // A lone "-": the type is left as the previous token had it.
                if (c >= 0) Unread();
                return true;
            }
        } else if (c == '.') {
            token.text = "0";
            number = true;
        } else if (IsAlpha(c)) {
            do {
                token.text.push_back(static_cast<char>(c));
                c = ReadChar();
            } while (IsWordByte(c));
            // The byte behind a word is consumed.
            token.type = eTokenWord;
            return true;
        } else if (IsDigit(c)) {
            number = true;
        }

        if (number) {
            while (IsDigit(c)) {
                token.text.push_back(static_cast<char>(c));
                c = ReadChar();
            }
            if (c == '.') {
                do {
                    token.text.push_back(static_cast<char>(c));
                    c = ReadChar();
                } while (IsDigit(c));
            }
            if (c >= 0) Unread();
            token.type = eTokenNumber;
            return true;
        }
        // Anything else, blanks and '+' among them, is noise between tokens.
    }
}

// ---- CTokenReader

bool CTokenReader::ReadToken(CToken& token) {
    bool result = Tokenise(mToken);
    token = mToken;
    return result;
}

bool CTokenReader::ReadToken() {
    return Tokenise(mToken);
}

std::string CTokenReader::ReadWord() {
    ReadToken();
    if (mToken.type != eTokenWord) XThrow("Reading wrong data type!");
    return mToken.text;
}

std::string CTokenReader::ReadOption() {
    ReadToken();
    if (mToken.type != eTokenOption) XThrow("Reading wrong data type!");
    return mToken.text;
}

bool CTokenReader::IsFlag() {
    ReadToken();
    return mToken.text == "Y" || mToken.text == "y";
}

std::vector<float> CTokenReader::ReadFloats(int count) {
    if (count == -1) {
        ReadToken();
        long n = 0;
        if (std::sscanf(mToken.text.c_str(), "%ld", &n) == EOF) XThrow("Error converting token to decimal!");
        count = n < 0 ? 0 : (n > 2147483647L ? 2147483647 : static_cast<int>(n));
    }
    std::vector<float> values;
    // The count comes from the file: grow with what is really there.
    values.reserve(static_cast<size_t>(std::min(std::max(count, 0), 4096)));
    double value = 0.0;
    for (int i = 0; i < count; ++i) {
        ReadToken();
        // A token that is no number keeps the previous value.
        if (std::sscanf(mToken.text.c_str(), "%lf", &value) == EOF)
            XThrow("Error converting token to double!");
        values.push_back(static_cast<float>(value));
    }
    return values;
}

// ---- Code page

std::string LegacyCodePageToUtf8(const std::string& text) {
    // Windows-1252 0x80..0x9F; the five bytes it leaves undefined keep their C1 code.
    static const unsigned short kHigh[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
    std::string out;
    out.reserve(text.size());
    for (unsigned char b : text) {
        unsigned int u = b;
        if (u < 0x80) {
            out.push_back(static_cast<char>(u));
            continue;
        }
        if (u < 0xA0) u = kHigh[u - 0x80];
        if (u < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (u >> 6)));
        } else {
            out.push_back(static_cast<char>(0xE0 | (u >> 12)));
            out.push_back(static_cast<char>(0x80 | ((u >> 6) & 0x3F)));
        }
        out.push_back(static_cast<char>(0x80 | (u & 0x3F)));
    }
    return out;
}

} // namespace KeZel
