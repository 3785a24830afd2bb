// A perspective view: a named camera with its settings, options and insertion tool.
// Public header, C++11. Slot order is part of the interface.
#ifndef ZEL_MODEL_VIEWS_IZELCAMERA_H
#define ZEL_MODEL_VIEWS_IZELCAMERA_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "model/views/IZelRenderingOpt.h"
#include "model/views/IZelViewInfo.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

class IZelInsertionObject;

// The older face of a camera, for clients that look for the depth of field on the camera
// itself. It stores nothing: every value is that of the camera's view info.
class ZEL_API CZelCameraExObsolete {
public:
    virtual int getViewFlags() const = 0;
    virtual void setViewFlags(int flags) = 0;
    virtual const CZelVector* getClearnessPoint() const = 0;
    virtual void setClearnessPoint(const CZelVector& point) = 0;
    virtual int getDepthType() const = 0;
    virtual void setDepthType(int type) = 0;
    virtual double getClearnessDistInv() const = 0;
    virtual void setClearnessDistInv(double value) = 0;
    virtual double getClearnessSizeInv() const = 0;
    virtual void setClearnessSizeInv(double value) = 0;
    virtual ~CZelCameraExObsolete() {}
};

class ZEL_API CZelCamera {
public:
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual const CZelVector* getPosition() const = 0;
    virtual void setPosition(const CZelVector& position) = 0;
    virtual const CZelVector* getTarget() const = 0;
    virtual void setTarget(const CZelVector& target) = 0;
    // Bit 0 of the view flags, as 0 or 1.
    virtual int isCurrent() const = 0;
    // Makes this the one current camera of its list.
    virtual void setCurrent() = 0;
    // Bit 1 of the view flags, as 0 or 1.
    virtual int isFlagged() const = 0;
    virtual void setFlagged(bool flagged) = 0;
    // Radians.
    virtual double getRoll() const = 0;
    // Wraps into 0 .. 2 pi.
    virtual void setRoll(double roll) = 0;
    // Degrees.
    virtual double getFocal() const = 0;
    // Clips into 0.0 .. 180.0 with a warning, only for a camera in a manager.
    virtual void setFocal(double focal) = 0;
    // `clientVersion` is the interface version the client was built for: 3 to 6 answer
    // the older face; anything else reports and answers null.
    virtual const CZelCameraExObsolete* getCameraExObsolete(int clientVersion) const = 0;
    virtual CZelCameraExObsolete* getCameraExObsolete(int clientVersion) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual int getViewFlags() const = 0;
    virtual void setViewFlags(int flags) = 0;
    virtual const IZelViewInfo* getViewInfo() const = 0;
    virtual IZelViewInfo* getViewInfo() = 0;
    virtual const IZelViewOpt* getViewOpt() const = 0;
    virtual IZelViewOpt* getViewOpt() = 0;
    virtual const IZelInsertionObject* getInsertionObject() const = 0;
    virtual IZelInsertionObject* getInsertionObject() = 0;
    // 0 Fixed.Vertex, 1 On.Object; any other value stores 0.
    virtual int getTargetType() const = 0;
    virtual void setTargetType(int type) = 0;
    // The object looked at when the target type is On.Object.
    virtual const CZelUUID* getObjectId() const = 0;
    virtual void setObjectId(const CZelUUID& id) = 0;
    virtual ~CZelCamera() {}
};

} // namespace KeZel

#endif
