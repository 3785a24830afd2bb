// The one interface of every list of children in the scene. Public header, C++11.
#ifndef ZEL_FRAME_ZELOBJECTMGR_H
#define ZEL_FRAME_ZELOBJECTMGR_H

#include "foundation/Visibility.h"

namespace KeZel {

// Index -1 (0xFFFFFFFF) means the end of the list. Bad indices are reported through the
// manager's feedback and answer null or do nothing; nothing here throws.
template <class I> class TZelObjectMgr {
public:
    virtual unsigned int getCount() const = 0;
    virtual I* getZelObject(unsigned int index) const = 0;
    // The only way to make an item: the list knows the concrete class.
    virtual I* newZelObject(unsigned int index) = 0;
    virtual void removeObject(unsigned int index) = 0;
    // Takes the item out at `from` and puts it in at `to`, counted after removal.
    virtual void moveObject(int from, int to) = 0;
    virtual ~TZelObjectMgr() {}
};

} // namespace KeZel

#endif
