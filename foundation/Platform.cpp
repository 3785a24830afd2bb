#include "foundation/Platform.h"

#include <cerrno>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Kestra {
namespace Platform {

bool RandomBytes(void* buffer, size_t size) {
    int fd = ::open("/dev/urandom", O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    unsigned char* out = static_cast<unsigned char*>(buffer);
    size_t done = 0;
    while (done < size) {
        ssize_t n = ::read(fd, out + done, size - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        done += static_cast<size_t>(n);
    }
    ::close(fd);
    return done == size;
}

long ClockMilliseconds() {
    return static_cast<long>(static_cast<double>(std::clock()) * 1000.0 / CLOCKS_PER_SEC);
}

bool Now(LocalTime& out) {
    std::time_t now = std::time(nullptr);
    if (now == static_cast<std::time_t>(-1)) return false;
    std::tm parts;
    if (!localtime_r(&now, &parts)) return false;
    out.year = parts.tm_year + 1900;
    out.month = parts.tm_mon + 1;
    out.day = parts.tm_mday;
    out.hour = parts.tm_hour;
    out.minute = parts.tm_min;
    return true;
}

int LastError() {
    return errno;
}

void SetLastError(int code) {
    errno = code;
}

std::string ErrorText(int code) {
    char buffer[1024];
    buffer[0] = 0;
    // GNU strerror_r may return a static string instead of filling the buffer.
#if defined(__GLIBC__) && defined(_GNU_SOURCE)
    const char* text = strerror_r(code, buffer, sizeof buffer);
    return text ? std::string(text) : std::string();
#else
    if (strerror_r(code, buffer, sizeof buffer) != 0) return std::string();
    return std::string(buffer);
#endif
}

bool CurrentDirectory(std::string& out) {
    char buffer[4096];
    if (!::getcwd(buffer, sizeof buffer)) return false;
    out = buffer;
    return true;
}

bool ChangeDirectory(const char* path) {
    return ::chdir(path) == 0;
}
bool MakeDirectory(const char* path) {
    return ::mkdir(path, 0777) == 0;
}
bool RemoveDirectory(const char* path) {
    return ::rmdir(path) == 0;
}
bool DeleteFile(const char* path) {
    return ::unlink(path) == 0;
}

bool Exists(const char* path) {
    struct stat info;
    return ::stat(path, &info) == 0;
}

bool RenameFile(const char* from, const char* to) {
    return std::rename(from, to) == 0;
}

FILE* OpenFile(const char* path, const char* mode) {
    return std::fopen(path, mode);
}

void FatalExit(const char* text, const char* caption) {
    std::fprintf(stderr, "%s\n%s\n", text, caption);
    std::fflush(stderr);
    std::fflush(stdout);
    ::_exit(0);
}

} // namespace Platform
} // namespace Kestra
