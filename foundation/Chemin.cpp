#include "foundation/Chemin.h"

#include "foundation/Platform.h"

#include <cctype>
#include <cstring>
#include <stdexcept>

namespace Kestra {

namespace {

void AppendEscaped(std::string& out, const char* begin, const char* end) {
    for (const char* p = begin; p != end; ++p) {
        switch (*p) {
        case ' ':
            out += "%20";
            break;
        case '%':
            out += "%25";
            break;
        case ':':
            out += '|';
            break;
        case '\\':
            out += '/';
            break;
        default:
            out += *p;
        }
    }
}

// Old files hold malformed escapes: a byte that is no hexadecimal digit counts as 65.
unsigned LenientDigit(char c) {
    if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
    if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
    if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
    return 65;
}

std::string DecodeUrlPath(const std::string& url, size_t from) {
    std::string out;
    out.reserve(url.size() - from);
    size_t n = url.size();
    for (size_t i = from; i < n;) {
        char c = url[i];
        if (c == '%') {
            // A truncated escape reads the terminator, which is no digit.
            char first = i + 1 < n ? url[i + 1] : '\0';
            char second = i + 2 < n ? url[i + 2] : '\0';
            out += static_cast<char>(
                static_cast<unsigned char>(16 * LenientDigit(first) + LenientDigit(second)));
            i += 3;
            continue;
        }
        out += c == '/' ? '\\' : c == '|' ? ':' : c;
        ++i;
    }
    return out;
}

size_t LastSeparator(const std::string& path) {
    size_t at = path.rfind('\\');
    if (at == std::string::npos) throw std::invalid_argument("Path doesn't contain '\\'");
    return at;
}

} // namespace

bool CChemin::HasSuffixNoCase(const char* suffix) const {
    size_t n = suffix ? std::strlen(suffix) : 0;
    if (n > mPath.size()) return false;
    const char* a = mPath.c_str() + mPath.size();
    const char* b = suffix + n;
    for (size_t i = 0; i < n; ++i) {
        --a;
        --b;
        if (std::toupper(static_cast<unsigned char>(*a)) != std::toupper(static_cast<unsigned char>(*b)))
            return false;
    }
    return true;
}

CChemin CChemin::ReplaceExtension(const char* extension) const {
    size_t dot = mPath.rfind('.');
    std::string out = dot == std::string::npos ? mPath : mPath.substr(0, dot);
    if (extension) out += extension;
    return out;
}

CChemin CChemin::Parent() const {
    return mPath.substr(0, LastSeparator(mPath));
}

CChemin CChemin::ParentWithSeparator() const {
    return mPath.substr(0, LastSeparator(mPath) + 1);
}

CChemin CChemin::Append(const char* name) const {
    std::string out = mPath;
    if (out.empty() || out.back() != '\\') out += '\\';
    if (name) out += name;
    return out;
}

const char* CChemin::LastName() const {
    size_t at = mPath.rfind('\\');
    return mPath.c_str() + (at == std::string::npos ? 0 : at + 1);
}

std::string CChemin::UrlLastName() const {
    std::string url = ToUrl();
    size_t at = url.rfind('/');
    return at == std::string::npos ? url : url.substr(at + 1);
}

std::string CChemin::ToUrl() const {
    std::string out = "file:///";
    out.reserve(out.size() + mPath.size() + 8);
    AppendEscaped(out, mPath.data(), mPath.data() + mPath.size());
    return out;
}

std::string CChemin::ToRelativeUrl(const CChemin& base) const {
    const std::string& b = base.mPath;
    size_t from = 0;
    for (size_t i = 0; i < mPath.size() && i < b.size() && mPath[i] == b[i]; ++i)
        if (mPath[i] == ':' || mPath[i] == '\\') from = i + 1;
    std::string out;
    AppendEscaped(out, mPath.data() + from, mPath.data() + mPath.size());
    return out;
}

CChemin CChemin::FromUrl(const char* url) {
    if (!url || std::strncmp(url, "file://", 7) != 0) throw std::invalid_argument("URL invalid");
    std::string text(url + 7);
    size_t slash = text.find('/');
    return DecodeUrlPath(text, slash == std::string::npos ? 0 : slash + 1);
}

CChemin CChemin::FromRelativeUrl(const char* url) const {
    return Append(DecodeUrlPath(url ? url : "", 0).c_str());
}

void CChemin::MakeRelative() {
    size_t colon = mPath.find(':');
    if (colon == std::string::npos) return;
    // Only a leading colon makes an old path relative; "disk:folder" is absolute.
    if (colon != 0) throw std::runtime_error("Path must be relative");
    std::string out = ".\\";
    size_t start = 1;
    for (size_t next; (next = mPath.find(':', start)) != std::string::npos; start = next + 1) {
        if (next == start)
            out += "..\\"; // two colons in a row: up one folder
        else
            out.append(mPath, start, next - start).append(1, '\\');
    }
    out.append(mPath, start, std::string::npos);
    mPath = out;
}

std::string CChemin::Native() const {
    std::string out = mPath;
    for (char& c : out)
        if (c == '\\') c = '/';
    return out;
}

bool CChemin::IsFolder() const {
    std::string previous;
    if (!Platform::CurrentDirectory(previous)) return false;
    if (!Platform::ChangeDirectory(Native().c_str())) return false;
    Platform::ChangeDirectory(previous.c_str());
    return true;
}

FILE* CChemin::Open(const char* mode) const {
    if (!mode) return nullptr;
    return Platform::OpenFile(Native().c_str(), mode);
}

CChemin CChemin::Courant() {
    std::string current;
    if (!Platform::CurrentDirectory(current))
        throw std::runtime_error("CChemin::Courant - Can't get current directory");
    for (char& c : current)
        if (c == '/') c = '\\';
    return current;
}

int CChemin::MakeFolder() const {
    return Platform::MakeDirectory(Native().c_str()) ? 0 : 1;
}

int CChemin::RemoveFolder() const {
    return Platform::RemoveDirectory(Native().c_str()) ? 0 : 1;
}

int CChemin::DeleteFile() const {
    return Platform::DeleteFile(Native().c_str()) ? 0 : 1;
}

bool CChemin::Exists() const {
    return Platform::Exists(Native().c_str());
}

bool CChemin::Rename(const char* name) const {
    if (!name || mPath.rfind('\\') == std::string::npos) return false;
    return Platform::RenameFile(Native().c_str(), Parent().Append(name).Native().c_str());
}

std::string CChemin::ShortName() const {
    return mPath;
}

CChemin CChemin::ShortPath() const {
    return *this;
}

} // namespace Kestra
