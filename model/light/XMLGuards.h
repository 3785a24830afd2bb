// The guards of the public putInXML / initWithXML of the light, sky and rendering classes.
// They never let an exception out: a failure is reported through the manager as
// "Exception in <where> : <text>" and answers null or false. An object that knows no
// manager has no feedback to tell and answers null or false at once.
#pragma once

#include "codec/ZelXMLIO.h"

namespace KeZel {

template <class F> KestraXML::XIXMLElement* ZelGuardPut(CZEL* zel, const char* where, F body) {
    if (!zel) return nullptr;
    CZelXMLIO io(zel);
    return io.guardPut(where, [&] { return body(io); });
}

template <class F> bool ZelGuardInit(CZEL* zel, const char* where, F body) {
    if (!zel) return false;
    CZelXMLIO io(zel);
    return io.guardInit(where, [&] { return body(io); });
}

} // namespace KeZel
