#include "model/light/Sky.h"

#include "codec/SkyCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

// ---- CZelClouds

XIXMLElement* CZelClouds::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelClouds::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddClouds(io, parent, *this); });
}

bool CZelClouds::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelClouds::initWithXML", [&](const CZelXMLIO& io) {
        const XIXMLElement* e = CZelXMLIO::find(parent, "Clouds");
        if (e) ZelGetClouds(io, e, *this);
        return e != nullptr;
    });
}

// ---- CZelFog

XIXMLElement* CZelFog::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelFog::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddFog(io, parent, *this); });
}

bool CZelFog::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelFog::initWithXML", [&](const CZelXMLIO& io) {
        const XIXMLElement* e = CZelXMLIO::find(parent, "Fog");
        if (e) ZelGetFog(io, e, *this);
        return e != nullptr;
    });
}

// ---- CAtmosphere

void CAtmosphere::store(double& field, double value, double lo, double hi, const char* report) {
    field = value;
    if (!mZel || (value >= lo && value <= hi)) return;
    field = value < lo ? lo : hi;
    mZel->report(report);
}

void CAtmosphere::setHighDensity(double density) {
    store(mHighDensity, density, 0.0, 1.0, "Method setHighDensity has clipped a value out of range.");
}

void CAtmosphere::setMediumDensity(double density) {
    store(mMediumDensity, density, 0.0, 1.0, "Method setMediumDensity has clipped a value out of range.");
}

void CAtmosphere::setLowDensity(double density) {
    store(mLowDensity, density, 0.0, 1.0, "Method setLowDensity has clipped a value out of range.");
}

const double kNoTop = 1.7976931348623157e308;

void CAtmosphere::setScale(double scale) {
    store(mScale, scale, 0.0, kNoTop, "Method setScale has clipped a value out of range.");
}

void CAtmosphere::setMaxDistance(double distance) {
    // Reports with the words of setScale, as it always has.
    store(mMaxDistance, distance, 0.0, kNoTop, "Method setScale has clipped a value out of range.");
}

void CAtmosphere::setNoise(double noise) {
    store(mNoise, noise, 0.0, kNoTop, "Method setNoise has clipped a value out of range.");
}

XIXMLElement* CAtmosphere::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelAtmosphere::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddAtmosphere(io, parent, *this); });
}

bool CAtmosphere::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelAtmosphere::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetAtmosphere(io, CZelXMLIO::need(parent, "Atmosphere"), *this);
        return true;
    });
}

// ---- CAmbiance

XIXMLElement* CAmbiance::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelAmbient::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddAmbient(io, parent, *this); });
}

bool CAmbiance::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelAmbient::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetAmbient(io, CZelXMLIO::need(parent, "Ambient"), *this);
        return true;
    });
}

// ---- CZelCameraLight

XIXMLElement* CZelCameraLight::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelCameraLight::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddCameraLight(io, parent, *this); });
}

bool CZelCameraLight::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelCameraLight::initWithXML", [&](const CZelXMLIO& io) {
        const XIXMLElement* e = CZelXMLIO::find(parent, elementName());
        if (!e) e = CZelXMLIO::need(parent, mRadiosity ? "Camera.Light" : "Radiosity.Light");
        ZelGetCameraLight(io, e, *this);
        return true;
    });
}

} // namespace KeZel
