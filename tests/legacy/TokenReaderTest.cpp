#include "frame/CZEL.h"
#include "legacy/TokenReader.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace KeZel;
using ZelTest::ErrorOf;

namespace {

// A reader over `text`, with a scene whose feedback collects the warnings.
struct Reading {
    explicit Reading(const std::string& text, EVersionZEL version = eZelVersionCurrent)
        : stream(text), scene(version, &feedback, nullptr), reader(&stream, &scene) {}
    CZelMemoryStream stream;
    CZelReportCollector feedback;
    CZEL scene;
    CTokenReader reader;
};

} // namespace

TEST(TokenReader, Numbers) {
    Reading r("- 3  3. .5 # note\n 2.25 1e5 nan -INF 12 -7 4294967297 3.5");
    bool point = true;
    EXPECT_EQ(-3.0, r.reader.ReadDouble(&point));
    EXPECT_FALSE(point);
    EXPECT_EQ(3.0, r.reader.ReadDouble(&point));
    EXPECT_TRUE(point);
    EXPECT_EQ(0.5, r.reader.ReadDouble());
    EXPECT_EQ(2.25, r.reader.ReadDouble());
    EXPECT_EQ(1.0, r.reader.ReadDouble());
    EXPECT_EQ('e', r.reader.ReadChar()); // no exponent: "e5" stays behind
    EXPECT_EQ('5', r.reader.ReadChar());
    EXPECT_TRUE(r.feedback.empty());
    EXPECT_EQ(1e30, r.reader.ReadDouble(&point));
    EXPECT_TRUE(point);
    EXPECT_EQ(-1e30, r.reader.ReadDouble());
    EXPECT_EQ(2u, r.feedback.count());
    EXPECT_EQ("NaN or INF double.", r.feedback.last());
    EXPECT_EQ(12, r.reader.ReadInt());
    EXPECT_EQ(-7, r.reader.ReadInt());
    EXPECT_EQ(1, r.reader.ReadInt()); // wraps in 32 bits
    EXPECT_EQ("This is not an integer", ErrorOf([&] { r.reader.ReadInt(); }));
    EXPECT_EQ("End of file unexpected", ErrorOf([&] { Reading("  # only\n").reader.ReadDouble(); }));
    EXPECT_EQ("This is not a number", ErrorOf([&] { Reading("abc").reader.ReadDouble(); }));
    EXPECT_EQ("This is not a number", ErrorOf([&] { Reading("x1").reader.ReadInt(); }));
    // A number that ends the stream is whole and the stream stays at its end.
    Reading end("42");
    EXPECT_EQ(42, end.reader.ReadInt());
    EXPECT_EQ(-1, end.reader.ReadChar());
}

TEST(TokenReader, ColorsAndVectors) {
    Reading r("1 1.0 0.5  128 0.999 300  -70 5 63");
    unsigned char bytes[4] = {9, 9, 9, 9};
    CZelColor c = r.reader.ReadColor(bytes);
    EXPECT_EQ(0, bytes[0]);
    EXPECT_EQ(1, c.mRed);
    EXPECT_EQ(255, c.mGreen);
    EXPECT_EQ(127, bytes[3]);
    EXPECT_TRUE(r.feedback.empty());
    c = r.reader.ReadColor(nullptr);
    EXPECT_EQ(128, c.mRed);
    EXPECT_EQ(254, c.mGreen);
    EXPECT_EQ(300 % 256, c.mBlue);
    EXPECT_EQ(1u, r.feedback.count());
    c = r.reader.ReadSignedColor(bytes);
    EXPECT_EQ(-63, static_cast<signed char>(c.mRed));
    EXPECT_EQ(5, static_cast<signed char>(bytes[2]));
    EXPECT_EQ(63, static_cast<signed char>(c.mBlue));
    EXPECT_EQ(2u, r.feedback.count());
    EXPECT_EQ("Invalid color value", r.feedback.last());

    double v[3];
    Reading current("1 2 3");
    current.reader.ReadVector(v);
    EXPECT_EQ(2.0, v[1]);
    Reading old("1 2 3", eZelVersion7); // an old client keeps Y up
    old.reader.ReadVector(v);
    EXPECT_EQ(1.0, v[0]);
    EXPECT_EQ(3.0, v[1]);
    EXPECT_EQ(2.0, v[2]);
}

TEST(TokenReader, Texts) {
    std::string quoted = "  \"a\x7F\"b\x7F"
                         "c # d";
    quoted += '\0';
    quoted += "e\" rest";
    Reading r(quoted + "\n  line of text \r\n");
    EXPECT_EQ("a\"b\x7F"
              "c # de",
              r.reader.ReadText());
    EXPECT_EQ(' ', r.reader.ReadChar()); // nothing behind the quote is taken
    EXPECT_EQ("rest", r.reader.ReadText());
    EXPECT_EQ("line of text ", r.reader.ReadText());
    EXPECT_EQ("", r.reader.ReadText()); // the '\n' of the CR LF pair
    EXPECT_EQ("End of file unexpected", ErrorOf([&] { Reading("\"open").reader.ReadText(); }));
    EXPECT_EQ("End of file unexpected", ErrorOf([&] { Reading("no line end").reader.ReadText(); }));

    Reading line("  \"say \x7F\"hi\x7F\"\" \t\n  plain  \n");
    EXPECT_EQ("say \"hi\"", line.reader.ReadLine());
    EXPECT_EQ("plain", line.reader.ReadLine());

    Reading utf("U\"caf\xC3\xA9\" \"caf\xE9\" # c\n Un\xE9\n");
    EXPECT_EQ("caf\xC3\xA9", utf.reader.ReadUtf8Text());
    EXPECT_EQ("caf\xC3\xA9", utf.reader.ReadUtf8Text());
    EXPECT_EQ("Un\xC3\xA9", utf.reader.ReadUtf8Text());
    EXPECT_EQ("\xE2\x82\xAC\xC5\xB8", LegacyCodePageToUtf8("\x80\x9F"));

    Reading eol("  \t# c\nx \ty");
    EXPECT_TRUE(eol.reader.AtEndOfLine());
    EXPECT_EQ(' ', eol.reader.ReadChar()); // looking ahead took nothing
    eol.reader.SkipTo('\n');
    EXPECT_FALSE(eol.reader.AtEndOfLine());
    // The plain reader's word starts behind the first blank.
    CReader plain(&eol.stream, nullptr);
    EXPECT_EQ("\ty", plain.ReadWord());
    EXPECT_TRUE(CReader::SameText("NaN", "nAn"));
    EXPECT_FALSE(CReader::SameText("NaN", "NaNa"));
}

TEST(TokenReader, Tokens) {
    Reading r("opt db version 3 5\n-dbfile \"a # b.db\" -abc_1 -1a .25 -.5 + 7 - # note\r\n"
              "12.5\"q\"-x");
    struct Expect {
        ETokenType type;
        const char* text;
    } expected[] = {{eTokenWord, "opt"},        {eTokenWord, "db"},       {eTokenWord, "version"},
                    {eTokenNumber, "3"},        {eTokenNumber, "5"},      {eTokenOption, "-dbfile"},
                    {eTokenString, "a # b.db"}, {eTokenOption, "-abc_1"}, {eTokenNumber, "-1"},
                    {eTokenWord, "a"},          {eTokenNumber, "0.25"},   {eTokenNumber, "-0.5"},
                    {eTokenNumber, "7"},        {eTokenNumber, "-"},      {eTokenNumber, "12.5"},
                    {eTokenString, "q"},        {eTokenOption, "-x"}};
    int firstLine = 0;
    for (const Expect& e : expected) {
        EXPECT_TRUE(r.reader.ReadToken()) << e.text;
        EXPECT_EQ(e.type, r.reader.PeekToken().type) << e.text;
        EXPECT_EQ(e.text, r.reader.PeekToken().text);
        if (e.text == std::string("opt")) firstLine = r.reader.PeekToken().line;
        if (e.text == std::string("-dbfile")) {
            EXPECT_EQ(firstLine + 1, r.reader.PeekToken().line);
            EXPECT_EQ(19u, r.reader.PeekToken().position);
        }
    }
    CToken last;
    EXPECT_FALSE(r.reader.ReadToken(last));
    EXPECT_EQ(eTokenEnd, last.type);
    EXPECT_EQ("", last.text);

    Reading typed("-opt word Y n \"open");
    EXPECT_EQ("Reading wrong data type!", ErrorOf([&] { typed.reader.ReadWord(); }));
    EXPECT_EQ("Reading wrong data type!", ErrorOf([&] { typed.reader.ReadOption(); }));
    EXPECT_TRUE(typed.reader.IsFlag());
    EXPECT_FALSE(typed.reader.IsFlag());
    EXPECT_FALSE(typed.reader.ReadToken()); // a string cut by the end
}

TEST(TokenReader, Floats) {
    // A token that is no number repeats the value before it.
    Reading r("3 1.5 x 2.25  1 0.5");
    EXPECT_EQ((std::vector<float>{1.5f, 1.5f, 2.25f}), r.reader.ReadFloats(-1));
    EXPECT_EQ((std::vector<float>{0.5f}), r.reader.ReadFloats(-1));
    EXPECT_EQ("Error converting token to double!", ErrorOf([&] { Reading("2 1.0").reader.ReadFloats(-1); }));
    EXPECT_EQ("Error converting token to decimal!", ErrorOf([&] { Reading("").reader.ReadFloats(-1); }));
    CReader plain(nullptr, nullptr);
    EXPECT_EQ(std::vector<float>(4, 0.0f), plain.ReadFloats(4));
}
