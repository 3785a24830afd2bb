// The scene's model objects after a read: a file older than 3.0.1 holds one model, which
// becomes the first object definition and gets an instance that shows it.
#pragma once

#include "frame/ZelTypes.h"
#include "model/objects/ObjectDefinition.h"
#include "model/objects/ObjectInstance.h"

namespace KeZel {

// For a file older than 3.0.1 (`version` is the library version that wrote it): makes
// one definition when there is none; then makes a "ModelObject" instance of the first
// definition when there is no instance ("Can't create instance for the model" when it
// can't), or else gives the first instance the first definition's identity where its own
// (its Id, its component's UUID) is null. For any version, when there are definitions the
// geometry blocks leave the file node: the geometry lives in the definitions.
void ZelFixModelInstances(CObjectDefinitionList& definitions, CObjectInstanceList& instances,
                          const CZelVersion& version);

} // namespace KeZel
