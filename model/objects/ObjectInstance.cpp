#include "model/objects/ObjectInstance.h"

#include "frame/ValueHelpers.h"
#include "codec/ObjectCodec.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "model/objects/AnimatedObject.h"
#include "model/objects/Billboard.h"
#include "model/objects/ObjectLight.h"
#include "model/objects/Plant.h"

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {} // namespace

// ---- CZelObjectInstance

CZelObjectInstance::CZelObjectInstance(CZEL* zel)
    : mZel(zel), mId(), mAttachId(), mTranslation(), mRotation(), mScale(ZelVector(1, 1, 1)),
      mNormal(ZelVector(0, 0, 1)), mTriangleId(0), mAnchorPosition(), mUpVector(ZelVector(0, 0, 1)),
      mPlacement(1), mInitialAngle(0.0), mUIValue(0), mCoordinatesLocked(false), mScaleLocked(false),
      mPathDirection(), mAnimationBehavior(0), mTarget(false), mTransparency(0.0), mLayerId() {
    Kestra::XAssertPointer(zel, "CZelObjectInstance::CZelObjectInstance: no manager");
    mTriangle[0] = ZelVector(0, 0, 0);
    mTriangle[1] = ZelVector(0, 1, 0);
    mTriangle[2] = ZelVector(1, 1, 0);
    mBox[0] = ZelVector(1, 1, 1);
    mBox[1] = ZelVector(-1, -1, -1);
    CZelXMLIO::add(mData.GetRoot(), "Instance.Data");
}

CZelObjectInstance::CZelObjectInstance(CObjectInstanceList* list)
    : CZelObjectInstance(list ? list->getZel() : nullptr) {}

CZelObjectInstance::~CZelObjectInstance() {
    mDelegate.reset();
}

void CZelObjectInstance::setClass(const char* className) {
    mDelegate.reset();
    mClass = className ? className : "";
    if (mClass == "ModelObject")
        mDelegate.reset(new CZelInternalComponentInstance(this));
    else if (mClass == "3DPlant")
        mDelegate.reset(new C3DPlantRef(this));
    else if (mClass == "ZelObject")
        mDelegate.reset(new CZelZelObjectInstance(this));
    else if (mClass == "Billboard")
        mDelegate.reset(new CZelBBObjectInstance(this));
    else if (mClass == "LightObject")
        mDelegate.reset(new CZelObjectLightRef(this));
    else if (mClass == "AnimatedObject")
        mDelegate.reset(new CZelAnimatedObjectInstance(this));
}

void CZelObjectInstance::setTriangleCoord(const CZelVector& corner0, const CZelVector& corner1,
                                          const CZelVector& corner2) {
    mTriangle[0] = corner0;
    mTriangle[1] = corner1;
    mTriangle[2] = corner2;
}

void CZelObjectInstance::setBoundingBox(const CZelVector& minimum, const CZelVector& maximum) {
    mBox[0] = minimum;
    mBox[1] = maximum;
}

void CZelObjectInstance::setTransparency(double transparency) {
    mTransparency = transparency < 0.0 ? 0.0 : (transparency > 1.0 ? 1.0 : transparency);
}

void CZelObjectInstance::updateInstanceData() {
    if (mDelegate) mDelegate->updateInstanceData();
}

const XIXMLElement* CZelObjectInstance::getInstanceData() const {
    XIXMLElement* root = mData.GetRoot();
    return root->FindElement(root->GetKey("Instance.Data"));
}

XIXMLElement* CZelObjectInstance::getInstanceData() {
    XIXMLElement* root = mData.GetRoot();
    return root->FindElement(root->GetKey("Instance.Data"));
}

XIXMLElement* CZelObjectInstance::instanceData() {
    return CZelXMLIO::findOrAdd(mData.GetRoot(), "Instance.Data");
}

const IZelZelObjectInstance* CZelObjectInstance::getZelObjectInstance() const {
    return dynamic_cast<const IZelZelObjectInstance*>(mDelegate.get());
}
IZelZelObjectInstance* CZelObjectInstance::getZelObjectInstance() {
    return dynamic_cast<IZelZelObjectInstance*>(mDelegate.get());
}
const IZel3DPlantRef* CZelObjectInstance::get3DPlantRef() const {
    return dynamic_cast<const IZel3DPlantRef*>(mDelegate.get());
}
IZel3DPlantRef* CZelObjectInstance::get3DPlantRef() {
    return dynamic_cast<IZel3DPlantRef*>(mDelegate.get());
}
const IZelBBObjectInstance* CZelObjectInstance::getBBObjectInstance() const {
    return dynamic_cast<const IZelBBObjectInstance*>(mDelegate.get());
}
IZelBBObjectInstance* CZelObjectInstance::getBBObjectInstance() {
    return dynamic_cast<IZelBBObjectInstance*>(mDelegate.get());
}
const IZelObjectLightRef* CZelObjectInstance::getObjectLightRef() const {
    return dynamic_cast<const IZelObjectLightRef*>(mDelegate.get());
}
IZelObjectLightRef* CZelObjectInstance::getObjectLightRef() {
    return dynamic_cast<IZelObjectLightRef*>(mDelegate.get());
}
const IZelAnimatedObjectInstance* CZelObjectInstance::getAnimatedObjectInstance() const {
    return dynamic_cast<const IZelAnimatedObjectInstance*>(mDelegate.get());
}
IZelAnimatedObjectInstance* CZelObjectInstance::getAnimatedObjectInstance() {
    return dynamic_cast<IZelAnimatedObjectInstance*>(mDelegate.get());
}
const IZelInternalComponentInstance* CZelObjectInstance::getInternalComponentInstance() const {
    return dynamic_cast<const IZelInternalComponentInstance*>(mDelegate.get());
}
IZelInternalComponentInstance* CZelObjectInstance::getInternalComponentInstance() {
    return dynamic_cast<IZelInternalComponentInstance*>(mDelegate.get());
}

XIXMLElement* CZelObjectInstance::putInXML(XIXMLElement* parent) {
    CZelXMLIO io(mZel);
    return io.guardPut("CZelObjectInstance::putInXML",
                       [&] { return ZelAddObjectInstance(io, parent, *this); });
}

bool CZelObjectInstance::initWithXML(XIXMLElement* parent) {
    CZelXMLIO io(mZel);
    return io.guardInit("CZelObjectInstance::initWithXML", [&] {
        ZelGetObjectInstance(io, CZelXMLIO::need(parent, "Object.Instance"), *this);
        return true;
    });
}

// ---- CZelInternalComponentInstance

CZelInternalComponentInstance::CZelInternalComponentInstance(CZelObjectInstance* instance)
    : mInstance(instance), mComponentUUID(), mProperties(instance->getZel()) {
    ZelReadDelegateData(instance->getZel(), [&](const CZelXMLIO& io) {
        ZelGetComponentInstanceData(io, instance->instanceData(), *this);
    });
}

void CZelInternalComponentInstance::updateInstanceData() {
    CZelXMLIO io(mInstance->getZel());
    ZelPutComponentInstanceData(io, mInstance->instanceData(), *this);
}

// ---- CZelZelObjectInstance

CZelZelObjectInstance::CZelZelObjectInstance(CZelObjectInstance* instance)
    : mInstance(instance), mCurrentOverload(), mProperties(instance->getZel()), mLights(instance->getZel()) {
    ZelReadDelegateData(instance->getZel(), [&](const CZelXMLIO& io) {
        ZelGetZelObjectInstanceData(io, instance->instanceData(), *this);
    });
}

const char* CZelZelObjectInstance::getUrl() const {
    const XIXMLElement* data = mInstance->getInstanceData();
    const char* text = data ? CZelXMLIO::textOf(CZelXMLIO::find(data, "Url")) : nullptr;
    return text ? text : "";
}

void CZelZelObjectInstance::setUrl(const char* url) {
    XIXMLElement* e = CZelXMLIO::findOrAdd(mInstance->instanceData(), "Url");
    if (KestraXML::XIXMLData* data = e->GetData())
        data->SetText(url ? url : "");
    else
        e->NewData(url ? url : "");
}

void CZelZelObjectInstance::updateInstanceData() {
    CZelXMLIO io(mInstance->getZel());
    ZelPutZelObjectInstanceData(io, mInstance->instanceData(), *this);
}

} // namespace KeZel
