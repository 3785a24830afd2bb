#include "codec/SkyCodec.h"

#include "model/light/Sky.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelAddSkylight(const CZelXMLIO& io, XIXMLElement* parent, const CSkylight& s) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Sky.Light");
    io.putFlag(e, "Used", s.isUsed());
    io.putDouble(e, "Factor", s.getFactor());
    io.putColor(e, "Color", s.getColor());
    io.putLabel(e, "Sky.Type", kSkyTypeLabels, s.getSkyType());
    io.putFlag(e, "Background", s.isBackground());
    io.putDouble(e, "Pollution", s.getPollution());
    io.putFlag(e, "Sky.Mix.Color.Flag", s.isSkyMixColorFlag());
    io.putColor(e, "Sky.Mix.Color", s.getSkyMixColor());
    io.putFlag(e, "Power.Flag", s.isPowerFlag());
    io.putFlag(e, "Sky.Color.Flag", s.isSkyColorFlag());
    return e;
}

void ZelGetSkylight(const CZelXMLIO& io, const XIXMLElement* e, CSkylight& s) {
    s.setUsed(io.getFlag(e, "Used"));
    s.setFactor(io.getDouble(e, "Factor"));
    s.setColor(io.getColor(e, "Color"));
    s.setSkyType(io.getLabel(e, "Sky.Type", kSkyTypeLabels));
    s.setBackground(io.getFlag(e, "Background"));
    s.setPollution(io.getDouble(e, "Pollution"));
    s.setSkyMixColorFlag(io.getFlag(e, "Sky.Mix.Color.Flag"));
    s.setSkyMixColor(io.getColor(e, "Sky.Mix.Color"));
    s.setPowerFlag(io.getFlag(e, "Power.Flag"));
    s.setSkyColorFlag(io.getFlag(e, "Sky.Color.Flag"));
}

XIXMLElement* ZelAddClouds(const CZelXMLIO& io, XIXMLElement* parent, const CZelClouds& c) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Clouds");
    io.putFlag(e, "Active", c.isActive());
    io.putDouble(e, "Cumulus.Size", c.getCumulusSize());
    io.putInt(e, "Cumulus.Seed", c.getCumulusSeed());
    io.putDouble(e, "Cirrus.Size", c.getCirrusSize());
    io.putInt(e, "Cirrus.Seed", c.getCirrusSeed());
    io.putDouble(e, "Stratus.Size", c.getStratusSize());
    io.putInt(e, "Stratus.Seed", c.getStratusSeed());
    io.putDouble(e, "Cirrocumulus.Size", c.getCirrocumulusSize());
    io.putInt(e, "Cirrocumulus.Seed", c.getCirrocumulusSeed());
    io.putFlag(e, "Active.Wind", c.isActiveWind());
    io.putDouble(e, "Wind.Speed", c.getWindSpeed());
    io.putDouble(e, "Wind.Direction", c.getWindDirection());
    return e;
}

void ZelGetClouds(const CZelXMLIO& io, const XIXMLElement* e, CZelClouds& c) {
    c.setActive(io.getFlag(e, "Active"));
    c.setCumulusSize(io.getDouble(e, "Cumulus.Size"));
    c.setCumulusSeed(io.getInt(e, "Cumulus.Seed"));
    c.setCirrusSize(io.getDouble(e, "Cirrus.Size"));
    c.setCirrusSeed(io.getInt(e, "Cirrus.Seed"));
    c.setStratusSize(io.getDouble(e, "Stratus.Size"));
    c.setStratusSeed(io.getInt(e, "Stratus.Seed"));
    c.setCirrocumulusSize(io.getDouble(e, "Cirrocumulus.Size"));
    c.setCirrocumulusSeed(io.getInt(e, "Cirrocumulus.Seed"));
    c.setActiveWind(io.getFlag(e, "Active.Wind"));
    if (c.isActiveWind()) {
        c.setWindSpeed(io.getDouble(e, "Wind.Speed"));
        c.setWindDirection(io.getDouble(e, "Wind.Direction"));
    }
}

XIXMLElement* ZelAddFog(const CZelXMLIO& io, XIXMLElement* parent, const CZelFog& f) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Fog");
    io.putFlag(e, "Active", f.isActive());
    io.putColor(e, "Color", f.getColor());
    io.putDouble(e, "Density", f.getDensity());
    io.putDouble(e, "Start.Distance", f.getStartDistance());
    io.putDouble(e, "End.Distance", f.getEndDistance());
    io.putDouble(e, "Altitude", f.getAltitude());
    return e;
}

void ZelGetFog(const CZelXMLIO& io, const XIXMLElement* e, CZelFog& f) {
    f.setActive(io.getFlag(e, "Active"));
    f.setColor(io.getColor(e, "Color"));
    f.setDensity(io.getDouble(e, "Density"));
    f.setStartDistance(io.getDouble(e, "Start.Distance"));
    f.setEndDistance(io.getDouble(e, "End.Distance"));
    f.setAltitude(io.getDouble(e, "Altitude"));
}

XIXMLElement* ZelAddAtmosphere(const CZelXMLIO& io, XIXMLElement* parent, const CAtmosphere& a) {
    XIXMLElement* e = CZelXMLIO::replace(parent, "Atmosphere");
    io.putFlag(e, "Used", a.isUsed());
    io.putColor(e, "Color", a.getColor());
    io.putDouble(e, "Density.High", a.getHighDensity());
    io.putDouble(e, "Density.Medium", a.getMediumDensity());
    io.putDouble(e, "Density.Low", a.getLowDensity());
    io.putDouble(e, "Scale", a.getScale());
    io.putDouble(e, "Distance.Minimum", a.getMinDistance());
    io.putDouble(e, "Distance.Maximum", a.getMaxDistance());
    io.putDouble(e, "Noise", a.getNoise());
    io.putFlag(e, "Use.Default", a.isUseDefault());
    return e;
}

void ZelGetAtmosphere(const CZelXMLIO& io, const XIXMLElement* e, CAtmosphere& a) {
    a.setUsed(io.getFlag(e, "Used"));
    a.setColor(io.getColor(e, "Color"));
    a.setHighDensity(io.getDouble(e, "Density.High"));
    a.setMediumDensity(io.getDouble(e, "Density.Medium"));
    a.setLowDensity(io.getDouble(e, "Density.Low"));
    a.setScale(io.getDouble(e, "Scale"));
    a.setMinDistance(io.getDouble(e, "Distance.Minimum"));
    a.setMaxDistance(io.getDouble(e, "Distance.Maximum"));
    a.setNoise(io.getDouble(e, "Noise"));
    a.setUseDefault(io.getFlag(e, "Use.Default"));
}

XIXMLElement* ZelAddAmbient(const CZelXMLIO& io, XIXMLElement* parent, const CAmbiance& a) {
    XIXMLElement* e = CZelXMLIO::replace(parent, "Ambient");
    io.putFlag(e, "Used", a.isUsed());
    io.putShiftedColor(e, "Color", a.getColor());
    io.putFlag(e, "Use.Default", a.isUseDefault());
    return e;
}

void ZelGetAmbient(const CZelXMLIO& io, const XIXMLElement* e, CAmbiance& a) {
    a.setUsed(io.getFlag(e, "Used"));
    a.setColor(io.getShiftedColor(e, "Color"));
    a.setUseDefault(io.getFlag(e, "Use.Default"));
}

XIXMLElement* ZelAddCameraLight(const CZelXMLIO& io, XIXMLElement* parent, const CZelCameraLight& l) {
    XIXMLElement* e = CZelXMLIO::add(parent, l.elementName());
    io.putFlag(e, "Used", l.isUsed());
    io.putColor(e, "Color", l.getColor());
    io.putDouble(e, "Power", l.getPower());
    return e;
}

void ZelGetCameraLight(const CZelXMLIO& io, const XIXMLElement* e, CZelCameraLight& l) {
    l.setUsed(io.getFlag(e, "Used"));
    l.setColor(io.getColor(e, "Color"));
    l.setPower(io.getDouble(e, "Power"));
}

XIXMLElement* ZelPutAmbient(const CZelXMLIO& io, XIXMLElement* fileNode, const CAmbiance& ambient) {
    return ZelAddAmbient(io, fileNode, ambient);
}

void ZelGetSceneAmbient(const CZelXMLIO& io, const XIXMLElement* fileNode, CAmbiance& ambient) {
    ZelGetAmbient(io, CZelXMLIO::need(fileNode, "Ambient"), ambient);
}

XIXMLElement* ZelPutAtmosphere(const CZelXMLIO& io, XIXMLElement* fileNode, const CAtmosphere& atmosphere) {
    return ZelAddAtmosphere(io, fileNode, atmosphere);
}

void ZelGetSceneAtmosphere(const CZelXMLIO& io, const XIXMLElement* fileNode, CAtmosphere& atmosphere) {
    ZelGetAtmosphere(io, CZelXMLIO::need(fileNode, "Atmosphere"), atmosphere);
}

} // namespace KeZel
