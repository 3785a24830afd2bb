// Helpers of the geometry tests: scenes as text, geometry captured through the public
// interfaces, and a host storage that records what it is given and serves it back.
#pragma once

#include "frame/CZEL.h"
#include "frame/UUID.h"
#include "model/geometry/IZelPolygon.h"
#include "support/TestSupport.h"

#include <array>
#include <string>
#include <vector>

namespace KeZel {
// Found by argument lookup from the standard containers.
inline bool operator==(const CZelVertex& a, const CZelVertex& b) {
    return a.mPointIndex == b.mPointIndex && a.mFlags == b.mFlags && a.mU == b.mU && a.mV == b.mV;
}
} // namespace KeZel

namespace GeometryTest {

using namespace KeZel;

typedef std::array<double, 3> Point;
typedef std::vector<CZelVertex> Loop;

struct Polygon {
    bool smoothed = false;
    unsigned int property = 0;
    std::vector<Loop> loops; // the outer loop first
};

inline bool operator==(const Polygon& a, const Polygon& b) {
    return a.smoothed == b.smoothed && a.property == b.property && a.loops == b.loops;
}

inline CZelVertex Vertex(int index, unsigned int flags = 0, float u = 0, float v = 0) {
    CZelVertex vertex = {index, flags, u, v};
    return vertex;
}

inline Loop LoopOf(const TZelObjectMgr<CZelVertex>* list) {
    Loop loop;
    for (unsigned int i = 0; i < list->getCount(); ++i) loop.push_back(*list->getZelObject(i));
    return loop;
}

inline Polygon Capture(CZelPolygon& p) {
    Polygon out;
    out.smoothed = p.isSmoothed();
    out.property = p.getPropertyIndex();
    out.loops.push_back(LoopOf(p.getVertices()));
    TZelObjectMgr<CZelPolygon::CZelHole>* holes = p.getHoles();
    for (unsigned int h = 0; h < holes->getCount(); ++h)
        out.loops.push_back(LoopOf(holes->getZelObject(h)->getVertices()));
    return out;
}

inline void FillLoop(TZelObjectMgr<CZelVertex>* list, const Loop& loop) {
    for (const CZelVertex& v : loop) *list->newZelObject(static_cast<unsigned int>(-1)) = v;
}

inline void Fill(CZelPolygon& p, const Polygon& in) {
    p.setSmoothed(in.smoothed);
    p.setPropertyIndex(in.property);
    FillLoop(p.getVertices(), in.loops[0]);
    for (size_t h = 1; h < in.loops.size(); ++h)
        FillLoop(p.getHoles()->newZelObject(static_cast<unsigned int>(-1))->getVertices(), in.loops[h]);
}

inline std::vector<Point> PointsOf(CZelMgr* mgr) {
    std::vector<Point> out;
    for (unsigned int i = 0; i < mgr->getPoints()->getCount(); ++i) {
        const CZelVector* v = mgr->getPoints()->getZelObject(i);
        out.push_back({v->x, v->y, v->z});
    }
    return out;
}

inline std::vector<Polygon> PolygonsOf(CZelMgr* mgr) {
    std::vector<Polygon> out;
    for (unsigned int i = 0; i < mgr->getPolygons()->getCount(); ++i)
        out.push_back(Capture(*mgr->getPolygons()->getZelObject(i)));
    return out;
}

inline void Put(CZelMgr* mgr, const std::vector<Point>& points, const std::vector<Polygon>& polygons) {
    for (const Point& p : points) {
        CZelVector* v = mgr->getPoints()->newZelObject(static_cast<unsigned int>(-1));
        v->x = p[0], v->y = p[1], v->z = p[2];
    }
    for (const Polygon& p : polygons)
        Fill(*mgr->getPolygons()->newZelObject(static_cast<unsigned int>(-1)), p);
}

// Keeps what it is given and serves it back when the scene is written; may refuse the
// item of one index.
class RecordingStorage : public CZelExtStorage {
public:
    std::vector<Point> points;
    std::vector<Polygon> polygons;
    std::vector<std::string> calls; // "note <uuid> <level>", "points <n>", "polygons <n>"
    int refuseAt = -1;

    void noteInternalComponent(const CZelUUID* uuid, int level) override {
        calls.push_back("note " + ZelUUIDToText(*uuid) + " " + std::to_string(level));
    }
    void beginPoints(CZelMgr*, unsigned int count) override {
        points.clear();
        calls.push_back("points " + std::to_string(count));
    }
    bool addPoint(CZelMgr*, const double* c, int index) override {
        points.push_back({c[0], c[1], c[2]});
        return index != refuseAt;
    }
    void beginPolygons(CZelMgr*, unsigned int count) override {
        polygons.clear();
        calls.push_back("polygons " + std::to_string(count));
    }
    bool addPolygon(CZelMgr*, CZelPolygon* polygon, int index) override {
        polygons.push_back(Capture(*polygon));
        return index != refuseAt;
    }
    int getPointCount() override { return static_cast<int>(points.size()); }
    bool getPoint(CZelMgr*, double* c, int index) override {
        for (int k = 0; k < 3; ++k) c[k] = points[index][k];
        return index != refuseAt;
    }
    int getPolygonCount() override { return static_cast<int>(polygons.size()); }
    bool getPolygon(CZelMgr*, CZelPolygon* polygon, int index) override {
        Fill(*polygon, polygons[index]);
        return index != refuseAt;
    }
};

inline std::string Scene(const std::string& points, const std::string& polygons,
                         const char* library = "3.0.2", const std::string& more = "") {
    return std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<?Zel library=\"") + library +
           "\" file=\"5.0\" min_version=\"" + library + "\" safe_version=\"" + library +
           "\"?>\n<Zel.File><Points><![CDATA[" + points + "]]></Points><Polygons><![CDATA[" + polygons +
           "]]></Polygons>" + more + "</Zel.File>\n";
}

// The content of the first data block of element `name` in a written scene.
inline std::string Block(const std::string& text, const std::string& name, size_t from = 0) {
    size_t start = text.find("<" + name + "><![CDATA[", from);
    if (start == std::string::npos) return "<no block>";
    start += name.size() + 11;
    return text.substr(start, text.find("]]>", start) - start);
}

// The geometry blocks of a written scene, alone in a scene of their own.
inline std::string GeometryOf(const std::string& text) {
    return Scene(Block(text, "Points"), Block(text, "Polygons"));
}

inline int Read(CZelMgr* mgr, const std::string& text) {
    CZelMemoryStream stream(text);
    return mgr->read(&stream);
}

inline std::string Write(CZelMgr* mgr) {
    CZelMemoryStream stream;
    EXPECT_EQ(0, mgr->write(&stream));
    return stream.bytes();
}

inline std::vector<std::string> Texts(const CZelReportCollector& feedback) {
    std::vector<std::string> texts;
    for (const CZelReportCollector::Report& r : feedback.reports()) texts.push_back(r.text);
    return texts;
}

} // namespace GeometryTest
