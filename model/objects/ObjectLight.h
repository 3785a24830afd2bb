// Object lights: the delegate of a "LightObject" definition and that of its instances.
// Each holds one light, kept as a Light element in the owner's data element.
#pragma once

#include "model/light/Light.h"
#include "model/objects/IZelObjectLight.h"
#include "model/objects/ObjectDefinition.h"
#include "model/objects/ObjectInstance.h"

namespace KeZel {

class CZelObjectLight : public TZelFrontier<IZelObjectLight>, public CZelZelObjectDefinition::IDelegate {
public:
    // Reads the Light of the definition's Object.Data, when there is one.
    explicit CZelObjectLight(CZelZelObjectDefinition* definition);

    CZelLight* getLight() override { return &mLight; }
    const CZelLight* getLight() const override { return &mLight; }
    void updateObjectData() override;

    CLight& light() { return mLight; }

private:
    CZelZelObjectDefinition* mDefinition;
    CLight mLight;
};

class CZelObjectLightRef : public TZelFrontier<IZelObjectLightRef>, public CZelObjectInstance::IDelegate {
public:
    // Reads the Light of the instance's Instance.Data, when there is one.
    explicit CZelObjectLightRef(CZelObjectInstance* instance);

    CZelLight* getLight() override { return &mLight; }
    const CZelLight* getLight() const override { return &mLight; }
    void updateInstanceData() override;

    CLight& light() { return mLight; }

private:
    CZelObjectInstance* mInstance;
    CLight mLight;
};

} // namespace KeZel
