// Raising, checking and logging of the base library.
// Every failure of the system is a std::runtime_error (or std::invalid_argument for
// misuse of paths); these helpers give the messages their fixed forms.
#pragma once

#include <cstdarg>

#if defined(__GNUC__)
#define X_PRINTF(f, a) __attribute__((format(printf, f, a)))
#define X_NORETURN __attribute__((noreturn))
#define X_COLD __attribute__((cold, noinline))
#else
#define X_PRINTF(f, a)
#define X_NORETURN
#define X_COLD
#endif

namespace Kestra {

// ---- Raising: none of these returns. A null text stands for "exception".
X_NORETURN X_COLD void XThrow(const char* text);
X_NORETURN X_COLD void XThrowFormat(const char* format, ...) X_PRINTF(1, 2);
X_NORETURN X_COLD void XThrowAssert(const char* text);
X_NORETURN X_COLD void XThrowNull(const char* text);
X_NORETURN X_COLD void XThrowCode(int code, const char* text);
X_NORETURN X_COLD void XThrowSystem();
X_NORETURN X_COLD void XThrowFailedAssertion(const char* expression, const char* file, unsigned line);

// Failure paths of the checks below, kept out of line so that the checks cost a compare.
X_NORETURN X_COLD void XAssertFailed(const char* format, ...);
X_NORETURN X_COLD void XAssertPointerFailed(const char* format, ...);

// ---- Checking: these return when the condition holds.
inline void XAssert(bool condition) {
    if (!condition) XThrowAssert(nullptr);
}
template <class... A> inline void XAssert(bool condition, const char* format, A... args) {
    if (!condition) XAssertFailed(format, args...);
}
inline void XAssertPointer(const void* pointer) {
    if (!pointer) XThrowNull(nullptr);
}
template <class... A> inline void XAssertPointer(const void* pointer, const char* format, A... args) {
    if (!pointer) XAssertPointerFailed(format, args...);
}
inline void XRequire(bool condition) {
    if (!condition) XThrow(nullptr);
}
inline void XRequire(bool condition, const char* text) {
    if (!condition) XThrow(text);
}
inline void XCheckSystem(long result) {
    if (result == 0) XThrowSystem();
}

// ---- Logging
enum : unsigned {
    kLogError = 0,
    kLogWarning = 1,
    kLogTrace = 3,
    kLogBench = 4,
    kLogMemory = 5,
};

class XILogSink {
public:
    virtual ~XILogSink() {}
    virtual void Log(unsigned level, const char* text) = 0;
};

void XLogError(const char* format, ...) X_PRINTF(1, 2);
void XLogWarning(const char* format, ...) X_PRINTF(1, 2);
void XLog(unsigned level, const char* format, ...) X_PRINTF(2, 3);
void XLogTrace(const char* text);
void XLogBench(const char* format, ...) X_PRINTF(1, 2);
void XLogMemory(const char* format, ...) X_PRINTF(1, 2);
void XLogSystem(unsigned level, const char* text);

void SetMemoryMode(bool on);
void SetTraceMode(bool on);
void SetBenchMode(bool on);
bool GetMemoryMode();
bool GetTraceMode();
bool GetBenchMode();

// The process-wide default sink; a thread sink set through XCLogScope wins over it.
XILogSink* GetDefaultLogSink();

// Installs a sink for the calling thread (and, with `global`, as the process default)
// for the life of the scope.
class XCLogScope {
public:
    XCLogScope(XILogSink* sink, bool global);
    ~XCLogScope();
    XCLogScope(const XCLogScope&) = delete;
    XCLogScope& operator=(const XCLogScope&) = delete;

private:
    XILogSink* mPreviousThread;
    XILogSink* mPreviousDefault;
    bool mGlobal;
};

// Per-thread slot of the log sink.
void* ThreadDataGet();
void ThreadDataSet(void* pointer);

// Asks the platform to validate the heap; on this platform there is nothing to ask.
void HeapCheck(const char* text);

} // namespace Kestra
