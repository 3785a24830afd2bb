#include "frame/ZelEntryPoints.h"
#include "support/TestSupport.h"

#include <cstring>

using namespace KeZel;

TEST(VersionGate, AcceptsClientVersionsFiveToTwentyOne) {
    for (int v : {5, 7, 8, 21}) {
        CZelReportCollector feedback;
        CZelMgrHandle mgr(&feedback, nullptr, static_cast<EVersionZEL>(v));
        EXPECT_TRUE(mgr) << v;
        EXPECT_TRUE(feedback.empty()) << v;
    }
}

TEST(VersionGate, RefusesOthersWithOneReportAndNoManager) {
    struct Case {
        int version;
        const char* text;
    } cases[] = {{22, "Client is newer than Zel Library!"},
                 {1000, "Client is newer than Zel Library!"},
                 {4, "Client is obsolete for this Zel Library!"},
                 {-1, "Client is obsolete for this Zel Library!"}};
    for (const Case& c : cases) {
        CZelReportCollector feedback;
        EXPECT_EQ(zel_new_mgr(static_cast<EVersionZEL>(c.version), &feedback, nullptr), nullptr);
        ASSERT_EQ(feedback.count(), 1u) << c.version;
        EXPECT_EQ(feedback.last(), c.text);
        EXPECT_FALSE(feedback.reports()[0].withManager);
        // Without a feedback the refusal is silent.
        EXPECT_EQ(zel_new_mgr(static_cast<EVersionZEL>(c.version), nullptr, nullptr), nullptr);
    }
}

TEST(VersionGate, ExtendedInterfaceHasItsOwnRange) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    ASSERT_TRUE(mgr);
    EXPECT_NE(mgr->getMgrEx(6), nullptr);
    EXPECT_NE(mgr->getMgrEx(5), nullptr);
    EXPECT_EQ(static_cast<void*>(mgr->getMgrEx(5)), static_cast<void*>(mgr->getMgrEx(6)));
    EXPECT_TRUE(feedback.empty());
    EXPECT_EQ(mgr->getMgrEx(7), nullptr);
    EXPECT_EQ(feedback.last(), "Client is newer than Zel Library!");
    EXPECT_TRUE(feedback.reports().back().withManager);
    EXPECT_EQ(mgr->getMgrEx(4), nullptr);
    EXPECT_EQ(feedback.last(), "Client is obsolete for this Zel Library!");
    EXPECT_EQ(feedback.count(), 2u);

    CZelMgrHandle silent(static_cast<CZelFeedback*>(nullptr));
    EXPECT_EQ(silent->getMgrEx(9), nullptr);
}

TEST(EntryPoints, VersionsAndFileTypesNeedNoManager) {
    EXPECT_EQ(zel_get_version(), 21);
    EXPECT_EQ(zel_get_extended_version(), 6);
    const CZelFileType* const* list = zel_get_file_type_list();
    ASSERT_EQ(list, zel_get_file_type_list());
    const char* extensions[] = {".zel", ".zof", ".opt"};
    const char* creators[] = {"zvth", "zvth", "ZEL2"};
    const char* descriptions[] = {"Vantorium (.zel)", "Vantorium Object (.zof)", "Van*torium (.opt)"};
    for (int i = 0; i < 3; ++i) {
        ASSERT_NE(list[i], nullptr);
        EXPECT_STREQ(list[i]->mExtension, extensions[i]);
        EXPECT_EQ(std::memcmp(list[i]->mType, "TEXT", 4), 0);
        EXPECT_EQ(std::memcmp(list[i]->mCreator, creators[i], 4), 0);
        EXPECT_EQ(list[i]->mRevision, 6);
        EXPECT_STREQ(list[i]->mDescription, descriptions[i]);
    }
    EXPECT_EQ(list[3], nullptr);
}
