// A manager, a document to write into, and helpers to look at what was written. Shared by
// the tests of objects and of scenarios.
#pragma once

#include "support/SceneFixture.h"

namespace ObjectsTest {

inline KeZel::CZelVector V(double x, double y, double z) {
    return KeZel::ZelVector(x, y, z);
}
using ZelTest::Same;
using Fixture = ZelTest::SceneFixture;

} // namespace ObjectsTest
