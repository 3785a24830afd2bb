// The light tests build on the shared scene fixture.
#pragma once

#include "support/SceneFixture.h"

namespace LightTest {
using Fixture = ZelTest::SceneFixture;
} // namespace LightTest
