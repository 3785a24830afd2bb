#include "frame/Progress.h"
#include "frame/StreamAdapters.h"
#include "foundation/Platform.h"
#include "support/TestSupport.h"

#include <string>
#include <vector>

using namespace KeZel;

namespace {

// An XML engine source that delivers what it holds in pieces of at most `piece` bytes.
struct Source : KestraXML::CXMLReadStream {
    std::string bytes;
    size_t at = 0;
    int calls = 0;
    int Read(void* buffer, int length) override {
        ++calls;
        size_t n = std::min(bytes.size() - at, static_cast<size_t>(length));
        bytes.copy(static_cast<char*>(buffer), n, at);
        at += n;
        return static_cast<int>(n);
    }
};

struct Sink : KestraXML::XIXMLWriteStream {
    std::vector<int> writes;
    std::string bytes;
    int Write(const void* buffer, int length) override {
        writes.push_back(length);
        bytes.append(static_cast<const char*>(buffer), static_cast<size_t>(length));
        return length;
    }
};

std::string Pattern(size_t n) {
    std::string s(n, 0);
    for (size_t i = 0; i < n; ++i) s[i] = static_cast<char>('a' + i % 23);
    return s;
}

} // namespace

TEST(BlockReadStream, SlidesItsWindowAndSeeksBack) {
    Source source;
    source.bytes = Pattern(5000);
    CZelXMLReadStream stream(&source);
    char buffer[2048];
    EXPECT_EQ(stream.read(buffer, 0), 0);
    EXPECT_EQ(source.calls, 0);

    ASSERT_EQ(stream.read(buffer, 1025), 1025);
    EXPECT_EQ(std::string(buffer, 1025), source.bytes.substr(0, 1025));
    EXPECT_EQ(stream.tell(), 1025u);
    // The slide keeps 512 bytes behind the cursor: a step back re-reads the last byte.
    stream.seek(1024);
    ASSERT_EQ(stream.read(buffer, 1), 1);
    EXPECT_EQ(buffer[0], source.bytes[1024]);
    stream.seek(1025 - 400);
    ASSERT_EQ(stream.read(buffer, 600), 600);
    EXPECT_EQ(std::string(buffer, 600), source.bytes.substr(625, 600));

    std::string rest;
    int n;
    while ((n = stream.read(buffer, 700)) > 0) rest.append(buffer, static_cast<size_t>(n));
    EXPECT_EQ(rest, source.bytes.substr(1225));
    EXPECT_EQ(stream.tell(), 5000u);
    EXPECT_THROW(CZelXMLReadStream(nullptr), std::runtime_error);
}

TEST(BlockWriteStream, BuffersTwoKilobytes) {
    {
        Sink sink;
        {
            CZelXMLWriteStream stream(&sink);
            std::string exact = Pattern(2048);
            stream.write(exact.data(), 2048);
            EXPECT_TRUE(sink.writes.empty());
            EXPECT_EQ(stream.tell(), 0u);
        }
        EXPECT_EQ(sink.writes, std::vector<int>{2048});
    }
    {
        Sink sink;
        {
            CZelXMLWriteStream stream(&sink);
            stream.write("abc", 3);
            std::string big = Pattern(2049);
            stream.write(big.data(), 2049); // flushes the 3, then goes straight through
            EXPECT_EQ(sink.writes, (std::vector<int>{3, 2049}));
            stream.write("x", 1);
            std::string fill = Pattern(2048);
            stream.write(fill.data(), 2048); // would overflow: flush 1, buffer 2048
            EXPECT_EQ(sink.writes, (std::vector<int>{3, 2049, 1}));
        }
        EXPECT_EQ(sink.writes, (std::vector<int>{3, 2049, 1, 2048}));
        EXPECT_EQ(sink.bytes.size(), 3u + 2049 + 1 + 2048);
    }
    {
        Sink sink;
        { CZelXMLWriteStream stream(&sink); }
        EXPECT_TRUE(sink.writes.empty());
    }
    EXPECT_THROW(CZelXMLWriteStream(nullptr), std::runtime_error);
}

TEST(HostStreamAdapters, ForwardAndAnswerTheFullSize) {
    CZelMemoryStream host("hello");
    CZELXMLReadStream in(&host);
    char buffer[8];
    EXPECT_EQ(in.Read(buffer, 8), 5);
    CZelMemoryStream out;
    CZELXMLWriteStream writer(&out);
    EXPECT_EQ(writer.Write("abc", 3), 3);
    EXPECT_EQ(out.bytes(), "abc");
    CZelXMLStream* inert = new CZelXMLWriteStream(&writer);
    EXPECT_FALSE(inert->isOpen());
    EXPECT_EQ(inert->openStream("x", 0), nullptr);
    EXPECT_EQ(inert->read(buffer, 4), 0);
    inert->release(); // deletes itself
}

namespace {
// Burns processor time so that the progress throttle (100 ms of it) lets a report through.
void BurnMilliseconds(long ms) {
    long start = Kestra::Platform::ClockMilliseconds();
    volatile double x = 0;
    while (Kestra::Platform::ClockMilliseconds() - start <= ms) x = x + 1;
}
} // namespace

TEST(Progress, ReportsAtMostEveryHundredMillisecondsAndCancels) {
    CZelReportCollector feedback;
    feedback.cancelAfter(0);
    {
        // Fast work never reaches the clock threshold: a refusing host is never asked.
        CZelProgress p(&feedback, nullptr, 50, 0);
        for (unsigned i = 0; i < 50; ++i) p.check(i);
        EXPECT_NO_THROW(p.finish());
        EXPECT_EQ(feedback.progressCalls(), 0);
    }
    {
        CZelReportCollector ok;
        CZelProgress p(&ok, nullptr, 1000, 1000);
        p.check(0);
        BurnMilliseconds(110);
        p.check(50); // not a checkpoint: nothing
        EXPECT_EQ(ok.progressCalls(), 0);
        p.check(100);
        EXPECT_EQ(ok.progressCalls(), 1);
        EXPECT_EQ(ok.lastProgress(), 1100);
        EXPECT_EQ(ok.lastTotal(), 2000);
        BurnMilliseconds(110);
        p.finish(); // the checkpoint 200 is not beyond 1000: one more test at the count
        EXPECT_EQ(ok.lastProgress(), 2000);
    }
    {
        CZelProgress p(&feedback, nullptr, 0, 0); // a count of 0 counts as 1
        BurnMilliseconds(110);
        EXPECT_EQ(ZelTest::ErrorOf([&] { p.check(0); }), "Operation cancelled");
    }
    EXPECT_EQ(ZelTest::ErrorOf([&] { ZelReportProgress(&feedback, nullptr, 1, 2); }), "Operation cancelled");
    EXPECT_NO_THROW(ZelReportProgress(nullptr, nullptr, 1, 2));
}
