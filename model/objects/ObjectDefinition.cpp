#include "model/objects/ObjectDefinition.h"

#include "codec/ObjectCodec.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "model/objects/AnimatedObject.h"
#include "model/objects/ObjectLight.h"
#include "model/objects/Plant.h"

#include <cstring>

namespace KeZel {

using KestraXML::XIXMLElement;

// ---- CObjectSetup

CObjectSetup::CObjectSetup(CObjectSetupList* list)
    : mUUID(NewZelUUID()), mName(list ? list->getZel() : nullptr) {}

// ---- CZelZelObjectDefinition

CZelZelObjectDefinition::CZelZelObjectDefinition(CZEL* zel)
    : mZel(zel), mUUID(NewZelUUID()), mClass("ModelObject"), mAnchor(), mUp(), mProperties(zel),
      mPlacement(1), mInitialAngle(0.0), mLightGroupId(), mModelRotation(), mModelPosition(), mModelOrigin(0),
      mName(zel), mDescription1(zel), mDescription2(zel), mComment(zel), mUIValue(-1), mSetups(this),
      mGeometryLevel(0) {
    Kestra::XAssertPointer(zel, "CZelZelObjectDefinition::CZelZelObjectDefinition: no manager");
    mUp.z = 1.0;
    for (int i = 0; i < 16; ++i) mMatrix[i] = (i % 5 == 0) ? 1.0 : 0.0;
    CZelXMLIO::add(mData.GetRoot(), "Object.Data");
    CZelXMLIO::add(mData.GetRoot(), "Instance.Data");
}

CZelZelObjectDefinition::CZelZelObjectDefinition(CObjectDefinitionList* list)
    : CZelZelObjectDefinition(list ? list->getZel() : nullptr) {}

CZelZelObjectDefinition::~CZelZelObjectDefinition() {
    // The delegate goes before the data it reads.
    mDelegate.reset();
}

const char* CZelZelObjectDefinition::getDefaultName() const {
    const char* text = mName.getCurrentText();
    return text ? text : "";
}

void CZelZelObjectDefinition::setClass(const char* className) {
    if (!className) return;
    mDelegate.reset();
    mClass = className;
    if (mClass == "3DPlant")
        mDelegate.reset(new C3DPlant(this));
    else if (mClass == "LightObject")
        mDelegate.reset(new CZelObjectLight(this));
    else if (mClass == "AnimatedObject")
        mDelegate.reset(new CZelAnimatedObject(this));
}

void CZelZelObjectDefinition::setModelRotationMatrix(const double* matrix) {
    if (matrix) std::memcpy(mMatrix, matrix, sizeof mMatrix);
}

void CZelZelObjectDefinition::updateObjectData() {
    if (mDelegate) mDelegate->updateObjectData();
}

XIXMLElement* CZelZelObjectDefinition::dataChild(const char* name) const {
    XIXMLElement* root = mData.GetRoot();
    return root->FindElement(root->GetKey(name));
}

const XIXMLElement* CZelZelObjectDefinition::getObjectData() const {
    return dataChild("Object.Data");
}

XIXMLElement* CZelZelObjectDefinition::getObjectData() {
    return dataChild("Object.Data");
}

const XIXMLElement* CZelZelObjectDefinition::getInstanceData() const {
    return dataChild("Instance.Data");
}

XIXMLElement* CZelZelObjectDefinition::getInstanceData() {
    return dataChild("Instance.Data");
}

XIXMLElement* CZelZelObjectDefinition::objectData() {
    return CZelXMLIO::findOrAdd(mData.GetRoot(), "Object.Data");
}

const IZel3DPlant* CZelZelObjectDefinition::get3DPlant() const {
    return dynamic_cast<const IZel3DPlant*>(mDelegate.get());
}

IZel3DPlant* CZelZelObjectDefinition::get3DPlant() {
    return dynamic_cast<IZel3DPlant*>(mDelegate.get());
}

const IZelObjectLight* CZelZelObjectDefinition::getObjectLight() const {
    return dynamic_cast<const IZelObjectLight*>(mDelegate.get());
}

IZelObjectLight* CZelZelObjectDefinition::getObjectLight() {
    return dynamic_cast<IZelObjectLight*>(mDelegate.get());
}

const IZelAnimatedObject* CZelZelObjectDefinition::getAnimatedObject() const {
    return dynamic_cast<const IZelAnimatedObject*>(mDelegate.get());
}

IZelAnimatedObject* CZelZelObjectDefinition::getAnimatedObject() {
    return dynamic_cast<IZelAnimatedObject*>(mDelegate.get());
}

XIXMLElement* CZelZelObjectDefinition::putInXML(XIXMLElement* parent) {
    CZelXMLIO io(mZel);
    return io.guardPut("CZelZelObjectDefinition::putInXML", [&] {
        if (mClass == "ModelObject") return ZelAddInternalComponent(io, parent, *this);
        return ZelAddObjectDefinition(io, parent, *this);
    });
}

bool CZelZelObjectDefinition::initWithXML(XIXMLElement* parent) {
    CZelXMLIO io(mZel);
    return io.guardInit("CZelZelObjectDefinition::initWithXML", [&] {
        if (mClass == "ModelObject") {
            XIXMLElement* component = CZelXMLIO::find(parent, "InternalComponentDefinition");
            if (!component)
                Kestra::XThrow(
                    "CZelZelObjectDefinition::initWithXML : cannot find internal component definition node");
            ZelGetInternalComponent(io, component, *this);
        } else {
            ZelGetObjectDefinitionWithUUID(io, CZelXMLIO::need(parent, "Object.Definition"), *this);
        }
        return true;
    });
}

} // namespace KeZel
