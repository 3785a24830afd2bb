#include "ObjectsFixture.h"

#include "codec/BillboardCodec.h"
#include "model/light/Sky.h"

using namespace KeZel;
using namespace ObjectsTest;
using KestraXML::XIXMLElement;

TEST(Billboard, EntryWritesItsThreePartsAndReadsBack) {
    Fixture f;
    CBillboardList list(&f.zel);
    CZelBBMgrData& entry = *list.newItem();
    EXPECT_TRUE(Same(*entry.billboard().getNormal(), V(0, 0, 1)));
    EXPECT_EQ(entry.billboard().getBehavior(), 1);
    entry.setProperty(0xAB);
    CZelQuad& quad = *entry.quads().newItem();
    EXPECT_EQ(quad.getId(), -1);
    quad.setTriangle(V(1, 2, 3), V(4, 5, 6), V(7, 8, 9));
    entry.quads().newItem()->setId(0x1234);
    entry.texture().setURL("leaf.png");
    entry.texture().setWidth(2);
    entry.texture().setCutOut2(true, ZelRGB(1, 2, 3));
    entry.billboard().setBehavior(2);
    entry.billboard().setAnimate(true);

    XIXMLElement* fileNode = f.fresh("Zel.File");
    XIXMLElement* outer = ZelPutBillboards(f.io, fileNode, list);
    XIXMLElement* e = Fixture::child(outer, "Billboard");
    EXPECT_EQ(Fixture::children(e), "Mgr.Info Texture Bb.Info");
    XIXMLElement* mgr = Fixture::child(e, "Mgr.Info");
    EXPECT_STREQ(CZelXMLIO::textOf(Fixture::child(mgr, "Property")), "000000AB");
    XIXMLElement* q = Fixture::child(Fixture::child(mgr, "Quads"), "Quad");
    EXPECT_STREQ(CZelXMLIO::textOf(q), "FFFFFFFF");
    EXPECT_EQ(Fixture::children(Fixture::child(e, "Texture")),
              "URL Origin X.Axis Y.Axis Width Height CutOut2");
    // No names: Bb.Info still holds the rest.
    XIXMLElement* info = Fixture::child(e, "Bb.Info");
    EXPECT_EQ(Fixture::children(info), "Behavior NbFaces Animate Scale Normal");
    EXPECT_STREQ(Fixture::attribute(Fixture::child(info, "Behavior"), "Kind"), "Multifaces");

    CZelBBName& name = *entry.billboard().names().newItem();
    EXPECT_EQ(name.getCode(), 25966);
    EXPECT_STREQ(name.getText(), "Billboard");
    name.setText("Birch");
    ZelPutBillboards(f.io, fileNode, list);
    info = Fixture::child(Fixture::child(outer, "Billboard"), "Bb.Info");
    EXPECT_STREQ(Fixture::attribute(Fixture::child(info, "Names"), "en"), "Birch");

    CBillboardList back(&f.zel);
    back.newItem();
    back.newItem();
    ASSERT_TRUE(ZelGetBillboards(f.io, fileNode, back));
    ASSERT_EQ(back.getCount(), 1u);
    const CZelBBMgrData& read = *back.at(0);
    EXPECT_EQ(read.getProperty(), 0xABu);
    ASSERT_EQ(read.quads().getCount(), 2u);
    EXPECT_EQ(read.quads().at(0)->getId(), -1);
    EXPECT_EQ(read.quads().at(1)->getId(), 0x1234);
    EXPECT_TRUE(Same(read.quads().at(0)->getTriangle()[2], V(7, 8, 9)));
    CZelColor c;
    EXPECT_FALSE(read.texture().getCutOut1(&c));
    EXPECT_TRUE(read.texture().getCutOut2(&c));
    EXPECT_EQ(c.mBlue, 3);
    EXPECT_STREQ(read.texture().getURL(), "leaf.png");
    EXPECT_EQ(read.billboard().getBehavior(), 2);
    EXPECT_TRUE(read.billboard().isAnimate());
    ASSERT_EQ(read.billboard().names().getCount(), 1u);
    EXPECT_STREQ(read.billboard().names().at(0)->getText(), "Birch");
    EXPECT_TRUE(f.feedback.empty()) << f.feedback.last();
}

TEST(Billboard, AxesLabelsAndNulls) {
    Fixture old(eZelVersion7);
    CBillboardList list(&old.zel);
    CZelBBMgrData& entry = *list.newItem();
    // The old convention has Y up; written with Y and Z exchanged.
    EXPECT_TRUE(Same(*entry.billboard().getNormal(), V(0, 1, 0)));
    entry.billboard().setNormal(V(1, 2, 3));
    XIXMLElement* e = ZelAddBillboard(old.io, old.fresh(), &entry);
    XIXMLElement* normal = Fixture::child(Fixture::child(e, "Bb.Info"), "Normal");
    EXPECT_STREQ(Fixture::attribute(normal, "Y"), "3.000000");
    EXPECT_STREQ(Fixture::attribute(normal, "Z"), "2.000000");

    EXPECT_EQ(ZelAddBillboard(old.io, old.fresh(), nullptr), nullptr);
    EXPECT_NE(ZelTest::ErrorOf([&] { ZelAddBillboard(old.io, nullptr, &entry); }), "<no exception>");
    entry.billboard().setBehavior(5);
    EXPECT_EQ(ZelTest::ErrorOf([&] { ZelAddBillboard(old.io, old.fresh(), &entry); }),
              "No label for the value (5) [Flat..Multifaces]");
}
