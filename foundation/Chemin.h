// File names. A path of the library is a UTF-8 string in Windows form, `\` between the
// names; a reference stored in a scene is a "file:///" URL, `/` between the names. The
// string rules below define stored file content and are the same on every platform.
//
// The file utilities hand the path to the system with each `\` turned into `/`, so that
// on a POSIX system the library form of /home/a/b.zel is \home\a\b.zel (which is what
// Courant() answers); a path already in POSIX form passes unchanged.
#pragma once

#include <cstdio>
#include <string>

namespace Kestra {

class CChemin {
public:
    CChemin() {}
    CChemin(const char* path) : mPath(path ? path : "") {}
    CChemin(const std::string& path) : mPath(path) {}

    const std::string& str() const { return mPath; }
    const char* c_str() const { return mPath.c_str(); }
    bool empty() const { return mPath.empty(); }
    bool operator==(const CChemin& other) const { return mPath == other.mPath; }
    bool operator!=(const CChemin& other) const { return mPath != other.mPath; }

    // ---- String rules
    // True when the path ends with `suffix`, compared byte by byte after toupper; an
    // empty suffix is always true.
    bool HasSuffixNoCase(const char* suffix) const;
    // Everything up to the last '.', then `extension` (which carries its own dot); the
    // whole path, then `extension`, when there is no '.'.
    CChemin ReplaceExtension(const char* extension) const;
    // Up to but not including the last '\'. Raises std::invalid_argument
    // "Path doesn't contain '\'" when there is none.
    CChemin Parent() const;
    // Up to and including the last '\'; the same exception.
    CChemin ParentWithSeparator() const;
    // The path, a '\' unless it already ends in one (an empty path gets one too), `name`.
    CChemin Append(const char* name) const;
    // Points into the path just behind the last '\', or at its start.
    const char* LastName() const;
    // The URL form, from behind its last '/'.
    std::string UrlLastName() const;

    // "file:///" and the path with ' ' as "%20", '%' as "%25", ':' as '|', '\' as '/';
    // every other byte, non-ASCII included, as it stands.
    std::string ToUrl() const;
    // The path from behind the last ':' or '\' that it shares with `base`, escaped as in
    // ToUrl and without the prefix: a file in the base's folder is stored by its name.
    std::string ToRelativeUrl(const CChemin& base) const;
    // Back from a "file://" URL: the host part is dropped, "%xy" escapes decoded
    // leniently (a non-digit counts as 65, no error), '/' becomes '\' and '|' ':'.
    // Raises std::invalid_argument "URL invalid" without the "file://" prefix.
    static CChemin FromUrl(const char* url);
    // Decodes a relative URL as FromUrl does its path, and appends it to this path.
    CChemin FromRelativeUrl(const char* url) const;
    // Rewrites an old colon-separated relative path (":a::b") as a Windows relative path
    // (".\a\..\b"), in place. Raises std::runtime_error "Path must be relative" for an
    // absolute one ("disk:a"); a path without colons stays as it is.
    void MakeRelative();

    // ---- File utilities: they report through their result and raise nothing, except
    // Courant.
    // True if the path can be made the current directory (which is then put back).
    bool IsFolder() const;
    FILE* Open(const char* mode) const;
    // The current directory in library form. Raises std::runtime_error
    // "CChemin::Courant - Can't get current directory".
    static CChemin Courant();
    // 0 on success, 1 on failure.
    int MakeFolder() const;
    int RemoveFolder() const;
    int DeleteFile() const;
    bool Exists() const;
    // Renames the file to `name` in the same folder; true on success.
    bool Rename(const char* name) const;
    // The short (8.3) form of the path; names have no short form here, so the path as
    // it stands. ShortPath is the same as a path.
    std::string ShortName() const;
    CChemin ShortPath() const;

private:
    // The path as the system wants it.
    std::string Native() const;

    std::string mPath;
};

} // namespace Kestra
