#include "model/geometry/ShaderNode.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/UUID.h"
#include "model/geometry/MappingNode.h"
#include "model/geometry/ProceduralNodes.h"
#include "model/geometry/Property.h"

namespace KeZel {

using namespace Kestra;

// ---- CTCENode

CTCENode::CTCENode(CZelTCE* tree, int uiValue) : mId(NewZelUUID()), mTree(tree), mUIValue(uiValue) {}

CTCENode::CTCENode(CZelTCE* tree, const CTCENode& source)
    : mId(NewZelUUID()), mTree(tree), mUIValue(source.mUIValue) {}

CTCENode::~CTCENode() {
    // Release alone never throws; a child's own destructor logs its troubles.
    for (ITCENode* child : mChildren)
        if (child) child->Release();
}

const ITCENode* CTCENode::getChild(int index) const {
    if (index < 0 || index >= getChildCount()) return nullptr;
    return mChildren[static_cast<size_t>(index)];
}

ITCENode* CTCENode::getChild(int index) {
    if (index < 0 || index >= getChildCount()) return nullptr;
    return mChildren[static_cast<size_t>(index)];
}

void CTCENode::setChild(int index, ITCENode* node) {
    if (!node || index < 0 || index > getChildCount()) return;
    if (index == getChildCount()) {
        node->AddRef();
        mChildren.push_back(node);
    }
    // Taken before the old one goes, so that setting a node in its own place keeps it.
    node->AddRef();
    ITCENode* old = mChildren[static_cast<size_t>(index)];
    mChildren[static_cast<size_t>(index)] = node;
    if (old) old->Release();
}

void CTCENode::addChild(ITCENode* node) {
    if (!node) return;
    mChildren.push_back(node);
    node->AddRef();
}

void CTCENode::removeChild(int index) {
    if (index < 0 || index >= getChildCount()) return;
    ITCENode* child = mChildren[static_cast<size_t>(index)];
    mChildren.erase(mChildren.begin() + index);
    if (child) child->Release();
}

CZEL* CTCENode::getZel() const {
    const CProperty* property = CProperty::FromTCE(mTree);
    return property ? property->getZel() : nullptr;
}

void CTCENode::report(const char* text) const {
    CZEL* zel = getZel();
    XAssertPointer(zel, "CTCENode::report - node without a manager");
    zel->report(text);
}

// ---- CTable

void CTable::Release() {
    if (--mRefCount == 0 && !mEmbedded) delete this;
}

void CTable::setLength(int length) {
    if (length < 0 || length == getLength()) return;
    mValues.resize(static_cast<size_t>(length), 0.0f);
}

float CTable::getValue(int index) const {
    if (index < 0 || index >= getLength()) return 0.0f;
    return mValues[static_cast<size_t>(index)];
}

void CTable::setValue(int index, float value) {
    if (index < 0 || index >= getLength()) return;
    mValues[static_cast<size_t>(index)] = value;
}

void CTable::copyFrom(const ITable& other) {
    int length = other.getLength();
    mValues.assign(static_cast<size_t>(length < 0 ? 0 : length), 0.0f);
    for (int i = 0; i < length; ++i) mValues[static_cast<size_t>(i)] = other.getValue(i);
}

// ---- CNodeRef

CNodeRef& CNodeRef::operator=(CNodeRef&& other) {
    if (this != &other) {
        reset();
        mNode = other.mNode;
        other.mNode = nullptr;
    }
    return *this;
}

// ---- Making nodes

CNodeRef ZelNewNode(int kind, CZelTCE* tree) {
    switch (kind) {
    case eChessNode:
        return CNodeRef(new CChessNode(tree));
    case eMappingNode:
        return CNodeRef(new CMappingNode(tree));
    case eTurbulenceNode:
        return CNodeRef(new CTurbulenceNode(tree));
    case eLeafNode:
        return CNodeRef(new CLeafNode(tree));
    case eFresnelNode:
        return CNodeRef(new CFresnelNode(tree));
    case eGlazingNode:
        return CNodeRef(new CGlazingNode(tree));
    case eCustomNode:
        return CNodeRef(new CCustomNode(tree));
    default:
        XThrowFormat("ZelNewNode - no node of kind %d", kind);
    }
}

namespace {

// The copy constructor of the class behind a typed view.
template <class C, class V> CNodeRef CopyOf(CZelTCE* tree, V* view) {
    const C* source = dynamic_cast<const C*>(view);
    if (!source) XThrow("Node is unknown");
    return CNodeRef(new C(tree, *source));
}

} // namespace

CNodeRef ZelCloneNode(CZelTCE* tree, const ITCENode* source) {
    if (!source) XThrow("Node is NULL");
    // The typed views are not const; asking them changes nothing.
    ITCENode* s = const_cast<ITCENode*>(source);
    CNodeRef copy;
    if (IChessNode* v = s->asChess())
        copy = CopyOf<CChessNode>(tree, v);
    else if (IMappingNode* v = s->asMapping())
        copy = CopyOf<CMappingNode>(tree, v);
    else if (ITurbulenceNode* v = s->asTurbulence())
        copy = CopyOf<CTurbulenceNode>(tree, v);
    else if (ILeafNode* v = s->asLeaf())
        copy = CopyOf<CLeafNode>(tree, v);
    else if (ICustomNode* v = s->asCustom())
        copy = CopyOf<CCustomNode>(tree, v);
    else if (IFresnelNode* v = s->asFresnel())
        copy = CopyOf<CFresnelNode>(tree, v);
    else if (IGlazingNode* v = s->asGlazing())
        copy = CopyOf<CGlazingNode>(tree, v);
    else
        XThrow("Node is unknown");

    if (copy->getKind() == eMappingNode) {
        // A mapping always has what lies under it: a missing child 0 fails the clone.
        CNodeRef child = ZelCloneNode(tree, source->getChild(0));
        copy->addChild(child.get());
    } else {
        for (int i = 0; i < source->getChildCount(); ++i) {
            CNodeRef child = ZelCloneNode(tree, source->getChild(i));
            copy->addChild(child.get());
        }
    }
    return copy;
}

} // namespace KeZel
