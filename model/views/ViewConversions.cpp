#include "model/views/ViewConversions.h"

#include "frame/CZEL.h"

namespace KeZel {

namespace {

// Calls `f` on the view settings of every view that the old scene settings reach.
template <class F> void ForEachViewInfo(const CZelViewLists& views, F f) {
    for (unsigned int i = 0; i < views.mCameras.getCount(); ++i) f(views.mCameras.at(i)->viewInfo());
    for (unsigned int i = 0; i < views.mParallelViews.getCount(); ++i)
        f(views.mParallelViews.at(i)->viewInfo());
    for (unsigned int i = 0; i < views.mViewObjects.getCount(); ++i) f(views.mViewObjects.at(i)->viewInfo());
    for (unsigned int i = 0; i < views.mAnimations.getCount(); ++i) {
        CCameraPathList& paths = views.mAnimations.at(i)->paths();
        for (unsigned int j = 0; j < paths.getCount(); ++j) f(paths.at(j)->viewInfo());
    }
    for (unsigned int i = 0; i < views.mPanoramas.getCount(); ++i) {
        CPanoNodeList& nodes = views.mPanoramas.at(i)->nodes();
        for (unsigned int j = 0; j < nodes.getCount(); ++j) f(nodes.at(j)->viewInfo());
    }
}

} // namespace

void ZelTakeSceneSettings(CZelViewInfo& info, const CBackground& background, const CAtmosphere& atmosphere) {
    // The values, not the manager: each object keeps the one it was made with.
    CBackground& b = info.background();
    CZEL* zel = b.getZel();
    b = background;
    b.setZel(zel);
    ZelPictureFromBackground(background, info.backgroundPicture());
    CAtmosphere& a = info.atmosphere();
    zel = a.getZel();
    a = atmosphere;
    a.setZel(zel);
}

void ZelConvertOldSceneSettings(const CZelViewLists& views, const CBackground& background,
                                const CAtmosphere& atmosphere) {
    ForEachViewInfo(views, [&](CZelViewInfo& info) { ZelTakeSceneSettings(info, background, atmosphere); });
}

void ZelConvertOldViewSettings(const CZelViewLists& views, const CZelFamilyOptions& options,
                               const CZelInsertionObject& insertion, const CHeliodonList& heliodons) {
    // Views of older files name the sun only when it shines.
    const char* sun = nullptr;
    if (heliodons.getCount() > 0 && heliodons.at(0)->isActive() && *heliodons.at(0)->getName())
        sun = heliodons.at(0)->getName();
    auto takeSun = [&](CZelViewInfo& info) {
        if (sun) info.setHeliodonName(sun);
    };

    for (unsigned int i = 0; i < views.mCameras.getCount(); ++i) {
        CCamera& camera = *views.mCameras.at(i);
        camera.insertionObject().copyPositionsFrom(insertion);
        camera.viewOpt().copyValuesFrom(options.mPerspective);
        takeSun(camera.viewInfo());
    }
    for (unsigned int i = 0; i < views.mParallelViews.getCount(); ++i) {
        CZelParallelView& view = *views.mParallelViews.at(i);
        view.viewOpt().viewOpt().copyValuesFrom(options.mParallel);
        takeSun(view.viewInfo());
    }
    for (unsigned int i = 0; i < views.mViewObjects.getCount(); ++i) {
        CViewObject& view = *views.mViewObjects.at(i);
        view.viewOpt().copyValuesFrom(options.mViewObject);
        takeSun(view.viewInfo());
    }
    for (unsigned int i = 0; i < views.mAnimations.getCount(); ++i) {
        CZelAnimation& animation = *views.mAnimations.at(i);
        animation.viewOpt().copyValuesFrom(options.mAnimation);
        for (unsigned int j = 0; j < animation.paths().getCount(); ++j)
            takeSun(animation.paths().at(j)->viewInfo());
    }
}

} // namespace KeZel
