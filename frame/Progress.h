// Pacing of progress reports over a long list: the clock is looked at once in a hundred
// items, and the feedback is called at most every 100 ms of processor time, so that a
// million items cost a few thousand compares and a handful of callbacks.
#pragma once

#include "frame/ZelStream.h"

namespace KeZel {

class CZelProgress {
public:
    enum { kTotal = 2000, kStep = 100, kTicks = 100 };

    // `count` items reported on the scale `base` .. `base` + 1000 of kTotal.
    CZelProgress(CZelFeedback* feedback, CZelMgr* mgr, unsigned int count, int base);

    // Call at item `i`; throws "Operation cancelled" when the host says so.
    void check(unsigned int i) {
        if (i >= mNext) checkpoint(i);
    }
    // Call after the last item.
    void finish() {
        if (mNext <= mCount) checkpoint(mCount);
    }

private:
    void checkpoint(unsigned int i);

    CZelFeedback* mFeedback;
    CZelMgr* mMgr;
    unsigned int mCount;
    unsigned int mN; // the count, at least 1
    unsigned int mNext;
    int mBase;
    long mLast;
};

// The plain form: one report, throwing "Operation cancelled" on a false answer.
void ZelReportProgress(CZelFeedback* feedback, CZelMgr* mgr, int current, int total);

} // namespace KeZel
