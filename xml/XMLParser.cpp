#include "xml/XMLParser.h"

#include "foundation/Errors.h"
#include "xml/XMLBuffers.h"
#include "xml/XMLTree.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace KestraXML {

using namespace Kestra;

// ---- CXMLReadBuffer

CXMLReadBuffer::CXMLReadBuffer(CXMLReadStream* stream)
    : mPosition(mData), mEnd(mData), mEof(false), mStream(stream) {
    XRequire(stream != nullptr);
}

int CXMLReadBuffer::Fill() {
    if (mEof) return -1;
    int count = mStream->Read(mData, kSize);
    if (count < kSize) mEof = true;
    if (count <= 0) return -1;
    if (count > kSize) count = kSize;
    mPosition = mData;
    mEnd = mData + count;
    return *mPosition++;
}

// ---- CXMLTextBuffer

void CXMLTextBuffer::Resize(int64_t capacity) {
    char* data = nullptr;
    if (capacity <= INT32_MAX) data = static_cast<char*>(std::realloc(mData, static_cast<size_t>(capacity)));
    if (!data) {
        std::free(mData);
        mData = nullptr;
        mLength = 0;
        mCapacity = 0;
        XThrow("Can't allocate buffer.");
    }
    mData = data;
    mCapacity = static_cast<int32_t>(capacity);
}

// ---- CXMLCDataStream

CXMLCDataStream::CXMLCDataStream(CXMLReadBuffer& buffer)
    : mBuffer(buffer), mCurrent(buffer.Next()), mBrackets(0), mFinished(false), mClosed(false) {}

int CXMLCDataStream::Read(void* buffer, int length) {
    if (mFinished) return 0;
    unsigned char* out = static_cast<unsigned char*>(buffer);
    int count = 0;
    try {
        while (count < length) {
            int c = mCurrent;
            if (c < 0) {
                mFinished = true;
                break;
            }
            if (c == ']') {
                // Up to two brackets are held back; a third pushes the oldest one out.
                if (mBrackets == 2)
                    out[count++] = ']';
                else
                    ++mBrackets;
                mCurrent = mBuffer.Next();
                continue;
            }
            if (mBrackets) {
                if (mBrackets == 2 && c == '>') {
                    mClosed = true;
                    mFinished = true;
                    break;
                }
                out[count++] = ']';
                --mBrackets;
                continue;
            }
            out[count++] = static_cast<unsigned char>(c);
            // The run up to the next bracket goes over in one piece.
            size_t room = static_cast<size_t>(length - count);
            size_t available = static_cast<size_t>(mBuffer.End() - mBuffer.Position());
            size_t run = room < available ? room : available;
            if (run) {
                const void* bracket = std::memchr(mBuffer.Position(), ']', run);
                if (bracket)
                    run =
                        static_cast<size_t>(static_cast<const unsigned char*>(bracket) - mBuffer.Position());
                std::memcpy(out + count, mBuffer.Position(), run);
                count += static_cast<int>(run);
                mBuffer.Consume(mBuffer.Position() + run);
            }
            mCurrent = mBuffer.Next();
        }
    } catch (...) {
        mFinished = true;
    }
    return count;
}

void CXMLCDataStream::Drain() {
    unsigned char scratch[CXMLReadBuffer::kSize];
    while (Read(scratch, sizeof scratch) > 0) {
    }
}

namespace {

// Byte classes of the grammar.
enum : unsigned char {
    kSpace = 1,     // space, tab, carriage return, line feed
    kNotName = 2,   // ends a name
    kTextStop = 4,  // '<' and '&' end a run of text
    kQuoteStop = 8, // '\'', '"' and '&' end a run of an attribute value
};

struct ByteClasses {
    unsigned char mClass[256];
    constexpr ByteClasses() : mClass() {
        for (unsigned char c : {' ', '\t', '\r', '\n'}) mClass[c] |= kSpace | kNotName;
        for (unsigned char c : {'>', '=', '/', '!', '*', '?', '+'}) mClass[c] |= kNotName;
        mClass[static_cast<unsigned char>('<')] |= kTextStop;
        mClass[static_cast<unsigned char>('&')] |= kTextStop | kQuoteStop;
        mClass[static_cast<unsigned char>('\'')] |= kQuoteStop;
        mClass[static_cast<unsigned char>('"')] |= kQuoteStop;
    }
};
constexpr ByteClasses kBytes;

inline bool IsSpace(int c) {
    return c >= 0 && (kBytes.mClass[c] & kSpace);
}

// -1 counts as a name byte: the callers stop at the end of the stream themselves.
inline bool IsNameByte(int c) {
    return c < 0 || !(kBytes.mClass[c] & kNotName);
}

// `name` (of `length` bytes) is a prefix of `word`.
bool IsPrefix(const char* name, int length, const char* word) {
    return static_cast<size_t>(length) <= std::strlen(word) &&
           std::memcmp(name, word, static_cast<size_t>(length)) == 0;
}

X_NORETURN X_COLD void EndOfData() {
    XThrow("End of Data unexpected");
}

// Appends `value` in the classic UTF-8 form of up to 6 bytes.
void AppendUtf8(CXMLTextBuffer& out, uint32_t value) {
    if (value == 0) return;
    unsigned char bytes[6];
    int count;
    unsigned char lead;
    if (value < 0x80) {
        out.Append(static_cast<int>(value));
        return;
    } else if (value < 0x800) {
        count = 2, lead = 0xC0;
    } else if (value < 0x10000) {
        count = 3, lead = 0xE0;
    } else if (value < 0x200000) {
        count = 4, lead = 0xF0;
    } else if (value < 0x4000000) {
        count = 5, lead = 0xF8;
    } else if (value < 0x80000000u) {
        count = 6, lead = 0xFC;
    } else {
        XThrow("Unicode value too big");
    }
    for (int i = count - 1; i > 0; --i) {
        bytes[i] = static_cast<unsigned char>(0x80 | (value & 0x3F));
        value >>= 6;
    }
    bytes[0] = static_cast<unsigned char>(lead | value);
    out.Append(bytes, static_cast<size_t>(count));
}

// One parse of one document. The read window lives here, on the stack of Parse, so
// that the next byte costs a compare and a load.
class CParseRun {
public:
    CParseRun(CXMLParser& parser, CXMLTextBuffer& name, CXMLTextBuffer& value, CXMLReadStream* stream)
        : mParser(parser), mName(name), mValue(value), mBuffer(stream), mCurrent(0) {}

    // False when a processing instruction stopped the parse.
    bool Document(bool selective);

private:
    int Next() { return mCurrent = mBuffer.Next(); }
    void SkipSpace() {
        while (IsSpace(mCurrent)) Next();
    }
    void NextSkip() {
        Next();
        SkipSpace();
    }

    // Appends to `out` the bytes from the current one up to (not including) the first
    // byte of class `stop`, which becomes current; the current byte itself is taken
    // without looking. Answers with the stop byte, or -1 at the end of the stream.
    int TakeRun(CXMLTextBuffer& out, unsigned char stop);

    void ReadName();
    bool ReadPI();
    void ReadBang();
    void ReadComment();
    void ReadCData();
    void ReadDocType();
    void ReadLiteral(std::string& out);
    void ReadAttribute(bool report);
    void ReadText();
    void ReadEntity(CXMLTextBuffer& out);
    void Element(bool selective);
    void Skip();

    CXMLParser& mParser;
    CXMLTextBuffer& mName;
    CXMLTextBuffer& mValue;
    CXMLReadBuffer mBuffer;
    int mCurrent;
    // Open elements, innermost last.
    std::vector<void*> mHandles;
    // Name of the element being skipped by a selective parse.
    std::string mSkipped;
};

int CParseRun::TakeRun(CXMLTextBuffer& out, unsigned char stop) {
    out.Append(mCurrent);
    for (;;) {
        const unsigned char* start = mBuffer.Position();
        const unsigned char* end = mBuffer.End();
        const unsigned char* p = start;
        while (p != end && !(kBytes.mClass[*p] & stop)) ++p;
        out.Append(start, static_cast<size_t>(p - start));
        if (p != end) {
            mBuffer.Consume(p + 1);
            return mCurrent = *p;
        }
        mBuffer.Consume(p);
        int c = Next();
        if (c < 0 || (kBytes.mClass[c] & stop)) return c;
        out.Append(c);
    }
}

void CParseRun::ReadName() {
    if (mCurrent < 0) EndOfData();
    if (!IsNameByte(mCurrent)) XThrow("Must be a name here");
    mName.Reset();
    mName.Append(mCurrent);
    for (;;) {
        const unsigned char* start = mBuffer.Position();
        const unsigned char* end = mBuffer.End();
        const unsigned char* p = start;
        while (p != end && !(kBytes.mClass[*p] & kNotName)) ++p;
        mName.Append(start, static_cast<size_t>(p - start));
        if (p != end) {
            mBuffer.Consume(p + 1);
            mCurrent = *p;
            return;
        }
        mBuffer.Consume(p);
        int c = Next();
        if (c < 0) EndOfData();
        if (!IsNameByte(c)) return;
        mName.Append(c);
    }
}

bool CParseRun::ReadPI() {
    Next();
    ReadName();
    SkipSpace();
    mValue.Reset();
    for (;;) {
        if (mCurrent < 0) EndOfData();
        if (mCurrent == '?') {
            if (Next() == '>') break;
            mValue.Append('?');
            continue;
        }
        mValue.Append(mCurrent);
        Next();
    }
    bool goOn = mParser.ProcessingInstruction(mName.Terminate(), mValue.Terminate());
    NextSkip();
    return goOn;
}

void CParseRun::ReadBang() {
    Next();
    if (mCurrent == '-')
        ReadComment();
    else if (mCurrent == '[')
        ReadCData();
    else
        ReadDocType();
}

void CParseRun::ReadComment() {
    if (Next() != '-') XThrow("Comment must begin with '<!--'");
    mValue.Reset();
    for (;;) {
        int c = Next();
        if (c < 0) EndOfData();
        int length = mValue.Length();
        if (c == '>' && length >= 2 && mValue.Data()[length - 1] == '-' && mValue.Data()[length - 2] == '-') {
            mValue.Truncate(length - 2);
            break;
        }
        mValue.Append(c);
    }
    mParser.Comment(mValue.Terminate());
    NextSkip();
}

void CParseRun::ReadCData() {
    for (const char* p = "CDATA["; *p; ++p)
        if (Next() != *p) XThrow("Must be CDATA here");
    CXMLCDataStream stream(mBuffer);
    mParser.CData(&stream);
    stream.Drain();
    if (!stream.Closed()) XThrow("Error while reading <[CDATA[...]]>");
    NextSkip();
}

void CParseRun::ReadLiteral(std::string& out) {
    SkipSpace();
    int quote = mCurrent;
    if (quote != '\'' && quote != '"') XThrow("Literal must start with ' or \".");
    for (;;) {
        int c = Next();
        if (c < 0) EndOfData();
        if (c == quote) break;
        out.push_back(static_cast<char>(c));
    }
    NextSkip();
}

void CParseRun::ReadDocType() {
    ReadName();
    if (!IsPrefix(mName.Data(), mName.Length(), "DOCTYPE")) XThrow("Only !DOCTYPE is recognized.");
    SkipSpace();
    ReadName();
    std::string name(mName.Data(), static_cast<size_t>(mName.Length()));
    std::string publicId, systemId;
    bool hasPublic = false, hasSystem = false;
    SkipSpace();
    if (mCurrent != '[') {
        ReadName();
        if (IsPrefix(mName.Data(), mName.Length(), "PUBLIC")) {
            ReadLiteral(publicId);
            hasPublic = true;
        } else if (!IsPrefix(mName.Data(), mName.Length(), "SYSTEM")) {
            XThrow("Only PUBLIC and SYSTEM can be specified here");
        }
        ReadLiteral(systemId);
        hasSystem = true;
    }
    mValue.Reset();
    SkipSpace();
    if (mCurrent == '[') {
        for (;;) {
            int c = Next();
            if (c < 0) EndOfData();
            if (c == ']') break;
            mValue.Append(c);
        }
        NextSkip();
    }
    if (mCurrent != '>') XThrow("Declaration must end with '>'.");
    mParser.DocType(name.c_str(), hasPublic ? publicId.c_str() : nullptr,
                    hasSystem ? systemId.c_str() : nullptr, mValue.Terminate());
    NextSkip();
}

void CParseRun::ReadEntity(CXMLTextBuffer& out) {
    char name[256];
    int length = 0;
    for (;;) {
        int c = Next();
        if (c < 0) EndOfData();
        if (c == ';') break;
        if (length == 255) XThrow("Entity too big");
        name[length++] = static_cast<char>(c);
    }
    name[length] = 0;

    if (name[0] == '#') {
        uint32_t value = 0;
        if (name[1] == 'x') {
            for (const char* p = name + 2; *p; ++p) {
                if (*p >= '0' && *p <= '9')
                    value = value * 16 + static_cast<uint32_t>(*p - '0');
                else if (*p >= 'a' && *p <= 'f')
                    value = value * 16 + static_cast<uint32_t>(*p - 'a' + 10);
                else
                    XThrow("Bad unicode value");
            }
        } else {
            for (const char* p = name + 1; *p; ++p) {
                if (*p < '0' || *p > '9') XThrow("Bad unicode value");
                value = value * 10 + static_cast<uint32_t>(*p - '0');
            }
        }
        AppendUtf8(out, value);
        return;
    }

    static const char* const kNames[] = {"lt", "amp", "gt", "apos", "quot"};
    static const char kReplacements[] = "<&>'\"";
    for (int i = 0; i < 5; ++i) {
        if (std::strcmp(name, kNames[i]) == 0) {
            out.Append(kReplacements[i]);
            return;
        }
    }

    // A resolver may answer, but no entity of its own is ever accepted.
    char resolved[256];
    resolved[0] = 0;
    if (mParser.ResolveEntity(name, resolved, sizeof resolved)) {
        const void* end = std::memchr(resolved, 0, sizeof resolved);
        out.Append(resolved,
                   end ? static_cast<size_t>(static_cast<const char*>(end) - resolved) : sizeof resolved);
    }
    XThrow("Unrecognized entity");
}

void CParseRun::ReadAttribute(bool report) {
    ReadName();
    SkipSpace();
    if (mCurrent != '=') XThrow("Attribute name must be followed by '='.");
    NextSkip();
    int quote = mCurrent;
    if (quote != '\'' && quote != '"') XThrow("Attribute value must begin with ''' or '\"'.");
    mValue.Reset();
    Next();
    for (;;) {
        if (mCurrent < 0) EndOfData();
        if (mCurrent == quote) break;
        if (mCurrent == '&') {
            ReadEntity(mValue);
            Next();
            continue;
        }
        // A quote of the other kind stops a run too, and starts the next one.
        TakeRun(mValue, kQuoteStop);
    }
    NextSkip();
    if (report) mParser.Attribute(mName.Terminate(), mValue.Terminate());
}

void CParseRun::ReadText() {
    // The first byte goes in as it stands, even an '&'.
    mValue.Reset();
    int c = TakeRun(mValue, kTextStop);
    for (;;) {
        if (c < 0) XThrow(nullptr);
        if (c == '<') break;
        ReadEntity(mValue);
        if (Next() < 0) XThrow(nullptr);
        c = mCurrent;
        if (c == '<') break;
        if (c == '&') continue;
        c = TakeRun(mValue, kTextStop);
    }
    mParser.Text(mValue.Terminate());
}

void CParseRun::Skip() {
    for (;;) {
        // Up to the next slash, in runs.
        for (;;) {
            const unsigned char* start = mBuffer.Position();
            const void* slash = std::memchr(start, '/', static_cast<size_t>(mBuffer.End() - start));
            if (slash) {
                mBuffer.Consume(static_cast<const unsigned char*>(slash) + 1);
                mCurrent = '/';
                break;
            }
            mBuffer.Consume(mBuffer.End());
            int c = Next();
            if (c < 0) EndOfData();
            if (c == '/') break;
        }
        int c = Next();
        if (c == '>' || c == '/') continue;
        ReadName();
        if (static_cast<size_t>(mName.Length()) == mSkipped.size() &&
            std::memcmp(mName.Data(), mSkipped.data(), mSkipped.size()) == 0) {
            NextSkip();
            return;
        }
    }
}

void CParseRun::Element(bool selective) {
    // Iterative, so that the depth of a document costs heap rather than stack.
    size_t base = mHandles.size();
    bool startTag = true;
    for (;;) {
        if (startTag) {
            ReadName();
            void* handle = mParser.StartElement(mName.Terminate());
            bool skipping = selective && !handle;
            if (skipping) mSkipped.assign(mName.Data(), static_cast<size_t>(mName.Length()));
            for (;;) {
                SkipSpace();
                if (mCurrent == '/' || mCurrent == '>') break;
                ReadAttribute(!skipping);
            }
            if (mCurrent == '/') {
                if (Next() != '>') XThrow("Bad empty node closing.");
                mParser.EndElement(handle);
                NextSkip();
            } else if (skipping) {
                Skip();
            } else {
                NextSkip();
                mHandles.push_back(handle);
            }
            if (mHandles.size() == base) return;
            startTag = false;
        }
        // Content of the innermost open element.
        SkipSpace();
        if (mCurrent != '<') {
            ReadText();
            continue;
        }
        Next();
        if (mCurrent == '/') {
            Next();
            ReadName();
            SkipSpace();
            XRequire(mCurrent == '>');
            void* handle = mHandles.back();
            mHandles.pop_back();
            mParser.EndElement(handle);
            NextSkip();
            if (mHandles.size() == base) return;
        } else if (mCurrent == '[') {
            ReadCData();
        } else if (mCurrent == '!') {
            ReadBang();
        } else {
            startTag = true;
        }
    }
}

bool CParseRun::Document(bool selective) {
    NextSkip();
    if (mCurrent != '<') XThrow("XML file must begin with <");
    for (;;) {
        Next();
        if (mCurrent == '?') {
            if (!ReadPI()) return false;
        } else if (mCurrent == '!') {
            ReadBang();
        } else {
            break;
        }
        SkipSpace();
        if (mCurrent != '<') XThrow("XML root must begin with '<'");
    }
    Element(selective);
    for (;;) {
        SkipSpace();
        if (mCurrent != '<') break;
        Next();
        if (mCurrent == '?') {
            if (!ReadPI()) return false;
            continue;
        }
        if (mCurrent != '!' || Next() != '-')
            XThrow("Only comments and processing instructions accepted here");
        ReadComment();
    }
    if (mCurrent != -1) XThrow("Only comments and processing instructions accepted here");
    return true;
}

} // namespace

// ---- CXMLParser

struct CXMLParser::Impl {
    CXMLTextBuffer mName;
    CXMLTextBuffer mValue;
    bool mRunning = false;

    void Run(CXMLParser& parser, CXMLReadStream* stream, bool selective) {
        XRequire(!mRunning);
        mRunning = true;
        bool finished = false;
        try {
            CParseRun run(parser, mName, mValue, stream);
            finished = run.Document(selective);
        } catch (...) {
            mRunning = false;
            throw;
        }
        // A parse stopped by a processing instruction stays marked as running.
        if (finished) mRunning = false;
    }
};

CXMLParser::CXMLParser() : mImpl(new Impl) {}

CXMLParser::~CXMLParser() {
    delete mImpl;
}

void CXMLParser::Parse(CXMLReadStream* stream) {
    mImpl->Run(*this, stream, false);
}

void CXMLParser::ParseSelective(CXMLReadStream* stream) {
    mImpl->Run(*this, stream, true);
}

void CXMLParser::Comment(const char*) {}

bool CXMLParser::ProcessingInstruction(const char*, const char*) {
    return true;
}

void CXMLParser::DocType(const char*, const char*, const char*, const char*) {}

void CXMLParser::CData(CXMLReadStream* stream) {
    enum { kBlock = 2048 };
    CXMLTextBuffer& value = mImpl->mValue;
    value.Reset();
    for (;;) {
        value.Reserve(kBlock);
        int count = stream->Read(value.Tail(), kBlock);
        if (count > 0) value.Grew(count);
        if (count < kBlock) break;
    }
    Text(value.Terminate());
}

bool CXMLParser::ResolveEntity(const char*, char*, int) {
    return false;
}

// ---- CXMLTreeReader

CXMLTreeReader::CXMLTreeReader(IXMLCDataReader* reader)
    : mTree(nullptr), mElement(nullptr), mReader(reader) {}

CXMLTreeReader::~CXMLTreeReader() {
    delete mTree;
}

XCXMLTree* CXMLTreeReader::Read(CXMLReadStream* stream) {
    XRequire(mTree == nullptr);
    mTree = new XCXMLTree;
    mElement = mTree->GetRoot();
    try {
        Parse(stream);
    } catch (...) {
        delete mTree;
        mTree = nullptr;
        mElement = nullptr;
        throw;
    }
    XCXMLTree* tree = mTree;
    mTree = nullptr;
    mElement = nullptr;
    return tree;
}

void CXMLTreeReader::Comment(const char* text) {
    mElement->NewComment(text);
}

bool CXMLTreeReader::ProcessingInstruction(const char* target, const char* data) {
    mElement->NewPI(target, data);
    return true;
}

void CXMLTreeReader::DocType(const char* name, const char* publicId, const char* systemId,
                             const char* internalSubset) {
    mElement->NewDocType(mTree->GetRoot()->GetKey(name), publicId, systemId, internalSubset);
}

void* CXMLTreeReader::StartElement(const char* name) {
    XIXMLElement* element = mElement->NewElement(mTree->GetRoot()->GetKey(name));
    XRequire(element != nullptr);
    mElement = element;
    return element;
}

void CXMLTreeReader::Attribute(const char* name, const char* value) {
    mElement->AddAttribute(mTree->GetRoot()->GetKey(name), value);
}

void CXMLTreeReader::Text(const char* text) {
    mElement->NewData(text);
}

void CXMLTreeReader::CData(CXMLReadStream* stream) {
    if (mReader)
        XRequire(mReader->Read(mElement, stream, this));
    else
        CXMLParser::CData(stream);
}

void CXMLTreeReader::EndElement(void* handle) {
    XRequire(handle == static_cast<void*>(mElement));
    mElement = mElement->AsNode()->GetParent();
}

} // namespace KestraXML
