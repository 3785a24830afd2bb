#include "foundation/XMLImage.h"
#include "frame/ZelEntryPoints.h"
#include "frame/ZelImage.h"
#include "support/TestSupport.h"

#include <cstring>
#include <string>

using namespace KeZel;

namespace {

// A memory stream that counts the bytes it hands out.
class CountingStream : public CZelMemoryStream {
public:
    explicit CountingStream(const std::string& bytes) : CZelMemoryStream(bytes), mRead(0) {}
    int read(void* buffer, int size) override {
        int n = CZelMemoryStream::read(buffer, size);
        mRead += n;
        return n;
    }
    size_t mRead;
};

std::string Scene(const std::string& zel, const std::string& application = "", const std::string& body = "") {
    std::string s = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<?Zel " + zel + "?>\n";
    if (!application.empty()) s += "<?Application " + application + "?>\n";
    return s + "<Zel.File>" + body + "</Zel.File>\n";
}

std::string Triples(const char* library, const char* min = "3.0.1", const char* safe = "3.0.1") {
    return std::string("library=\"") + library + "\" file=\"5.0\" min_version=\"" + min +
           "\" safe_version=\"" + safe + "\" ";
}

std::string Text(const CZelVersion& v) {
    return std::to_string(v.major) + "." + std::to_string(v.minor) + "." + std::to_string(v.patch);
}

} // namespace

TEST(Detection, ReadabilityVerdicts) {
    struct Case {
        std::string file;
        eReadability readability;
        const char* version; // as copied out; "-1.-1.-1" is untouched
    } cases[] = {
        {Scene(Triples("3.0.2")), eReadabilityCurrent, "3.0.2"},
        {Scene(Triples("3.0.3")), eReadabilityNewer, "3.0.3"},
        {Scene(Triples("3.0.2", "3.0.1", "3.0.3")), eReadabilityNewerUnsafe, "3.0.2"},
        {Scene(Triples("3.0.2", "3.0.3")), eReadabilityTooNew, "3.0.2"},
        {Scene(Triples("3.0.1")), eReadabilityPrevious, "3.0.1"},
        {Scene(Triples("2.9.9")), eReadabilityOld, "2.9.9"},
        // The old decimal form; file 5.1 shows as 5.0, as no small term helps the minor.
        {Scene("library=\"2.01\" file=\"5.1\""), eReadabilityOld, "2.0.1"},
        {Scene("library=\"3.02\" file=\"5.0\" min_version=\"3.01\""), eReadabilityCurrent, "3.0.2"},
        // Another application is judged by its library; the host's own names by versions.
        {Scene(Triples("3.0.2"), "name=\"Other\" version=\"1\""), eReadabilityForeign, "3.0.2"},
        {Scene(Triples("4.0.0"), "name=\"Other\""), eReadabilityTooNew, "4.0.0"},
        {Scene(Triples("1.0.0", "1.0.0", "1.0.0"), "name=\"Other\""), eReadabilityOld, "1.0.0"},
        {Scene(Triples("4.0.0"), "name=\"Vantorium\" version=\"9\""), eReadabilityNewer, "4.0.0"},
        {Scene(Triples("3.0.2"), "name=\"\""), eReadabilityCurrent, "3.0.2"},
        // Only the first word of a name is seen, so a two-word name is always foreign.
        {Scene(Triples("3.0.2"), "name=\"Asset Forge\""), eReadabilityForeign, "3.0.2"},
        // Short scans in both forms, or the root before the instruction: no version.
        {Scene("library=\"3.0.2\""), eReadabilityNone, "-1.-1.-1"},
        {"<?xml version=\"1.0\"?><Zel.File/><?Zel library=\"2.01\" file=\"5.0\"?>", eReadabilityNone,
         "-1.-1.-1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.file);
        // The stream starts behind bytes of its own: it goes back there, not to 0.
        CZelMemoryStream stream("junk" + c.file + std::string(3000, ' '));
        stream.seek(4);
        eReadability readability = eReadabilityForeign;
        CZelVersion version(-1, -1, -1);
        char creator[32] = "untouched";
        bool result = zel_check_format2(&stream, &readability, &version, creator, sizeof creator);
        bool readable = c.readability != eReadabilityNone && c.readability != eReadabilityTooNew;
        EXPECT_EQ(result, readable);
        EXPECT_EQ(readability, c.readability);
        EXPECT_EQ(Text(version), c.version);
        EXPECT_STREQ(creator, readable ? "Vantorium (5.0)" : "untouched");
        EXPECT_EQ(stream.tell(), 4u);
    }
    CZelMemoryStream stream(Scene(Triples("3.0.2")));
    eReadability readability = eReadabilityNone;
    EXPECT_TRUE(zel_check_format2(&stream, &readability, nullptr, nullptr, 0));
}

TEST(Detection, OlderCallAndTheCostOfASniff) {
    // A sniff reads the head whatever the size of the file.
    CountingStream stream(
        Scene(Triples("3.0.2"), "name=\"Vantorium\"",
              "<Preview.Image><![CDATA[" + std::string(1 << 20, '0') + "]]></Preview.Image>"));
    eReadability readability = eReadabilityNone;
    EXPECT_TRUE(zel_check_format2(&stream, &readability, nullptr, nullptr, 0));
    EXPECT_LE(stream.mRead, 3000u);
    stream.mRead = 0;
    char creator[32] = "";
    EXPECT_TRUE(zel_check_format(&stream, creator, sizeof creator));
    EXPECT_STREQ(creator, "Vantorium (5.0)");
    EXPECT_EQ(stream.tell(), 0u);
    EXPECT_LE(stream.mRead, 2000u);

    // On XML of another kind the older call leaves the stream where the parser stopped.
    CZelMemoryStream other("<?xml version=\"1.0\"?>\n<html>" + std::string(5000, ' ') + "</html>");
    EXPECT_FALSE(zel_check_format(&other, creator, sizeof creator));
    EXPECT_NE(other.tell(), 0u);
    other.rewind();
    EXPECT_FALSE(zel_check_format2(&other, &readability, nullptr, nullptr, 0));
    EXPECT_EQ(other.tell(), 0u);
}

TEST(Detection, LegacyHeaders) {
    const char* none = "untouched";
    std::string cases[][2] = {
        {"opt db version 3 5\n-eye 1 2 3\n", "Van*torium (3.5)"},
        {"opt\tdb\nversion 4 0", "Van*torium (4.0)"},
        {"opt db version 3 4", none},
        {"opt db version 3", none},
        {"opt db release 3 5", none},
        {"-dbfile \"scene.db\"", "Van*torium"},
        {"# a view\n-eye 0 0 0", "Van*torium (ORVEAL)"},
        {"-eyes", none},
        {"", none},
        // Only the head of the stream is looked at.
        {std::string(200000, ' ') + "-eye", none},
    };
    for (auto& c : cases) {
        SCOPED_TRACE(c[0].substr(0, 40));
        for (int call = 0; call < 2; ++call) {
            CountingStream stream(c[0]);
            char creator[32] = "untouched";
            eReadability readability = eReadabilityOld;
            CZelVersion version(7, 7, 7);
            bool result = call == 0
                              ? zel_check_format2(&stream, &readability, &version, creator, sizeof creator)
                              : zel_check_format(&stream, creator, sizeof creator);
            EXPECT_EQ(result, c[1] != none);
            EXPECT_EQ(creator, c[1]);
            EXPECT_EQ(stream.tell(), 0u);
            EXPECT_LE(stream.mRead, 64u * 1024 + 1);
            if (call == 0) {
                EXPECT_EQ(readability, result ? eReadabilityCurrent : eReadabilityNone);
            }
            EXPECT_EQ(version, CZelVersion(7, 7, 7));
        }
    }
}

TEST(Detection, CreatorBufferBounds) {
    char creator[16];
    std::memset(creator, 'x', sizeof creator);
    CZelMemoryStream stream(Scene(Triples("3.0.2")));
    eReadability readability;
    EXPECT_TRUE(zel_check_format2(&stream, &readability, nullptr, creator, 4));
    EXPECT_EQ(std::string(creator, 16), std::string("Van\0xxxxxxxxxxxx", 16));

    std::memset(creator, 'x', sizeof creator);
    CZelMemoryStream legacy("-eye");
    EXPECT_TRUE(zel_check_format(&legacy, creator, 0));
    EXPECT_TRUE(zel_check_format(&legacy, nullptr, 10));
    EXPECT_EQ(creator[0], 'x');
    EXPECT_TRUE(zel_check_format(&legacy, creator, 5));
    EXPECT_EQ(std::string(creator, 6), std::string("Van*\0x", 6));
}

TEST(Detection, PreviewImage) {
    unsigned int pixels[] = {0x00112233, 0x00112233, 0x00445566, 0x80ABCDEF, 0, 0};
    const std::string hex = "00000001000000030000000200000002001122330000000300445566"
                            "80ABCDEF000000000000000100000000";
    const std::string preview = "\n\t<Preview.Image><![CDATA[" + hex + "]]></Preview.Image>\n\t<Images/>\n";

    // Found: the rest of the file is never read.
    CountingStream stream(Scene(Triples("3.0.2"), "name=\"V\"", preview + std::string(1 << 20, ' ')));
    IZelImage* found = zel_read_preview_image(&stream);
    ASSERT_NE(found, nullptr);
    EXPECT_LE(stream.mRead, 2048u);
    ASSERT_EQ(found->GetWidth() * 10 + found->GetHeight(), 32u);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(found->GetData()[i], pixels[i] | 0xFF000000u);
    found->Release(); // the caller's reference ends it

    // An empty block is a 0 x 0 preview.
    CZelMemoryStream empty(Scene(Triples("3.0.2"), "", "<Preview.Image><![CDATA[]]></Preview.Image>"));
    IZelImage* none = zel_read_preview_image(&empty);
    ASSERT_NE(none, nullptr);
    EXPECT_EQ(none->GetWidth(), 0u);
    none->Release();

    const std::string misses[] = {
        Scene(Triples("3.0.2"), "", "<Images/>" + preview), // not the first element
        "<?Zel " + Triples("3.0.2") + "?><Zel.File version=\"1\">" + preview +
            "</Zel.File>", // root attribute
        Scene(Triples("3.0.2"), "", "<Preview.Image><![CDATA[" + hex.substr(0, 20) + "]]></Preview.Image>"),
        Scene(Triples("3.0.2"), "", "<Preview.Image/>"),
        "-eye 1 2 3",
    };
    for (const std::string& file : misses) {
        CZelMemoryStream s(file);
        EXPECT_EQ(zel_read_preview_image(&s), nullptr) << file.substr(0, 80);
    }
}

TEST(Detection, MediaInfoAnswersZeroOnAnyInput) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    const std::string inputs[] = {
        Scene(Triples("3.0.2"), "",
              "<Preview.Image><![CDATA[00]]></Preview.Image><Object.Definition><Name en=\"Chair\" "
              "fr=\"Chaise\"/>"
              "</Object.Definition>"),
        "<Zel.File><Object.Definition><Name en=\"x\">",
        "<Zel.File><Other>no end", // skipped unread up to the end of the stream
        "-eye",
    };
    for (const std::string& input : inputs) {
        CZelMemoryStream stream(input);
        EXPECT_EQ(mgr->readMediaInfo(&stream), 0);
    }
    EXPECT_TRUE(feedback.empty());
}
