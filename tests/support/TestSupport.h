// Shared helpers of the test programs.
#pragma once

#include "foundation/Errors.h"
#include "frame/ZelHost.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ZelTest {

// Runs `f` and answers the text of the std::exception it raised, or "<no exception>".
template <class F> std::string ErrorOf(F f) {
    try {
        f();
    } catch (const std::exception& e) {
        return e.what();
    } catch (...) {
        return "<non-standard exception>";
    }
    return "<no exception>";
}

// A log sink that keeps the lines it is given, installed for the life of the object.
class LogCapture : public Kestra::XILogSink {
public:
    struct Line {
        unsigned level;
        std::string text;
    };
    LogCapture() : mScope(this, false) {}
    void Log(unsigned level, const char* text) override { mLines.push_back({level, text}); }
    const std::vector<Line>& lines() const { return mLines; }
    bool has(unsigned level, const std::string& text) const {
        for (const Line& l : mLines)
            if (l.level == level && l.text == text) return true;
        return false;
    }

private:
    std::vector<Line> mLines;
    Kestra::XCLogScope mScope;
};

// Reads a file of the test data folder.
std::string ReadDataFile(const std::string& name);

} // namespace ZelTest
