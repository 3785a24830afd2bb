// The shader node tree of a material: the node that all kinds share, the counted table of
// numbers, and the root. Public header, C++11. Slot order is part of the interface.
//
// Nodes and tables are shared and counted: a host never deletes one, it calls Release.
// Their destructor is not a slot of the interface: the counted implementation declares it,
// so that it stands behind the three reserved slots of the frontier.
//
// Operation order chosen here: the two operations that give every typed node its
// ITCENode face are named asNode, plain first, then const. The four spare typed views are
// asReserved1 to asReserved4 and answer void*, since no kind stands behind them yet.
// Child indices, counts and table lengths are signed 32-bit; a negative index is out of
// range. getParent answers the owning tree (CZelTCE), not a parent node.
#ifndef ZEL_MODEL_GEOMETRY_IZELSHADERNODE_H
#define ZEL_MODEL_GEOMETRY_IZELSHADERNODE_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"

namespace KeZel {

class CZelTCE;
class IRootNode;
class IChessNode;
class IMappingNode;
class ITurbulenceNode;
class ILeafNode;
class IFresnelNode;
class IGlazingNode;
class ICustomNode;

// Node kinds, the values of getKind and of CZelTCE::createNode.
enum ETCENodeKind {
    eRootNode = 0,
    eChessNode = 1,
    eMappingNode = 2,
    eTurbulenceNode = 3,
    eLeafNode = 4,
    eFresnelNode = 5,
    eGlazingNode = 6,
    eCustomNode = 7
};

class ZEL_API ITCENode {
public:
    virtual void AddRef() = 0;
    // The release that takes the count to 0 deletes the node and releases its children.
    virtual void Release() = 0;
    // The tree the node was made for; not counted.
    virtual CZelTCE* getParent() const = 0;
    virtual void setParent(CZelTCE* tree) = 0;
    virtual int getChildCount() const = 0;
    // Null for an index out of range, silently.
    virtual const ITCENode* getChild(int index) const = 0;
    virtual ITCENode* getChild(int index) = 0;
    // Replaces the child at `index` (the node list takes a reference and drops the old
    // one); `index` equal to the count appends; past it nothing happens.
    virtual void setChild(int index, ITCENode* node) = 0;
    // Appends; the node list takes a reference.
    virtual void addChild(ITCENode* node) = 0;
    // Releases the child and closes the gap; an index out of range does nothing.
    virtual void removeChild(int index) = 0;
    virtual const CZelUUID* getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    virtual int getUIValue() const = 0;
    virtual void setUIValue(int value) = 0;
    // One of the node kinds above; eRootNode for the root.
    virtual int getKind() const = 0;
    // Typed views: the node's own interface, or null when it is of another kind.
    virtual IRootNode* asRoot() = 0;
    virtual IChessNode* asChess() = 0;
    virtual IMappingNode* asMapping() = 0;
    virtual ITurbulenceNode* asTurbulence() = 0;
    virtual ILeafNode* asLeaf() = 0;
    virtual IFresnelNode* asFresnel() = 0;
    virtual IGlazingNode* asGlazing() = 0;
    virtual ICustomNode* asCustom() = 0;
    // Kept for later kinds; null in every class of this library.
    virtual void* asReserved1() = 0;
    virtual void* asReserved2() = 0;
    virtual void* asReserved3() = 0;
    virtual void* asReserved4() = 0;

protected:
    ~ITCENode() {}
};

// A counted, resizable array of 32-bit floats.
class ZEL_API ITable {
public:
    virtual void AddRef() = 0;
    virtual void Release() = 0;
    virtual int getLength() const = 0;
    // Keeps the common part; new entries are undefined until set.
    virtual void setLength(int length) = 0;
    // 0 for an index out of range.
    virtual float getValue(int index) const = 0;
    // An index out of range is ignored.
    virtual void setValue(int index, float value) = 0;

protected:
    ~ITable() {}
};

// The root of a material's tree: the property itself, seen as a node.
class ZEL_API IRootNode {
public:
    virtual ITCENode* asNode() = 0;
    virtual const ITCENode* asNode() const = 0;

protected:
    // Nodes die by Release only.
    virtual ~IRootNode() {}
};

} // namespace KeZel

#endif
