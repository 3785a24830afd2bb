// Lights of the scene, their lens flare, and the groups that gather them.
// Public header, C++11. Slot order is part of the interface.
//
// Operation order chosen here: the IES getter copies into the caller's record (a null
// pointer does nothing); the groups of a light are a list of their identities.
#ifndef ZEL_MODEL_LIGHT_IZELLIGHT_H
#define ZEL_MODEL_LIGHT_IZELLIGHT_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// Kinds of getType and setType.
enum ELightType { eLightPoint = 0, eLightSpot = 1, eLightParallel = 2 };
// Kinds of getShadowType and setShadowType.
enum ELightShadowType { eLightShadowNone = 0, eLightShadowTraced = 1, eLightShadowSoft = 2 };
// What a light's target is: getTargetType and setTargetType.
enum ELightTargetType { eLightTargetFixedVertex = 0, eLightTargetOnObject = 1 };
// Kinds of a lens flare.
enum ELensFlareType { eLensFlare1 = 0, eLensFlare2 = 1, eHalo1 = 2, eHalo2 = 3 };

// The flare of a light or of the sun, held inside its owner.
class ZEL_API IZelLensFlare {
public:
    virtual bool isUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    // One of ELensFlareType.
    virtual int getType() const = 0;
    virtual void setType(int type) = 0;
    virtual double getSize() const = 0;
    virtual void setSize(double size) = 0;
    virtual double getIntensity() const = 0;
    virtual void setIntensity(double intensity) = 0;
    virtual ~IZelLensFlare() {}
};

// A named group of lights; lights name their groups by ID.
class ZEL_API IZelLightsGroup {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const CZelUUID* getID() const = 0;
    virtual void setID(const CZelUUID& id) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual int getUIValue() const = 0;
    virtual void setUIValue(int value) = 0;
    virtual ~IZelLightsGroup() {}
};

// A point, spot or parallel light. The clipping setters clip silently.
class ZEL_API CZelLight {
public:
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    // One of ELightType.
    virtual int getType() const = 0;
    virtual void setType(int type) = 0;
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual CZelColor getColor() const = 0;
    virtual void setColor(CZelColor color) = 0;
    virtual double getPower() const = 0;
    // Clipped to 1.0 .. 1000000.0.
    virtual void setPower(double power) = 0;
    virtual double getDistanceNear() const = 0;
    virtual void setDistanceNear(double distance) = 0;
    virtual double getDistanceFar() const = 0;
    virtual void setDistanceFar(double distance) = 0;
    virtual const CZelVector* getPosition() const = 0;
    virtual void setPosition(const CZelVector& position) = 0;
    virtual const CZelVector* getTarget() const = 0;
    virtual void setTarget(const CZelVector& target) = 0;
    // Degrees.
    virtual double getConeAngle() const = 0;
    // Clipped to 0 .. 360.0.
    virtual void setConeAngle(double angle) = 0;
    virtual double getSharpness() const = 0;
    // Clipped to 0 .. 1.0.
    virtual void setSharpness(double sharpness) = 0;
    // One of ELightShadowType.
    virtual int getShadowType() const = 0;
    virtual void setShadowType(int type) = 0;
    virtual double getShadowPower() const = 0;
    // Clipped to 0 .. 1.0.
    virtual void setShadowPower(double power) = 0;
    virtual int getMapSize() const = 0;
    // Clipped to 0 .. 13.
    virtual void setMapSize(int size) = 0;
    virtual double getBias() const = 0;
    // Clipped to 0 .. 1.0.
    virtual void setBias(double bias) = 0;
    virtual bool isGlobalIllumination() const = 0;
    virtual void setGlobalIllumination(bool on) = 0;
    virtual double getGlobalIlluminationPower() const = 0;
    virtual void setGlobalIlluminationPower(double power) = 0;
    virtual int getGlobalIlluminationQuality() const = 0;
    virtual void setGlobalIlluminationQuality(int quality) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool isLocked() const = 0;
    virtual void setLocked(bool locked) = 0;
    virtual int getUIValue() const = 0;
    virtual void setUIValue(int value) = 0;
    // Identities of the groups this light belongs to.
    virtual TZelObjectMgr<CZelUUID>* getLightsGroups() = 0;
    virtual const TZelObjectMgr<CZelUUID>* getLightsGroups() const = 0;
    virtual IZelLensFlare* getLensFlare() = 0;
    virtual const IZelLensFlare* getLensFlare() const = 0;
    virtual bool isRadiosity() const = 0;
    virtual void setRadiosity(bool on) = 0;
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    // One of ELightTargetType.
    virtual int getTargetType() const = 0;
    // A value other than 0 and 1 is stored as 0.
    virtual void setTargetType(int type) = 0;
    // The object instance aimed at when the target type is eLightTargetOnObject.
    virtual const CZelUUID* getObjectId() const = 0;
    virtual void setObjectId(const CZelUUID& id) = 0;
    virtual ~CZelLight() {}
    // The emission profile. The default stands for no particular distribution.
    virtual void getIES(CZelUUID* ies) const = 0;
    virtual void setIES(const CZelUUID& ies) = 0;
};

} // namespace KeZel

#endif
