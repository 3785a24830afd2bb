// The manager's side of the geometry: its two tables and their data blocks.
#include "frame/SceneGeometry.h"

#include "codec/ZelXMLIO.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/Providers.h"
#include "legacy/DBFastReader.h"
#include "model/geometry/Geometry.h"

#include <cstring>

namespace KeZel {

using KestraXML::XIXMLElement;

CZelGeometry* NewZelGeometry(CZEL* zel) {
    return new CZelGeometry(zel);
}

void CZelGeometryDeleter::operator()(CZelGeometry* geometry) const {
    delete geometry;
}

void ZelNoteInternalComponent(CZEL* zel, const XIXMLElement* points) {
    CZelExtStorage* storage = zel->getExtStorage();
    const XIXMLElement* component = points ? points->AsNode()->GetParent() : nullptr;
    const char* name = component ? *component->GetKey() : nullptr; // the document has none
    if (!storage || !name || std::strcmp(name, "InternalComponentDefinition") != 0) return;
    CZelXMLIO io(zel);
    CZelUUID uuid = CZelUUID();
    io.findUUID(component, "UUID", uuid);
    int level = 0;
    io.findInt(component, "Geometry.Level", level);
    storage->noteInternalComponent(&uuid, level);
}

TZelObjectMgr<CZelPolygon>* CZEL::getPolygons() {
    return &mGeometry->polygons();
}

TZelObjectMgr<CZelVector>* CZEL::getPoints() {
    return &mGeometry->points();
}

void CZEL::attachGeometryBlock(XIXMLElement* element, bool points) {
    if (points)
        ZelAttachProvider(element, new CPointsProvider(this));
    else
        ZelAttachProvider(element, new CPolygonsProvider(this));
}

void CZEL::readGeometryBlock(XIXMLElement* element, KestraXML::CXMLReadStream* stream, bool points) {
    CDBFastReader reader(stream, this);
    if (points) ZelNoteInternalComponent(this, element);
    // The provider goes on before the block is decoded, so that a block that fails half
    // way is still written from what the scene (or the storage) holds.
    attachGeometryBlock(element, points);
    if (points)
        reader.readPoints();
    else
        reader.readPolygons();
}

} // namespace KeZel
