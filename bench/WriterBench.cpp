// Cost of one number in the legacy text form, the way the geometry blocks write it
// (CWriter over the buffered block stream), against the C library's "%.6f" on the same
// values.
#include "frame/StreamAdapters.h"
#include "legacy/TextWriter.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>
#include <vector>

using namespace KeZel;

namespace {

// Coordinates as scenes have them: metres to kilometres, a few integral values.
const std::vector<double>& Values() {
    static const std::vector<double> values = [] {
        std::mt19937_64 random(7);
        std::uniform_real_distribution<double> coordinate(-5000.0, 5000.0);
        std::vector<double> v(4096);
        for (size_t i = 0; i < v.size(); ++i)
            v[i] =
                (i % 8 == 0) ? static_cast<double>(static_cast<int>(coordinate(random))) : coordinate(random);
        return v;
    }();
    return values;
}

// The end of the block: takes the bytes and keeps nothing.
class CSink : public KestraXML::XIXMLWriteStream {
public:
    int Write(const void* buffer, int length) override {
        benchmark::DoNotOptimize(buffer);
        mBytes += static_cast<size_t>(length);
        return length;
    }
    size_t mBytes = 0;
};

void WriteDouble(benchmark::State& state) {
    const std::vector<double>& values = Values();
    CSink sink;
    CZelXMLWriteStream stream(&sink);
    CWriter writer(&stream, nullptr);
    size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(writer.WriteDouble(values[i]));
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}

// The text alone, without the stream.
void FormatDouble(benchmark::State& state) {
    const std::vector<double>& values = Values();
    char text[64];
    size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(CWriter::FormatDouble(values[i], text));
        benchmark::ClobberMemory();
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}

void Snprintf(benchmark::State& state) {
    const std::vector<double>& values = Values();
    char text[64];
    size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::snprintf(text, sizeof text, "%.6f", values[i]));
        benchmark::ClobberMemory();
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}

} // namespace

BENCHMARK(WriteDouble);
BENCHMARK(FormatDouble);
BENCHMARK(Snprintf);
BENCHMARK_MAIN();
