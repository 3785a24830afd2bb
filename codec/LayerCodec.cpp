#include "codec/LayerCodec.h"

#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {

// The n-th child of that name, which must be there.
const XIXMLElement* NthChild(const XIXMLElement* parent, const char* name, int n) {
    const XIXMLElement* child = CZelXMLIO::need(parent, name);
    for (int i = 0; i < n && child; ++i) child = child->FindNextElement();
    Kestra::XAssertPointer(child);
    return child;
}

} // namespace

XIXMLElement* ZelAddInsertionObject(const CZelXMLIO& io, XIXMLElement* parent, const CZelInsertionObject& o) {
    XIXMLElement* e = CZelXMLIO::add(parent, "InsertionObject");
    XIXMLElement* axes = CZelXMLIO::add(e, "AxesPositions");
    for (unsigned int i = 0; i < CZelInsertionObject::kPositions; ++i)
        io.putVector2D(axes, "Vector2D", o.getAxesPosition(i)->x, o.getAxesPosition(i)->y);
    XIXMLElement* tool = CZelXMLIO::add(e, "PerpectiveToolPositions");
    for (unsigned int i = 0; i < CZelInsertionObject::kPositions; ++i)
        io.putVector2D(tool, "Vector2D", o.getPerpectiveToolPosition(i)->x,
                       o.getPerpectiveToolPosition(i)->y);
    XIXMLElement* repere = CZelXMLIO::add(e, "ReperePositions");
    for (unsigned int i = 0; i < CZelInsertionObject::kPositions; ++i)
        io.putVector(repere, "Vector3D", *o.getReperePosition(i));
    io.putLabel(e, "SizeAxis", kSizeAxisLabels, o.getSizeAxis());
    io.putFlag(e, "AxesVisibility", o.isAxesVisible());
    io.putFlag(e, "ModelVisibility", o.isModelVisible());
    io.putFlag(e, "PerpectiveToolVisibility", o.isPerpectiveToolVisible());
    io.putFlag(e, "YAxeInverted", o.isYAxeInverted());
    return e;
}

void ZelGetInsertionObject(const CZelXMLIO& io, const XIXMLElement* e, CZelInsertionObject& o) {
    Kestra::XAssertPointer(e);
    const XIXMLElement* axes = CZelXMLIO::need(e, "AxesPositions");
    const XIXMLElement* tool = CZelXMLIO::need(e, "PerpectiveToolPositions");
    const XIXMLElement* repere = CZelXMLIO::need(e, "ReperePositions");
    for (unsigned int i = 0; i < CZelInsertionObject::kPositions; ++i) {
        CZelVector2D p;
        io.getVector2DOf(NthChild(axes, "Vector2D", static_cast<int>(i)), p.x, p.y);
        o.setAxesPosition(i, p);
        io.getVector2DOf(NthChild(tool, "Vector2D", static_cast<int>(i)), p.x, p.y);
        o.setPerpectiveToolPosition(i, p);
        o.setReperePosition(i, io.getVectorOf(NthChild(repere, "Vector3D", static_cast<int>(i))));
    }
    o.setSizeAxis(io.getLabel(e, "SizeAxis", kSizeAxisLabels));
    o.setAxesVisible(io.getFlag(e, "AxesVisibility"));
    o.setModelVisible(io.getFlag(e, "ModelVisibility"));
    o.setPerpectiveToolVisible(io.getFlag(e, "PerpectiveToolVisibility"));
    o.setYAxeInverted(io.getFlag(e, "YAxeInverted"));
}

XIXMLElement* ZelAddLayer(const CZelXMLIO& io, XIXMLElement* parent, const CZelLayer& l) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Layer");
    io.putUUID(e, "UUID", *l.getUUID());
    io.putEnString(e, "Name", l.getName());
    io.putInt(e, "UI.Value", l.getUIValue());
    return e;
}

void ZelGetLayer(const CZelXMLIO& io, const XIXMLElement* e, CZelLayer& l) {
    l.setUUID(io.getUUID(e, "UUID"));
    l.setName(io.getEnString(e, "Name").c_str());
    int ui;
    if (io.findInt(e, "UI.Value", ui)) l.setUIValue(ui);
}

namespace {

XIXMLElement* FillLayerInfo(const CZelXMLIO& io, XIXMLElement* e, const CZelLayerInfo& info) {
    io.putUUID(e, "Active.Layer", *info.getActiveLayer());
    XIXMLElement* map = CZelXMLIO::add(e, "Default.Layer.Map");
    for (const char* className : CZelLayerInfo::kFileClasses)
        io.putUUID(map, className, info.defaultLayerOf(className));
    return e;
}

} // namespace

XIXMLElement* ZelAddLayerInfo(const CZelXMLIO& io, XIXMLElement* parent, const CZelLayerInfo& info) {
    return FillLayerInfo(io, CZelXMLIO::add(parent, "Layers.Info"), info);
}

void ZelGetLayerInfo(const CZelXMLIO& io, const XIXMLElement* e, CZelLayerInfo& info) {
    info.setActiveLayer(io.getUUID(e, "Active.Layer"));
    const XIXMLElement* map = CZelXMLIO::need(e, "Default.Layer.Map");
    CZelUUID id;
    for (const char* className : CZelLayerInfo::kFileClasses)
        if (io.findUUID(map, className, id)) info.setDefaultLayer(className, id);
}

XIXMLElement* ZelPutLayers(const CZelXMLIO& io, XIXMLElement* fileNode, CLayerList& layers) {
    return io.putList(fileNode, "Layers", "Layer", layers,
                      [&](XIXMLElement* outer, const CZelLayer& l) { ZelAddLayer(io, outer, l); });
}

bool ZelGetLayers(const CZelXMLIO& io, const XIXMLElement* fileNode, CLayerList& layers) {
    return io.getList(fileNode, "Layers", "Layer", layers,
                      [&](const XIXMLElement* e, CZelLayer& l) { ZelGetLayer(io, e, l); });
}

XIXMLElement* ZelPutLayersInfo(const CZelXMLIO& io, XIXMLElement* fileNode, const CZelLayerInfo& info) {
    return FillLayerInfo(io, CZelXMLIO::replace(fileNode, "Layers.Info"), info);
}

bool ZelGetLayersInfo(const CZelXMLIO& io, const XIXMLElement* fileNode, CZelLayerInfo& info) {
    const XIXMLElement* e = CZelXMLIO::find(fileNode, "Layers.Info");
    if (!e) return false;
    ZelGetLayerInfo(io, e, info);
    return true;
}

bool ZelGetSceneInsertionObject(const CZelXMLIO& io, const XIXMLElement* fileNode,
                                CZelInsertionObject& insertion) {
    const XIXMLElement* e = CZelXMLIO::find(fileNode, "InsertionObject");
    if (!e) return false;
    ZelGetInsertionObject(io, e, insertion);
    return true;
}

} // namespace KeZel
