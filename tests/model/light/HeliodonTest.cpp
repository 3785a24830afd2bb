#include "LightFixture.h"

#include "codec/HeliodonCodec.h"
#include "foundation/Platform.h"
#include "model/light/Heliodon.h"
#include "model/light/HeliodonOpt.h"

#include <cstdint>
#include <cstring>

using namespace KeZel;
using LightTest::Fixture;

TEST(Heliodon, SettersClipAndReport) {
    Fixture f;
    CHeliodonList list(&f.zel);
    CHeliodon& h = *list.newItem();
    const double phis[][2] = {{0, 0.001}, {-0.0005, -0.001}, {0.001, 0.001}, {-0.001, -0.001}, {0.3, 0.3}};
    for (const auto& p : phis) {
        h.setPhi(p[0]);
        EXPECT_EQ(h.getPhi(), p[1]) << p[0];
    }
    CZelTime& t = *h.getTime();
    t.setMonth(13);
    t.setDay(0);
    t.setHour(24);
    t.setMinute(-1);
    t.setYear(-5);
    EXPECT_EQ(t.getMonth(), 12);
    EXPECT_EQ(t.getDay(), 1);
    EXPECT_EQ(t.getHour(), 23);
    EXPECT_EQ(t.getMinute(), 0);
    EXPECT_EQ(t.getYear(), -5);
    EXPECT_TRUE(f.feedback.empty());

    h.setShadowBlur(-3);
    EXPECT_EQ(h.getShadowBlur(), 0);
    h.setShadowBlur(101);
    EXPECT_EQ(h.getShadowBlur(), 100);
    EXPECT_EQ(f.feedback.count(), 2u);
    EXPECT_EQ(f.feedback.last(), "CZelHeliodon::setShadowBlur: invalid blur level");

    EXPECT_EQ(h.getColor(6).mRed, 200);
    EXPECT_EQ(f.feedback.last(), "CZelHeliodon::getColor: bad index");
    h.setColor(6, ZelRGB(1, 1, 1));
    EXPECT_EQ(f.feedback.last(), "CZelHeliodon::setColor: bad index");
    // Index 5 is let through onto the radiosity flag.
    CZelColor five = {1, 2, 3, 4};
    h.setColor(5, five);
    EXPECT_TRUE(h.isRadiosity());
    EXPECT_EQ(f.feedback.count(), 4u);
    h.setMiddleColor(ZelRGB(9, 9, 9));
    EXPECT_EQ(h.getColor(2).mRed, 9);
}

TEST(Heliodon, DefaultsComeFromTheTableAndTheClock) {
    Fixture f;
    CHeliodonList list(&f.zel);
    CHeliodon& h = *list.newItem();
    uint64_t bits;
    double theta = h.getTheta();
    std::memcpy(&bits, &theta, sizeof bits);
    EXPECT_EQ(bits, 0x3fe921fafc8b007aULL);
    EXPECT_STREQ(h.getName(), "Heliodon");
    EXPECT_EQ(h.getPlacementKind(), ePlacementDateAndPlace);
    Kestra::Platform::LocalTime now;
    ASSERT_TRUE(Kestra::Platform::Now(now));
    EXPECT_EQ(h.getTime()->getYear(), now.year);

    CHeliodonOpt options(&f.zel);
    EXPECT_EQ(options.getStartTime()->getHour(), 10);
    EXPECT_EQ(options.getEndTime()->getDay(), 31);
    EXPECT_EQ(options.getEndTime()->getYear(), now.year);
    EXPECT_EQ(options.getRenderingOpt()->getHeight(), 200);
    EXPECT_EQ(options.getCompressionOpt()->getFrameRate(), 25.0);
    options.setFrequencyValue(2.9);
    EXPECT_EQ(options.getFrequencyValue(), 2.0);
}

TEST(Heliodon, ListAndOptionsReadBackWhole) {
    Fixture f;
    CHeliodonList list(&f.zel);
    CHeliodon& h = *list.newItem();
    h.setActive(false);
    h.getTime()->setYear(1999);
    h.getPlace()->setLatitude(45);
    h.getPlace()->setDaylight(true);
    h.setTheta(1.5);
    h.setShadow(true);
    h.setShadowBlur(12);
    h.setName("Noon");
    h.setColor(4, ZelRGB(1, 2, 3));
    h.getSkylight()->setUsed(true);
    h.getClouds()->setActiveWind(true);
    h.getClouds()->setWindSpeed(3);
    h.getFog()->setAltitude(12);
    h.setColorType(eSunColorUser);
    list.newItem()->setPlacementKind(ePlacementManual);
    CHeliodonOpt options(&f.zel);
    options.setFrequencyType(eFrequencyYearly);
    options.setFrequencyUnit(eFrequencyMonths);
    options.setFrequencyValue(3);
    options.setAllRange(true);
    options.getStartTime()->setMonth(6);
    options.getRenderingOpt()->setWidth(640);

    ZelPutHeliodons(f.io, f.root, list, options);
    std::string first = Fixture::text(f.root);
    CHeliodonList back(&f.zel);
    CHeliodonOpt backOptions(&f.zel);
    ASSERT_TRUE(ZelGetHeliodons(f.io, f.root, back, backOptions));
    ASSERT_EQ(back.getCount(), 2u);
    EXPECT_FALSE(back.at(0)->isActive());
    EXPECT_EQ(back.at(0)->getClouds()->getWindSpeed(), 3.0);
    EXPECT_EQ(backOptions.getStartTime()->getMonth(), 6);
    EXPECT_EQ(backOptions.getRenderingOpt()->getWidth(), 640);

    // Written again from what was read, and twice in the same tree: the same text.
    Fixture g;
    ZelPutHeliodons(g.io, g.root, back, backOptions);
    EXPECT_EQ(Fixture::text(g.root), first);
    ZelPutHeliodons(f.io, f.root, list, options);
    EXPECT_EQ(Fixture::text(f.root), first);
}

TEST(Heliodon, OldSingleElementAndOptionalKeys) {
    Fixture f;
    KestraXML::XIXMLElement* file = Fixture::parse(
        "<Zel.File><Heliodon><Time><Month>7</Month><Day>14</Day><Hour>12</Hour><Minute>30</Minute></Time>"
        "<Place><Longitude>2</Longitude><Latitude>48</Latitude><TimeZone>1</TimeZone></Place>"
        "<Sunshine>0.7</Sunshine><North.Angle>10</North.Angle><Shadow.Power>0.8</Shadow.Power>"
        "<Sun.Blur>500</Sun.Blur><Global.Illumination.Power>0.5</Global.Illumination.Power>"
        "<Global.Illumination.Quality>0</Global.Illumination.Quality>"
        "<Options Frequency.Type=\"OneImage\"><Movie.Duration>3</Movie.Duration></Options>"
        "</Heliodon><Heliodons/></Zel.File>");
    CHeliodonList list(&f.zel);
    CHeliodonOpt options(&f.zel);
    ASSERT_TRUE(ZelGetHeliodons(f.io, file, list, options));
    ASSERT_EQ(list.getCount(), 1u);
    CHeliodon& h = *list.at(0);
    EXPECT_FALSE(h.isActive());
    EXPECT_EQ(h.getTime()->getMonth(), 7);
    EXPECT_EQ(h.getPlace()->getLatitude(), 48);
    EXPECT_EQ(h.getShadowBlur(), 100);
    EXPECT_EQ(h.getTheta(), CHeliodon(&f.zel).getTheta());
    EXPECT_EQ(h.getClouds()->getCumulusSize(), 0.6);
    EXPECT_STREQ(h.getName(), "Heliodon");
    EXPECT_EQ(options.getFrequencyType(), eFrequencyOneImage);
    EXPECT_EQ(options.getFrequencyUnit(), eFrequencyMinutes);
    EXPECT_EQ(options.getMovieDuration(), 3.0);

    ZelPutHeliodons(f.io, file, list, options);
    EXPECT_EQ(CZelXMLIO::find(file, "Heliodon"), nullptr);
    EXPECT_EQ(CZelXMLIO::find(CZelXMLIO::find(file, "Heliodons"), "Heliodon") != nullptr, true);

    KestraXML::XIXMLElement* bad = Fixture::parse("<P><Heliodon/></P>");
    EXPECT_FALSE(h.initWithXML(bad));
    EXPECT_EQ(f.feedback.last().rfind("Exception in CZelHeliodon::initWithXML : ", 0), 0u);
}

TEST(OldHeliodonOpt, ClippingNeedsAnOwner) {
    COldHeliodonOpt loose;
    loose.setFilmFrameRate(-1);
    loose.setNorthAngle(400);
    EXPECT_EQ(loose.getFilmFrameRate(), -1.0);
    EXPECT_EQ(loose.getNorthAngle(), 400.0);
    EXPECT_STREQ(loose.getSceneUrl(), "file:///C|/Heliodon");

    Fixture f;
    COldHeliodonOpt owned(&f.zel);
    owned.setFilmFrameRate(-1);
    EXPECT_EQ(owned.getFilmFrameRate(), 0.0);
    EXPECT_EQ(f.feedback.last(), "Method setFilmFrameRate has clipped a value out of range.");
    owned.setNorthAngle(400);
    EXPECT_EQ(owned.getNorthAngle(), 360.0);
    owned.setSunshineSteps(-2);
    EXPECT_EQ(owned.getSunshineSteps(), 0);
    EXPECT_EQ(f.feedback.last(), "Method setSunshine has clipped a value out of range.");
    owned.setEndTime(-1);
    EXPECT_EQ(f.feedback.last(), "Method setEndTime has clipped a value out of range.");
    owned.setXHours(5);
    EXPECT_EQ(f.feedback.count(), 4u);
}
