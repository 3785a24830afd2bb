// The scene's geometry as the manager holds it.
#pragma once

namespace KestraXML {
class XIXMLElement;
}

namespace KeZel {

class CZEL;
class CZelGeometry;

CZelGeometry* NewZelGeometry(CZEL* zel);

// Tells the manager's storage, if it has one, which component the points of `points`
// (a Points element) belong to, when that element stands in an
// InternalComponentDefinition: its UUID and its geometry level (0 when not given).
void ZelNoteInternalComponent(CZEL* zel, const KestraXML::XIXMLElement* points);

} // namespace KeZel
