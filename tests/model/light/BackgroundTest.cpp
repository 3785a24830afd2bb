#include "LightFixture.h"

#include "codec/BackgroundCodec.h"
#include "model/light/Background.h"

using namespace KeZel;
using LightTest::Fixture;

TEST(Background, LinePowerAndCombinedType) {
    Fixture f;
    CBackground b(&f.zel);
    const double powers[][2] = {{5, 1}, {50, 50}, {200, 100}, {-3, 1}, {10, 10}, {9.99, 1}};
    for (const auto& p : powers) {
        b.setLinePower(p[0]);
        EXPECT_EQ(b.getLinePower(), p[1]) << p[0];
    }
    EXPECT_EQ(f.feedback.count(), 2u);
    EXPECT_EQ(f.feedback.last(), "Method setLinePower has clipped a value out of range.");
    CBackground loose;
    loose.setLinePower(200);
    EXPECT_EQ(loose.getLinePower(), 200.0);

    EXPECT_EQ(b.getType(), 1); // a gradient, by default
    b.setType(2);
    EXPECT_EQ(b.getImageType(), 0);
    EXPECT_EQ(b.getColorType(), 3);
    EXPECT_EQ(b.getType(), 2);
    b.setType(3);
    EXPECT_EQ(b.getImageType(), 1);
    EXPECT_EQ(b.getColorType(), 0);
    EXPECT_EQ(b.getType(), 3);
    b.setType(0);
    b.setColorType(0);
    EXPECT_EQ(b.getType(), 0);
}

TEST(Background, OldNameReadsAndIsWrittenBackUnderTheNewOne) {
    Fixture f;
    KestraXML::XIXMLElement* file = Fixture::parse(
        "<Zel.File><Backgroung Image.Type=\"Motif\" Color.Type=\"Uniform\"><Color R=\"1\" G=\"2\" B=\"3\"/>"
        "<Second.Color R=\"4\" G=\"5\" B=\"6\"/><Up.Direction X=\"0\" Y=\"0\" Z=\"1\"/>"
        "<Line.Power>20</Line.Power><URL>file:///sky.jpg</URL><Origin>0.5</Origin></Backgroung></Zel.File>");
    CBackground b(&f.zel);
    CZelUUID id = *b.getId();
    ZelGetSceneBackground(f.io, file, b);
    EXPECT_EQ(b.getImageType(), eBackgroundImageMotif);
    EXPECT_EQ(b.getLinePower(), 20.0);
    EXPECT_STREQ(b.getURL(), "file:///sky.jpg");
    EXPECT_EQ(b.getUpDirection()->z, 1.0);
    EXPECT_EQ(*b.getId(), id);
    EXPECT_FALSE(b.isUseDefault());

    ZelPutBackground(f.io, file, b);
    EXPECT_EQ(CZelXMLIO::find(file, "Backgroung"), nullptr);
    CBackground back(&f.zel);
    ASSERT_TRUE(back.initWithXML(file));
    EXPECT_EQ(*back.getId(), id);
    EXPECT_EQ(back.getSecondColor().mBlue, 6);
    EXPECT_EQ(back.getOrigin(), 0.5);

    CBackground shortForm(&f.zel);
    ZelGetBackgroundShort(f.io,
                          Fixture::parse("<Background Image.Type=\"3D\" Color.Type=\"None\">"
                                         "<Color R=\"9\" G=\"9\" B=\"9\"/><URL/></Background>"),
                          shortForm);
    EXPECT_EQ(shortForm.getImageType(), eBackgroundImage3D);
    EXPECT_EQ(shortForm.getSecondColor().mGreen, 100);

    EXPECT_FALSE(back.initWithXML(f.fresh()));
    EXPECT_FALSE(back.initWithXML(Fixture::parse("<P><Background Image.Type=\"Tiled\"/></P>")));
    EXPECT_EQ(f.feedback.last(),
              "Exception in CZelBackground::initWithXML : Invalid label (Tiled) [None..QTVRCubic]");
}

TEST(Environment, ListReadsBackAndMissingPartsKeepDefaults) {
    Fixture f;
    CEnvironmentList list(&f.zel);
    CZelEnvironment& env = *list.newItem();
    env.setName("Dusk");
    env.getClouds()->setStratusSeed(5);
    env.getBackgroundPicture()->setType(eBackgroundPictureMovie3D);
    env.getBackgroundPicture()->set3D(true);
    env.getForeground()->setURL("file:///tree.png");
    env.getForeground()->setPositionY(-4);
    env.getForeground()->setId(*env.getUUID());
    ZelPutEnvironments(f.io, f.root, list);

    CEnvironmentList back(&f.zel);
    ASSERT_TRUE(ZelGetEnvironments(f.io, f.root, back));
    ASSERT_EQ(back.getCount(), 1u);
    CZelEnvironment& b = *back.at(0);
    EXPECT_EQ(*b.getUUID(), *env.getUUID());
    EXPECT_EQ(b.getClouds()->getStratusSeed(), 5);
    EXPECT_EQ(b.getBackgroundPicture()->getType(), eBackgroundPictureMovie3D);
    EXPECT_TRUE(b.getBackgroundPicture()->is3D());
    EXPECT_EQ(b.getForeground()->getPositionY(), -4);
    EXPECT_EQ(*b.getForeground()->getId(), *env.getUUID());

    KestraXML::XIXMLElement* bare = Fixture::parse(
        "<P><Environment UUID=\"00000000000000000000000000000007\"><Name>Bare</Name></Environment></P>");
    CZelEnvironment& plain = *back.newItem();
    ASSERT_TRUE(plain.initWithXML(bare));
    EXPECT_STREQ(plain.getForeground()->getURL(), "");
    EXPECT_TRUE(plain.getForeground()->getId()->isNull());
    EXPECT_EQ(plain.getFog()->getStartDistance(), 50.0);
    EXPECT_TRUE(f.feedback.empty());
}

TEST(Ground, MaterialTravelsWithTheGround) {
    Fixture f;
    CGroundList grounds(&f.zel);
    CZelGround& g = *grounds.newItem();
    EXPECT_STREQ(g.getProperty()->getName(), "Ground Material Name");
    EXPECT_EQ(g.getHeight(), -10.0);
    g.setActive(true);
    g.setHeight(-2.5);
    g.getProperty()->setDiffuseColor(ZelRGB(10, 20, 30));
    ZelPutGrounds(f.io, f.root, grounds);

    CGroundList back(&f.zel);
    ASSERT_TRUE(ZelGetGrounds(f.io, f.root, back));
    ASSERT_EQ(back.getCount(), 1u);
    EXPECT_TRUE(back.at(0)->isActive());
    EXPECT_EQ(back.at(0)->getHeight(), -2.5);
    EXPECT_EQ(back.at(0)->getProperty()->getDiffuseColor().mGreen, 20);
    EXPECT_STREQ(back.at(0)->getProperty()->getName(), "Ground Material Name");
    EXPECT_TRUE(f.feedback.empty());

    KestraXML::XIXMLElement* bare = Fixture::parse("<P><Ground><Active/><Height>4</Height></Ground></P>");
    EXPECT_FALSE(back.at(0)->initWithXML(bare));
    EXPECT_EQ(f.feedback.last(),
              "Exception in CZelGround::initWithXML : CZelXMLIO::GetGround : no property!");
    EXPECT_EQ(back.at(0)->getHeight(), 4.0);
    EXPECT_FALSE(ZelGetGrounds(f.io, f.fresh(), back));
    EXPECT_EQ(back.getCount(), 1u);
}
