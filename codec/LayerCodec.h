// Element forms of the insertion object, layers and the layer settings, and the scene's
// Layers, Layers.Info and the old InsertionObject at the file node's level.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/objects/InsertionObject.h"
#include "model/objects/Layer.h"

namespace KeZel {

// Element InsertionObject. Raises "No label for the value (%d) [%s..%s]" for a size axis
// without a label.
KestraXML::XIXMLElement* ZelAddInsertionObject(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                               const CZelInsertionObject& insertion);
void ZelGetInsertionObject(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                           CZelInsertionObject& insertion);

KestraXML::XIXMLElement* ZelAddLayer(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                     const CZelLayer& layer);
void ZelGetLayer(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelLayer& layer);

// Element Layers.Info: the active layer, and the default layers of the five classes that
// files keep (a class without one is written with the null identity).
KestraXML::XIXMLElement* ZelAddLayerInfo(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                         const CZelLayerInfo& info);
// Each class's default layer only when the file has it.
void ZelGetLayerInfo(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelLayerInfo& info);

// ---- The scene's own, below the file node.
KestraXML::XIXMLElement* ZelPutLayers(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                      CLayerList& layers);
// Without Layers the list stays as it is and the answer is false.
bool ZelGetLayers(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CLayerList& layers);
// Replaces the file node's Layers.Info.
KestraXML::XIXMLElement* ZelPutLayersInfo(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                          const CZelLayerInfo& info);
// False, and the settings untouched, without Layers.Info.
bool ZelGetLayersInfo(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CZelLayerInfo& info);
// The InsertionObject that older files kept at the file node's level, read into the
// scene's; false, and nothing read, when there is none. Never written.
bool ZelGetSceneInsertionObject(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                                CZelInsertionObject& insertion);

} // namespace KeZel
