// Element forms of billboard entries (Billboard, in the scene's Billboards) and the keys of
// a billboard instance in its Instance.Data.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/objects/Billboard.h"

namespace KeZel {

// Element Billboard: Mgr.Info (property and quads), Texture, Bb.Info. A null parent is a
// failed pointer assertion; a null entry writes nothing and answers null. Raises "No label
// for the value (%d) [%s..%s]" for a behaviour without a label.
KestraXML::XIXMLElement* ZelAddBillboard(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                         const CZelBBMgrData* entry);
void ZelGetBillboard(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelBBMgrData& entry);

// The scene's Billboards. A reader without its element leaves the list as it is and
// answers false.
KestraXML::XIXMLElement* ZelPutBillboards(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                          CBillboardList& billboards);
bool ZelGetBillboards(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                      CBillboardList& billboards);

// A "Billboard" instance's keys in Instance.Data. The reader starts with Render.Type, so
// that data holding no billboard's keys leaves every default, the flags included.
void ZelPutBBInstanceData(const CZelXMLIO& io, KestraXML::XIXMLElement* data, const CZelBBObjectInstance& bb);
void ZelGetBBInstanceData(const CZelXMLIO& io, const KestraXML::XIXMLElement* data, CZelBBObjectInstance& bb);

} // namespace KeZel
