#include "frame/ObjectLists.h"

#include "frame/CZEL.h"

namespace KeZel {

void ZelListReport(CZEL* zel, const char* text) {
    if (zel) zel->report(text);
}

namespace ZelLists {

void ThrowOutOfRange() {
    throw std::out_of_range("getObject: index out of range");
}

} // namespace ZelLists
} // namespace KeZel
