#include "model/light/Light.h"

#include "frame/ValueHelpers.h"
#include "codec/LightCodec.h"
#include "frame/CZEL.h"
#include "model/light/Sky.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {} // namespace

CZelUUID ZelDefaultIES() {
    return ZelUUIDFromText("D174E7C83EF6C841BB95ACAE11258616");
}

// ---- CLight

CLight::CLight(CZEL* zel)
    : mZel(zel), mType(eLightPoint), mActive(true), mColor(ZelRGB(127, 127, 127)), mPower(3.0),
      mDistanceNear(0.0), mDistanceFar(0.0), mPosition(), mTarget(), mConeAngle(20.0), mSharpness(0.5),
      mShadowType(eLightShadowNone), mShadowPower(0.1), mMapSize(0), mBias(0.3), mGlobalIllumination(false),
      mGlobalIlluminationPower(0.5), mGlobalIlluminationQuality(0), mLocked(false), mUIValue(0),
      mGroups(this), mRadiosity(true), mUUID(NewZelUUID()), mTargetType(eLightTargetFixedVertex), mObjectId(),
      mIES(ZelDefaultIES()) {
    Kestra::XAssertPointer(zel, "CLight::CLight: no manager");
    // Up is Z for the library; a client of the old convention has Y up.
    mPosition.x = 200.0;
    mPosition.y = 200.0;
    mPosition.z = -200.0;
    zel->exportPoint(mPosition);
}

void CLight::setPower(double power) {
    mPower = ZelClip(power, 1.0, 1000000.0);
}

void CLight::setConeAngle(double angle) {
    mConeAngle = ZelClip(angle, 0.0, 360.0);
}

void CLight::setSharpness(double sharpness) {
    mSharpness = ZelClip(sharpness, 0.0, 1.0);
}

void CLight::setShadowPower(double power) {
    mShadowPower = ZelClip(power, 0.0, 1.0);
}

void CLight::setMapSize(int size) {
    mMapSize = size < 0 ? 0 : (size > 13 ? 13 : size);
}

void CLight::setBias(double bias) {
    mBias = ZelClip(bias, 0.0, 1.0);
}

void CLight::setTargetType(int type) {
    mTargetType = (type == eLightTargetOnObject) ? eLightTargetOnObject : eLightTargetFixedVertex;
}

void CLight::getIES(CZelUUID* ies) const {
    if (ies) *ies = mIES;
}

XIXMLElement* CLight::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelLight::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddLight(io, parent, *this); });
}

bool CLight::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelLight::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetLight(io, CZelXMLIO::need(parent, "Light"), *this);
        return true;
    });
}

// ---- CZelLightsGroup

CZelLightsGroup::CZelLightsGroup(CZEL* zel) : mZel(zel), mID(NewZelUUID()), mUIValue(0) {
    Kestra::XAssertPointer(zel, "CZelLightsGroup::CZelLightsGroup: no manager");
}

XIXMLElement* CZelLightsGroup::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelLightsGroup::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddLightsGroup(io, parent, *this); });
}

bool CZelLightsGroup::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelLightsGroup::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetLightsGroup(io, CZelXMLIO::need(parent, "Lights.Group"), *this);
        return true;
    });
}

} // namespace KeZel
