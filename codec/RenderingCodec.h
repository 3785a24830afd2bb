// Element forms of the rendering options: Rendering and Compression side by side below an
// element Options, and the scene's preview options under Preview.
#pragma once

#include "codec/ZelXMLIO.h"

namespace KeZel {

class CRenderingOpt;
class CCompressionOpt;
class CAnimRenderingOpt;

// Finds or makes Options below `parent`, replaces its Rendering and fills it; answers
// Rendering. Raises "No label for the value (%d) [%s..%s]" for an output type or an
// antialias without a label.
KestraXML::XIXMLElement* ZelAddRendering(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                         const CRenderingOpt& options);
// Reads the element Rendering itself.
void ZelGetRendering(const CZelXMLIO& io, const KestraXML::XIXMLElement* rendering, CRenderingOpt& options);

// As ZelAddRendering, for Compression.
KestraXML::XIXMLElement* ZelAddCompression(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                           const CCompressionOpt& options);
void ZelGetCompression(const CZelXMLIO& io, const KestraXML::XIXMLElement* compression,
                       CCompressionOpt& options);

// Rendering, then Compression, below parent's Options; answers that Options.
KestraXML::XIXMLElement* ZelAddViewOpt(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                       const CAnimRenderingOpt& options);
// Reads from the element Options itself: both are required there. A Scale found directly
// below Options, where files once kept it, wins over the one in Rendering.
void ZelGetViewOpt(const CZelXMLIO& io, const KestraXML::XIXMLElement* optionsElement,
                   CAnimRenderingOpt& options);

// The scene's preview options: every Preview below `fileNode` is replaced by a new one
// holding Options and Rendering.
KestraXML::XIXMLElement* ZelPutPreview(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                       const CRenderingOpt& options);
// Reads Preview when there is one; false, and the options untouched, when there is none.
bool ZelGetPreview(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CRenderingOpt& options);

// True when the file being read is older than 2.0.0 (the manager is converting) and was
// not written by the host application: such files had no switches for raytracing, shadows
// and transparency, which were always on.
bool ZelIsOldForeignFile(const CZelXMLIO& io, const KestraXML::XIXMLElement* node);

} // namespace KeZel
