#include "LightFixture.h"

#include "codec/SkyCodec.h"
#include "model/light/Sky.h"

#include <functional>

using namespace KeZel;
using LightTest::Fixture;

TEST(Atmosphere, ClipsAndReportsOnlyWithAManager) {
    struct Case {
        std::function<void(CAtmosphere&, double)> set;
        std::function<double(const CAtmosphere&)> get;
        double in, out;
        const char* report;
    } cases[] = {
        {&CAtmosphere::setHighDensity, &CAtmosphere::getHighDensity, 2, 1,
         "Method setHighDensity has clipped a value out of range."},
        {&CAtmosphere::setMediumDensity, &CAtmosphere::getMediumDensity, -1, 0,
         "Method setMediumDensity has clipped a value out of range."},
        {&CAtmosphere::setLowDensity, &CAtmosphere::getLowDensity, 1.5, 1,
         "Method setLowDensity has clipped a value out of range."},
        {&CAtmosphere::setScale, &CAtmosphere::getScale, -2, 0,
         "Method setScale has clipped a value out of range."},
        {&CAtmosphere::setMaxDistance, &CAtmosphere::getMaxDistance, -3, 0,
         "Method setScale has clipped a value out of range."},
        {&CAtmosphere::setNoise, &CAtmosphere::getNoise, -4, 0,
         "Method setNoise has clipped a value out of range."},
    };
    Fixture f;
    for (const Case& c : cases) {
        CAtmosphere loose;
        c.set(loose, c.in);
        EXPECT_EQ(c.get(loose), c.in);
        CAtmosphere owned(&f.zel);
        c.set(owned, c.in);
        EXPECT_EQ(c.get(owned), c.out);
        EXPECT_EQ(f.feedback.last(), c.report);
        c.set(owned, 0.5);
        EXPECT_EQ(c.get(owned), 0.5);
    }
    EXPECT_EQ(f.feedback.count(), 6u);
}

TEST(Sky, ElementsReadBackThroughTheirForms) {
    Fixture f;
    CAmbiance ambient(&f.zel);
    KestraXML::XIXMLElement* e = ambient.putInXML(f.root);
    EXPECT_EQ(Fixture::flat(e),
              "<Ambient>\n\t<Color R=\"165\" G=\"165\" B=\"165\"/>\n\t<Use.Default/>\n</Ambient>");
    ambient.setColor(ZelRGB(200, 0, 128));
    ambient.setUsed(true);
    ambient.putInXML(f.root);
    CAmbiance ambientBack(&f.zel);
    ASSERT_TRUE(ambientBack.initWithXML(f.root));
    EXPECT_TRUE(ZelSameColor(ambientBack.getColor(), ZelRGB(200, 0, 128)));
    EXPECT_TRUE(ambientBack.isUsed());
    EXPECT_EQ(f.root->GetElementCount(), 1u);

    CAtmosphere atmosphere(&f.zel);
    atmosphere.setUsed(true);
    atmosphere.setMinDistance(-5);
    atmosphere.setUseDefault(false);
    atmosphere.putInXML(f.root);
    atmosphere.putInXML(f.root);
    CAtmosphere atmosphereBack(&f.zel);
    ASSERT_TRUE(atmosphereBack.initWithXML(f.root));
    EXPECT_EQ(atmosphereBack.getMinDistance(), -5.0);
    EXPECT_FALSE(atmosphereBack.isUseDefault());
    EXPECT_EQ(f.root->GetElementCount(), 2u);

    CZelFog fog(&f.zel);
    EXPECT_FALSE(fog.initWithXML(f.root));
    fog.setColor(ZelRGB(1, 2, 3));
    fog.setEndDistance(99);
    fog.putInXML(f.root);
    CZelFog fogBack(&f.zel);
    ASSERT_TRUE(fogBack.initWithXML(f.root));
    EXPECT_EQ(fogBack.getEndDistance(), 99.0);
    EXPECT_EQ(fogBack.getColor().mBlue, 3);

    CSkylight sky;
    sky.setSkyType(eSkyUser);
    sky.setPowerFlag(true);
    sky.setSkyMixColor(ZelRGB(4, 5, 6));
    CSkylight skyBack;
    ZelGetSkylight(f.io, ZelAddSkylight(f.io, f.fresh(), sky), skyBack);
    EXPECT_EQ(skyBack.getSkyType(), eSkyUser);
    EXPECT_TRUE(skyBack.isPowerFlag());
    EXPECT_EQ(skyBack.getSkyMixColor().mGreen, 5);
    EXPECT_TRUE(f.feedback.empty());
}

TEST(Sky, CloudsWithoutWindKeepTheWindDefaults) {
    Fixture f;
    KestraXML::XIXMLElement* parent = Fixture::parse(
        "<P><Clouds><Active/><Cumulus.Size>0.1</Cumulus.Size><Cumulus.Seed>1</Cumulus.Seed><Cirrus.Size>0.2"
        "</Cirrus.Size><Cirrus.Seed>2</Cirrus.Seed><Stratus.Size>0.3</Stratus.Size><Stratus.Seed>3</"
        "Stratus.Seed>"
        "<Cirrocumulus.Size>0.4</Cirrocumulus.Size><Cirrocumulus.Seed>4</Cirrocumulus.Seed>"
        "<Wind.Speed>99</Wind.Speed></Clouds></P>");
    CZelClouds clouds(&f.zel);
    ASSERT_TRUE(clouds.initWithXML(parent));
    EXPECT_TRUE(clouds.isActive());
    EXPECT_EQ(clouds.getCirrocumulusSeed(), 4);
    EXPECT_FALSE(clouds.isActiveWind());
    EXPECT_EQ(clouds.getWindSpeed(), 20.0);

    clouds.setActiveWind(true);
    clouds.setWindDirection(45);
    clouds.setExtraValue(7);
    CZelClouds back(&f.zel);
    ASSERT_TRUE(back.initWithXML(clouds.putInXML(f.fresh())->AsNode()->GetParent()));
    EXPECT_EQ(back.getWindDirection(), 45.0);
    EXPECT_EQ(back.getExtraValue(), 0.0);

    CZelClouds loose;
    EXPECT_EQ(loose.putInXML(f.fresh()), nullptr);
}

TEST(CameraLight, ElementNameFollowsTheKind) {
    Fixture f;
    CZelCameraLight radiosity(&f.zel, true);
    CZelCameraLight camera(&f.zel);
    EXPECT_STREQ(*radiosity.putInXML(f.root)->GetKey(), "Radiosity.Light");
    camera.setColor(ZelRGB(7, 7, 7));
    camera.setPower(2.5);
    camera.setUsed(true);
    camera.putInXML(f.root);

    CZelCameraLight cameraBack(&f.zel), radiosityBack(&f.zel, true);
    radiosityBack.setUsed(true);
    ASSERT_TRUE(cameraBack.initWithXML(f.root));
    ASSERT_TRUE(radiosityBack.initWithXML(f.root));
    EXPECT_EQ(cameraBack.getPower(), 2.5);
    EXPECT_TRUE(cameraBack.isUsed());
    EXPECT_FALSE(radiosityBack.isUsed());
    EXPECT_EQ(radiosityBack.getPower(), 1.0);

    // Each kind takes the other's element when its own is missing.
    KestraXML::XIXMLElement* onlyCamera = f.fresh();
    camera.putInXML(onlyCamera);
    CZelCameraLight other(&f.zel, true);
    ASSERT_TRUE(other.initWithXML(onlyCamera));
    EXPECT_EQ(other.getPower(), 2.5);
    EXPECT_TRUE(other.isRadiosityLight());
    EXPECT_FALSE(other.initWithXML(f.fresh()));
    EXPECT_EQ(f.feedback.last().rfind("Exception in IZelCameraLight::initWithXML : ", 0), 0u);
}
