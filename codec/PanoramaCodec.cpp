#include "codec/PanoramaCodec.h"

#include "codec/RenderingCodec.h"
#include "codec/ViewInfoCodec.h"
#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {

void AddLinkEnd(const CZelXMLIO& io, XIXMLElement* parent, const char* key, const CVRPanoLinkConfig& c) {
    XIXMLElement* e = CZelXMLIO::add(parent, key);
    io.putInt(e, "Index", c.getIndex());
    io.putVector(e, "Direction", *c.getDirection());
    io.putDouble(e, "Zoom", c.getZoom());
    io.putDouble(e, "Vertical.Pan", c.getVerticalPan());
    io.putDouble(e, "Focal", c.getFocal());
    XIXMLElement* hotspots = CZelXMLIO::add(e, "Hotspots");
    for (int i = 0; i < CVRPanoLinkConfig::kHotspots; ++i)
        io.putVector2D(hotspots, "Hotspot", c.getHotspot(i)->x, c.getHotspot(i)->y);
}

void GetLinkEnd(const CZelXMLIO& io, const XIXMLElement* e, CVRPanoLinkConfig& c) {
    c.setIndex(io.getInt(e, "Index"));
    c.setDirection(io.getVector(e, "Direction"));
    c.setZoom(io.getDouble(e, "Zoom"));
    c.setVerticalPan(io.getDouble(e, "Vertical.Pan"));
    c.setFocal(io.getDouble(e, "Focal"));
    const XIXMLElement* hotspot = CZelXMLIO::need(CZelXMLIO::need(e, "Hotspots"), "Hotspot");
    for (int i = 0; i < CVRPanoLinkConfig::kHotspots; ++i, hotspot = hotspot->FindNextElement()) {
        CZelVector2D p;
        io.getVector2DOf(hotspot, p.x, p.y);
        c.setHotspot(i, p);
    }
}

} // namespace

XIXMLElement* ZelAddPanoNode(const CZelXMLIO& io, XIXMLElement* parent, const CVRPanorama& n) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Panorama.Node");
    io.putEnString(e, "Name", n.getName());
    io.putInt(e, "View.Flags", n.getViewFlags());
    io.putVector(e, "Position", n.position());
    io.putVector(e, "Direction", n.direction());
    io.putDouble(e, "Focal", n.getFocal());
    io.putDouble(e, "Zoom", n.getZoom());
    io.putDouble(e, "Vertical.Pan", n.getVerticalPan());
    io.putInt(e, "Nb.Links", n.getNbLinks());
    io.putUUID(e, "UUID", *n.getUUID());
    io.putInt(e, "UI.Value", n.getUIValue());
    ZelAddViewInfo(io, e, n.viewInfo());
    return e;
}

void ZelGetPanoNode(const CZelXMLIO& io, const XIXMLElement* e, CVRPanorama& n) {
    Kestra::XAssertPointer(e);
    n.setName(io.getEnString(e, "Name").c_str());
    n.setViewFlags(io.getInt(e, "View.Flags"));
    n.setPosition(io.getVector(e, "Position"));
    n.setDirection(io.getVector(e, "Direction"));
    n.setFocal(io.getDouble(e, "Focal"));
    n.setZoom(io.getDouble(e, "Zoom"));
    n.setVerticalPan(io.getDouble(e, "Vertical.Pan"));
    n.setNbLinks(io.getInt(e, "Nb.Links"));
    n.setUUID(io.getUUID(e, "UUID"));
    int ui;
    if (io.findInt(e, "UI.Value", ui)) n.setUIValue(ui);
    ZelGetViewInfo(io, CZelXMLIO::need(e, "View.Info"), n.viewInfo());
}

XIXMLElement* ZelAddPanoLink(const CZelXMLIO& io, XIXMLElement* parent, const CVRPanoLink& l) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Pano.Link");
    AddLinkEnd(io, e, "Pano1", l.first());
    AddLinkEnd(io, e, "Pano2", l.second());
    io.putUUID(e, "UUID", *l.getUUID());
    return e;
}

void ZelGetPanoLink(const CZelXMLIO& io, const XIXMLElement* e, CVRPanoLink& l) {
    Kestra::XAssertPointer(e);
    GetLinkEnd(io, CZelXMLIO::need(e, "Pano1"), l.first());
    GetLinkEnd(io, CZelXMLIO::need(e, "Pano2"), l.second());
    l.setUUID(io.getUUID(e, "UUID"));
}

XIXMLElement* ZelAddPanorama(const CZelXMLIO& io, XIXMLElement* parent, const CZelPanorama& p) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Panorama");
    io.putEnString(e, "Name", p.getName());
    XIXMLElement* nodes = CZelXMLIO::add(e, "Panorama.Nodes");
    for (unsigned int i = 0; i < p.nodes().getCount(); ++i) ZelAddPanoNode(io, nodes, *p.nodes().at(i));
    XIXMLElement* links = CZelXMLIO::add(e, "Pano.Links");
    for (unsigned int i = 0; i < p.links().getCount(); ++i) ZelAddPanoLink(io, links, *p.links().at(i));
    ZelAddViewOpt(io, e, p.viewOpt().viewOpt());
    io.putInt(e, "Current", p.getCurrentNode());
    io.putVector(e, "Current.Direction", *p.getCurrentDirection());
    io.putDouble(e, "Current.Focal", p.getCurrentFocal());
    io.putUUID(e, "UUID", *p.getUUID());
    return e;
}

void ZelGetPanorama(const CZelXMLIO& io, const XIXMLElement* e, CZelPanorama& p) {
    Kestra::XAssertPointer(e);
    p.setName(io.getEnString(e, "Name").c_str());
    io.getList(e, "Panorama.Nodes", "Panorama.Node", p.nodes(),
               [&](const XIXMLElement* n, CVRPanorama& node) { ZelGetPanoNode(io, n, node); });
    io.getList(e, "Pano.Links", "Pano.Link", p.links(),
               [&](const XIXMLElement* l, CVRPanoLink& link) { ZelGetPanoLink(io, l, link); });
    ZelGetViewOpt(io, CZelXMLIO::need(e, "Options"), p.viewOpt().viewOpt());
    p.setCurrentNode(io.getInt(e, "Current"));
    CZelUUID id;
    if (io.findUUID(e, "UUID", id)) p.setUUID(id);
    CZelVector direction;
    if (io.findVector(e, "Current.Direction", direction)) p.setCurrentDirection(direction);
    double focal;
    if (io.findDouble(e, "Current.Focal", focal)) p.setCurrentFocal(focal);
}

XIXMLElement* ZelPutPanoramas(const CZelXMLIO& io, XIXMLElement* fileNode, CPanoramaList& panoramas,
                              const CAnimRenderingOpt& options) {
    XIXMLElement* outer =
        io.putList(fileNode, "Panoramas", "Panorama", panoramas,
                   [&](XIXMLElement* o, const CZelPanorama& p) { ZelAddPanorama(io, o, p); });
    ZelAddViewOpt(io, outer, options);
    return outer;
}

bool ZelGetPanoramas(const CZelXMLIO& io, const XIXMLElement* fileNode, CPanoramaList& panoramas,
                     CAnimRenderingOpt& options) {
    const XIXMLElement* outer = CZelXMLIO::find(fileNode, "Panoramas");
    if (!outer) return false;
    io.getItems(outer, "Panorama", panoramas,
                [&](const XIXMLElement* e, CZelPanorama& p) { ZelGetPanorama(io, e, p); });
    if (const XIXMLElement* o = CZelXMLIO::find(outer, "Options")) ZelGetViewOpt(io, o, options);
    return true;
}

} // namespace KeZel
