// The insertion object of a perspective view (the state of the tool that aligns a model
// on a picture), layers, and the layer settings of the scene.
// Public header, C++11. Slot order is part of the interface.
#ifndef ZEL_MODEL_OBJECTS_IZELLAYER_H
#define ZEL_MODEL_OBJECTS_IZELLAYER_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// The position accessors take an index from 0 to 3. A larger index is reported through
// the manager's feedback; a getter then answers null and a setter does nothing.
class ZEL_API IZelInsertionObject {
public:
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual const CZelVector2D* getAxesPosition(unsigned int index) const = 0;
    virtual void setAxesPosition(unsigned int index, const CZelVector2D& position) = 0;
    virtual const CZelVector2D* getPerpectiveToolPosition(unsigned int index) const = 0;
    virtual void setPerpectiveToolPosition(unsigned int index, const CZelVector2D& position) = 0;
    virtual const CZelVector* getReperePosition(unsigned int index) const = 0;
    virtual void setReperePosition(unsigned int index, const CZelVector& position) = 0;
    // 0 XAxis, 1 YAxis, 2 ZAxis.
    virtual int getSizeAxis() const = 0;
    virtual void setSizeAxis(int axis) = 0;
    virtual bool isAxesVisible() const = 0;
    virtual void setAxesVisible(bool visible) = 0;
    virtual bool isModelVisible() const = 0;
    virtual void setModelVisible(bool visible) = 0;
    virtual bool isPerpectiveToolVisible() const = 0;
    virtual void setPerpectiveToolVisible(bool visible) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool isYAxeInverted() const = 0;
    virtual void setYAxeInverted(bool inverted) = 0;
    virtual ~IZelInsertionObject() {}
};

class ZEL_API IZelLayer {
public:
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual int getUIValue() const = 0;
    virtual void setUIValue(int value) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelLayer() {}
};

// The active layer, and for each class of object the layer into which a new instance goes.
class ZEL_API IZelLayerInfo {
public:
    virtual const CZelUUID* getActiveLayer() const = 0;
    virtual void setActiveLayer(const CZelUUID& layer) = 0;
    // Makes a null entry for a class that has none yet, hence not const. Only the classes
    // "3DPlant", "ZelObject", "Billboard", "LightObject" and "AnimatedObject" are written.
    virtual const CZelUUID* getDefaultLayer(const char* className) = 0;
    virtual void setDefaultLayer(const char* className, const CZelUUID& layer) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelLayerInfo() {}
};

} // namespace KeZel

#endif
