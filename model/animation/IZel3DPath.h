// A 3D path: a curve of Bezier points along which an animated value can move.
// Public header, C++11. Slot order is part of the interface.
#ifndef ZEL_MODEL_ANIMATION_IZEL3DPATH_H
#define ZEL_MODEL_ANIMATION_IZEL3DPATH_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

class ZEL_API CZelBezierPoint {
public:
    virtual const CZelVector* getPosition() const = 0;
    virtual void setPosition(const CZelVector& position) = 0;
    virtual const CZelVector* getCPBefore() const = 0;
    virtual void setCPBefore(const CZelVector& point) = 0;
    virtual const CZelVector* getCPAfter() const = 0;
    virtual void setCPAfter(const CZelVector& point) = 0;
    virtual bool areLocked() const = 0;
    virtual void setLocked(bool locked) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~CZelBezierPoint() {}
};

class ZEL_API CZel3DPath {
public:
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual bool isClosed() const = 0;
    virtual void setClosed(bool closed) = 0;
    virtual const TZelObjectMgr<CZelBezierPoint>* getPoints() const = 0;
    virtual TZelObjectMgr<CZelBezierPoint>* getPoints() = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~CZel3DPath() {}
};

} // namespace KeZel

#endif
