// Element forms of view objects (View.Object) and the scene's View.Objects.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/views/ViewObject.h"

namespace KeZel {

KestraXML::XIXMLElement* ZelAddViewObject(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                          const CViewObject& view);
// Every key is required; the values go through the setters.
void ZelGetViewObject(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CViewObject& view);

// ---- The scene's own, below the file node.
// View.Objects: the views in list order, then the family's options in its Options.
KestraXML::XIXMLElement* ZelPutViewObjects(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                           CViewObjectList& views, const CAnimRenderingOpt& options);
// The views, then the family's options when the element has them. Without View.Objects
// both stay as they are and the answer is false.
bool ZelGetViewObjects(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CViewObjectList& views,
                       CAnimRenderingOpt& options);

} // namespace KeZel
