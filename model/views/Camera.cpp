#include "model/views/Camera.h"

#include "codec/CameraCodec.h"
#include "frame/AxisRule.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {

const double kTwoPi = 6.283185307179586;

CZEL* ZelOfList(CCameraList* list) {
    return list ? list->getZel() : nullptr;
}

} // namespace

CCamera::CCamera(CCameraList* list)
    : mOwner(list), mZel(ZelOfList(list)), mName("View 0"), mSecondVector(), mViewFlags(2), mRoll(0.00001),
      mFocal(50.0), mViewInfo(mZel), mViewOpt(mZel), mInsertionObject(mZel), mTargetType(0), mObjectId() {
    // Up is Z for the library; a client of the old convention has Y up. Without a
    // manager the camera takes today's convention.
    mPosition = {50.0, 50.0, -60.0};
    mTarget = {50.0, 50.0, 50.0};
    mUp = {0.0, 1.0, 0.0};
    bool oldClient = mZel && mZel->isOldClient();
    AxisExport(oldClient, mPosition.x, mPosition.y, mPosition.z);
    AxisExport(oldClient, mTarget.x, mTarget.y, mTarget.z);
    AxisExport(oldClient, mUp.x, mUp.y, mUp.z);
}

void CCamera::setCurrent() {
    if (mOwner)
        for (unsigned int i = 0; i < mOwner->getCount(); ++i) {
            CCamera* camera = mOwner->at(i);
            camera->mViewFlags &= ~1;
        }
    mViewFlags |= 1;
}

void CCamera::setFlagged(bool flagged) {
    if (flagged)
        mViewFlags |= 2;
    else
        mViewFlags &= ~2;
}

void CCamera::setRoll(double roll) {
    while (roll < 0.0) roll += kTwoPi;
    while (roll > kTwoPi) roll -= kTwoPi;
    mRoll = roll;
}

void CCamera::setFocal(double focal) {
    mFocal = focal;
    // A camera on its own keeps what it is given.
    if (!mZel) return;
    if (!(mFocal >= 0.0))
        mFocal = 0.0;
    else if (mFocal > 180.0)
        mFocal = 180.0;
    else
        return;
    mZel->report("Method setFocal has clipped a value out of range.");
}

const CZelCameraExObsolete* CCamera::getCameraExObsolete(int clientVersion) const {
    return const_cast<CCamera*>(this)->getCameraExObsolete(clientVersion);
}

CZelCameraExObsolete* CCamera::getCameraExObsolete(int clientVersion) {
    if (clientVersion > 6) {
        if (mZel) mZel->report("Client is newer than Zel Library!");
        return nullptr;
    }
    if (clientVersion < 3) {
        if (mZel) mZel->report("Client is obsolete for this Zel Library!");
        return nullptr;
    }
    return static_cast<CZelCameraExObsolete*>(this);
}

XIXMLElement* CCamera::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelCamera::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddCamera(io, parent, *this); });
}

bool CCamera::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelCamera::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetCamera(io, CZelXMLIO::need(parent, "Perspective.View"), *this);
        return true;
    });
}

} // namespace KeZel
