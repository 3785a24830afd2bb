#include "model/objects/ModelInstances.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"

namespace KeZel {

void ZelFixModelInstances(CObjectDefinitionList& definitions, CObjectInstanceList& instances,
                          const CZelVersion& version) {
    if (version < CZelVersion(3, 0, 1)) {
        if (definitions.getCount() == 0) Kestra::XAssertPointer(definitions.newItem());
        const CZelUUID model = *definitions.at(0)->getUUID();
        if (instances.getCount() == 0) {
            CZelObjectInstance* instance = instances.newItem();
            if (!instance) Kestra::XThrow("Can't create instance for the model");
            instance->setClass("ModelObject");
            instance->setId(model);
            if (IZelInternalComponentInstance* component = instance->getInternalComponentInstance())
                component->setComponentUUID(model);
        } else {
            CZelObjectInstance* instance = instances.at(0);
            if (instance->getId()->isNull()) instance->setId(model);
            IZelInternalComponentInstance* component = instance->getInternalComponentInstance();
            if (component && component->getComponentUUID()->isNull()) component->setComponentUUID(model);
        }
    }
    if (definitions.getCount()) {
        if (CZEL* zel = definitions.getZel()) zel->clearGeometryBlocks();
    }
}

} // namespace KeZel
