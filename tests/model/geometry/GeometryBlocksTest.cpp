#include "GeometryTestSupport.h"

#include "foundation/Platform.h"
#include "frame/Providers.h"
#include "legacy/DBIO.h"
#include "legacy/TextWriter.h"
#include "legacy/TokenReader.h"
#include "model/objects/IZelObjectDefinition.h"

#include <random>

using namespace GeometryTest;

namespace {

// Uses up processor time, the clock that progress reports go by.
void BurnProcessorTime(long ms) {
    long start = Kestra::Platform::ClockMilliseconds();
    while (Kestra::Platform::ClockMilliseconds() - start <= ms) {
    }
}

const std::vector<Point> kPoints = {{1, 2, 3}, {0.5, -0.25, 0}, {4, 5, 6}};
const std::vector<Polygon> kPolygons = {
    {true, 1, {{Vertex(0), Vertex(1), Vertex(2)}}},
    {false, 0, {{Vertex(2), Vertex(1, 1), Vertex(0, 2, 0.5f, 0.25f)}}},
    {false, 2, {{Vertex(0), Vertex(1), Vertex(2)}, {Vertex(2, 3, 0.125f, 1.0f), Vertex(1)}}}};
const char* kRecords[] = {"\no\t1 3 0 1 2 ", "\np\t0 3 2 I 1 M 0.5 0.25 0 ",
                          "\nh\t2 2 3 0 1 2 2 I M 0.125 1.0 2 1 "};

// A stream that uses up processor time once, when reading or writing first passes `mark`.
class SlowStream : public CZelMemoryStream {
public:
    explicit SlowStream(const std::string& bytes = "") : CZelMemoryStream(bytes) {}
    std::vector<size_t> marks;
    int read(void* buffer, int size) override {
        Pause();
        return CZelMemoryStream::read(buffer, size);
    }
    void write(const void* buffer, int size) override {
        Pause();
        CZelMemoryStream::write(buffer, size);
    }

private:
    void Pause() {
        if (!marks.empty() && tell() >= marks.front()) {
            marks.erase(marks.begin());
            BurnProcessorTime(110);
        }
    }
};

std::string Many(int count, const char* item) {
    std::string text = std::to_string(count) + " ";
    for (int i = 0; i < count; ++i) text += item;
    return text;
}

} // namespace

TEST(GeometryBlocks, BothWritersLayOutTheBlocksAndReadBackAlike) {
    CZelReportCollector feedback;
    CZelMgrHandle memory(&feedback);
    Put(memory.get(), kPoints, kPolygons);
    feedback.clear(); // property indices beyond the (empty) property list
    std::string text = GeometryOf(Write(memory.get()));
    EXPECT_EQ("3 \n1.0 2.0 3.0 \n0.5 -0.25 0.0 \n4.0 5.0 6.0 \n", Block(text, "Points"));
    EXPECT_EQ(std::string("3 ") + kRecords[0] + "\n" + kRecords[1] + "\n" + kRecords[2] + "\n",
              Block(text, "Polygons"));

    RecordingStorage storage;
    storage.points = kPoints;
    storage.polygons = kPolygons;
    CZelMgrHandle external(&feedback, &storage);
    std::string served = GeometryOf(Write(external.get()));
    EXPECT_EQ("\n3 \n1.0 2.0 3.0 \n0.5 -0.25 0.0 \n4.0 5.0 6.0 \n", Block(served, "Points"));
    EXPECT_EQ(std::string("3 ") + kRecords[0] + kRecords[1] + kRecords[2], Block(served, "Polygons"));
    EXPECT_TRUE(external->getPoints()->getCount() == 0 && external->getPolygons()->getCount() == 0);

    // Either text reads into either place as the same geometry; the storage sees it in order.
    for (const std::string* t : {&text, &served}) {
        CZelMgrHandle back(&feedback);
        ASSERT_EQ(0, Read(back.get(), *t));
        EXPECT_EQ(kPoints, PointsOf(back.get()));
        EXPECT_EQ(kPolygons, PolygonsOf(back.get()));
        RecordingStorage received;
        CZelMgrHandle through(&feedback, &received);
        ASSERT_EQ(0, Read(through.get(), *t));
        EXPECT_EQ(kPoints, received.points);
        EXPECT_EQ(kPolygons, received.polygons);
        EXPECT_EQ((std::vector<std::string>{"points 3", "polygons 3"}), received.calls);
        EXPECT_EQ(0u, through->getPoints()->getCount());
    }
    EXPECT_TRUE(feedback.empty()) << feedback.last();
}

TEST(GeometryBlocks, HolesMarkersAndComments) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    ASSERT_EQ(0, Read(mgr.get(),
                      Scene("3 0 0 0 1 0 0 0 1 0",
                            "4 # a comment\r\np 0 3 # before a vertex\n I 0 # before a marker\nM 1 .5 1 2\n"
                            "h 4 1 3 0 1 2\n"     // one loop: no hole
                            "h 0 3 0 2 0 1 1 2\n" // an empty outer loop, two holes
                            "o 0 -2\n")));        // a count below 1: an empty loop
    EXPECT_TRUE(feedback.empty()) << feedback.last();
    std::vector<Polygon> polygons = PolygonsOf(mgr.get());
    ASSERT_EQ(4u, polygons.size());
    EXPECT_EQ((Polygon{false, 0, {{Vertex(0, 1), Vertex(1, 2, 1.0f, 0.5f), Vertex(2)}}}), polygons[0]);
    EXPECT_EQ((Polygon{false, 4, {{Vertex(0), Vertex(1), Vertex(2)}}}), polygons[1]);
    EXPECT_EQ((Polygon{false, 0, {{}, {Vertex(0), Vertex(1)}, {Vertex(2)}}}), polygons[2]);
    EXPECT_EQ((Polygon{true, 0, {{}}}), polygons[3]);
    // A single loop is no longer "h".
    EXPECT_EQ("4 \np\t0 3 I 0 M 1.0 0.5 1 2 \n\np\t4 3 0 1 2 \n\nh\t0 3 0 2 0 1 1 2 \n\no\t0 0 \n",
              Block(Write(mgr.get()), "Polygons"));
}

TEST(GeometryBlocks, WarningsAndErrorsOfReading) {
    struct Case {
        std::string points, polygons;
        std::vector<std::string> reports;
        size_t pointCount, polygonCount;
    } cases[] = {
        {"0", "0", {"Numbers of points seems wrong", "Numbers of polygons seems wrong"}, 0, 0},
        {"-5", "1 p 0 0", {"Numbers of points seems wrong"}, 0, 1},
        {"10000000 1 2 3",
         "1 x 0 1 0",
         {"Numbers of points seems wrong",
          "Error \"End of file unexpected\" while parsing 'Points' data block", "Polygone type unknown"},
         1,
         1},
        {"2 nan 1 -INF 1.5 -inf 2",
         "1 p 0 1 1.5",
         {"NaN double.", "INF double.", "INF double.",
          "Error \"This is not a integer\" while parsing 'Polygons' data block"},
         2,
         1},
        // "M" then "I" is no marker pair: the "I" reaches the integer reader.
        {"1 0 0 0",
         "1 p 0 1 M 1 1 I 0",
         {"Error \"This is not a number\" while parsing 'Polygons' data block"},
         1,
         1},
        {"1 1 2 #3",
         "",
         {"Error \"This is not a number\" while parsing 'Points' data block",
          "Error \"End of file unexpected\" while parsing 'Polygons' data block"},
         0,
         0},
        {"1 1 2 nax",
         "",
         {"Error \"This is not a number\" while parsing 'Points' data block",
          "Error \"End of file unexpected\" while parsing 'Polygons' data block"},
         0,
         0},
    };
    for (const Case& c : cases) {
        CZelReportCollector feedback;
        CZelMgrHandle mgr(&feedback);
        EXPECT_EQ(0, Read(mgr.get(), Scene(c.points, c.polygons)));
        EXPECT_EQ(c.reports, Texts(feedback)) << c.points;
        EXPECT_EQ(c.pointCount, mgr->getPoints()->getCount()) << c.points;
        EXPECT_EQ(c.polygonCount, mgr->getPolygons()->getCount()) << c.points;
        EXPECT_EQ(-1, feedback.lastProgress()) << c.points;
    }
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    Read(mgr.get(), Scene("2 nan 0 -INF 0 0 0", "0"));
    EXPECT_EQ((Point{1e30, 0, -1e30}), PointsOf(mgr.get())[0]);
}

TEST(GeometryBlocks, WarningsOfWriting) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    Put(mgr.get(), kPoints,
        {{true, 0, {{Vertex(0), Vertex(1), Vertex(2)}, {Vertex(0)}}},
         {false, 0, {{Vertex(-1), Vertex(3), Vertex(2)}}}});
    feedback.clear();
    std::string polygons = Block(Write(mgr.get()), "Polygons");
    EXPECT_EQ("2 \nh\t0 2 3 0 1 2 1 0 \n\np\t0 3 -1 3 2 \n", polygons);
    EXPECT_EQ((std::vector<std::string>{"Holed polygone smoothed (smoothing will be loss)",
                                        "Polygon: invalid point index.", "Polygon: invalid point index."}),
              Texts(feedback));

    // The points of a storage are the host's: indices are not tested.
    RecordingStorage storage;
    storage.polygons = PolygonsOf(mgr.get());
    CZelMgrHandle external(&feedback, &storage);
    feedback.clear();
    Write(external.get());
    EXPECT_EQ(1u, feedback.count());
}

TEST(GeometryBlocks, AxisRuleOnBothPaths) {
    const double m[16] = {1, 0, 0, 10, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    struct Case {
        EVersionZEL client;
        const char* library;
        bool transform;
        Point expected;
    } cases[] = {
        {eZelVersionCurrent, "3.0.2", false, {1, 2, 3}}, {eZelVersion7, "3.0.2", false, {1, 3, 2}},
        {eZelVersionCurrent, "1.9.9", false, {1, 3, 2}}, {eZelVersion7, "1.9.9", false, {1, 2, 3}},
        {eZelVersionCurrent, "3.0.2", true, {11, 2, 3}}, {eZelVersionCurrent, "1.9.9", true, {11, 3, 2}},
    };
    for (const Case& c : cases) {
        RecordingStorage storage;
        for (CZelExtStorage* s :
             {static_cast<CZelExtStorage*>(nullptr), static_cast<CZelExtStorage*>(&storage)}) {
            CZelReportCollector feedback;
            CZelMgrHandle mgr(&feedback, s, c.client);
            if (c.transform) mgr->getMgrEx(6)->setTransform(m);
            ASSERT_EQ(0, Read(mgr.get(), Scene("1 1.0 2.0 3.0", "0", c.library)));
            EXPECT_EQ(c.expected, s ? storage.points[0] : PointsOf(mgr.get())[0])
                << c.client << c.library << s;
            // Written back in the file's order by the writer of either path.
            if (c.library[0] == '3' && !c.transform) {
                EXPECT_NE(std::string::npos, Block(Write(mgr.get()), "Points").find("\n1.0 2.0 3.0 \n"));
            }
        }
    }
    // A .db file puts its points into the scene as they stand, through a storage with the rule.
    for (bool external : {false, true}) {
        RecordingStorage storage;
        CZelMgrHandle mgr(nullptr, external ? &storage : nullptr, eZelVersion7);
        CZelMemoryStream stream("# header\n1 1.0 2.0 3.0");
        CReader reader(&stream, static_cast<CZEL*>(mgr.get()));
        CDBIO(static_cast<CZEL*>(mgr.get()), &reader, nullptr).readPoints();
        EXPECT_EQ((external ? Point{1, 3, 2} : Point{1, 2, 3}),
                  external ? storage.points[0] : PointsOf(mgr.get())[0]);
    }
}

TEST(GeometryBlocks, LegacySectionsAndMissingReadersOrWriters) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    CZEL* zel = static_cast<CZEL*>(mgr.get());
    CZelMemoryStream stream("0 \n");
    CReader reader(&stream, zel);
    CDBIO(zel, &reader, nullptr).readPolygons();
    EXPECT_EQ("Numbers of points seems wrong", feedback.last()); // the .db file's words for polygons
    EXPECT_EQ("CDBIO::read() : no reader provided!",
              ZelTest::ErrorOf([&] { CDBIO(zel, nullptr, nullptr).readPoints(); }));
    EXPECT_EQ("CDBIO::write() : no writer provided!",
              ZelTest::ErrorOf([&] { CPolygonsProvider(zel).WriteBlock(nullptr); }));

    Put(mgr.get(), kPoints, kPolygons);
    CWriter silent(nullptr, zel);
    EXPECT_EQ("Error in CPointIO::write()!",
              ZelTest::ErrorOf([&] { CDBIO(zel, nullptr, &silent).writePoints(); }));
    EXPECT_EQ("Error writing polygone",
              ZelTest::ErrorOf([&] { CDBIO(zel, nullptr, &silent).writePolygons(); }));
    RecordingStorage storage;
    storage.polygons = kPolygons;
    CZelMgrHandle external(&feedback, &storage);
    CZEL* ext = static_cast<CZEL*>(external.get());
    CWriter silentToo(nullptr, ext);
    EXPECT_EQ("Can't write polygone",
              ZelTest::ErrorOf([&] { CDBIO(ext, nullptr, &silentToo).writePolygons(); }));
}

TEST(GeometryBlocks, ProgressIsOneBarAndCanBeCancelled) {
    const std::string text = Scene(Many(6000, "123.456789 -123.456789 0.5\n"), Many(6000, "p 0 3 1 2 3\n"));
    const size_t points = text.find("<Points>"), polygons = text.find("<Polygons>");
    {
        // The clock moves once in each block: one report in each half of the bar.
        CZelReportCollector feedback;
        CZelMgrHandle mgr(&feedback);
        SlowStream stream(text);
        stream.marks = {points + 100000, polygons + 70000}; // read in 64 KB pieces
        ASSERT_EQ(0, mgr->read(&stream));
        EXPECT_EQ(2, feedback.progressCalls());
        EXPECT_GE(feedback.lastProgress(), 1000);
        EXPECT_EQ(2000, feedback.lastTotal());
    }
    {
        // Refused: the block ends at the next checkpoint, keeping what it read.
        CZelReportCollector feedback;
        feedback.cancelAfter(0);
        CZelMgrHandle mgr(&feedback);
        SlowStream stream(text);
        stream.marks = {polygons + 70000};
        ASSERT_EQ(0, mgr->read(&stream));
        EXPECT_EQ("Error \"Operation cancelled\" while parsing 'Polygons' data block", feedback.last());
        unsigned int kept = mgr->getPolygons()->getCount();
        EXPECT_TRUE(kept > 0 && kept < 6000 && kept % 100 == 0) << kept;
        EXPECT_EQ(6000u, mgr->getPoints()->getCount());

        // Writing goes by the same bar, and a refusal fails the write.
        SlowStream out;
        out.marks = {20000};
        EXPECT_EQ(2, mgr->write(&out));
        EXPECT_EQ("Operation cancelled", feedback.reports()[feedback.count() - 2].text);
        EXPECT_LT(feedback.lastProgress(), 1000);
    }
    RecordingStorage storage;
    storage.refuseAt = 5;
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback, &storage);
    Read(mgr.get(), text);
    EXPECT_EQ("Error \"External storage cancel IO\" while parsing 'Points' data block",
              feedback.reports()[0].text);
    EXPECT_EQ("Error \"External storage cancel IO\" while parsing 'Polygons' data block",
              feedback.reports()[1].text);
    EXPECT_EQ(6u, storage.points.size());
    CZelMemoryStream out;
    EXPECT_EQ(2, mgr->write(&out));
    EXPECT_TRUE(feedback.contains("External storage cancel IO"));
}

TEST(GeometryBlocks, ComponentPointsAreAnnouncedToTheStorage) {
    const std::string component =
        "<InternalComponentDefinitions><InternalComponentDefinition "
        "UUID=\"000102030405060708090a0b0c0d0e0f\"><Geometry.Level>3</Geometry.Level>"
        "<Points><![CDATA[1 0 0 0]]></Points></InternalComponentDefinition>"
        "<InternalComponentDefinition><Points><![CDATA[0]]></Points>"
        "</InternalComponentDefinition></InternalComponentDefinitions>";
    RecordingStorage storage;
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback, &storage);
    CZelMemoryStream stream(Scene("1 0 0 0", "0", "3.0.2", component));
    mgr->readDataBlocks(&stream, &storage);
    EXPECT_EQ((std::vector<std::string>{"points 1", "polygons 0", "note 000102030405060708090A0B0C0D0E0F 3",
                                        "points 1", "note 00000000000000000000000000000000 0", "points 0"}),
              storage.calls);

    // Writing a component's points tells the storage whose they are; the scene's own not.
    IZelZelObjectDefinition* definition =
        mgr->getObjectDefinitions()->newZelObject(static_cast<unsigned int>(-1));
    definition->setGeometryLevel(2);
    storage.calls.clear();
    Write(mgr.get());
    EXPECT_EQ((std::vector<std::string>{"note " + ZelUUIDToText(*definition->getUUID()) + " 2"}),
              storage.calls);
}

TEST(GeometryBlocks, RandomPolygonsRoundTrip) {
    std::mt19937 random(7);
    std::vector<Point> points(500);
    for (Point& p : points)
        for (double& c : p) c = static_cast<int>(random() % 2000000001 - 1000000000) / 1e6;
    std::vector<Polygon> polygons(3000);
    for (Polygon& p : polygons) {
        p.smoothed = random() % 2 != 0;
        p.property = random() % 40;
        p.loops.resize(1 + (random() % 4 == 0 ? random() % 3 : 0));
        for (Loop& loop : p.loops) {
            loop.resize(random() % 9);
            for (CZelVertex& v : loop) {
                v = Vertex(static_cast<int>(random() % 500), random() % 4);
                if (v.mFlags & eZelVertexMapped)
                    v.mU = (random() % 64) / 8.0f, v.mV = (random() % 64) / -8.0f;
            }
        }
        if (p.loops.size() > 1) p.smoothed = false; // a holed polygon is never smoothed in a file
    }
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    Put(mgr.get(), points, polygons);
    feedback.clear(); // property indices beyond the (empty) property list
    std::string text = GeometryOf(Write(mgr.get()));
    std::vector<Point> read;
    for (bool external : {false, true}) {
        RecordingStorage storage;
        CZelMgrHandle back(&feedback, external ? &storage : nullptr);
        ASSERT_EQ(0, Read(back.get(), text));
        read = external ? storage.points : PointsOf(back.get());
        ASSERT_EQ(points.size(), read.size());
        for (size_t i = 0; i < points.size(); ++i)
            for (int k = 0; k < 3; ++k) ASSERT_NEAR(points[i][k], read[i][k], 1e-9);
        EXPECT_TRUE(polygons == (external ? storage.polygons : PolygonsOf(back.get())));
        if (!external) {
            EXPECT_EQ(text, GeometryOf(Write(back.get())));
        }
    }
    // The token reader of a .db file takes the same numbers to the same bits.
    CZelMgrHandle db(&feedback);
    CZelMemoryStream block(Block(text, "Points"));
    CReader reader(&block, static_cast<CZEL*>(db.get()));
    CDBIO(static_cast<CZEL*>(db.get()), &reader, nullptr).readPoints();
    EXPECT_TRUE(read == PointsOf(db.get()));
    EXPECT_TRUE(feedback.empty()) << feedback.last();
}
