#include "codec/HeliodonCodec.h"

#include "codec/LightCodec.h"
#include "codec/RenderingCodec.h"
#include "codec/SkyCodec.h"
#include "frame/CZEL.h"
#include "model/light/HeliodonOpt.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelAddHeliodon(const CZelXMLIO& io, XIXMLElement* parent, const CHeliodon& h) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Heliodon");
    io.putFlag(e, "Active", h.isActive());
    io.putDate(e, "Time", h.time().toDate());
    io.putPlace(e, h.place().toData());
    io.putDouble(e, "Sunshine", h.getSunshine());
    io.putDouble(e, "North.Angle", h.getNorthAngle());
    io.putDouble(e, "Theta", h.getTheta());
    io.putDouble(e, "Phi", h.getPhi());
    io.putFlag(e, "Shadow", h.isShadow());
    io.putDouble(e, "Shadow.Power", h.getShadowPower());
    io.putInt(e, "Sun.Blur", h.getShadowBlur());
    io.putFlag(e, "Global.Illumination", h.isGlobalIllumination());
    io.putDouble(e, "Global.Illumination.Power", h.getGlobalIlluminationPower());
    io.putInt(e, "Global.Illumination.Quality", h.getGlobalIlluminationQuality());
    io.putString(e, "Name", h.getName());
    ZelAddLensFlare(io, e, h.lensFlare());
    io.putFlag(e, "Colored", h.isColored());
    XIXMLElement* colors = CZelXMLIO::add(e, "Colors");
    for (int i = 0; i < 5; ++i) io.putColor(colors, "Sun.Color", h.getColor(i));
    io.putFlag(e, "Sun.PowerFlag", h.isSunPowerFlag());
    io.putFlag(e, "Radiosity", h.isRadiosity());
    io.putDouble(e, "Cloud.Coverage", h.getCloudCoverage());
    io.putFlag(e, "Cloud.Mask.Sun", h.isCloudMaskSun());
    ZelAddSkylight(io, e, h.skylight());
    ZelAddClouds(io, e, h.clouds());
    ZelAddFog(io, e, h.fog());
    io.putUUID(e, "UUID", *h.getUUID());
    io.putLabel(e, "Placement.Kind", kPlacementKindLabels, h.getPlacementKind());
    io.putLabel(e, "Color.Type", kHeliodonColorTypeLabels, h.getColorType());
    return e;
}

void ZelGetHeliodon(const CZelXMLIO& io, const XIXMLElement* e, CHeliodon& h) {
    h.setActive(io.getFlag(e, "Active"));
    CZelDate date = h.time().toDate();
    io.getDate(e, "Time", date);
    h.time().setDate(date);
    CZelPlaceData place;
    io.getPlace(e, place);
    h.place().setData(place);
    h.setSunshine(io.getDouble(e, "Sunshine"));
    h.setNorthAngle(io.getDouble(e, "North.Angle"));
    double value;
    if (io.findDouble(e, "Theta", value)) h.setTheta(value);
    if (io.findDouble(e, "Phi", value)) h.setPhi(value);
    h.setShadow(io.getFlag(e, "Shadow"));
    h.setShadowPower(io.getDouble(e, "Shadow.Power"));
    h.setShadowBlur(io.getInt(e, "Sun.Blur"));
    h.setGlobalIllumination(io.getFlag(e, "Global.Illumination"));
    h.setGlobalIlluminationPower(io.getDouble(e, "Global.Illumination.Power"));
    h.setGlobalIlluminationQuality(io.getInt(e, "Global.Illumination.Quality"));
    std::string name;
    if (io.findString(e, "Name", name)) h.setName(name.c_str());
    if (const XIXMLElement* flare = CZelXMLIO::find(e, "Lens.Flare"))
        ZelGetLensFlare(io, flare, h.lensFlare());
    h.setColored(io.getFlag(e, "Colored"));
    if (const XIXMLElement* colors = CZelXMLIO::find(e, "Colors")) {
        XIXMLElement* c = CZelXMLIO::find(colors, "Sun.Color");
        for (int i = 0; i < 5 && c; ++i, c = c->FindNextElement()) h.setColor(i, io.getColorOf(c));
    }
    h.setSunPowerFlag(io.getFlag(e, "Sun.PowerFlag"));
    h.setRadiosity(io.getFlag(e, "Radiosity"));
    if (const XIXMLElement* sky = CZelXMLIO::find(e, "Sky.Light")) ZelGetSkylight(io, sky, h.skylight());
    if (const XIXMLElement* clouds = CZelXMLIO::find(e, "Clouds")) ZelGetClouds(io, clouds, h.clouds());
    if (io.findDouble(e, "Cloud.Coverage", value)) h.setCloudCoverage(value);
    h.setCloudMaskSun(io.getFlag(e, "Cloud.Mask.Sun"));
    if (const XIXMLElement* fog = CZelXMLIO::find(e, "Fog")) ZelGetFog(io, fog, h.fog());
    CZelUUID id;
    if (io.findUUID(e, "UUID", id)) h.setUUID(id);
    int label;
    if (io.findLabel(e, "Placement.Kind", kPlacementKindLabels, label)) h.setPlacementKind(label);
    if (io.findLabel(e, "Color.Type", kHeliodonColorTypeLabels, label)) h.setColorType(label);
}

XIXMLElement* ZelAddHeliodonOpt(const CZelXMLIO& io, XIXMLElement* parent, const CHeliodonOpt& o) {
    XIXMLElement* e = CZelXMLIO::replace(parent, "Options");
    ZelAddRendering(io, parent, o.rendering());
    ZelAddCompression(io, parent, o.compression());
    io.putLabel(e, "Frequency.Type", kFrequencyTypeLabels, o.getFrequencyType());
    io.putLabel(e, "Frequency.Unit", kFrequencyUnitLabels, o.getFrequencyUnit());
    io.putDouble(e, "Frequency.Value", o.getFrequencyValue());
    io.putDouble(e, "Movie.Duration", o.getMovieDuration());
    io.putDate(e, "Start.Time", o.startTime().toDate());
    io.putDate(e, "End.Time", o.endTime().toDate());
    io.putFlag(e, "All.Range", o.isAllRange());
    return e;
}

void ZelGetHeliodonOpt(const CZelXMLIO& io, const XIXMLElement* e, CHeliodonOpt& o) {
    if (const XIXMLElement* rendering = CZelXMLIO::find(e, "Rendering"))
        ZelGetRendering(io, rendering, o.rendering());
    if (const XIXMLElement* compression = CZelXMLIO::find(e, "Compression"))
        ZelGetCompression(io, compression, o.compression());
    int label;
    if (io.findLabel(e, "Frequency.Type", kFrequencyTypeLabels, label)) o.setFrequencyType(label);
    if (io.findLabel(e, "Frequency.Unit", kFrequencyUnitLabels, label)) o.setFrequencyUnit(label);
    double value;
    if (io.findDouble(e, "Frequency.Value", value)) o.setFrequencyValue(value);
    if (io.findDouble(e, "Movie.Duration", value)) o.setMovieDuration(value);
    CZelDate date = o.startTime().toDate();
    if (io.findDate(e, "Start.Time", date)) o.startTime().setDate(date);
    date = o.endTime().toDate();
    if (io.findDate(e, "End.Time", date)) o.endTime().setDate(date);
    o.setAllRange(io.getFlag(e, "All.Range"));
}

XIXMLElement* ZelPutHeliodons(const CZelXMLIO& io, XIXMLElement* fileNode, CHeliodonList& heliodons,
                              const CHeliodonOpt& options) {
    // The old single form is converted for good.
    CZelXMLIO::removeAll(fileNode, "Heliodon");
    XIXMLElement* outer =
        io.putList(fileNode, "Heliodons", "Heliodon", heliodons,
                   [&](XIXMLElement* list, const CHeliodon& h) { ZelAddHeliodon(io, list, h); });
    ZelAddHeliodonOpt(io, outer, options);
    return outer;
}

bool ZelGetOldHeliodon(const CZelXMLIO& io, const XIXMLElement* fileNode, CHeliodonList& heliodons,
                       CHeliodonOpt& options) {
    const XIXMLElement* old = CZelXMLIO::find(fileNode, "Heliodon");
    if (!old) return false;
    if (heliodons.getCount() == 0) Kestra::XAssertPointer(heliodons.newItem());
    ZelGetHeliodon(io, old, *heliodons.at(0));
    if (const XIXMLElement* o = CZelXMLIO::find(old, "Options")) ZelGetHeliodonOpt(io, o, options);
    return true;
}

bool ZelGetHeliodons(const CZelXMLIO& io, const XIXMLElement* fileNode, CHeliodonList& heliodons,
                     CHeliodonOpt& options) {
    if (ZelGetOldHeliodon(io, fileNode, heliodons, options)) return true;
    const XIXMLElement* outer = CZelXMLIO::find(fileNode, "Heliodons");
    if (!outer) return false;
    io.getItems(outer, "Heliodon", heliodons,
                [&](const XIXMLElement* e, CHeliodon& h) { ZelGetHeliodon(io, e, h); });
    if (const XIXMLElement* o = CZelXMLIO::find(outer, "Options")) ZelGetHeliodonOpt(io, o, options);
    return true;
}

} // namespace KeZel
