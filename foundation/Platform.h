// The one place where the library meets the operating system. No other folder calls
// the system directly: identities, clocks, local time, file names and the fatal exit
// all come through here.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>

namespace Kestra {
namespace Platform {

// Fills `size` bytes from the system's random source. False when the source fails.
bool RandomBytes(void* buffer, size_t size);

// Processor time in milliseconds, the unit the progress throttle counts in.
long ClockMilliseconds();

// Local calendar time of now. False when the clock or the conversion fails.
struct LocalTime {
    int year;   // full year, e.g. 2026
    int month;  // 1..12
    int day;    // 1..31
    int hour;   // 0..23
    int minute; // 0..59
};
bool Now(LocalTime& out);

// The calling thread's last system error code (errno) and its text.
int LastError();
void SetLastError(int code);
// The system's text for `code`, or an empty string when it has none.
std::string ErrorText(int code);

// File names are UTF-8 byte strings handed to the POSIX calls as they stand.
bool CurrentDirectory(std::string& out);
bool ChangeDirectory(const char* path);
bool MakeDirectory(const char* path);
bool RemoveDirectory(const char* path);
bool DeleteFile(const char* path);
bool Exists(const char* path);
bool RenameFile(const char* from, const char* to);
FILE* OpenFile(const char* path, const char* mode);

// Writes the two sentences to the standard error stream and ends the process with
// exit code 0. Never returns.
[[noreturn]] void FatalExit(const char* text, const char* caption);

} // namespace Platform
} // namespace Kestra
