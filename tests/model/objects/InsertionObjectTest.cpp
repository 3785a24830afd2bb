#include "model/views/ViewsFixture.h"

#include "codec/LayerCodec.h"

#include <functional>

using namespace KeZel;
using namespace ViewsTest;
using KestraXML::XIXMLElement;

TEST(InsertionObject, IndicesPastTheLastPositionReport) {
    Fixture f;
    CZelInsertionObject o(&f.zel);
    EXPECT_NE(o.getAxesPosition(3), nullptr);
    EXPECT_TRUE(f.feedback.empty());
    struct {
        std::function<void()> call;
        const char* report;
    } table[] = {
        {[&] { EXPECT_EQ(o.getAxesPosition(4), nullptr); }, "getAxesPosition: index out of range"},
        {[&] {
             o.setAxesPosition(4, {1, 1});
         },
         "setAxesPosition: index out of range"},
        {[&] { EXPECT_EQ(o.getPerpectiveToolPosition(~0u), nullptr); },
         "getPerpectiveToolPosition: index out of range"},
        {[&] {
             o.setPerpectiveToolPosition(9, {1, 1});
         },
         "setPerpectiveToolPosition: index out of range"},
        {[&] { EXPECT_EQ(o.getReperePosition(4), nullptr); }, "getReperePosition: index out of range"},
        {[&] { o.setReperePosition(4, Vec(1, 1, 1)); }, "setReperePosition: index out of range"},
    };
    for (const auto& row : table) {
        f.feedback.clear();
        row.call();
        EXPECT_EQ(f.feedback.count(), 1u);
        EXPECT_EQ(f.feedback.last(), row.report);
    }
}

TEST(InsertionObject, RoundTripAndTheSceneLevelElement) {
    for (EVersionZEL version : {eZelVersion7, eZelVersionCurrent}) {
        Fixture f(version);
        CZelInsertionObject o(&f.zel);
        o.setActive(true); // not in files
        o.setAxesPosition(3, {0.5, -0.5});
        o.setPerpectiveToolPosition(0, {2, 3});
        o.setReperePosition(1, Vec(1, 2, 3));
        o.setSizeAxis(1);
        o.setModelVisible(true);
        o.setYAxeInverted(true);
        ASSERT_NE(o.putInXML(f.root), nullptr);
        CZelInsertionObject back(&f.zel);
        ASSERT_TRUE(ZelGetSceneInsertionObject(f.io, f.root, back));
        EXPECT_FALSE(back.isActive());
        EXPECT_EQ(back.getAxesPosition(3)->y, -0.5);
        EXPECT_EQ(back.getPerpectiveToolPosition(0)->x, 2.0);
        EXPECT_TRUE(Same(*back.getReperePosition(1), Vec(1, 2, 3)));
        EXPECT_EQ(back.getSizeAxis(), 1);
        EXPECT_TRUE(back.isModelVisible());
        EXPECT_FALSE(back.isAxesVisible());
        EXPECT_TRUE(back.isYAxeInverted());
        EXPECT_FALSE(ZelGetSceneInsertionObject(f.io, f.fresh(), back));
        EXPECT_TRUE(f.feedback.empty());
    }
    Fixture f;
    CZelInsertionObject o(&f.zel);
    XIXMLElement* e = o.putInXML(f.root);
    CZelXMLIO::setAttribute(e, "SizeAxis", "WAxis");
    EXPECT_FALSE(o.initWithXML(f.root));
    EXPECT_EQ(f.feedback.last(),
              "Exception in IZelInsertionObject::initWithXML : Invalid label (WAxis) [XAxis..ZAxis]");
    CZelXMLIO::need(CZelXMLIO::need(e, "ReperePositions"), "Vector3D")->AsNode()->Destroy();
    CZelXMLIO::setAttribute(e, "SizeAxis", "XAxis");
    EXPECT_FALSE(o.initWithXML(f.root)); // three positions where four belong
}
