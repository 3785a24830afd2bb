#include "model/views/ViewObject.h"

#include "codec/ViewObjectCodec.h"
#include "frame/AxisRule.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

CViewObject::CViewObject(CZEL* zel)
    : mZel(zel), mName("Vue objet 1"), mViewFlags(2), mFocal(50.0), mRadius(110.0), mHorizontalAngle(360),
      mVerticalAngle(180), mHorizontalStep(10), mVerticalStep(10), mHorizontalShift(0), mVerticalShift(0),
      mHorizontalStart(270.0), mVerticalStart(0.0), mOriginAngle(-90), mViewInfo(zel), mViewOpt(zel) {
    mCenter = {50.0, 50.0, 50.0};
    AxisExport(zel && zel->isOldClient(), mCenter.x, mCenter.y, mCenter.z);
}

void CViewObject::setFocal(double focal) {
    mFocal = focal < 1.0 ? 1.0 : (focal > 180.0 ? 180.0 : focal);
}

void CViewObject::setHorizontalAngle(int angle) {
    mHorizontalAngle = angle < 0 ? 0 : (angle > 360 ? 360 : angle);
}

void CViewObject::setVerticalAngle(int angle) {
    mVerticalAngle = angle < 0 ? 0 : (angle > 180 ? 180 : angle);
}

XIXMLElement* CViewObject::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelViewObject::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddViewObject(io, parent, *this); });
}

bool CViewObject::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelViewObject::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetViewObject(io, CZelXMLIO::need(parent, "View.Object"), *this);
        return true;
    });
}

} // namespace KeZel
