#include "model/animation/Path3D.h"

#include "codec/PathCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

CBezierPoint::CBezierPoint(CBezierPointList* list)
    : mZel(list ? list->getZel() : nullptr), mPosition(), mCPBefore(), mCPAfter(), mLocked(false) {}

XIXMLElement* CBezierPoint::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelBezierPoint::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddBezierPoint(io, parent, *this); });
}

bool CBezierPoint::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelBezierPoint::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetBezierPoint(io, CZelXMLIO::need(parent, "Bezier.Point"), *this);
        return true;
    });
}

C3DPath::C3DPath(CZEL* zel) : mZel(zel), mUUID(), mClosed(false), mPoints(this) {}

C3DPath::C3DPath(C3DPathList* list) : C3DPath(list ? list->getZel() : nullptr) {}

XIXMLElement* C3DPath::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZel3DPath::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAdd3DPath(io, parent, *this); });
}

bool C3DPath::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZel3DPath::initWithXML", [&](const CZelXMLIO& io) {
        ZelGet3DPath(io, CZelXMLIO::need(parent, "Path.3D"), *this);
        return true;
    });
}

} // namespace KeZel
