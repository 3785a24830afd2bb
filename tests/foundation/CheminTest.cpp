#include "foundation/Chemin.h"
#include "support/TestSupport.h"

#include <cstdio>

using Kestra::CChemin;
using ZelTest::ErrorOf;

TEST(Chemin, StringRules) {
    EXPECT_TRUE(CChemin("C:\\a\\Scene.ZEL").HasSuffixNoCase(".zel"));
    EXPECT_TRUE(CChemin("x").HasSuffixNoCase(""));
    EXPECT_FALSE(CChemin("zel").HasSuffixNoCase(".zel"));

    EXPECT_EQ(CChemin("C:\\a.b\\scene.opt").ReplaceExtension(".db").str(), "C:\\a.b\\scene.db");
    EXPECT_EQ(CChemin("C:\\a.b\\scene").ReplaceExtension(".db").str(), "C:\\a.db"); // the last dot, wherever
    EXPECT_EQ(CChemin("scene").ReplaceExtension(".db").str(), "scene.db");

    EXPECT_EQ(CChemin("C:\\a\\b.jpg").Parent().str(), "C:\\a");
    EXPECT_EQ(CChemin("C:\\a\\b.jpg").ParentWithSeparator().str(), "C:\\a\\");
    EXPECT_EQ(ErrorOf([] { CChemin("abc").Parent(); }), "Path doesn't contain '\\'");

    EXPECT_EQ(CChemin("a\\").Append("b").str(), "a\\b");
    EXPECT_EQ(CChemin("a").Append("b").str(), "a\\b");
    EXPECT_EQ(CChemin("").Append("b").str(), "\\b");

    EXPECT_STREQ(CChemin("C:\\a b\\c.jpg").LastName(), "c.jpg");
    EXPECT_STREQ(CChemin("c.jpg").LastName(), "c.jpg");
    EXPECT_EQ(CChemin("C:\\a\\b c.jpg").UrlLastName(), "b%20c.jpg");
}

TEST(Chemin, UrlsBothWays) {
    struct Case {
        const char* path;
        const char* url;
    } cases[] = {
        {"C:\\a b\\c.jpg", "file:///C|/a%20b/c.jpg"},
        {"C:\\a%b c", "file:///C|/a%25b%20c"},
        {"C:\\caf\xC3\xA9\\x.png", "file:///C|/caf\xC3\xA9/x.png"}, // UTF-8 stays raw
        {"", "file:///"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(CChemin(c.path).ToUrl(), c.url);
        EXPECT_EQ(CChemin::FromUrl(c.url).str(), c.path);
    }
    EXPECT_EQ(CChemin::FromUrl("file://server/C|/x").str(), "C:\\x");
    EXPECT_EQ(CChemin::FromUrl("file://C|").str(), "C:");                  // no slash: nothing dropped
    EXPECT_EQ(CChemin::FromUrl("file:///%4g").str(), "\x81");              // 'g' counts as 65
    EXPECT_EQ(CChemin::FromUrl("file:///%g4").str(), std::string("\x14")); // 16 * 65 + 4, wrapped
    EXPECT_EQ(CChemin::FromUrl("file:///a%").str(), std::string("a") + static_cast<char>(16 * 65 + 65));
    EXPECT_EQ(ErrorOf([] { CChemin::FromUrl("ftp:x"); }), "URL invalid");

    CChemin base("C:\\proj\\scenes\\house.zel");
    EXPECT_EQ(CChemin("C:\\proj\\scenes\\wood oak.jpg").ToRelativeUrl(base), "wood%20oak.jpg");
    EXPECT_EQ(CChemin("C:\\proj\\maps\\a.jpg").ToRelativeUrl(base), "maps/a.jpg");
    EXPECT_EQ(CChemin("C:\\proj\\scenes-old\\a.jpg").ToRelativeUrl(base), "scenes-old/a.jpg");
    EXPECT_EQ(CChemin("D:\\a.jpg").ToRelativeUrl(base), "D|/a.jpg");
    EXPECT_EQ(CChemin("C:\\other.jpg").ToRelativeUrl(base), "other.jpg"); // behind the drive colon's '\'

    EXPECT_EQ(CChemin("C:\\proj\\scenes").FromRelativeUrl("maps/a%20b.jpg").str(),
              "C:\\proj\\scenes\\maps\\a b.jpg");
}

TEST(Chemin, MakeRelativeFromColonForm) {
    struct Case {
        const char* old;
        const char* now;
    } cases[] = {{":a:b", ".\\a\\b"}, {":a::b", ".\\a\\..\\b"}, {"::a", ".\\..\\a"},
                 {":a:", ".\\a\\"},   {"plain", "plain"},       {":", ".\\"}};
    for (const Case& c : cases) {
        CChemin path(c.old);
        path.MakeRelative();
        EXPECT_EQ(path.str(), c.now) << c.old;
    }
    CChemin absolute("a:b");
    EXPECT_EQ(ErrorOf([&] { absolute.MakeRelative(); }), "Path must be relative");
}

TEST(Chemin, FileUtilitiesOverLibraryForm) {
    CChemin here = CChemin::Courant();
    EXPECT_EQ(here.str().find('/'), std::string::npos);
    EXPECT_TRUE(here.IsFolder());

    CChemin folder("\\tmp\\zel-chemin-test");
    folder.RemoveFolder();
    EXPECT_EQ(folder.MakeFolder(), 0);
    EXPECT_TRUE(folder.IsFolder());

    CChemin file = folder.Append("caf\xC3\xA9 1.txt");
    FILE* f = file.Open("wb");
    ASSERT_NE(f, nullptr);
    std::fclose(f);
    EXPECT_TRUE(file.Exists());
    EXPECT_FALSE(file.IsFolder());
    EXPECT_EQ(file.ShortName(), file.str());
    EXPECT_TRUE(file.Rename("b.txt"));
    EXPECT_FALSE(file.Exists());
    CChemin renamed = folder.Append("b.txt");
    EXPECT_TRUE(renamed.Exists());
    EXPECT_EQ(folder.RemoveFolder(), 1); // not empty
    EXPECT_EQ(renamed.DeleteFile(), 0);
    EXPECT_EQ(folder.RemoveFolder(), 0);
    EXPECT_FALSE(folder.Exists());
}
