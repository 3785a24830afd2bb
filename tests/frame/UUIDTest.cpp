#include "frame/UUID.h"
#include "support/TestSupport.h"

#include <set>

using namespace KeZel;
using ZelTest::ErrorOf;

TEST(UUID, TextRoundTripsInEitherCase) {
    CZelUUID counting;
    for (int i = 0; i < 16; ++i) counting.mBytes[i] = static_cast<unsigned char>(i);
    EXPECT_EQ(ZelUUIDToText(counting), "000102030405060708090A0B0C0D0E0F");
    EXPECT_EQ(ZelUUIDFromText("000102030405060708090A0B0C0D0E0F"), counting);
    EXPECT_EQ(ZelUUIDFromText("000102030405060708090a0b0c0d0e0f"), counting);
    // Anything behind the 32nd digit is ignored.
    EXPECT_EQ(ZelUUIDFromText("000102030405060708090A0B0C0D0E0Fzz-trailing"), counting);

    CZelUUID high;
    for (int i = 0; i < 16; ++i) high.mBytes[i] = static_cast<unsigned char>(0xF0 + i);
    char text[33];
    ZelUUIDToText(high, text);
    EXPECT_STREQ(text, "F0F1F2F3F4F5F6F7F8F9FAFBFCFDFEFF");
    EXPECT_EQ(ZelUUIDFromText(text), high);

    EXPECT_EQ(ErrorOf([] { ZelUUIDFromText("000102030405060708090A0B0C0D0E0G"); }), "Invalid hex value");
    EXPECT_EQ(ErrorOf([] { ZelUUIDFromText("0001020304"); }), "Invalid hex value"); // too short
    EXPECT_EQ(ErrorOf([] { ZelUUIDFromText(""); }), "Invalid hex value");
    EXPECT_EQ(ErrorOf([] { ZelUUIDFromText(nullptr); }), "Invalid hex value");
}

TEST(UUID, NewOnesAreVersionFourAndDistinct) {
    std::set<std::string> seen;
    for (int i = 0; i < 200; ++i) {
        CZelUUID uuid = NewZelUUID();
        EXPECT_FALSE(uuid.isNull());
        EXPECT_EQ(uuid.mBytes[7] >> 4, 4);
        EXPECT_EQ(uuid.mBytes[8] >> 6, 2);
        seen.insert(ZelUUIDToText(uuid));
    }
    EXPECT_EQ(seen.size(), 200u);
    EXPECT_TRUE(CZelUUIDX().isNull());
}
