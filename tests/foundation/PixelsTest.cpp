#include "foundation/Pixels.h"
#include "foundation/XMLImage.h"
#include "support/TestSupport.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace Kestra;
using ZelTest::ErrorOf;

namespace {

// Hands out its text in pieces of at most `piece` bytes.
class TextIn : public KestraXML::CXMLReadStream {
public:
    explicit TextIn(const std::string& text, size_t piece = 1 << 30) : mText(text), mAt(0), mPiece(piece) {}
    int Read(void* buffer, int length) override {
        size_t n = std::min({static_cast<size_t>(length), mText.size() - mAt, mPiece});
        mText.copy(static_cast<char*>(buffer), n, mAt);
        mAt += n;
        return static_cast<int>(n);
    }

private:
    std::string mText;
    size_t mAt, mPiece;
};

// Takes at most `limit` bytes in all.
class TextOut : public KestraXML::XIXMLWriteStream {
public:
    explicit TextOut(size_t limit = std::string::npos) : mLimit(limit) {}
    int Write(const void* buffer, int length) override {
        size_t n = std::min(static_cast<size_t>(length), mLimit - mText.size());
        mText.append(static_cast<const char*>(buffer), n);
        return static_cast<int>(n);
    }
    std::string mText;
    size_t mLimit;
};

// Hex words written with blanks for the eye; the blanks are not part of a block.
std::string Words(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
    return text;
}

std::string Hex(const XTIMatrix<unsigned int>& image) {
    TextOut out;
    WriteHexImage(image, &out);
    return out.mText;
}

std::vector<unsigned int> Pixels(const XTIMatrix<unsigned int>& image) {
    const unsigned int* p = image.GetData();
    return std::vector<unsigned int>(p, p + image.GetWidth() * image.GetHeight());
}

} // namespace

TEST(HexBlock, WritesExactWords) {
    unsigned int one = 0x00ABCDEF;
    EXPECT_EQ(Hex(XCPixels(1, 1, &one)), Words("00000001 00000001 00000001 00000001 00ABCDEF"));
    // a a b c: a repeat of 2, then a literal of the last two.
    unsigned int four[] = {0xA, 0xA, 0xB, 0xC};
    EXPECT_EQ(Hex(XCPixels(2, 2, four)), Words("00000001 00000002 00000002 00000002 0000000A 00000002 "
                                               "0000000B 0000000C"));
    // The literal ends with the first pixel equal to its successor; a repeat of 1 follows.
    unsigned int five[] = {0xA, 0xB, 0xC, 0xC, 0xD};
    EXPECT_EQ(Hex(XCPixels(5, 1, five)), Words("00000001 00000005 00000001 00000001 0000000A 00000002 "
                                               "0000000B 0000000C 00000001 0000000C 00000001 0000000D"));
    EXPECT_EQ(Hex(XCPixels()), "");
    EXPECT_EQ(Hex(XCPixels(3, 0, nullptr)), "");

    // A stream that takes too little: the raw writer names it, the provider answers false.
    XCPixels big(300, 1, nullptr);
    for (unsigned int x = 0; x < 300; ++x) big.SetAt(x, 0, x);
    TextOut shortOut(1500);
    EXPECT_EQ(ErrorOf([&] { WriteHexImage(big, &shortOut); }),
              "XCXMLImage::WriteHex - Write stream error (assertion failed)");
    XCXMLImage provider(300, 1, big.GetData());
    EXPECT_FALSE(provider.Write(&shortOut, 0, nullptr));
    TextOut good;
    EXPECT_TRUE(provider.Write(&good, 0, nullptr));
    EXPECT_EQ(good.mText, Hex(big));
}

TEST(HexBlock, ReadsBackWithAlphaForced) {
    // Runs of many lengths of both kinds, longer than any stream buffer, in any pieces.
    XCPixels source(257, 33, nullptr);
    for (unsigned int y = 0; y < 33; ++y)
        for (unsigned int x = 0; x < 257; ++x) source.SetAt(x, y, (x / (y % 5 + 1)) * 0x01020304u);
    std::vector<unsigned int> expected = Pixels(source);
    for (unsigned int& p : expected) p |= 0xFF000000u;
    for (size_t piece : {size_t(1) << 30, size_t(7), size_t(1)}) {
        XCXMLImage image;
        TextIn in(Hex(source), piece);
        image.Read(&in);
        ASSERT_EQ(image.GetWidth(), 257u);
        ASSERT_EQ(image.GetHeight(), 33u);
        EXPECT_EQ(Pixels(image), expected) << "piece " << piece;
    }

    // From a machine of the other byte order.
    XCXMLImage swapped;
    TextIn in(Words("01000000 02000000 01000000 02000000 33221100"));
    swapped.Read(&in);
    EXPECT_EQ(Pixels(swapped), (std::vector<unsigned int>{0xFF112233u, 0xFF112233u}));
    EXPECT_EQ(swapped.GetWidth(), 2u);

    // An empty block is the 0 x 0 image, not a failure.
    XCXMLImage empty(2, 2, nullptr);
    TextIn none("");
    empty.Read(&none);
    EXPECT_EQ(empty.GetWidth() + empty.GetHeight(), 0u);
}

TEST(HexBlock, DamagedBlocksLeaveNoHalfImage) {
    const char* wrong = "IZelImage::Read - Wrong data (assertion failed)";
    const char* shortRead = "XCXMLImage::ReadHex - Read stream error (assertion failed)";
    const char* badDigit = "XCXMLImage::ReadHex - Invalid hex value";
    const char* cases[][2] = {
        {"00000002 00000001 00000001", "Unknown format"},
        {"0000000l", badDigit},
        {"00000001 00000002 00000002 00000004 0000000a", badDigit},
        {"00000001 00000002 00000002 00000005 00000000", wrong},
        {"00000001 00000002 00000002 00000001 00000000 00000004", wrong},
        {"00000001 00000002 00000002 00000002 00000000 00000002 00000001", shortRead},
        {"00000001 00000002 000000", shortRead},
        {"00000001 FFFFFFFF FFFFFFFF", "XTCMatrix::XTCMatrix - Can't allocate buffer"},
    };
    for (auto& c : cases) {
        XCXMLImage image(3, 3, nullptr);
        TextIn in(Words(c[0]));
        EXPECT_EQ(ErrorOf([&] { image.Read(&in); }), c[1]) << c[0];
        EXPECT_EQ(image.GetWidth() + image.GetHeight(), 0u);
        EXPECT_EQ(image.GetData(), nullptr);
    }
}

TEST(Pixels, ResizeIsNearestNeighbourWithStrictSteps) {
    unsigned int src[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    XCPixels image(3, 3, src);
    struct Case {
        unsigned int width, height;
        std::vector<unsigned int> pixels;
    } cases[] = {
        {3, 3, {1, 1, 2, 1, 1, 2, 4, 4, 5}}, // same size: the first row and column repeat
        {6, 2, {1, 1, 1, 2, 2, 3, 4, 4, 4, 5, 5, 6}},
        {1, 2, {1, 4}},
    };
    for (const Case& c : cases) {
        XCPixels* resized = static_cast<XCPixels*>(image.Resized(c.width, c.height));
        EXPECT_EQ(resized->RefCount(), 1); // held for the caller
        EXPECT_EQ(Pixels(*resized), c.pixels);
        resized->Release();
    }
    XTIMatrix<unsigned int>* fromEmpty = XCPixels().Resized(2, 1);
    EXPECT_EQ(Pixels(*fromEmpty), (std::vector<unsigned int>{0, 0}));
    fromEmpty->Release();

    EXPECT_EQ(ErrorOf([&] { image.GetAt(3, 0); }),
              "XTCMatrix::CheckIndex - Invalid index (assertion failed)");
    EXPECT_EQ(ErrorOf([&] { image.SetAt(0, 3, 1); }),
              "XTCMatrix::CheckIndex - Invalid index (assertion failed)");
    EXPECT_EQ(ErrorOf([] { XCPixels(1u << 15, 1u << 14, nullptr); }),
              "XTCMatrix::XTCMatrix - Can't allocate buffer");
}
