// End to end: the built zeltool on the bundled sample scene and on damaged copies of it.
#include "PngFile.h"
#include "support/TestSupport.h"
#include "zel.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using namespace KeZel;

namespace {

struct Outcome {
    int exit;
    std::string out;
    std::string err;
};

std::string Slurp(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

void Spit(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary);
    out << bytes;
}

class Zeltool : public ::testing::Test {
protected:
    std::string dir;
    void SetUp() override {
        char templ[] = "/tmp/zeltool-test-XXXXXX";
        dir = ::mkdtemp(templ);
    }
    void TearDown() override { std::system(("rm -rf " + dir).c_str()); }
    std::string path(const std::string& name) const { return dir + "/" + name; }

    Outcome tool(const std::string& args) const {
        std::string out = path("out.txt"), err = path("err.txt");
        std::string command = std::string(ZELTOOL_PATH) + " " + args + " >" + out + " 2>" + err;
        int status = std::system(command.c_str());
        return Outcome{WIFEXITED(status) ? WEXITSTATUS(status) : -1, Slurp(out), Slurp(err)};
    }
};

const std::string kSample = ZEL_SAMPLE_SCENE;

} // namespace

TEST_F(Zeltool, InfoCheckAndStatsOfTheSample) {
    Outcome info = tool("info " + kSample);
    EXPECT_EQ(info.exit, 0) << info.err;
    EXPECT_NE(info.out.find("library:     3.0.2"), std::string::npos) << info.out;
    EXPECT_NE(info.out.find("creator:     libzel"), std::string::npos) << info.out;
    // Any creator but the application itself is foreign, whatever its versions.
    EXPECT_NE(info.out.find("readability: foreign"), std::string::npos) << info.out;

    Outcome check = tool("check " + kSample);
    EXPECT_EQ(check.exit, 0) << check.err;
    EXPECT_TRUE(check.err.empty()) << check.err;

    Outcome stats = tool("stats " + kSample);
    EXPECT_EQ(stats.exit, 0) << stats.err;
    for (const char* line :
         {"points:            12", "polygons:          2 (1 with holes)", "materials:         2",
          "lights:            1", "bounding box:      (0, 0, 0) .. (10, 8, 3)"})
        EXPECT_NE(stats.out.find(line), std::string::npos) << line << "\n" << stats.out;

    EXPECT_EQ(tool("").exit, 2);
    EXPECT_EQ(tool("frobnicate " + kSample).exit, 2);
    EXPECT_EQ(tool("--help").exit, 0);
    EXPECT_NE(tool("formats").out.find(".opt  TEXT ZEL2  Van*torium (.opt)"), std::string::npos);
}

TEST_F(Zeltool, PreviewPngMatchesTheLibrarysPreviewPixelForPixel) {
    std::string png = path("preview.png");
    Outcome preview = tool("preview " + kSample + " " + png);
    ASSERT_EQ(preview.exit, 0) << preview.err;
    ZelTool::Pixels pixels;
    std::string error;
    ASSERT_TRUE(ZelTool::ReadPng(png, pixels, error)) << error;

    CZelFileStream in(kSample.c_str(), 0);
    IZelImage* image = zel_read_preview_image(&in);
    ASSERT_NE(image, nullptr);
    ASSERT_EQ(pixels.width, image->GetWidth());
    ASSERT_EQ(pixels.height, image->GetHeight());
    for (unsigned int y = 0; y < pixels.height; ++y)
        for (unsigned int x = 0; x < pixels.width; ++x)
            ASSERT_EQ(pixels.data[y * pixels.width + x], image->GetAt(x, y)) << x << "," << y;
    image->Release();

    // A scene written with an empty preview has none to give.
    std::string bytes = Slurp(kSample);
    std::string::size_type a = bytes.find("<Preview.Image><![CDATA[") + 24, b = bytes.find("]]>", a);
    Spit(path("bare.zel"), bytes.substr(0, a) + bytes.substr(b));
    Outcome none = tool("preview " + path("bare.zel") + " " + path("none.png"));
    EXPECT_EQ(none.exit, 2);
    EXPECT_NE(none.err.find("bare.zel: the preview image is empty"), std::string::npos) << none.err;
}

TEST_F(Zeltool, DamagedCopiesFailCleanlyAndConvertKeepsTheTarget) {
    std::string bytes = Slurp(kSample);
    Spit(path("truncated.zel"), bytes.substr(0, bytes.size() / 2));
    Outcome truncated = tool("check " + path("truncated.zel"));
    EXPECT_EQ(truncated.exit, 2);
    EXPECT_EQ(truncated.err.rfind("zeltool: " + path("truncated.zel") + ": ", 0), 0u) << truncated.err;

    // A corrupted number in the points block: that block fails, the read goes on.
    std::string corrupt = bytes;
    std::string::size_type block = corrupt.find("<Points><![CDATA[");
    ASSERT_NE(block, std::string::npos);
    std::string::size_type digit = corrupt.find("10", block);
    corrupt[digit] = 'x';
    Spit(path("corrupt.zel"), corrupt);
    Outcome damaged = tool("check " + path("corrupt.zel"));
    EXPECT_EQ(damaged.exit, 1) << damaged.err;
    EXPECT_NE(damaged.err.find("while parsing 'Points' data block"), std::string::npos) << damaged.err;

    // A legacy option file without its database beside it.
    Spit(path("alone.opt"), "opt db version 4 0\n-dbfile \"alone.db\"\n");
    Outcome legacy = tool("check " + path("alone.opt"));
    EXPECT_EQ(legacy.exit, 2);
    EXPECT_EQ(legacy.err.rfind("zeltool: " + path("alone.opt") + ": ", 0), 0u) << legacy.err;

    // A failed conversion leaves an existing target as it was, and no temporary behind.
    Spit(path("target.zel"), "keep me");
    EXPECT_EQ(tool("convert " + path("truncated.zel") + " " + path("target.zel")).exit, 2);
    EXPECT_EQ(Slurp(path("target.zel")), "keep me");
    Outcome good = tool("convert " + kSample + " " + path("target.zel"));
    EXPECT_EQ(good.exit, 0) << good.err;
    std::string converted = Slurp(path("target.zel"));
    EXPECT_NE(converted.find("<?Application name=\"zeltool\""), std::string::npos);
    EXPECT_EQ(tool("check " + path("target.zel")).exit, 0);
    Outcome listing = tool("stats " + path("target.zel"));
    EXPECT_NE(listing.out.find("points:            12"), std::string::npos);
    EXPECT_EQ(std::system(("ls " + dir + " | grep -q tmp").c_str()) == 0, false);
}
