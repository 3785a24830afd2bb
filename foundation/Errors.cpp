#include "foundation/Errors.h"
#include "foundation/Platform.h"

#include <cstdio>
#include <stdexcept>
#include <string>

namespace Kestra {

namespace {

const char* OrWord(const char* text) {
    return text ? text : "exception";
}

// Expands a printf form into a fixed buffer; overlong text is cut, not refused.
template <size_t N> void Expand(char (&buffer)[N], const char* format, va_list args) {
    buffer[0] = 0;
    if (format) std::vsnprintf(buffer, N, format, args);
}

bool gMemoryMode = false;
bool gTraceMode = false;
bool gBenchMode = false;
XILogSink* gDefaultSink = nullptr;
thread_local void* tThreadSink = nullptr;

void Dispatch(unsigned level, const char* text) {
    XILogSink* sink = static_cast<XILogSink*>(ThreadDataGet());
    if (!sink) sink = gDefaultSink;
    if (!sink) return;
    sink->Log(level, text);
}

void DispatchV(unsigned level, const char* format, va_list args) {
    char buffer[2048];
    Expand(buffer, format, args);
    Dispatch(level, buffer);
}

} // namespace

void XThrow(const char* text) {
    throw std::runtime_error(OrWord(text));
}

void XThrowFormat(const char* format, ...) {
    char buffer[2048];
    va_list args;
    va_start(args, format);
    Expand(buffer, format, args);
    va_end(args);
    throw std::runtime_error(buffer);
}

void XThrowAssert(const char* text) {
    char buffer[1024];
    std::snprintf(buffer, sizeof buffer, "%s (assertion failed)", OrWord(text));
    throw std::runtime_error(buffer);
}

void XThrowNull(const char* text) {
    char buffer[1024];
    std::snprintf(buffer, sizeof buffer, "%s (pointer is NULL)", OrWord(text));
    throw std::runtime_error(buffer);
}

void XThrowCode(int code, const char* text) {
    char buffer[1024];
    std::snprintf(buffer, sizeof buffer, "%s (error #%d)", OrWord(text), code);
    throw std::runtime_error(buffer);
}

void XThrowSystem() {
    int code = Platform::LastError();
    std::string text = Platform::ErrorText(code);
    char detail[1024];
    if (text.empty())
        std::snprintf(detail, sizeof detail, "error #%d", code);
    else
        std::snprintf(detail, sizeof detail, "%s", text.c_str());
    throw std::runtime_error(std::string("exception (") + detail + ")");
}

void XThrowFailedAssertion(const char* expression, const char* file, unsigned line) {
    (void)expression;
    (void)line;
    // The dollar signs are literal: only the %s is live, and it takes the file.
    char buffer[1024];
    std::snprintf(buffer, sizeof buffer, "$s:$u: failed assertion '%s'", file ? file : "");
    throw std::runtime_error(buffer);
}

void XAssertFailed(const char* format, ...) {
    if (!format) XThrowAssert(nullptr);
    char buffer[1024];
    va_list args;
    va_start(args, format);
    Expand(buffer, format, args);
    va_end(args);
    XThrowAssert(buffer);
}

void XAssertPointerFailed(const char* format, ...) {
    if (!format) XThrowNull(nullptr);
    char buffer[1024];
    va_list args;
    va_start(args, format);
    Expand(buffer, format, args);
    va_end(args);
    XThrowNull(buffer);
}

void XLogError(const char* format, ...) {
    va_list args;
    va_start(args, format);
    DispatchV(kLogError, format, args);
    va_end(args);
}

void XLogWarning(const char* format, ...) {
    va_list args;
    va_start(args, format);
    DispatchV(kLogWarning, format, args);
    va_end(args);
}

void XLog(unsigned level, const char* format, ...) {
    va_list args;
    va_start(args, format);
    DispatchV(level, format, args);
    va_end(args);
}

void XLogTrace(const char* text) {
    if (gTraceMode) Dispatch(kLogTrace, text ? text : "");
}

void XLogBench(const char* format, ...) {
    if (!gBenchMode) return;
    va_list args;
    va_start(args, format);
    DispatchV(kLogBench, format, args);
    va_end(args);
}

void XLogMemory(const char* format, ...) {
    if (!gMemoryMode) return;
    va_list args;
    va_start(args, format);
    DispatchV(kLogMemory, format, args);
    va_end(args);
}

void XLogSystem(unsigned level, const char* text) {
    int code = Platform::LastError();
    if (code == 0) return;
    std::string message = Platform::ErrorText(code);
    char buffer[2048];
    if (message.empty())
        std::snprintf(buffer, sizeof buffer, "%s - Windows unknown error: %ld", OrWord(text),
                      static_cast<long>(code));
    else
        std::snprintf(buffer, sizeof buffer, "%s - Windows error : %s", OrWord(text), message.c_str());
    Dispatch(level, buffer);
}

void SetMemoryMode(bool on) {
    gMemoryMode = on;
    Dispatch(kLogMemory, on ? "Memory mode is enabled" : "Memory mode is disabled");
}

void SetTraceMode(bool on) {
    gTraceMode = on;
    Dispatch(kLogTrace, on ? "Trace mode is enabled" : "Trace mode is disabled");
}

void SetBenchMode(bool on) {
    gBenchMode = on;
    Dispatch(kLogBench, on ? "Bench mode is enabled" : "Bench mode is disabled");
}

bool GetMemoryMode() {
    return gMemoryMode;
}
bool GetTraceMode() {
    return gTraceMode;
}
bool GetBenchMode() {
    return gBenchMode;
}
XILogSink* GetDefaultLogSink() {
    return gDefaultSink;
}

void* ThreadDataGet() {
    return tThreadSink;
}
void ThreadDataSet(void* pointer) {
    tThreadSink = pointer;
}

XCLogScope::XCLogScope(XILogSink* sink, bool global)
    : mPreviousThread(static_cast<XILogSink*>(ThreadDataGet())), mPreviousDefault(gDefaultSink),
      mGlobal(global) {
    ThreadDataSet(sink);
    if (mGlobal) gDefaultSink = sink;
}

XCLogScope::~XCLogScope() {
    ThreadDataSet(mPreviousThread);
    if (mGlobal) gDefaultSink = mPreviousDefault;
}

void HeapCheck(const char* text) {
    // glibc offers no whole-heap validation; the sanitizer builds catch corruption instead.
    (void)text;
}

} // namespace Kestra
