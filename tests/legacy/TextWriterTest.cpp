#include "frame/CZEL.h"
#include "legacy/TextWriter.h"
#include "legacy/TokenReader.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>

using namespace KeZel;

namespace {

// The number form written the plain way, one step after the other, as the reference
// for the fast writer.
std::string PlainDouble(double d) {
    char text[64];
    if (d != d || d < -1e30) d = -1e30;
    if (d > 1e30) d = 1e30;
    if (d == 0.0) return "0.0 ";
    double a = std::fabs(d);
    if (a > 2147483647.0) {
        std::snprintf(text, sizeof text, "%lf ", d);
        return text;
    }
    a = a + 5e-7;
    std::string s = d < 0 ? "-" : "";
    int whole = static_cast<int>(a);
    std::snprintf(text, sizeof text, "%d", whole);
    s += text;
    s += '.';
    double f = a - whole, e = 1e-6;
    do {
        f = f * 10;
        e = e * 10;
        int digit = static_cast<int>(f);
        s += static_cast<char>('0' + digit);
        f = f - digit;
    } while (f > e && e < 0.9);
    return s + ' ';
}

std::string Written(double d) {
    CZelMemoryStream stream;
    CWriter writer(&stream, nullptr);
    int n = writer.WriteDouble(d);
    EXPECT_EQ(stream.bytes().size(), static_cast<size_t>(n));
    return stream.bytes();
}

} // namespace

TEST(TextWriter, NumberForms) {
    char big[64];
    std::snprintf(big, sizeof big, "%lf ", 1e30);
    EXPECT_EQ("0.0 ", Written(-0.0));
    EXPECT_EQ("0.0 ", Written(0.0000001));
    EXPECT_EQ("0.5 ", Written(0.5));
    EXPECT_EQ("1.0 ", Written(1.0));
    EXPECT_EQ("1.234568 ", Written(1.2345678));
    EXPECT_EQ("-2.25 ", Written(-2.25));
    EXPECT_EQ("2147483647.0 ", Written(2147483647.0));
    EXPECT_EQ(big, Written(1e31));
    EXPECT_EQ(big, Written(std::numeric_limits<double>::infinity()));
    EXPECT_EQ("-" + std::string(big), Written(std::nan("")));

    CZelMemoryStream stream;
    CZelReportCollector feedback;
    CZEL old(eZelVersion7, &feedback, nullptr);
    CWriter writer(&stream, &old);
    const float table[] = {0.25f, -3.0f};
    const unsigned char color[4] = {7, 255, 1, 0xC1};
    const double v[3] = {1, 2, 3.5};
    int n = writer.WriteInt(INT_MIN) + writer.WriteInt(0) + writer.WriteBool(true) + writer.WriteBool(false);
    n += writer.WriteFloats(table, 2, true) + writer.WriteFloats(table, 1, false);
    n += writer.WriteColor(color) + writer.WriteSignedColor(color) + writer.WriteString(nullptr);
    n += writer.WriteString("ab") + writer.WriteVector(v);
    EXPECT_EQ("-2147483648 0 Y N 2 0.25 -3.0 \n0.25 \n255 1 193 -1 1 -63 ab1.0 3.5 2.0 ", stream.bytes());
    EXPECT_EQ(stream.bytes().size(), static_cast<size_t>(n));

    // What an old client writes, it reads back in its own axes.
    CZelMemoryStream vector;
    CWriter(&vector, &old).WriteVector(v);
    vector.rewind();
    double back[3];
    CReader(&vector, &old).ReadVector(back);
    EXPECT_EQ(0, std::memcmp(v, back, sizeof back));
}

TEST(TextWriter, DoubleExactOverManyValues) {
    std::mt19937_64 random(20240611);
    std::vector<double> values = {1e-7,
                                  4.9999999e-7,
                                  5e-7,
                                  9.9999995e-7,
                                  0.1,
                                  0.3,
                                  0.9999995,
                                  0.99999949,
                                  123.4567895,
                                  1e6 + 0.5,
                                  2147483646.9999995,
                                  -2147483647.0,
                                  2147483647.5,
                                  std::numeric_limits<double>::denorm_min(),
                                  -1e30,
                                  1e30};
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    for (int i = 0; i < 300000; ++i) {
        double scale = std::pow(10.0, static_cast<double>(random() % 12) - 2);
        values.push_back(unit(random) * scale);
        // Right at and around the rounding points of the sixth decimal.
        double tick = static_cast<double>(random() % 100000000) * 1e-6 + 5e-7;
        values.push_back(tick);
        values.push_back(std::nextafter(tick, 0.0));
        values.push_back(-std::nextafter(tick, 1e9));
        uint64_t bits = random();
        double any;
        std::memcpy(&any, &bits, sizeof any);
        values.push_back(any);
    }
    int mismatches = 0;
    for (double d : values) {
        char text[64];
        std::string fast(text, static_cast<size_t>(CWriter::FormatDouble(d, text)));
        if (fast != PlainDouble(d) && ++mismatches <= 5)
            ADD_FAILURE() << "value " << d << ": " << fast << " instead of " << PlainDouble(d);
    }
    EXPECT_EQ(0, mismatches);
    // And the stream receives exactly that text, in one piece.
    EXPECT_EQ(PlainDouble(-123.4567895), Written(-123.4567895));
}
