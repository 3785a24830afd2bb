// Element forms of panoramas (Panorama), their nodes (Panorama.Node) and links
// (Pano.Link), and the scene's Panoramas.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/views/Panorama.h"

namespace KeZel {

KestraXML::XIXMLElement* ZelAddPanoNode(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CVRPanorama& node);
// Every key is required but UI.Value; the values go through the setters.
void ZelGetPanoNode(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CVRPanorama& node);

// Element Pano.Link: the two ends as Pano1 and Pano2, then the identity.
KestraXML::XIXMLElement* ZelAddPanoLink(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CVRPanoLink& link);
void ZelGetPanoLink(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CVRPanoLink& link);

KestraXML::XIXMLElement* ZelAddPanorama(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CZelPanorama& panorama);
// Current goes through setCurrentNode, which takes the node's direction; a
// Current.Direction in the file then overrides it.
void ZelGetPanorama(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelPanorama& panorama);

// ---- The scene's own, below the file node.
// Panoramas: the panoramas in list order, then the family's options in its Options.
KestraXML::XIXMLElement* ZelPutPanoramas(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                         CPanoramaList& panoramas, const CAnimRenderingOpt& options);
// The panoramas, then the family's options when the element has them. Without Panoramas
// both stay as they are and the answer is false.
bool ZelGetPanoramas(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CPanoramaList& panoramas,
                     CAnimRenderingOpt& options);

} // namespace KeZel
