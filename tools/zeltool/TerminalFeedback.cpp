#include "TerminalFeedback.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace ZelTool {

namespace {

volatile std::sig_atomic_t gInterrupted = 0;

extern "C" void OnInterrupt(int) {
    gInterrupted = 1;
}

} // namespace

TerminalFeedback::TerminalFeedback() : mTerminal(::isatty(2) == 1), mDrawn(false), mLastPercent(-1) {
    gInterrupted = 0;
    std::signal(SIGINT, OnInterrupt);
}

TerminalFeedback::~TerminalFeedback() {
    endProgress();
    std::signal(SIGINT, SIG_DFL);
}

bool TerminalFeedback::reportProgress(KeZel::CZelMgr* mgr, int current, int total) {
    KeZel::CZelReportCollector::reportProgress(mgr, current, total);
    if (mTerminal && total > 0) {
        int percent = static_cast<int>(100.0 * current / total);
        if (percent != mLastPercent) {
            const int width = 40;
            int filled = percent * width / 100;
            std::fprintf(stderr, "\r[%.*s%*s] %3d%%", filled, "########################################",
                         width - filled, "", percent);
            std::fflush(stderr);
            mDrawn = true;
            mLastPercent = percent;
        }
    }
    // A false answer makes the library stop with "Operation cancelled".
    return !gInterrupted;
}

void TerminalFeedback::endProgress() {
    if (!mDrawn) return;
    std::fprintf(stderr, "\r%*s\r", 48, "");
    std::fflush(stderr);
    mDrawn = false;
    mLastPercent = -1;
}

bool TerminalFeedback::interrupted() {
    return gInterrupted != 0;
}

} // namespace ZelTool
