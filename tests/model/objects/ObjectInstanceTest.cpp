#include "ObjectsFixture.h"

#include "codec/ObjectCodec.h"
#include "model/light/Sky.h"
#include "model/objects/AnimatedObject.h"
#include "model/objects/Billboard.h"
#include "model/objects/Plant.h"

using namespace KeZel;
using namespace ObjectsTest;
using KestraXML::XIXMLElement;

namespace {

// Which casting getters answer non-null: ZelObject, plant, billboard, light, animated,
// internal component.
std::string Delegates(const CZelObjectInstance& x) {
    std::string s;
    s += x.getZelObjectInstance() ? "Z" : "-";
    s += x.get3DPlantRef() ? "P" : "-";
    s += x.getBBObjectInstance() ? "B" : "-";
    s += x.getObjectLightRef() ? "L" : "-";
    s += x.getAnimatedObjectInstance() ? "A" : "-";
    s += x.getInternalComponentInstance() ? "C" : "-";
    return s;
}

// Writes `x` under a fresh element and reads it into a new instance of `list`.
CZelObjectInstance& RoundTrip(Fixture& f, CObjectInstanceList& list, CZelObjectInstance& x) {
    XIXMLElement* parent = f.fresh();
    EXPECT_NE(x.putInXML(parent), nullptr) << f.feedback.last();
    CZelObjectInstance& back = *list.newItem();
    EXPECT_TRUE(back.initWithXML(parent)) << f.feedback.last();
    return back;
}

} // namespace

TEST(ObjectInstance, DefaultsTransparencyAndDelegates) {
    Fixture f;
    CObjectInstanceList list(&f.zel);
    CZelObjectInstance& x = *list.newItem();
    EXPECT_EQ(Delegates(x), "------");
    x.updateInstanceData();
    EXPECT_EQ(x.getInstanceData()->GetFirstNode(), nullptr);
    EXPECT_TRUE(Same(x.getScale()[0], V(1, 1, 1)));
    EXPECT_TRUE(Same(x.getBoundingBox()[0], V(1, 1, 1)) && Same(x.getBoundingBox()[1], V(-1, -1, -1)));
    EXPECT_TRUE(Same(x.getTriangleCoord()[2], V(1, 1, 0)));
    EXPECT_TRUE(Same(*x.getCurrentPathDirection(), V(0, 0, 0)));
    EXPECT_EQ(x.getPlacementProperty(), 1);

    const struct { double in, out; } clips[] = {{1.5, 1.0}, {-0.5, 0.0}, {0.25, 0.25}, {1.0, 1.0}};
    for (const auto& c : clips) {
        x.setTransparency(c.in);
        EXPECT_EQ(x.getTransparency(), c.out) << c.in;
    }

    const struct {
        const char* name;
        const char* delegates;
    } cases[] = {{"ModelObject", "-----C"}, {"3DPlant", "ZP----"},     {"ZelObject", "Z-----"},
                 {"Billboard", "--B---"},   {"LightObject", "---L--"}, {"AnimatedObject", "Z---A-"},
                 {"Other", "------"},       {nullptr, "------"}};
    for (const auto& c : cases) {
        x.setClass(c.name);
        EXPECT_EQ(Delegates(x), c.delegates) << (c.name ? c.name : "null");
    }
    EXPECT_STREQ(x.getClass(), "");
    EXPECT_TRUE(f.feedback.empty());
}

TEST(ObjectInstance, ElementRoundTrip) {
    Fixture f;
    CObjectInstanceList list(&f.zel);
    CZelObjectInstance& x = *list.newItem();
    x.setName("Tree 1");
    x.setId(ZelUUIDFromText("00112233445566778899AABBCCDDEEFF"));
    x.setTranslation(V(1, 2, 3));
    x.setTriangleId(12);
    x.setTriangleCoord(V(1, 2, 3), V(4, 5, 6), V(7, 8, 9));
    x.setBoundingBox(V(0, 0, 0), V(2, 2, 2));
    x.setCoordinatesLocked(true);
    x.setAnimationBehavior(2);
    x.setTarget(true);
    x.setTransparency(0.5);
    x.setLayerId(ZelUUIDFromText("0000000000000000000000000000000A"));
    x.setClass("Billboard");
    CZelBBObjectInstance& bb = *static_cast<CZelBBObjectInstance*>(x.getBBObjectInstance());
    EXPECT_TRUE(bb.isOrientWithCamera());
    EXPECT_EQ(bb.getRoughness(), 700.0);
    bb.setOrientWithCamera(false);
    bb.setKind(2);
    bb.setRoughness(12);
    bb.definitionName().setText(CZelString::CodeOf("de"), "Baum");

    // A host's key behind the delegate's.
    x.updateInstanceData();
    CZelXMLIO::add(x.getInstanceData(), "Host.Note");
    XIXMLElement* parent = f.fresh();
    XIXMLElement* original = x.putInXML(parent);
    ASSERT_NE(original, nullptr) << f.feedback.last();
    CZelObjectInstance& back = *list.newItem();
    ASSERT_TRUE(back.initWithXML(parent)) << f.feedback.last();
    EXPECT_STREQ(back.getName(), "Tree 1");
    EXPECT_EQ(*back.getId(), *x.getId());
    EXPECT_EQ(*back.getLayerId(), *x.getLayerId());
    EXPECT_TRUE(Same(*back.getTranslation(), V(1, 2, 3)));
    EXPECT_EQ(back.getTriangleId(), 12);
    EXPECT_TRUE(Same(back.getTriangleCoord()[1], V(4, 5, 6)));
    EXPECT_TRUE(Same(back.getBoundingBox()[1], V(2, 2, 2)));
    EXPECT_TRUE(back.isCoordinatesLocked() && !back.isScaleLocked() && back.isTarget());
    EXPECT_EQ(back.getAnimationBehavior(), 2);
    EXPECT_EQ(back.getTransparency(), 0.5);
    const IZelBBObjectInstance* readBB = back.getBBObjectInstance();
    ASSERT_NE(readBB, nullptr);
    EXPECT_FALSE(readBB->isOrientWithCamera());
    EXPECT_EQ(readBB->getKind(), 2);
    EXPECT_EQ(readBB->getRoughness(), 12.0);
    EXPECT_STREQ(readBB->getDefinitionName()->findText(CZelString::CodeOf("de")), "Baum");
    EXPECT_STREQ(Fixture::attribute(back.getInstanceData(), "Kind"), "Multiface");

    // Written again, the instance gives the same text, its data in the same order.
    EXPECT_EQ(Fixture::flat(back.putInXML(f.fresh())), Fixture::flat(original));
    std::string data = Fixture::children(back.getInstanceData());
    EXPECT_EQ(data.substr(data.rfind("Current.Config")), "Current.Config Host.Note");
}

TEST(ObjectInstance, OlderAndForeignFiles) {
    Fixture f;
    CObjectInstanceList list(&f.zel);
    CZelObjectInstance& x = *list.newItem();
    x.setClass("Unheard.Of");
    XIXMLElement* parent = f.fresh();
    XIXMLElement* e = x.putInXML(parent);
    ASSERT_NE(e, nullptr);
    CZelXMLIO::removeAll(e, "Tansparency");

    CZelObjectInstance& back = *list.newItem();
    back.setTransparency(0.75);
    ASSERT_TRUE(back.initWithXML(parent));
    EXPECT_EQ(back.getTransparency(), 0.0);
    EXPECT_STREQ(back.getClass(), "Unheard.Of");
    EXPECT_EQ(Delegates(back), "------");

    // A mandatory key missing: reported under the instance's name, false.
    CZelXMLIO::removeAll(e, "Up.Vector");
    EXPECT_FALSE(back.initWithXML(parent));
    EXPECT_EQ(f.feedback.count(), 1u);
    EXPECT_EQ(f.feedback.last().rfind("Exception in CZelObjectInstance::initWithXML : ", 0), 0u);
}

TEST(ObjectInstance, PlantAndAnimatedInstances) {
    Fixture f;
    CObjectInstanceList list(&f.zel);
    CZelObjectInstance& x = *list.newItem();
    x.setClass("3DPlant");
    C3DPlantRef& plant = *static_cast<C3DPlantRef*>(x.get3DPlantRef());
    EXPECT_TRUE(plant.isHeliodonAttached());
    EXPECT_EQ(plant.getColor(), -1);
    EXPECT_EQ(plant.time().getMonth(), 8);
    EXPECT_EQ(plant.time().getDay(), 1);
    EXPECT_EQ(plant.time().getYear(), ZelCurrentYear(-1));
    plant.setColor(7);
    plant.setUrl("C:\\objects\\tree.zof");
    plant.time().setDay(15);

    CZelObjectInstance& back = RoundTrip(f, list, x);
    const IZel3DPlantRef* read = back.get3DPlantRef();
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->getColor(), 7);
    EXPECT_EQ(read->getTime()->getDay(), 15);
    EXPECT_TRUE(read->isHeliodonAttached());
    EXPECT_STREQ(back.getZelObjectInstance()->getUrl(), "C:\\objects\\tree.zof");

    // Attached is a flag: without it the data reads false.
    CZelXMLIO::removeAll(back.getInstanceData(), "Heliodon.Attached");
    back.setClass("3DPlant");
    EXPECT_FALSE(back.get3DPlantRef()->isHeliodonAttached());

    // An animated instance writes its overloaded properties only when it has some.
    x.setClass("AnimatedObject");
    CZelAnimatedObjectInstance& animated =
        *static_cast<CZelAnimatedObjectInstance*>(x.getAnimatedObjectInstance());
    animated.setStartFrame(12);
    x.updateInstanceData();
    EXPECT_EQ(Fixture::child(x.getInstanceData(), "Overloaded.Properties"), nullptr);
    animated.overloaded().newItem()->setDiffuseColor(ZelRGB(9, 9, 9));
    CZelObjectInstance& again = RoundTrip(f, list, x);
    ASSERT_NE(again.getAnimatedObjectInstance(), nullptr);
    EXPECT_EQ(again.getAnimatedObjectInstance()->getStartFrame(), 12);
    EXPECT_EQ(again.getAnimatedObjectInstance()->getOverloadedProperties()->getCount(), 1u);
    EXPECT_EQ(*static_cast<CProperty*>(
                   again.getAnimatedObjectInstance()->getOverloadedProperties()->getZelObject(0))
                   ->getId(),
              *animated.overloaded().at(0)->getId());
    EXPECT_TRUE(f.feedback.empty()) << f.feedback.last();
}
