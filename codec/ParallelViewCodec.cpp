#include "codec/ParallelViewCodec.h"

#include "codec/RenderingCodec.h"
#include "codec/ViewInfoCodec.h"
#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelAddParallelView(const CZelXMLIO& io, XIXMLElement* parent, const CZelParallelView& v) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Parallel.View");
    io.putEnString(e, "Name", v.getName());
    io.putLabel(e, "PV.Type", kParallelViewTypeLabels, v.getType());
    io.putInt(e, "View.Flags", v.getViewFlags());
    io.putDouble(e, "North.Angle", v.getNorthAngle());
    io.putDouble(e, "Size", v.getSize());
    io.putVector(e, "Position", *v.getPosition());
    io.putVector(e, "Target", *v.getTarget());
    ZelAddViewInfo(io, e, v.viewInfo());
    XIXMLElement* options = ZelAddViewOpt(io, e, v.viewOpt().viewOpt());
    io.putFlag(options, "Special.Shading", v.isSpecialShading());
    return e;
}

void ZelGetParallelView(const CZelXMLIO& io, const XIXMLElement* e, CZelParallelView& v) {
    Kestra::XAssertPointer(e);
    v.setName(io.getEnString(e, "Name").c_str());
    v.setType(io.getLabel(e, "PV.Type", kParallelViewTypeLabels));
    v.setViewFlags(io.getInt(e, "View.Flags"));
    v.setNorthAngle(io.getDouble(e, "North.Angle"));
    v.setSize(io.getDouble(e, "Size"));
    v.setPosition(io.getVector(e, "Position"));
    v.setTarget(io.getVector(e, "Target"));
    ZelGetViewInfo(io, CZelXMLIO::need(e, "View.Info"), v.viewInfo());
    const XIXMLElement* options = CZelXMLIO::need(e, "Options");
    ZelGetViewOpt(io, options, v.viewOpt().viewOpt());
    v.setSpecialShading(io.getFlag(options, "Special.Shading"));
}

XIXMLElement* ZelPutParallelViews(const CZelXMLIO& io, XIXMLElement* fileNode, CParallelViewList& views,
                                  const CAnimRenderingOpt& options) {
    XIXMLElement* outer =
        io.putList(fileNode, "Parallel.Views", "Parallel.View", views,
                   [&](XIXMLElement* o, const CZelParallelView& v) { ZelAddParallelView(io, o, v); });
    ZelAddViewOpt(io, outer, options);
    return outer;
}

bool ZelGetParallelViews(const CZelXMLIO& io, const XIXMLElement* fileNode, CParallelViewList& views,
                         CAnimRenderingOpt& options) {
    const XIXMLElement* outer = CZelXMLIO::find(fileNode, "Parallel.Views");
    if (!outer) return false;
    io.getItems(outer, "Parallel.View", views,
                [&](const XIXMLElement* e, CZelParallelView& v) { ZelGetParallelView(io, e, v); });
    if (const XIXMLElement* o = CZelXMLIO::find(outer, "Options")) ZelGetViewOpt(io, o, options);
    return true;
}

XIXMLElement* ZelPutWorkingWindows(const CZelXMLIO& io, XIXMLElement* fileNode, CParallelViewList& windows) {
    // In the place of the old one, so that writing twice gives the same bytes.
    XIXMLElement* window = CZelXMLIO::replace(fileNode, "Working.Window");
    io.putList(window, "Parallel.Views", "Parallel.View", windows,
               [&](XIXMLElement* o, const CZelParallelView& v) { ZelAddParallelView(io, o, v); });
    return window;
}

void ZelGetWorkingWindows(const CZelXMLIO& io, const XIXMLElement* fileNode, CParallelViewList& windows) {
    const XIXMLElement* window = CZelXMLIO::need(fileNode, "Working.Window");
    io.getList(window, "Parallel.Views", "Parallel.View", windows,
               [&](const XIXMLElement* e, CZelParallelView& v) { ZelGetParallelView(io, e, v); });
}

} // namespace KeZel
