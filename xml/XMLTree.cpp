#include "xml/XMLTree.h"

#include "foundation/Errors.h"
#include "xml/XMLWriter.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <vector>

namespace KestraXML {

using namespace Kestra;

namespace {

char* Duplicate(const char* text) {
    XAssertPointer(text);
    size_t length = std::strlen(text) + 1;
    char* copy = static_cast<char*>(std::malloc(length));
    XAssertPointer(copy);
    std::memcpy(copy, text, length);
    return copy;
}

// Logs what a destructor caught, in the form "<what> (<text>)".
void LogCaught(const char* format) {
    try {
        throw;
    } catch (const std::exception& e) {
        XLogError(format, e.what());
    } catch (...) {
        XLogError(format, "unknown exception");
    }
}

// Expands into the 2048-byte buffer that values and texts are formatted in.
void FormatInto(char (&buffer)[2048], const char* format, va_list args) {
    int length = std::vsnprintf(buffer, sizeof buffer, format, args);
    XRequire(length >= 0 && length < static_cast<int>(sizeof buffer));
}

void Scan(const char* text, const char* format, void* destination) {
    XRequire(destination != nullptr);
    XRequire(text != nullptr);
    XRequire(std::sscanf(text, format, destination) == 1);
}

// Tables larger than this many entries are refused: only names whose hashes collide
// on purpose could ask for one.
constexpr uint32_t kMaxTableSize = 1u << 26;

} // namespace

// ---- CHashKey

CHashKey::CHashKey() : mTable(nullptr), mSize(0), mMaxProbes(10), mCount(0) {
    Grow(64);
}

CHashKey::~CHashKey() {
    for (uint32_t i = 0; i < mSize; ++i) std::free(mTable[i]);
    std::free(mTable);
}

uint32_t CHashKey::Hash(const char* text) {
    uint32_t h = 0;
    for (const unsigned char* p = reinterpret_cast<const unsigned char*>(text); *p; ++p) {
        uint32_t c = *p;
        uint32_t t = ((h << 1) ^ c) << 4;
        t = t ^ (h >> 27) ^ c;
        h ^= t;
    }
    return h;
}

char** CHashKey::Probe(const char* text, uint32_t hash) const {
    uint32_t mask = mSize - 1;
    uint32_t index = hash + 1;
    for (uint32_t look = 0; look < mMaxProbes; ++look, ++index) {
        char** entry = mTable + (index & mask);
        if (!*entry || std::strcmp(*entry, text) == 0) return entry;
    }
    return nullptr;
}

XKey CHashKey::Intern(const char* text) {
    XRequire(text != nullptr);
    uint32_t hash = Hash(text);
    char** entry;
    while (!(entry = Probe(text, hash))) Grow(mSize * 2);
    if (!*entry) {
        *entry = Duplicate(text);
        ++mCount;
    }
    return entry;
}

void CHashKey::Grow(uint32_t size) {
    for (;;) {
        char** oldTable = mTable;
        uint32_t oldSize = mSize;
        char** table = nullptr;
        if (size != 0 && size <= kMaxTableSize) table = static_cast<char**>(std::calloc(size, sizeof(char*)));
        if (!table) XThrow("Can't grow hash vector.");
        ++mMaxProbes;
        mTable = table;
        mSize = size;
        bool fits = true;
        for (uint32_t i = 0; i < oldSize && fits; ++i) {
            if (!oldTable[i]) continue;
            char** entry = Probe(oldTable[i], Hash(oldTable[i]));
            if (!entry) {
                fits = false;
            } else if (*entry) {
                std::free(table);
                mTable = oldTable;
                mSize = oldSize;
                XAssert(false, "CHashKey::Grow - Duplicate key ???");
            } else {
                *entry = oldTable[i];
            }
        }
        if (fits) {
            std::free(oldTable);
            return;
        }
        std::free(table);
        mTable = oldTable;
        mSize = oldSize;
        XLogWarning("CHashKey::Grow - Double grow needed");
        size *= 2;
    }
}

// ---- XCText

XCText::XCText(const char* text) : mText(Duplicate(text)) {}

XCText::~XCText() {
    std::free(mText);
}

void XCText::Set(const char* text) {
    char* copy = Duplicate(text);
    std::free(mText);
    mText = copy;
}

void XCText::SetOrClear(const char* text) {
    char* copy = text ? Duplicate(text) : nullptr;
    std::free(mText);
    mText = copy;
}

// ---- XCXMLNode

XCXMLNode::XCXMLNode(XIXMLElement* parent) : mNext(nullptr), mParent(nullptr) {
    if (parent) parent->AddNode(this);
}

XCXMLNode::~XCXMLNode() {
    if (!mParent) return;
    try {
        mParent->RemoveNode(this);
    } catch (...) {
        LogCaught("XCXMLNode::~XCXMLNode: Exception in destructor (%s)");
    }
}

void XCXMLNode::Destroy() {
    mMine.CheckMine();
    delete this;
}

unsigned int XCXMLNode::GetIndex() const {
    return mParent ? mParent->GetNodeIndex(this) : 0xFFFFFFFFu;
}

// ---- XCXMLAttribute

XCXMLAttribute::XCXMLAttribute(XIXMLElement* element, const char* key, const char* value)
    : mNext(nullptr), mElement(element), mKey(key), mValue(value) {}

XCXMLAttribute::~XCXMLAttribute() {
    if (!mElement) return;
    try {
        mElement->RemoveAttribute(this);
    } catch (...) {
        LogCaught("XCXMLAttribute::~XCXMLAttribute: Exception in destructor (%s)");
    }
}

void XCXMLAttribute::Destroy() {
    mMine.CheckMine();
    delete this;
}

void XCXMLAttribute::SetKey(XKey key) {
    XAssertPointer(key);
    mKey = *key;
}

void XCXMLAttribute::ScanValue(const char* format, void* destination) const {
    Scan(mValue.Get(), format, destination);
}

void XCXMLAttribute::FormatValue(const char* format, ...) {
    char buffer[2048];
    va_list args;
    va_start(args, format);
    try {
        FormatInto(buffer, format, args);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
    SetValue(buffer);
}

void XCXMLAttribute::Write(XCXMLWriter* writer) {
    writer->WriteAttribute(-1, mKey, mValue.Get());
}

XIXMLAttribute* XCXMLAttribute::CopyTo(XIXMLElement* element) const {
    return element->AddAttribute(element->GetKey(mKey), mValue.Get());
}

// ---- XCXMLPI

XCXMLPI::XCXMLPI(XIXMLElement* parent, const char* target, const char* data)
    : XCXMLNode(parent), mTarget(target), mData(data) {}

void XCXMLPI::Write(XCXMLWriter* writer, int indent) {
    writer->NewLine(indent);
    writer->WriteBlock("<?", 2);
    writer->WriteString(mTarget.Get());
    writer->WriteChar(' ');
    writer->WriteString(mData.Get());
    writer->WriteBlock("?>", 2);
}

XIXMLNode* XCXMLPI::CopyTo(XIXMLElement* element) const {
    XIXMLPI* copy = element->NewPI(mTarget.Get(), mData.Get());
    return copy ? copy->AsNode() : nullptr;
}

// ---- XCXMLComment

XCXMLComment::XCXMLComment(XIXMLElement* parent, const char* text) : XCXMLNode(parent), mText(text) {}

void XCXMLComment::Write(XCXMLWriter* writer, int indent) {
    writer->NewLine(indent);
    writer->WriteBlock("<!--", 4);
    writer->WriteString(mText.Get());
    writer->WriteBlock("-->", 3);
}

XIXMLNode* XCXMLComment::CopyTo(XIXMLElement* element) const {
    XIXMLComment* copy = element->NewComment(mText.Get());
    return copy ? copy->AsNode() : nullptr;
}

// ---- XCXMLDocType

XCXMLDocType::XCXMLDocType(XIXMLElement* parent, XKey key, const char* publicId, const char* systemId,
                           const char* internalSubset)
    : XCXMLNode(parent), mKey(nullptr) {
    SetKey(key);
    mPublicId.SetOrClear(publicId);
    mSystemId.SetOrClear(systemId);
    mInternalSubset.SetOrClear(internalSubset);
}

void XCXMLDocType::SetKey(XKey key) {
    XAssertPointer(key);
    mKey = *key;
}

void XCXMLDocType::Write(XCXMLWriter* writer, int indent) {
    writer->NewLine(indent);
    writer->WriteBlock("<!DOCTYPE ", 10);
    writer->WriteString(mKey);
    if (mPublicId.Get()) {
        XRequire(mSystemId.Get() != nullptr);
        writer->WriteBlock(" PUBLIC \"", 9);
        writer->WriteString(mPublicId.Get());
        writer->WriteBlock("\" \"", 3);
        writer->WriteString(mSystemId.Get());
        writer->WriteChar('"');
    } else if (mSystemId.Get()) {
        writer->WriteBlock(" SYSTEM \"", 9);
        writer->WriteString(mSystemId.Get());
        writer->WriteChar('"');
    }
    if (mInternalSubset.Get()) {
        writer->WriteBlock(" [", 2);
        writer->WriteString(mInternalSubset.Get());
        writer->WriteChar(']');
    }
    writer->WriteChar('>');
}

XIXMLNode* XCXMLDocType::CopyTo(XIXMLElement* element) const {
    XIXMLDocType* copy =
        element->NewDocType(element->GetKey(mKey), mPublicId.Get(), mSystemId.Get(), mInternalSubset.Get());
    return copy ? copy->AsNode() : nullptr;
}

// ---- XCXMLData

XCXMLData::XCXMLData(XIXMLElement* parent, const char* text)
    : XCXMLNode(parent), mText(text), mProvider(nullptr) {}

XCXMLData::XCXMLData(XIXMLElement* parent, IXMLCData* provider) : XCXMLNode(parent), mProvider(provider) {}

XCXMLData::~XCXMLData() {
    if (mProvider) mProvider->Destroy();
}

const char* XCXMLData::GetText() const {
    XRequire(mProvider == nullptr);
    return mText.Get();
}

void XCXMLData::SetText(const char* text) {
    XRequire(mProvider == nullptr);
    mText.Set(text);
}

void XCXMLData::ScanText(const char* format, void* destination) const {
    XRequire(mProvider == nullptr);
    Scan(mText.Get(), format, destination);
}

void XCXMLData::FormatText(const char* format, ...) {
    char buffer[2048];
    va_list args;
    va_start(args, format);
    try {
        FormatInto(buffer, format, args);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
    SetText(buffer);
}

void XCXMLData::Write(XCXMLWriter* writer, int indent) {
    if (mProvider) {
        writer->WriteBlock("<![CDATA[", 9);
        XRequire(mProvider->Write(writer->GetStream(), indent, this));
        writer->WriteBlock("]]>", 3);
    } else if (mText.Get()) {
        writer->WriteEscaped(mText.Get());
        writer->SuppressBreak();
    }
}

XIXMLNode* XCXMLData::CopyTo(XIXMLElement* element) const {
    XIXMLData* copy = mProvider ? element->NewData(mProvider->Clone(element)) : element->NewData(mText.Get());
    return copy ? copy->AsNode() : nullptr;
}

XIXMLData::IXMLCData* XGetProvider(const XIXMLData* data) {
    XAssertPointer(data);
    return static_cast<const XCXMLData*>(data)->GetProvider();
}

// ---- XCXMLElement

XCXMLElement::XCXMLElement(XIXMLElement* parent, const char* key)
    : XCXMLNode(parent), mKey(key), mFirstNode(nullptr), mFirstAttribute(nullptr), mLastNode(nullptr),
      mLastAttribute(nullptr) {}

namespace {

// Destroying a tree recurses once per level. Beyond this depth an element hands its
// children, detached, to the outermost destructor, which destroys them in turn: a
// hostile document a million levels deep then costs heap, not stack.
constexpr int kMaxDestroyDepth = 1000;
thread_local int tDestroyDepth = 0;
thread_local std::vector<XIXMLNode*>* tDeferred = nullptr;

struct DestroyLevel {
    DestroyLevel() { ++tDestroyDepth; }
    ~DestroyLevel() { --tDestroyDepth; }
};

} // namespace

XCXMLElement::~XCXMLElement() {
    try {
        while (mFirstAttribute) mFirstAttribute->Destroy();
        if (tDestroyDepth >= kMaxDestroyDepth && tDeferred) {
            while (XIXMLNode* node = mFirstNode) {
                tDeferred->push_back(node);
                mFirstNode = node->GetNext();
                node->SetParent(nullptr);
                node->SetNext(nullptr);
            }
            mLastNode = nullptr;
            return;
        }
        DestroyLevel level;
        if (tDeferred) {
            while (mFirstNode) mFirstNode->Destroy();
            return;
        }
        std::vector<XIXMLNode*> deferred;
        tDeferred = &deferred;
        try {
            while (mFirstNode) mFirstNode->Destroy();
            while (!deferred.empty()) {
                XIXMLNode* node = deferred.back();
                deferred.pop_back();
                node->Destroy();
            }
        } catch (...) {
            tDeferred = nullptr;
            throw;
        }
        tDeferred = nullptr;
    } catch (...) {
        LogCaught("XCXMLElement::~XCXMLElement: Exception in destructor (%s)");
    }
}

void XCXMLElement::Write(XCXMLWriter* writer, int indent) {
    writer->WriteStartTag(indent, mKey);
    bool ownLines = mFirstAttribute && mFirstAttribute->GetNext();
    for (XIXMLAttribute* attribute = mFirstAttribute; attribute; attribute = attribute->GetNext()) {
        if (ownLines) writer->NewLine(indent + 1);
        attribute->Write(writer);
    }
    if (!mFirstNode) {
        writer->WriteBlock("/>", 2);
        return;
    }
    writer->WriteChar('>');
    for (XIXMLNode* node = mFirstNode; node; node = node->GetNext()) node->Write(writer, indent + 1);
    writer->WriteEndTag(indent, mKey);
}

XIXMLNode* XCXMLElement::CopyTo(XIXMLElement* element) const {
    // The lists are copied as they stand now, so that a copy into this element's own
    // subtree does not copy itself again.
    XIXMLAttribute* lastAttribute = mFirstAttribute;
    while (lastAttribute && lastAttribute->GetNext()) lastAttribute = lastAttribute->GetNext();
    XIXMLNode* lastNode = mFirstNode;
    while (lastNode && lastNode->GetNext()) lastNode = lastNode->GetNext();

    XIXMLElement* copy = element->NewElement(element->GetKey(mKey));
    if (!copy) return nullptr;
    for (XIXMLAttribute* attribute = mFirstAttribute; attribute; attribute = attribute->GetNext()) {
        attribute->CopyTo(copy);
        if (attribute == lastAttribute) break;
    }
    for (XIXMLNode* node = mFirstNode; node; node = node->GetNext()) {
        node->CopyTo(copy);
        if (node == lastNode) break;
    }
    return copy->AsNode();
}

void XCXMLElement::Write(XIXMLWriteStream* stream) {
    XCXMLWriter writer(stream);
    AsNode()->Write(&writer, 0);
}

XKey XCXMLElement::GetKey(const char* text) {
    // Straight to the top element (the root, when in a tree), without a call per level.
    XIXMLElement* top = this;
    while (XIXMLElement* parent = top->AsNode()->GetParent()) top = parent;
    XAssertPointer(top != this ? top : nullptr, "XCXMLElement::GetKey - element isn't in a tree");
    return top->GetKey(text);
}

void XCXMLElement::AddNode(XIXMLNode* node) {
    XAssertPointer(node);
    XAssert(node->GetParent() == nullptr && node->GetNext() == nullptr);
    if (!mFirstNode) {
        mFirstNode = node;
    } else {
        XIXMLNode* last = mLastNode && mLastNode->GetParent() == this ? mLastNode : mFirstNode;
        while (XIXMLNode* next = last->GetNext()) last = next;
        last->SetNext(node);
    }
    mLastNode = node;
    node->SetParent(this);
}

void XCXMLElement::RemoveNode(XIXMLNode* node) {
    XAssertPointer(node);
    XAssert(node->GetParent() == this);
    XIXMLNode* previous = nullptr;
    if (mFirstNode == node) {
        mFirstNode = node->GetNext();
    } else {
        previous = mFirstNode;
        XAssertPointer(previous, "XCXMLElement::RemoveNode previous == NULL");
        while (previous->GetNext() != node) {
            previous = previous->GetNext();
            XAssertPointer(previous, "XCXMLElement::RemoveNode previous == NULL");
        }
        previous->SetNext(node->GetNext());
    }
    if (mLastNode == node) mLastNode = previous;
    node->SetParent(nullptr);
    node->SetNext(nullptr);
}

void XCXMLElement::MoveNode(XIXMLNode* node, XIXMLNode* before) {
    XAssertPointer(node);
    if (node == before || node->GetNext() == before) return;
    RemoveNode(node);
    XIXMLNode* previous = nullptr;
    if (mFirstNode != before) {
        previous = mFirstNode;
        XAssertPointer(previous, "XCXMLElement::MoveNode previous == NULL");
        while (previous->GetNext() != before) {
            previous = previous->GetNext();
            XAssertPointer(previous, "XCXMLElement::MoveNode previous == NULL");
        }
    }
    node->SetNext(before);
    if (previous)
        previous->SetNext(node);
    else
        mFirstNode = node;
    if (!before) mLastNode = node;
    node->SetParent(this);
}

unsigned int XCXMLElement::GetNodeIndex(const XIXMLNode* node) const {
    unsigned int index = 0;
    for (const XIXMLNode* cursor = mFirstNode; cursor; cursor = cursor->GetNext(), ++index)
        if (cursor == node) return index;
    return 0xFFFFFFFFu;
}

XIXMLAttribute* XCXMLElement::AddAttribute(XKey key, const char* value) {
    XAssertPointer(key);
    XCXMLAttribute* attribute = new (std::nothrow) XCXMLAttribute(this, *key, value);
    if (!attribute) return nullptr;
    if (!mFirstAttribute) {
        mFirstAttribute = attribute;
    } else {
        XIXMLAttribute* last = mLastAttribute ? mLastAttribute : mFirstAttribute;
        while (XIXMLAttribute* next = last->GetNext()) last = next;
        last->SetNext(attribute);
    }
    mLastAttribute = attribute;
    return attribute;
}

void XCXMLElement::RemoveAttribute(XIXMLAttribute* attribute) {
    XIXMLAttribute* previous = nullptr;
    if (mFirstAttribute && mFirstAttribute == attribute) {
        mFirstAttribute = attribute->GetNext();
    } else {
        previous = mFirstAttribute;
        XAssertPointer(previous, "XCXMLElement::RemoveAttribute previous == NULL");
        while (previous->GetNext() != attribute) {
            previous = previous->GetNext();
            XAssertPointer(previous, "XCXMLElement::RemoveAttribute previous == NULL");
        }
        previous->SetNext(attribute->GetNext());
    }
    if (mLastAttribute == attribute) mLastAttribute = previous;
}

XIXMLPI* XCXMLElement::NewPI(const char* target, const char* data) {
    return new (std::nothrow) XCXMLPI(this, target, data);
}

XIXMLComment* XCXMLElement::NewComment(const char* text) {
    return new (std::nothrow) XCXMLComment(this, text);
}

XIXMLDocType* XCXMLElement::NewDocType(XKey key, const char* publicId, const char* systemId,
                                       const char* internalSubset) {
    return new (std::nothrow) XCXMLDocType(this, key, publicId, systemId, internalSubset);
}

XIXMLData* XCXMLElement::NewData(XIXMLData::IXMLCData* provider) {
    if (GetData()) XThrow("Only one data node for an element");
    XCXMLData* data = new (std::nothrow) XCXMLData(this, provider);
    if (!data) return nullptr;
    XRequire(provider != nullptr);
    return data;
}

XIXMLData* XCXMLElement::NewData(const char* text) {
    if (GetData()) XThrow("Only one data node for an element");
    return new (std::nothrow) XCXMLData(this, text);
}

XIXMLElement* XCXMLElement::NewElement(XKey key) {
    XAssertPointer(key);
    return new (std::nothrow) XCXMLElement(this, *key);
}

void XCXMLElement::SetKey(XKey key) {
    XAssertPointer(key);
    mKey = *key;
}

const XIXMLData* XCXMLElement::GetData() const {
    for (XIXMLNode* node = mFirstNode; node; node = node->GetNext())
        if (XIXMLData* data = node->AsData()) return data;
    return nullptr;
}

XIXMLData* XCXMLElement::GetData() {
    return const_cast<XIXMLData*>(static_cast<const XCXMLElement*>(this)->GetData());
}

XIXMLElement* XCXMLElement::GetFirstElement() const {
    for (XIXMLNode* node = mFirstNode; node; node = node->GetNext())
        if (XIXMLElement* element = node->AsElement()) return element;
    return nullptr;
}

XIXMLElement* XCXMLElement::GetNextElement() const {
    for (XIXMLNode* node = GetNext(); node; node = node->GetNext())
        if (XIXMLElement* element = node->AsElement()) return element;
    return nullptr;
}

XIXMLElement* XCXMLElement::FindElement(XKey key) const {
    XAssertPointer(key);
    const char* name = *key;
    for (XIXMLNode* node = mFirstNode; node; node = node->GetNext()) {
        XIXMLElement* element = node->AsElement();
        if (element && *element->GetKey() == name) return element;
    }
    return nullptr;
}

XIXMLElement* XCXMLElement::FindNextElement() const {
    for (XIXMLNode* node = GetNext(); node; node = node->GetNext()) {
        XIXMLElement* element = node->AsElement();
        if (element && *element->GetKey() == mKey) return element;
    }
    return nullptr;
}

unsigned int XCXMLElement::GetElementCount() const {
    unsigned int count = 0;
    for (XIXMLNode* node = mFirstNode; node; node = node->GetNext())
        if (node->AsElement()) ++count;
    return count;
}

XIXMLElement* XCXMLElement::GetElement(unsigned int index) const {
    for (XIXMLNode* node = mFirstNode; node; node = node->GetNext()) {
        XIXMLElement* element = node->AsElement();
        if (element && index-- == 0) return element;
    }
    return nullptr;
}

XIXMLAttribute* XCXMLElement::FindAttribute(XKey key) const {
    XAssertPointer(key);
    const char* name = *key;
    if (name && *name == 0) return mFirstAttribute;
    for (XIXMLAttribute* attribute = mFirstAttribute; attribute; attribute = attribute->GetNext())
        if (*attribute->GetKey() == name) return attribute;
    return nullptr;
}

bool XCXMLElement::HasAttribute(XKey key, const char* value) const {
    XIXMLAttribute* attribute = FindAttribute(key);
    return attribute && value && std::strcmp(attribute->GetValue(), value) == 0;
}

// ---- XCXMLRoot

XCXMLRoot::XCXMLRoot() : XCXMLElement(nullptr, nullptr), mKeys(nullptr) {
    mKeys = new (std::nothrow) CHashKey;
    if (!mKeys) XThrow("Can't allocate key hash table.");
}

XCXMLRoot::~XCXMLRoot() {
    try {
        delete mKeys;
        mKeys = nullptr;
    } catch (...) {
        LogCaught("XCXMLRoot::~XCXMLRoot: Exception in destructor (%s)");
    }
}

XKey XCXMLRoot::GetKey(const char* text) {
    return mKeys->Intern(text);
}

void XCXMLRoot::Write(XCXMLWriter* writer, int indent) {
    for (XIXMLNode* node = GetFirstNode(); node; node = node->GetNext()) node->Write(writer, indent);
    writer->WriteChar('\n');
}

// ---- XCXMLTree

XCXMLTree::XCXMLTree() : mRoot(new XCXMLRoot) {}

XCXMLTree::~XCXMLTree() {
    try {
        mRoot->Destroy();
    } catch (...) {
        LogCaught("XCXMLTree::~XCXMLTree: Exception in destructor (%s)");
    }
}

} // namespace KestraXML
