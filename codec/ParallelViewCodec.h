// Element forms of parallel views (Parallel.View) and the scene's Parallel.Views and
// Working.Window.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/views/ParallelView.h"

namespace KeZel {

// Element Parallel.View. Raises "No label for the value (%d) [%s..%s]" for a type without
// a label.
KestraXML::XIXMLElement* ZelAddParallelView(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                            const CZelParallelView& view);
void ZelGetParallelView(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelParallelView& view);

// ---- The scene's own, below the file node.
// Parallel.Views: the views in list order, then the family's options in its Options.
KestraXML::XIXMLElement* ZelPutParallelViews(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                             CParallelViewList& views, const CAnimRenderingOpt& options);
// The views, then the family's options when the element has them. Without
// Parallel.Views both stay as they are and the answer is false.
bool ZelGetParallelViews(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                         CParallelViewList& views, CAnimRenderingOpt& options);
// A new Working.Window in place of the old ones, holding the working windows as
// Parallel.Views (without options).
KestraXML::XIXMLElement* ZelPutWorkingWindows(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                              CParallelViewList& windows);
// Working.Window is required (the document layout reads it only in files of the full
// form); without a Parallel.Views inside the list stays as it is.
void ZelGetWorkingWindows(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                          CParallelViewList& windows);

} // namespace KeZel
