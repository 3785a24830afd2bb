// Element forms of the view settings (View.Info) and of the small objects they hold:
// Depth.Of.Field, Clipping.Box, Renderer.Info, Filters with its four filters, and the
// lists of identities Lights.Groups, Neon.Shaders and Layers.
//
// ZelAddX makes the element under `parent` and answers it; ZelGetX reads the element
// itself, through the setters.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/views/ViewInfo.h"

namespace KeZel {

// Element View.Info. Raises "No label for the value (%d) [%s..%s]" for a depth of field
// type without a label.
KestraXML::XIXMLElement* ZelAddViewInfo(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CZelViewInfo& info);
// Later keys override earlier ones: the old Backgroung (or Background) first, the
// Background.Picture of today last. The file's UUID is taken only in the codec's
// keep-identities mode.
void ZelGetViewInfo(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelViewInfo& info);

KestraXML::XIXMLElement* ZelAddDepthOfField(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                            const CZelDepthOfField& dof);
void ZelGetDepthOfField(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelDepthOfField& dof);

KestraXML::XIXMLElement* ZelAddClippingBox(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                           const CZelClippingBox& box);
// The axis point is not in files: it follows from Maximum.
void ZelGetClippingBox(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelClippingBox& box);

KestraXML::XIXMLElement* ZelAddRendererInfo(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                            const CZelRendererInfo& info);
void ZelGetRendererInfo(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelRendererInfo& info);

KestraXML::XIXMLElement* ZelAddImageSettingsFilter(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                                   const CZelImageSettingsFilter& filter);
void ZelGetImageSettingsFilter(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                               CZelImageSettingsFilter& filter);
KestraXML::XIXMLElement* ZelAddGrainFilter(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                           const CZelGrainFilter& filter);
void ZelGetGrainFilter(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelGrainFilter& filter);
KestraXML::XIXMLElement* ZelAddExposureFilter(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                              const CZelExposureFilter& filter);
void ZelGetExposureFilter(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                          CZelExposureFilter& filter);
KestraXML::XIXMLElement* ZelAddHatchingFilter(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                              const CZelHatchingFilter& filter);
void ZelGetHatchingFilter(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                          CZelHatchingFilter& filter);
KestraXML::XIXMLElement* ZelAddFilters(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                       const CZelFilters& filters);
// Each filter only when its element is there.
void ZelGetFilters(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelFilters& filters);

// A list of identities is one element named after the list carrying one attribute UUID
// for each entry. Writing replaces parent's elements of that name.
KestraXML::XIXMLElement* ZelAddIdentities(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                          const char* name, const CZelViewInfo::CIdentityList& list);
// Empties the list, then makes one entry from each attribute, from the first one named
// UUID to the element's last. Raises "Invalid hex value" on a bad text.
void ZelGetIdentities(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                      CZelViewInfo::CIdentityList& list);

} // namespace KeZel
