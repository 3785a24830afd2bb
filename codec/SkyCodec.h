// Element forms of the air of a scene: Sky.Light, Clouds, Fog, Atmosphere, Ambient and the
// camera or radiosity light of a view.
//
// ZelAddX makes the element under `parent` and answers it; ZelGetX reads the element
// itself, through the setters, so that values out of bounds come back clipped.
#pragma once

#include "codec/ZelXMLIO.h"

namespace KeZel {

class CSkylight;
class CZelClouds;
class CZelFog;
class CAtmosphere;
class CAmbiance;
class CZelCameraLight;

KestraXML::XIXMLElement* ZelAddSkylight(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CSkylight& sky);
void ZelGetSkylight(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CSkylight& sky);

KestraXML::XIXMLElement* ZelAddClouds(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                      const CZelClouds& clouds);
// The wind is read only when Active.Wind is there: older files keep its defaults.
void ZelGetClouds(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelClouds& clouds);

KestraXML::XIXMLElement* ZelAddFog(const CZelXMLIO& io, KestraXML::XIXMLElement* parent, const CZelFog& fog);
void ZelGetFog(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelFog& fog);

// Replaces any Atmosphere of `parent`.
KestraXML::XIXMLElement* ZelAddAtmosphere(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                          const CAtmosphere& atmosphere);
void ZelGetAtmosphere(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CAtmosphere& atmosphere);

// Replaces any Ambient of `parent`. The colour stands in the file with 128 added to each
// component.
KestraXML::XIXMLElement* ZelAddAmbient(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                       const CAmbiance& ambient);
void ZelGetAmbient(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CAmbiance& ambient);

// Element Radiosity.Light or Camera.Light after the light's kind.
KestraXML::XIXMLElement* ZelAddCameraLight(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                           const CZelCameraLight& light);
void ZelGetCameraLight(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelCameraLight& light);

// ---- The scene's own, directly below the file node. The readers raise when the element
// is missing: the document layout calls them only for files of the full form.
KestraXML::XIXMLElement* ZelPutAmbient(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                       const CAmbiance& ambient);
void ZelGetSceneAmbient(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CAmbiance& ambient);
KestraXML::XIXMLElement* ZelPutAtmosphere(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                          const CAtmosphere& atmosphere);
void ZelGetSceneAtmosphere(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                           CAtmosphere& atmosphere);

} // namespace KeZel
