#include "frame/SceneContent.h"

#include "frame/CZEL.h"

namespace KeZel {

CZelSceneContent::CZelSceneContent(CZEL* zel) {
    mAmbient.reset(new CAmbiance(zel));
    mAtmosphere.reset(new CAtmosphere(zel));
    mBackground.reset(new CBackground(zel));
    mHeliodons.reset(new CHeliodonList(zel));
    mHeliodons->newZelObject(static_cast<unsigned int>(-1));
    mHeliodonOpt.reset(new CHeliodonOpt(zel));
    mRenderingOpt.reset(new CRenderingOpt(zel));
    mRenderingOpt->setTransparency(true);
    mVRRenderingOpt.reset(new CVRRenderingOpt(zel));
    mAnimationRenderingOpt.reset(new CAnimRenderingOpt(zel));
    mPerspectiveRenderingOpt.reset(new CAnimRenderingOpt(zel));
    mObjectRenderingOpt.reset(new CAnimRenderingOpt(zel));
    mCameras.reset(new CCameraList(zel));
    mProperties.reset(new CPropertyList(zel));
    mLights.reset(new CLightList(zel));
    mViewObjects.reset(new CViewObjectList(zel));
    mBillboards.reset(new CBillboardList(zel));
    mInsertionObject.reset(new CZelInsertionObject(zel));
    mParallelViews.reset(new CParallelViewList(zel));
    mParallelRenderingOpt.reset(new CParallelViewRenderingOpt(zel));
    mWorkingWindows.reset(new CParallelViewList(zel));
    mLightsGroups.reset(new CLightsGroupList(zel));
    mLayersInfo.reset(new CZelLayerInfo(zel));
    mObjectDefinitions.reset(new CObjectDefinitionList(zel));
    mAnimations.reset(new CAnimationList(zel));
    mPanoramas.reset(new CPanoramaList(zel));
    mObjectDefinition.reset(new CZelZelObjectDefinition(zel));
    mObjectInstances.reset(new CObjectInstanceList(zel));
    mScenarios.reset(new CScenarioList(zel));
    m3DPaths.reset(new C3DPathList(zel));
    mShaders.reset(new CPropertyList(zel));
    mEnvironments.reset(new CEnvironmentList(zel));
    mGrounds.reset(new CGroundList(zel));
    mLayers.reset(new CLayerList(zel));
    mLightsGroups->newZelObject(static_cast<unsigned int>(-1));
    mAnimations->newZelObject(static_cast<unsigned int>(-1));
    mPanoramas->newZelObject(static_cast<unsigned int>(-1));
}

CZelSceneContent::~CZelSceneContent() {
    mAmbient.reset();
    mAtmosphere.reset();
    mBackground.reset();
    mHeliodons.reset();
    mHeliodonOpt.reset();
    mRenderingOpt.reset();
    mVRRenderingOpt.reset();
    mAnimationRenderingOpt.reset();
    mPerspectiveRenderingOpt.reset();
    mObjectRenderingOpt.reset();
    mOldHeliodonOpt.reset();
    mCameras.reset();
    mProperties.reset();
    mLights.reset();
    mViewObjects.reset();
    mBillboards.reset();
    mParallelViews.reset();
    mWorkingWindows.reset();
    mLightsGroups.reset();
    mAnimations.reset();
    mPanoramas.reset();
    mLayers.reset();
    mObjectDefinitions.reset();
    mObjectDefinition.reset();
    mObjectInstances.reset();
    mScenarios.reset();
    m3DPaths.reset();
    mInsertionObject.reset();
    mLayersInfo.reset();
    mParallelRenderingOpt.reset();
    mShaders.reset();
    mEnvironments.reset();
    mGrounds.reset();
}

} // namespace KeZel
