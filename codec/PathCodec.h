// Element forms of 3D paths (Path.3D, in the scene's 3D.Paths) and their Bezier points
// (Bezier.Point, in the path's Bezier.points).
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/animation/Path3D.h"

namespace KeZel {

KestraXML::XIXMLElement* ZelAddBezierPoint(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                           const CBezierPoint& point);
void ZelGetBezierPoint(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CBezierPoint& point);

// A path without points still has its (empty) Bezier.points.
KestraXML::XIXMLElement* ZelAdd3DPath(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                      const C3DPath& path);
void ZelGet3DPath(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, C3DPath& path);

// The scene's 3D.Paths. A reader without its element leaves the list as it is and answers
// false.
KestraXML::XIXMLElement* ZelPut3DPaths(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                       C3DPathList& paths);
bool ZelGet3DPaths(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, C3DPathList& paths);

} // namespace KeZel
