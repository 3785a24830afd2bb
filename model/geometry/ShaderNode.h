// What every shader node shares: counting, identity, the owning tree, the counted children
// and the UI value (CTCENode); the template that joins a node interface to it (TTCENode);
// the counted table of floats (CTable); the root that lives inside its property; and the
// two operations that make nodes: the factory by kind and the deep clone.
//
// A node lives while references to it exist. The parent's child vector holds one; a
// node made by ZelNewNode or ZelCloneNode comes inside a CNodeRef that holds another.
#pragma once

#include "frame/RefCounted.h"
#include "frame/ZelFrontier.h"
#include "model/geometry/IZelShaderNode.h"

#include <type_traits>
#include <vector>

namespace KeZel {

class CZEL;

// The kind that getKind answers for each node interface.
template <class I> struct TNodeKind;
template <> struct TNodeKind<IRootNode> {
    enum { value = eRootNode };
};
template <> struct TNodeKind<IChessNode> {
    enum { value = eChessNode };
};
template <> struct TNodeKind<IMappingNode> {
    enum { value = eMappingNode };
};
template <> struct TNodeKind<ITurbulenceNode> {
    enum { value = eTurbulenceNode };
};
template <> struct TNodeKind<ILeafNode> {
    enum { value = eLeafNode };
};
template <> struct TNodeKind<IFresnelNode> {
    enum { value = eFresnelNode };
};
template <> struct TNodeKind<IGlazingNode> {
    enum { value = eGlazingNode };
};
template <> struct TNodeKind<ICustomNode> {
    enum { value = eCustomNode };
};

class CTCENode : public TZelRefCount<TZelFrontier<ITCENode>> {
public:
    // A fresh id; raises "Can't create UUID".
    explicit CTCENode(CZelTCE* tree, int uiValue = 0);
    // The start of a clone: the source's UI value, a fresh id, no children yet.
    CTCENode(CZelTCE* tree, const CTCENode& source);
    // Releases the children.
    ~CTCENode() override;
    CTCENode(const CTCENode&) = delete;
    CTCENode& operator=(const CTCENode&) = delete;

    CZelTCE* getParent() const override { return mTree; }
    void setParent(CZelTCE* tree) override { mTree = tree; }
    int getChildCount() const override { return static_cast<int>(mChildren.size()); }
    const ITCENode* getChild(int index) const override;
    ITCENode* getChild(int index) override;
    void setChild(int index, ITCENode* node) override;
    void addChild(ITCENode* node) override;
    void removeChild(int index) override;
    const CZelUUID* getId() const override { return &mId; }
    void setId(const CZelUUID& id) override { mId = id; }
    int getUIValue() const override { return mUIValue; }
    void setUIValue(int value) override { mUIValue = value; }
    void* asReserved1() override { return nullptr; }
    void* asReserved2() override { return nullptr; }
    void* asReserved3() override { return nullptr; }
    void* asReserved4() override { return nullptr; }

    // ---- Internal API
    // The manager, through the tree's property; null when none is reachable.
    CZEL* getZel() const;
    // Passes a text to the manager's feedback. A node that reaches no manager cannot
    // report, and trying is an internal error.
    void report(const char* text) const;

protected:
    CZelUUID mId;
    CZelTCE* mTree;
    std::vector<ITCENode*> mChildren;
    int mUIValue;
};

// A node of interface I: I's two first operations and the typed views come from here.
template <class I> class TTCENode : public TZelFrontier<I>, public CTCENode {
public:
    explicit TTCENode(CZelTCE* tree, int uiValue = 0) : CTCENode(tree, uiValue) {}
    TTCENode(CZelTCE* tree, const TTCENode& source) : CTCENode(tree, source) {}

    ITCENode* asNode() override { return this; }
    const ITCENode* asNode() const override { return this; }
    int getKind() const override { return TNodeKind<I>::value; }
    IRootNode* asRoot() override { return view<IRootNode>(); }
    IChessNode* asChess() override { return view<IChessNode>(); }
    IMappingNode* asMapping() override { return view<IMappingNode>(); }
    ITurbulenceNode* asTurbulence() override { return view<ITurbulenceNode>(); }
    ILeafNode* asLeaf() override { return view<ILeafNode>(); }
    IFresnelNode* asFresnel() override { return view<IFresnelNode>(); }
    IGlazingNode* asGlazing() override { return view<IGlazingNode>(); }
    ICustomNode* asCustom() override { return view<ICustomNode>(); }

private:
    template <class V> V* view() {
        if constexpr (std::is_same<V, I>::value)
            return this;
        else
            return nullptr;
    }
};

// The root of a property's tree. It is a member of the property and dies with it, so the
// last Release does not delete it; a count left at that time is logged as for any node.
class CRootNode : public TTCENode<IRootNode> {
public:
    explicit CRootNode(CZelTCE* tree) : TTCENode<IRootNode>(tree) {}
    void Release() override { --mRefCount; }
};

// A counted, resizable array of 32-bit floats.
class CTable : public TZelRefCount<TZelFrontier<ITable>> {
public:
    // An embedded table is a member of its node and dies with it: the last Release does
    // not delete it.
    explicit CTable(bool embedded = false) : mEmbedded(embedded) {}
    CTable(const CTable&) = delete;
    CTable& operator=(const CTable&) = delete;

    void Release() override;
    int getLength() const override { return static_cast<int>(mValues.size()); }
    // Keeps the common part; new entries are 0. A negative length changes nothing.
    void setLength(int length) override;
    float getValue(int index) const override;
    void setValue(int index, float value) override;

    // ---- Internal API
    void copyFrom(const ITable& other);

private:
    bool mEmbedded;
    std::vector<float> mValues;
};

// One counted reference to a node, released with the holder.
class CNodeRef {
public:
    CNodeRef() : mNode(nullptr) {}
    explicit CNodeRef(ITCENode* node) : mNode(node) {
        if (mNode) mNode->AddRef();
    }
    CNodeRef(CNodeRef&& other) : mNode(other.mNode) { other.mNode = nullptr; }
    CNodeRef& operator=(CNodeRef&& other);
    ~CNodeRef() { reset(); }
    CNodeRef(const CNodeRef&) = delete;
    CNodeRef& operator=(const CNodeRef&) = delete;

    ITCENode* get() const { return mNode; }
    ITCENode* operator->() const { return mNode; }
    ITCENode& operator*() const { return *mNode; }
    explicit operator bool() const { return mNode != nullptr; }
    // Hands the reference over to the caller.
    ITCENode* detach() {
        ITCENode* node = mNode;
        mNode = nullptr;
        return node;
    }
    void reset() {
        if (mNode) mNode->Release();
        mNode = nullptr;
    }

private:
    ITCENode* mNode;
};

// A new node of kind 1 to 7 for `tree`, not linked anywhere; other kinds are an internal
// error.
CNodeRef ZelNewNode(int kind, CZelTCE* tree);

// Deep copy of `source` and its subtree for `tree`, every node with a fresh id. Raises
// "Node is NULL" for a null source and "Node is unknown" for a node of no known kind.
CNodeRef ZelCloneNode(CZelTCE* tree, const ITCENode* source);

} // namespace KeZel
