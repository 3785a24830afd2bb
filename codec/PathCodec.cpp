#include "codec/PathCodec.h"

#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelAddBezierPoint(const CZelXMLIO& io, XIXMLElement* parent, const CBezierPoint& p) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Bezier.Point");
    io.putVector(e, "Position", *p.getPosition());
    io.putVector(e, "CPBefore", *p.getCPBefore());
    io.putVector(e, "CPAfter", *p.getCPAfter());
    io.putFlag(e, "AreLocked", p.areLocked());
    return e;
}

void ZelGetBezierPoint(const CZelXMLIO& io, const XIXMLElement* e, CBezierPoint& p) {
    p.setPosition(io.getVector(e, "Position"));
    p.setCPBefore(io.getVector(e, "CPBefore"));
    p.setCPAfter(io.getVector(e, "CPAfter"));
    p.setLocked(io.getFlag(e, "AreLocked"));
}

XIXMLElement* ZelAdd3DPath(const CZelXMLIO& io, XIXMLElement* parent, const C3DPath& path) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Path.3D");
    io.putFlag(e, "Closed", path.isClosed());
    io.putUUID(e, "UUID", *path.getUUID());
    // The list's key is spelt so, its entries Bezier.Point.
    io.putList(e, "Bezier.points", "Bezier.Point", path.points(),
               [&](XIXMLElement* outer, const CBezierPoint& p) { ZelAddBezierPoint(io, outer, p); });
    return e;
}

void ZelGet3DPath(const CZelXMLIO& io, const XIXMLElement* e, C3DPath& path) {
    path.setClosed(io.getFlag(e, "Closed"));
    path.setUUID(io.getUUID(e, "UUID"));
    io.getList(e, "Bezier.points", "Bezier.Point", path.points(),
               [&](const XIXMLElement* x, CBezierPoint& p) { ZelGetBezierPoint(io, x, p); });
}

XIXMLElement* ZelPut3DPaths(const CZelXMLIO& io, XIXMLElement* fileNode, C3DPathList& paths) {
    return io.putList(fileNode, "3D.Paths", "Path.3D", paths,
                      [&](XIXMLElement* outer, const C3DPath& p) { ZelAdd3DPath(io, outer, p); });
}

bool ZelGet3DPaths(const CZelXMLIO& io, const XIXMLElement* fileNode, C3DPathList& paths) {
    return io.getList(fileNode, "3D.Paths", "Path.3D", paths,
                      [&](const XIXMLElement* e, C3DPath& p) { ZelGet3DPath(io, e, p); });
}

} // namespace KeZel
