#include "codec/PropertyCodec.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"

#include <exception>

namespace KeZel {

using namespace Kestra;
using KestraXML::XIXMLAttribute;
using KestraXML::XIXMLElement;

XIXMLElement* ZelAddProperty(const CZelXMLIO& io, XIXMLElement* parent, const CProperty& p) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Property");
    io.putEnString(e, "Name", p.getName());
    io.putFlag(e, "Visible", p.isVisible());
    io.putFlag(e, "Cast.Shadow", p.isCastShadow());
    io.putFlag(e, "Receive.Shadow", p.isReceiveShadow());
    io.putFlag(e, "UV.Defined", p.isUVDefined());
    io.putFlag(e, "Billboard", p.isBillboard());
    io.putDouble(e, "Smooth", p.getSmooth());
    io.putDouble(e, "Scale", p.getScale());
    io.putString(e, "URL", p.getURL());
    if (!p.getShaderId()->isNull()) io.putUUID(e, "Shader.Id", *p.getShaderId());
    io.putLanguages(e, "Shader.Name", p.shaderNames().getTexts());
    ZelAddNode(io, e, "Node", p.root().getChild(0));
    io.putUUID(e, "Id", *p.getId());
    io.putUUID(e, "Overload.Prop.Index", *p.getOverloadPropIndex());
    io.putUUID(e, "Overload.Id", *p.getOverloadId());
    io.putInt(e, "UI.Value", p.getUIValue());
    return e;
}

void ZelGetProperty(const CZelXMLIO& io, const XIXMLElement* e, CProperty& p, CZelIdRemap* remap) {
    CZelIdRemap own;
    CZelNodeReading reading = {&p, io.mFullMode, remap ? remap : &own};
    CNodeRef node = ZelGetNode(io, CZelXMLIO::need(e, "Node"), reading);
    if (!node) XThrow("Can't root's child");
    p.root().setChild(0, node.get());

    p.setName(io.getEnString(e, "Name").c_str());
    p.setVisible(io.getFlag(e, "Visible"));
    p.setCastShadow(io.getFlag(e, "Cast.Shadow") || io.getFlag(e, "Shadow"));
    p.setReceiveShadow(io.getFlag(e, "Receive.Shadow"));
    p.setUVDefined(io.getFlag(e, "UV.Defined"));
    p.setBillboard(io.getFlag(e, "Billboard"));
    p.setSmooth(io.getDouble(e, "Smooth"));
    p.setScale(io.getDouble(e, "Scale"));
    p.setURL(io.getString(e, "URL").c_str());
    CZelUUID id;
    if (io.findUUID(e, "Shader.Id", id)) p.setShaderId(id);
    if (CZelXMLIO::find(e, "Shader.Name")) p.shaderNames().setTexts(io.getLanguages(e, "Shader.Name"));

    // Older files lack the identities or the UI value: what was read so far stands.
    try {
        if (io.mFullMode) {
            p.setId(io.getUUID(e, "Id"));
            p.setOverloadPropIndex(io.getUUID(e, "Overload.Prop.Index"));
            p.setOverloadId(io.getUUID(e, "Overload.Id"));
        }
        p.setUIValue(io.getInt(e, "UI.Value"));
    } catch (const std::exception&) {
    }
}

XIXMLElement* ZelPutProperties(const CZelXMLIO& io, XIXMLElement* fileNode, CPropertyList& list) {
    XIXMLElement* outer = CZelXMLIO::replace(fileNode, "Properties");
    for (unsigned int i = 0; i < list.getCount(); ++i) ZelAddProperty(io, outer, *list.at(i));
    return outer;
}

bool ZelGetProperties(const CZelXMLIO& io, const XIXMLElement* fileNode, CPropertyList& list) {
    CZelIdRemap remap;
    return io.getList(fileNode, "Properties", "Property", list,
                      [&](const XIXMLElement* e, CProperty& p) { ZelGetProperty(io, e, p, &remap); });
}

} // namespace KeZel
