#include "model/objects/ObjectsFixture.h"

#include "codec/KeyFrameCodec.h"
#include "codec/PathCodec.h"

#include <cstring>
#include <functional>

using namespace KeZel;
using namespace ObjectsTest;
using KestraXML::XIXMLElement;

TEST(KeyFrame, EachValueTypeHasItsForm) {
    Fixture f;
    const CZelUUID id = ZelUUIDFromText("0102030405060708090A0B0C0D0E0F10");
    CZelColor color = {0, 10, 20, 30};
    const struct Case {
        int type;
        std::function<void(CZelVector&)> fill;
        const char* written; // the Value form, as flat text
    } cases[] = {
        {eKeyCoord3D, [](CZelVector& a) { a = V(1, 2, 3); },
         "<Value X=\"1.000000\" Y=\"2.000000\" Z=\"3.000000\"/>"},
        {eKeyColor, [&](CZelVector& a) { ZelSetAreaColor(a, color); },
         "<Value Red=\"10\" Green=\"20\" Blue=\"30\"/>"},
        {eKeyDouble, [](CZelVector& a) { ZelSetAreaDouble(a, 2.5); }, "<Value>2.500000</Value>"},
        {eKeyBoolean, [](CZelVector& a) { ZelSetAreaBool(a, true); }, "<Value/>"},
        {eKeyInteger, [](CZelVector& a) { ZelSetAreaInt(a, -7); }, "<Value>-7</Value>"},
        {eKeyDate, [](CZelVector& a) { ZelSetAreaInt(a, 20240101); }, "<Value>20240101</Value>"},
        {eKeyEnum, [](CZelVector& a) { ZelSetAreaInt(a, 3); }, "<Value>3</Value>"},
        {eKeyUUID, [&](CZelVector& a) { ZelSetAreaUUID(a, id); },
         "Value=\"0102030405060708090A0B0C0D0E0F10\""},
    };
    for (const Case& c : cases) {
        CZelKeyFrame key(&f.zel);
        key.setValueType(c.type);
        key.setTime(40);
        key.setInterpolationType(4);
        c.fill(key.area(0));
        c.fill(key.area(2));
        XIXMLElement* parent = f.fresh();
        XIXMLElement* e = key.putInXML(parent);
        ASSERT_NE(e, nullptr) << c.type << ": " << f.feedback.last();
        std::string text = Fixture::flat(e);
        EXPECT_NE(text.find(c.written), std::string::npos) << text;
        EXPECT_NE(text.find("Interpolation.Type=\"Bezier\""), std::string::npos) << text;

        CZelKeyFrame back(&f.zel);
        ASSERT_TRUE(back.initWithXML(parent)) << c.type << ": " << f.feedback.last();
        EXPECT_EQ(back.getValueType(), c.type);
        EXPECT_EQ(back.getTime(), 40);
        EXPECT_EQ(back.getInterpolationType(), 4);
        EXPECT_EQ(std::memcmp(back.getValue(), key.getValue(), sizeof(CZelVector)), 0) << c.type;
        EXPECT_EQ(std::memcmp(back.getCPAfter(), key.getCPAfter(), sizeof(CZelVector)), 0) << c.type;
        EXPECT_EQ(std::memcmp(back.getCPBefore(), key.getCPBefore(), sizeof(CZelVector)), 0) << c.type;
        EXPECT_TRUE(back.isVisible() && back.areLocked());
    }
    EXPECT_TRUE(f.feedback.empty());
}

TEST(KeyFrame, DefaultsAbsencesAndBadTypes) {
    Fixture f;
    CZelKeyFrame key(&f.zel);
    EXPECT_EQ(key.getValueType(), eKeyInteger);
    EXPECT_EQ(key.getInterpolationType(), 0);
    EXPECT_TRUE(key.areLocked() && key.isVisible());

    // A false Boolean and a false lock write nothing, and read back false.
    key.setValueType(eKeyBoolean);
    ZelSetAreaBool(key.area(1), true);
    key.setLocked(false);
    XIXMLElement* e = ZelAddKeyFrame(f.io, f.fresh(), key);
    EXPECT_EQ(Fixture::children(e), "Time Visible CPBefore");
    CZelKeyFrame back(&f.zel);
    ZelGetKeyFrame(f.io, e, back);
    EXPECT_FALSE(ZelAreaBool(*back.getValue()));
    EXPECT_TRUE(ZelAreaBool(*back.getCPBefore()));
    EXPECT_FALSE(back.areLocked());

    // An unknown type fails before anything is written.
    key.setValueType(8);
    XIXMLElement* parent = f.fresh();
    EXPECT_EQ(key.putInXML(parent), nullptr);
    EXPECT_EQ(f.feedback.last(),
              "Exception in CZelKeyFrame::putInXML : CZelXMLIO::AddKeyFrame : Unknow value type");
    EXPECT_EQ(parent->GetFirstNode(), nullptr);
    CZelXMLIO::setAttribute(e, "Type", "Float");
    EXPECT_EQ(ZelTest::ErrorOf([&] { ZelGetKeyFrame(f.io, e, back); }),
              "Invalid label (Float) [Double..Enum]");
}

TEST(KeyFrame, ValuesAndElementsNest) {
    Fixture f;
    CZelAnimatedElement element(&f.zel);
    // Type 0 has no label.
    EXPECT_EQ(element.putInXML(f.fresh()), nullptr);
    EXPECT_EQ(
        f.feedback.last(),
        "Exception in CZelAnimatedElement::putInXML : No label for the value (0) [Sequence..Mapping.Node]");

    element.setType(4);
    element.setUUID(ZelUUIDFromText("AA000000000000000000000000000001"));
    CZelInterpolatedValue& value = *element.values().newItem();
    value.setType(185);
    value.setLoop(true);
    value.setNbLoops(3);
    value.defaultValue().setValueType(eKeyDouble);
    ZelSetAreaDouble(value.defaultValue().area(0), 0.75);
    // Out of time order, and kept so.
    const int times[] = {30, 10, 20};
    for (int t : times) value.keyFrames().newItem()->setTime(t);

    XIXMLElement* parent = f.fresh();
    XIXMLElement* e = element.putInXML(parent);
    ASSERT_NE(e, nullptr) << f.feedback.last();
    XIXMLElement* v = Fixture::child(Fixture::child(e, "Interpolated.Values"), "Interpolated.Value");
    EXPECT_STREQ(Fixture::attribute(v, "Type"), "Property.Glazing.WaterSpeed");
    EXPECT_EQ(Fixture::children(v), "Loop Nb.Loops Default.Value KeyFrames");

    CZelAnimatedElement back(&f.zel);
    ASSERT_TRUE(back.initWithXML(parent)) << f.feedback.last();
    EXPECT_EQ(back.getType(), 4);
    EXPECT_EQ(*back.getUUID(), *element.getUUID());
    ASSERT_EQ(back.values().getCount(), 1u);
    const CZelInterpolatedValue& read = *back.values().at(0);
    EXPECT_EQ(read.getType(), 185);
    EXPECT_TRUE(read.isLoop());
    EXPECT_EQ(read.getNbLoops(), 3);
    EXPECT_EQ(ZelAreaDouble(*read.getDefaultValue()->getValue()), 0.75);
    ASSERT_EQ(read.keyFrames().getCount(), 3u);
    for (unsigned int i = 0; i < 3; ++i) EXPECT_EQ(read.keyFrames().at(i)->getTime(), times[i]);
}

TEST(Path3D, PointsAndFlags) {
    Fixture f;
    C3DPathList paths(&f.zel);
    C3DPath& open = *paths.newItem();
    XIXMLElement* e = open.putInXML(f.fresh());
    ASSERT_NE(e, nullptr);
    EXPECT_EQ(Fixture::children(e), "Bezier.points");

    C3DPath& closed = *paths.newItem();
    closed.setClosed(true);
    closed.setUUID(ZelUUIDFromText("BB000000000000000000000000000002"));
    CBezierPoint& p = *closed.points().newItem();
    p.setPosition(V(1, 2, 3));
    p.setCPAfter(V(4, 5, 6));
    closed.points().newItem()->setLocked(true);
    XIXMLElement* fileNode = f.fresh("Zel.File");
    ZelPut3DPaths(f.io, fileNode, paths);
    EXPECT_EQ(Fixture::children(Fixture::child(fileNode, "3D.Paths")), "Path.3D Path.3D");

    C3DPathList back(&f.zel);
    ASSERT_TRUE(ZelGet3DPaths(f.io, fileNode, back));
    ASSERT_EQ(back.getCount(), 2u);
    const C3DPath& read = *back.at(1);
    EXPECT_TRUE(read.isClosed());
    EXPECT_FALSE(back.at(0)->isClosed());
    EXPECT_EQ(*read.getUUID(), *closed.getUUID());
    ASSERT_EQ(read.points().getCount(), 2u);
    EXPECT_TRUE(Same(*read.points().at(0)->getCPAfter(), V(4, 5, 6)));
    EXPECT_FALSE(read.points().at(0)->areLocked());
    EXPECT_TRUE(read.points().at(1)->areLocked());
    EXPECT_TRUE(f.feedback.empty());
}
