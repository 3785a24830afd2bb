// Element forms of backgrounds, background pictures, foregrounds, environments and grounds,
// and the scene's Background, Environments and Grounds.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/light/Background.h"

namespace KeZel {

// parent's Backgroung, the name of old files, or else its Background; null without either.
KestraXML::XIXMLElement* ZelFindBackground(const KestraXML::XIXMLElement* parent);

// Removes parent's Backgroung and Background, then adds a new Background.
KestraXML::XIXMLElement* ZelAddBackground(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                          const CBackground& background);
// Reads the element itself; raises "Invalid label (%s) [%s..%s]" on an unknown kind and
// fails on a null element.
void ZelGetBackground(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CBackground& background);
// The shorter form that older view settings kept: the two kinds, the colours and the URL.
void ZelGetBackgroundShort(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                           CBackground& background);

KestraXML::XIXMLElement* ZelAddBackgroundPicture(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                                 const CZelBackgroundPicture& picture);
void ZelGetBackgroundPicture(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                             CZelBackgroundPicture& picture);

// Element Foregroung, so spelt in every file.
KestraXML::XIXMLElement* ZelAddForeground(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                          const CZelForeground& foreground);
void ZelGetForeground(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                      CZelForeground& foreground);

KestraXML::XIXMLElement* ZelAddEnvironment(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                           const CZelEnvironment& environment);
void ZelGetEnvironment(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                       CZelEnvironment& environment);

// Element Ground, with its material as Property. Reading raises
// "CZelXMLIO::GetGround : no property!" when the material is missing.
KestraXML::XIXMLElement* ZelAddGround(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                      const CZelGround& ground);
void ZelGetGround(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelGround& ground);

// ---- The scene's own, below the file node.
KestraXML::XIXMLElement* ZelPutBackground(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                          const CBackground& background);
// Raises when the file has neither Backgroung nor Background.
void ZelGetSceneBackground(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                           CBackground& background);
// Environments reach a file only through a host that writes them: the document layout
// does not call these two.
KestraXML::XIXMLElement* ZelPutEnvironments(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                            CEnvironmentList& environments);
bool ZelGetEnvironments(const CZelXMLIO& io, const KestraXML::XIXMLElement* parent,
                        CEnvironmentList& environments);

KestraXML::XIXMLElement* ZelPutGrounds(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                       CGroundList& grounds);
// Without Grounds the list stays as it is and the answer is false.
bool ZelGetGrounds(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CGroundList& grounds);

} // namespace KeZel
