// The passes that lift older files into today's model, and the legacy branch's readers.
// Each pass works on the entities it touches; a pass whose entities this library does
// not hold yet has nothing to do.
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "legacy/TokenReader.h"

namespace KeZel {

void CZEL::readOptionFile(CTokenReader&) {
    Kestra::XThrow("Legacy option files can't be read by this library yet");
}

void CZEL::readDbFile(CTokenReader&) {
    Kestra::XThrow("Legacy geometry files can't be read by this library yet");
}

// Views get the scene's background and atmosphere; no view is held yet.
void CZEL::convertOldSceneSettings() {}

// Needs the heliodons and the lights.
void CZEL::fixSunLight() {}

// Views get the scene-wide options; no view is held yet.
void CZEL::convertOldViewSettings() {}

// Needs the old options of the .opt reader.
void CZEL::convertLegacyOptions() {}

// Needs the object definitions and instances.
void CZEL::fixModelInstances() {}

} // namespace KeZel
