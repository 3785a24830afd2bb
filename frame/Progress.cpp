#include "frame/Progress.h"

#include "foundation/Errors.h"
#include "foundation/Platform.h"

namespace KeZel {

CZelProgress::CZelProgress(CZelFeedback* feedback, CZelMgr* mgr, unsigned int count, int base)
    : mFeedback(feedback), mMgr(mgr), mCount(count), mN(count ? count : 1), mNext(0), mBase(base),
      mLast(Kestra::Platform::ClockMilliseconds()) {}

void CZelProgress::checkpoint(unsigned int i) {
    if (mFeedback) {
        long now = Kestra::Platform::ClockMilliseconds();
        if (now - mLast > kTicks) {
            int current = mBase + static_cast<int>(static_cast<double>(i) * 1000.0 / mN);
            bool goOn = mFeedback->reportProgress(mMgr, current, kTotal);
            mLast = Kestra::Platform::ClockMilliseconds();
            if (!goOn) Kestra::XThrow("Operation cancelled");
        }
    }
    unsigned int next = i + kStep;
    mNext = next > mN ? mN : next;
}

void ZelReportProgress(CZelFeedback* feedback, CZelMgr* mgr, int current, int total) {
    if (!feedback) return;
    if (!feedback->reportProgress(mgr, current, total)) Kestra::XThrow("Operation cancelled");
}

} // namespace KeZel
