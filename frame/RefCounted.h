// Plain reference counter of shared shader nodes and tables.
#pragma once

#include "foundation/Errors.h"

namespace KeZel {

// B is a TZelFrontier whose interface begins with AddRef and Release.
template <class B> class TZelRefCount : public B {
public:
    TZelRefCount() : mRefCount(0) {}
    ~TZelRefCount() override {
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
