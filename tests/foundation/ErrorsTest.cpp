#include "foundation/BaseRefCount.h"
#include "foundation/Errors.h"
#include "foundation/Mine.h"
#include "support/TestSupport.h"

#include <stdexcept>
#include <string>

using namespace Kestra;
using ZelTest::ErrorOf;
using ZelTest::LogCapture;

TEST(Raising, MessagesHaveTheirFixedForms) {
    EXPECT_EQ(ErrorOf([] { XThrow(nullptr); }), "exception");
    EXPECT_EQ(ErrorOf([] { XThrow("Can't create UUID"); }), "Can't create UUID");
    EXPECT_EQ(ErrorOf([] { XThrowAssert(nullptr); }), "exception (assertion failed)");
    EXPECT_EQ(ErrorOf([] { XThrowNull("p"); }), "p (pointer is NULL)");
    EXPECT_EQ(ErrorOf([] { XThrowCode(7, "x"); }), "x (error #7)");
    EXPECT_EQ(ErrorOf([] { XThrowFormat("%d-%s", 3, "a"); }), "3-a");
    // The dollar conversions print as they stand and the one %s takes the file.
    EXPECT_EQ(ErrorOf([] { XThrowFailedAssertion("a < b", "file.cpp", 12); }),
              "$s:$u: failed assertion 'file.cpp'");
    EXPECT_EQ(ErrorOf([] { XAssert(false); }), "exception (assertion failed)");
    EXPECT_EQ(ErrorOf([] { XAssert(false, "v=%d", 4); }), "v=4 (assertion failed)");
    EXPECT_EQ(ErrorOf([] { XAssertPointer(nullptr, "XCXMLElement::GetKey - element isn't in a tree"); }),
              "XCXMLElement::GetKey - element isn't in a tree (pointer is NULL)");
    EXPECT_EQ(ErrorOf([] { XRequire(false); }), "exception");
    EXPECT_EQ(ErrorOf([] { XRequire(false, "Unknown format"); }), "Unknown format");
    EXPECT_EQ(ErrorOf([] {
                  XRequire(true, "x");
                  XAssert(true);
                  XAssertPointer("p");
              }),
              "<no exception>");
    // Every raise is a std::runtime_error.
    EXPECT_THROW(XThrowAssert("x"), std::runtime_error);
}

TEST(Raising, OverlongTextIsCutNotRefused) {
    std::string big(5000, 'a');
    std::string thrown = ErrorOf([&] { XThrowFormat("%s", big.c_str()); });
    EXPECT_EQ(thrown.size(), 2047u);
    LogCapture log;
    XLogError("%s", big.c_str());
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_EQ(log.lines()[0].text.size(), 2047u);
}

TEST(Logging, LevelsModesAndSinks) {
    {
        // With no sink anywhere every call returns and nothing is written.
        XLogError("dropped");
        XLogSystem(0, "dropped");
    }
    LogCapture log;
    XLogError("e%d", 1);
    XLogWarning("w");
    XLog(2, "custom");
    XLogTrace("hidden");
    XLogBench("hidden");
    XLogMemory("hidden");
    SetTraceMode(true);
    XLogTrace("%d is not a format here");
    SetTraceMode(false);
    SetBenchMode(false);
    SetMemoryMode(true);
    XLogMemory("m");
    SetMemoryMode(false);
    EXPECT_TRUE(log.has(0, "e1"));
    EXPECT_TRUE(log.has(1, "w"));
    EXPECT_TRUE(log.has(2, "custom"));
    EXPECT_TRUE(log.has(3, "Trace mode is enabled"));
    EXPECT_TRUE(log.has(3, "%d is not a format here"));
    EXPECT_TRUE(log.has(3, "Trace mode is disabled"));
    EXPECT_TRUE(log.has(4, "Bench mode is disabled"));
    EXPECT_TRUE(log.has(5, "m"));
    EXPECT_FALSE(log.has(3, "hidden") || log.has(4, "hidden") || log.has(5, "hidden"));
    EXPECT_FALSE(GetTraceMode() || GetBenchMode() || GetMemoryMode());
}

TEST(Logging, ScopeRestoresThreadAndDefaultSinks) {
    LogCapture outer;
    {
        LogCapture inner;
        XLogError("to inner");
        EXPECT_TRUE(inner.has(0, "to inner"));
    }
    XLogError("to outer");
    EXPECT_TRUE(outer.has(0, "to outer"));
    EXPECT_FALSE(outer.has(0, "to inner"));

    struct Sink : XILogSink {
        int n = 0;
        void Log(unsigned, const char*) override { ++n; }
    } global;
    {
        XCLogScope scope(&global, true);
        EXPECT_EQ(GetDefaultLogSink(), &global);
    }
    EXPECT_EQ(GetDefaultLogSink(), nullptr);
}

TEST(Logging, SystemErrorIsLoggedOnlyWhenSet) {
    LogCapture log;
    errno = 0;
    XLogSystem(0, "open");
    EXPECT_TRUE(log.lines().empty());
    errno = ENOENT;
    XLogSystem(1, "open");
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_EQ(log.lines()[0].text.rfind("open - Windows error : ", 0), 0u);
    errno = ENOENT;
    EXPECT_EQ(ErrorOf([] { XThrowSystem(); }).rfind("exception (", 0), 0u);
}

TEST(Mine, DetectsStaleAndDamagedOwners) {
    LogCapture log;
    {
        XCMine mine;
        EXPECT_NO_THROW(mine.CheckMine());
        mine.SetWord(XCMine::kExploded);
        EXPECT_EQ(ErrorOf([&] { mine.CheckMine(); }),
                  "XCMine::CheckMine - Owner object is destroyed) (assertion failed)");
        mine.SetWord(42);
        EXPECT_EQ(ErrorOf([&] { mine.CheckMine(); }),
                  "XCMine::CheckMine - Invalide mine state (assertion failed)");
    }
    EXPECT_TRUE(log.has(0, "XCMine::~XCMine - Invalid deletion detected"));
    {
        XCMine mine;
        mine.SetWord(XCMine::kExploded);
    }
    EXPECT_TRUE(log.has(0, "XCMine::~XCMine - Double deletion detected"));
}

namespace {
struct Counted : XTCRefCount<XIRefCount> {
    static int alive;
    Counted() { ++alive; }
    ~Counted() override { --alive; }
};
int Counted::alive = 0;
} // namespace

TEST(RefCount, LastReleaseDestroysOnceAndEarlyDeleteIsLogged) {
    LogCapture log;
    Counted* c = new Counted;
    c->AddRef();
    c->AddRef();
    c->Release();
    EXPECT_EQ(Counted::alive, 1);
    c->Release();
    EXPECT_EQ(Counted::alive, 0);
    EXPECT_TRUE(log.lines().empty());

    Counted* early = new Counted;
    early->AddRef();
    delete early;
    EXPECT_EQ(Counted::alive, 0);
    EXPECT_TRUE(log.has(0, "XCBaseRefCount::~XCBaseRefCount - Deleting object before mRefCount reach 0"));
}
