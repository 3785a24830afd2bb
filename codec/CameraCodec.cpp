#include "codec/CameraCodec.h"

#include "codec/LayerCodec.h"
#include "codec/RenderingCodec.h"
#include "codec/ViewInfoCodec.h"
#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelAddCamera(const CZelXMLIO& io, XIXMLElement* parent, const CCamera& c) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Perspective.View");
    io.putEnString(e, "Name", c.getName());
    io.putInt(e, "View.Flags", c.getViewFlags());
    io.putVector(e, "Position", *c.getPosition());
    io.putVector(e, "Target", *c.getTarget());
    io.putDouble(e, "Roll", c.getRoll());
    io.putDouble(e, "Focal", c.getFocal());
    io.putUUID(e, "Object.Id", *c.getObjectId());
    io.putLabel(e, "Target.type", kViewTargetTypeLabels, c.getTargetType());
    ZelAddViewInfo(io, e, c.viewInfo());
    ZelAddViewOpt(io, e, c.viewOpt());
    ZelAddInsertionObject(io, CZelXMLIO::need(e, "Options"), c.insertionObject());
    return e;
}

void ZelGetCamera(const CZelXMLIO& io, const XIXMLElement* e, CCamera& c) {
    Kestra::XAssertPointer(e);
    c.setName(io.getEnString(e, "Name").c_str());
    c.setViewFlags(io.getInt(e, "View.Flags"));
    c.setPosition(io.getVector(e, "Position"));
    c.setTarget(io.getVector(e, "Target"));
    c.setRoll(io.getDouble(e, "Roll"));
    c.setFocal(io.getDouble(e, "Focal"));
    c.setTargetType(io.getLabel(e, "Target.type", kViewTargetTypeLabels));
    c.setObjectId(io.getUUID(e, "Object.Id"));
    ZelGetViewInfo(io, CZelXMLIO::need(e, "View.Info"), c.viewInfo());
    const XIXMLElement* options = CZelXMLIO::need(e, "Options");
    ZelGetViewOpt(io, options, c.viewOpt());
    if (const XIXMLElement* insertion = CZelXMLIO::find(options, "InsertionObject"))
        ZelGetInsertionObject(io, insertion, c.insertionObject());
}

XIXMLElement* ZelPutPerspectiveViews(const CZelXMLIO& io, XIXMLElement* fileNode, CCameraList& cameras,
                                     const CAnimRenderingOpt& options) {
    XIXMLElement* outer = io.putList(fileNode, "Perspective.Views", "Perspective.View", cameras,
                                     [&](XIXMLElement* o, const CCamera& c) { ZelAddCamera(io, o, c); });
    ZelAddViewOpt(io, outer, options);
    return outer;
}

bool ZelGetPerspectiveViews(const CZelXMLIO& io, const XIXMLElement* fileNode, CCameraList& cameras,
                            CAnimRenderingOpt& options) {
    const XIXMLElement* outer = CZelXMLIO::find(fileNode, "Perspective.Views");
    if (!outer) return false;
    io.getItems(outer, "Perspective.View", cameras,
                [&](const XIXMLElement* e, CCamera& c) { ZelGetCamera(io, e, c); });
    if (const XIXMLElement* o = CZelXMLIO::find(outer, "Options")) ZelGetViewOpt(io, o, options);
    return true;
}

bool ZelGetOldImage(const CZelXMLIO& io, const XIXMLElement* fileNode, CAnimRenderingOpt& options) {
    const XIXMLElement* image = CZelXMLIO::find(fileNode, "Image");
    if (!image) return false;
    ZelGetViewOpt(io, CZelXMLIO::need(image, "Options"), options);
    return true;
}

} // namespace KeZel
