// The small writer that every node of a document tree writes itself through. It keeps
// nothing between its operations (the client stream buffers), but each operation hands
// the stream its bytes in as few calls as it can; any short write raises "Can't write
// character".
#pragma once

#include "xml/XMLInterfaces.h"

namespace KestraXML {

class XCXMLWriter {
public:
    // Starts with the break suppressed, so that a document does not begin with a line feed.
    explicit XCXMLWriter(XIXMLWriteStream* stream);
    XCXMLWriter(const XCXMLWriter&) = delete;
    XCXMLWriter& operator=(const XCXMLWriter&) = delete;

    // A line feed and `indent` tabs, unless a break is suppressed: then nothing, once.
    void NewLine(int indent);
    void SuppressBreak() { mNoBreak = true; }

    void WriteChar(char c);
    void WriteString(const char* text);
    void WriteBlock(const void* bytes, int length);
    // Text content: '&', '<' and '>' as entities.
    void WriteEscaped(const char* text);
    // An attribute value in double quotes, '"' and '&' as entities. Single quotes are
    // never produced; `quote` is accepted for the callers' sake and does not matter.
    void WriteQuoted(char quote, const char* text);

    // The same bytes as NewLine(indent), '<' and the key; and as NewLine(indent), "</",
    // the key and '>'.
    void WriteStartTag(int indent, const char* key);
    void WriteEndTag(int indent, const char* key);
    // The same bytes as NewLine(indent) when `indent` is not negative, then ' ', the key,
    // '=' and WriteQuoted of the value.
    void WriteAttribute(int indent, const char* key, const char* value);

    // The raw stream, for data block providers.
    XIXMLWriteStream* GetStream() const { return mStream; }

private:
    friend class CXMLChunk;

    XIXMLWriteStream* mStream;
    bool mNoBreak;
};

} // namespace KestraXML
