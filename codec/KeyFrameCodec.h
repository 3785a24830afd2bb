// Element forms of animated elements (Animated.Element), interpolated values
// (Interpolated.Value) and key frames (KeyFrame).
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/animation/KeyFrame.h"

namespace KeZel {

// Element KeyFrame; the value and the control points take the form of the value type.
// Raises "CZelXMLIO::AddKeyFrame : Unknow value type" for a type outside 0 through 7,
// before anything is written.
KestraXML::XIXMLElement* ZelAddKeyFrame(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CZelKeyFrame& key);
void ZelGetKeyFrame(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelKeyFrame& key);

// Element Interpolated.Value, with its Default.Value and its KeyFrames in list order.
KestraXML::XIXMLElement* ZelAddInterpolatedValue(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                                 const CZelInterpolatedValue& value);
void ZelGetInterpolatedValue(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                             CZelInterpolatedValue& value);

// Element Animated.Element. Raises "No label for the value (%d) [%s..%s]" for a type
// without a label, the 0 of a new element among them.
KestraXML::XIXMLElement* ZelAddAnimatedElement(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                               const CZelAnimatedElement& element);
void ZelGetAnimatedElement(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                           CZelAnimatedElement& animated);

} // namespace KeZel
