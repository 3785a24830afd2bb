// A manager to build views against, a document to write into, and the text of what was
// written. Shared by the views and the objects test programs.
#pragma once

#include "support/SceneFixture.h"

namespace ViewsTest {

using Fixture = ZelTest::SceneFixture;
using ZelTest::Id;
using ZelTest::Same;

inline KeZel::CZelVector Vec(double x, double y, double z) {
    return KeZel::ZelVector(x, y, z);
}

} // namespace ViewsTest
