#include "model/objects/ObjectLight.h"

#include "codec/ObjectCodec.h"
#include "frame/CZEL.h"

namespace KeZel {

CZelObjectLight::CZelObjectLight(CZelZelObjectDefinition* definition)
    : mDefinition(definition), mLight(definition->getZel()) {
    ZelReadDelegateData(definition->getZel(),
                        [&](const CZelXMLIO& io) { ZelGetLightData(io, definition->objectData(), mLight); });
}

void CZelObjectLight::updateObjectData() {
    CZelXMLIO io(mDefinition->getZel());
    ZelPutLightData(io, mDefinition->objectData(), mLight);
}

CZelObjectLightRef::CZelObjectLightRef(CZelObjectInstance* instance)
    : mInstance(instance), mLight(instance->getZel()) {
    ZelReadDelegateData(instance->getZel(),
                        [&](const CZelXMLIO& io) { ZelGetLightData(io, instance->instanceData(), mLight); });
}

void CZelObjectLightRef::updateInstanceData() {
    CZelXMLIO io(mInstance->getZel());
    ZelPutLightData(io, mInstance->instanceData(), mLight);
}

} // namespace KeZel
