// The light-like entries of an object: the delegate of a definition of the class
// "LightObject" and that of its instances. Each holds one light.
// Public header, C++11. Slot order is part of the interface.
//
// Operation order chosen here: getLight (plain, then const), destructor, for both.
#ifndef ZEL_MODEL_OBJECTS_IZELOBJECTLIGHT_H
#define ZEL_MODEL_OBJECTS_IZELOBJECTLIGHT_H

#include "foundation/Visibility.h"

namespace KeZel {

class CZelLight;

class ZEL_API IZelObjectLight {
public:
    virtual CZelLight* getLight() = 0;
    virtual const CZelLight* getLight() const = 0;
    virtual ~IZelObjectLight() {}
};

class ZEL_API IZelObjectLightRef {
public:
    virtual CZelLight* getLight() = 0;
    virtual const CZelLight* getLight() const = 0;
    virtual ~IZelObjectLightRef() {}
};

} // namespace KeZel

#endif
