#include "model/objects/AnimatedObject.h"

#include "codec/ObjectCodec.h"
#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

CZelTake::CZelTake(CTakeList* list)
    : mDuration(0), mFPS(24), mName(list ? list->getZel() : nullptr), mZMin(0.0), mType(0), mZAngle(0.0) {}

CZelAnimatedObject::CZelAnimatedObject(CZelZelObjectDefinition* definition)
    : mDefinition(definition), mExternalFileType(0), mIndex(0), mTakes(this) {
    ZelReadDelegateData(definition->getZel(), [&](const CZelXMLIO& io) {
        ZelGetAnimatedObjectData(io, definition->objectData(), *this);
    });
}

const char* CZelAnimatedObject::getExternalFile() const {
    const XIXMLElement* data = mDefinition->getObjectData();
    const char* text = data ? CZelXMLIO::textOf(CZelXMLIO::find(data, "External.File")) : nullptr;
    return text ? text : "";
}

void CZelAnimatedObject::setExternalFile(const char* file) {
    XIXMLElement* e = CZelXMLIO::findOrAdd(mDefinition->objectData(), "External.File");
    if (KestraXML::XIXMLData* data = e->GetData())
        data->SetText(file ? file : "");
    else
        e->NewData(file ? file : "");
}

void CZelAnimatedObject::updateObjectData() {
    CZelXMLIO io(getZel());
    ZelPutAnimatedObjectData(io, mDefinition->objectData(), *this);
}

CZelAnimatedObjectInstance::CZelAnimatedObjectInstance(CZelObjectInstance* instance)
    : CZelZelObjectInstance(instance), mCurrentFrame(0), mCurrentTake(0), mRealDuration(0), mStartFrame(0),
      mOverloaded(instance->getZel()) {
    ZelReadDelegateData(instance->getZel(), [&](const CZelXMLIO& io) {
        ZelGetAnimatedInstanceData(io, instance->instanceData(), *this);
    });
}

void CZelAnimatedObjectInstance::updateInstanceData() {
    CZelZelObjectInstance::updateInstanceData();
    CZelXMLIO io(mInstance->getZel());
    ZelPutAnimatedInstanceData(io, mInstance->instanceData(), *this);
}

} // namespace KeZel
