#include "codec/ScenarioCodec.h"

#include "codec/KeyFrameCodec.h"
#include "codec/RenderingCodec.h"
#include "codec/ViewInfoCodec.h"
#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelAddSequence(const CZelXMLIO& io, XIXMLElement* parent, const CZelSequence& s) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Sequence");
    io.putUUID(e, "UUID", *s.getUUID());
    io.putInt(e, "Start.Frame", s.getStartFrame());
    io.putInt(e, "End.Frame", s.getEndFrame());
    io.putEnString(e, "Name", s.getName());
    io.putInt(e, "View.Flags", s.getViewFlags());
    io.putDouble(e, "Focal", s.getFocal());
    io.putVector(e, "Position", *s.getPosition());
    io.putLabel(e, "Target.Type", kSequenceTargetTypeLabels, s.getTargetType());
    io.putDouble(e, "Target.Distance", s.getTargetDistance());
    io.putDouble(e, "Horizontal.Angle", s.getHorizontalAngle());
    io.putDouble(e, "Vertical.Angle", s.getVerticalAngle());
    io.putVector(e, "Current.Path.Tangent", *s.getCurrentPathTangent());
    io.putVector(e, "Target", *s.getTarget());
    io.putDouble(e, "Roll", s.getRoll());
    io.putUUID(e, "Object.UUID", *s.getObjectUUID());
    ZelAddViewInfo(io, e, s.viewInfo());
    ZelAddViewOpt(io, e, s.viewOpt());
    return e;
}

void ZelGetSequence(const CZelXMLIO& io, const XIXMLElement* e, CZelSequence& s) {
    s.setUUID(io.getUUID(e, "UUID"));
    s.setStartFrame(io.getInt(e, "Start.Frame"));
    s.setEndFrame(io.getInt(e, "End.Frame"));
    s.setName(io.getEnString(e, "Name").c_str());
    s.setViewFlags(io.getInt(e, "View.Flags"));
    s.setFocal(io.getDouble(e, "Focal"));
    s.setPosition(io.getVector(e, "Position"));
    s.setTargetType(io.getLabel(e, "Target.Type", kSequenceTargetTypeLabels));
    double value;
    if (io.findDouble(e, "Target.Distance", value)) s.setTargetDistance(value);
    if (io.findDouble(e, "Horizontal.Angle", value)) s.setHorizontalAngle(value);
    if (io.findDouble(e, "Vertical.Angle", value)) s.setVerticalAngle(value);
    CZelVector tangent;
    if (io.findVector(e, "Current.Path.Tangent", tangent)) s.setCurrentPathTangent(tangent);
    s.setTarget(io.getVector(e, "Target"));
    s.setRoll(io.getDouble(e, "Roll"));
    CZelUUID object;
    if (io.findUUID(e, "Object.UUID", object)) s.setObjectUUID(object);
    ZelGetViewInfo(io, CZelXMLIO::need(e, "View.Info"), s.viewInfo());
    ZelGetViewOpt(io, CZelXMLIO::need(e, "Options"), s.viewOpt());
}

XIXMLElement* ZelAddSnd(const CZelXMLIO& io, XIXMLElement* parent, const CZelSnd& snd) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Snd");
    io.putUUID(e, "UUID", *snd.getUUID());
    io.putInt(e, "Start.Frame", snd.getStartFrame());
    io.putString(e, "URL", snd.getURL());
    return e;
}

void ZelGetSnd(const CZelXMLIO& io, const XIXMLElement* e, CZelSnd& snd) {
    snd.setUUID(io.getUUID(e, "UUID"));
    snd.setStartFrame(io.getInt(e, "Start.Frame"));
    std::string url;
    if (io.findString(e, "URL", url)) snd.setURL(url.c_str());
}

XIXMLElement* ZelAddTimeGuide(const CZelXMLIO& io, XIXMLElement* parent, const CZelScenarioTimeGuide& guide) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Time.Guide");
    io.putInt(e, "Time", guide.getTime());
    return e;
}

void ZelGetTimeGuide(const CZelXMLIO& io, const XIXMLElement* e, CZelScenarioTimeGuide& guide) {
    guide.setTime(io.getInt(e, "Time"));
}

XIXMLElement* ZelAddScenario(const CZelXMLIO& io, XIXMLElement* parent, const CZelScenario& s) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Scenario");
    io.putEnString(e, "Name", s.getName());
    io.putInt(e, "Current.Frame", s.getCurrentFrame());
    io.putInt(e, "Current.Sequence", s.getCurrentSequence());
    io.putInt(e, "Max.Time", s.getMaxTime());
    io.putInt(e, "FPS", s.getFPS());
    io.putInt(e, "Start.Visible.Time", s.getStartVisibleTime());
    io.putInt(e, "End.Visible.Time", s.getEndVisibleTime());
    io.putList(e, "Sequences", "Sequence", s.sequences(),
               [&](XIXMLElement* outer, const CZelSequence& q) { ZelAddSequence(io, outer, q); });
    io.putList(
        e, "Animated.Elements", "Animated.Element", s.elements(),
        [&](XIXMLElement* outer, const CZelAnimatedElement& a) { ZelAddAnimatedElement(io, outer, a); });
    io.putList(e, "Time.Guides", "Time.Guide", s.timeGuides(),
               [&](XIXMLElement* outer, const CZelScenarioTimeGuide& g) { ZelAddTimeGuide(io, outer, g); });
    io.putList(e, "Snds", "Snd", s.snds(),
               [&](XIXMLElement* outer, const CZelSnd& snd) { ZelAddSnd(io, outer, snd); });
    return e;
}

void ZelGetScenario(const CZelXMLIO& io, const XIXMLElement* e, CZelScenario& s) {
    s.setName(io.getEnString(e, "Name").c_str());
    s.setCurrentFrame(io.getInt(e, "Current.Frame"));
    s.setCurrentSequence(io.getInt(e, "Current.Sequence"));
    int value;
    if (io.findInt(e, "Max.Time", value)) s.setMaxTime(value);
    if (io.findInt(e, "FPS", value)) s.setFPS(value);
    if (io.findInt(e, "Start.Visible.Time", value)) s.setStartVisibleTime(value);
    if (io.findInt(e, "End.Visible.Time", value)) s.setEndVisibleTime(value);
    // Every list starts empty, whether its element is there or not.
    s.sequences().clear();
    s.elements().clear();
    s.timeGuides().clear();
    s.snds().clear();
    io.getList(e, "Sequences", "Sequence", s.sequences(),
               [&](const XIXMLElement* x, CZelSequence& q) { ZelGetSequence(io, x, q); });
    io.getList(e, "Animated.Elements", "Animated.Element", s.elements(),
               [&](const XIXMLElement* x, CZelAnimatedElement& a) { ZelGetAnimatedElement(io, x, a); });
    io.getList(e, "Time.Guides", "Time.Guide", s.timeGuides(),
               [&](const XIXMLElement* x, CZelScenarioTimeGuide& g) { ZelGetTimeGuide(io, x, g); });
    io.getList(e, "Snds", "Snd", s.snds(),
               [&](const XIXMLElement* x, CZelSnd& snd) { ZelGetSnd(io, x, snd); });
}

XIXMLElement* ZelPutScenarios(const CZelXMLIO& io, XIXMLElement* fileNode, CScenarioList& scenarios) {
    return io.putList(fileNode, "Scenarios", "Scenario", scenarios,
                      [&](XIXMLElement* outer, const CZelScenario& s) { ZelAddScenario(io, outer, s); });
}

bool ZelGetScenarios(const CZelXMLIO& io, const XIXMLElement* fileNode, CScenarioList& scenarios) {
    return io.getList(fileNode, "Scenarios", "Scenario", scenarios,
                      [&](const XIXMLElement* e, CZelScenario& s) { ZelGetScenario(io, e, s); });
}

} // namespace KeZel
