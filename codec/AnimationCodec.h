// Element forms of camera paths: Animation, Camera.Path, Camera.Key, and the scene's
// Animations.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/views/Animation.h"

namespace KeZel {

// Element Camera.Key. Raises "No label for the value (%d) [%s..%s]" for a key type
// without a label.
KestraXML::XIXMLElement* ZelAddCamKey(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                      const CCamKey& key);
void ZelGetCamKey(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CCamKey& key);

// Element Camera.Path, with its Points and Camera.Keys.
KestraXML::XIXMLElement* ZelAddCameraPath(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                          const CAnimation& path);
void ZelGetCameraPath(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CAnimation& path);

// Element Animation, with its Camera.Paths and Options.
KestraXML::XIXMLElement* ZelAddAnimation(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                         const CZelAnimation& animation);
// Current goes through setCurrentPath, after the paths.
void ZelGetAnimation(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelAnimation& animation);

// ---- The scene's own, below the file node.
// Animations: the animations in list order, then the family's options in its Options.
KestraXML::XIXMLElement* ZelPutAnimations(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                          CAnimationList& animations, const CAnimRenderingOpt& options);
// The animations, then the family's options when the element has them. Without
// Animations both stay as they are and the answer is false.
bool ZelGetAnimations(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                      CAnimationList& animations, CAnimRenderingOpt& options);

} // namespace KeZel
