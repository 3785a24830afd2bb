#include "codec/LightCodec.h"

#include "frame/CZEL.h"
#include "frame/UUID.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelAddLensFlare(const CZelXMLIO& io, XIXMLElement* parent, const CZelLensFlare& f) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Lens.Flare");
    io.putFlag(e, "Used", f.isUsed());
    io.putLabel(e, "Type", kLensFlareTypeLabels, f.getType());
    io.putDouble(e, "Size", f.getSize());
    io.putDouble(e, "Intensity", f.getIntensity());
    return e;
}

void ZelGetLensFlare(const CZelXMLIO& io, const XIXMLElement* e, CZelLensFlare& f) {
    f.setUsed(io.getFlag(e, "Used"));
    f.setType(io.getLabel(e, "Type", kLensFlareTypeLabels));
    f.setSize(io.getDouble(e, "Size"));
    double intensity;
    if (io.findDouble(e, "Intensity", intensity)) f.setIntensity(intensity);
}

XIXMLElement* ZelAddLight(const CZelXMLIO& io, XIXMLElement* parent, const CLight& l) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Light");
    io.putString(e, "Name", l.getName());
    io.putLabel(e, "Type", kLightTypeLabels, l.getType());
    io.putFlag(e, "Active", l.isActive());
    io.putColor(e, "Color", l.getColor());
    io.putDouble(e, "Power", l.getPower());
    io.putDouble(e, "Distance.Near", l.getDistanceNear());
    io.putDouble(e, "Distance.Far", l.getDistanceFar());
    io.putVector(e, "Position", *l.getPosition());
    io.putVector(e, "Target", *l.getTarget());
    io.putDouble(e, "Cone.Angle", l.getConeAngle());
    io.putDouble(e, "Sharpness", l.getSharpness());
    io.putLabel(e, "Shadow.Type", kLightShadowTypeLabels, l.getShadowType());
    io.putDouble(e, "Shadow.Power", l.getShadowPower());
    io.putInt(e, "Map.Size", l.getMapSize());
    io.putDouble(e, "Bias", l.getBias());
    io.putFlag(e, "Global.Illumination", l.isGlobalIllumination());
    io.putDouble(e, "Global.Illumination.Power", l.getGlobalIlluminationPower());
    io.putInt(e, "Global.Illumination.Quality", l.getGlobalIlluminationQuality());
    io.putFlag(e, "Locked", l.isLocked());
    io.putInt(e, "UI.Value", l.getUIValue());
    // One UUID child, its text the hex form, for each group of the light.
    XIXMLElement* groups = CZelXMLIO::add(e, "Lights.Groups");
    for (unsigned int i = 0; i < l.groups().getCount(); ++i)
        io.putString(groups, "UUID", ZelUUIDToText(*l.groups().at(i)).c_str());
    ZelAddLensFlare(io, e, l.lensFlare());
    io.putFlag(e, "Radiosity", l.isRadiosity());
    io.putUUID(e, "UUID", *l.getUUID());
    io.putUUID(e, "Object.Id", *l.getObjectId());
    io.putLabel(e, "Target.type", kLightTargetTypeLabels, l.getTargetType());
    io.putUUID(e, "IES", l.ies());
    return e;
}

namespace {

// A group identity: the child's text, or its attribute UUID.
CZelUUID GroupId(const CZelXMLIO& io, const XIXMLElement* child) {
    if (const char* text = CZelXMLIO::textOf(child)) return ZelUUIDFromText(text);
    return io.getUUID(child, "UUID");
}

} // namespace

void ZelGetLight(const CZelXMLIO& io, const XIXMLElement* e, CLight& l) {
    l.setName(io.getString(e, "Name").c_str());
    l.setType(io.getLabel(e, "Type", kLightTypeLabels));
    l.setActive(io.getFlag(e, "Active"));
    l.setColor(io.getColor(e, "Color"));
    l.setPower(io.getDouble(e, "Power"));
    l.setDistanceNear(io.getDouble(e, "Distance.Near"));
    l.setDistanceFar(io.getDouble(e, "Distance.Far"));
    l.setPosition(io.getVector(e, "Position"));
    l.setTarget(io.getVector(e, "Target"));
    l.setConeAngle(io.getDouble(e, "Cone.Angle"));
    l.setSharpness(io.getDouble(e, "Sharpness"));
    l.setShadowType(io.getLabel(e, "Shadow.Type", kLightShadowTypeLabels));
    l.setShadowPower(io.getDouble(e, "Shadow.Power"));
    l.setMapSize(io.getInt(e, "Map.Size"));
    l.setBias(io.getDouble(e, "Bias"));
    l.setGlobalIllumination(io.getFlag(e, "Global.Illumination"));
    l.setGlobalIlluminationPower(io.getDouble(e, "Global.Illumination.Power"));
    l.setGlobalIlluminationQuality(io.getInt(e, "Global.Illumination.Quality"));
    l.setLocked(io.getFlag(e, "Locked"));
    int ui;
    if (io.findInt(e, "UI.Value", ui)) l.setUIValue(ui);
    io.getList(e, "Lights.Groups", "UUID", l.groups(),
               [&](const XIXMLElement* child, CZelUUIDX& id) { id = GroupId(io, child); });
    if (const XIXMLElement* flare = CZelXMLIO::find(e, "Lens.Flare"))
        ZelGetLensFlare(io, flare, l.lensFlare());
    l.setRadiosity(io.getFlag(e, "Radiosity"));
    CZelUUID id;
    if (io.findUUID(e, "UUID", id)) l.setUUID(id);
    if (io.findUUID(e, "IES", id)) l.setIES(id);
    int targetType;
    if (io.findLabel(e, "Target.type", kLightTargetTypeLabels, targetType)) l.setTargetType(targetType);
    if (io.findUUID(e, "Object.Id", id)) l.setObjectId(id);
}

XIXMLElement* ZelAddLightsGroup(const CZelXMLIO& io, XIXMLElement* parent, const CZelLightsGroup& g) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Lights.Group");
    io.putString(e, "Name", g.getName());
    io.putUUID(e, "ID", *g.getID());
    io.putInt(e, "UI.Value", g.getUIValue());
    return e;
}

void ZelGetLightsGroup(const CZelXMLIO& io, const XIXMLElement* e, CZelLightsGroup& g) {
    g.setName(io.getString(e, "Name").c_str());
    g.setID(io.getUUID(e, "ID"));
    int ui;
    if (io.findInt(e, "UI.Value", ui)) g.setUIValue(ui);
}

XIXMLElement* ZelPutLights(const CZelXMLIO& io, XIXMLElement* fileNode, CLightList& lights) {
    return io.putList(fileNode, "Lights", "Light", lights,
                      [&](XIXMLElement* outer, const CLight& l) { ZelAddLight(io, outer, l); });
}

bool ZelGetLights(const CZelXMLIO& io, const XIXMLElement* fileNode, CLightList& lights) {
    return io.getList(fileNode, "Lights", "Light", lights,
                      [&](const XIXMLElement* e, CLight& l) { ZelGetLight(io, e, l); });
}

XIXMLElement* ZelPutLightsGroups(const CZelXMLIO& io, XIXMLElement* fileNode, CLightsGroupList& groups) {
    return io.putList(
        fileNode, "Lights.Groups", "Lights.Group", groups,
        [&](XIXMLElement* outer, const CZelLightsGroup& g) { ZelAddLightsGroup(io, outer, g); });
}

bool ZelGetLightsGroups(const CZelXMLIO& io, const XIXMLElement* fileNode, CLightsGroupList& groups) {
    return io.getList(fileNode, "Lights.Groups", "Lights.Group", groups,
                      [&](const XIXMLElement* e, CZelLightsGroup& g) { ZelGetLightsGroup(io, e, g); });
}

} // namespace KeZel
