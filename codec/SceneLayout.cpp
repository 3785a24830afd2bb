#include "codec/SceneLayout.h"

#include "codec/AnimationCodec.h"
#include "codec/BackgroundCodec.h"
#include "codec/CameraCodec.h"
#include "codec/HeliodonCodec.h"
#include "codec/LayerCodec.h"
#include "codec/LightCodec.h"
#include "codec/PanoramaCodec.h"
#include "codec/ParallelViewCodec.h"
#include "codec/PropertyCodec.h"
#include "codec/RenderingCodec.h"
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
    ZelPutPreview(io, fileNode, *scene.mRenderingOpt);
    ZelPutHeliodons(io, fileNode, *scene.mHeliodons, *scene.mHeliodonOpt);
    ZelPutAmbient(io, fileNode, *scene.mAmbient);
    ZelPutAtmosphere(io, fileNode, *scene.mAtmosphere);
    ZelPutBackground(io, fileNode, *scene.mBackground);
    ZelPutProperties(io, fileNode, *scene.mProperties);
    ZelPutLights(io, fileNode, *scene.mLights);
    ZelPutLightsGroups(io, fileNode, *scene.mLightsGroups);
    ZelPutPerspectiveViews(io, fileNode, *scene.mCameras, *scene.mPerspectiveRenderingOpt);
    ZelPutParallelViews(io, fileNode, *scene.mParallelViews, scene.mParallelRenderingOpt->viewOpt());
    ZelPutPanoramas(io, fileNode, *scene.mPanoramas, scene.mVRRenderingOpt->viewOpt());
    ZelPutAnimations(io, fileNode, *scene.mAnimations, *scene.mAnimationRenderingOpt);
    ZelPutViewObjects(io, fileNode, *scene.mViewObjects, *scene.mObjectRenderingOpt);
    ZelPutWorkingWindows(io, fileNode, *scene.mWorkingWindows);
    ZelPutGrounds(io, fileNode, *scene.mGrounds);
    ZelPutLayers(io, fileNode, *scene.mLayers);
    ZelPutLayersInfo(io, fileNode, *scene.mLayersInfo);
    CZelXMLIO::removeAll(fileNode, "Current.Id");
}

void ZelReadScene(const CZelXMLIO& io, XIXMLElement* fileNode) {
    CZEL* zel = io.mZel;
    CZelSceneContent& scene = zel->scene();
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
    // Scenarios older than 2.0.2 are thrown away.
    if (zel->isBefore202()) CZelXMLIO::removeAll(fileNode, "Scenarios");
    ZelGetGrounds(io, fileNode, *scene.mGrounds);
    ZelGetLayers(io, fileNode, *scene.mLayers);
    ZelGetLayersInfo(io, fileNode, *scene.mLayersInfo);
}

} // namespace KeZel
