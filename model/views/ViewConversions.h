// The passes that lift view settings of older files into today's model, where each view
// owns its background, atmosphere, options and sun.
//
//   ZelConvertOldSceneSettings  before the entities are read: every view takes the scene's
//                               background and atmosphere, which older files kept once.
//   ZelConvertOldViewSettings   after they are read: every view takes the scene-wide
//                               options of its family, the insertion tool's positions
//                               and the active sun.
#pragma once

#include "frame/ObjectLists.h"
#include "model/light/Background.h"
#include "model/light/Heliodon.h"
#include "model/light/Sky.h"
#include "model/objects/InsertionObject.h"
#include "model/views/Animation.h"
#include "model/views/Camera.h"
#include "model/views/Panorama.h"
#include "model/views/ParallelView.h"
#include "model/views/RenderingOpt.h"
#include "model/views/ViewObject.h"

namespace KeZel {

// The view lists of a scene that the passes walk.
struct CZelViewLists {
    CCameraList& mCameras;
    CParallelViewList& mParallelViews;
    CViewObjectList& mViewObjects;
    CAnimationList& mAnimations;
    CPanoramaList& mPanoramas;
};

// Gives the view settings the scene's background (copied, and taken as the background
// picture) and the scene's atmosphere, field by field.
void ZelTakeSceneSettings(CZelViewInfo& info, const CBackground& background, const CAtmosphere& atmosphere);

// For every camera, parallel view, view object, path of every animation and node of
// every panorama.
void ZelConvertOldSceneSettings(const CZelViewLists& views, const CBackground& background,
                                const CAtmosphere& atmosphere);

// The scene-wide options of each family, in the manager's terms.
struct CZelFamilyOptions {
    const CAnimRenderingOpt& mPerspective;
    const CAnimRenderingOpt& mParallel;
    const CAnimRenderingOpt& mViewObject;
    const CAnimRenderingOpt& mAnimation;
};

// Cameras take the insertion tool's positions; cameras, parallel views, view objects and
// animations take the options of their family; and when the first heliodon is on, the
// view settings of every camera, parallel view, view object and camera path name it.
void ZelConvertOldViewSettings(const CZelViewLists& views, const CZelFamilyOptions& options,
                               const CZelInsertionObject& insertion, const CHeliodonList& heliodons);

} // namespace KeZel
