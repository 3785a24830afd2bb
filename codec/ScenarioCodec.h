// Element forms of scenarios (Scenario, in the scene's Scenarios) and of what a scenario
// holds: sequences (Sequence), sounds (Snd) and time guides (Time.Guide).
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/animation/Scenario.h"

namespace KeZel {

// Element Sequence. Raises "No label for the value (%d) [%s..%s]" for a target type
// without a label (1).
KestraXML::XIXMLElement* ZelAddSequence(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CZelSequence& sequence);
void ZelGetSequence(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelSequence& sequence);

KestraXML::XIXMLElement* ZelAddSnd(const CZelXMLIO& io, KestraXML::XIXMLElement* parent, const CZelSnd& snd);
void ZelGetSnd(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelSnd& snd);

KestraXML::XIXMLElement* ZelAddTimeGuide(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                         const CZelScenarioTimeGuide& guide);
void ZelGetTimeGuide(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                     CZelScenarioTimeGuide& guide);

// Element Scenario with its four lists. Reading empties every list, those without an
// element included.
KestraXML::XIXMLElement* ZelAddScenario(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                        const CZelScenario& scenario);
void ZelGetScenario(const CZelXMLIO& io, const KestraXML::XIXMLElement* element, CZelScenario& scenario);

// The scene's Scenarios. A reader without its element leaves the list as it is and
// answers false.
KestraXML::XIXMLElement* ZelPutScenarios(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                         CScenarioList& scenarios);
bool ZelGetScenarios(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode, CScenarioList& scenarios);

} // namespace KeZel
