#include "model/views/ViewsFixture.h"

#include "codec/LayerCodec.h"

using namespace KeZel;
using namespace ViewsTest;
using KestraXML::XIXMLElement;

TEST(Layer, ListRoundTripAndRequiredKeys) {
    Fixture f;
    CLayerList layers(&f.zel);
    CZelLayer& walls = *layers.newItem();
    walls.setName("Walls");
    walls.setUIValue(3);
    layers.newItem()->setName("Trees");
    EXPECT_NE(*layers.at(0)->getUUID(), *layers.at(1)->getUUID());
    ZelPutLayers(f.io, f.root, layers);
    ZelPutLayers(f.io, f.root, layers);
    EXPECT_EQ(Fixture::count(CZelXMLIO::need(f.root, "Layers"), "Layer"), 2u);

    CLayerList read(&f.zel);
    read.newItem();
    ASSERT_TRUE(ZelGetLayers(f.io, f.root, read));
    ASSERT_EQ(read.getCount(), 2u);
    EXPECT_EQ(*read.at(0)->getUUID(), *walls.getUUID());
    EXPECT_STREQ(read.at(0)->getName(), "Walls");
    EXPECT_EQ(read.at(0)->getUIValue(), 3);
    EXPECT_FALSE(ZelGetLayers(f.io, f.fresh(), read));
    EXPECT_EQ(read.getCount(), 2u);

    CZelLayer loose(&f.zel);
    EXPECT_TRUE(loose.initWithXML(Fixture::parse("<P><Layer UUID=\"000102030405060708090A0B0C0D0E0F\">"
                                                 "<Name en=\"Roof\"/></Layer></P>")));
    EXPECT_EQ(loose.getUIValue(), 0);
    EXPECT_EQ(*loose.getUUID(), Id(0));
    EXPECT_FALSE(loose.initWithXML(Fixture::parse("<P><Layer><Name en=\"Roof\"/></Layer></P>")));
    EXPECT_STREQ(loose.getName(), "Roof");
}

TEST(LayerInfo, DefaultLayersOfTheFileClasses) {
    Fixture f;
    CZelLayerInfo info(&f.zel);
    EXPECT_TRUE(info.getDefaultLayer("Billboard")->isNull());
    EXPECT_EQ(info.getDefaultLayer(nullptr), nullptr);
    info.setActiveLayer(Id(1));
    info.setDefaultLayer("3DPlant", Id(2));
    info.setDefaultLayer("AnimatedObject", Id(3));
    info.setDefaultLayer("ModelObject", Id(4)); // kept in memory, not in files
    EXPECT_EQ(*info.getDefaultLayer("ModelObject"), Id(4));
    ZelPutLayersInfo(f.io, f.root, info);
    ZelPutLayersInfo(f.io, f.root, info);
    EXPECT_EQ(Fixture::count(f.root, "Layers.Info"), 1u);
    const XIXMLElement* map = CZelXMLIO::need(CZelXMLIO::need(f.root, "Layers.Info"), "Default.Layer.Map");
    std::string names;
    for (KestraXML::XIXMLAttribute* a = map->GetFirstAttribute(); a; a = a->GetNext())
        names += std::string(*a->GetKey()) + " ";
    EXPECT_EQ(names, "3DPlant ZelObject Billboard LightObject AnimatedObject ");

    CZelLayerInfo back(&f.zel);
    ASSERT_TRUE(ZelGetLayersInfo(f.io, f.root, back));
    EXPECT_EQ(*back.getActiveLayer(), Id(1));
    EXPECT_EQ(*back.getDefaultLayer("3DPlant"), Id(2));
    EXPECT_EQ(*back.getDefaultLayer("AnimatedObject"), Id(3));
    EXPECT_TRUE(back.getDefaultLayer("ZelObject")->isNull());
    EXPECT_TRUE(back.getDefaultLayer("ModelObject")->isNull());
    EXPECT_FALSE(ZelGetLayersInfo(f.io, f.fresh(), back));
    EXPECT_FALSE(back.initWithXML(f.fresh()));
    EXPECT_EQ(f.feedback.last(), "Exception in IZelLayerInfo::initWithXML : exception (pointer is NULL)");
}
