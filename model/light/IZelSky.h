// The air of a scene: sky light, clouds and fog (of a heliodon or an environment),
// atmosphere and ambient light, the camera or radiosity light of a view, and the
// radiosity control of rendering options. Public header, C++11. Slot order is part of the
// interface.
//
// Operation order chosen here: the densities and distances of the atmosphere are named as
// its clipping messages name them (setHighDensity, setMinDistance, ...); the further
// double of the clouds is getExtraValue/setExtraValue; the kind flag of a camera light is
// isRadiosityLight/setRadiosityLight.
#ifndef ZEL_MODEL_LIGHT_IZELSKY_H
#define ZEL_MODEL_LIGHT_IZELSKY_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// Kinds of IZelSkylight::getSkyType.
enum ESkyType { eSkyAutomatic = 0, eSkyUser = 1 };

class ZEL_API IZelSkylight {
public:
    virtual bool isUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    virtual double getFactor() const = 0;
    virtual void setFactor(double factor) = 0;
    virtual CZelColor getColor() const = 0;
    virtual void setColor(CZelColor color) = 0;
    // One of ESkyType.
    virtual int getSkyType() const = 0;
    virtual void setSkyType(int type) = 0;
    virtual bool isBackground() const = 0;
    virtual void setBackground(bool background) = 0;
    virtual double getPollution() const = 0;
    virtual void setPollution(double pollution) = 0;
    virtual bool isSkyMixColorFlag() const = 0;
    virtual void setSkyMixColorFlag(bool on) = 0;
    virtual CZelColor getSkyMixColor() const = 0;
    virtual void setSkyMixColor(CZelColor color) = 0;
    virtual bool isPowerFlag() const = 0;
    virtual void setPowerFlag(bool on) = 0;
    virtual bool isSkyColorFlag() const = 0;
    virtual void setSkyColorFlag(bool on) = 0;
    virtual ~IZelSkylight() {}
};

class ZEL_API IZelClouds {
public:
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual double getCumulusSize() const = 0;
    virtual void setCumulusSize(double size) = 0;
    virtual int getCumulusSeed() const = 0;
    virtual void setCumulusSeed(int seed) = 0;
    virtual double getCirrusSize() const = 0;
    virtual void setCirrusSize(double size) = 0;
    virtual int getCirrusSeed() const = 0;
    virtual void setCirrusSeed(int seed) = 0;
    virtual double getStratusSize() const = 0;
    virtual void setStratusSize(double size) = 0;
    virtual int getStratusSeed() const = 0;
    virtual void setStratusSeed(int seed) = 0;
    virtual double getCirrocumulusSize() const = 0;
    virtual void setCirrocumulusSize(double size) = 0;
    virtual int getCirrocumulusSeed() const = 0;
    virtual void setCirrocumulusSeed(int seed) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    // False when `parent` has no Clouds child.
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelClouds() {}
    virtual bool isActiveWind() const = 0;
    virtual void setActiveWind(bool active) = 0;
    virtual double getWindSpeed() const = 0;
    virtual void setWindSpeed(double speed) = 0;
    virtual double getWindDirection() const = 0;
    virtual void setWindDirection(double direction) = 0;
    // Kept for the host, never written to a file.
    virtual double getExtraValue() const = 0;
    virtual void setExtraValue(double value) = 0;
};

class ZEL_API IZelFog {
public:
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual CZelColor getColor() const = 0;
    virtual void setColor(CZelColor color) = 0;
    virtual double getDensity() const = 0;
    virtual void setDensity(double density) = 0;
    virtual double getStartDistance() const = 0;
    virtual void setStartDistance(double distance) = 0;
    virtual double getEndDistance() const = 0;
    virtual void setEndDistance(double distance) = 0;
    virtual double getAltitude() const = 0;
    virtual void setAltitude(double altitude) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    // False when `parent` has no Fog child.
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelFog() {}
};

// The clipping setters store the value; when a manager is reachable they then store the
// bound instead and report the clipping through its feedback.
class ZEL_API CZelAtmosphere {
public:
    virtual bool isUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    virtual CZelColor getColor() const = 0;
    virtual void setColor(CZelColor color) = 0;
    virtual double getHighDensity() const = 0;
    // Clipped to 0 .. 1.0.
    virtual void setHighDensity(double density) = 0;
    virtual double getMediumDensity() const = 0;
    // Clipped to 0 .. 1.0.
    virtual void setMediumDensity(double density) = 0;
    virtual double getLowDensity() const = 0;
    // Clipped to 0 .. 1.0.
    virtual void setLowDensity(double density) = 0;
    virtual double getScale() const = 0;
    // Not below 0.
    virtual void setScale(double scale) = 0;
    virtual double getMinDistance() const = 0;
    virtual void setMinDistance(double distance) = 0;
    virtual double getMaxDistance() const = 0;
    // Not below 0.
    virtual void setMaxDistance(double distance) = 0;
    virtual double getNoise() const = 0;
    // Not below 0.
    virtual void setNoise(double noise) = 0;
    // Replaces any Atmosphere child of `parent`.
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool isUseDefault() const = 0;
    virtual void setUseDefault(bool useDefault) = 0;
    virtual ~CZelAtmosphere() {}
};

class ZEL_API CZelAmbient {
public:
    virtual CZelColor getColor() const = 0;
    virtual void setColor(CZelColor color) = 0;
    // Replaces any Ambient child of `parent`.
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool isUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    virtual bool isUseDefault() const = 0;
    virtual void setUseDefault(bool useDefault) = 0;
    virtual ~CZelAmbient() {}
};

// The light that travels with a view's camera. Its kind, fixed when the owner makes it,
// names its element: Radiosity.Light or Camera.Light.
class ZEL_API IZelCameraLight {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    // Takes either element name.
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool isUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    virtual bool isRadiosityLight() const = 0;
    virtual void setRadiosityLight(bool radiosity) = 0;
    virtual CZelColor getColor() const = 0;
    virtual void setColor(CZelColor color) = 0;
    virtual double getPower() const = 0;
    virtual void setPower(double power) = 0;
    virtual ~IZelCameraLight() {}
};

// The radiosity settings held inside rendering options. These setters store anything:
// the rendering options check before they forward.
class ZEL_API IZelRadiosityControl {
public:
    virtual bool isRadiosity() const = 0;
    virtual void setRadiosity(bool on) = 0;
    virtual double getRadiosityQuality() const = 0;
    virtual void setRadiosityQuality(double quality) = 0;
    virtual double getRadiosityFactor() const = 0;
    virtual void setRadiosityFactor(double factor) = 0;
    virtual ~IZelRadiosityControl() {}
};

} // namespace KeZel

#endif
