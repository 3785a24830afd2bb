// An object definition: a reusable model that the scene places through object instances.
// Its class name selects a delegate for what is particular to that class, and its free
// data lives in two XML elements of its own. Public header, C++11. Slot order is part of
// the interface.
//
// Every setter stores without a check.
#ifndef ZEL_MODEL_OBJECTS_IZELOBJECTDEFINITION_H
#define ZEL_MODEL_OBJECTS_IZELOBJECTDEFINITION_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "model/objects/IZelString.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

class CZelProperty;
class IZel3DPlant;
class IZelObjectLight;
class IZelAnimatedObject;

// A named configuration of a definition, referred to by identity.
class ZEL_API IZelZelObjectSetup {
public:
    virtual const IZelString* getName() const = 0;
    virtual IZelString* getName() = 0;
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual ~IZelZelObjectSetup() {}
};

class ZEL_API IZelZelObjectDefinition {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual const IZelString* getName() const = 0;
    virtual IZelString* getName() = 0;
    // The name in the manager's current language.
    virtual const char* getDefaultName() const = 0;
    virtual const char* getClass() const = 0;
    // Destroys the delegate and makes the one of the new class ("3DPlant", "LightObject",
    // "AnimatedObject"; other classes have none), which reads the object data. A null
    // text does nothing.
    virtual void setClass(const char* className) = 0;
    virtual const CZelVector* getAnchor() const = 0;
    virtual void setAnchor(const CZelVector& anchor) = 0;
    // 0 Perpendicular, 1 Vertical.
    virtual int getPlacement() const = 0;
    virtual void setPlacement(int placement) = 0;
    virtual const CZelVector* getUp() const = 0;
    virtual void setUp(const CZelVector& up) = 0;
    virtual double getInitialAngle() const = 0;
    virtual void setInitialAngle(double angle) = 0;
    virtual const CZelVector* getModelRotation() const = 0;
    virtual void setModelRotation(const CZelVector& rotation) = 0;
    // 16 doubles, row by row.
    virtual const double* getModelRotationMatrix() const = 0;
    // Copies 16 doubles, row by row.
    virtual void setModelRotationMatrix(const double* matrix) = 0;
    virtual const CZelVector* getModelPosition() const = 0;
    virtual void setModelPosition(const CZelVector& position) = 0;
    // 0 Uninitialized, 1 CenterXYBottom, 2 CenterXYTop, 3 CenterXY.
    virtual int getModelOrigin() const = 0;
    virtual void setModelOrigin(int origin) = 0;
    // Lets the delegate write its values into the object data.
    virtual void updateObjectData() = 0;
    // The element Object.Data, the host's and the delegates' space.
    virtual const KestraXML::XIXMLElement* getObjectData() const = 0;
    virtual KestraXML::XIXMLElement* getObjectData() = 0;
    // The element Instance.Data.
    virtual const KestraXML::XIXMLElement* getInstanceData() const = 0;
    virtual KestraXML::XIXMLElement* getInstanceData() = 0;
    virtual const TZelObjectMgr<CZelProperty>* getProperties() const = 0;
    virtual TZelObjectMgr<CZelProperty>* getProperties() = 0;
    virtual const IZelString* getDescription1() const = 0;
    virtual IZelString* getDescription1() = 0;
    virtual const IZelString* getDescription2() const = 0;
    virtual IZelString* getDescription2() = 0;
    virtual const IZelString* getComment() const = 0;
    virtual IZelString* getComment() = 0;
    virtual int getUIValue() const = 0;
    virtual void setUIValue(int value) = 0;
    virtual const CZelUUID* getLightGroupId() const = 0;
    virtual void setLightGroupId(const CZelUUID& id) = 0;
    virtual const TZelObjectMgr<IZelZelObjectSetup>* getSetups() const = 0;
    virtual TZelObjectMgr<IZelZelObjectSetup>* getSetups() = 0;
    // The three delegate getters answer null when the delegate is of another kind or absent.
    virtual const IZel3DPlant* get3DPlant() const = 0;
    virtual IZel3DPlant* get3DPlant() = 0;
    virtual const IZelObjectLight* getObjectLight() const = 0;
    virtual IZelObjectLight* getObjectLight() = 0;
    virtual const IZelAnimatedObject* getAnimatedObject() const = 0;
    virtual IZelAnimatedObject* getAnimatedObject() = 0;
    virtual int getGeometryLevel() const = 0;
    virtual void setGeometryLevel(int level) = 0;
    virtual ~IZelZelObjectDefinition() {}
};

} // namespace KeZel

#endif
