#include "ViewsFixture.h"

#include "codec/AnimationCodec.h"
#include "codec/CameraCodec.h"
#include "codec/LayerCodec.h"
#include "codec/PanoramaCodec.h"
#include "codec/ParallelViewCodec.h"
#include "codec/ViewObjectCodec.h"

using namespace KeZel;
using namespace ViewsTest;

namespace {

// Every view family of a scene, with one item each, and the layers.
struct Views {
    CCameraList cameras;
    CParallelViewList parallelViews, windows;
    CPanoramaList panoramas;
    CAnimationList animations;
    CViewObjectList viewObjects;
    CLayerList layers;
    CZelLayerInfo layerInfo;
    CAnimRenderingOpt options;

    explicit Views(CZEL* zel)
        : cameras(zel), parallelViews(zel), windows(zel), panoramas(zel), animations(zel), viewObjects(zel),
          layers(zel), layerInfo(zel), options(zel) {}
    void fill() {
        cameras.newItem()->setName("Camera");
        parallelViews.newItem()->setName("Plan");
        windows.newItem()->setName("Window");
        panoramas.newItem()->nodes().newItem();
        animations.newItem()->paths().newItem()->keys().newItem();
        viewObjects.newItem();
        layers.newItem()->setName("Layer");
        layerInfo.setActiveLayer(*layers.at(0)->getUUID());
    }
    void put(const CZelXMLIO& io, KestraXML::XIXMLElement* file) {
        ZelPutPerspectiveViews(io, file, cameras, options);
        ZelPutParallelViews(io, file, parallelViews, options);
        ZelPutPanoramas(io, file, panoramas, options);
        ZelPutAnimations(io, file, animations, options);
        ZelPutViewObjects(io, file, viewObjects, options);
        ZelPutWorkingWindows(io, file, windows);
        ZelPutLayers(io, file, layers);
        ZelPutLayersInfo(io, file, layerInfo);
    }
    void get(const CZelXMLIO& io, KestraXML::XIXMLElement* file) {
        EXPECT_TRUE(ZelGetPerspectiveViews(io, file, cameras, options));
        EXPECT_TRUE(ZelGetParallelViews(io, file, parallelViews, options));
        EXPECT_TRUE(ZelGetPanoramas(io, file, panoramas, options));
        EXPECT_TRUE(ZelGetAnimations(io, file, animations, options));
        EXPECT_TRUE(ZelGetViewObjects(io, file, viewObjects, options));
        ZelGetWorkingWindows(io, file, windows);
        EXPECT_TRUE(ZelGetLayers(io, file, layers));
        EXPECT_TRUE(ZelGetLayersInfo(io, file, layerInfo));
    }
};

} // namespace

TEST(SceneViews, WritingTwiceGivesTheSameTextAndReadsBackWhole) {
    Fixture f;
    Views views(&f.zel);
    views.fill();
    CZelXMLIO::add(f.root, "Foo");
    views.put(f.io, f.root);
    std::string first = Fixture::text(f.root);
    views.put(f.io, f.root);
    EXPECT_EQ(Fixture::text(f.root), first);
    EXPECT_STREQ(*f.root->GetFirstElement()->GetKey(), "Foo");

    CZelXMLIO full(&f.zel, true);
    Views read(&f.zel);
    read.get(full, f.root);
    EXPECT_STREQ(read.cameras.at(0)->getName(), "Camera");
    EXPECT_EQ(*read.cameras.at(0)->getViewInfo()->getUUID(), *views.cameras.at(0)->getViewInfo()->getUUID());
    EXPECT_STREQ(read.windows.at(0)->getName(), "Window");
    EXPECT_EQ(read.animations.at(0)->paths().at(0)->keys().getCount(), 1u);
    EXPECT_EQ(*read.layerInfo.getActiveLayer(), *views.layers.at(0)->getUUID());
    KestraXML::XIXMLElement* again = f.fresh("Zel.File");
    read.put(f.io, again);
    EXPECT_EQ(Fixture::text(again),
              first.substr(first.find("<Perspective.Views")).insert(0, "<Zel.File>\n\t"));
    EXPECT_TRUE(f.feedback.empty());
}
