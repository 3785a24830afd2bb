// The XML document model: abstract interfaces in their fixed slot order.
// Public header (a host keeps its own XML under Application.Data), C++11.
//
// Names of elements and attributes are interned in one table per tree. A key (XKey) is
// a handle to an interned name: compare names by comparing *key pointers, never texts.
// A key is valid only inside the tree whose root interned it.
#ifndef ZEL_XML_XMLINTERFACES_H
#define ZEL_XML_XMLINTERFACES_H

#include "foundation/Visibility.h"

namespace KestraXML {

// Handle to an interned name; *key is the interned text.
typedef const char* const* XKey;

class XCXMLWriter;
class XIXMLPI;
class XIXMLComment;
class XIXMLDocType;
class XIXMLData;
class XIXMLElement;

// Output of the XML writer. Any result other than `length` is a failure.
class ZEL_API XIXMLWriteStream {
public:
    virtual int Write(const void* buffer, int length) = 0;

protected:
    ~XIXMLWriteStream() {}
};

// Input of the XML parser: answers how many bytes were delivered; a short read ends
// the stream.
class ZEL_API CXMLReadStream {
public:
    virtual int Read(void* buffer, int length) = 0;

protected:
    ~CXMLReadStream() {}
};

// Base of everything that sits in an element's child list.
class ZEL_API XIXMLNode {
public:
    virtual void Destroy() = 0;
    virtual XIXMLNode* GetNext() const = 0;
    virtual void SetNext(XIXMLNode* next) = 0;
    virtual XIXMLPI* AsPI() { return nullptr; }
    virtual XIXMLComment* AsComment() { return nullptr; }
    virtual XIXMLDocType* AsDocType() { return nullptr; }
    virtual XIXMLData* AsData() { return nullptr; }
    virtual XIXMLElement* AsElement() { return nullptr; }
    virtual void Write(XCXMLWriter* writer, int indent) = 0;
    virtual XIXMLElement* GetParent() const = 0;
    virtual void SetParent(XIXMLElement* parent) = 0;
    // Position among the parent's children, or 0xFFFFFFFF.
    virtual unsigned int GetIndex() const = 0;
    // Re-creates the node at the end of `element`'s children, in another tree or this one.
    virtual XIXMLNode* CopyTo(XIXMLElement* element) const = 0;
    virtual ~XIXMLNode() {}
};

class ZEL_API XIXMLAttribute {
public:
    virtual void Destroy() = 0;
    virtual XIXMLAttribute* GetNext() const = 0;
    virtual void SetNext(XIXMLAttribute* next) = 0;
    virtual XIXMLElement* GetElement() const = 0;
    virtual XKey GetKey() const = 0;
    virtual void SetKey(XKey key) = 0;
    virtual const char* GetValue() const = 0;
    virtual void SetValue(const char* text) = 0;
    // sscanf of the value must convert exactly one item.
    virtual void ScanValue(const char* format, void* destination) const = 0;
    virtual void FormatValue(const char* format, ...) = 0;
    virtual void Write(XCXMLWriter* writer) = 0;
    virtual XIXMLAttribute* CopyTo(XIXMLElement* element) const = 0;
    virtual ~XIXMLAttribute() {}
};

class ZEL_API XIXMLPI {
public:
    virtual const XIXMLNode* AsNode() const = 0;
    virtual XIXMLNode* AsNode() = 0;
    virtual const char* GetTarget() const = 0;
    virtual void SetTarget(const char* target) = 0;
    virtual const char* GetData() const = 0;
    virtual void SetData(const char* data) = 0;
    virtual ~XIXMLPI() {}
};

class ZEL_API XIXMLComment {
public:
    virtual const XIXMLNode* AsNode() const = 0;
    virtual XIXMLNode* AsNode() = 0;
    virtual const char* GetText() const = 0;
    virtual void SetText(const char* text) = 0;
    virtual ~XIXMLComment() {}
};

class ZEL_API XIXMLDocType {
public:
    virtual const XIXMLNode* AsNode() const = 0;
    virtual XIXMLNode* AsNode() = 0;
    virtual XKey GetKey() const = 0;
    virtual void SetKey(XKey key) = 0;
    virtual const char* GetPublicId() const = 0;
    virtual void SetPublicId(const char* id) = 0;
    virtual const char* GetSystemId() const = 0;
    virtual void SetSystemId(const char* id) = 0;
    virtual const char* GetInternalSubset() const = 0;
    virtual void SetInternalSubset(const char* subset) = 0;
    virtual ~XIXMLDocType() {}
};

// A data child: text, or a provider that streams the content of a CDATA block.
class ZEL_API XIXMLData {
public:
    class ZEL_API IXMLCData {
    public:
        // Writes the block's content (without the CDATA framing) to the raw stream.
        virtual bool Write(XIXMLWriteStream* stream, int indent, XIXMLData* node) = 0;
        // A provider of the same content for a copy of the node under `element`.
        virtual IXMLCData* Clone(XIXMLElement* element) = 0;
        virtual void Destroy() = 0;
        virtual ~IXMLCData() {}
    };

    virtual const XIXMLNode* AsNode() const = 0;
    virtual XIXMLNode* AsNode() = 0;
    virtual const char* GetText() const = 0;
    virtual void SetText(const char* text) = 0;
    virtual void ScanText(const char* format, void* destination) const = 0;
    virtual void FormatText(const char* format, ...) = 0;
    virtual ~XIXMLData() {}
};

class ZEL_API XIXMLElement {
public:
    virtual const XIXMLNode* AsNode() const = 0;
    virtual XIXMLNode* AsNode() = 0;
    // Writes this element and its subtree at indent 0.
    virtual void Write(XIXMLWriteStream* stream) = 0;
    // Interns `text` in the tree's table.
    virtual XKey GetKey(const char* text) = 0;
    virtual void AddNode(XIXMLNode* node) = 0;
    virtual void RemoveNode(XIXMLNode* node) = 0;
    // Moves `node` in front of `before`; a null `before` moves it to the end.
    virtual void MoveNode(XIXMLNode* node, XIXMLNode* before) = 0;
    virtual unsigned int GetNodeIndex(const XIXMLNode* node) const = 0;
    virtual XIXMLAttribute* AddAttribute(XKey key, const char* value) = 0;
    virtual void RemoveAttribute(XIXMLAttribute* attribute) = 0;
    virtual XIXMLPI* NewPI(const char* target, const char* data) = 0;
    virtual XIXMLComment* NewComment(const char* text) = 0;
    virtual XIXMLDocType* NewDocType(XKey key, const char* publicId, const char* systemId,
                                     const char* internalSubset) = 0;
    virtual XIXMLData* NewData(XIXMLData::IXMLCData* provider) = 0;
    virtual XIXMLData* NewData(const char* text) = 0;
    virtual XIXMLElement* NewElement(XKey key) = 0;
    virtual XKey GetKey() const = 0;
    virtual void SetKey(XKey key) = 0;
    virtual const XIXMLData* GetData() const = 0;
    virtual XIXMLData* GetData() = 0;
    virtual XIXMLNode* GetFirstNode() const = 0;
    virtual XIXMLElement* GetFirstElement() const = 0;
    virtual XIXMLElement* GetNextElement() const = 0;
    virtual XIXMLElement* FindElement(XKey key) const = 0;
    virtual XIXMLElement* FindNextElement() const = 0;
    virtual unsigned int GetElementCount() const = 0;
    virtual XIXMLElement* GetElement(unsigned int index) const = 0;
    virtual XIXMLAttribute* GetFirstAttribute() const = 0;
    virtual XIXMLAttribute* FindAttribute(XKey key) const = 0;
    virtual bool HasAttribute(XKey key, const char* value) const = 0;
    virtual ~XIXMLElement() {}
};

} // namespace KestraXML

#endif
