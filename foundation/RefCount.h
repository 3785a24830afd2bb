// Interface of everything that is counted. Public header, C++11.
#ifndef ZEL_FOUNDATION_REFCOUNT_H
#define ZEL_FOUNDATION_REFCOUNT_H

#include "foundation/Visibility.h"

namespace Kestra {

class ZEL_API XIRefCount {
public:
    virtual void AddRef() = 0;
    // The release that takes the count from 1 to 0 destroys the object.
    virtual void Release() = 0;
    virtual ~XIRefCount() {}
};

} // namespace Kestra

#endif
