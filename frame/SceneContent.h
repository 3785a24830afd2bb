// What a scene holds beside its geometry: every singleton and list the manager hands out,
// made and destroyed in a fixed order.
#pragma once

#include "frame/ObjectLists.h"
#include "model/geometry/Property.h"
#include "model/light/Background.h"
#include "model/light/Heliodon.h"
#include "model/light/HeliodonOpt.h"
#include "model/light/Light.h"
#include "model/light/Sky.h"
#include "model/animation/Path3D.h"
#include "model/animation/Scenario.h"
#include "model/objects/Billboard.h"
#include "model/objects/InsertionObject.h"
#include "model/objects/Layer.h"
#include "model/objects/ObjectDefinition.h"
#include "model/objects/ObjectInstance.h"
#include "model/views/Animation.h"
#include "model/views/Camera.h"
#include "model/views/Panorama.h"
#include "model/views/ParallelView.h"
#include "model/views/RenderingOpt.h"
#include "model/views/ViewObject.h"

#include <memory>

namespace KeZel {

class CZEL;

struct CZelSceneContent {
    explicit CZelSceneContent(CZEL* zel);
    ~CZelSceneContent();
    CZelSceneContent(const CZelSceneContent&) = delete;
    CZelSceneContent& operator=(const CZelSceneContent&) = delete;

    std::unique_ptr<CAmbiance> mAmbient;
    std::unique_ptr<CAtmosphere> mAtmosphere;
    std::unique_ptr<CBackground> mBackground;
    std::unique_ptr<CHeliodonList> mHeliodons;
    std::unique_ptr<CHeliodonOpt> mHeliodonOpt;
    std::unique_ptr<CRenderingOpt> mRenderingOpt;
    std::unique_ptr<CVRRenderingOpt> mVRRenderingOpt;
    std::unique_ptr<CAnimRenderingOpt> mAnimationRenderingOpt;
    std::unique_ptr<CAnimRenderingOpt> mPerspectiveRenderingOpt;
    std::unique_ptr<CAnimRenderingOpt> mObjectRenderingOpt;
    std::unique_ptr<CCameraList> mCameras;
    std::unique_ptr<CPropertyList> mProperties;
    std::unique_ptr<CLightList> mLights;
    std::unique_ptr<CViewObjectList> mViewObjects;
    std::unique_ptr<CBillboardList> mBillboards;
    std::unique_ptr<CZelInsertionObject> mInsertionObject;
    std::unique_ptr<CParallelViewList> mParallelViews;
    std::unique_ptr<CParallelViewRenderingOpt> mParallelRenderingOpt;
    std::unique_ptr<CParallelViewList> mWorkingWindows;
    std::unique_ptr<CLightsGroupList> mLightsGroups;
    std::unique_ptr<CZelLayerInfo> mLayersInfo;
    std::unique_ptr<CObjectDefinitionList> mObjectDefinitions;
    std::unique_ptr<CAnimationList> mAnimations;
    std::unique_ptr<CPanoramaList> mPanoramas;
    std::unique_ptr<CLayerList> mLayers;
    // The object that a .zof file defines.
    std::unique_ptr<CZelZelObjectDefinition> mObjectDefinition;
    std::unique_ptr<CObjectInstanceList> mObjectInstances;
    std::unique_ptr<CScenarioList> mScenarios;
    std::unique_ptr<C3DPathList> m3DPaths;
    std::unique_ptr<CPropertyList> mShaders;
    std::unique_ptr<CEnvironmentList> mEnvironments;
    std::unique_ptr<CGroundList> mGrounds;
    // Made on demand by the .opt reader; read by the conversion of legacy options.
    std::unique_ptr<COldHeliodonOpt> mOldHeliodonOpt;
};

} // namespace KeZel
