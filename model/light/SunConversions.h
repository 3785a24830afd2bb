// Passes that lift the sun of older files into today's model, run by the scene reader.
#pragma once

#include "model/light/Heliodon.h"
#include "model/light/HeliodonOpt.h"
#include "model/light/Light.h"

namespace KeZel {

// Old files of other creators lit the sun with a light named "Sun" and left the heliodon
// off. When the first heliodon still has the default name and is off, and a light named
// "Sun" exists, the heliodon is turned on with a sunshine of 0.6 and the first such light
// is turned off. Nothing happens for a file of the host application itself.
void ZelFixSunLight(bool writtenByHost, CHeliodonList& heliodons, CLightList& lights);

// The sun half of the conversion of a legacy option file: the old sun goes to the first
// heliodon (made when the list is empty), the old study to `options`. A null `old`, as for
// files without sun options, changes nothing.
void ZelConvertLegacySun(const COldHeliodonOpt* old, CHeliodonList& heliodons, CHeliodonOpt& options);

} // namespace KeZel
