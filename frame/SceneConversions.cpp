// The passes that lift older files into today's model, and the legacy branch's readers.
// Each pass works on the entities it touches; a pass whose entities this library does
// not hold yet has nothing to do.
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/SceneContent.h"
#include "legacy/TokenReader.h"
#include "model/light/SunConversions.h"
#include "model/objects/ModelInstances.h"
#include "model/views/ViewConversions.h"

namespace KeZel {

void CZEL::readOptionFile(CTokenReader&) {
    Kestra::XThrow("Legacy option files can't be read by this library yet");
}

void CZEL::readDbFile(CTokenReader&) {
    Kestra::XThrow("Legacy geometry files can't be read by this library yet");
}

namespace {
CZelViewLists Views(CZelSceneContent& s) {
    return CZelViewLists{*s.mCameras, *s.mParallelViews, *s.mViewObjects, *s.mAnimations, *s.mPanoramas};
}
} // namespace

// In the old model the scene had one background and one atmosphere; now every view has
// its own.
void CZEL::convertOldSceneSettings() {
    ZelConvertOldSceneSettings(Views(*mScene), *mScene->mBackground, *mScene->mAtmosphere);
}

// An old file from another creator may carry the sun as a light named "Sun".
void CZEL::fixSunLight() {
    ZelFixSunLight(isVantoriumFile(), *mScene->mHeliodons, *mScene->mLights);
}

// Views get the scene-wide options of their family.
void CZEL::convertOldViewSettings() {
    CZelSceneContent& s = *mScene;
    CZelFamilyOptions options{*s.mPerspectiveRenderingOpt, s.mParallelRenderingOpt->viewOpt(),
                              *s.mObjectRenderingOpt, *s.mAnimationRenderingOpt};
    ZelConvertOldViewSettings(Views(s), options, *s.mInsertionObject, *s.mHeliodons);
}

// The sun half; the old options come from the .opt reader.
void CZEL::convertLegacyOptions() {
    ZelConvertLegacySun(mScene->mOldHeliodonOpt.get(), *mScene->mHeliodons, *mScene->mHeliodonOpt);
}

// A scene's definitions hold one model, which an instance places.
void CZEL::fixModelInstances() {
    ZelFixModelInstances(*mScene->mObjectDefinitions, *mScene->mObjectInstances, mVersion);
}

} // namespace KeZel
