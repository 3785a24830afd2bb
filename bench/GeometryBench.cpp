// Geometry at the size of big scenes: 1 and 10 million points and as many triangles,
// written and read as a whole scene file, in memory and through a storage that only
// counts. Beside them, on the same bytes: libxml2's xmlReadMemory (which only tokenises
// and converts no number) and a plain memchr pass over the bytes (the floor).
//
// Throughput is bytes_per_second of file text, timed in processor time. Memory/n reads
// the file in a child process and gives what the read added, per point (a file of points
// alone) and per triangle (the whole file less that): peak resident bytes, and heap
// bytes in use as a cross-check.
#include "frame/ZelEntryPoints.h"
#include "frame/ZelHost.h"
#include "frame/ZelMgr.h"
#include "model/geometry/IZelPolygon.h"

#include <benchmark/benchmark.h>

#ifdef ZEL_HAVE_LIBXML2
#include <libxml/parser.h>
#endif

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <ctime>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <memory>
#include <string>

using namespace KeZel;

namespace {

// Reproducible geometry: a point's coordinates and a triangle's corners from its index.
uint64_t Mix(uint64_t x) {
    x ^= x >> 33;
    x *= 0xff51afd7ed558ccdull;
    x ^= x >> 33;
    x *= 0xc4ceb3f99e59b7c5ull;
    return x ^ (x >> 33);
}
// -1000 .. 1000 with six decimals, as architectural models in metres look.
double Coordinate(uint64_t i, int k) {
    return static_cast<double>(static_cast<int64_t>(Mix(i * 3 + k) % 2000000001) - 1000000000) / 1e6;
}
int Corner(uint64_t i, int k, unsigned int points) {
    return static_cast<int>(Mix(~(i * 3 + k)) % points);
}

// A read-only stream over bytes that stay where they are.
class InputStream : public CZelStream {
public:
    InputStream(const char* data, size_t size) : mData(data), mSize(size), mPosition(0) {}
    bool isOpen() override { return true; }
    CZelStream* openStream(const char*, int) override { return nullptr; }
    void release() override {}
    void flush() override {}
    int read(void* buffer, int size) override {
        size_t n =
            mSize - mPosition < static_cast<size_t>(size) ? mSize - mPosition : static_cast<size_t>(size);
        std::memcpy(buffer, mData + mPosition, n);
        mPosition += n;
        return static_cast<int>(n);
    }
    void write(const void*, int) override {}
    unsigned int tell() override { return static_cast<unsigned int>(mPosition); }
    void seek(unsigned int position) override { mPosition = position; }

private:
    const char* mData;
    size_t mSize;
    size_t mPosition;
};

// Writes into memory touched beforehand, so that page faults are not timed.
class OutputStream : public CZelStream {
public:
    explicit OutputStream(size_t capacity) : mData(new char[capacity]), mCapacity(capacity), mSize(0) {
        std::memset(mData.get(), 0, capacity);
    }
    bool isOpen() override { return true; }
    CZelStream* openStream(const char*, int) override { return nullptr; }
    void release() override {}
    void flush() override {}
    int read(void*, int) override { return 0; }
    void write(const void* buffer, int size) override {
        size_t n =
            mCapacity - mSize < static_cast<size_t>(size) ? mCapacity - mSize : static_cast<size_t>(size);
        std::memcpy(mData.get() + mSize, buffer, n);
        mSize += n;
    }
    unsigned int tell() override { return static_cast<unsigned int>(mSize); }
    void seek(unsigned int) override {}
    std::string text() const { return std::string(mData.get(), mSize); }
    size_t size() const { return mSize; }

private:
    std::unique_ptr<char[]> mData;
    size_t mCapacity;
    size_t mSize;
};

// Counts what reading hands it, and hands out the generated geometry for writing.
class CountingStorage : public CZelExtStorage {
public:
    explicit CountingStorage(unsigned int count) : mCount(count) {}
    void noteInternalComponent(const CZelUUID*, int) override {}
    void beginPoints(CZelMgr*, unsigned int) override {}
    bool addPoint(CZelMgr*, const double* c, int) override {
        ++mPoints;
        mSum += c[0];
        return true;
    }
    void beginPolygons(CZelMgr*, unsigned int) override {}
    bool addPolygon(CZelMgr*, CZelPolygon* polygon, int) override {
        ++mPolygons;
        mVertices += polygon->getVertices()->getCount();
        return true;
    }
    int getPointCount() override { return static_cast<int>(mCount); }
    bool getPoint(CZelMgr*, double* c, int i) override {
        for (int k = 0; k < 3; ++k) c[k] = Coordinate(i, k);
        return true;
    }
    int getPolygonCount() override { return static_cast<int>(mCount); }
    bool getPolygon(CZelMgr*, CZelPolygon* polygon, int i) override {
        TZelObjectMgr<CZelVertex>* vertices = polygon->getVertices();
        for (int k = 0; k < 3; ++k) vertices->newZelObject(kEnd)->mPointIndex = Corner(i, k, mCount);
        return true;
    }
    size_t mPoints = 0, mPolygons = 0, mVertices = 0;
    double mSum = 0;

private:
    static const unsigned int kEnd = 0xFFFFFFFFu;
    unsigned int mCount;
};

// Ten million is one past the plausible count: the two count warnings are expected.
class Quiet : public CZelFeedback {
public:
    void reportError(CZelMgr*, const char* text) override {
        if (!std::strstr(text, "seems wrong")) mLast = text;
    }
    bool reportProgress(CZelMgr*, int, int) override { return true; }
    std::string mLast;
};

// The scene of `n` points and triangles, in memory.
CZelMgr* BuildScene(unsigned int n, Quiet* feedback) {
    CZelMgr* mgr = zel_new_mgr(eZelVersionCurrent, feedback, nullptr);
    TZelObjectMgr<CZelVector>* points = mgr->getPoints();
    for (unsigned int i = 0; i < n; ++i) {
        CZelVector* p = points->newZelObject(0xFFFFFFFFu);
        p->x = Coordinate(i, 0), p->y = Coordinate(i, 1), p->z = Coordinate(i, 2);
    }
    TZelObjectMgr<CZelPolygon>* polygons = mgr->getPolygons();
    for (unsigned int i = 0; i < n; ++i) {
        CZelPolygon* polygon = polygons->newZelObject(0xFFFFFFFFu);
        for (int k = 0; k < 3; ++k)
            polygon->getVertices()->newZelObject(0xFFFFFFFFu)->mPointIndex = Corner(i, k, n);
    }
    return mgr;
}

struct SceneFile {
    std::string written;    // the whole scene as the manager writes it
    std::string text;       // its two geometry blocks in a document of their own
    std::string pointsOnly; // the same with an empty Polygons block
};

std::string BlockOf(const std::string& scene, const char* name) {
    std::string open = std::string("<") + name + "><![CDATA[";
    size_t start = scene.find(open) + open.size();
    return scene.substr(start, scene.find("]]>", start) - start);
}

std::string Document(const std::string& points, const std::string& polygons) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<?Zel library=\"3.0.2\" file=\"5.0\" "
           "min_version=\"3.0.1\" safe_version=\"3.0.1\"?>\n<Zel.File>\n\t<Points><![CDATA[" +
           points + "]]>\n\t</Points>\n\t<Polygons><![CDATA[" + polygons +
           "]]>\n\t</Polygons>\n</Zel.File>\n";
}

// Every reader reads the geometry blocks of the written scene in a document of their
// own: libxml2 must take the same bytes as well-formed XML, and the rest of a default
// scene is a few kilobytes beside the blocks.
const SceneFile& Scene(unsigned int n) {
    static std::map<unsigned int, SceneFile> files;
    SceneFile& file = files[n];
    if (file.written.empty()) {
        Quiet feedback;
        CZelMgr* mgr = BuildScene(n, &feedback);
        OutputStream out(size_t(n) * 80 + 65536);
        mgr->write(&out);
        mgr->destroy();
        file.written = out.text();
        std::string points = BlockOf(file.written, "Points");
        file.text = Document(points, BlockOf(file.written, "Polygons"));
        file.pointsOnly = Document(points, "0 ");
    }
    return file;
}

// Processor time of the process: the machine is shared, and the work timed is
// single-threaded (page faults of the memory it builds included).
struct Clock {
    static double Now() {
        timespec t;
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
        return static_cast<double>(t.tv_sec) + t.tv_nsec * 1e-9;
    }
};
double Seconds(double start) {
    return Clock::Now() - start;
}

void Report(benchmark::State& state, size_t bytes, const std::string& failure) {
    if (!failure.empty()) state.SkipWithError(failure.c_str());
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
    state.counters["MB"] = static_cast<double>(bytes) / 1e6;
}

// The storage's writer puts a line end less after each polygon and two more around the
// points: the same scene, a little shorter.
void Write(benchmark::State& state, bool external) {
    unsigned int n = static_cast<unsigned int>(state.range(0));
    size_t size = Scene(n).written.size() + (external ? 1 - size_t(n) : 0);
    Quiet feedback;
    CountingStorage storage(n);
    CZelMgr* mgr = external ? zel_new_mgr(eZelVersionCurrent, &feedback, &storage) : BuildScene(n, &feedback);
    for (auto _ : state) {
        OutputStream out(size + 65536);
        double start = Clock::Now();
        int result = mgr->write(&out);
        state.SetIterationTime(Seconds(start));
        if (result != 0 || out.size() != size) state.SkipWithError("the scene written differs in size");
    }
    mgr->destroy();
    Report(state, size, feedback.mLast);
}

void Read(benchmark::State& state, bool external) {
    unsigned int n = static_cast<unsigned int>(state.range(0));
    const std::string& text = Scene(n).text;
    Quiet feedback;
    for (auto _ : state) {
        CountingStorage storage(n);
        CZelMgr* mgr = zel_new_mgr(eZelVersionCurrent, &feedback, external ? &storage : nullptr);
        InputStream in(text.data(), text.size());
        double start = Clock::Now();
        int result = mgr->read(&in);
        state.SetIterationTime(Seconds(start));
        size_t polygons = external ? storage.mPolygons : mgr->getPolygons()->getCount();
        if (result != 0 || polygons != n) state.SkipWithError("the scene read is not whole");
        mgr->destroy();
    }
    Report(state, text.size(), feedback.mLast);
}

void WriteInMemory(benchmark::State& state) {
    Write(state, false);
}
void WriteExternal(benchmark::State& state) {
    Write(state, true);
}
void ReadInMemory(benchmark::State& state) {
    Read(state, false);
}
void ReadExternal(benchmark::State& state) {
    Read(state, true);
}

#ifdef ZEL_HAVE_LIBXML2
void Libxml2ReadMemory(benchmark::State& state) {
    const std::string& text = Scene(static_cast<unsigned int>(state.range(0))).text;
    for (auto _ : state) {
        double start = Clock::Now();
        xmlDocPtr doc =
            xmlReadMemory(text.data(), static_cast<int>(text.size()), "scene.zel", nullptr, XML_PARSE_HUGE);
        state.SetIterationTime(Seconds(start));
        if (!doc) state.SkipWithError("libxml2 refused the scene");
        xmlFreeDoc(doc);
    }
    Report(state, text.size(), "");
}
#endif

void Memchr(benchmark::State& state) {
    const std::string& text = Scene(static_cast<unsigned int>(state.range(0))).text;
    for (auto _ : state) {
        double start = Clock::Now();
        size_t lines = 0;
        const char* p = text.data();
        const char* end = p + text.size();
        while ((p = static_cast<const char*>(std::memchr(p, '\n', static_cast<size_t>(end - p)))) !=
               nullptr) {
            ++lines;
            ++p;
        }
        state.SetIterationTime(Seconds(start));
        benchmark::DoNotOptimize(lines);
    }
    Report(state, text.size(), "");
}

long StatusKilobytes(const char* field) {
    std::ifstream status("/proc/self/status");
    std::string line;
    size_t length = std::strlen(field);
    while (std::getline(status, line))
        if (line.compare(0, length, field) == 0) return std::atol(line.c_str() + length + 1);
    return -1;
}

double HeapBytes() {
    struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// What reading `text` into a fresh manager adds: peak resident bytes and heap bytes in
// use. Measured in a child process that first gives the heap it inherited, freed by the
// benchmarks before, back to the system, and whose peak is then reset.
struct Added {
    double resident;
    double heap;
};
Added AddedByRead(const std::string& text) {
    Added added = {-1, -1};
    int channel[2];
    if (pipe(channel) != 0) return added;
    pid_t child = fork();
    if (child == 0) {
        malloc_trim(0);
        std::ofstream reset("/proc/self/clear_refs");
        reset << "5";
        reset.close();
        long before = StatusKilobytes("VmRSS:");
        double heap = HeapBytes();
        Quiet feedback;
        CZelMgr* mgr = zel_new_mgr(eZelVersionCurrent, &feedback, nullptr);
        InputStream in(text.data(), text.size());
        if (mgr->read(&in) == 0) {
            added.resident = (StatusKilobytes("VmHWM:") - before) * 1024.0;
            added.heap = HeapBytes() - heap;
        }
        if (write(channel[1], &added, sizeof added) != sizeof added) _exit(1);
        _exit(0);
    }
    if (read(channel[0], &added, sizeof added) != sizeof added) added.resident = -1;
    close(channel[0]);
    close(channel[1]);
    waitpid(child, nullptr, 0);
    return added;
}

void Memory(benchmark::State& state) {
    unsigned int n = static_cast<unsigned int>(state.range(0));
    const SceneFile& file = Scene(n);
    Added points = {0, 0}, all = {0, 0};
    for (auto _ : state) {
        points = AddedByRead(file.pointsOnly);
        all = AddedByRead(file.text);
    }
    if (points.resident < 0 || all.resident < 0) state.SkipWithError("the child process could not measure");
    state.counters["bytes_per_point"] = points.resident / n;
    state.counters["bytes_per_triangle"] = (all.resident - points.resident) / n;
    state.counters["heap_per_point"] = points.heap / n;
    state.counters["heap_per_triangle"] = (all.heap - points.heap) / n;
}

} // namespace

#define ZEL_GEOMETRY_BENCH(fn)                                                                               \
    BENCHMARK(fn)->Arg(1000000)->Arg(10000000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

ZEL_GEOMETRY_BENCH(WriteInMemory)
ZEL_GEOMETRY_BENCH(WriteExternal)
ZEL_GEOMETRY_BENCH(ReadInMemory)
ZEL_GEOMETRY_BENCH(ReadExternal)
#ifdef ZEL_HAVE_LIBXML2
ZEL_GEOMETRY_BENCH(Libxml2ReadMemory)
#endif
ZEL_GEOMETRY_BENCH(Memchr)
BENCHMARK(Memory)->Arg(1000000)->Arg(10000000)->Unit(benchmark::kMillisecond)->Iterations(1);

BENCHMARK_MAIN();
