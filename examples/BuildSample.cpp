// An example host: builds a small scene through the public interfaces alone and writes
// it. Its output is the bundled sample scene (examples/sample.zel).
//
//   zel_build_sample OUT.zel
#include <frame/ZelHost.h>
#include <zel.h>

#include <cstdio>

using namespace KeZel;

namespace {

CZelColor Color(unsigned char r, unsigned char g, unsigned char b) {
    CZelColor c = {0, r, g, b};
    return c;
}

void AddPoint(TZelObjectMgr<CZelVector>* points, double x, double y, double z) {
    CZelVector* p = points->newZelObject(static_cast<unsigned int>(-1));
    p->x = x;
    p->y = y;
    p->z = z;
}

void AddLoop(TZelObjectMgr<CZelVertex>* vertices, const int* indices, int count) {
    for (int i = 0; i < count; ++i)
        vertices->newZelObject(static_cast<unsigned int>(-1))->mPointIndex = indices[i];
}

// A house-like block: a floor slab with a courtyard hole, and a wall.
void BuildGeometry(CZelMgr* mgr) {
    TZelObjectMgr<CZelVector>* points = mgr->getPoints();
    const double slab[8][3] = {{0, 0, 0}, {10, 0, 0}, {10, 8, 0}, {0, 8, 0},
                               {4, 3, 0}, {6, 3, 0},  {6, 5, 0},  {4, 5, 0}};
    for (const double* p : slab) AddPoint(points, p[0], p[1], p[2]);
    const double wall[4][3] = {{0, 0, 0.01}, {10, 0, 0.01}, {10, 0, 3}, {0, 0, 3}};
    for (const double* p : wall) AddPoint(points, p[0], p[1], p[2]);

    TZelObjectMgr<CZelPolygon>* polygons = mgr->getPolygons();
    CZelPolygon* floor = polygons->newZelObject(static_cast<unsigned int>(-1));
    const int outer[] = {0, 1, 2, 3};
    AddLoop(floor->getVertices(), outer, 4);
    const int courtyard[] = {4, 7, 6, 5};
    AddLoop(floor->getHoles()->newZelObject(static_cast<unsigned int>(-1))->getVertices(), courtyard, 4);
    floor->setPropertyIndex(0);

    CZelPolygon* front = polygons->newZelObject(static_cast<unsigned int>(-1));
    const int face[] = {8, 9, 10, 11};
    AddLoop(front->getVertices(), face, 4);
    front->setSmoothed(true);
    front->setPropertyIndex(1);
}

void BuildMaterials(CZelMgr* mgr) {
    TZelObjectMgr<CZelProperty>* properties = mgr->getProperties();
    CZelProperty* stone = properties->newZelObject(static_cast<unsigned int>(-1));
    stone->setName("Stone floor");
    stone->setDiffuseColor(Color(180, 170, 150));
    stone->setDiffuseMap("file:///C|/Textures/stone%20floor.jpg");
    stone->setMapProjection(1);
    stone->setMapRepeat(true, true);
    stone->setMapSize(2.0, 2.0);

    CZelProperty* plaster = properties->newZelObject(static_cast<unsigned int>(-1));
    plaster->setName("White plaster");
    plaster->setDiffuseColor(Color(240, 238, 230));
    plaster->setSpecularColor(Color(30, 30, 30));
}

void BuildLights(CZelMgr* mgr) {
    CZelLight* lamp = mgr->getLights()->newZelObject(static_cast<unsigned int>(-1));
    lamp->setName("Porch lamp");
    lamp->setType(1); // spot
    CZelVector at = {5, -2, 2.5}, target = {5, 1, 0};
    lamp->setPosition(at);
    lamp->setTarget(target);
    lamp->setColor(Color(255, 230, 190));
    lamp->setPower(40);
    lamp->setConeAngle(60);

    CZelHeliodon* sun = mgr->getHeliodon();
    sun->setActive(true);
    sun->setShadow(true);
    sun->getTime()->setMonth(6);
    sun->getTime()->setDay(21);
    sun->getTime()->setHour(15);
    sun->getTime()->setMinute(0);
    sun->getTime()->setYear(2026);
    sun->getPlace()->setLatitude(48);
    sun->getPlace()->setLongitude(2);
    sun->getPlace()->setTimeZone(1);
}

// A small sky-over-ground preview.
void BuildPreview(CZelMgr* mgr) {
    IZelImage* preview = mgr->getPreviewImage();
    const unsigned int width = 64, height = 48;
    preview->setSize(width, height);
    for (unsigned int y = 0; y < height; ++y)
        for (unsigned int x = 0; x < width; ++x) {
            unsigned int pixel = y < height / 2
                                     ? 0xFF000000u | (120 + y * 4) << 16 | (170 + y * 2) << 8 | 255u
                                     : 0xFF000000u | 90u << 16 | (110 + (x + y) % 20) << 8 | 60u;
            preview->SetAt(x, y, pixel);
        }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: zel_build_sample OUT.zel\n");
        return 2;
    }
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    if (!mgr) {
        std::fprintf(stderr, "zel_build_sample: %s\n", feedback.last().c_str());
        return 1;
    }
    mgr->setApplicationInfo("libzel example", "1.0");
    mgr->setComment("Built by examples/BuildSample.cpp through the public interfaces", 0);
    BuildMaterials(mgr.get()); // polygons name their material by index
    BuildGeometry(mgr.get());
    BuildLights(mgr.get());
    BuildPreview(mgr.get());

    CZelFileStream out(argv[1], 1);
    if (!out.isOpen()) {
        std::fprintf(stderr, "zel_build_sample: %s: can't create the file\n", argv[1]);
        return 1;
    }
    int result = mgr->write(&out);
    bool closed = out.close();
    for (const CZelReportCollector::Report& r : feedback.reports())
        std::fprintf(stderr, "zel_build_sample: %s\n", r.text.c_str());
    return result == 0 && closed ? 0 : 1;
}
