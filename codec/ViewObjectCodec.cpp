#include "codec/ViewObjectCodec.h"

#include "codec/RenderingCodec.h"
#include "codec/ViewInfoCodec.h"
#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {

// Horizontal or Vertical: the angle, the step, the shift and the start of one direction.
void AddTurn(const CZelXMLIO& io, XIXMLElement* e, const char* key, int angle, int step, int shift,
             double start) {
    XIXMLElement* turn = CZelXMLIO::add(e, key);
    io.putInt(turn, "Angle", angle);
    io.putInt(turn, "Step", step);
    io.putInt(turn, "Shift", shift);
    io.putDouble(turn, "Start", start);
}

} // namespace

XIXMLElement* ZelAddViewObject(const CZelXMLIO& io, XIXMLElement* parent, const CViewObject& v) {
    XIXMLElement* e = CZelXMLIO::add(parent, "View.Object");
    io.putEnString(e, "Name", v.getName());
    io.putInt(e, "View.Flags", v.getViewFlags());
    io.putDouble(e, "Focal", v.getFocal());
    io.putVector(e, "Center", *v.getCenter());
    io.putDouble(e, "Radius", v.getRadius());
    AddTurn(io, e, "Horizontal", v.getHorizontalAngle(), v.getHorizontalStep(), v.getHorizontalShift(),
            v.getHorizontalStart());
    AddTurn(io, e, "Vertical", v.getVerticalAngle(), v.getVerticalStep(), v.getVerticalShift(),
            v.getVerticalStart());
    io.putInt(e, "Origin.Angle", v.getOriginAngle());
    ZelAddViewInfo(io, e, v.viewInfo());
    ZelAddViewOpt(io, e, v.viewOpt());
    return e;
}

void ZelGetViewObject(const CZelXMLIO& io, const XIXMLElement* e, CViewObject& v) {
    Kestra::XAssertPointer(e);
    v.setName(io.getEnString(e, "Name").c_str());
    v.setViewFlags(io.getInt(e, "View.Flags"));
    v.setFocal(io.getDouble(e, "Focal"));
    v.setCenter(io.getVector(e, "Center"));
    v.setRadius(io.getDouble(e, "Radius"));
    const XIXMLElement* h = CZelXMLIO::need(e, "Horizontal");
    v.setHorizontalAngle(io.getInt(h, "Angle"));
    v.setHorizontalStep(io.getInt(h, "Step"));
    v.setHorizontalShift(io.getInt(h, "Shift"));
    v.setHorizontalStart(io.getDouble(h, "Start"));
    const XIXMLElement* vertical = CZelXMLIO::need(e, "Vertical");
    v.setVerticalAngle(io.getInt(vertical, "Angle"));
    v.setVerticalStep(io.getInt(vertical, "Step"));
    v.setVerticalShift(io.getInt(vertical, "Shift"));
    v.setVerticalStart(io.getDouble(vertical, "Start"));
    v.setOriginAngle(io.getInt(e, "Origin.Angle"));
    ZelGetViewInfo(io, CZelXMLIO::need(e, "View.Info"), v.viewInfo());
    ZelGetViewOpt(io, CZelXMLIO::need(e, "Options"), v.viewOpt());
}

XIXMLElement* ZelPutViewObjects(const CZelXMLIO& io, XIXMLElement* fileNode, CViewObjectList& views,
                                const CAnimRenderingOpt& options) {
    XIXMLElement* outer =
        io.putList(fileNode, "View.Objects", "View.Object", views,
                   [&](XIXMLElement* o, const CViewObject& v) { ZelAddViewObject(io, o, v); });
    ZelAddViewOpt(io, outer, options);
    return outer;
}

bool ZelGetViewObjects(const CZelXMLIO& io, const XIXMLElement* fileNode, CViewObjectList& views,
                       CAnimRenderingOpt& options) {
    const XIXMLElement* outer = CZelXMLIO::find(fileNode, "View.Objects");
    if (!outer) return false;
    io.getItems(outer, "View.Object", views,
                [&](const XIXMLElement* e, CViewObject& v) { ZelGetViewObject(io, e, v); });
    if (const XIXMLElement* o = CZelXMLIO::find(outer, "Options")) ZelGetViewOpt(io, o, options);
    return true;
}

} // namespace KeZel
