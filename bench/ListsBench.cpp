// The fast list at the size of a big scene: 10 million points appended, read at random
// and removed from the end, with items from one `new` each against items from the pool.
// Counters: time_per_item, and bytes_per_item = heap bytes in use (allocator overhead
// included, block of pointers included) divided by the item count.
#include "frame/CZEL.h"
#include "frame/ObjectLists.h"
#include "frame/ZelTypes.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdint>
#include <vector>

using namespace KeZel;

namespace {

// As the scene's point: three doubles, no virtual table.
struct BenchPoint : CZelVector {};

// About the size of a polygon with its inline vertices and hole list.
struct BenchPolygon : CZelVector {
    virtual ~BenchPolygon() {}
    unsigned char mRest[104];
};

template <class Impl> using NewList = TRapideMgr<Impl, CZelVector, CZEL, TZelNewItems<Impl>>;
template <class Impl> using PoolList = TRapideMgr<Impl, CZelVector, CZEL, TZelPooledItems<Impl>>;

const unsigned int kItems = 10000000;

// Seconds per item, shown with an SI prefix ("28.5n" is 28.5 ns).
benchmark::Counter PerItem() {
    return benchmark::Counter(kItems,
                              benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

size_t HeapBytes() {
    struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

template <class List> void Fill(List& list, unsigned int count) {
    TZelObjectMgr<CZelVector>* face = &list; // as a reader adds: through the interface
    for (unsigned int i = 0; i < count; ++i) face->newZelObject(kZelListEnd)->x = i;
}

// range(0): 1 to presize the block to the count, as the block reader does; 0 to grow.
template <class List> void Append(benchmark::State& state) {
    bool presize = state.range(0) != 0;
    double bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        size_t before = HeapBytes();
        List* list = new List(nullptr);
        state.ResumeTiming();
        if (presize) list->reserve(kItems);
        Fill(*list, kItems);
        state.PauseTiming();
        bytes = static_cast<double>(HeapBytes() - before);
        delete list;
        state.ResumeTiming();
    }
    state.counters["bytes_per_item"] = bytes / kItems;
    state.counters["time_per_item"] = PerItem();
}

template <class List> void RandomAccess(benchmark::State& state) {
    List list(nullptr);
    list.reserve(kItems);
    Fill(list, kItems);
    std::vector<unsigned int> order(kItems);
    uint64_t seed = 88172645463325252ull;
    for (unsigned int& index : order) {
        seed ^= seed << 13;
        seed ^= seed >> 7;
        seed ^= seed << 17;
        index = static_cast<unsigned int>(seed % kItems);
    }
    const TZelObjectMgr<CZelVector>* face = &list;
    for (auto _ : state) {
        double sum = 0;
        for (unsigned int index : order) sum += face->getZelObject(index)->x;
        benchmark::DoNotOptimize(sum);
    }
    state.counters["time_per_item"] = PerItem();
}

template <class List> void RemoveFromEnd(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        List* list = new List(nullptr);
        list->reserve(kItems);
        Fill(*list, kItems);
        state.ResumeTiming();
        TZelObjectMgr<CZelVector>* face = list;
        while (face->getCount()) face->removeObject(kZelListEnd);
        state.PauseTiming();
        delete list;
        state.ResumeTiming();
    }
    state.counters["time_per_item"] = PerItem();
}

#define ZEL_LIST_BENCH(fn, list, ...)                                                                        \
    BENCHMARK_TEMPLATE(fn, list)->Unit(benchmark::kMillisecond)->Iterations(3) __VA_ARGS__;

ZEL_LIST_BENCH(Append, NewList<BenchPoint>, ->Arg(1)->Arg(0))
ZEL_LIST_BENCH(Append, PoolList<BenchPoint>, ->Arg(1)->Arg(0))
ZEL_LIST_BENCH(RandomAccess, NewList<BenchPoint>)
ZEL_LIST_BENCH(RandomAccess, PoolList<BenchPoint>)
ZEL_LIST_BENCH(RemoveFromEnd, NewList<BenchPoint>)
ZEL_LIST_BENCH(RemoveFromEnd, PoolList<BenchPoint>)
ZEL_LIST_BENCH(Append, NewList<BenchPolygon>, ->Arg(1))
ZEL_LIST_BENCH(Append, PoolList<BenchPolygon>, ->Arg(1))

} // namespace

BENCHMARK_MAIN();
