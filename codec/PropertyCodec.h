// The element form of a material (Property) and of the scene's list of them (Properties).
#pragma once

#include "codec/ShaderCodec.h"
#include "codec/ZelXMLIO.h"
#include "model/geometry/Property.h"

namespace KeZel {

// Adds a Property element under `parent`. A property without a node under its root
// cannot be written: that is an internal error.
KestraXML::XIXMLElement* ZelAddProperty(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CProperty& property);

// Reads a Property element. In full mode (io.mFullMode) the identities of the file are
// taken; otherwise the property keeps its own, and the mapping nodes of the tree get new
// ones, with their parent ids translated through `remap` (a table of this call's own
// when none is given).
void ZelGetProperty(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CProperty& property,
                    CZelIdRemap* remap = nullptr);

// The scene's Properties: a new element under `fileNode` takes the place of the old ones
// (CZelXMLIO::replace) and holds each property in list order.
KestraXML::XIXMLElement* ZelPutProperties(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                          CPropertyList& list);

// When `fileNode` has Properties: empties the list and reads each Property in order, with
// one remap table for the whole list. False, the list untouched, without the element.
bool ZelGetProperties(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CPropertyList& list);

} // namespace KeZel
