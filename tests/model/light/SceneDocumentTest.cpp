#include "LightFixture.h"

#include "codec/BackgroundCodec.h"
#include "codec/HeliodonCodec.h"
#include "codec/LightCodec.h"
#include "codec/RenderingCodec.h"
#include "codec/SkyCodec.h"
#include "model/light/Background.h"
#include "model/light/HeliodonOpt.h"
#include "model/light/SunConversions.h"

using namespace KeZel;
using LightTest::Fixture;

namespace {

// The light and sky of a scene as a new manager makes them.
struct Scene {
    CRenderingOpt preview;
    CHeliodonList heliodons;
    CHeliodonOpt heliodonOpt;
    CAmbiance ambient;
    CAtmosphere atmosphere;
    CBackground background;
    CLightList lights;
    CLightsGroupList groups;

    explicit Scene(CZEL* zel)
        : preview(zel), heliodons(zel), heliodonOpt(zel), ambient(zel), atmosphere(zel), background(zel),
          lights(zel), groups(zel) {
        preview.setTransparency(true);
        heliodons.newItem();
        groups.newItem();
    }
    // In the order of the document's writing steps.
    std::string write(const CZelXMLIO& io, KestraXML::XIXMLElement* file) {
        ZelPutPreview(io, file, preview);
        ZelPutHeliodons(io, file, heliodons, heliodonOpt);
        ZelPutAmbient(io, file, ambient);
        ZelPutAtmosphere(io, file, atmosphere);
        ZelPutBackground(io, file, background);
        ZelPutLights(io, file, lights);
        ZelPutLightsGroups(io, file, groups);
        return Fixture::text(file);
    }
    void read(const CZelXMLIO& io, const KestraXML::XIXMLElement* file) {
        ZelGetPreview(io, file, preview);
        ZelGetHeliodons(io, file, heliodons, heliodonOpt);
        ZelGetSceneAmbient(io, file, ambient);
        ZelGetSceneAtmosphere(io, file, atmosphere);
        ZelGetSceneBackground(io, file, background);
        ZelGetLights(io, file, lights);
        ZelGetLightsGroups(io, file, groups);
    }
};

} // namespace

TEST(SceneDocument, LightAndSkyReadBackAndWriteTheSameBytes) {
    Fixture f;
    Scene fresh(&f.zel);
    std::string first = fresh.write(f.io, f.root);

    Fixture g;
    Scene read(&g.zel);
    read.lights.newItem(); // emptied by the read
    read.read(g.io, Fixture::parse(first));
    EXPECT_EQ(read.lights.getCount(), 0u);
    EXPECT_EQ(read.write(g.io, g.root), first);

    CLight& sun = *fresh.lights.newItem();
    sun.setName("Sun");
    *sun.getLightsGroups()->newZelObject(-1) = *fresh.groups.at(0)->getID();
    fresh.heliodons.newItem()->setName("Second");
    fresh.background.setType(4);
    fresh.ambient.setUseDefault(false);
    std::string second = fresh.write(f.io, f.fresh("Zel.File"));
    Fixture h;
    Scene again(&h.zel);
    again.read(h.io, Fixture::parse(second));
    EXPECT_EQ(again.write(h.io, h.root), second);
    EXPECT_EQ(*again.lights.at(0)->groups().at(0), *again.groups.at(0)->getID());
    EXPECT_TRUE(f.feedback.empty() && g.feedback.empty() && h.feedback.empty());
}

TEST(SunConversions, SunLightOfOtherCreators) {
    Fixture f;
    struct Case {
        bool byHost;
        const char* heliodonName;
        bool heliodonOn;
        const char* lightName;
        bool converted;
    } cases[] = {
        {false, "Heliodon", false, "Sun", true},  {true, "Heliodon", false, "Sun", false},
        {false, "Noon", false, "Sun", false},     {false, "Heliodon", true, "Sun", false},
        {false, "Heliodon", false, "sun", false},
    };
    for (const Case& c : cases) {
        CHeliodonList heliodons(&f.zel);
        CHeliodon& h = *heliodons.newItem();
        h.setName(c.heliodonName);
        h.setActive(c.heliodonOn);
        CLightList lights(&f.zel);
        lights.newItem()->setName("Key");
        lights.newItem()->setName(c.lightName);
        lights.newItem()->setName(c.lightName);
        ZelFixSunLight(c.byHost, heliodons, lights);
        EXPECT_EQ(h.isActive(), c.converted || c.heliodonOn) << c.heliodonName << c.lightName;
        EXPECT_EQ(h.getSunshine(), c.converted ? 0.6 : 0.5);
        EXPECT_EQ(lights.at(1)->isActive(), !c.converted);
        EXPECT_TRUE(lights.at(0)->isActive() && lights.at(2)->isActive());
    }
    CHeliodonList none(&f.zel);
    CLightList lights(&f.zel);
    ZelFixSunLight(false, none, lights);
    EXPECT_EQ(none.getCount(), 0u);
}

TEST(SunConversions, LegacyStudyBecomesTodaysOptions) {
    Fixture f;
    COldHeliodonOpt old(&f.zel);
    old.setActive(false);
    old.setSunshine(0.9);
    old.setNorthAngle(30);
    old.time().setDate(CZelDate{3, 4, 5, 6, 1998});
    old.setAnimated(true);
    old.setDailyUnit(eOldDailyMinutes);
    old.setXMinutes(15);
    old.setStartTime(8 * 60 + 30);
    old.setEndTime(18 * 60 + 5);
    old.setNbImages(50);
    old.setFilmFrameRate(10);
    old.rendering().setWidth(800);
    old.compression().setCodec(7);

    CHeliodonList heliodons(&f.zel);
    CHeliodonOpt options(&f.zel);
    ZelConvertLegacySun(&old, heliodons, options);
    ASSERT_EQ(heliodons.getCount(), 1u);
    CHeliodon& sun = *heliodons.at(0);
    EXPECT_FALSE(sun.isActive());
    EXPECT_EQ(sun.getSunshine(), 0.9);
    EXPECT_EQ(sun.getNorthAngle(), 30.0);
    EXPECT_EQ(sun.getTime()->getYear(), 1998);
    EXPECT_EQ(sun.getTime()->getDay(), 4);
    EXPECT_EQ(options.getFrequencyType(), eFrequencyDaily);
    EXPECT_EQ(options.getFrequencyUnit(), eFrequencyMinutes);
    EXPECT_EQ(options.getFrequencyValue(), 15.0);
    EXPECT_EQ(options.getStartTime()->getHour(), 8);
    EXPECT_EQ(options.getStartTime()->getMinute(), 30);
    EXPECT_EQ(options.getEndTime()->getHour(), 18);
    EXPECT_EQ(options.getEndTime()->getMinute(), 5);
    EXPECT_EQ(options.getMovieDuration(), 5.0);
    EXPECT_EQ(options.getRenderingOpt()->getWidth(), 800);
    EXPECT_EQ(options.getCompressionOpt()->getCodec(), 7);

    old.setYearly(true);
    old.setYearlyUnit(eOldYearlyFrameRate);
    old.setStartMonth(2);
    old.setEndDay(20);
    old.setFilmFrameRate(0);
    ZelConvertLegacySun(&old, heliodons, options);
    EXPECT_EQ(options.getFrequencyType(), eFrequencyYearly);
    EXPECT_EQ(options.getFrequencyUnit(), eFrequencyFrameRate);
    EXPECT_EQ(options.getFrequencyValue(), 0.0);
    EXPECT_EQ(options.getStartTime()->getMonth(), 2);
    EXPECT_EQ(options.getEndTime()->getDay(), 20);
    EXPECT_EQ(options.getMovieDuration(), 50.0); // a rate of 0 counts as 1

    old.setAnimated(false);
    ZelConvertLegacySun(&old, heliodons, options);
    EXPECT_EQ(options.getFrequencyType(), eFrequencyOneImage);
    EXPECT_EQ(options.getFrequencyValue(), 1.0);

    old.setNoAnimation(true);
    old.setAnimated(true);
    options.setMovieDuration(15);
    ZelConvertLegacySun(&old, heliodons, options);
    EXPECT_EQ(options.getFrequencyType(), eFrequencyOneImage);
    EXPECT_EQ(options.getMovieDuration(), 15.0);
    ZelConvertLegacySun(nullptr, heliodons, options);
    EXPECT_EQ(heliodons.getCount(), 1u);
}
