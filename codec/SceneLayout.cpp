#include "codec/SceneLayout.h"

#include "codec/AnimationCodec.h"
#include "codec/BackgroundCodec.h"
#include "codec/BillboardCodec.h"
#include "codec/CameraCodec.h"
#include "codec/HeliodonCodec.h"
#include "codec/LayerCodec.h"
#include "codec/LightCodec.h"
#include "codec/ObjectCodec.h"
#include "codec/PanoramaCodec.h"
#include "codec/ParallelViewCodec.h"
#include "codec/PathCodec.h"
#include "codec/PropertyCodec.h"
#include "codec/RenderingCodec.h"
#include "codec/ScenarioCodec.h"
#include "codec/SkyCodec.h"
#include "codec/ViewObjectCodec.h"
#include "codec/ZelXMLIO.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/SceneContent.h"

namespace KeZel {

using KestraXML::XIXMLElement;

// New elements go to the end of the file node, behind the first four and whatever this
// library does not know; an element already there is replaced in place, so that writing
// twice gives the same bytes. Elements of entities this library does not hold yet stay
// as they are.
void ZelWriteScene(const CZelXMLIO& io, XIXMLElement* fileNode) {
    CZelSceneContent& scene = io.mZel->scene();
    // Old names are converted for good.
    CZelXMLIO::removeAll(fileNode, "Heliodon");
    CZelXMLIO::removeAll(fileNode, "Image");
    ZelPutObjectDefinitions(io, fileNode, *scene.mObjectDefinitions);
    ZelPutPreview(io, fileNode, *scene.mRenderingOpt);
    ZelPutHeliodons(io, fileNode, *scene.mHeliodons, *scene.mHeliodonOpt);
    ZelPutAmbient(io, fileNode, *scene.mAmbient);
    ZelPutAtmosphere(io, fileNode, *scene.mAtmosphere);
    ZelPutBackground(io, fileNode, *scene.mBackground);
    ZelPutProperties(io, fileNode, *scene.mProperties);
    ZelPutBillboards(io, fileNode, *scene.mBillboards);
    ZelPutLights(io, fileNode, *scene.mLights);
    ZelPutLightsGroups(io, fileNode, *scene.mLightsGroups);
    ZelPutPerspectiveViews(io, fileNode, *scene.mCameras, *scene.mPerspectiveRenderingOpt);
    ZelPutParallelViews(io, fileNode, *scene.mParallelViews, scene.mParallelRenderingOpt->viewOpt());
    ZelPutPanoramas(io, fileNode, *scene.mPanoramas, scene.mVRRenderingOpt->viewOpt());
    ZelPutAnimations(io, fileNode, *scene.mAnimations, *scene.mAnimationRenderingOpt);
    ZelPutViewObjects(io, fileNode, *scene.mViewObjects, *scene.mObjectRenderingOpt);
    ZelPutWorkingWindows(io, fileNode, *scene.mWorkingWindows);
    ZelPutObjectDefinition(io, fileNode, *scene.mObjectDefinition);
    ZelPutObjectInstances(io, fileNode, *scene.mObjectInstances);
    ZelPutScenarios(io, fileNode, *scene.mScenarios);
    ZelPut3DPaths(io, fileNode, *scene.m3DPaths);
    ZelPutGrounds(io, fileNode, *scene.mGrounds);
    ZelPutLayers(io, fileNode, *scene.mLayers);
    ZelPutLayersInfo(io, fileNode, *scene.mLayersInfo);
    CZelXMLIO::removeAll(fileNode, "Current.Id");
}

void ZelReadScene(const CZelXMLIO& io, XIXMLElement* fileNode) {
    CZEL* zel = io.mZel;
    CZelSceneContent& scene = zel->scene();
    ZelGetObjectDefinitions(io, fileNode, *scene.mObjectDefinitions);
    ZelGetPreview(io, fileNode, *scene.mRenderingOpt);
    // The old Image element holds the perspective options alone.
    if (!ZelGetOldImage(io, fileNode, *scene.mPerspectiveRenderingOpt))
        ZelGetPerspectiveViews(io, fileNode, *scene.mCameras, *scene.mPerspectiveRenderingOpt);
    // An old single Heliodon wins over the list.
    ZelGetHeliodons(io, fileNode, *scene.mHeliodons, *scene.mHeliodonOpt);
    ZelGetParallelViews(io, fileNode, *scene.mParallelViews, scene.mParallelRenderingOpt->viewOpt());
    ZelGetPanoramas(io, fileNode, *scene.mPanoramas, scene.mVRRenderingOpt->viewOpt());
    ZelGetAnimations(io, fileNode, *scene.mAnimations, *scene.mAnimationRenderingOpt);
    ZelGetViewObjects(io, fileNode, *scene.mViewObjects, *scene.mObjectRenderingOpt);
    ZelGetBillboards(io, fileNode, *scene.mBillboards);
    if (CZelXMLIO::find(fileNode, "Ambient")) {
        // A file of the full form.
        ZelGetSceneAmbient(io, fileNode, *scene.mAmbient);
        ZelGetSceneAtmosphere(io, fileNode, *scene.mAtmosphere);
        ZelGetSceneBackground(io, fileNode, *scene.mBackground);
        ZelGetProperties(io, fileNode, *scene.mProperties);
        ZelGetLights(io, fileNode, *scene.mLights);
        ZelGetLightsGroups(io, fileNode, *scene.mLightsGroups);
        ZelGetWorkingWindows(io, fileNode, *scene.mWorkingWindows);
    }
    ZelGetSceneInsertionObject(io, fileNode, *scene.mInsertionObject);
    ZelGetSceneObjectDefinition(io, fileNode, *scene.mObjectDefinition);
    ZelGetObjectInstances(io, fileNode, *scene.mObjectInstances);
    if (zel->isBefore202()) {
        // Scenarios older than 2.0.2 are thrown away.
        CZelXMLIO::removeAll(fileNode, "Scenarios");
    } else {
        ZelGetScenarios(io, fileNode, *scene.mScenarios);
        ZelGet3DPaths(io, fileNode, *scene.m3DPaths);
    }
    ZelGetGrounds(io, fileNode, *scene.mGrounds);
    ZelGetLayers(io, fileNode, *scene.mLayers);
    ZelGetLayersInfo(io, fileNode, *scene.mLayersInfo);
}

} // namespace KeZel
