// Element forms of the heliodon and of its animation options, and the scene's Heliodons.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/light/Heliodon.h"

namespace KeZel {

class CHeliodonOpt;

// Element Heliodon.
KestraXML::XIXMLElement* ZelAddHeliodon(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CHeliodon& heliodon);
// Theta, Phi, Name, sky light, clouds, fog, identity and the two labels are optional:
// older files keep the defaults of those.
void ZelGetHeliodon(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CHeliodon& heliodon);

// Replaces the Options of `parent` with the rendering and compression options and the
// study's frequency and period; answers Options.
KestraXML::XIXMLElement* ZelAddHeliodonOpt(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                           const CHeliodonOpt& options);
// Reads the element Options itself; every key is optional.
void ZelGetHeliodonOpt(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CHeliodonOpt& options);

// ---- The scene's heliodons, below the file node: always the list Heliodons with the
// Options of the study behind it; an old single Heliodon is removed.
KestraXML::XIXMLElement* ZelPutHeliodons(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                         CHeliodonList& heliodons, const CHeliodonOpt& options);
// An old single Heliodon, when there is one, fills the first heliodon (made if the list is
// empty) and its Options the study's options. Otherwise Heliodons, when there is one,
// replaces the list and its Options fill the study's options. False when neither exists.
bool ZelGetHeliodons(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CHeliodonList& heliodons,
                     CHeliodonOpt& options);
// The old single Heliodon alone; false when there is none.
bool ZelGetOldHeliodon(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CHeliodonList& heliodons,
                       CHeliodonOpt& options);

} // namespace KeZel
