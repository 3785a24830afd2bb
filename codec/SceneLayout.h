// The skeleton of a scene document: the elements under "Zel.File", the order in which
// they are written and the order (and conditions) in which they are read.
#pragma once

#include "xml/XMLInterfaces.h"

namespace KeZel {

class CZelXMLIO;

// Brings the elements of the file node up to date, in the writing order.
void ZelWriteScene(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode);
// Reads the scene from the file node, in the reading order.
void ZelReadScene(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode);

} // namespace KeZel
