#include "GeometryTestSupport.h"

#include "model/geometry/Geometry.h"

using namespace GeometryTest;

TEST(GeometryModel, PropertyIndexIsStoredAndReportedBeyondTheProperties) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    CZelPolygon* polygon = mgr->getPolygons()->newZelObject(static_cast<unsigned int>(-1));
    unsigned int count = mgr->getProperties() ? mgr->getProperties()->getCount() : 0;
    polygon->setPropertyIndex(count); // equal to the count: no report
    EXPECT_TRUE(feedback.empty());
    polygon->setPropertyIndex(count + 1);
    EXPECT_EQ("You are assigning a property that does not exist to a polygon.", feedback.last());
    EXPECT_EQ(count + 1, polygon->getPropertyIndex());

    CPolygon loose; // no owner, nothing to test against
    loose.setPropertyIndex(99);
    EXPECT_EQ(99u, loose.getPropertyIndex());
    EXPECT_EQ(1u, feedback.count());
}

TEST(GeometryModel, ListsReportThroughThePolygonAndClearKeepsRoom) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    CPolygon* polygon =
        static_cast<CPolygon*>(mgr->getPolygons()->newZelObject(static_cast<unsigned int>(-1)));
    Fill(*polygon, Polygon{true, 0, {Loop(5, Vertex(1)), {Vertex(0)}, {Vertex(2)}}});
    CZelPolygon::CZelHole* hole = polygon->getHoles()->getZelObject(1);
    EXPECT_EQ(nullptr, hole->getVertices()->getZelObject(1));
    EXPECT_EQ(nullptr, polygon->getVertices()->getZelObject(5));
    EXPECT_EQ((std::vector<std::string>{"getZelObject: Bad index value", "getZelObject: Bad index value"}),
              Texts(feedback));
    EXPECT_EQ(polygon->getVertices(), static_cast<const CZelPolygon*>(polygon)->getVertices());

    unsigned int room = polygon->vertices().getCapacity();
    polygon->clear();
    EXPECT_EQ((Polygon{false, 0, {{}}}), Capture(*polygon));
    EXPECT_EQ(room, polygon->vertices().getCapacity());

    CPolygon loose;
    EXPECT_EQ(3u, loose.vertices().getCapacity()); // a triangle needs no block of its own
    loose.getVertices()->removeObject(static_cast<unsigned int>(-1));
    loose.getHoles()->removeObject(static_cast<unsigned int>(-1));
    EXPECT_EQ(2u, feedback.count()); // a polygon of no scene is silent
}
