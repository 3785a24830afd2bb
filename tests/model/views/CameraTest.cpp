#include "ViewsFixture.h"

#include "codec/CameraCodec.h"

#include <cmath>

using namespace KeZel;
using namespace ViewsTest;
using KestraXML::XIXMLElement;

TEST(Camera, SettersWrapClipAndReport) {
    Fixture f;
    CCameraList list(&f.zel);
    CCamera& c = *list.newItem();
    struct {
        double in, out;
    } rolls[] = {{-0.5, 5.783185307179586},
                 {6.283185307179586, 6.283185307179586},
                 {7.0, 7.0 - 6.283185307179586},
                 {1.0, 1.0}};
    for (const auto& r : rolls) {
        c.setRoll(r.in);
        EXPECT_NEAR(c.getRoll(), r.out, 1e-15) << r.in;
    }
    struct {
        double in, out;
        size_t reports;
    } focals[] = {{180.0, 180.0, 0}, {-1.0, 0.0, 1}, {500.0, 180.0, 2}, {0.0, 0.0, 2}, {NAN, 0.0, 3}};
    for (const auto& t : focals) {
        c.setFocal(t.in);
        EXPECT_EQ(c.getFocal(), t.out) << t.in;
        EXPECT_EQ(f.feedback.count(), t.reports) << t.in;
    }
    EXPECT_EQ(f.feedback.last(), "Method setFocal has clipped a value out of range.");
    CCamera alone;
    alone.setFocal(500.0);
    EXPECT_EQ(alone.getFocal(), 500.0);

    c.setTargetType(1);
    EXPECT_EQ(c.getTargetType(), 1);
    c.setTargetType(7);
    EXPECT_EQ(c.getTargetType(), 0);
    EXPECT_EQ(c.getViewFlags(), 2);
    c.setFlagged(false);
    EXPECT_EQ(c.getViewFlags(), 0);
}

TEST(Camera, OlderFaceAndCurrentView) {
    Fixture f;
    CCameraList list(&f.zel);
    CCamera& a = *list.newItem();
    CCamera& b = *list.newItem();
    EXPECT_EQ(a.getCameraExObsolete(2), nullptr);
    EXPECT_EQ(f.feedback.last(), "Client is obsolete for this Zel Library!");
    EXPECT_EQ(a.getCameraExObsolete(7), nullptr);
    EXPECT_EQ(f.feedback.last(), "Client is newer than Zel Library!");
    CZelCameraExObsolete* older = a.getCameraExObsolete(3);
    ASSERT_NE(older, nullptr);
    EXPECT_EQ(a.getCameraExObsolete(6), older);
    older->setDepthType(2);
    older->setClearnessSizeInv(0.5);
    older->setViewFlags(5);
    EXPECT_EQ(a.viewInfo().depthOfField().getType(), 2);
    EXPECT_EQ(a.getViewInfo()->getDepthOfField()->getClearnessSizeInv(), 0.5);
    EXPECT_EQ(a.getViewFlags(), 5);

    // Flags as they come (a file may have two current views) until setCurrent.
    b.setViewFlags(3);
    EXPECT_TRUE(a.isCurrent() && b.isCurrent());
    b.setCurrent();
    EXPECT_EQ(a.getViewFlags(), 4);
    EXPECT_EQ(b.getViewFlags(), 3);
}

TEST(Camera, DefaultsFollowTheClientsAxesAndSurviveARoundTrip) {
    for (EVersionZEL version : {eZelVersion7, eZelVersionCurrent}) {
        Fixture f(version);
        CCameraList list(&f.zel);
        CCamera& c = *list.newItem();
        bool old = version < eZelVersion8;
        EXPECT_TRUE(Same(*c.getPosition(), old ? Vec(50, 50, -60) : Vec(50, -60, 50)));
        EXPECT_TRUE(Same(c.up(), old ? Vec(0, 1, 0) : Vec(0, 0, 1)));
        c.setName("Front door");
        c.setPosition(Vec(1, 2, 3));
        c.setObjectId(Id(5));
        c.setTargetType(1);
        c.viewOpt().rendering().setWidth(800);
        c.insertionObject().setReperePosition(2, Vec(7, 8, 9));
        c.insertionObject().setSizeAxis(2);

        XIXMLElement* e = c.putInXML(f.root);
        ASSERT_NE(e, nullptr);
        const XIXMLElement* position = CZelXMLIO::need(e, "Position");
        EXPECT_STREQ(CZelXMLIO::attributeText(position, "Y"), old ? "3.000000" : "2.000000");
        EXPECT_NE(CZelXMLIO::find(CZelXMLIO::need(e, "Options"), "InsertionObject"), nullptr);

        CCamera& back = *list.newItem();
        ASSERT_TRUE(back.initWithXML(f.root));
        EXPECT_STREQ(back.getName(), "Front door");
        EXPECT_TRUE(Same(*back.getPosition(), Vec(1, 2, 3)));
        EXPECT_TRUE(Same(*back.getTarget(), *c.getTarget()));
        EXPECT_EQ(*back.getObjectId(), Id(5));
        EXPECT_EQ(back.getTargetType(), 1);
        EXPECT_EQ(back.viewOpt().rendering().getWidth(), 800);
        EXPECT_TRUE(Same(*back.insertionObject().getReperePosition(2), Vec(7, 8, 9)));
        EXPECT_EQ(back.insertionObject().getSizeAxis(), 2);
        EXPECT_TRUE(f.feedback.empty());
    }
}

TEST(Camera, ReadingClipsAndRequiresEveryKey) {
    Fixture f;
    CCameraList list(&f.zel);
    CCamera& c = *list.newItem();
    c.putInXML(f.root);
    XIXMLElement* e = CZelXMLIO::need(f.root, "Perspective.View");
    CZelXMLIO::need(e, "Focal")->GetData()->SetText("-4");
    CZelXMLIO::need(e, "Roll")->GetData()->SetText("-0.5");
    CZelXMLIO::removeAll(CZelXMLIO::need(e, "Options"), "InsertionObject");
    c.insertionObject().setSizeAxis(1);
    ASSERT_TRUE(c.initWithXML(f.root));
    EXPECT_EQ(c.getFocal(), 0.0);
    EXPECT_NEAR(c.getRoll(), 5.783185307179586, 1e-12);
    EXPECT_EQ(c.insertionObject().getSizeAxis(), 1); // no InsertionObject: kept
    EXPECT_EQ(f.feedback.count(), 1u);

    CZelXMLIO::setAttribute(e, "Target.type", "Nowhere");
    EXPECT_FALSE(c.initWithXML(f.root));
    EXPECT_EQ(f.feedback.last(),
              "Exception in CZelCamera::initWithXML : Invalid label (Nowhere) [Fixed.Vertex..On.Object]");
    for (const char* key : {"Name", "View.Flags", "Target", "Roll", "View.Info", "Options"}) {
        CCamera& fresh = *list.newItem();
        XIXMLElement* parent = f.fresh();
        fresh.putInXML(parent);
        CZelXMLIO::removeAll(CZelXMLIO::need(parent, "Perspective.View"), key);
        EXPECT_FALSE(fresh.initWithXML(parent)) << key;
    }
    EXPECT_FALSE(c.initWithXML(nullptr));
}

TEST(Camera, ListWithFamilyOptionsAndTheOldImage) {
    Fixture f;
    CCameraList cameras(&f.zel);
    cameras.newItem()->setName("A");
    cameras.newItem()->setName("B");
    CAnimRenderingOpt options(&f.zel);
    options.rendering().setHeight(99);
    ZelPutPerspectiveViews(f.io, f.root, cameras, options);
    ZelPutPerspectiveViews(f.io, f.root, cameras, options);
    XIXMLElement* outer = CZelXMLIO::need(f.root, "Perspective.Views");
    EXPECT_EQ(Fixture::count(outer, "Perspective.View"), 2u);
    EXPECT_EQ(Fixture::count(outer, "Options"), 1u);

    CCameraList read(&f.zel);
    read.newItem()->setName("stale");
    CAnimRenderingOpt readOptions(&f.zel);
    ASSERT_TRUE(ZelGetPerspectiveViews(f.io, f.root, read, readOptions));
    ASSERT_EQ(read.getCount(), 2u);
    EXPECT_STREQ(read.at(1)->getName(), "B");
    EXPECT_EQ(readOptions.rendering().getHeight(), 99);
    EXPECT_FALSE(ZelGetPerspectiveViews(f.io, f.fresh(), read, readOptions));
    EXPECT_EQ(read.getCount(), 2u);

    XIXMLElement* file = f.fresh();
    XIXMLElement* image = CZelXMLIO::add(file, "Image");
    options.rendering().setHeight(12);
    options.putInXML(image);
    EXPECT_TRUE(ZelGetOldImage(f.io, file, readOptions));
    EXPECT_EQ(readOptions.rendering().getHeight(), 12);
    EXPECT_FALSE(ZelGetOldImage(f.io, f.fresh(), readOptions));
}
