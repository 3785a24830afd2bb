#include "frame/CZEL.h"
#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "support/TestSupport.h"

using namespace KeZel;

// What a client built against a later header sees: the interface as this library has
// it, then operations that this library does not have. Not in an anonymous namespace:
// the compiler would then know that nothing implements them and call the pure stub.
namespace LaterClient {

template <class I> class LaterHeader : public I {
public:
    virtual void addedLater1() = 0;
    virtual void addedLater2() = 0;
    virtual void addedLater3() = 0;
};

// Calls operation 1, 2 or 3 of the later header on an object of this library. The pointer
// goes through a volatile, as if it came from across the library's boundary: a compiler
// that saw the object's real type would drop the call as undefined. The sanitizer's type
// check would stop it for the same reason; a real client has no such check.
template <class I>
#if defined(__GNUC__)
__attribute__((no_sanitize("vptr")))
#endif
void CallAddedLater(I* object, int which) {
    LaterHeader<I>* volatile client = reinterpret_cast<LaterHeader<I>*>(object);
    if (which == 1) client->addedLater1();
    if (which == 2) client->addedLater2();
    if (which == 3) client->addedLater3();
}

} // namespace LaterClient

namespace {

using LaterClient::CallAddedLater;

const char* const kObsolete =
    "ZEL Library is obsolete\nPlease update ZEL Library and relaunch the application.";

TEST(FrontierDeathTest, EachReservedSlotEndsTheProcessWithTheMessage) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    TObjectMgr<CZelUUIDX, CZelUUID> uuids(nullptr);
    TZelObjectMgr<CZelUUID>* list = &uuids;
    EXPECT_EXIT(CallAddedLater(list, 1), ::testing::ExitedWithCode(0), kObsolete);
    EXPECT_EXIT(CallAddedLater(list, 2), ::testing::ExitedWithCode(0), kObsolete);
    EXPECT_EXIT(CallAddedLater(list, 3), ::testing::ExitedWithCode(0), kObsolete);

    // A class with two interfaces has a frontier behind each.
    CZEL zel(eZelVersionCurrent, nullptr, nullptr);
    EXPECT_EXIT(CallAddedLater<CZelMgr>(&zel, 1), ::testing::ExitedWithCode(0), kObsolete);
    EXPECT_EXIT(CallAddedLater<CZelMgrEx>(&zel, 3), ::testing::ExitedWithCode(0), kObsolete);

    TSimpleMgr<CZelVertex, CZEL> vertices(nullptr);
    EXPECT_EXIT(CallAddedLater<TZelObjectMgr<CZelVertex>>(&vertices, 2), ::testing::ExitedWithCode(0),
                kObsolete);
}

} // namespace
