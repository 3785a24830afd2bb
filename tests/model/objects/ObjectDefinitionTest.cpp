#include "ObjectsFixture.h"

#include "codec/ObjectCodec.h"
#include "model/objects/AnimatedObject.h"
#include "model/objects/ModelInstances.h"
#include "model/objects/ObjectLight.h"
#include "model/objects/Plant.h"

using namespace KeZel;
using namespace ObjectsTest;
using KestraXML::XIXMLElement;

namespace {

// Which delegate getters of a definition answer non-null: plant, light, animated.
std::string Delegates(CZelZelObjectDefinition& d) {
    std::string s;
    s += d.get3DPlant() ? "P" : "-";
    s += d.getObjectLight() ? "L" : "-";
    s += d.getAnimatedObject() ? "A" : "-";
    return s;
}

} // namespace

TEST(ObjectDefinition, ClassNameChoosesTheDelegate) {
    Fixture f;
    CObjectDefinitionList list(&f.zel);
    CZelZelObjectDefinition& d = *list.newItem();
    EXPECT_STREQ(d.getClass(), "ModelObject");
    EXPECT_EQ(Delegates(d), "---");
    EXPECT_EQ(d.getPlacement(), 1);
    EXPECT_EQ(d.getUIValue(), -1);
    EXPECT_TRUE(Same(*d.getUp(), V(0, 0, 1)));
    EXPECT_FALSE(d.getUUID()->isNull());

    const struct {
        const char* name;
        const char* delegates;
    } cases[] = {{"3DPlant", "P--"},     {"LightObject", "-L-"}, {"AnimatedObject", "--A"},
                 {"ModelObject", "---"}, {"ZelObject", "---"},   {"Billboard", "---"},
                 {"Whatever", "---"}};
    for (const auto& c : cases) {
        d.setClass(c.name);
        EXPECT_STREQ(d.getClass(), c.name);
        EXPECT_EQ(Delegates(d), c.delegates) << c.name;
    }
    d.setClass("3DPlant");
    d.setClass(nullptr);
    EXPECT_STREQ(d.getClass(), "3DPlant");
    EXPECT_EQ(Delegates(d), "P--");
}

TEST(ObjectDefinition, ModelObjectWritesItsComponentAndReadsBack) {
    Fixture f;
    CObjectDefinitionList list(&f.zel);
    CZelZelObjectDefinition& d = *list.newItem();
    d.name().setText(CZelString::CodeOf("en"), "Chair");
    d.name().setText(CZelString::CodeOf("fr"), "Chaise");
    d.comment().setText(CZelString::CodeOf("en"), "Oak");
    d.setAnchor(V(1, 2, 3));
    d.setPlacement(0);
    d.setInitialAngle(0.5);
    d.setModelOrigin(3);
    d.setGeometryLevel(2);
    d.setUIValue(7);
    double matrix[16] = {2, 0, 0, 1, 0, 2, 0, 2, 0, 0, 2, 3, 0, 0, 0, 1};
    d.setModelRotationMatrix(matrix);
    CObjectSetup& setup = *d.setups().newItem();
    setup.name().setText(CZelString::CodeOf("en"), "Summer");
    d.properties().newItem()->setDiffuseColor(ZelRGB(1, 2, 3));
    // The host's own data travels with the definition.
    CZelXMLIO::add(d.getObjectData(), "Host.Key")->NewData("kept");

    XIXMLElement* parent = f.fresh();
    XIXMLElement* component = d.putInXML(parent);
    ASSERT_NE(component, nullptr) << f.feedback.last();
    EXPECT_EQ(Fixture::children(parent), "InternalComponentDefinition");
    EXPECT_EQ(Fixture::children(component), "Geometry.Level Points Polygons Object.Definition");
    EXPECT_EQ(ZelUUIDToText(*d.getUUID()), Fixture::attribute(component, "UUID"));
    XIXMLElement* e = Fixture::child(component, "Object.Definition");
    EXPECT_EQ(Fixture::children(e), "Class Name Anchor Up Initial.Angle Properties Model.Rotation "
                                    "Model.Rotation.Matrixs Model.Position Description1 Description2 Comment "
                                    "UIValue Setups Object.Data");
    EXPECT_STREQ(Fixture::attribute(e, "Placement"), "Perpendicular");
    EXPECT_STREQ(Fixture::attribute(e, "Model.Origin"), "CenterXY");

    CZelZelObjectDefinition& back = *list.newItem();
    ASSERT_TRUE(back.initWithXML(parent)) << f.feedback.last();
    EXPECT_EQ(*back.getUUID(), *d.getUUID());
    EXPECT_STREQ(back.name().findText(CZelString::CodeOf("fr")), "Chaise");
    EXPECT_STREQ(back.getDefaultName(), "Chair");
    EXPECT_STREQ(back.comment().findText(CZelString::CodeOf("en")), "Oak");
    EXPECT_TRUE(Same(*back.getAnchor(), V(1, 2, 3)));
    EXPECT_EQ(back.getPlacement(), 0);
    EXPECT_EQ(back.getInitialAngle(), 0.5);
    EXPECT_EQ(back.getModelOrigin(), 3);
    EXPECT_EQ(back.getGeometryLevel(), 2);
    EXPECT_EQ(back.getUIValue(), 7);
    for (int i = 0; i < 16; ++i) EXPECT_EQ(back.getModelRotationMatrix()[i], matrix[i]);
    ASSERT_EQ(back.setups().getCount(), 1u);
    EXPECT_EQ(*back.setups().at(0)->getUUID(), *setup.getUUID());
    EXPECT_EQ(back.properties().getCount(), 1u);
    EXPECT_STREQ(CZelXMLIO::textOf(Fixture::child(back.getObjectData(), "Host.Key")), "kept");
    EXPECT_TRUE(f.feedback.empty());
}

TEST(ObjectDefinition, ReadingEdgeCases) {
    Fixture f;
    CObjectDefinitionList list(&f.zel);
    CZelZelObjectDefinition& d = *list.newItem();
    // A model object needs its component element.
    EXPECT_FALSE(d.initWithXML(f.fresh()));
    EXPECT_EQ(f.feedback.last(), "Exception in CZelZelObjectDefinition::initWithXML : "
                                 "CZelZelObjectDefinition::initWithXML : cannot find internal component "
                                 "definition node");

    // An unknown class is written as Object.Definition and read back as it stands; no
    // Properties for a definition without any, and no Comment leaves the comment empty.
    d.setClass("Strange");
    XIXMLElement* parent = f.fresh();
    XIXMLElement* e = d.putInXML(parent);
    ASSERT_NE(e, nullptr);
    EXPECT_EQ(Fixture::child(e, "Properties"), nullptr);
    CZelXMLIO::removeAll(e, "Comment");
    CZelZelObjectDefinition& back = *list.newItem();
    back.setClass("Other");
    back.comment().setText(CZelString::CodeOf("en"), "before");
    ASSERT_TRUE(back.initWithXML(parent));
    EXPECT_STREQ(back.getClass(), "Strange");
    EXPECT_EQ(Delegates(back), "---");
    EXPECT_EQ(*back.getUUID(), *d.getUUID());
    EXPECT_STREQ(back.comment().findText(CZelString::CodeOf("en")), "before");

    // A second write replaces the first element.
    d.putInXML(parent);
    EXPECT_EQ(Fixture::children(parent), "Object.Definition");
}

TEST(ObjectDefinition, DelegatesKeepTheirDataInObjectData) {
    Fixture f;
    CObjectDefinitionList list(&f.zel);
    CZelZelObjectDefinition& d = *list.newItem();
    d.setClass("3DPlant");
    C3DPlant& plant = *static_cast<C3DPlant*>(d.get3DPlant());
    plant.setPlantType(5);
    CPlantSetUp& setup = *plant.setups().newItem();
    EXPECT_EQ(setup.getColor(), -1);
    EXPECT_EQ(setup.start().getMonth(), 1);
    EXPECT_EQ(setup.start().getYear(), ZelCurrentYear(-1));
    setup.setColor(3);
    setup.end().setMonth(6);
    XIXMLElement* parent = f.fresh();
    ASSERT_NE(d.putInXML(parent), nullptr);
    EXPECT_STREQ(Fixture::attribute(d.getObjectData(), "Plant.Type"), "PalmTree");

    CZelZelObjectDefinition& back = *list.newItem();
    back.setClass("3DPlant");
    ASSERT_TRUE(back.initWithXML(parent));
    const IZel3DPlant* read = back.get3DPlant();
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->getPlantType(), 5);
    ASSERT_EQ(read->getSetups()->getCount(), 1u);
    const IZel3DPlant::IPlantSetUp* s = read->getSetups()->getZelObject(0);
    EXPECT_EQ(*s->getId(), *setup.getId());
    EXPECT_EQ(s->getColor(), 3);
    EXPECT_EQ(s->getEndTime()->getMonth(), 6);

    // A light object keeps its light.
    d.setClass("LightObject");
    static_cast<CLight*>(d.getObjectLight()->getLight())->setPower(42);
    ASSERT_NE(d.putInXML(parent), nullptr);
    back.setClass("LightObject");
    ASSERT_TRUE(back.initWithXML(parent));
    EXPECT_EQ(back.getObjectLight()->getLight()->getPower(), 42);

    // An animated object: the file name lives in the data; a take runs at 24 frames.
    d.setClass("AnimatedObject");
    CZelAnimatedObject& animated = *static_cast<CZelAnimatedObject*>(d.getAnimatedObject());
    EXPECT_STREQ(animated.getExternalFile(), "");
    animated.setExternalFile("walk.skl");
    CZelTake& take = *animated.takes().newItem();
    EXPECT_EQ(take.getFPS(), 24);
    EXPECT_EQ(take.getDuration(), 0);
    take.setType(1);
    ASSERT_NE(d.putInXML(parent), nullptr);
    back.setClass("AnimatedObject");
    ASSERT_TRUE(back.initWithXML(parent));
    EXPECT_STREQ(back.getAnimatedObject()->getExternalFile(), "walk.skl");
    ASSERT_EQ(back.getAnimatedObject()->getTakes()->getCount(), 1u);
    EXPECT_EQ(back.getAnimatedObject()->getTakes()->getZelObject(0)->getType(), 1);
    EXPECT_TRUE(f.feedback.empty()) << f.feedback.last();

    CZelXMLIO::setAttribute(d.objectData(), "External.File.Type", "Bones");
    EXPECT_EQ(ZelTest::ErrorOf([&] { ZelGetAnimatedObjectData(f.io, d.getObjectData(), animated); }),
              "Invalid label (Bones) [Skeleton..Skeleton]");
}

TEST(ObjectDefinition, OldScenesGetTheirModel) {
    Fixture f;
    CObjectDefinitionList definitions(&f.zel);
    CObjectInstanceList instances(&f.zel);
    ASSERT_NE(Fixture::child(f.zel.getFileNode(), "Points"), nullptr);

    // From 3.0.1 on nothing is made, and without definitions the blocks stay.
    ZelFixModelInstances(definitions, instances, CZelVersion(3, 0, 1));
    EXPECT_EQ(definitions.getCount(), 0u);
    EXPECT_EQ(instances.getCount(), 0u);
    EXPECT_NE(Fixture::child(f.zel.getFileNode(), "Points"), nullptr);

    ZelFixModelInstances(definitions, instances, CZelVersion(3, 0, 0));
    ASSERT_EQ(definitions.getCount(), 1u);
    ASSERT_EQ(instances.getCount(), 1u);
    const CZelUUID model = *definitions.at(0)->getUUID();
    CZelObjectInstance& instance = *instances.at(0);
    EXPECT_STREQ(instance.getClass(), "ModelObject");
    EXPECT_EQ(*instance.getId(), model);
    EXPECT_EQ(*instance.getInternalComponentInstance()->getComponentUUID(), model);
    EXPECT_EQ(Fixture::child(f.zel.getFileNode(), "Points"), nullptr);
    EXPECT_EQ(Fixture::child(f.zel.getFileNode(), "Polygons"), nullptr);

    // An existing instance with no reference takes the model's.
    instance.setId(CZelUUID());
    instance.getInternalComponentInstance()->setComponentUUID(CZelUUID());
    ZelFixModelInstances(definitions, instances, CZelVersion(2, 0, 2));
    EXPECT_EQ(instances.getCount(), 1u);
    EXPECT_EQ(*instance.getId(), model);
    EXPECT_EQ(*instance.getInternalComponentInstance()->getComponentUUID(), model);
}

TEST(ObjectDefinition, SceneElementsReadBackWhole) {
    Fixture f;
    CObjectDefinitionList list(&f.zel);
    list.newItem()->setUIValue(1);
    list.newItem()->setClass("3DPlant");
    XIXMLElement* fileNode = f.fresh("Zel.File");
    ZelPutObjectDefinitions(f.io, fileNode, list);
    XIXMLElement* outer = ZelPutObjectDefinitions(f.io, fileNode, list);
    EXPECT_EQ(Fixture::children(outer), "InternalComponentDefinition InternalComponentDefinition");

    // The object of the file stands below the file node as Object.Definition, whatever
    // its class.
    CZelZelObjectDefinition object(&f.zel);
    object.setGeometryLevel(4);
    ZelPutObjectDefinition(f.io, fileNode, object);
    ZelPutObjectDefinition(f.io, fileNode, object);
    EXPECT_EQ(Fixture::children(fileNode), "InternalComponentDefinitions Object.Definition");

    CObjectDefinitionList back(&f.zel);
    ASSERT_TRUE(ZelGetObjectDefinitions(f.io, fileNode, back));
    ASSERT_EQ(back.getCount(), 2u);
    EXPECT_EQ(back.at(0)->getUIValue(), 1);
    EXPECT_EQ(*back.at(1)->getUUID(), *list.at(1)->getUUID());
    EXPECT_NE(back.at(1)->get3DPlant(), nullptr);
    CZelZelObjectDefinition read(&f.zel);
    ASSERT_TRUE(ZelGetSceneObjectDefinition(f.io, fileNode, read));
    EXPECT_EQ(*read.getUUID(), *object.getUUID());
    EXPECT_FALSE(ZelGetSceneObjectDefinition(f.io, f.fresh(), read));
    EXPECT_TRUE(f.feedback.empty()) << f.feedback.last();
}
