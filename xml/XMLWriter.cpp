#include "xml/XMLWriter.h"

#include "foundation/Errors.h"

#include <cstring>

namespace KestraXML {

using Kestra::XThrow;

namespace {

// What an escaping loop stops at: bit 1 for text, bit 2 for attribute values.
struct EscapeTable {
    unsigned char mStop[256];
    constexpr EscapeTable() : mStop() {
        mStop[static_cast<unsigned char>('&')] = 3;
        mStop[static_cast<unsigned char>('<')] = 1;
        mStop[static_cast<unsigned char>('>')] = 1;
        mStop[static_cast<unsigned char>('"')] = 2;
    }
};
constexpr EscapeTable kEscape;

const char kTabs[] = "\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";

} // namespace

// The bytes of one writer operation, gathered so that the stream gets them in one call
// (or a few, for long texts).
class CXMLChunk {
public:
    explicit CXMLChunk(XCXMLWriter& writer) : mWriter(writer), mCount(0) {}
    ~CXMLChunk() = default;

    void Add(const void* bytes, size_t length) {
        if (length > sizeof mData - mCount) {
            Flush();
            if (length >= sizeof mData) {
                mWriter.WriteBlock(bytes, static_cast<int>(length));
                return;
            }
        }
        std::memcpy(mData + mCount, bytes, length);
        mCount += length;
    }
    void Add(char c) { Add(&c, 1); }
    void Add(const char* text) {
        Kestra::XAssertPointer(text);
        Add(text, std::strlen(text));
    }
    void NewLine(int indent) {
        if (mWriter.mNoBreak) {
            mWriter.mNoBreak = false;
            return;
        }
        Add('\n');
        for (; indent > 0; indent -= static_cast<int>(sizeof kTabs - 1))
            Add(kTabs,
                indent < static_cast<int>(sizeof kTabs - 1) ? static_cast<size_t>(indent) : sizeof kTabs - 1);
    }
    // `text` in runs, each stop byte (class `mask`) replaced by its entity.
    void AddEscaped(const char* text, unsigned char mask) {
        Kestra::XAssertPointer(text);
        const unsigned char* run = reinterpret_cast<const unsigned char*>(text);
        const unsigned char* p = run;
        for (;;) {
            while (*p && !(kEscape.mStop[*p] & mask)) ++p;
            Add(run, static_cast<size_t>(p - run));
            switch (*p) {
            case 0:
                return;
            case '&':
                Add("&amp;", 5);
                break;
            case '<':
                Add("&lt;", 4);
                break;
            case '>':
                Add("&gt;", 4);
                break;
            default:
                Add("&quot;", 6);
                break;
            }
            run = ++p;
        }
    }
    void Flush() {
        if (mCount) mWriter.WriteBlock(mData, static_cast<int>(mCount));
        mCount = 0;
    }

private:
    XCXMLWriter& mWriter;
    size_t mCount;
    char mData[1024];
};

XCXMLWriter::XCXMLWriter(XIXMLWriteStream* stream) : mStream(stream), mNoBreak(true) {
    Kestra::XRequire(stream != nullptr);
}

void XCXMLWriter::WriteBlock(const void* bytes, int length) {
    if (mStream->Write(bytes, length) != length) XThrow("Can't write character");
}

void XCXMLWriter::NewLine(int indent) {
    CXMLChunk chunk(*this);
    chunk.NewLine(indent);
    chunk.Flush();
}

void XCXMLWriter::WriteChar(char c) {
    WriteBlock(&c, 1);
}

void XCXMLWriter::WriteString(const char* text) {
    Kestra::XAssertPointer(text);
    size_t length = std::strlen(text);
    if (length) WriteBlock(text, static_cast<int>(length));
}

void XCXMLWriter::WriteEscaped(const char* text) {
    CXMLChunk chunk(*this);
    chunk.AddEscaped(text, 1);
    chunk.Flush();
}

void XCXMLWriter::WriteQuoted(char, const char* text) {
    CXMLChunk chunk(*this);
    chunk.Add('"');
    chunk.AddEscaped(text, 2);
    chunk.Add('"');
    chunk.Flush();
}

void XCXMLWriter::WriteStartTag(int indent, const char* key) {
    CXMLChunk chunk(*this);
    chunk.NewLine(indent);
    chunk.Add('<');
    chunk.Add(key);
    chunk.Flush();
}

void XCXMLWriter::WriteEndTag(int indent, const char* key) {
    CXMLChunk chunk(*this);
    chunk.NewLine(indent);
    chunk.Add("</", 2);
    chunk.Add(key);
    chunk.Add('>');
    chunk.Flush();
}

void XCXMLWriter::WriteAttribute(int indent, const char* key, const char* value) {
    CXMLChunk chunk(*this);
    if (indent >= 0) chunk.NewLine(indent);
    chunk.Add(' ');
    chunk.Add(key);
    chunk.Add("=\"", 2);
    chunk.AddEscaped(value, 2);
    chunk.Add('"');
    chunk.Flush();
}

} // namespace KestraXML
