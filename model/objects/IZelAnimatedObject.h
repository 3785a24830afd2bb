// Animated objects: a definition of the class "AnimatedObject" is a figure driven by an
// external animation file, with a set of takes; an instance of that class chooses a take
// and a start frame and may overload the materials. The library stores the takes; it
// doesn't play them. Public header, C++11. Slot order is part of the interface.
//
// Operation order chosen here, each value a getter then a setter, in the order in which
// the values are stored:
// - IZelAnimatedObject: getExternalFile, setExternalFile, getExternalFileType,
//   setExternalFileType, getIndex, setIndex, getTakes (const, then mutable), destructor.
// - IZelAnimatedObject::IZelTake: getDuration, setDuration, getFPS, setFPS, getName
//   (const, then mutable), getZMin, setZMin, getType, setType, getZAngle, setZAngle,
//   destructor.
// - IZelAnimatedObjectInstance: getInstance (const, then mutable), getCurrentFrame,
//   setCurrentFrame, getCurrentTake, setCurrentTake, getRealDuration, setRealDuration,
//   getStartFrame, setStartFrame, getOverloadedProperties (const, then mutable),
//   destructor.
#ifndef ZEL_MODEL_OBJECTS_IZELANIMATEDOBJECT_H
#define ZEL_MODEL_OBJECTS_IZELANIMATEDOBJECT_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "model/objects/IZelString.h"

namespace KeZel {

class CZelProperty;
class IZelObjectInstance;

// The delegate of a definition of the class "AnimatedObject".
class ZEL_API IZelAnimatedObject {
public:
    class ZEL_API IZelTake {
    public:
        virtual int getDuration() const = 0;
        virtual void setDuration(int duration) = 0;
        // Frames per second.
        virtual int getFPS() const = 0;
        virtual void setFPS(int fps) = 0;
        virtual const IZelString* getName() const = 0;
        virtual IZelString* getName() = 0;
        virtual double getZMin() const = 0;
        virtual void setZMin(double z) = 0;
        // The path type: 0 Predefined, 1 OnPath.
        virtual int getType() const = 0;
        virtual void setType(int type) = 0;
        virtual double getZAngle() const = 0;
        virtual void setZAngle(double angle) = 0;
        virtual ~IZelTake() {}
    };

    // Empty when the object data holds none.
    virtual const char* getExternalFile() const = 0;
    virtual void setExternalFile(const char* file) = 0;
    // 0 Skeleton, the only kind.
    virtual int getExternalFileType() const = 0;
    virtual void setExternalFileType(int type) = 0;
    virtual int getIndex() const = 0;
    virtual void setIndex(int index) = 0;
    virtual const TZelObjectMgr<IZelTake>* getTakes() const = 0;
    virtual TZelObjectMgr<IZelTake>* getTakes() = 0;
    virtual ~IZelAnimatedObject() {}
};

// The delegate of an instance of the class "AnimatedObject".
class ZEL_API IZelAnimatedObjectInstance {
public:
    virtual const IZelObjectInstance* getInstance() const = 0;
    virtual IZelObjectInstance* getInstance() = 0;
    virtual int getCurrentFrame() const = 0;
    virtual void setCurrentFrame(int frame) = 0;
    virtual int getCurrentTake() const = 0;
    virtual void setCurrentTake(int take) = 0;
    virtual int getRealDuration() const = 0;
    virtual void setRealDuration(int duration) = 0;
    virtual int getStartFrame() const = 0;
    virtual void setStartFrame(int frame) = 0;
    virtual const TZelObjectMgr<CZelProperty>* getOverloadedProperties() const = 0;
    virtual TZelObjectMgr<CZelProperty>* getOverloadedProperties() = 0;
    virtual ~IZelAnimatedObjectInstance() {}
};

} // namespace KeZel

#endif
