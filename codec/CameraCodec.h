// Element forms of perspective views (Perspective.View) and the scene's Perspective.Views,
// with the old Image element that once held the perspective options.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/views/Camera.h"

namespace KeZel {

// Element Perspective.View, with its View.Info, its Options and, below those, its
// InsertionObject. Raises "No label for the value (%d) [%s..%s]" for a value without a
// label.
KestraXML::XIXMLElement* ZelAddCamera(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                      const CCamera& camera);
// Every key is required but the InsertionObject. Flags, roll and focal go through the
// setters.
void ZelGetCamera(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CCamera& camera);

// ---- The scene's own, below the file node.
// Perspective.Views: the views in list order, then the family's options in its Options.
KestraXML::XIXMLElement* ZelPutPerspectiveViews(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                                CCameraList& cameras, const CAnimRenderingOpt& options);
// The views, then the family's options when the element has them. Without
// Perspective.Views both stay as they are and the answer is false.
bool ZelGetPerspectiveViews(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                            CCameraList& cameras, CAnimRenderingOpt& options);
// The old element Image, read and never written: the perspective options from its
// Options. False, and nothing read, when there is none.
bool ZelGetOldImage(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CAnimRenderingOpt& options);

} // namespace KeZel
