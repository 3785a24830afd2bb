// A scenario: a timed animation of the scene with a time line in frames, its sequences
// (the shots), its animated elements, its sounds and its time guides. The library stores
// and validates these; it doesn't play them. Public header, C++11. Slot order is part of
// the interface.
#ifndef ZEL_MODEL_ANIMATION_IZELSCENARIO_H
#define ZEL_MODEL_ANIMATION_IZELSCENARIO_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "model/animation/IZelKeyFrame.h"
#include "model/views/IZelRenderingOpt.h"
#include "model/views/IZelViewInfo.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// A marker on the time line.
class ZEL_API IZelScenarioTimeGuide {
public:
    virtual int getTime() const = 0;
    virtual void setTime(int time) = 0;
    virtual ~IZelScenarioTimeGuide() {}
};

// A sound that starts at a frame.
class ZEL_API IZelSnd {
public:
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual const char* getURL() const = 0;
    virtual void setURL(const char* url) = 0;
    virtual int getStartFrame() const = 0;
    virtual void setStartFrame(int frame) = 0;
    virtual ~IZelSnd() {}
};

// A shot: a moving camera over a range of frames, with a whole view of its own. Nothing
// checks that the end follows the start or that shots don't overlap.
class ZEL_API IZelSequence {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual int getStartFrame() const = 0;
    virtual void setStartFrame(int frame) = 0;
    virtual int getEndFrame() const = 0;
    virtual void setEndFrame(int frame) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual const CZelVector* getPosition() const = 0;
    virtual void setPosition(const CZelVector& position) = 0;
    // 0 Fixed.Vertex, 2 Forward.Path (also read as Relative.Angle), 3 Object.Instance.
    // 1 is stored but has no label, so it can't be written; other values store 0.
    virtual int getTargetType() const = 0;
    virtual void setTargetType(int type) = 0;
    virtual const CZelVector* getTarget() const = 0;
    virtual void setTarget(const CZelVector& target) = 0;
    virtual double getTargetDistance() const = 0;
    virtual void setTargetDistance(double distance) = 0;
    virtual double getHorizontalAngle() const = 0;
    virtual void setHorizontalAngle(double angle) = 0;
    virtual double getVerticalAngle() const = 0;
    virtual void setVerticalAngle(double angle) = 0;
    virtual const CZelVector* getCurrentPathTangent() const = 0;
    virtual void setCurrentPathTangent(const CZelVector& tangent) = 0;
    // Bit 0 of the view flags, as 0 or 1.
    virtual int isCurrent() const = 0;
    // Makes this the one current sequence of its list.
    virtual void setCurrent() = 0;
    // Bit 1 of the view flags, as 0 or 1.
    virtual int isFlagged() const = 0;
    virtual void setFlagged(bool flagged) = 0;
    virtual int getViewFlags() const = 0;
    virtual void setViewFlags(int flags) = 0;
    virtual double getRoll() const = 0;
    // Stored as given, without wrapping.
    virtual void setRoll(double roll) = 0;
    virtual double getFocal() const = 0;
    // Clips into 0.0 .. 180.0 with a warning, only for a sequence in a manager.
    virtual void setFocal(double focal) = 0;
    virtual const IZelViewInfo* getViewInfo() const = 0;
    virtual IZelViewInfo* getViewInfo() = 0;
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual const IZelViewOpt* getViewOpt() const = 0;
    virtual IZelViewOpt* getViewOpt() = 0;
    // The object instance looked at when the target type is Object.Instance.
    virtual const CZelUUID* getObjectUUID() const = 0;
    virtual void setObjectUUID(const CZelUUID& uuid) = 0;
    virtual ~IZelSequence() {}
};

// Current frame and current sequence are plain stored values.
class ZEL_API IZelScenario {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual const TZelObjectMgr<IZelSequence>* getSequences() const = 0;
    virtual TZelObjectMgr<IZelSequence>* getSequences() = 0;
    virtual const TZelObjectMgr<IZelAnimatedElement>* getAnimatedElements() const = 0;
    virtual TZelObjectMgr<IZelAnimatedElement>* getAnimatedElements() = 0;
    virtual int getCurrentFrame() const = 0;
    virtual void setCurrentFrame(int frame) = 0;
    virtual int getCurrentSequence() const = 0;
    virtual void setCurrentSequence(int index) = 0;
    virtual const TZelObjectMgr<IZelSnd>* getSnds() const = 0;
    virtual TZelObjectMgr<IZelSnd>* getSnds() = 0;
    // Length of the time line, in frames.
    virtual int getMaxTime() const = 0;
    virtual void setMaxTime(int frames) = 0;
    virtual int getFPS() const = 0;
    virtual void setFPS(int fps) = 0;
    // The visible range: setter before getter, as the interface has always been.
    virtual void setStartVisibleTime(int frame) = 0;
    virtual int getStartVisibleTime() const = 0;
    virtual void setEndVisibleTime(int frame) = 0;
    virtual int getEndVisibleTime() const = 0;
    virtual const TZelObjectMgr<IZelScenarioTimeGuide>* getTimeGuides() const = 0;
    virtual TZelObjectMgr<IZelScenarioTimeGuide>* getTimeGuides() = 0;
    virtual ~IZelScenario() {}
};

} // namespace KeZel

#endif
