// What changes over time inside a scenario, in three layers: an animated element names the
// entity, an interpolated value the parameter, key frames the values at given times. The
// library stores these and never evaluates them. Public header, C++11. Slot order is part
// of the interface.
//
// No setter checks anything.
#ifndef ZEL_MODEL_ANIMATION_IZELKEYFRAME_H
#define ZEL_MODEL_ANIMATION_IZELKEYFRAME_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// The value and the two control points are three areas the size of a CZelVector, read by
// the value type: three doubles for Coord3D; for the other types the value stands in the
// first bytes (a CZelColor, a double, a byte for Boolean, a 32-bit integer for Integer,
// Date and Enum, 16 bytes for UUID).
class ZEL_API IZelKeyFrame {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    // 0 Coord3D, 1 Color, 2 Double, 3 Boolean, 4 Integer, 5 Date, 6 UUID, 7 Enum.
    virtual int getValueType() const = 0;
    virtual void setValueType(int type) = 0;
    virtual const CZelVector* getValue() const = 0;
    virtual void setValue(const CZelVector& value) = 0;
    virtual int getTime() const = 0;
    virtual void setTime(int time) = 0;
    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    // 0 Linear, 1 Square, 2 OneMinusSquare, 3 Sinus, 4 Bezier, 5 DateInterpolation.
    virtual int getInterpolationType() const = 0;
    virtual void setInterpolationType(int type) = 0;
    virtual const CZelVector* getCPBefore() const = 0;
    virtual void setCPBefore(const CZelVector& point) = 0;
    virtual const CZelVector* getCPAfter() const = 0;
    virtual void setCPAfter(const CZelVector& point) = 0;
    virtual bool areLocked() const = 0;
    virtual void setLocked(bool locked) = 0;
    virtual ~IZelKeyFrame() {}
};

// One animated parameter of an entity; key frames stay in list order, unsorted.
class ZEL_API IZelInterpolatedValue {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    // The key of the parameter ("Camera.Position" is 1, and so on).
    virtual int getType() const = 0;
    virtual void setType(int type) = 0;
    virtual const TZelObjectMgr<IZelKeyFrame>* getKeyFrames() const = 0;
    virtual TZelObjectMgr<IZelKeyFrame>* getKeyFrames() = 0;
    virtual const IZelKeyFrame* getDefaultValue() const = 0;
    virtual IZelKeyFrame* getDefaultValue() = 0;
    virtual bool isLoop() const = 0;
    virtual void setLoop(bool loop) = 0;
    virtual int getNbLoops() const = 0;
    virtual void setNbLoops(int count) = 0;
    // A 3D path along which the value moves; null identity for none.
    virtual const CZelUUID* getPathId() const = 0;
    virtual void setPathId(const CZelUUID& id) = 0;
    virtual ~IZelInterpolatedValue() {}
};

// An animated entity, found by its type and identity; nothing in the library follows the
// link.
class ZEL_API IZelAnimatedElement {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    // 1 Sequence, 2 Light, 3 Heliodon, 4 Object, 5 Property, 6 Mapping.Node. A new element
    // has 0, which can't be written.
    virtual int getType() const = 0;
    virtual void setType(int type) = 0;
    virtual const TZelObjectMgr<IZelInterpolatedValue>* getInterpolatedValues() const = 0;
    virtual TZelObjectMgr<IZelInterpolatedValue>* getInterpolatedValues() = 0;
    virtual ~IZelAnimatedElement() {}
};

} // namespace KeZel

#endif
