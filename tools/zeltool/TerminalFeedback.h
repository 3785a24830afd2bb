// The feedback of zeltool: keeps the library's reports, draws a progress bar on a
// terminal, and cancels the operation on Ctrl-C.
#pragma once

#include "frame/ZelHost.h"

#include <string>

namespace ZelTool {

class TerminalFeedback : public KeZel::CZelReportCollector {
public:
    TerminalFeedback();
    ~TerminalFeedback();

    bool reportProgress(KeZel::CZelMgr* mgr, int current, int total) override;

    // Erases the bar, if one was drawn.
    void endProgress();
    // Whether Ctrl-C was pressed since the feedback was made.
    static bool interrupted();

private:
    bool mTerminal;
    bool mDrawn;
    int mLastPercent;
};

} // namespace ZelTool
