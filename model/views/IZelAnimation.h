// Camera paths, the older kind of animation: a named collection of paths, each a curve
// of points with keys that say how the camera moves along it.
// Public header, C++11. Slot order is part of the interface.
#ifndef ZEL_MODEL_VIEWS_IZELANIMATION_H
#define ZEL_MODEL_VIEWS_IZELANIMATION_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "model/views/IZelRenderingOpt.h"
#include "model/views/IZelViewInfo.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// A key on a path. Its clips are silent.
class ZEL_API CZelCamKey {
public:
    virtual double getPitch() const = 0;
    // Clips into 0.0 .. 360.0, without wrapping.
    virtual void setPitch(double pitch) = 0;
    virtual double getFocal() const = 0;
    virtual void setFocal(double focal) = 0;
    // 0 Timing, 1 Path, 2 Local, 3 Global, 4 Target.
    virtual int getKeyType() const = 0;
    virtual void setKeyType(int type) = 0;
    virtual int getFadingDuration() const = 0;
    virtual void setFadingDuration(int duration) = 0;
    virtual int getFadingNbImages() const = 0;
    virtual void setFadingNbImages(int count) = 0;
    virtual double getHorizontalAngle() const = 0;
    virtual void setHorizontalAngle(double angle) = 0;
    virtual double getVerticalAngle() const = 0;
    virtual void setVerticalAngle(double angle) = 0;
    virtual double getAnticipation() const = 0;
    // Clips into 0.0 .. 1.0.
    virtual void setAnticipation(double anticipation) = 0;
    virtual int getBezierSection() const = 0;
    // Clips to 0 from below.
    virtual void setBezierSection(int section) = 0;
    virtual double getBezierT() const = 0;
    // Clips into 0.0 .. 1.0.
    virtual void setBezierT(double t) = 0;
    virtual int getBezierTransition() const = 0;
    // Clips to 0 from below.
    virtual void setBezierTransition(int transition) = 0;
    virtual double getBezierTransitionT() const = 0;
    // Clips into 0.0 .. 1.0.
    virtual void setBezierTransitionT(double t) = 0;
    virtual const CZelVector* getTarget() const = 0;
    virtual void setTarget(const CZelVector& target) = 0;
    virtual ~CZelCamKey() {}
};

class ZEL_API IZelCameraPath {
public:
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual bool isViewFlag() const = 0;
    virtual void setViewFlag(bool flag) = 0;
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual double getDuration() const = 0;
    // In a manager, a negative duration becomes 0.0 with a warning.
    virtual void setDuration(double duration) = 0;
    // Extra images.
    virtual int getNbXImage() const = 0;
    // In a manager, a negative count becomes 0 with a warning.
    virtual void setNbXImage(int count) = 0;
    virtual bool isSpeedOn() const = 0;
    virtual void setSpeedOn(bool on) = 0;
    virtual double getSpeed() const = 0;
    virtual void setSpeed(double speed) = 0;
    virtual bool isPathClosed() const = 0;
    virtual void setPathClosed(bool closed) = 0;
    virtual const TZelObjectMgr<CZelVector>* getPoints() const = 0;
    virtual TZelObjectMgr<CZelVector>* getPoints() = 0;
    virtual const TZelObjectMgr<CZelCamKey>* getKeys() const = 0;
    virtual TZelObjectMgr<CZelCamKey>* getKeys() = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const IZelViewInfo* getViewInfo() const = 0;
    virtual IZelViewInfo* getViewInfo() = 0;
    virtual double getCurrentTime() const = 0;
    virtual void setCurrentTime(double time) = 0;
    virtual ~IZelCameraPath() {}
};

class ZEL_API IZelAnimation {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual const TZelObjectMgr<IZelCameraPath>* getCameraPaths() const = 0;
    virtual TZelObjectMgr<IZelCameraPath>* getCameraPaths() = 0;
    virtual int getCurrentPath() const = 0;
    // Clips the index into the paths (a negative one to 0, one past the count to the last
    // path) and warns when it changed it; an index equal to the count is kept.
    virtual void setCurrentPath(int index) = 0;
    virtual const IZelViewOpt* getViewOpt() const = 0;
    virtual IZelViewOpt* getViewOpt() = 0;
    virtual ~IZelAnimation() {}
};

} // namespace KeZel

#endif
