// The element form of shader nodes. One generic walk writes and reads every kind: the head
// (Id, UI.Value, Type), the kind's own fields, then the children in the kind's form. Each
// kind contributes only its two field functions below.
//
//   Chess        children 0 and 1 as Node and SecondNode
//   Mapping, Turbulence, Fresnel, Glazing   child 0 as Node
//   Leaf         no children
//   Custom       every child as Node under Childs
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/geometry/ShaderNode.h"

#include <map>

namespace KeZel {

class CChessNode;
class CMappingNode;
class CTurbulenceNode;
class CLeafNode;
class CFresnelNode;
class CGlazingNode;
class CCustomNode;

// Mapping node identities of a tree read for another scene: the identity in the file to
// the one the node was given.
typedef std::map<CZelUUID, CZelUUID> CZelIdRemap;

// How a tree is read. In full mode the identities in the file are kept; otherwise every
// mapping node keeps its fresh MappingNode.Id, and `mRemap` (when given) translates the
// parent ids between the nodes of what is read.
struct CZelNodeReading {
    CZelTCE* mTree;
    bool mFullMode;
    CZelIdRemap* mRemap;
};

// Writes `node` and its subtree as an element `name` ("Node", or "SecondNode") under
// `parent`. A null node, or a missing child where the kind has one, is an internal error.
KestraXML::XIXMLElement* ZelAddNode(const CZelXMLIO& io, KestraXML::XIXMLElement* parent, const char* name,
                                    const ITCENode* node);

// Reads a node and its subtree from `element`. A node of Type "Root" gives nothing.
CNodeRef ZelGetNode(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                    const CZelNodeReading& reading);

// The head of a node element: Id when not null, UI.Value when not 0, Type for kinds 1 to 7.
void ZelPutNodeHead(const CZelXMLIO& io, KestraXML::XIXMLElement* e, const ITCENode& node);
// Id and UI.Value, each when present.
void ZelGetNodeHead(const CZelXMLIO& io, const KestraXML::XIXMLElement* e, ITCENode& node);

// A table: attribute Length and one Float for each value.
void ZelPutTable(const CZelXMLIO& io, KestraXML::XIXMLElement* e, const char* key, const ITable& table);
// Sets the length first, then the values by position; surplus Floats are dropped.
void ZelGetTable(const CZelXMLIO& io, const KestraXML::XIXMLElement* e, const char* key, ITable& table);

// The fields of each kind.
void ZelPutNodeFields(const CZelXMLIO& io, KestraXML::XIXMLElement* e, const CChessNode& node);
void ZelGetNodeFields(const CZelXMLIO& io, const KestraXML::XIXMLElement* e, CChessNode& node,
                      const CZelNodeReading& reading);
void ZelPutNodeFields(const CZelXMLIO& io, KestraXML::XIXMLElement* e, const CMappingNode& node);
// Raises "CZelXMLIO::GetMappingNode : xml node is not a mapping node" for another Type.
void ZelGetNodeFields(const CZelXMLIO& io, const KestraXML::XIXMLElement* e, CMappingNode& node,
                      const CZelNodeReading& reading);
void ZelPutNodeFields(const CZelXMLIO& io, KestraXML::XIXMLElement* e, const CTurbulenceNode& node);
void ZelGetNodeFields(const CZelXMLIO& io, const KestraXML::XIXMLElement* e, CTurbulenceNode& node,
                      const CZelNodeReading& reading);
void ZelPutNodeFields(const CZelXMLIO& io, KestraXML::XIXMLElement* e, const CLeafNode& node);
void ZelGetNodeFields(const CZelXMLIO& io, const KestraXML::XIXMLElement* e, CLeafNode& node,
                      const CZelNodeReading& reading);
void ZelPutNodeFields(const CZelXMLIO& io, KestraXML::XIXMLElement* e, const CFresnelNode& node);
void ZelGetNodeFields(const CZelXMLIO& io, const KestraXML::XIXMLElement* e, CFresnelNode& node,
                      const CZelNodeReading& reading);
void ZelPutNodeFields(const CZelXMLIO& io, KestraXML::XIXMLElement* e, const CGlazingNode& node);
void ZelGetNodeFields(const CZelXMLIO& io, const KestraXML::XIXMLElement* e, CGlazingNode& node,
                      const CZelNodeReading& reading);
void ZelPutNodeFields(const CZelXMLIO& io, KestraXML::XIXMLElement* e, const CCustomNode& node);
void ZelGetNodeFields(const CZelXMLIO& io, const KestraXML::XIXMLElement* e, CCustomNode& node,
                      const CZelNodeReading& reading);

} // namespace KeZel
