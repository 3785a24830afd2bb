#include "frame/CZEL.h"
#include "frame/UUID.h"
#include "support/TestSupport.h"

#include <string>

using namespace KeZel;

namespace {

const char* kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

std::string ZelInstruction(const std::string& library, const char* file = "5.0") {
    return "<?Zel library=\"" + library + "\" file=\"" + file + "\" min_version=\"" + library +
           "\" safe_version=\"" + library + "\"?>\n";
}

std::string Scene(const char* library, const std::string& body, const char* application = "Test") {
    return std::string(kHead) + ZelInstruction(library) + "<?Application name=\"" + application +
           "\" version=\"1\"?>\n<Zel.File>\n" + body + "</Zel.File>\n";
}

struct Reader {
    CZelReportCollector feedback;
    CZelMgrHandle mgr{&feedback};
    int read(const std::string& bytes) {
        CZelMemoryStream in(bytes);
        return mgr->read(&in);
    }
    std::string write(const CZelVersion* version = nullptr) {
        CZelMemoryStream out;
        EXPECT_EQ(mgr->write(&out, version), 0);
        return out.bytes();
    }
    CZEL* zel() { return static_cast<CZEL*>(mgr.get()); }
};

} // namespace

TEST(ScenePipeline, BranchChoiceAndVersionFlags) {
    struct Case {
        const char* library;
        bool before202;
        int major, minor, patch;
    } cases[] = {{"1.9.9", true, 1, 9, 9},
                 {"2.0.1", true, 2, 0, 1},
                 {"2.0.2", false, 2, 0, 2},
                 {"2.01", true, 2, 0, 1}};
    for (const Case& c : cases) {
        Reader r;
        std::string zel =
            std::string(c.library).find('.', 2) == std::string::npos
                ? std::string("<?Zel library=\"") + c.library + "\" file=\"5.1\"?>\n" // the old form
                : ZelInstruction(c.library, "5.1");
        std::string file = std::string(kHead) + zel + "<Zel.File/>\n";
        EXPECT_EQ(r.read(file), 0) << c.library;
        EXPECT_TRUE(r.feedback.empty()) << r.feedback.last();
        EXPECT_EQ(r.mgr->getMgrEx(6)->isBefore202(), c.before202) << c.library;
        EXPECT_FALSE(r.zel()->isConverting());
        const CZelVersion* v = r.mgr->getVersion();
        EXPECT_EQ(v->major * 100 + v->minor * 10 + v->patch, c.major * 100 + c.minor * 10 + c.patch);
        int major = 0, minor = 0;
        r.mgr->getFileVersion(&major, &minor);
        EXPECT_EQ(major, 5);
    }
    Reader r;
    EXPECT_EQ(r.read(std::string(kHead) + "<Zel.File/>\n"), 1);
    EXPECT_EQ(r.feedback.last(), "Not a valid zel file");
    EXPECT_EQ(r.read(""), 1); // no first byte: the legacy branch, which fails
    EXPECT_EQ(r.feedback.count(), 2u);
    EXPECT_EQ(r.read(std::string(kHead) + "<?Zel library=\"3.0.2\" file=\"5.0\"?>\n<Zel.File/>\n"), 1);
    EXPECT_EQ(r.feedback.last(), "Not a valid zel file"); // a triple without its companions is no version
    EXPECT_EQ(r.read(std::string(kHead) + ZelInstruction("3.0.2") + "<Other/>\n"), 1);
    EXPECT_EQ(r.feedback.last(), "Zel.File (pointer is NULL)");
    EXPECT_FALSE(r.zel()->isConverting());
    EXPECT_EQ(ZelDbFileName("C:\\a\\b.db"), "b.db");
    EXPECT_EQ(ZelDbFileName("a/b.db"), "b.db");
    EXPECT_EQ(ZelDbFileName("b.db"), "b.db");
}

TEST(ScenePipeline, FreshDocumentAndInstructions) {
    Reader r;
    r.mgr->setApplicationInfo("Host", "2.5");
    std::string text = r.write();
    EXPECT_EQ(text.substr(0, text.find("<Zel.File>")),
              std::string(kHead) +
                  "<?Zel library=\"3.0.2\" file=\"5.0\" min_version=\"3.0.1\" safe_version=\"3.0.1\"?>\n"
                  "<?Application name=\"Host\" version=\"2.5\"?>\n");
    for (const char* e : {"<Preview.Image><![CDATA[]]>", "<Points", "<Polygons", "<Images/>"})
        EXPECT_NE(text.find(e), std::string::npos) << e;
    EXPECT_LT(text.find("<Preview.Image>"), text.find("<Points"));
    EXPECT_EQ(text.back(), '\n');
    CZelVersion min(3, 0, 2);
    std::string pinned = r.write(&min);
    EXPECT_NE(pinned.find("library=\"3.0.2\" file=\"5.0\" min_version=\"3.0.2\" safe_version=\"3.0.2\""),
              std::string::npos);
    // Writing twice gives the same bytes; so does a read of them and a write.
    EXPECT_EQ(r.write(), text);
    Reader back;
    back.mgr->setApplicationInfo("Host", "2.5");
    ASSERT_EQ(back.read(text), 0) << back.feedback.last();
    EXPECT_EQ(back.write(), text);
}

TEST(ScenePipeline, UnknownElementsAndBlocksAndMissingPreview) {
    Reader r;
    std::string file = Scene(
        "3.0.2", "\t<Foo a=\"1\">\n\t\t<Bar>text</Bar>\n\t</Foo>\n\t<Blob><![CDATA[123]]>\n\t</Blob>\n");
    EXPECT_EQ(r.read(file), 0);
    ASSERT_EQ(r.feedback.count(), 1u);
    EXPECT_EQ(r.feedback.last(), "Error \"CData block unknow\" while parsing 'Blob' data block");
    std::string text = r.write();
    // Preview and images come back first; the host's element stays through writes.
    EXPECT_EQ(text.find("<Zel.File>\n\t<Preview.Image>"), text.find("<Zel.File>"));
    EXPECT_NE(text.find("\t<Foo a=\"1\">\n\t\t<Bar>text</Bar>\n\t</Foo>\n"), std::string::npos);
    EXPECT_EQ(r.write(), text);
    EXPECT_EQ(r.read(text), 0);
    EXPECT_EQ(r.write(), text);
}

TEST(ScenePipeline, ImagesAreRebuiltInListOrder) {
    Reader r;
    CZelImage* a = r.zel()->images().newItem();
    CZelImage* b = r.zel()->images().newItem();
    CZelUUID ida = NewZelUUID(), idb = NewZelUUID();
    a->setUUID(ida);
    b->setUUID(idb);
    unsigned int pixel = 0xFF102030;
    b->Adopt(1, 1, new unsigned int[1]{pixel});
    std::string text = r.write();
    std::string::size_type pa = text.find("<Image UUID=\"" + ZelUUIDToText(ida) + "\">");
    std::string::size_type pb = text.find("<Image UUID=\"" + ZelUUIDToText(idb) +
                                          "\"><![CDATA[00000001000000010000000100000001FF102030]]>");
    EXPECT_NE(pa, std::string::npos) << text;
    EXPECT_NE(pb, std::string::npos) << text;
    EXPECT_LT(pa, pb);

    Reader back;
    ASSERT_EQ(back.read(text), 0) << back.feedback.last();
    ASSERT_EQ(back.mgr->getImages()->getCount(), 2u);
    EXPECT_TRUE(*back.mgr->getImages()->getZelObject(1)->getUUID() == idb);
    EXPECT_EQ(back.mgr->getImages()->getZelObject(1)->GetAt(0, 0), pixel);
    EXPECT_EQ(back.write(), text);
    back.zel()->images().clear();
    EXPECT_NE(back.write().find("<Images/>"), std::string::npos);
}

TEST(ScenePipeline, FullFormNeedsWorkingWindowAndOldScenariosGo) {
    Reader r;
    EXPECT_EQ(r.read(Scene("3.0.2", "\t<Ambient/>\n")), 1);
    EXPECT_EQ(r.feedback.last(), "exception (pointer is NULL)");
    Reader old;
    ASSERT_EQ(old.read(Scene("2.0.1", "\t<Scenarios>\n\t\t<Scenario Mark=\"old\"/>\n\t</Scenarios>\n")), 0);
    EXPECT_EQ(old.mgr->getScenarios()->getCount(), 0u);
    EXPECT_EQ(old.write().find("Mark=\"old\""), std::string::npos);
}

TEST(ScenePipeline, WriteFailuresAnswerTwo) {
    Reader r;
    r.mgr->setApplicationInfo("Host", "1");
    r.zel()->previewImage().Adopt(2, 2, new unsigned int[4]{1, 2, 3, 4});
    std::string good = r.write();
    CZelMemoryStream broken;
    broken.setWriteLimit(good.find("<![CDATA[") + 20); // fails inside the preview block
    EXPECT_EQ(r.mgr->write(&broken), 2);
    ASSERT_EQ(r.feedback.count(), 2u);
    EXPECT_EQ(r.feedback.reports()[0].text, "Memory stream write limit reached");
    EXPECT_EQ(r.feedback.reports()[1].text, "Error \"exception\" while writting");
    CZelMemoryStream early;
    early.setWriteLimit(10);
    EXPECT_EQ(r.mgr->write(&early), 2);
    EXPECT_EQ(r.feedback.last(), "Error \"Memory stream write limit reached\" while writting");
    EXPECT_EQ(r.mgr->write(nullptr), 2);
}
