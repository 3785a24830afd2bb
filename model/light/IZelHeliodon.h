// The sun of a scene, with its date and place on earth. The library stores the sun's
// parameters; computing its position is the host's business. Public header, C++11. Slot
// order is part of the interface.
//
// Operation order chosen here: the blur of the shadows (key Sun.Blur) is
// getShadowBlur/setShadowBlur, as its report names it; the colour of index 2 by value is
// getMiddleColor/setMiddleColor.
#ifndef ZEL_MODEL_LIGHT_IZELHELIODON_H
#define ZEL_MODEL_LIGHT_IZELHELIODON_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "model/light/IZelLight.h"
#include "model/light/IZelSky.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// A date and a time of day. The setters clip silently; the year is not clipped.
class ZEL_API CZelTime {
public:
    virtual int getMonth() const = 0;
    // Clipped to 1 .. 12.
    virtual void setMonth(int month) = 0;
    virtual int getDay() const = 0;
    // Clipped to 1 .. 31.
    virtual void setDay(int day) = 0;
    virtual int getHour() const = 0;
    // Clipped to 0 .. 23.
    virtual void setHour(int hour) = 0;
    virtual int getMinute() const = 0;
    // Clipped to 0 .. 59.
    virtual void setMinute(int minute) = 0;
    virtual int getYear() const = 0;
    virtual void setYear(int year) = 0;
    virtual ~CZelTime() {}
};

// A place on earth, in whole degrees and hours.
class ZEL_API CZelPlace {
public:
    virtual int getLongitude() const = 0;
    virtual void setLongitude(int longitude) = 0;
    virtual int getLatitude() const = 0;
    virtual void setLatitude(int latitude) = 0;
    virtual int getTimeZone() const = 0;
    virtual void setTimeZone(int zone) = 0;
    virtual bool isDaylight() const = 0;
    virtual void setDaylight(bool daylight) = 0;
    virtual ~CZelPlace() {}
};

// How a heliodon is placed: getPlacementKind.
enum EPlacementKind { ePlacementManual = 0, ePlacement45Degree = 1, ePlacementDateAndPlace = 2 };
// Where the sun's colour comes from: getColorType.
enum ESunColorType { eSunColorAutomatic = 0, eSunColorUser = 1 };

class ZEL_API CZelHeliodon {
public:
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual CZelTime* getTime() = 0;
    virtual const CZelTime* getTime() const = 0;
    virtual CZelPlace* getPlace() = 0;
    virtual const CZelPlace* getPlace() const = 0;
    virtual double getSunshine() const = 0;
    virtual void setSunshine(double sunshine) = 0;
    virtual double getNorthAngle() const = 0;
    virtual void setNorthAngle(double angle) = 0;
    virtual bool isShadow() const = 0;
    virtual void setShadow(bool shadow) = 0;
    virtual double getShadowPower() const = 0;
    virtual void setShadowPower(double power) = 0;
    virtual int getShadowBlur() const = 0;
    // Clipped to 0 .. 100, with a report.
    virtual void setShadowBlur(int blur) = 0;
    virtual bool isGlobalIllumination() const = 0;
    virtual void setGlobalIllumination(bool on) = 0;
    virtual double getGlobalIlluminationPower() const = 0;
    virtual void setGlobalIlluminationPower(double power) = 0;
    virtual int getGlobalIlluminationQuality() const = 0;
    virtual void setGlobalIlluminationQuality(int quality) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual IZelLensFlare* getLensFlare() = 0;
    virtual const IZelLensFlare* getLensFlare() const = 0;
    virtual bool isColored() const = 0;
    virtual void setColored(bool colored) = 0;
    // The sun's five colours, 0 to 4. An index above 5 is reported: the getter answers
    // colour 0, the setter changes nothing.
    virtual CZelColor getColor(int index) const = 0;
    virtual void setColor(int index, CZelColor color) = 0;
    virtual bool isRadiosity() const = 0;
    virtual void setRadiosity(bool on) = 0;
    virtual IZelSkylight* getSkylight() = 0;
    virtual const IZelSkylight* getSkylight() const = 0;
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    // One of EPlacementKind.
    virtual int getPlacementKind() const = 0;
    virtual void setPlacementKind(int kind) = 0;
    // One of ESunColorType.
    virtual int getColorType() const = 0;
    virtual void setColorType(int type) = 0;
    // Colour 2 of the five.
    virtual CZelColor getMiddleColor() const = 0;
    virtual void setMiddleColor(CZelColor color) = 0;
    // Radians.
    virtual double getTheta() const = 0;
    virtual void setTheta(double theta) = 0;
    virtual double getPhi() const = 0;
    // A value closer to 0 than 0.001 is pushed out to 0.001, or -0.001 when negative.
    virtual void setPhi(double phi) = 0;
    virtual IZelClouds* getClouds() = 0;
    virtual const IZelClouds* getClouds() const = 0;
    virtual double getCloudCoverage() const = 0;
    virtual void setCloudCoverage(double coverage) = 0;
    virtual bool isCloudMaskSun() const = 0;
    virtual void setCloudMaskSun(bool mask) = 0;
    virtual IZelFog* getFog() = 0;
    virtual const IZelFog* getFog() const = 0;
    virtual bool isSunPowerFlag() const = 0;
    virtual void setSunPowerFlag(bool on) = 0;
    virtual ~CZelHeliodon() {}
};

} // namespace KeZel

#endif
