// Small value makers and the clip that the entities' setters share.
#pragma once

#include "frame/ZelTypes.h"

namespace KeZel {

// `value` brought into lo .. hi; a NaN stays as it came.
template <class T> inline T ZelClip(T value, T lo, T hi) {
    return value < lo ? lo : (value > hi ? hi : value);
}

inline CZelVector ZelVector(double x, double y, double z) {
    CZelVector v = {x, y, z};
    return v;
}

inline CZelColor ZelRGB(unsigned char r, unsigned char g, unsigned char b) {
    CZelColor c = {0, r, g, b};
    return c;
}

} // namespace KeZel
