// Guard word of objects reached through raw pointers: a stale pointer is caught while
// the memory is still readable instead of corrupting it further.
#pragma once

#include "foundation/Errors.h"

namespace Kestra {

class XCMine {
public:
    enum : unsigned { kArmed = 0xC0DEA1FFu, kExploded = 0xCACADEADu };

    XCMine() : mWord(kArmed) {}
    ~XCMine() {
        if (mWord == kExploded)
            XLogError("XCMine::~XCMine - Double deletion detected");
        else if (mWord != kArmed)
            XLogError("XCMine::~XCMine - Invalid deletion detected");
        mWord = kExploded;
    }
    XCMine(const XCMine&) : mWord(kArmed) {}
    XCMine& operator=(const XCMine&) { return *this; }

    void CheckMine() const {
        XAssert(mWord != kExploded, "XCMine::CheckMine - Owner object is destroyed)");
        XAssert(mWord == kArmed, "XCMine::CheckMine - Invalide mine state");
    }

    // Lets tests and diagnostics look at, or damage, the word.
    unsigned Word() const { return mWord; }
    void SetWord(unsigned word) { mWord = word; }

private:
    volatile unsigned mWord;
};

} // namespace Kestra
