// Guard at the end of every public interface. Public header, C++11.
//
// A host calls the library by slot number. TZelFrontier<I> adds three slots behind the
// last one of I, so that a host built against a later header, calling a slot that this
// library lacks, is stopped with a clear message instead of running past the table.
// Every implementation class derives from TZelFrontier<I>, never from I directly, so its
// own later virtual operations come behind the three and never move them.
#ifndef ZEL_FRAME_ZELFRONTIER_H
#define ZEL_FRAME_ZELFRONTIER_H

#include "foundation/Visibility.h"

namespace KeZel {

// Tells the user that the library is older than the application ("ZEL Library is
// obsolete", then "Please update ZEL Library and relaunch the application.") and ends
// the process with exit code 0. Never returns.
[[noreturn]] ZEL_API void ZelObsoleteLibrary();

template <class I> class TZelFrontier : public I {
private:
    // Reached only by a client calling past the end of I; nobody calls them by name.
    virtual void zelReservedSlot1() { ZelObsoleteLibrary(); }
    virtual void zelReservedSlot2() { ZelObsoleteLibrary(); }
    virtual void zelReservedSlot3() { ZelObsoleteLibrary(); }
};

} // namespace KeZel

#endif
