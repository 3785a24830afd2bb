// Sniffing costs the head of a file, whatever its size; and the hex block of a full-HD
// preview, both ways.
#include "foundation/XMLImage.h"
#include "frame/ZelMgr.h"
#include "frame/ZelStream.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <string>

using namespace KeZel;

namespace {

// A read-only stream over bytes that it does not copy.
class CViewStream : public CZelStream {
public:
    CViewStream(const char* data, size_t size) : mData(data), mSize(size), mPosition(0) {}
    bool isOpen() override { return true; }
    CZelStream* openStream(const char*, int) override { return nullptr; }
    void release() override {}
    void flush() override {}
    int read(void* buffer, int size) override {
        if (size <= 0 || mPosition >= mSize) return 0;
        size_t n = mSize - mPosition;
        if (n > static_cast<size_t>(size)) n = static_cast<size_t>(size);
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

// A scene of about `size` bytes: the instructions, a preview, and a geometry block.
std::string Scene(size_t size) {
    std::string s = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                    "<?Zel library=\"3.0.2\" file=\"5.0\" min_version=\"3.0.1\" safe_version=\"3.0.1\" ?>\n"
                    "<?Application name=\"Vantorium\" version=\"2026\"?>\n"
                    "<Zel.File>\n\t<Preview.Image><![CDATA[0000000100000001000000010000000100FF8040]]>"
                    "\n\t</Preview.Image>\n\t<Points><![CDATA[";
    s.reserve(size + 64);
    while (s.size() < size) s += "0.0 1.5 2.25 ";
    s += "]]>\n\t</Points>\n</Zel.File>\n";
    return s;
}

void SniffHead(benchmark::State& state) {
    const std::string file = Scene(static_cast<size_t>(state.range(0)) << 20);
    CViewStream stream(file.data(), file.size());
    eReadability readability = eReadabilityNone;
    CZelVersion version;
    char creator[64];
    for (auto _ : state) {
        bool ok = CZelMgr::checkFormat2(&stream, &readability, &version, creator, sizeof creator);
        benchmark::DoNotOptimize(ok);
    }
    if (readability != eReadabilityCurrent) state.SkipWithError("not sniffed as current");
    state.SetLabel(std::to_string(state.range(0)) + " MB file");
}
BENCHMARK(SniffHead)->Arg(1)->Arg(200)->Unit(benchmark::kMicrosecond);

// A rendered picture: smooth shading with noise, so that runs are short, as in a real
// preview.
Kestra::XCPixels& Preview() {
    static Kestra::XCPixels image(1920, 1080, nullptr);
    static bool made = false;
    if (!made) {
        unsigned int seed = 12345;
        for (unsigned int y = 0; y < 1080; ++y)
            for (unsigned int x = 0; x < 1920; ++x) {
                seed = seed * 1103515245u + 12345u;
                unsigned int noise = (seed >> 16) & 3;
                unsigned int r = (x * 255 / 1919) & 0xFC, g = (y * 255 / 1079) & 0xFC, b = 0x80;
                // A sky band of one colour, as renders have.
                if (y < 200) r = g = 0xA0, noise = 0;
                image.SetAt(x, y, 0xFF000000u | ((r | noise) << 16) | (g << 8) | b);
            }
        made = true;
    }
    return image;
}

class CSink : public KestraXML::XIXMLWriteStream {
public:
    int Write(const void* buffer, int length) override {
        if (mKeep) mText.append(static_cast<const char*>(buffer), static_cast<size_t>(length));
        mBytes += static_cast<size_t>(length);
        return length;
    }
    bool mKeep = false;
    size_t mBytes = 0;
    std::string mText;
};

class CSource : public KestraXML::CXMLReadStream {
public:
    explicit CSource(const std::string& text) : mText(text), mPosition(0) {}
    int Read(void* buffer, int length) override {
        size_t n = std::min(mText.size() - mPosition, static_cast<size_t>(length));
        std::memcpy(buffer, mText.data() + mPosition, n);
        mPosition += n;
        return static_cast<int>(n);
    }
    void Rewind() { mPosition = 0; }

private:
    const std::string& mText;
    size_t mPosition;
};

void HexEncode1080p(benchmark::State& state) {
    Kestra::XCPixels& image = Preview();
    size_t bytes = 0;
    for (auto _ : state) {
        CSink sink;
        Kestra::WriteHexImage(image, &sink);
        bytes = sink.mBytes;
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
    state.SetLabel(std::to_string(bytes) + " bytes of hex");
}
BENCHMARK(HexEncode1080p)->Unit(benchmark::kMillisecond);

void HexDecode1080p(benchmark::State& state) {
    CSink sink;
    sink.mKeep = true;
    Kestra::WriteHexImage(Preview(), &sink);
    CSource source(sink.mText);
    Kestra::XCPixels image;
    for (auto _ : state) {
        source.Rewind();
        Kestra::ReadHexImage(&source, image);
        benchmark::DoNotOptimize(image.GetData());
    }
    if (image.GetWidth() != 1920 || image.GetHeight() != 1080) state.SkipWithError("decode failed");
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * sink.mText.size()));
}
BENCHMARK(HexDecode1080p)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
