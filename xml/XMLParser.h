// The event-driven XML reader with its own grammar, the hand-over of CDATA blocks to a
// client, and the reader that builds a document tree.
//
// This header is the contract for derived parsers (format detection) and data block
// readers (the scene): the handler slots and the public operations stay as they are.
#pragma once

#include "xml/XMLInterfaces.h"

namespace KestraXML {

class CXMLParser;
class CXMLReadBuffer;
class XCXMLTree;

// Decoder of data blocks, handed the stream of the block's bytes (with "]]>" removed)
// when the tree reader meets a CDATA section. False makes the parse fail.
class IXMLCDataReader {
public:
    virtual bool Read(XIXMLElement* element, CXMLReadStream* stream, CXMLParser* parser) = 0;

protected:
    ~IXMLCDataReader() {}
};

class CXMLParser {
public:
    CXMLParser();
    virtual ~CXMLParser();
    CXMLParser(const CXMLParser&) = delete;
    CXMLParser& operator=(const CXMLParser&) = delete;

    // Parse a document. A parse stopped by a false ProcessingInstruction leaves the
    // parser marked as running: such an object serves one parse only.
    void Parse(CXMLReadStream* stream);
    // As Parse, but an element whose StartElement answers null is skipped unread.
    void ParseSelective(CXMLReadStream* stream);

    // Handlers, in slot order. Texts are valid during the call only.
    virtual void Comment(const char* text);
    virtual bool ProcessingInstruction(const char* target, const char* data);
    virtual void DocType(const char* name, const char* publicId, const char* systemId,
                         const char* internalSubset);
    virtual void* StartElement(const char* name) = 0;
    virtual void Attribute(const char* name, const char* value) = 0;
    virtual void Text(const char* text) = 0;
    // Default: reads the whole block and hands it to Text.
    virtual void CData(CXMLReadStream* stream);
    virtual void EndElement(void* handle) = 0;
    virtual bool ResolveEntity(const char* name, char* buffer, int size);

protected:
    struct Impl;
    Impl* mImpl; // parser state and buffers, private to the engine
};

// Builds a document tree. With a data block reader, CDATA blocks go to it; without one
// they become data nodes holding their text.
class CXMLTreeReader : public CXMLParser {
public:
    explicit CXMLTreeReader(IXMLCDataReader* reader = nullptr);
    ~CXMLTreeReader() override;

    // Parses the stream into a new tree that the caller owns. Raises on malformed input;
    // the partial tree is then deleted.
    XCXMLTree* Read(CXMLReadStream* stream);

    void Comment(const char* text) override;
    bool ProcessingInstruction(const char* target, const char* data) override;
    void DocType(const char* name, const char* publicId, const char* systemId,
                 const char* internalSubset) override;
    void* StartElement(const char* name) override;
    void Attribute(const char* name, const char* value) override;
    void Text(const char* text) override;
    void CData(CXMLReadStream* stream) override;
    void EndElement(void* handle) override;

private:
    XCXMLTree* mTree;
    XIXMLElement* mElement;
    IXMLCDataReader* mReader;
};

} // namespace KestraXML
