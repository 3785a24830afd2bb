// Plain reference counter of shared shader nodes and tables.
#pragma once

#include "foundation/Errors.h"

namespace KeZel {

// B is a TZelFrontier whose interface begins with AddRef and Release. The count is not
// atomic: a scene is used from one thread. A new object holds no reference until the
// first AddRef.
template <class B> class TZelRefCount : public B {
public:
    TZelRefCount() : mRefCount(0) {}
    // Declared here rather than overridden: the counted interfaces keep their destructor
    // protected and non-virtual, so this one takes the slot behind the frontier's three.
    virtual ~TZelRefCount() {
        if (mRefCount != 0) Kestra::XLogError("Object deleted with a non zero ref count");
    }
    void AddRef() override { ++mRefCount; }
    void Release() override {
        if (--mRefCount == 0) delete this;
    }
    int getRefCount() const { return mRefCount; }

protected:
    int mRefCount;
};

} // namespace KeZel
