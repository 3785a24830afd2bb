#include "codec/AnimationCodec.h"

#include "codec/RenderingCodec.h"
#include "codec/ViewInfoCodec.h"
#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelAddCamKey(const CZelXMLIO& io, XIXMLElement* parent, const CCamKey& k) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Camera.Key");
    io.putDouble(e, "Pitch", k.getPitch());
    io.putDouble(e, "Focal", k.getFocal());
    io.putLabel(e, "Key.Type", kCameraKeyTypeLabels, k.getKeyType());
    io.putInt(e, "Fading.Duration", k.getFadingDuration());
    io.putInt(e, "Fading.Nb.Images", k.getFadingNbImages());
    io.putDouble(e, "Horizontal.Angle", k.getHorizontalAngle());
    io.putDouble(e, "Vertical.Angle", k.getVerticalAngle());
    io.putDouble(e, "Anticipation", k.getAnticipation());
    io.putInt(e, "Bezier.Section", k.getBezierSection());
    io.putDouble(e, "Bezier.T", k.getBezierT());
    io.putInt(e, "Bezier.Transition", k.getBezierTransition());
    io.putDouble(e, "Bezier.Transition.T", k.getBezierTransitionT());
    io.putVector(e, "Target", *k.getTarget());
    return e;
}

void ZelGetCamKey(const CZelXMLIO& io, const XIXMLElement* e, CCamKey& k) {
    k.setPitch(io.getDouble(e, "Pitch"));
    k.setFocal(io.getDouble(e, "Focal"));
    k.setKeyType(io.getLabel(e, "Key.Type", kCameraKeyTypeLabels));
    k.setFadingDuration(io.getInt(e, "Fading.Duration"));
    k.setFadingNbImages(io.getInt(e, "Fading.Nb.Images"));
    k.setHorizontalAngle(io.getDouble(e, "Horizontal.Angle"));
    k.setVerticalAngle(io.getDouble(e, "Vertical.Angle"));
    k.setAnticipation(io.getDouble(e, "Anticipation"));
    k.setBezierSection(io.getInt(e, "Bezier.Section"));
    k.setBezierT(io.getDouble(e, "Bezier.T"));
    k.setBezierTransition(io.getInt(e, "Bezier.Transition"));
    k.setBezierTransitionT(io.getDouble(e, "Bezier.Transition.T"));
    k.setTarget(io.getVector(e, "Target"));
}

XIXMLElement* ZelAddCameraPath(const CZelXMLIO& io, XIXMLElement* parent, const CAnimation& p) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Camera.Path");
    io.putEnString(e, "Name", p.getName());
    io.putFlag(e, "View.Flags", p.isViewFlag());
    io.putFlag(e, "Active", p.isActive());
    io.putDouble(e, "Movie.Duration", p.getDuration());
    io.putInt(e, "Nb.Images.Extra", p.getNbXImage());
    io.putFlag(e, "Speed.On", p.isSpeedOn());
    io.putDouble(e, "Speed", p.getSpeed());
    io.putFlag(e, "Path.Closed", p.isPathClosed());
    XIXMLElement* points = CZelXMLIO::add(e, "Points");
    for (unsigned int i = 0; i < p.points().getCount(); ++i) io.putVector(points, "Point", p.points().at(i));
    XIXMLElement* keys = CZelXMLIO::add(e, "Camera.Keys");
    for (unsigned int i = 0; i < p.keys().getCount(); ++i) ZelAddCamKey(io, keys, *p.keys().at(i));
    ZelAddViewInfo(io, e, p.viewInfo());
    io.putDouble(e, "Current.Time", p.getCurrentTime());
    return e;
}

void ZelGetCameraPath(const CZelXMLIO& io, const XIXMLElement* e, CAnimation& p) {
    Kestra::XAssertPointer(e);
    p.setName(io.getEnString(e, "Name").c_str());
    p.setViewFlag(io.getFlag(e, "View.Flags"));
    p.setActive(io.getFlag(e, "Active"));
    p.setDuration(io.getDouble(e, "Movie.Duration"));
    p.setNbXImage(io.getInt(e, "Nb.Images.Extra"));
    p.setSpeedOn(io.getFlag(e, "Speed.On"));
    p.setSpeed(io.getDouble(e, "Speed"));
    p.setPathClosed(io.getFlag(e, "Path.Closed"));
    const XIXMLElement* points = CZelXMLIO::need(e, "Points");
    p.points().clear();
    for (const XIXMLElement* point = CZelXMLIO::find(points, "Point"); point;
         point = point->FindNextElement()) {
        CZelVector v = io.getVectorOf(point);
        CZelVector* entry = p.points().newZelObject(kZelListEnd);
        Kestra::XAssertPointer(entry);
        *entry = v;
    }
    io.getItems(CZelXMLIO::need(e, "Camera.Keys"), "Camera.Key", p.keys(),
                [&](const XIXMLElement* key, CCamKey& k) { ZelGetCamKey(io, key, k); });
    ZelGetViewInfo(io, CZelXMLIO::need(e, "View.Info"), p.viewInfo());
    p.setCurrentTime(io.getDouble(e, "Current.Time"));
}

XIXMLElement* ZelAddAnimation(const CZelXMLIO& io, XIXMLElement* parent, const CZelAnimation& a) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Animation");
    io.putEnString(e, "Name", a.getName());
    XIXMLElement* paths = CZelXMLIO::add(e, "Camera.Paths");
    for (unsigned int i = 0; i < a.paths().getCount(); ++i) ZelAddCameraPath(io, paths, *a.paths().at(i));
    ZelAddViewOpt(io, e, a.viewOpt());
    io.putInt(e, "Current", a.getCurrentPath());
    return e;
}

void ZelGetAnimation(const CZelXMLIO& io, const XIXMLElement* e, CZelAnimation& a) {
    Kestra::XAssertPointer(e);
    a.setName(io.getEnString(e, "Name").c_str());
    io.getItems(CZelXMLIO::need(e, "Camera.Paths"), "Camera.Path", a.paths(),
                [&](const XIXMLElement* path, CAnimation& p) { ZelGetCameraPath(io, path, p); });
    ZelGetViewOpt(io, CZelXMLIO::need(e, "Options"), a.viewOpt());
    a.setCurrentPath(io.getInt(e, "Current"));
}

XIXMLElement* ZelPutAnimations(const CZelXMLIO& io, XIXMLElement* fileNode, CAnimationList& animations,
                               const CAnimRenderingOpt& options) {
    XIXMLElement* outer =
        io.putList(fileNode, "Animations", "Animation", animations,
                   [&](XIXMLElement* o, const CZelAnimation& a) { ZelAddAnimation(io, o, a); });
    ZelAddViewOpt(io, outer, options);
    return outer;
}

bool ZelGetAnimations(const CZelXMLIO& io, const XIXMLElement* fileNode, CAnimationList& animations,
                      CAnimRenderingOpt& options) {
    const XIXMLElement* outer = CZelXMLIO::find(fileNode, "Animations");
    if (!outer) return false;
    io.getItems(outer, "Animation", animations,
                [&](const XIXMLElement* e, CZelAnimation& a) { ZelGetAnimation(io, e, a); });
    if (const XIXMLElement* o = CZelXMLIO::find(outer, "Options")) ZelGetViewOpt(io, o, options);
    return true;
}

} // namespace KeZel
