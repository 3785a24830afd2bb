// The XML engine on a 100 MB scene-like document (elements with attributes and short
// texts, plus large CDATA blocks): our tree reader against libxml2's xmlReadMemory on
// the same bytes, and our writer putting the tree back out.
#include "xml/XMLParser.h"
#include "xml/XMLTree.h"

#include <benchmark/benchmark.h>

#ifdef ZEL_HAVE_LIBXML2
#include <libxml/parser.h>
#endif

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

using namespace KestraXML;

namespace {

constexpr size_t kDocumentSize = 100u << 20;
constexpr size_t kBlockSize = 256u << 10;

// In the writer's own layout, so that writing it back gives the same bytes. Objects
// with a handful of attributes and value elements; every 800th carries a block
// of hexadecimal data, the way points and images are stored. About half of the bytes
// are markup.
const std::string& Document() {
    static const std::string document = [] {
        std::string d;
        d.reserve(kDocumentSize + (1u << 20));
        d += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Zel.File\n\t library=\"3.0.2\"\n\t "
             "min_version=\"3.0.0\">\n"
             "\t<Objects>\n";
        uint32_t seed = 12345;
        auto next = [&seed] { return seed = seed * 1664525u + 1013904223u; };
        char line[512];
        for (unsigned n = 0; d.size() < kDocumentSize; ++n) {
            snprintf(line, sizeof line,
                     "\t\t<Object\n\t\t\t name=\"Object %u\"\n\t\t\t uuid=\"%08X%08X%08X%08X\"\n\t\t\t "
                     "layer=\"%u\">\n"
                     "\t\t\t<Position>%.6f %.6f %.6f</Position>\n\t\t\t<Color>%u %u %u</Color>\n"
                     "\t\t\t<Scale\n\t\t\t\t x=\"%.3f\"\n\t\t\t\t y=\"%.3f\"\n\t\t\t\t "
                     "z=\"%.3f\"/>\n\t\t\t<Comment>Wall &amp; window %u</Comment>\n"
                     "\t\t\t<Visible/>\n",
                     n, next(), next(), next(), next(), next() % 16, (next() % 100000) / 7.0,
                     (next() % 100000) / 3.0, (next() % 100000) / 9.0, next() % 256, next() % 256,
                     next() % 256, (next() % 1000) / 100.0, (next() % 1000) / 100.0, (next() % 1000) / 100.0,
                     n);
            d += line;
            if (n % 800 == 0) {
                d += "\t\t\t<Points count=\"16384\"><![CDATA[";
                static const char kHex[] = "0123456789ABCDEF";
                for (size_t i = 0; i < kBlockSize; ++i) d += (i % 64 == 63) ? '\n' : kHex[next() >> 28];
                d += "]]>\n\t\t\t</Points>\n";
            }
            d += "\t\t</Object>\n";
        }
        d += "\t</Objects>\n</Zel.File>\n";
        return d;
    }();
    return document;
}

class MemoryReader : public CXMLReadStream {
public:
    explicit MemoryReader(const std::string& text) : mData(text.data()), mLeft(text.size()) {}
    int Read(void* buffer, int length) override {
        size_t count = std::min(static_cast<size_t>(length), mLeft);
        std::memcpy(buffer, mData, count);
        mData += count;
        mLeft -= count;
        return static_cast<int>(count);
    }

private:
    const char* mData;
    size_t mLeft;
};

class MemoryWriter : public XIXMLWriteStream {
public:
    // The memory is touched once beforehand, so that page faults are not timed.
    explicit MemoryWriter(size_t capacity) : mData(new char[capacity]), mCapacity(capacity) {
        std::memset(mData.get(), 0, capacity);
    }
    int Write(const void* buffer, int length) override {
        size_t count = std::min(static_cast<size_t>(length), mCapacity - mSize);
        std::memcpy(mData.get() + mSize, buffer, count);
        mSize += count;
        return static_cast<int>(count);
    }
    std::unique_ptr<char[]> mData;
    size_t mCapacity;
    size_t mSize = 0;
};

// A data block kept in memory, as the scene keeps its points until it writes them.
class BlockProvider : public XIXMLData::IXMLCData {
public:
    explicit BlockProvider(std::string block) : mBlock(std::move(block)) {}
    bool Write(XIXMLWriteStream* stream, int, XIXMLData*) override {
        return stream->Write(mBlock.data(), static_cast<int>(mBlock.size())) ==
               static_cast<int>(mBlock.size());
    }
    IXMLCData* Clone(XIXMLElement*) override { return new BlockProvider(mBlock); }
    void Destroy() override { delete this; }

private:
    std::string mBlock;
};

// Reads each block in 64 KB pieces into a provider on the element.
class BlockReader : public IXMLCDataReader {
public:
    bool Read(XIXMLElement* element, CXMLReadStream* stream, CXMLParser*) override {
        std::string block;
        for (;;) {
            size_t size = block.size();
            block.resize(size + kPiece);
            int count = stream->Read(&block[size], kPiece);
            block.resize(size + static_cast<size_t>(count));
            if (count < kPiece) break;
        }
        element->NewData(new BlockProvider(std::move(block)));
        return true;
    }

private:
    enum { kPiece = 64 << 10 };
};

double Seconds(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void TreeRead(benchmark::State& state, IXMLCDataReader* blocks) {
    const std::string& document = Document();
    for (auto _ : state) {
        MemoryReader stream(document);
        CXMLTreeReader reader(blocks);
        auto start = std::chrono::steady_clock::now();
        std::unique_ptr<XCXMLTree> tree(reader.Read(&stream));
        state.SetIterationTime(Seconds(start));
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * document.size()));
}

// CDATA blocks become text nodes, as libxml2 makes CDATA nodes.
void TreeReadWithoutBlockReader(benchmark::State& state) {
    TreeRead(state, nullptr);
}

// CDATA blocks go to a data block reader in pieces, as the scene reads them.
void TreeReadWithBlockReader(benchmark::State& state) {
    BlockReader blocks;
    TreeRead(state, &blocks);
}

void TreeWrite(benchmark::State& state) {
    const std::string& document = Document();
    BlockReader blocks;
    CXMLTreeReader reader(&blocks);
    MemoryReader input(document);
    std::unique_ptr<XCXMLTree> tree(reader.Read(&input));
    size_t written = 0;
    for (auto _ : state) {
        MemoryWriter out(document.size() + 1024);
        auto start = std::chrono::steady_clock::now();
        tree->GetRoot()->Write(&out);
        state.SetIterationTime(Seconds(start));
        written = out.mSize;
        if (written != document.size() || std::memcmp(out.mData.get(), document.data(), written) != 0)
            state.SkipWithError("the document written differs from the one read");
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * written));
}

#ifdef ZEL_HAVE_LIBXML2
void Libxml2Read(benchmark::State& state, int options) {
    const std::string& document = Document();
    for (auto _ : state) {
        auto start = std::chrono::steady_clock::now();
        xmlDocPtr doc = xmlReadMemory(document.data(), static_cast<int>(document.size()), "bench.xml",
                                      nullptr, options | XML_PARSE_HUGE);
        state.SetIterationTime(Seconds(start));
        if (!doc) state.SkipWithError("libxml2 refused the document");
        xmlFreeDoc(doc);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * document.size()));
}

void Libxml2ReadMemory(benchmark::State& state) {
    Libxml2Read(state, 0);
}

void Libxml2ReadMemoryNoBlanks(benchmark::State& state) {
    Libxml2Read(state, XML_PARSE_NOBLANKS);
}
#endif

} // namespace

BENCHMARK(TreeReadWithoutBlockReader)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(TreeReadWithBlockReader)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
#ifdef ZEL_HAVE_LIBXML2
BENCHMARK(Libxml2ReadMemory)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(Libxml2ReadMemoryNoBlanks)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
#endif
BENCHMARK(TreeWrite)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

BENCHMARK_MAIN();
