// The document tree behind the XML interfaces: nodes, attributes, the interning table of
// names, and the tree object that owns a document.
//
// Nodes are made only through an element's New... operations and belong to the element
// whose list they are on. Destroy (never delete) ends a node or an attribute; it checks
// the object's guard word first and unlinks it from its owner.
#pragma once

#include "foundation/Mine.h"
#include "xml/XMLInterfaces.h"

#include <cstdint>

namespace KestraXML {

class XCXMLWriter;

// Interned names: open addressing with linear probing over a power-of-two table. The
// table grows (doubling) only when a probe sequence runs out, never by load. An XKey is
// the address of an entry: valid until the next interning, while the text it points to
// lives as long as the table.
class CHashKey {
public:
    CHashKey();
    ~CHashKey();
    CHashKey(const CHashKey&) = delete;
    CHashKey& operator=(const CHashKey&) = delete;

    // A null text raises "exception".
    XKey Intern(const char* text);

    static uint32_t Hash(const char* text);
    uint32_t Size() const { return mSize; }
    uint32_t MaxProbes() const { return mMaxProbes; }
    uint32_t Count() const { return mCount; }

private:
    // The entry that holds `text` or the free entry where it belongs; null when the
    // probe sequence runs out.
    char** Probe(const char* text, uint32_t hash) const;
    void Grow(uint32_t size);

    char** mTable;
    uint32_t mSize;
    uint32_t mMaxProbes;
    uint32_t mCount;
};

// Copy of a node's string, freed with the node. Set copies first and frees afterwards,
// so a failed Set leaves the old text.
class XCText {
public:
    XCText() : mText(nullptr) {}
    explicit XCText(const char* text);
    ~XCText();
    XCText(const XCText&) = delete;
    XCText& operator=(const XCText&) = delete;

    const char* Get() const { return mText; }
    // A null text raises "exception (pointer is NULL)".
    void Set(const char* text);
    // A null text clears.
    void SetOrClear(const char* text);

private:
    char* mText;
};

class XCXMLNode : public XIXMLNode {
public:
    void Destroy() override;
    XIXMLNode* GetNext() const override { return mNext; }
    void SetNext(XIXMLNode* next) override { mNext = next; }
    XIXMLElement* GetParent() const override { return mParent; }
    void SetParent(XIXMLElement* parent) override { mParent = parent; }
    unsigned int GetIndex() const override;

    Kestra::XCMine& Mine() { return mMine; }

protected:
    // Appends the node to `parent` (none for the root).
    explicit XCXMLNode(XIXMLElement* parent);
    // Unlinks the node from its parent.
    ~XCXMLNode() override;

private:
    XIXMLNode* mNext;
    XIXMLElement* mParent;
    Kestra::XCMine mMine;
};

class XCXMLAttribute : public XIXMLAttribute {
private:
    // Made by the elements only.
    friend class XCXMLElement;
    XCXMLAttribute(XIXMLElement* element, const char* key, const char* value);

public:
    // Unlinks the attribute from its element.
    ~XCXMLAttribute() override;

    void Destroy() override;
    XIXMLAttribute* GetNext() const override { return mNext; }
    void SetNext(XIXMLAttribute* next) override { mNext = next; }
    XIXMLElement* GetElement() const override { return mElement; }
    XKey GetKey() const override { return &mKey; }
    void SetKey(XKey key) override;
    const char* GetValue() const override { return mValue.Get(); }
    void SetValue(const char* text) override { mValue.Set(text); }
    void ScanValue(const char* format, void* destination) const override;
    void FormatValue(const char* format, ...) override;
    void Write(XCXMLWriter* writer) override;
    XIXMLAttribute* CopyTo(XIXMLElement* element) const override;

    Kestra::XCMine& Mine() { return mMine; }

private:
    XIXMLAttribute* mNext;
    XIXMLElement* mElement;
    const char* mKey;
    XCText mValue;
    Kestra::XCMine mMine;
};

class XCXMLPI : public XIXMLPI, public XCXMLNode {
private:
    // Made by the elements only.
    friend class XCXMLElement;
    XCXMLPI(XIXMLElement* parent, const char* target, const char* data);

public:
    XIXMLPI* AsPI() override { return this; }
    void Write(XCXMLWriter* writer, int indent) override;
    XIXMLNode* CopyTo(XIXMLElement* element) const override;

    const XIXMLNode* AsNode() const override { return this; }
    XIXMLNode* AsNode() override { return this; }
    const char* GetTarget() const override { return mTarget.Get(); }
    void SetTarget(const char* target) override { mTarget.Set(target); }
    const char* GetData() const override { return mData.Get(); }
    void SetData(const char* data) override { mData.Set(data); }

private:
    XCText mTarget;
    XCText mData;
};

class XCXMLComment : public XIXMLComment, public XCXMLNode {
private:
    // Made by the elements only.
    friend class XCXMLElement;
    XCXMLComment(XIXMLElement* parent, const char* text);

public:
    XIXMLComment* AsComment() override { return this; }
    void Write(XCXMLWriter* writer, int indent) override;
    XIXMLNode* CopyTo(XIXMLElement* element) const override;

    const XIXMLNode* AsNode() const override { return this; }
    XIXMLNode* AsNode() override { return this; }
    const char* GetText() const override { return mText.Get(); }
    void SetText(const char* text) override { mText.Set(text); }

private:
    XCText mText;
};

class XCXMLDocType : public XIXMLDocType, public XCXMLNode {
private:
    // Made by the elements only.
    friend class XCXMLElement;
    XCXMLDocType(XIXMLElement* parent, XKey key, const char* publicId, const char* systemId,
                 const char* internalSubset);

public:
    XIXMLDocType* AsDocType() override { return this; }
    void Write(XCXMLWriter* writer, int indent) override;
    XIXMLNode* CopyTo(XIXMLElement* element) const override;

    const XIXMLNode* AsNode() const override { return this; }
    XIXMLNode* AsNode() override { return this; }
    XKey GetKey() const override { return &mKey; }
    void SetKey(XKey key) override;
    const char* GetPublicId() const override { return mPublicId.Get(); }
    void SetPublicId(const char* id) override { mPublicId.SetOrClear(id); }
    const char* GetSystemId() const override { return mSystemId.Get(); }
    void SetSystemId(const char* id) override { mSystemId.SetOrClear(id); }
    const char* GetInternalSubset() const override { return mInternalSubset.Get(); }
    void SetInternalSubset(const char* subset) override { mInternalSubset.SetOrClear(subset); }

private:
    const char* mKey;
    XCText mPublicId;
    XCText mSystemId;
    XCText mInternalSubset;
};

// Text, or a provider that writes a CDATA block. The node owns its provider.
class XCXMLData : public XIXMLData, public XCXMLNode {
private:
    // Made by the elements only.
    friend class XCXMLElement;
    XCXMLData(XIXMLElement* parent, const char* text);
    XCXMLData(XIXMLElement* parent, IXMLCData* provider);

public:
    ~XCXMLData() override;

    XIXMLData* AsData() override { return this; }
    void Write(XCXMLWriter* writer, int indent) override;
    XIXMLNode* CopyTo(XIXMLElement* element) const override;

    const XIXMLNode* AsNode() const override { return this; }
    XIXMLNode* AsNode() override { return this; }
    // These raise "exception" on a node that holds a provider.
    const char* GetText() const override;
    void SetText(const char* text) override;
    void ScanText(const char* format, void* destination) const override;
    void FormatText(const char* format, ...) override;

    IXMLCData* GetProvider() const { return mProvider; }

private:
    XCText mText;
    IXMLCData* mProvider;
};

class XCXMLElement : public XIXMLElement, public XCXMLNode {
protected:
    // Made by the elements only, or as the base of the root.
    XCXMLElement(XIXMLElement* parent, const char* key);

public:
    // Destroys the attributes, then the children. If one of them refuses, the rest is
    // abandoned (and the failure logged).
    ~XCXMLElement() override;

    XIXMLElement* AsElement() override { return this; }
    void Write(XCXMLWriter* writer, int indent) override;
    XIXMLNode* CopyTo(XIXMLElement* element) const override;

    const XIXMLNode* AsNode() const override { return this; }
    XIXMLNode* AsNode() override { return this; }
    void Write(XIXMLWriteStream* stream) override;
    // Forwarded up to the root, which interns.
    XKey GetKey(const char* text) override;
    void AddNode(XIXMLNode* node) override;
    void RemoveNode(XIXMLNode* node) override;
    void MoveNode(XIXMLNode* node, XIXMLNode* before) override;
    unsigned int GetNodeIndex(const XIXMLNode* node) const override;
    XIXMLAttribute* AddAttribute(XKey key, const char* value) override;
    // Only unlinks: the attribute keeps its fields and is not freed. To delete an
    // attribute, Destroy it (which unlinks it by itself).
    void RemoveAttribute(XIXMLAttribute* attribute) override;
    XIXMLPI* NewPI(const char* target, const char* data) override;
    XIXMLComment* NewComment(const char* text) override;
    XIXMLDocType* NewDocType(XKey key, const char* publicId, const char* systemId,
                             const char* internalSubset) override;
    XIXMLData* NewData(XIXMLData::IXMLCData* provider) override;
    XIXMLData* NewData(const char* text) override;
    XIXMLElement* NewElement(XKey key) override;
    // The address of the element's own key: a valid handle while the element lives.
    XKey GetKey() const override { return &mKey; }
    void SetKey(XKey key) override;
    const XIXMLData* GetData() const override;
    XIXMLData* GetData() override;
    XIXMLNode* GetFirstNode() const override { return mFirstNode; }
    XIXMLElement* GetFirstElement() const override;
    XIXMLElement* GetNextElement() const override;
    XIXMLElement* FindElement(XKey key) const override;
    XIXMLElement* FindNextElement() const override;
    unsigned int GetElementCount() const override;
    XIXMLElement* GetElement(unsigned int index) const override;
    XIXMLAttribute* GetFirstAttribute() const override { return mFirstAttribute; }
    XIXMLAttribute* FindAttribute(XKey key) const override;
    bool HasAttribute(XKey key, const char* value) const override;

private:
    const char* mKey;
    XIXMLNode* mFirstNode;
    XIXMLAttribute* mFirstAttribute;
    // Where appending starts looking for the end of each list, so that building a
    // document is linear; the walk from there still finds the true end.
    XIXMLNode* mLastNode;
    XIXMLAttribute* mLastAttribute;
};

// The nameless container at the top of a document; owns the key table.
class XCXMLRoot : public XCXMLElement {
public:
    XCXMLRoot();
    ~XCXMLRoot() override;

    using XCXMLElement::GetKey;
    using XCXMLElement::Write;
    XKey GetKey(const char* text) override;
    // The children at the same indent, then one line feed that ends the file.
    void Write(XCXMLWriter* writer, int indent) override;

    const CHashKey& Keys() const { return *mKeys; }

private:
    CHashKey* mKeys;
};

// Owns one document.
class XCXMLTree {
public:
    XCXMLTree();
    ~XCXMLTree();
    XCXMLTree(const XCXMLTree&) = delete;
    XCXMLTree& operator=(const XCXMLTree&) = delete;

    XIXMLElement* GetRoot() const { return mRoot; }
    const CHashKey& Keys() const { return mRoot->Keys(); }

private:
    XCXMLRoot* mRoot;
};

// The provider of a data node, or null for a text node.
XIXMLData::IXMLCData* XGetProvider(const XIXMLData* data);

} // namespace KestraXML
