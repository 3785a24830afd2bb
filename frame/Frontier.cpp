#include "frame/ZelFrontier.h"

#include "foundation/Platform.h"

namespace KeZel {

void ZelObsoleteLibrary() {
    Kestra::Platform::FatalExit("ZEL Library is obsolete",
                                "Please update ZEL Library and relaunch the application.");
}

} // namespace KeZel
