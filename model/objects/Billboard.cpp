#include "model/objects/Billboard.h"

#include "codec/BillboardCodec.h"
#include "codec/ObjectCodec.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"

namespace KeZel {

CZelBillboard::CZelBillboard(CZEL* zel)
    : mZel(zel), mNames(this), mBehavior(1), mNbFaces(0), mAnimate(false), mScale(1.0), mNormal() {
    Kestra::XAssertPointer(zel, "CZelBillboard::CZelBillboard: no manager");
    mNormal.y = 1.0;
    zel->exportPoint(mNormal);
}

CZelQuad::CZelQuad(CQuadList* owner) : mOwner(owner), mTriangle(), mId(-1) {}

void CZelQuad::setTriangle(const CZelVector& corner0, const CZelVector& corner1, const CZelVector& corner2) {
    mTriangle[0] = corner0;
    mTriangle[1] = corner1;
    mTriangle[2] = corner2;
}

CZelTexture::CZelTexture()
    : mOrigin(), mXAxis(), mYAxis(), mWidth(0.0), mHeight(0.0), mCutOut{false, false}, mCutOutColor(),
      mCutSet(false) {}

bool CZelTexture::getCutOut1(CZelColor* color) const {
    if (color) *color = mCutOutColor[0];
    return mCutOut[0];
}

void CZelTexture::setCutOut1(bool used, CZelColor color) {
    mCutOut[0] = used;
    mCutOutColor[0] = color;
}

bool CZelTexture::getCutOut2(CZelColor* color) const {
    if (color) *color = mCutOutColor[1];
    return mCutOut[1];
}

void CZelTexture::setCutOut2(bool used, CZelColor color) {
    mCutOut[1] = used;
    mCutOutColor[1] = color;
}

CZelBBMgrData::CZelBBMgrData(CBillboardList* list)
    : mZel(list ? list->getZel() : nullptr), mBillboard(mZel), mQuads(this), mProperty(0) {}

CZelBBObjectInstance::CZelBBObjectInstance(CZelObjectInstance* instance)
    : mInstance(instance), mOrient(true), mVerticalFlip(false), mHorizontalFlip(false), mRenderType(1),
      mShininess(0.5), mRoughness(700.0), mBrightness(0.0), mContrast(1.0), mKind(1), mDefinitionSize(100.0),
      mDefinitionName(instance->getZel()), mCurrentConfig(0) {
    ZelReadDelegateData(instance->getZel(), [&](const CZelXMLIO& io) {
        ZelGetBBInstanceData(io, instance->instanceData(), *this);
    });
}

void CZelBBObjectInstance::updateInstanceData() {
    CZelXMLIO io(mInstance->getZel());
    ZelPutBBInstanceData(io, mInstance->instanceData(), *this);
}

} // namespace KeZel
