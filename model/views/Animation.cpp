#include "model/views/Animation.h"

#include "frame/ValueHelpers.h"
#include "codec/AnimationCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {} // namespace

// ---- CCamKey

void CCamKey::setPitch(double pitch) {
    // Clipped, not wrapped as a camera's roll is.
    mPitch = ZelClip(pitch, 0.0, 360.0);
}

void CCamKey::setAnticipation(double anticipation) {
    mAnticipation = ZelClip(anticipation, 0.0, 1.0);
}

void CCamKey::setBezierT(double t) {
    mBezierT = ZelClip(t, 0.0, 1.0);
}

void CCamKey::setBezierTransitionT(double t) {
    mBezierTransitionT = ZelClip(t, 0.0, 1.0);
}

// ---- CAnimation

CAnimation::CAnimation(CZEL* zel)
    : mZel(zel), mName("Sequence 0"), mViewFlag(false), mActive(true), mDuration(4.0), mNbXImage(0),
      mSpeedOn(false), mSpeed(0.0), mPathClosed(true), mPoints(this), mKeys(this), mViewInfo(zel),
      mCurrentTime(0.0) {}

CAnimation::CAnimation(CCameraPathList* list) : CAnimation(list ? list->getZel() : nullptr) {}

void CAnimation::setDuration(double duration) {
    // Only a path in a manager clips, and tells.
    if (mZel && duration < 0.0) {
        duration = 0.0;
        mZel->report("Method setDuration has clipped a value out of range.");
    }
    mDuration = duration;
}

void CAnimation::setNbXImage(int count) {
    if (mZel && count < 0) {
        count = 0;
        mZel->report("Method setNbXImage has clipped a value out of range.");
    }
    mNbXImage = count;
}

XIXMLElement* CAnimation::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelCameraPath::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddCameraPath(io, parent, *this); });
}

bool CAnimation::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelCameraPath::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetCameraPath(io, CZelXMLIO::need(parent, "Camera.Path"), *this);
        return true;
    });
}

// ---- CZelAnimation

CZelAnimation::CZelAnimation(CZEL* zel) : mZel(zel), mPaths(this), mViewOpt(zel), mCurrentPath(0) {}

void CZelAnimation::setCurrentPath(int index) {
    int count = static_cast<int>(mPaths.getCount());
    mCurrentPath = index < 0 ? 0 : index;
    // One past the last path is kept as it is.
    if (mCurrentPath > 0 && mCurrentPath > count) mCurrentPath = count - 1;
    if (mCurrentPath != index && mZel) mZel->report("IZelAnimation::setCurrentPath - index invalid");
}

XIXMLElement* CZelAnimation::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelAnimation::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddAnimation(io, parent, *this); });
}

bool CZelAnimation::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelAnimation::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetAnimation(io, CZelXMLIO::need(parent, "Animation"), *this);
        return true;
    });
}

} // namespace KeZel
