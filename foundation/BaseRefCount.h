// The atomic counter behind XIRefCount implementations.
#pragma once

#include "foundation/Errors.h"
#include "foundation/RefCount.h"

#include <atomic>

namespace Kestra {

class XCBaseRefCount {
public:
    XCBaseRefCount() : mRefCount(0) {}
    virtual ~XCBaseRefCount() {
        if (mRefCount.load() != 0)
            XLogError("XCBaseRefCount::~XCBaseRefCount - Deleting object before mRefCount reach 0");
    }
    int RefCount() const { return mRefCount.load(); }

protected:
    void IncRef() { mRefCount.fetch_add(1); }
    // True for the caller whose decrement took the count from 1 to 0.
    bool DecRef() { return mRefCount.fetch_sub(1) == 1; }

private:
    std::atomic<int> mRefCount;
};

// Joins an interface derived from XIRefCount to the atomic counter.
template <class I> class XTCRefCount : public I, public XCBaseRefCount {
public:
    void AddRef() override { IncRef(); }
    void Release() override {
        if (DecRef()) delete this;
    }
};

} // namespace Kestra
