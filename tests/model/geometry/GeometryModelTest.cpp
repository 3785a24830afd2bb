#include "GeometryTestSupport.h"

#include "model/geometry/Geometry.h"

using namespace GeometryTest;

TEST(GeometryModel, PropertyIndexReportsListsAndClear) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    CPolygon* polygon =
        static_cast<CPolygon*>(mgr->getPolygons()->newZelObject(static_cast<unsigned int>(-1)));
    unsigned int count = mgr->getProperties() ? mgr->getProperties()->getCount() : 0;
    polygon->setPropertyIndex(count); // equal to the count: no report
    EXPECT_TRUE(feedback.empty());
    polygon->setPropertyIndex(count + 1);
    EXPECT_EQ("You are assigning a property that does not exist to a polygon.", feedback.last());
    EXPECT_EQ(count + 1, polygon->getPropertyIndex());

    // The polygon's lists reach the manager through the polygon table.
    Fill(*polygon, Polygon{true, 0, {Loop(5, Vertex(1)), {Vertex(0)}, {Vertex(2)}}});
    EXPECT_EQ(nullptr, polygon->getHoles()->getZelObject(1)->getVertices()->getZelObject(1));
    EXPECT_EQ(nullptr, polygon->getVertices()->getZelObject(5));
    EXPECT_EQ("getZelObject: Bad index value", feedback.last());
    EXPECT_EQ(3u, feedback.count());

    unsigned int room = polygon->vertices().getCapacity();
    polygon->clear();
    EXPECT_EQ((Polygon{false, 0, {{}}}), Capture(*polygon));
    EXPECT_EQ(room, polygon->vertices().getCapacity());

    // A polygon of no scene has nothing to test against and is silent.
    CPolygon loose;
    loose.setPropertyIndex(99);
    EXPECT_EQ(99u, loose.getPropertyIndex());
    EXPECT_EQ(3u, loose.vertices().getCapacity()); // a triangle needs no block of its own
    loose.getVertices()->removeObject(static_cast<unsigned int>(-1));
    loose.getHoles()->removeObject(static_cast<unsigned int>(-1));
    EXPECT_EQ(3u, feedback.count());
}
