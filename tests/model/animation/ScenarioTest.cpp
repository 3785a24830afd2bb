#include "model/objects/ObjectsFixture.h"

#include "codec/ScenarioCodec.h"

using namespace KeZel;
using namespace ObjectsTest;
using KestraXML::XIXMLElement;

TEST(Scenario, DefaultsAndSequenceSetters) {
    Fixture f;
    CScenarioList scenarios(&f.zel);
    CZelScenario& s = *scenarios.newItem();
    EXPECT_EQ(s.getFPS(), 25);
    EXPECT_EQ(s.getMaxTime(), 500);
    EXPECT_EQ(s.getStartVisibleTime(), 0);
    EXPECT_EQ(s.getEndVisibleTime(), 500);

    CZelSequence& q = *s.sequences().newItem();
    EXPECT_EQ(q.getStartFrame(), 0);
    EXPECT_EQ(q.getEndFrame(), 250);
    EXPECT_STREQ(q.getName(), "Sequence 0");
    EXPECT_TRUE(Same(*q.getPosition(), V(50, -60, 50)));
    EXPECT_EQ(q.getViewFlags(), 2);
    EXPECT_FALSE(q.getUUID()->isNull());

    const struct { int in, out; } types[] = {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 0}, {-1, 0}};
    for (const auto& t : types) {
        q.setTargetType(t.in);
        EXPECT_EQ(q.getTargetType(), t.out) << t.in;
    }
    q.setRoll(-1.0);
    EXPECT_EQ(q.getRoll(), -1.0);
    EXPECT_TRUE(f.feedback.empty());

    const struct {
        double in, out;
        bool warns;
    } focals[] = {{200.0, 180.0, true}, {-1.0, 0.0, true}, {180.0, 180.0, false}, {35.0, 35.0, false}};
    for (const auto& c : focals) {
        f.feedback.clear();
        q.setFocal(c.in);
        EXPECT_EQ(q.getFocal(), c.out) << c.in;
        EXPECT_EQ(f.feedback.count(), c.warns ? 1u : 0u) << c.in;
        EXPECT_EQ(f.feedback.last(), c.warns ? "Method setFocal has clipped a value out of range." : "")
            << c.in;
    }

    CZelSequence& other = *s.sequences().newItem();
    other.setViewFlags(3);
    q.setCurrent();
    EXPECT_EQ(q.isCurrent(), 1);
    EXPECT_EQ(other.getViewFlags(), 2);
    other.setFlagged(false);
    EXPECT_EQ(other.isFlagged(), 0);

    Fixture old(eZelVersion7);
    CScenarioList oldScenarios(&old.zel);
    EXPECT_TRUE(Same(*oldScenarios.newItem()->sequences().newItem()->getPosition(), V(50, 50, -60)));
}

TEST(Scenario, ElementRoundTrip) {
    Fixture f;
    CScenarioList scenarios(&f.zel);
    CZelScenario& s = *scenarios.newItem();
    s.setName("Walk");
    s.setCurrentFrame(12);
    s.setFPS(30);
    s.setEndVisibleTime(300);
    CZelSequence& q = *s.sequences().newItem();
    q.setName("Shot");
    q.setTargetType(3);
    q.setTarget(V(1, 2, 3));
    q.setHorizontalAngle(0.5);
    q.setObjectUUID(ZelUUIDFromText("CC000000000000000000000000000003"));
    q.viewInfo().setUIValue(9);
    CZelAnimatedElement& element = *s.elements().newItem();
    element.setType(1);
    element.setUUID(*q.getUUID());
    s.timeGuides().newItem()->setTime(77);
    CZelSnd& snd = *s.snds().newItem();
    snd.setURL("steps.wav");
    snd.setStartFrame(5);

    XIXMLElement* fileNode = f.fresh("Zel.File");
    XIXMLElement* outer = ZelPutScenarios(f.io, fileNode, scenarios);
    XIXMLElement* e = Fixture::child(outer, "Scenario");
    EXPECT_EQ(Fixture::children(e), "Name Current.Frame Current.Sequence Max.Time FPS Start.Visible.Time "
                                    "End.Visible.Time Sequences Animated.Elements Time.Guides Snds");
    XIXMLElement* sequence = Fixture::child(Fixture::child(e, "Sequences"), "Sequence");
    EXPECT_STREQ(Fixture::attribute(sequence, "Target.Type"), "Object.Instance");
    EXPECT_EQ(Fixture::children(sequence),
              "Start.Frame End.Frame Name View.Flags Focal Position Target.Distance "
              "Horizontal.Angle Vertical.Angle Current.Path.Tangent Target Roll "
              "View.Info Options");

    CScenarioList back(&f.zel);
    ASSERT_TRUE(ZelGetScenarios(f.io, fileNode, back));
    ASSERT_EQ(back.getCount(), 1u);
    const CZelScenario& r = *back.at(0);
    EXPECT_STREQ(r.getName(), "Walk");
    EXPECT_EQ(r.getCurrentFrame(), 12);
    EXPECT_EQ(r.getFPS(), 30);
    EXPECT_EQ(r.getEndVisibleTime(), 300);
    ASSERT_EQ(r.sequences().getCount(), 1u);
    const CZelSequence& rq = *r.sequences().at(0);
    EXPECT_EQ(*rq.getUUID(), *q.getUUID());
    EXPECT_STREQ(rq.getName(), "Shot");
    EXPECT_EQ(rq.getTargetType(), 3);
    EXPECT_TRUE(Same(*rq.getTarget(), V(1, 2, 3)));
    EXPECT_EQ(rq.getHorizontalAngle(), 0.5);
    EXPECT_EQ(*rq.getObjectUUID(), *q.getObjectUUID());
    EXPECT_EQ(rq.getViewInfo()->getUIValue(), 9);
    ASSERT_EQ(r.elements().getCount(), 1u);
    EXPECT_EQ(*r.elements().at(0)->getUUID(), *q.getUUID());
    ASSERT_EQ(r.timeGuides().getCount(), 1u);
    EXPECT_EQ(r.timeGuides().at(0)->getTime(), 77);
    ASSERT_EQ(r.snds().getCount(), 1u);
    EXPECT_STREQ(r.snds().at(0)->getURL(), "steps.wav");
    EXPECT_EQ(r.snds().at(0)->getStartFrame(), 5);
    EXPECT_TRUE(f.feedback.empty()) << f.feedback.last();
}

TEST(Scenario, LabelsAndOptionalKeys) {
    Fixture f;
    CScenarioList scenarios(&f.zel);
    CZelScenario& s = *scenarios.newItem();
    CZelSequence& q = *s.sequences().newItem();
    q.setTargetType(2);
    s.timeGuides().newItem();
    XIXMLElement* parent = f.fresh();
    XIXMLElement* e = s.putInXML(parent);
    ASSERT_NE(e, nullptr);
    XIXMLElement* sequence = Fixture::child(Fixture::child(e, "Sequences"), "Sequence");
    EXPECT_STREQ(Fixture::attribute(sequence, "Target.Type"), "Forward.Path");

    // The second word of 2 reads as 2; optional keys and lists may be missing.
    CZelXMLIO::setAttribute(sequence, "Target.Type", "Relative.Angle");
    CZelXMLIO::removeAll(sequence, "Target.Distance");
    CZelXMLIO::removeAll(e, "FPS");
    CZelXMLIO::removeAll(e, "Time.Guides");
    CScenarioList back(&f.zel);
    CZelScenario& r = *back.newItem();
    r.setFPS(12);
    r.timeGuides().newItem();
    ASSERT_TRUE(r.initWithXML(parent)) << f.feedback.last();
    EXPECT_EQ(r.getFPS(), 12);
    EXPECT_EQ(r.timeGuides().getCount(), 0u);
    EXPECT_EQ(r.sequences().at(0)->getTargetType(), 2);
    EXPECT_EQ(r.sequences().at(0)->getTargetDistance(), 100.0);

    // 1 is stored, but has no word.
    q.setTargetType(1);
    EXPECT_EQ(q.putInXML(f.fresh()), nullptr);
    EXPECT_EQ(
        f.feedback.last(),
        "Exception in CZelSequence::putInXML : No label for the value (1) [Fixed.Vertex..Object.Instance]");
    CZelXMLIO::setAttribute(sequence, "Target.Type", "Backwards");
    EXPECT_FALSE(q.initWithXML(Fixture::child(e, "Sequences")));
    EXPECT_EQ(f.feedback.last(), "Exception in CZelSequence::initWithXML : Invalid label (Backwards) "
                                 "[Fixed.Vertex..Object.Instance]");
}
