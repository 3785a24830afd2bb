#include "codec/ViewInfoCodec.h"

#include "codec/BackgroundCodec.h"
#include "codec/SkyCodec.h"
#include "frame/CZEL.h"
#include "frame/UUID.h"

namespace KeZel {

using KestraXML::XIXMLAttribute;
using KestraXML::XIXMLElement;

XIXMLElement* ZelAddViewInfo(const CZelXMLIO& io, XIXMLElement* parent, const CZelViewInfo& v) {
    XIXMLElement* e = CZelXMLIO::add(parent, "View.Info");
    io.putUUID(e, "UUID", *v.getUUID());
    io.putFlag(e, "Locked", v.isLocked());
    io.putInt(e, "UI.Value", v.getUIValue());
    ZelAddForeground(io, e, v.foreground());
    ZelAddIdentities(io, e, "Lights.Groups", v.lightsGroups());
    io.putEnString(e, "Heliodon.Name", v.getHeliodonName());
    ZelAddDepthOfField(io, e, v.depthOfField());
    ZelAddRendererInfo(io, e, v.rendererInfo());
    ZelAddClippingBox(io, e, v.clippingBox());
    ZelAddCameraLight(io, e, v.cameraLight());
    ZelAddCameraLight(io, e, v.radiosityLight());
    io.putUUID(e, "Environment", *v.getEnvironmentId());
    ZelAddFilters(io, e, v.filters());
    ZelAddIdentities(io, e, "Neon.Shaders", v.neonShaders());
    ZelAddBackgroundPicture(io, e, v.backgroundPicture());
    ZelAddIdentities(io, e, "Layers", v.layers());
    return e;
}

void ZelGetViewInfo(const CZelXMLIO& io, const XIXMLElement* e, CZelViewInfo& v) {
    Kestra::XAssertPointer(e);
    CZelUUID id;
    if (io.mFullMode && io.findUUID(e, "UUID", id)) v.setUUID(id);
    v.setLocked(io.getFlag(e, "Locked"));
    int ui;
    if (io.findInt(e, "UI.Value", ui)) v.setUIValue(ui);
    // Older files kept a short background in each view; today's picture, read last,
    // overrides what it gives.
    if (const XIXMLElement* old = ZelFindBackground(e)) {
        ZelGetBackgroundShort(io, old, v.background());
        ZelPictureFromBackground(v.background(), v.backgroundPicture());
    }
    if (const XIXMLElement* f = CZelXMLIO::find(e, "Foregroung")) ZelGetForeground(io, f, v.foreground());
    if (const XIXMLElement* groups = CZelXMLIO::find(e, "Lights.Groups"))
        ZelGetIdentities(io, groups, v.lightsGroups());
    v.setHeliodonName(io.getEnString(e, "Heliodon.Name").c_str());
    ZelGetDepthOfField(io, CZelXMLIO::need(e, "Depth.Of.Field"), v.depthOfField());
    if (const XIXMLElement* r = CZelXMLIO::find(e, "Renderer.Info"))
        ZelGetRendererInfo(io, r, v.rendererInfo());
    if (const XIXMLElement* box = CZelXMLIO::find(e, "Clipping.Box"))
        ZelGetClippingBox(io, box, v.clippingBox());
    if (const XIXMLElement* light = CZelXMLIO::find(e, "Camera.Light"))
        ZelGetCameraLight(io, light, v.cameraLight());
    if (const XIXMLElement* light = CZelXMLIO::find(e, "Radiosity.Light"))
        ZelGetCameraLight(io, light, v.radiosityLight());
    if (io.findUUID(e, "Environment", id)) v.setEnvironmentId(id);
    if (const XIXMLElement* filters = CZelXMLIO::find(e, "Filters")) ZelGetFilters(io, filters, v.filters());
    if (const XIXMLElement* neons = CZelXMLIO::find(e, "Neon.Shaders"))
        ZelGetIdentities(io, neons, v.neonShaders());
    if (const XIXMLElement* picture = CZelXMLIO::find(e, "Background.Picture"))
        ZelGetBackgroundPicture(io, picture, v.backgroundPicture());
    if (const XIXMLElement* layers = CZelXMLIO::find(e, "Layers")) ZelGetIdentities(io, layers, v.layers());
}

XIXMLElement* ZelAddDepthOfField(const CZelXMLIO& io, XIXMLElement* parent, const CZelDepthOfField& d) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Depth.Of.Field");
    io.putFlag(e, "Used", d.isUsed());
    io.putLabel(e, "Type", kDepthOfFieldTypeLabels, d.getType());
    io.putVector(e, "Clearness.Point", *d.getClearnessPoint());
    io.putDouble(e, "Clearness.Dist.Inv", d.getClearnessDistInv());
    io.putDouble(e, "Clearness.Size.Inv", d.getClearnessSizeInv());
    return e;
}

void ZelGetDepthOfField(const CZelXMLIO& io, const XIXMLElement* e, CZelDepthOfField& d) {
    d.setUsed(io.getFlag(e, "Used"));
    d.setType(io.getLabel(e, "Type", kDepthOfFieldTypeLabels));
    d.setClearnessPoint(io.getVector(e, "Clearness.Point"));
    d.setClearnessDistInv(io.getDouble(e, "Clearness.Dist.Inv"));
    d.setClearnessSizeInv(io.getDouble(e, "Clearness.Size.Inv"));
}

XIXMLElement* ZelAddClippingBox(const CZelXMLIO& io, XIXMLElement* parent, const CZelClippingBox& b) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Clipping.Box");
    io.putVector(e, "Minimum", *b.getMinimum());
    io.putVector(e, "Maximum", *b.getMaximum());
    io.putFlag(e, "Visible", b.isVisible());
    io.putFlag(e, "Active", b.isActive());
    io.putDouble(e, "Angle", b.getAngle());
    return e;
}

void ZelGetClippingBox(const CZelXMLIO& io, const XIXMLElement* e, CZelClippingBox& b) {
    b.setMinimum(io.getVector(e, "Minimum"));
    b.setMaximum(io.getVector(e, "Maximum"));
    b.setVisible(io.getFlag(e, "Visible"));
    b.setActive(io.getFlag(e, "Active"));
    double angle;
    if (io.findDouble(e, "Angle", angle)) b.setAngle(angle);
}

XIXMLElement* ZelAddRendererInfo(const CZelXMLIO& io, XIXMLElement* parent, const CZelRendererInfo& r) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Renderer.Info");
    io.putEnString(e, "Name", r.getName());
    r.getOptions()->AsNode()->CopyTo(e);
    return e;
}

void ZelGetRendererInfo(const CZelXMLIO& io, const XIXMLElement* e, CZelRendererInfo& r) {
    r.setName(io.getEnString(e, "Name").c_str());
    r.copyOptionsFrom(CZelXMLIO::find(e, "Options"));
}

XIXMLElement* ZelAddImageSettingsFilter(const CZelXMLIO& io, XIXMLElement* parent,
                                        const CZelImageSettingsFilter& f) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Image.Settings.Filter");
    io.putFlag(e, "Active", f.isActive());
    io.putDouble(e, "Contrast", f.getContrast());
    io.putDouble(e, "Brightness", f.getBrightness());
    io.putDouble(e, "Saturation", f.getSaturation());
    io.putFlag(e, "Use.Mix.Color", f.isUseMixColor());
    io.putColor(e, "Mix.Color", f.getMixColor());
    return e;
}

void ZelGetImageSettingsFilter(const CZelXMLIO& io, const XIXMLElement* e, CZelImageSettingsFilter& f) {
    f.setActive(io.getFlag(e, "Active"));
    f.setContrast(io.getDouble(e, "Contrast"));
    f.setBrightness(io.getDouble(e, "Brightness"));
    f.setSaturation(io.getDouble(e, "Saturation"));
    f.setUseMixColor(io.getFlag(e, "Use.Mix.Color"));
    f.setMixColor(io.getColor(e, "Mix.Color"));
}

XIXMLElement* ZelAddGrainFilter(const CZelXMLIO& io, XIXMLElement* parent, const CZelGrainFilter& f) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Grain.Filter");
    io.putFlag(e, "Active", f.isActive());
    io.putDouble(e, "Brightness", f.getBrightness());
    io.putDouble(e, "Size", f.getSize());
    return e;
}

void ZelGetGrainFilter(const CZelXMLIO& io, const XIXMLElement* e, CZelGrainFilter& f) {
    f.setActive(io.getFlag(e, "Active"));
    f.setBrightness(io.getDouble(e, "Brightness"));
    f.setSize(io.getDouble(e, "Size"));
}

XIXMLElement* ZelAddExposureFilter(const CZelXMLIO& io, XIXMLElement* parent, const CZelExposureFilter& f) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Exposure.Filter");
    io.putFlag(e, "Active", f.isActive());
    io.putDouble(e, "Exposure", f.getExposure());
    io.putDouble(e, "Size", f.getSize());
    return e;
}

void ZelGetExposureFilter(const CZelXMLIO& io, const XIXMLElement* e, CZelExposureFilter& f) {
    f.setActive(io.getFlag(e, "Active"));
    f.setExposure(io.getDouble(e, "Exposure"));
    f.setSize(io.getDouble(e, "Size"));
}

XIXMLElement* ZelAddHatchingFilter(const CZelXMLIO& io, XIXMLElement* parent, const CZelHatchingFilter& f) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Hatching.Filter");
    io.putFlag(e, "Active", f.isActive());
    io.putDouble(e, "Contour.Threshold", f.getContourThreshold());
    io.putDouble(e, "Intensity.Threshold", f.getIntensityThreshold());
    io.putFlag(e, "Use.Transparency", f.isUseTransparency());
    io.putDouble(e, "Transparency", f.getTransparency());
    return e;
}

void ZelGetHatchingFilter(const CZelXMLIO& io, const XIXMLElement* e, CZelHatchingFilter& f) {
    f.setActive(io.getFlag(e, "Active"));
    f.setContourThreshold(io.getDouble(e, "Contour.Threshold"));
    f.setIntensityThreshold(io.getDouble(e, "Intensity.Threshold"));
    f.setUseTransparency(io.getFlag(e, "Use.Transparency"));
    f.setTransparency(io.getDouble(e, "Transparency"));
}

XIXMLElement* ZelAddFilters(const CZelXMLIO& io, XIXMLElement* parent, const CZelFilters& f) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Filters");
    ZelAddImageSettingsFilter(io, e, f.imageSettings());
    ZelAddGrainFilter(io, e, f.grain());
    ZelAddExposureFilter(io, e, f.exposure());
    ZelAddHatchingFilter(io, e, f.hatching());
    return e;
}

void ZelGetFilters(const CZelXMLIO& io, const XIXMLElement* e, CZelFilters& f) {
    if (const XIXMLElement* c = CZelXMLIO::find(e, "Image.Settings.Filter"))
        ZelGetImageSettingsFilter(io, c, f.imageSettings());
    if (const XIXMLElement* c = CZelXMLIO::find(e, "Grain.Filter")) ZelGetGrainFilter(io, c, f.grain());
    if (const XIXMLElement* c = CZelXMLIO::find(e, "Exposure.Filter"))
        ZelGetExposureFilter(io, c, f.exposure());
    if (const XIXMLElement* c = CZelXMLIO::find(e, "Hatching.Filter"))
        ZelGetHatchingFilter(io, c, f.hatching());
}

XIXMLElement* ZelAddIdentities(const CZelXMLIO&, XIXMLElement* parent, const char* name,
                               const CZelViewInfo::CIdentityList& list) {
    XIXMLElement* e = CZelXMLIO::replace(parent, name);
    KestraXML::XKey key = e->GetKey("UUID");
    char text[33];
    // The one element carries the attribute UUID once for each entry.
    for (unsigned int i = 0; i < list.getCount(); ++i) {
        ZelUUIDToText(*list.at(i), text);
        Kestra::XAssertPointer(e->AddAttribute(key, text));
    }
    return e;
}

void ZelGetIdentities(const CZelXMLIO&, const XIXMLElement* e, CZelViewInfo::CIdentityList& list) {
    list.clear();
    XIXMLAttribute* a = CZelXMLIO::findAttribute(e, "UUID");
    // From the first UUID on, every attribute is an entry, whatever its name.
    for (; a; a = a->GetNext()) {
        CZelUUID id = ZelUUIDFromText(a->GetValue());
        CZelUUIDX* entry = list.newItem();
        Kestra::XAssertPointer(entry);
        *entry = id;
    }
}

} // namespace KeZel
