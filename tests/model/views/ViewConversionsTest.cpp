#include "ViewsFixture.h"

#include "model/views/ViewConversions.h"

using namespace KeZel;
using namespace ViewsTest;

namespace {

struct Scene {
    CCameraList cameras;
    CParallelViewList parallelViews;
    CViewObjectList viewObjects;
    CAnimationList animations;
    CPanoramaList panoramas;
    CZelViewLists lists;

    explicit Scene(CZEL* zel)
        : cameras(zel), parallelViews(zel), viewObjects(zel), animations(zel),
          panoramas(zel), lists{cameras, parallelViews, viewObjects, animations, panoramas} {
        cameras.newItem();
        parallelViews.newItem();
        viewObjects.newItem();
        animations.newItem()->paths().newItem();
        panoramas.newItem()->nodes().newItem();
    }
    std::vector<CZelViewInfo*> infos() {
        return {&cameras.at(0)->viewInfo(), &parallelViews.at(0)->viewInfo(), &viewObjects.at(0)->viewInfo(),
                &animations.at(0)->paths().at(0)->viewInfo(), &panoramas.at(0)->nodes().at(0)->viewInfo()};
    }
};

} // namespace

TEST(ViewConversions, OldBackgroundKindsMapToPictures) {
    struct {
        int image, color, kind;
        bool is3D;
    } table[] = {
        {eBackgroundImageNone, eBackgroundColorNone, eBackgroundPictureNone, false},
        {eBackgroundImageStretched, eBackgroundColorNone, eBackgroundPicture2D, false},
        {eBackgroundImage3D, eBackgroundColorNone, eBackgroundPicture2D, true},
        {eBackgroundImageMotif, eBackgroundColorNone, eBackgroundPicture2D, false},
        {eBackgroundImageQTVRCubic, eBackgroundColorNone, eBackgroundPictureMovie3D, true},
        {eBackgroundImage3D, eBackgroundColorGraduated, eBackgroundPictureUserGradient, true},
        {eBackgroundImageNone, eBackgroundColorGraduatedLine, eBackgroundPictureUserGradient, false}};
    for (const auto& row : table) {
        CBackground b;
        b.setImageType(row.image);
        b.setColorType(row.color);
        b.setURL("sky.jpg");
        CZelBackgroundPicture p;
        ZelPictureFromBackground(b, p);
        EXPECT_EQ(p.getType(), row.kind) << row.image << " " << row.color;
        EXPECT_EQ(p.is3D(), row.is3D) << row.image << " " << row.color;
        EXPECT_STREQ(p.getURL(), "sky.jpg");
    }
}

TEST(ViewConversions, EveryViewTakesTheSceneSettings) {
    Fixture f;
    Scene scene(&f.zel);
    CBackground background(&f.zel);
    background.setImageType(eBackgroundImageStretched);
    background.setColorType(eBackgroundColorNone);
    background.setSecondColor(ZelRGB(9, 8, 7));
    CAtmosphere atmosphere(&f.zel);
    atmosphere.setUsed(true);
    atmosphere.setNoise(0.3);
    ZelConvertOldSceneSettings(scene.lists, background, atmosphere);
    for (CZelViewInfo* info : scene.infos()) {
        EXPECT_EQ(info->background().getImageType(), eBackgroundImageStretched);
        EXPECT_EQ(info->backgroundPicture().getType(), eBackgroundPicture2D);
        EXPECT_EQ(info->backgroundPicture().getSecondColor().mGreen, 8);
        EXPECT_TRUE(info->atmosphere().isUsed());
        EXPECT_EQ(info->atmosphere().getNoise(), 0.3);
    }

    CHeliodonList heliodons(&f.zel);
    CHeliodon& sun = *heliodons.newItem();
    sun.setName("Sun 1");
    CZelInsertionObject insertion(&f.zel);
    insertion.setAxesPosition(1, {0.5, 0.25});
    insertion.setSizeAxis(2);
    CAnimRenderingOpt perspective(&f.zel), parallel(&f.zel), objects(&f.zel), animations(&f.zel);
    perspective.rendering().setWidth(11);
    parallel.rendering().setWidth(22);
    objects.rendering().setWidth(33);
    animations.rendering().setWidth(44);
    CZelFamilyOptions options{perspective, parallel, objects, animations};

    sun.setActive(false);
    ZelConvertOldViewSettings(scene.lists, options, insertion, heliodons);
    for (CZelViewInfo* info : scene.infos()) EXPECT_STREQ(info->getHeliodonName(), "");
    sun.setActive(true);
    ZelConvertOldViewSettings(scene.lists, options, insertion, heliodons);
    std::vector<CZelViewInfo*> infos = scene.infos();
    for (size_t i = 0; i < 4; ++i) EXPECT_STREQ(infos[i]->getHeliodonName(), "Sun 1") << i;
    CCamera& camera = *scene.cameras.at(0);
    EXPECT_EQ(camera.insertionObject().getAxesPosition(1)->y, 0.25);
    EXPECT_EQ(camera.insertionObject().getSizeAxis(), 0); // positions only
    EXPECT_EQ(camera.viewOpt().rendering().getWidth(), 11);
    EXPECT_EQ(scene.parallelViews.at(0)->getViewOpt()->getRenderingOpt()->getWidth(), 22);
    EXPECT_EQ(scene.viewObjects.at(0)->viewOpt().rendering().getWidth(), 33);
    EXPECT_EQ(scene.animations.at(0)->viewOpt().rendering().getWidth(), 44);
}
