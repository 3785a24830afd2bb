// Element forms of lights, lens flares and lights groups, and the scene's lists Lights
// and Lights.Groups.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/light/Light.h"

namespace KeZel {

// Element Lens.Flare, shared by lights and heliodons.
KestraXML::XIXMLElement* ZelAddLensFlare(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                         const CZelLensFlare& flare);
void ZelGetLensFlare(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelLensFlare& flare);

// Element Light. Raises "No label for the value (%d) [%s..%s]" for a type without a label.
KestraXML::XIXMLElement* ZelAddLight(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                     const CLight& light);
void ZelGetLight(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CLight& light);

// Element Lights.Group.
KestraXML::XIXMLElement* ZelAddLightsGroup(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                           const CZelLightsGroup& group);
void ZelGetLightsGroup(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelLightsGroup& group);

// ---- The scene's lists, below the file node. A reader without its list element leaves
// the list as it is and answers false.
KestraXML::XIXMLElement* ZelPutLights(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                      CLightList& lights);
bool ZelGetLights(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CLightList& lights);
KestraXML::XIXMLElement* ZelPutLightsGroups(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                            CLightsGroupList& groups);
bool ZelGetLightsGroups(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                        CLightsGroupList& groups);

} // namespace KeZel
