#include "frame/CZEL.h"
#include "frame/ObjectLists.h"
#include "frame/RefCounted.h"
#include "frame/UUID.h"
#include "support/TestSupport.h"

#include <stdexcept>
#include <vector>

using namespace KeZel;

namespace {

// An owner that reaches the manager through a pointer, as a polygon does through its list.
struct ChainOwner {
    CZEL* mZel;
    CZEL* getZel() const { return mZel; }
};

struct PointItem : CZelVector {};

// Items of the three kinds told apart by a tag.
struct Tags {
    static void set(CZelUUID* item, int tag) { item->mBytes[0] = static_cast<unsigned char>(tag); }
    static void set(CZelVector* item, int tag) { item->x = tag; }
    static void set(CZelVertex* item, int tag) { item->mPointIndex = tag; }
    static int of(const CZelUUID* item) { return item->mBytes[0]; }
    static int of(const CZelVector* item) { return static_cast<int>(item->x); }
    static int of(const CZelVertex* item) { return item->mPointIndex; }
};

struct GeneralKind {
    typedef TObjectMgr<CZelUUIDX, CZelUUID> List;
    static CZEL* owner(CZEL* zel, ChainOwner*) { return zel; }
    static const bool kFast = false;
};
struct RapideKind {
    typedef TRapideMgr<PointItem, CZelVector, CZEL, TZelPooledItems<PointItem>> List;
    static CZEL* owner(CZEL* zel, ChainOwner*) { return zel; }
    static const bool kFast = true;
};
struct SimpleKind {
    typedef TSimpleMgr<CZelVertex, ChainOwner, 3> List;
    static ChainOwner* owner(CZEL*, ChainOwner* chain) { return chain; }
    static const bool kFast = true;
};

template <class Kind> class ObjectLists : public ::testing::Test {
protected:
    ObjectLists() : mZel(eZelVersionCurrent, &mFeedback, nullptr), mChain{&mZel} {}
    typename Kind::List* make(int count) {
        typename Kind::List* list = new typename Kind::List(Kind::owner(&mZel, &mChain));
        for (int i = 1; i <= count; ++i) Tags::set(list->newZelObject(kZelListEnd), i);
        return list;
    }
    std::vector<int> tags(const typename Kind::List& list) {
        std::vector<int> out;
        for (unsigned int i = 0; i < list.getCount(); ++i) out.push_back(Tags::of(list.getZelObject(i)));
        return out;
    }
    CZelReportCollector mFeedback;
    CZEL mZel;
    ChainOwner mChain;
};

typedef ::testing::Types<GeneralKind, RapideKind, SimpleKind> Kinds;
TYPED_TEST_SUITE(ObjectLists, Kinds);

TYPED_TEST(ObjectLists, IndexCases) {
    enum Op { Get, New, Remove, Move };
    const unsigned int End = kZelListEnd;
    struct Case {
        int count;
        Op op;
        unsigned int a;
        int b;
        const char* generalReport; // "" for none
        const char* fastReport;
        std::vector<int> after; // tags afterwards; a new item has tag 0
    } cases[] = {
        {3, Get, 3, 0, "getZelObject: Bad index value", "getZelObject: Bad index value", {1, 2, 3}},
        // Unsigned in the general list, signed in the fast ones.
        {3, Get, End, 0, "getZelObject: Bad index value", "", {1, 2, 3}},
        {3, New, 3, 0, "", "", {1, 2, 3, 0}},
        {3, New, 4, 0, "newZelObject: Bad index value", "newZelObject: Bad index value", {1, 2, 3}},
        {3, New, End, 0, "", "", {1, 2, 3, 0}},
        {3, New, 1, 0, "", "", {1, 0, 2, 3}},
        {3, Remove, End, 0, "", "", {1, 2}},
        {0, Remove, End, 0, "removeObject: Bad index value", "removeObject: no more object to remove", {}},
        {3, Remove, 3, 0, "removeObject: Bad index value", "removeObject: Bad index value", {1, 2, 3}},
        {3, Remove, 1, 0, "", "", {1, 3}},
        {0, Move, 0, 0, "", "", {}},
        {2, Move, 5, 6, "moveObject: Bad index value", "moveObject: Bad index value", {1, 2}},
        {3, Move, 0, 2, "", "", {2, 3, 1}},
        {3, Move, 2, 0, "", "", {3, 1, 2}},
        // One good index is not reported, and nothing moves.
        {3, Move, 0, 5, "", "", {1, 2, 3}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message()
                     << "count " << c.count << " op " << c.op << " " << static_cast<int>(c.a) << " " << c.b);
        typename TypeParam::List* list = this->make(c.count);
        this->mFeedback.clear();
        std::string expected = TypeParam::kFast ? c.fastReport : c.generalReport;
        bool shouldAnswer = expected.empty() && !(c.op == Get && c.a == End), answered = shouldAnswer;
        if (c.op == Get) answered = list->getZelObject(c.a) != nullptr;
        if (c.op == New) answered = list->newZelObject(c.a) != nullptr;
        if (c.op == Remove) list->removeObject(c.a);
        if (c.op == Move) list->moveObject(static_cast<int>(c.a), c.b);
        EXPECT_EQ(this->mFeedback.count(), expected.empty() ? 0u : 1u);
        EXPECT_EQ(this->mFeedback.last(), expected);
        EXPECT_EQ(answered, shouldAnswer);
        EXPECT_EQ(this->tags(*list), c.after);
        delete list;
    }
}

TYPED_TEST(ObjectLists, GrowthAndSilenceWithoutManager) {
    typename TypeParam::List* list = this->make(0);
    std::vector<void*> first;
    for (int i = 0; i < 1025; ++i) {
        auto* item = list->newZelObject(kZelListEnd);
        Tags::set(item, i % 200);
        first.push_back(item);
    }
    ASSERT_EQ(list->getCount(), 1025u);
    for (unsigned int i = 0; i < 1025; ++i) {
        ASSERT_EQ(Tags::of(list->getZelObject(i)), static_cast<int>(i % 200));
        // Records by value move when their list grows; items do not.
        if (!std::is_same<TypeParam, SimpleKind>::value && i < 1024) {
            ASSERT_EQ(list->getZelObject(i), first[i]);
        }
    }
    EXPECT_EQ(ZelTest::ErrorOf([&] { list->at(1025); }), "getObject: index out of range");
    delete list;

    // A manager without feedback, or an owner without manager: silence, and no crash.
    CZEL silent(eZelVersionCurrent, nullptr, nullptr);
    ChainOwner nobody{nullptr};
    typename TypeParam::List quiet(TypeParam::owner(&silent, &nobody));
    quiet.removeObject(7);
    EXPECT_EQ(quiet.getZelObject(0), nullptr);
}

TEST(ObjectListDetails, RapideCapacityDoublesAndPresizesExactly) {
    TRapideMgr<PointItem, CZelVector, CZEL> list(nullptr);
    EXPECT_EQ(list.getCapacity(), 1024u);
    for (int i = 0; i < 1025; ++i) list.newItem();
    EXPECT_EQ(list.getCapacity(), 2048u);
    EXPECT_TRUE(list.reserve(10)); // never below the count
    EXPECT_EQ(list.getCapacity(), 1025u);
    list.clear();
    EXPECT_TRUE(list.reserve(0));
    list.newItem(); // no room counts as one before doubling
    EXPECT_EQ(list.getCapacity(), 2u);

    TSimpleMgr<CZelVertex, ChainOwner, 3> vertices(nullptr);
    EXPECT_EQ(vertices.getCapacity(), 3u);
    vertices.newZelObject(kZelListEnd)->mPointIndex = 9;
    ASSERT_TRUE(vertices.resize(5));
    EXPECT_EQ(vertices.getCapacity(), 5u);
    EXPECT_EQ(vertices.at(0).mPointIndex, 9);
    EXPECT_EQ(vertices.at(4).mPointIndex, 0);
    vertices.clear();
    EXPECT_TRUE(vertices.reserve(0));
    EXPECT_EQ(vertices.getCapacity(), 3u);
}

// Items that say how they were made, fail to be made on demand, and log their end.
std::vector<int> gDestroyed;
bool gFailMaking = false;
struct Probe : CZelVector {
    typedef TRapideMgr<Probe, CZelVector, ChainOwner> List;
    explicit Probe(List* list) : mList(list) {
        if (gFailMaking) throw std::runtime_error("no");
    }
    ~Probe() { gDestroyed.push_back(static_cast<int>(x)); }
    List* mList;
};
struct OwnedUUID : CZelUUIDX {
    explicit OwnedUUID(ChainOwner* owner) : mOwner(owner) {}
    ChainOwner* mOwner;
};

bool gFailBlocks = false;
struct FailingHeap : CZelHeap {
    static void* resizeBlock(void* block, size_t count, size_t size) {
        return gFailBlocks ? nullptr : CZelHeap::resizeBlock(block, count, size);
    }
};
struct FailingItems : TZelNewItems<PointItem> {
    static void* resizeBlock(void* block, size_t count, size_t size) {
        return FailingHeap::resizeBlock(block, count, size);
    }
};

TEST(ObjectListDetails, ConstructionFailuresAndOrderOfDestruction) {
    CZelReportCollector feedback;
    CZEL zel(eZelVersionCurrent, &feedback, nullptr);
    ChainOwner chain{&zel};

    TObjectMgr<OwnedUUID, CZelUUID, ChainOwner> owned(&chain);
    EXPECT_EQ(static_cast<OwnedUUID*>(owned.newZelObject(kZelListEnd))->mOwner, &chain);
    EXPECT_TRUE(owned.at(0)->isNull());

    {
        Probe::List probes(&chain);
        for (int i = 1; i <= 3; ++i) probes.newItem()->x = i;
        EXPECT_EQ(probes.at(0)->mList, &probes);
        gFailMaking = true;
        EXPECT_EQ(probes.newZelObject(1), nullptr);
        gFailMaking = false;
        EXPECT_EQ(feedback.last(), "newZelObject: Can't allocate object");
        ASSERT_EQ(probes.getCount(), 3u);
        EXPECT_EQ(probes.at(1)->x, 2); // the failed slot was taken out again
        gDestroyed.clear();
    }
    EXPECT_EQ(gDestroyed, (std::vector<int>{3, 2, 1}));

    // No block: reported, and the list is left empty with no room, but usable.
    feedback.clear();
    gFailBlocks = true;
    TRapideMgr<PointItem, CZelVector, ChainOwner, FailingItems> starved(&chain);
    TSimpleMgr<CZelVertex, ChainOwner, 0, FailingHeap> starvedRecords(&chain, 4);
    EXPECT_EQ(starved.getCapacity() + starvedRecords.getCapacity(), 0u);
    gFailBlocks = false;
    for (int i = 0; i < 3; ++i) starved.newItem()->x = i;
    gFailBlocks = true;
    EXPECT_FALSE(starved.reserve(100));
    EXPECT_EQ(starved.getCount() + starved.getCapacity(), 0u);
    gFailBlocks = false;
    EXPECT_EQ(feedback.count(), 3u);
    EXPECT_EQ(feedback.last(), "No memory availiable");
}

struct ICounted {
    virtual void AddRef() = 0;
    virtual void Release() = 0;

protected:
    ~ICounted() {}
};
struct Counted : TZelRefCount<TZelFrontier<ICounted>> {
    explicit Counted(bool* gone) : mGone(gone) {}
    ~Counted() { *mGone = true; }
    bool* mGone;
};

TEST(ObjectListDetails, RefCountDestroysAtZeroAndLogsEarlyDeath) {
    ZelTest::LogCapture log;
    bool gone = false;
    Counted* counted = new Counted(&gone);
    counted->AddRef();
    counted->AddRef();
    counted->Release();
    EXPECT_FALSE(gone);
    counted->Release();
    EXPECT_TRUE(gone);
    EXPECT_TRUE(log.lines().empty());

    counted = new Counted(&gone);
    counted->AddRef();
    counted->AddRef();
    delete counted;
    EXPECT_TRUE(log.has(Kestra::kLogError, "Object deleted with a non zero ref count"));
}

} // namespace
