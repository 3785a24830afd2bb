#include "ViewsFixture.h"

#include "codec/ViewInfoCodec.h"

using namespace KeZel;
using namespace ViewsTest;
using KestraXML::XIXMLElement;

TEST(ViewInfo, DefaultsAndTheAxisPointOfTheClippingBox) {
    Fixture f;
    CZelViewInfo v(&f.zel);
    EXPECT_FALSE(v.getUUID()->isNull());
    EXPECT_TRUE(v.filters().imageSettings().isActive());
    EXPECT_FALSE(v.filters().grain().isActive());
    EXPECT_TRUE(v.filters().hatching().isUseTransparency());
    EXPECT_EQ(v.atmosphere().getScale(), 2.0);
    EXPECT_TRUE(v.radiosityLight().isRadiosityLight());
    EXPECT_FALSE(v.cameraLight().isRadiosityLight());
    EXPECT_EQ(v.getBackground(), &v.background());

    CZelClippingBox& box = v.clippingBox();
    box.setMaximum(Vec(1, 2, 3));
    EXPECT_TRUE(Same(*box.getAxisPoint(), Vec(0, 0, 4)));
    box.setMinimum(Vec(7, 7, 7));
    EXPECT_EQ(box.getAxisPoint()->z, 4.0);
}

TEST(ViewInfo, RoundTripKeepsValuesListsAndOrder) {
    Fixture f;
    CZelViewInfo v(&f.zel);
    for (unsigned char seed : {10, 30, 50}) *v.lightsGroups().newItem() = Id(seed);
    *v.layers().newItem() = Id(70);
    v.setLocked(true);
    v.setUIValue(-3);
    v.setHeliodonName("Noon");
    v.depthOfField().setType(3);
    v.depthOfField().setUsed(true);
    v.depthOfField().setClearnessPoint(Vec(1, 2, 3));
    v.clippingBox().setMaximum(Vec(4, 5, 6));
    v.clippingBox().setActive(true);
    v.clippingBox().setAngle(0.25);
    v.filters().imageSettings().setActive(false);
    v.filters().hatching().setTransparency(0.75);
    v.filters().imageSettings().setMixColor(ZelRGB(1, 2, 3));
    v.cameraLight().setPower(2.5);
    v.radiosityLight().setUsed(true);
    v.setEnvironmentId(Id(90));
    v.backgroundPicture().setType(eBackgroundPicture2D);
    v.rendererInfo().setName("Raytracer");
    CZelXMLIO::setAttribute(CZelXMLIO::add(v.rendererInfo().getOptions(), "Pass"), "N", "3");

    ASSERT_NE(v.putInXML(f.root), nullptr);
    XIXMLElement* e = CZelXMLIO::need(f.root, "View.Info");
    const XIXMLElement* groups = CZelXMLIO::need(e, "Lights.Groups");
    EXPECT_EQ(Fixture::count(e, "Lights.Groups"), 1u);
    unsigned attributes = 0;
    for (KestraXML::XIXMLAttribute* a = groups->GetFirstAttribute(); a; a = a->GetNext()) {
        EXPECT_STREQ(*a->GetKey(), "UUID");
        ++attributes;
    }
    EXPECT_EQ(attributes, 3u);
    EXPECT_NE(Fixture::text(e).find("Environment=\"5A5B5C5D"), std::string::npos);

    CZelViewInfo back(&f.zel);
    *back.lightsGroups().newItem() = Id(200); // replaced by the file's
    CZelUUID own = *back.getUUID();
    ASSERT_TRUE(back.initWithXML(f.root));
    EXPECT_EQ(*back.getUUID(), own); // read on its own, a view keeps its identity
    ASSERT_EQ(back.lightsGroups().getCount(), 3u);
    EXPECT_EQ(*back.lightsGroups().at(0), Id(10));
    EXPECT_EQ(*back.lightsGroups().at(2), Id(50));
    EXPECT_EQ(*back.layers().at(0), Id(70));
    EXPECT_EQ(back.neonShaders().getCount(), 0u);
    EXPECT_TRUE(back.isLocked());
    EXPECT_EQ(back.getUIValue(), -3);
    EXPECT_STREQ(back.getHeliodonName(), "Noon");
    EXPECT_EQ(back.depthOfField().getType(), 3);
    EXPECT_TRUE(back.depthOfField().isUsed());
    EXPECT_TRUE(Same(*back.depthOfField().getClearnessPoint(), Vec(1, 2, 3)));
    EXPECT_TRUE(Same(*back.clippingBox().getAxisPoint(), Vec(0, 0, 7)));
    EXPECT_TRUE(back.clippingBox().isActive());
    EXPECT_FALSE(back.clippingBox().isVisible());
    EXPECT_EQ(back.clippingBox().getAngle(), 0.25);
    EXPECT_FALSE(back.filters().imageSettings().isActive());
    EXPECT_EQ(back.filters().imageSettings().getMixColor().mBlue, 3);
    EXPECT_EQ(back.filters().hatching().getTransparency(), 0.75);
    EXPECT_EQ(back.cameraLight().getPower(), 2.5);
    EXPECT_TRUE(back.radiosityLight().isUsed());
    EXPECT_FALSE(back.cameraLight().isUsed());
    EXPECT_EQ(*back.getEnvironmentId(), Id(90));
    EXPECT_EQ(back.backgroundPicture().getType(), eBackgroundPicture2D);
    EXPECT_STREQ(back.rendererInfo().getName(), "Raytracer");
    const XIXMLElement* pass = CZelXMLIO::find(back.rendererInfo().getOptions(), "Pass");
    ASSERT_NE(pass, nullptr);
    EXPECT_STREQ(CZelXMLIO::attributeText(pass, "N"), "3");

    // A read of the whole scene takes the file's identity.
    CZelXMLIO full(&f.zel, true);
    ZelGetViewInfo(full, e, back);
    EXPECT_EQ(*back.getUUID(), *v.getUUID());
    EXPECT_TRUE(f.feedback.empty());
}

namespace {

const char* kBase = "<View.Info><Heliodon.Name en=\"\"/>"
                    "<Depth.Of.Field Type=\"FromPoint\"><Clearness.Point X=\"0\" Y=\"0\" Z=\"0\"/>"
                    "<Clearness.Dist.Inv>0</Clearness.Dist.Inv><Clearness.Size.Inv>0</Clearness.Size.Inv>"
                    "</Depth.Of.Field>";

XIXMLElement* ViewOf(const std::string& rest) {
    return Fixture::parse(std::string("<P>") + kBase + rest + "</View.Info></P>");
}

} // namespace

TEST(ViewInfo, OptionalKeysKeepDefaultsAndOldBackgroundsMap) {
    Fixture f;
    CZelViewInfo v(&f.zel);
    *v.neonShaders().newItem() = Id(1);
    ASSERT_TRUE(v.initWithXML(ViewOf("")));
    // Without Filters the image settings filter stays active; lists without elements stay.
    EXPECT_TRUE(v.filters().imageSettings().isActive());
    EXPECT_EQ(v.neonShaders().getCount(), 1u);

    // An old short background gives the picture; today's picture, when there, wins.
    const char* old =
        "<Backgroung Image.Type=\"QTVRCubic\" Color.Type=\"None\"><Color R=\"1\" G=\"2\" B=\"3\"/>"
        "<URL>pano.mov</URL></Backgroung>";
    ASSERT_TRUE(v.initWithXML(ViewOf(old)));
    EXPECT_EQ(v.backgroundPicture().getType(), eBackgroundPictureMovie3D);
    EXPECT_TRUE(v.backgroundPicture().is3D());
    EXPECT_STREQ(v.backgroundPicture().getURL(), "pano.mov");
    EXPECT_EQ(v.background().getImageType(), eBackgroundImageQTVRCubic);
    ASSERT_TRUE(v.initWithXML(ViewOf(
        std::string(old) + "<Background.Picture Type=\"None\"><URL/><First.Color R=\"0\" G=\"0\" B=\"0\"/>"
                           "<Second.Color R=\"0\" G=\"0\" B=\"0\"/><Third.Color R=\"0\" G=\"0\" B=\"0\"/>"
                           "<H.Offset>0</H.Offset><V.Offset>0</V.Offset></Background.Picture>")));
    EXPECT_EQ(v.backgroundPicture().getType(), eBackgroundPictureNone);
    EXPECT_FALSE(v.backgroundPicture().is3D());
    EXPECT_TRUE(f.feedback.empty());
}

TEST(ViewInfo, FailuresReportAndKeepWhatWasRead) {
    Fixture f;
    CZelViewInfo v(&f.zel);
    // An empty filter element lacks its values.
    EXPECT_FALSE(v.initWithXML(ViewOf("<UI.Value>9</UI.Value><Filters><Image.Settings.Filter/></Filters>")));
    EXPECT_EQ(f.feedback.last(), "Exception in IZelViewInfo::initWithXML : exception (pointer is NULL)");
    EXPECT_EQ(v.getUIValue(), 9);
    EXPECT_FALSE(v.initWithXML(ViewOf("<Layers UUID=\"00112233445566778899AABBCCDDEEFG\"/>")));
    EXPECT_EQ(f.feedback.last(), "Exception in IZelViewInfo::initWithXML : Invalid hex value");
    EXPECT_FALSE(v.initWithXML(Fixture::parse("<P><View.Info><Depth.Of.Field/></View.Info></P>")));
    EXPECT_FALSE(v.initWithXML(nullptr));

    v.depthOfField().setType(4);
    EXPECT_EQ(v.putInXML(f.root), nullptr);
    EXPECT_EQ(f.feedback.last(),
              "Exception in IZelViewInfo::putInXML : No label for the value (4) [FromPoint..FromDistance]");
    EXPECT_FALSE(v.depthOfField().initWithXML(Fixture::parse(
        "<P><Depth.Of.Field Type=\"Far\"><Clearness.Point X=\"0\" Y=\"0\" Z=\"0\"/></Depth.Of.Field></P>")));
    EXPECT_EQ(f.feedback.last(),
              "Exception in IZelDepthOfField::initWithXML : Invalid label (Far) [FromPoint..FromDistance]");
    EXPECT_FALSE(v.filters().initWithXML(nullptr));
    EXPECT_FALSE(v.filters().grain().initWithXML(f.fresh()));
    EXPECT_EQ(f.feedback.last(), "Exception in CZelGrainFilter::initWithXML : exception (pointer is NULL)");
}
