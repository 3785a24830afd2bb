#include "ViewsFixture.h"

#include "codec/AnimationCodec.h"
#include "codec/PanoramaCodec.h"
#include "codec/ParallelViewCodec.h"
#include "codec/ViewObjectCodec.h"

using namespace KeZel;
using namespace ViewsTest;
using KestraXML::XIXMLElement;

TEST(ParallelView, DefaultsRoundTripAndUnwritableType) {
    Fixture f;
    CParallelViewList list(&f.zel);
    CZelParallelView& v = *list.newItem();
    EXPECT_EQ(v.getType(), 1);
    EXPECT_EQ(v.getViewFlags(), 2);
    EXPECT_EQ(v.getViewOpt()->getRenderingOpt()->getOutputType(), 5);
    EXPECT_EQ(v.getViewOpt()->getRenderingOpt()->getNbReflection(), 1);
    v.setName("Plan 1");
    v.setType(2);
    v.setSize(12.5);
    v.setTarget(Vec(1, 2, 3));
    v.setSpecialShading(true);
    v.viewOpt().setParallelScale(50);
    XIXMLElement* e = v.putInXML(f.root);
    ASSERT_NE(e, nullptr);
    EXPECT_NE(CZelXMLIO::find(CZelXMLIO::need(e, "Options"), "Special.Shading"), nullptr);
    CZelParallelView& back = *list.newItem();
    ASSERT_TRUE(back.initWithXML(f.root));
    EXPECT_STREQ(back.getName(), "Plan 1");
    EXPECT_EQ(back.getType(), 2);
    EXPECT_EQ(back.getSize(), 12.5);
    EXPECT_TRUE(Same(*back.getTarget(), Vec(1, 2, 3)));
    EXPECT_TRUE(back.isSpecialShading());
    EXPECT_EQ(back.getViewOpt()->getParallelScale(), 50);

    v.setType(7); // accepted, but without a label
    EXPECT_EQ(v.getType(), 7);
    EXPECT_EQ(v.putInXML(f.fresh()), nullptr);
    EXPECT_EQ(f.feedback.last(),
              "Exception in IZelParallelView::putInXML : No label for the value (7) [Front..Axono]");
}

TEST(ParallelView, WorkingWindowIsRequiredAndWrittenInPlace) {
    Fixture f;
    CParallelViewList windows(&f.zel);
    windows.newItem()->setName("Top");
    CZelXMLIO::add(f.root, "Before");
    ZelPutWorkingWindows(f.io, f.root, windows);
    CZelXMLIO::add(f.root, "After");
    ZelPutWorkingWindows(f.io, f.root, windows);
    EXPECT_EQ(Fixture::count(f.root, "Working.Window"), 1u);
    EXPECT_STREQ(*f.root->GetElement(1)->GetKey(), "Working.Window");
    CParallelViewList read(&f.zel);
    ZelGetWorkingWindows(f.io, f.root, read);
    ASSERT_EQ(read.getCount(), 1u);
    EXPECT_STREQ(read.at(0)->getName(), "Top");
    EXPECT_NE(ZelTest::ErrorOf([&] { ZelGetWorkingWindows(f.io, f.fresh(), read); }), "<no exception>");
}

TEST(Panorama, CurrentNodeHotspotsAndSilentClips) {
    Fixture f;
    CZelPanorama p(&f.zel);
    p.setCurrentNode(0); // no node: silent, direction left alone
    EXPECT_TRUE(f.feedback.empty());
    EXPECT_TRUE(Same(*p.getCurrentDirection(), Vec(0, 0, 0)));
    for (int i = 0; i < 3; ++i) p.nodes().newItem()->setDirection(Vec(i, 0, 0));
    p.setCurrentNode(-1);
    EXPECT_EQ(p.getCurrentNode(), 0);
    EXPECT_EQ(f.feedback.count(), 1u);
    EXPECT_EQ(f.feedback.last(), "IZelPanorama::setCurrentNode - index invalid");
    p.setCurrentNode(9);
    EXPECT_EQ(p.getCurrentNode(), 2);
    EXPECT_EQ(p.getCurrentDirection()->x, 2.0);
    EXPECT_EQ(ZelTest::ErrorOf([&] { p.setCurrentNode(3); }), "getZelObject: Bad index value");

    CVRPanorama& node = *p.nodes().at(0);
    struct {
        void (CVRPanorama::*set)(double);
        double (CVRPanorama::*get)() const;
        double in, out;
    } clips[] = {{&CVRPanorama::setFocal, &CVRPanorama::getFocal, 0.5, 1.0},
                 {&CVRPanorama::setFocal, &CVRPanorama::getFocal, 200.0, 180.0},
                 {&CVRPanorama::setZoom, &CVRPanorama::getZoom, 2.0, 1.0},
                 {&CVRPanorama::setVerticalPan, &CVRPanorama::getVerticalPan, -3.0, -1.0}};
    size_t reports = f.feedback.count();
    for (const auto& c : clips) {
        (node.*c.set)(c.in);
        EXPECT_EQ((node.*c.get)(), c.out) << c.in;
    }
    EXPECT_EQ(f.feedback.count(), reports);

    CVRPanoLinkConfig end;
    end.setHotspot(7, {5.0, -0.5});
    EXPECT_EQ(end.getHotspot(4)->x, 1.0);
    EXPECT_EQ(end.getHotspot(4)->y, -0.5);
    end.setHotspot(0, {5.0, 5.0});
    EXPECT_EQ(end.getHotspot(-2)->x, 5.0);
    end.setZoom(-1.0);
    EXPECT_EQ(end.getZoom(), 0.0);
}

TEST(Panorama, ListRoundTrip) {
    Fixture f;
    CPanoramaList list(&f.zel);
    CZelPanorama& p = *list.newItem();
    p.setName("Tour");
    CVRPanorama& hall = *p.nodes().newItem();
    hall.setName("Hall");
    hall.setDirection(Vec(0, 1, 0));
    hall.setUIValue(4);
    p.nodes().newItem()->setName("Garden");
    CVRPanoLink& link = *p.links().newItem();
    link.first().setIndex(1);
    link.second().setHotspot(3, {0.25, -0.75});
    link.second().setFocal(33.0);
    p.setCurrentNode(1);
    p.setCurrentDirection(Vec(9, 9, 9));
    p.setCurrentFocal(45.0);
    CAnimRenderingOpt options(&f.zel);
    ZelPutPanoramas(f.io, f.root, list, options);

    CPanoramaList read(&f.zel);
    ASSERT_TRUE(ZelGetPanoramas(f.io, f.root, read, options));
    ASSERT_EQ(read.getCount(), 1u);
    CZelPanorama& back = *read.at(0);
    EXPECT_STREQ(back.getName(), "Tour");
    EXPECT_EQ(*back.getUUID(), *p.getUUID());
    ASSERT_EQ(back.nodes().getCount(), 2u);
    EXPECT_EQ(*back.nodes().at(0)->getUUID(), *hall.getUUID());
    EXPECT_EQ(back.nodes().at(0)->getUIValue(), 4);
    EXPECT_STREQ(back.nodes().at(1)->getName(), "Garden");
    EXPECT_EQ(back.getCurrentNode(), 1);
    EXPECT_TRUE(Same(*back.getCurrentDirection(), Vec(9, 9, 9))); // overrides the node's
    EXPECT_EQ(back.getCurrentFocal(), 45.0);
    ASSERT_EQ(back.links().getCount(), 1u);
    EXPECT_EQ(back.links().at(0)->first().getIndex(), 1);
    EXPECT_EQ(back.links().at(0)->second().getHotspot(3)->y, -0.75);
    EXPECT_EQ(back.links().at(0)->second().getFocal(), 33.0);
    EXPECT_EQ(*back.links().at(0)->getUUID(), *link.getUUID());
    EXPECT_TRUE(f.feedback.empty());
}

TEST(Animation, ClipsAndCurrentPath) {
    Fixture f;
    CAnimation loose;
    loose.setDuration(-1.0);
    EXPECT_EQ(loose.getDuration(), -1.0);
    CZelAnimation a(&f.zel);
    CAnimation& path = *a.paths().newItem();
    EXPECT_STREQ(path.getName(), "Sequence 0");
    path.setDuration(-1.0);
    EXPECT_EQ(path.getDuration(), 0.0);
    EXPECT_EQ(f.feedback.last(), "Method setDuration has clipped a value out of range.");
    path.setNbXImage(-2);
    EXPECT_EQ(path.getNbXImage(), 0);
    EXPECT_EQ(f.feedback.last(), "Method setNbXImage has clipped a value out of range.");

    CCamKey k;
    struct {
        void (CCamKey::*set)(double);
        double (CCamKey::*get)() const;
        double in, out;
    } clips[] = {{&CCamKey::setPitch, &CCamKey::getPitch, 400.0, 360.0},
                 {&CCamKey::setPitch, &CCamKey::getPitch, -1.0, 0.0},
                 {&CCamKey::setBezierT, &CCamKey::getBezierT, 1.5, 1.0},
                 {&CCamKey::setBezierTransitionT, &CCamKey::getBezierTransitionT, -0.5, 0.0},
                 {&CCamKey::setAnticipation, &CCamKey::getAnticipation, 3.0, 1.0}};
    for (const auto& c : clips) {
        (k.*c.set)(c.in);
        EXPECT_EQ((k.*c.get)(), c.out) << c.in;
    }
    k.setBezierSection(-3);
    EXPECT_EQ(k.getBezierSection(), 0);

    a.paths().newItem();
    f.feedback.clear();
    a.setCurrentPath(2); // one past the last is kept
    EXPECT_EQ(a.getCurrentPath(), 2);
    EXPECT_TRUE(f.feedback.empty());
    a.setCurrentPath(5);
    EXPECT_EQ(a.getCurrentPath(), 1);
    EXPECT_EQ(f.feedback.last(), "IZelAnimation::setCurrentPath - index invalid");
}

TEST(Animation, ListRoundTrip) {
    Fixture f;
    CAnimationList list(&f.zel);
    CZelAnimation& a = *list.newItem();
    a.setName("Walk");
    CAnimation& path = *a.paths().newItem();
    path.setActive(false);
    path.setSpeedOn(true);
    path.setCurrentTime(1.5);
    for (int i = 0; i < 3; ++i) *path.points().newZelObject(kZelListEnd) = Vec(i, 2 * i, 3 * i);
    CCamKey& key = *path.keys().newItem();
    key.setKeyType(4);
    key.setTarget(Vec(1, 2, 3));
    key.setFadingNbImages(6);
    a.paths().newItem()->setName("Back");
    a.setCurrentPath(1);
    CAnimRenderingOpt options(&f.zel);
    options.compression().setFrameRate(12.0);
    ZelPutAnimations(f.io, f.root, list, options);

    CAnimationList read(&f.zel);
    CAnimRenderingOpt readOptions(&f.zel);
    ASSERT_TRUE(ZelGetAnimations(f.io, f.root, read, readOptions));
    EXPECT_EQ(readOptions.compression().getFrameRate(), 12.0);
    CZelAnimation& back = *read.at(0);
    EXPECT_STREQ(back.getName(), "Walk");
    ASSERT_EQ(back.paths().getCount(), 2u);
    EXPECT_EQ(back.getCurrentPath(), 1);
    CAnimation& p = *back.paths().at(0);
    EXPECT_FALSE(p.isActive());
    EXPECT_TRUE(p.isSpeedOn());
    EXPECT_TRUE(p.isPathClosed());
    EXPECT_FALSE(p.isViewFlag());
    EXPECT_EQ(p.getCurrentTime(), 1.5);
    ASSERT_EQ(p.points().getCount(), 3u);
    EXPECT_TRUE(Same(p.points().at(2), Vec(2, 4, 6)));
    ASSERT_EQ(p.keys().getCount(), 1u);
    EXPECT_EQ(p.keys().at(0)->getKeyType(), 4);
    EXPECT_EQ(p.keys().at(0)->getFadingNbImages(), 6);
    EXPECT_TRUE(Same(*p.keys().at(0)->getTarget(), Vec(1, 2, 3)));
    EXPECT_STREQ(back.paths().at(1)->getName(), "Back");
    EXPECT_TRUE(f.feedback.empty());
}

TEST(ViewObject, DefaultsSilentClipsAndRoundTrip) {
    Fixture f;
    CViewObjectList list(&f.zel);
    CViewObject& v = *list.newItem();
    EXPECT_STREQ(v.getName(), "Vue objet 1");
    EXPECT_TRUE(Same(*v.getCenter(), Vec(50, 50, 50)));
    EXPECT_EQ(v.getOriginAngle(), -90);
    v.setHorizontalAngle(400);
    EXPECT_EQ(v.getHorizontalAngle(), 360);
    v.setVerticalAngle(-5);
    EXPECT_EQ(v.getVerticalAngle(), 0);
    v.setFocal(0.5);
    EXPECT_EQ(v.getFocal(), 1.0);
    v.setRadius(-1.0);
    EXPECT_EQ(v.getRadius(), 0.0);
    EXPECT_TRUE(f.feedback.empty());

    v.setVerticalStep(3);
    v.setHorizontalShift(-7);
    v.setVerticalStart(12.5);
    v.setCenter(Vec(1, 2, 3));
    CAnimRenderingOpt options(&f.zel);
    ZelPutViewObjects(f.io, f.root, list, options);
    CViewObjectList read(&f.zel);
    ASSERT_TRUE(ZelGetViewObjects(f.io, f.root, read, options));
    CViewObject& back = *read.at(0);
    EXPECT_EQ(back.getVerticalStep(), 3);
    EXPECT_EQ(back.getHorizontalShift(), -7);
    EXPECT_EQ(back.getVerticalStart(), 12.5);
    EXPECT_EQ(back.getHorizontalAngle(), 360);
    EXPECT_EQ(back.getFocal(), 1.0);
    EXPECT_TRUE(Same(*back.getCenter(), Vec(1, 2, 3)));

    CZelXMLIO::removeAll(CZelXMLIO::need(CZelXMLIO::need(f.root, "View.Objects"), "View.Object"), "Vertical");
    EXPECT_FALSE(back.initWithXML(CZelXMLIO::need(f.root, "View.Objects")));
    EXPECT_EQ(f.feedback.last(), "Exception in CZelViewObject::initWithXML : exception (pointer is NULL)");
}
