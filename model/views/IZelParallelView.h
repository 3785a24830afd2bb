// A view without perspective: a front view, a plan or an axonometry.
// Public header, C++11. Slot order is part of the interface.
#ifndef ZEL_MODEL_VIEWS_IZELPARALLELVIEW_H
#define ZEL_MODEL_VIEWS_IZELPARALLELVIEW_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "model/views/IZelRenderingOpt.h"
#include "model/views/IZelViewInfo.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// No setter checks its value.
class ZEL_API IZelParallelView {
public:
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    // 0 Front, 1 Plan, 2 Axono.
    virtual int getType() const = 0;
    virtual void setType(int type) = 0;
    virtual int getViewFlags() const = 0;
    virtual void setViewFlags(int flags) = 0;
    virtual double getNorthAngle() const = 0;
    virtual void setNorthAngle(double angle) = 0;
    virtual double getSize() const = 0;
    virtual void setSize(double size) = 0;
    virtual const CZelVector* getPosition() const = 0;
    virtual void setPosition(const CZelVector& position) = 0;
    virtual const CZelVector* getTarget() const = 0;
    virtual void setTarget(const CZelVector& target) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const IZelViewInfo* getViewInfo() const = 0;
    virtual IZelViewInfo* getViewInfo() = 0;
    virtual const IZelParallelViewsOpt* getViewOpt() const = 0;
    virtual IZelParallelViewsOpt* getViewOpt() = 0;
    virtual bool isSpecialShading() const = 0;
    virtual void setSpecialShading(bool on) = 0;
    virtual ~IZelParallelView() {}
};

} // namespace KeZel

#endif
