// An object instance: one placement of an object definition in the scene. Its class name
// selects a delegate for what is particular to a kind of instance; delegates keep their
// data in the instance's element Instance.Data. Public header, C++11. Slot order is part
// of the interface.
#ifndef ZEL_MODEL_OBJECTS_IZELOBJECTINSTANCE_H
#define ZEL_MODEL_OBJECTS_IZELOBJECTINSTANCE_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

class CZelProperty;
class CZelLight;
class IZelObjectInstance;
class IZel3DPlantRef;
class IZelBBObjectInstance;
class IZelObjectLightRef;
class IZelAnimatedObjectInstance;

// The delegate of an instance of the class "ModelObject".
class ZEL_API IZelInternalComponentInstance {
public:
    virtual const IZelObjectInstance* getInstance() const = 0;
    virtual IZelObjectInstance* getInstance() = 0;
    virtual const CZelUUID* getComponentUUID() const = 0;
    virtual void setComponentUUID(const CZelUUID& uuid) = 0;
    // Per-instance replacements of the definition's properties.
    virtual const TZelObjectMgr<CZelProperty>* getProperties() const = 0;
    virtual TZelObjectMgr<CZelProperty>* getProperties() = 0;
    virtual ~IZelInternalComponentInstance() {}
};

// The delegate of an instance of the class "ZelObject": an object stored in a file of its
// own.
class ZEL_API IZelZelObjectInstance {
public:
    virtual const IZelObjectInstance* getInstance() const = 0;
    virtual IZelObjectInstance* getInstance() = 0;
    // Empty when the instance data holds no URL.
    virtual const char* getUrl() const = 0;
    virtual void setUrl(const char* url) = 0;
    // Overloaded properties.
    virtual const TZelObjectMgr<CZelProperty>* getProperties() const = 0;
    virtual TZelObjectMgr<CZelProperty>* getProperties() = 0;
    virtual const CZelUUID* getCurrentOverload() const = 0;
    virtual void setCurrentOverload(const CZelUUID& overload) = 0;
    virtual const TZelObjectMgr<CZelLight>* getLights() const = 0;
    virtual TZelObjectMgr<CZelLight>* getLights() = 0;
    virtual ~IZelZelObjectInstance() {}
};

// Only the transparency has a check; every other setter stores as given.
class ZEL_API IZelObjectInstance {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual const char* getClass() const = 0;
    // Destroys the delegate and makes the one of the new class, which reads the instance
    // data; a class outside the known ones leaves no delegate.
    virtual void setClass(const char* className) = 0;
    // The identity of the definition.
    virtual const CZelUUID* getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    // What the instance is attached to.
    virtual const CZelUUID* getAttachId() const = 0;
    virtual void setAttachId(const CZelUUID& id) = 0;
    virtual void setTranslation(const CZelVector& translation) = 0;
    virtual const CZelVector* getTranslation() const = 0;
    virtual void setRotation(const CZelVector& rotation) = 0;
    virtual const CZelVector* getRotation() const = 0;
    virtual void setScale(const CZelVector& scale) = 0;
    virtual const CZelVector* getScale() const = 0;
    // The three corners of the triangle the instance stands on, one after the other.
    virtual const CZelVector* getTriangleCoord() const = 0;
    virtual void setTriangleCoord(const CZelVector& corner0, const CZelVector& corner1,
                                  const CZelVector& corner2) = 0;
    virtual long long getTriangleId() const = 0;
    virtual void setTriangleId(long long id) = 0;
    virtual const CZelVector* getNormal() const = 0;
    virtual void setNormal(const CZelVector& normal) = 0;
    virtual const CZelVector* getAnchorPosition() const = 0;
    virtual void setAnchorPosition(const CZelVector& position) = 0;
    virtual const CZelVector* getUpVector() const = 0;
    virtual void setUpVector(const CZelVector& up) = 0;
    // 0 Perpendicular, 1 Vertical.
    virtual int getPlacementProperty() const = 0;
    virtual void setPlacementProperty(int placement) = 0;
    virtual double getInitialAngle() const = 0;
    virtual void setInitialAngle(double angle) = 0;
    // Minimum then maximum, one after the other. A minimum above the maximum means that
    // the box hasn't been computed.
    virtual const CZelVector* getBoundingBox() const = 0;
    virtual void setBoundingBox(const CZelVector& minimum, const CZelVector& maximum) = 0;
    virtual bool isCoordinatesLocked() const = 0;
    virtual void setCoordinatesLocked(bool locked) = 0;
    virtual bool isScaleLocked() const = 0;
    virtual void setScaleLocked(bool locked) = 0;
    // Lets the delegate write its values into the instance data.
    virtual void updateInstanceData() = 0;
    virtual const KestraXML::XIXMLElement* getInstanceData() const = 0;
    virtual KestraXML::XIXMLElement* getInstanceData() = 0;
    virtual int getUIValue() const = 0;
    virtual void setUIValue(int value) = 0;
    // The six delegate getters answer null when the delegate is of another kind or absent.
    virtual const IZelZelObjectInstance* getZelObjectInstance() const = 0;
    virtual IZelZelObjectInstance* getZelObjectInstance() = 0;
    virtual const IZel3DPlantRef* get3DPlantRef() const = 0;
    virtual IZel3DPlantRef* get3DPlantRef() = 0;
    virtual const IZelBBObjectInstance* getBBObjectInstance() const = 0;
    virtual IZelBBObjectInstance* getBBObjectInstance() = 0;
    virtual const IZelObjectLightRef* getObjectLightRef() const = 0;
    virtual IZelObjectLightRef* getObjectLightRef() = 0;
    virtual const IZelAnimatedObjectInstance* getAnimatedObjectInstance() const = 0;
    virtual IZelAnimatedObjectInstance* getAnimatedObjectInstance() = 0;
    virtual const IZelInternalComponentInstance* getInternalComponentInstance() const = 0;
    virtual IZelInternalComponentInstance* getInternalComponentInstance() = 0;
    // 0 Normal, 1 FollowOnPath, 2 FollowOnPathXY.
    virtual int getAnimationBehavior() const = 0;
    virtual void setAnimationBehavior(int behavior) = 0;
    virtual const CZelVector* getCurrentPathDirection() const = 0;
    virtual void setCurrentPathDirection(const CZelVector& direction) = 0;
    virtual bool isTarget() const = 0;
    virtual void setTarget(bool target) = 0;
    // Operations added later stand behind the destructor.
    virtual ~IZelObjectInstance() {}
    virtual double getTransparency() const = 0;
    // Clips into 0.0 .. 1.0, silently.
    virtual void setTransparency(double transparency) = 0;
    virtual const CZelUUID* getLayerId() const = 0;
    virtual void setLayerId(const CZelUUID& id) = 0;
};

} // namespace KeZel

#endif
