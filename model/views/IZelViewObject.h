// A turntable of views around a centre: the camera stands on a sphere and steps through
// horizontal and vertical angles. Public header, C++11. Slot order is part of the
// interface.
//
// All clips here are silent and don't depend on a manager.
#ifndef ZEL_MODEL_VIEWS_IZELVIEWOBJECT_H
#define ZEL_MODEL_VIEWS_IZELVIEWOBJECT_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "model/views/IZelRenderingOpt.h"
#include "model/views/IZelViewInfo.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

class ZEL_API CZelViewObject {
public:
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual int getViewFlags() const = 0;
    virtual void setViewFlags(int flags) = 0;
    virtual double getFocal() const = 0;
    // Clips into 1.0 .. 180.0.
    virtual void setFocal(double focal) = 0;
    virtual const CZelVector* getCenter() const = 0;
    virtual void setCenter(const CZelVector& center) = 0;
    virtual double getRadius() const = 0;
    // Clips to 0.0 from below.
    virtual void setRadius(double radius) = 0;
    // Degrees.
    virtual int getHorizontalAngle() const = 0;
    // Clips into 0 .. 360.
    virtual void setHorizontalAngle(int angle) = 0;
    // Degrees.
    virtual int getVerticalAngle() const = 0;
    // Clips into 0 .. 180.
    virtual void setVerticalAngle(int angle) = 0;
    virtual int getHorizontalStep() const = 0;
    virtual void setHorizontalStep(int step) = 0;
    virtual int getVerticalStep() const = 0;
    virtual void setVerticalStep(int step) = 0;
    virtual int getHorizontalShift() const = 0;
    virtual void setHorizontalShift(int shift) = 0;
    virtual int getVerticalShift() const = 0;
    virtual void setVerticalShift(int shift) = 0;
    virtual double getHorizontalStart() const = 0;
    virtual void setHorizontalStart(double start) = 0;
    virtual double getVerticalStart() const = 0;
    virtual void setVerticalStart(double start) = 0;
    virtual int getOriginAngle() const = 0;
    virtual void setOriginAngle(int angle) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const IZelViewInfo* getViewInfo() const = 0;
    virtual IZelViewInfo* getViewInfo() = 0;
    virtual const IZelViewOpt* getViewOpt() const = 0;
    virtual IZelViewOpt* getViewOpt() = 0;
    virtual ~CZelViewObject() {}
};

} // namespace KeZel

#endif
