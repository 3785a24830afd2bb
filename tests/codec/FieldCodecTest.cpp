#include "codec/LabelTables.h"
#include "codec/ZelXMLIO.h"
#include "frame/CZEL.h"
#include "frame/StreamAdapters.h"
#include "support/TestSupport.h"
#include "xml/XMLTree.h"

#include <cstring>

using namespace KeZel;
using KestraXML::XCXMLTree;
using KestraXML::XIXMLElement;
using ZelTest::ErrorOf;

namespace {

struct Fixture {
    CZelReportCollector feedback;
    CZelMgrHandle mgr;
    XCXMLTree tree;
    XIXMLElement* e;
    explicit Fixture(EVersionZEL version = eZelVersionCurrent) : mgr(&feedback, nullptr, version) {
        e = tree.GetRoot()->NewElement(tree.GetRoot()->GetKey("E"));
    }
    CZEL* zel() { return static_cast<CZEL*>(mgr.get()); }
    std::string text() {
        CZelMemoryStream out;
        CZELXMLWriteStream stream(&out);
        e->Write(&stream);
        return out.bytes();
    }
};

const char* kNullPointer = "exception (pointer is NULL)";

} // namespace

TEST(FieldCodec, ScalarsWriteTheirFormsAndReadBack) {
    Fixture f;
    CZelXMLIO io(f.zel());
    io.putFlag(f.e, "On", true);
    io.putFlag(f.e, "Off", false);
    io.putBoolValue(f.e, "B", true);
    io.putInt(f.e, "I", -7);
    io.putDouble(f.e, "D", 1.0 / 3);
    io.putLong(f.e, "L", 123456789L);
    io.putHex(f.e, "H", 0xBEEFu);
    io.putString(f.e, "S", "a<b & \"c\"");
    io.putString(f.e, "Empty", "");
    EXPECT_EQ(
        f.text(),
        "<E>\n\t<On/>\n\t<B>1</B>\n\t<I>-7</I>\n\t<D>0.333333</D>\n\t<L>123456789</L>\n\t<H>0000BEEF</H>\n"
        "\t<S>a&lt;b &amp; \"c\"</S>\n\t<Empty></Empty>\n</E>");
    EXPECT_TRUE(io.getFlag(f.e, "On"));
    EXPECT_FALSE(io.getFlag(f.e, "Off"));
    EXPECT_TRUE(io.getBoolValue(f.e, "B"));
    EXPECT_EQ(io.getInt(f.e, "I"), -7);
    EXPECT_DOUBLE_EQ(io.getDouble(f.e, "D"), 0.333333);
    EXPECT_EQ(io.getLong(f.e, "L"), 123456789L);
    EXPECT_EQ(io.getHex(f.e, "H"), 0xBEEFu);
    EXPECT_EQ(io.getString(f.e, "S"), "a<b & \"c\"");
    EXPECT_EQ(io.getString(f.e, "Empty"), "");

    // Required fields fail as pointer assertions; optional ones leave the value alone.
    EXPECT_EQ(ErrorOf([&] { io.getInt(f.e, "Missing"); }), kNullPointer);
    EXPECT_EQ(ErrorOf([&] { io.getInt(f.e, "Empty"); }), "exception");
    EXPECT_EQ(ErrorOf([&] { io.getInt(f.e, "On"); }), kNullPointer);
    EXPECT_EQ(ErrorOf([&] { io.getDouble(f.e, "S"); }), "exception");
    int kept = 5;
    EXPECT_FALSE(io.findInt(f.e, "Missing", kept));
    EXPECT_EQ(kept, 5);
    EXPECT_TRUE(io.findInt(f.e, "I", kept));
    EXPECT_EQ(kept, -7);
    // Text that does not fit the 2048-byte buffer is refused.
    std::string longText(2048, 'x');
    EXPECT_EQ(ErrorOf([&] { io.putString(f.e, "Long", longText.c_str()); }), "exception");
    EXPECT_EQ(ErrorOf([] { CZelXMLIO bad(nullptr); }), "exception (assertion failed)");
}

TEST(FieldCodec, VectorsFollowTheAxisRule) {
    CZelVector v = {1, 2, 3};
    {
        Fixture f;
        CZelXMLIO io(f.zel());
        io.putVector(f.e, "V", v);
        io.putVector(f.e, "Swapped", v, true);
        EXPECT_EQ(f.text(),
                  "<E>\n\t<V\n\t\t X=\"1.000000\"\n\t\t Y=\"2.000000\"\n\t\t Z=\"3.000000\"/>\n"
                  "\t<Swapped\n\t\t X=\"1.000000\"\n\t\t Y=\"3.000000\"\n\t\t Z=\"2.000000\"/>\n</E>");
        CZelVector r = io.getVector(f.e, "V");
        EXPECT_EQ(r.y, 2);
        // A file older than 2.0.0 comes in with Y and Z exchanged, then the transform.
        double shift[16] = {1, 0, 0, 10, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
        f.zel()->getMgrEx(6)->setTransform(shift);
        r = io.getVector(f.e, "V");
        EXPECT_EQ(r.x, 11);
        EXPECT_EQ(r.y, 2);
        EXPECT_EQ(io.getRawVector(f.e, "V").x, 1);
        EXPECT_EQ(ErrorOf([&] { io.getVector(f.e, "None"); }), kNullPointer);
    }
    {
        // A client of the old convention: written swapped, read back swapped: a round trip.
        Fixture f(eZelVersion7);
        CZelXMLIO io(f.zel());
        io.putVector(f.e, "V", v);
        CZelVector r = io.getVector(f.e, "V");
        EXPECT_EQ(r.x, 1);
        EXPECT_EQ(r.y, 2);
        EXPECT_EQ(r.z, 3);
        EXPECT_EQ(io.getRawVector(f.e, "V").y, 3);
    }
    Fixture f;
    CZelXMLIO io(f.zel());
    CZelVector tri[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    io.putTriangle(f.e, "T", tri, false);
    CZelVector back[3];
    io.getTriangle(f.e, "T", back);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(std::memcmp(&back[i], &tri[i], sizeof(CZelVector)), 0) << i;
    io.putVector2D(f.e, "P", 0.5, -2);
    double x = 0, y = 0;
    io.getVector2D(f.e, "P", x, y);
    EXPECT_EQ(x, 0.5);
    EXPECT_EQ(y, -2);
}

TEST(FieldCodec, ColoursDatesPlacesAndIdentities) {
    Fixture f;
    CZelXMLIO io(f.zel());
    CZelColor c = {9, 1, 2, 3};
    io.putColor(f.e, "C", c);
    io.putShiftedColor(f.e, "Ambient", CZelColor{0, 37, 37, 37});
    EXPECT_NE(f.text().find("<C\n\t\t R=\"1\"\n\t\t G=\"2\"\n\t\t B=\"3\"/>"), std::string::npos);
    EXPECT_NE(f.text().find("<Ambient\n\t\t R=\"165\"\n\t\t G=\"165\"\n\t\t B=\"165\"/>"), std::string::npos);
    CZelColor r = io.getColor(f.e, "C");
    EXPECT_EQ(r.mSpare, 0);
    EXPECT_EQ(r.mRed + r.mGreen * 10 + r.mBlue * 100, 321);
    EXPECT_EQ(io.getShiftedColor(f.e, "Ambient").mGreen, 37);

    // The old form: three children with text.
    XIXMLElement* old = CZelXMLIO::add(f.e, "Old");
    io.putInt(old, "Red", 1);
    io.putInt(old, "Green", 2);
    io.putInt(old, "Blue", 3);
    EXPECT_EQ(io.getColor(f.e, "Old").mBlue, 3);
    CZelXMLIO::add(f.e, "Bare");
    EXPECT_EQ(ErrorOf([&] { io.getColor(f.e, "Bare"); }), kNullPointer);

    CZelDate d = {12, 31, 23, 59, 2020};
    io.putDate(f.e, "Time", d);
    CZelDate back = {0, 0, 0, 0, 1999};
    io.getDate(f.e, "Time", back);
    EXPECT_EQ(std::memcmp(&back, &d, sizeof d), 0);
    XIXMLElement* noYear = CZelXMLIO::add(f.e, "NoYear");
    for (const char* k : {"Month", "Day", "Hour", "Minute"}) io.putInt(noYear, k, 1);
    io.getDate(f.e, "NoYear", back);
    EXPECT_EQ(back.mYear, 2020); // a missing year leaves it as it was

    CZelPlaceData p = {-3, 45, 1, true};
    io.putPlace(f.e, p);
    CZelPlaceData pb = {};
    io.getPlace(f.e, pb);
    EXPECT_TRUE(pb.mLongitude == -3 && pb.mLatitude == 45 && pb.mTimeZone == 1 && pb.mDaylight);

    CZelUUID id;
    for (int i = 0; i < 16; ++i) id.mBytes[i] = static_cast<unsigned char>(i);
    io.putUUID(f.e, "Id", id);
    EXPECT_STREQ(CZelXMLIO::attributeText(f.e, "Id"), "000102030405060708090A0B0C0D0E0F");
    EXPECT_TRUE(io.getUUID(f.e, "Id") == id);
    CZelXMLIO::setAttribute(f.e, "Bad", "00010203040506070809OA0B0C0D0E0F");
    EXPECT_EQ(ErrorOf([&] { io.getUUID(f.e, "Bad"); }), "Invalid hex value");
    CZelUUID untouched = id;
    EXPECT_FALSE(io.findUUID(f.e, "Absent", untouched));
    EXPECT_TRUE(untouched == id);
}

TEST(FieldCodec, LanguagesMatricesAndFloatArrays) {
    Fixture f;
    CZelXMLIO io(f.zel());
    CZelLanguageTexts names = {{'e' * 256 + 'n', "Chair"}, {'f' * 256 + 'r', "Chaise"}};
    io.putLanguages(f.e, "Name", names);
    io.putEnString(f.e, "Title", "T");
    EXPECT_EQ(io.getLanguages(f.e, "Name"), names);
    EXPECT_EQ(io.getEnString(f.e, "Title"), "T");
    io.putLanguages(f.e, "French", {{'f' * 256 + 'r', "Chaise"}});
    EXPECT_EQ(ErrorOf([&] { io.getEnString(f.e, "French"); }), kNullPointer);

    double m[16];
    for (int i = 0; i < 16; ++i) m[i] = i + 0.5;
    io.putMatrix(f.e, m);
    double back[16];
    io.getMatrix(f.e, back);
    EXPECT_EQ(std::memcmp(back, m, sizeof m), 0);
    // Rows are placed by their Index, whatever the order in the file.
    XCXMLTree other;
    XIXMLElement* o = other.GetRoot()->NewElement(other.GetRoot()->GetKey("O"));
    XIXMLElement* rows = CZelXMLIO::add(o, "Model.Rotation.Matrixs");
    for (int r = 3; r >= 0; --r) {
        XIXMLElement* line = CZelXMLIO::add(rows, "Line");
        line->NewData(r == 0 ? "7, 7, 7, 7" : "0, 0, 0, 0");
        CZelXMLIO::setAttribute(line, "Index", std::to_string(r).c_str());
    }
    io.getMatrix(o, back);
    EXPECT_EQ(back[0], 7);
    EXPECT_EQ(back[5], 0);

    float values[3] = {0.25f, -1.5f, 3};
    io.putFloats(f.e, "Table", values, 3);
    io.putFloats(f.e, "None", values, 0);
    EXPECT_EQ(io.getFloats(f.e, "Table"), std::vector<float>(values, values + 3));
    EXPECT_TRUE(io.getFloats(f.e, "None").empty());
}

TEST(LabelTables, FirstWordWrittenEveryWordReadExactMessages) {
    EXPECT_STREQ(ZelLabelOf(kMapTypeLabels, 4), "Reflection");
    EXPECT_EQ(ZelValueOf(kMapTypeLabels, "Refletion"), 4);
    EXPECT_EQ(ZelValueOf(kMapTypeLabels, "Reflection"), 4);
    EXPECT_STREQ(ZelLabelOf(kLensFlareTypeLabels, 0), "LensFlare1");
    EXPECT_EQ(ZelValueOf(kLensFlareTypeLabels, "Standard"), 0);
    EXPECT_STREQ(ZelLabelOf(kSequenceTargetTypeLabels, 2), "Forward.Path");
    EXPECT_EQ(ZelValueOf(kSequenceTargetTypeLabels, "Relative.Angle"), 2);
    EXPECT_EQ(ErrorOf([] { ZelLabelOf(kSequenceTargetTypeLabels, 1); }),
              "No label for the value (1) [Fixed.Vertex..Object.Instance]");
    EXPECT_EQ(ErrorOf([] { ZelValueOf(kLightTypeLabels, "bad"); }), "Invalid label (bad) [Point..Parallel]");
    EXPECT_EQ(ErrorOf([] { ZelLabelOf(kLightShadowTypeLabels, 9); }),
              "No label for the value (9) [None..Soft]");
    EXPECT_EQ(ErrorOf([] { ZelValueOf(kLightTypeLabels, "point"); }),
              "Invalid label (point) [Point..Parallel]");
    EXPECT_EQ(ZelValueOf(kPlantColorLabels, "Undefined"), -1);

    // The animatable keys: 206 rows, every word reads back to the value that writes it.
    int rows = 0;
    for (const CZelLabel* p = kInterpolatedValueLabels; p->mWord; ++p, ++rows) {
        EXPECT_STREQ(ZelLabelOf(kInterpolatedValueLabels, p->mValue), p->mWord);
        EXPECT_EQ(ZelValueOf(kInterpolatedValueLabels, p->mWord), p->mValue);
    }
    EXPECT_EQ(rows, 206);
    EXPECT_EQ(ZelValueOf(kInterpolatedValueLabels, "Property.Glazing.Propertion"), 179);
    EXPECT_EQ(ErrorOf([] { ZelLabelOf(kInterpolatedValueLabels, 0); }),
              "No label for the value (0) [Camera.Position..Property.Glazing.WaterSpeed]");

    Fixture f;
    CZelXMLIO io(f.zel());
    io.putLabel(f.e, "Type", kLightTypeLabels, 1);
    EXPECT_EQ(io.getLabel(f.e, "Type", kLightTypeLabels), 1);
    int kept = 2;
    EXPECT_FALSE(io.findLabel(f.e, "Absent", kLightTypeLabels, kept));
    EXPECT_EQ(kept, 2);
}

TEST(FieldCodec, ListsReplaceTheirItemsAndKeepOtherChildren) {
    Fixture f;
    CZelXMLIO io(f.zel());
    struct Item {
        int value = 0;
    };
    struct List {
        std::vector<Item> items;
        unsigned getCount() const { return static_cast<unsigned>(items.size()); }
        Item* at(unsigned i) { return &items[i]; }
        void clear() { items.clear(); }
        Item* newZelObject(unsigned) {
            items.emplace_back();
            return &items.back();
        }
    } list;
    list.items.resize(2);
    list.items[0].value = 1;
    list.items[1].value = 2;
    auto add = [&](XIXMLElement* outer, const Item& it) { io.putInt(outer, "Item", it.value); };
    XIXMLElement* outer = io.putList(f.e, "Items", "Item", list, add);
    CZelXMLIO::add(outer, "Foreign");
    io.putList(f.e, "Items", "Item", list, add);
    EXPECT_EQ(f.text(),
              "<E>\n\t<Items>\n\t\t<Item>1</Item>\n\t\t<Item>2</Item>\n\t\t<Foreign/>\n\t</Items>\n</E>");
    List back;
    back.items.resize(1);
    EXPECT_TRUE(io.getList(f.e, "Items", "Item", back, [&](XIXMLElement* child, Item& it) {
        it.value = std::atoi(CZelXMLIO::textOf(child));
    }));
    ASSERT_EQ(back.items.size(), 2u);
    EXPECT_EQ(back.items[1].value, 2);
    EXPECT_FALSE(io.getList(f.e, "Absent", "Item", back, [](XIXMLElement*, Item&) {}));
    EXPECT_EQ(back.items.size(), 2u);
}
