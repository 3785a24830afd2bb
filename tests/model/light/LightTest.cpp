#include "LightFixture.h"

#include "codec/LightCodec.h"
#include "frame/UUID.h"
#include "model/light/Light.h"
#include "model/light/Sky.h"

#include <functional>

using namespace KeZel;
using LightTest::Fixture;

namespace {

CZelVector V(double x, double y, double z) {
    CZelVector v = {x, y, z};
    return v;
}

void ExpectVector(const CZelVector* v, double x, double y, double z) {
    EXPECT_EQ(v->x, x);
    EXPECT_EQ(v->y, y);
    EXPECT_EQ(v->z, z);
}

} // namespace

TEST(Light, SettersClipSilently) {
    Fixture f;
    CLightList lights(&f.zel);
    CLight& l = *lights.newItem();
    struct Case {
        const char* what;
        std::function<void(double)> set;
        std::function<double()> get;
        double in, out;
    } cases[] = {
        {"power low", [&](double v) { l.setPower(v); }, [&] { return l.getPower(); }, 0.5, 1.0},
        {"power high", [&](double v) { l.setPower(v); }, [&] { return l.getPower(); }, 2000000, 1000000},
        {"cone", [&](double v) { l.setConeAngle(v); }, [&] { return l.getConeAngle(); }, 400, 360},
        {"cone low", [&](double v) { l.setConeAngle(v); }, [&] { return l.getConeAngle(); }, -1, 0},
        {"sharpness", [&](double v) { l.setSharpness(v); }, [&] { return l.getSharpness(); }, 2, 1},
        {"shadow power", [&](double v) { l.setShadowPower(v); }, [&] { return l.getShadowPower(); }, -0.5, 0},
        {"bias", [&](double v) { l.setBias(v); }, [&] { return l.getBias(); }, 1.5, 1},
        {"map size high", [&](double v) { l.setMapSize(int(v)); }, [&] { return double(l.getMapSize()); }, 20,
         13},
        {"map size low", [&](double v) { l.setMapSize(int(v)); }, [&] { return double(l.getMapSize()); }, -1,
         0},
        {"map size in", [&](double v) { l.setMapSize(int(v)); }, [&] { return double(l.getMapSize()); }, 7,
         7},
        {"target type", [&](double v) { l.setTargetType(int(v)); }, [&] { return double(l.getTargetType()); },
         7, 0},
        {"target on object", [&](double v) { l.setTargetType(int(v)); },
         [&] { return double(l.getTargetType()); }, 1, 1},
    };
    for (const Case& c : cases) {
        c.set(c.in);
        EXPECT_EQ(c.get(), c.out) << c.what;
    }
    EXPECT_TRUE(f.feedback.empty());
}

TEST(Light, DefaultsFollowTheClientConvention) {
    Fixture current;
    CLightList lights(&current.zel);
    CLight& a = *lights.newItem();
    ExpectVector(a.getPosition(), 200, -200, 200);
    ExpectVector(a.getTarget(), 0, 0, 0);
    CZelUUID ies;
    a.getIES(&ies);
    EXPECT_EQ(ZelUUIDToText(ies), "D174E7C83EF6C841BB95ACAE11258616");
    EXPECT_FALSE(a.getUUID()->isNull());
    EXPECT_NE(*a.getUUID(), *lights.newItem()->getUUID());
    EXPECT_TRUE(a.isActive() && a.isRadiosity());
    EXPECT_EQ(a.getPower(), 3.0);

    Fixture old(eZelVersion7);
    CLightList oldLights(&old.zel);
    ExpectVector(oldLights.newItem()->getPosition(), 200, 200, -200);
}

TEST(Light, ElementWritesInOrderAndReadsBack) {
    Fixture f;
    CLightList lights(&f.zel);
    CLight& l = *lights.newItem();
    l.setName("Key");
    l.setType(eLightSpot);
    l.setColor(ZelRGB(1, 2, 3));
    l.setPower(5);
    l.setDistanceNear(1);
    l.setDistanceFar(2);
    l.setPosition(V(1, 2, 3));
    l.setTarget(V(4, 5, 6));
    l.setConeAngle(30);
    l.setSharpness(0.25);
    l.setShadowType(eLightShadowSoft);
    l.setShadowPower(0.5);
    l.setMapSize(4);
    l.setBias(0.2);
    l.setGlobalIllumination(true);
    l.setGlobalIlluminationPower(0.75);
    l.setGlobalIlluminationQuality(3);
    l.setLocked(true);
    l.setUIValue(7);
    *l.getLightsGroups()->newZelObject(-1) = ZelUUIDFromText("0102030405060708090A0B0C0D0E0F10");
    l.getLensFlare()->setUsed(true);
    l.getLensFlare()->setType(eHalo1);
    l.getLensFlare()->setSize(2);
    l.getLensFlare()->setIntensity(0.5);
    l.setRadiosity(false);
    l.setUUID(ZelUUIDFromText("AA000000000000000000000000000001"));
    l.setObjectId(ZelUUIDFromText("BB000000000000000000000000000002"));
    l.setTargetType(eLightTargetOnObject);

    KestraXML::XIXMLElement* parent = f.fresh();
    KestraXML::XIXMLElement* e = l.putInXML(parent);
    ASSERT_NE(e, nullptr);
    EXPECT_EQ(
        Fixture::flat(e),
        "<Light Type=\"Spot\" Shadow.Type=\"Soft\" UUID=\"AA000000000000000000000000000001\" "
        "Object.Id=\"BB000000000000000000000000000002\" Target.type=\"On.Object\" "
        "IES=\"D174E7C83EF6C841BB95ACAE11258616\">\n"
        "\t<Name>Key</Name>\n\t<Active/>\n\t<Color R=\"1\" G=\"2\" B=\"3\"/>\n\t<Power>5.000000</Power>\n"
        "\t<Distance.Near>1.000000</Distance.Near>\n\t<Distance.Far>2.000000</Distance.Far>\n"
        "\t<Position X=\"1.000000\" Y=\"2.000000\" Z=\"3.000000\"/>\n"
        "\t<Target X=\"4.000000\" Y=\"5.000000\" Z=\"6.000000\"/>\n"
        "\t<Cone.Angle>30.000000</Cone.Angle>\n\t<Sharpness>0.250000</Sharpness>\n"
        "\t<Shadow.Power>0.500000</Shadow.Power>\n\t<Map.Size>4</Map.Size>\n\t<Bias>0.200000</Bias>\n"
        "\t<Global.Illumination/>\n\t<Global.Illumination.Power>0.750000</Global.Illumination.Power>\n"
        "\t<Global.Illumination.Quality>3</Global.Illumination.Quality>\n\t<Locked/>\n"
        "\t<UI.Value>7</UI.Value>\n"
        "\t<Lights.Groups>\n\t\t<UUID>0102030405060708090A0B0C0D0E0F10</UUID>\n\t</Lights.Groups>\n"
        "\t<Lens.Flare Type=\"Halo1\">\n\t\t<Used/>\n\t\t<Size>2.000000</Size>\n"
        "\t\t<Intensity>0.500000</Intensity>\n\t</Lens.Flare>\n"
        "</Light>");

    CLight& back = *lights.newItem();
    ASSERT_TRUE(back.initWithXML(parent));
    KestraXML::XIXMLElement* again = f.fresh();
    back.putInXML(again);
    EXPECT_EQ(Fixture::text(again), Fixture::text(parent));
    EXPECT_EQ(back.getLightsGroups()->getCount(), 1u);
    EXPECT_EQ(back.getLensFlare()->getType(), eHalo1);
    EXPECT_FALSE(back.isRadiosity());
    EXPECT_TRUE(f.feedback.empty());
}

TEST(Light, OldFormsKeepTheirDefaults) {
    Fixture f;
    CLightList lights(&f.zel);
    CLight& l = *lights.newItem();
    CZelUUID fresh = *l.getUUID();
    KestraXML::XIXMLElement* parent = Fixture::parse(
        "<P><Light Type=\"Parallel\" Shadow.Type=\"None\"><Name>Sun</Name><Color><Red>9</Red><Green>8</Green>"
        "<Blue>7</Blue></Color><Power>0.5</Power><Distance.Near>0</Distance.Near><Distance.Far>0</"
        "Distance.Far>"
        "<Position X=\"1\" Y=\"2\" Z=\"3\"/><Target X=\"0\" Y=\"0\" Z=\"0\"/><Cone.Angle>400</Cone.Angle>"
        "<Sharpness>0.5</Sharpness><Shadow.Power>0.1</Shadow.Power><Map.Size>20</Map.Size><Bias>0.3</Bias>"
        "<Global.Illumination.Power>0.5</Global.Illumination.Power>"
        "<Global.Illumination.Quality>0</Global.Illumination.Quality>"
        "<Lens.Flare Type=\"Standard\"><Size>1</Size></Lens.Flare></Light></P>");
    ASSERT_TRUE(l.initWithXML(parent));
    EXPECT_EQ(*l.getUUID(), fresh);
    CZelUUID ies;
    l.getIES(&ies);
    EXPECT_EQ(ies, ZelDefaultIES());
    EXPECT_EQ(l.getPower(), 1.0);
    EXPECT_EQ(l.getConeAngle(), 360.0);
    EXPECT_EQ(l.getMapSize(), 13);
    EXPECT_FALSE(l.isActive());
    EXPECT_FALSE(l.isRadiosity());
    EXPECT_EQ(l.getColor().mRed, 9);
    EXPECT_EQ(l.getLensFlare()->getType(), 0);
    EXPECT_EQ(l.getLensFlare()->getIntensity(), 1.0);
    std::string written = Fixture::text(l.putInXML(f.fresh()));
    EXPECT_NE(written.find("<Lens.Flare Type=\"LensFlare1\">"), std::string::npos);
}

TEST(Light, FailuresAreReportedUnderTheirNames) {
    Fixture f;
    CLightList lights(&f.zel);
    CLight& l = *lights.newItem();
    l.setShadowType(9);
    EXPECT_EQ(l.putInXML(f.fresh()), nullptr);
    EXPECT_EQ(f.feedback.last(),
              "Exception in CZelLight::putInXML : No label for the value (9) [None..Soft]");

    KestraXML::XIXMLElement* bad = Fixture::parse("<P><Light Type=\"bad\"><Name>x</Name></Light></P>");
    EXPECT_FALSE(l.initWithXML(bad));
    EXPECT_EQ(f.feedback.last(),
              "Exception in CZelLight::initWithXML : Invalid label (bad) [Point..Parallel]");
    EXPECT_STREQ(l.getName(), "x"); // what was read before the failure stays

    CLightsGroupList groups(&f.zel);
    EXPECT_FALSE(groups.newItem()->initWithXML(f.fresh()));
    EXPECT_EQ(f.feedback.count(), 3u);
}

TEST(LightsGroup, ListReadsBackWithOptionalUIValue) {
    Fixture f;
    CLightsGroupList groups(&f.zel);
    groups.newItem()->setName("Hall");
    groups.newItem()->setUIValue(4);
    ZelPutLightsGroups(f.io, f.root, groups);
    std::string first = Fixture::text(f.root);

    CLightsGroupList back(&f.zel);
    back.newItem();
    ASSERT_TRUE(ZelGetLightsGroups(f.io, f.root, back));
    ASSERT_EQ(back.getCount(), 2u);
    EXPECT_STREQ(back.at(0)->getName(), "Hall");
    EXPECT_EQ(*back.at(1)->getID(), *groups.at(1)->getID());
    EXPECT_EQ(back.at(1)->getUIValue(), 4);

    KestraXML::XIXMLElement* old =
        Fixture::parse("<Lights.Group ID=\"00000000000000000000000000000001\"><Name>A</Name></Lights.Group>");
    ZelGetLightsGroup(f.io, old, *back.at(1));
    EXPECT_EQ(back.at(1)->getUIValue(), 4);
    ZelPutLightsGroups(f.io, f.root, groups);
    EXPECT_EQ(Fixture::text(f.root), first);
}
