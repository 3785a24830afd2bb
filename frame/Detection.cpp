// Sniffing without a manager: is a stream a scene, which version and creator wrote it,
// how safely this library may read it, and its preview alone.
#include "frame/Detection.h"

#include "foundation/Errors.h"
#include "frame/StreamAdapters.h"
#include "frame/SceneImage.h"
#include "frame/ZelMgr.h"
#include "legacy/TokenReader.h"
#include "model/objects/IZelObjectDefinition.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <vector>

namespace KeZel {

using namespace Kestra;

namespace {

const CZelVersion kLibraryVersion(3, 0, 2);
const CZelVersion kPreviousVersion(3, 0, 1);
const CZelVersion kFirstVersion(1, 0, 0);

// Integer part of a number read from a file, held inside the range of int.
int IntegerPart(double v) {
    if (!(v == v)) return 0;
    if (v >= static_cast<double>(INT_MAX)) return INT_MAX;
    if (v <= static_cast<double>(INT_MIN)) return INT_MIN;
    return static_cast<int>(v);
}

// The old decimal form: 2.01 is 2.0.1. The small term keeps 2.01 from being 2.0.0999.
CZelVersion SplitDecimal(double v) {
    v += 0.00001;
    CZelVersion version(0, 0, 0);
    version.major = IntegerPart(v);
    version.minor = IntegerPart(v * 10) % 10;
    version.patch = IntegerPart(v * 100) % 10;
    return version;
}

void PrintCreator(char* creator, int creatorSize, const char* format, int a, int b) {
    if (creator && creatorSize > 0) std::snprintf(creator, static_cast<size_t>(creatorSize), format, a, b);
}

void PrintCreator(char* creator, int creatorSize, const char* text) {
    if (creator && creatorSize > 0) std::snprintf(creator, static_cast<size_t>(creatorSize), "%s", text);
}

// The legacy sniff reads through a window on the head of the stream: the header stands
// at the start, and a file of noise must not be read to its end one byte at a time.
class CHeadStream : public CZelStream {
public:
    enum { kWindow = 64 * 1024 };

    CHeadStream(CZelStream* stream, unsigned int start) : mStream(stream), mStart(start), mPosition(start) {}

    bool isOpen() override { return false; }
    CZelStream* openStream(const char*, int) override { return nullptr; }
    void release() override {}
    void flush() override {}
    int read(void* buffer, int size) override {
        unsigned long long end = static_cast<unsigned long long>(mStart) + kWindow;
        if (size <= 0 || mPosition >= end) return 0;
        if (static_cast<unsigned long long>(size) > end - mPosition) size = static_cast<int>(end - mPosition);
        int n = mStream->read(buffer, size);
        if (n > 0) mPosition += static_cast<unsigned int>(n);
        return n;
    }
    void write(const void*, int) override {}
    unsigned int tell() override { return mPosition; }
    void seek(unsigned int position) override {
        mStream->seek(position);
        mPosition = position;
    }

private:
    CZelStream* mStream;
    unsigned int mStart;
    unsigned int mPosition;
};

// The three headers of an .opt file. Fills `creator` on a match.
bool SniffLegacy(CZelStream* stream, unsigned int start, char* creator, int creatorSize) {
    bool result = false;
    try {
        CHeadStream head(stream, start);
        CTokenReader reader(&head, nullptr);
        CToken token;
        reader.ReadToken(token);
        const std::string first = token.text;
        if (first == "opt") {
            reader.ReadToken(token);
            if (token.text == "db") {
                reader.ReadToken(token);
                if (token.text == "version") {
                    int a = reader.ReadInt();
                    int b = reader.ReadInt();
                    if ((a == 3 && b == 5) || (a == 4 && b == 0)) {
                        PrintCreator(creator, creatorSize, "Van*torium (%d.%d)", a, b);
                        result = true;
                    }
                }
            }
        }
        if (first == "-dbfile") {
            PrintCreator(creator, creatorSize, "Van*torium");
            result = true;
        }
        if (first == "-eye") {
            PrintCreator(creator, creatorSize, "Van*torium (ORVEAL)");
            result = true;
        }
    } catch (...) {
    }
    stream->seek(start);
    return result;
}

// The first byte decides the family: '<' is XML. A failed read counts as legacy.
int FirstByte(CZelStream* stream, unsigned int& start) {
    start = stream->tell();
    unsigned char c = 0;
    int first = stream->read(&c, 1) == 1 ? c : -1;
    stream->seek(start);
    return first;
}

} // namespace

// ---- CCheckZELFile

CCheckZELFile::CCheckZELFile()
    : mLibrary(0, 0, 0), mMinVersion(0, 0, 0), mSafeVersion(0, 0, 0), mFileMajor(0), mFileMinor(0) {}

bool CCheckZELFile::ProcessingInstruction(const char* target, const char* data) {
    if (std::strcmp(target, "Zel") != 0) return true;
    Decode(data);
    return false;
}

void* CInstructionSniffer::StartElement(const char*) {
    // The root comes before the instruction: XML, but not a scene.
    XThrow("XML mais pas ZEL");
}

void CInstructionSniffer::Attribute(const char*, const char*) {
    XThrow("Impossible");
}

void CInstructionSniffer::Text(const char*) {
    XThrow("Impossible");
}

void CInstructionSniffer::EndElement(void*) {
    XThrow("Impossible");
}

void CCheckZELFile::Decode(const char* data) {
    double library = 0, file = 0, minVersion = 0, safeVersion = 0;
    int n = std::sscanf(data, "library=\"%lf\" file=\"%lf\" min_version=\"%lf\" safe_version=\"%lf\" ",
                        &library, &file, &minVersion, &safeVersion);
    if (n >= 2) {
        mLibrary = SplitDecimal(library);
        mMinVersion = SplitDecimal(minVersion);
        mSafeVersion = SplitDecimal(safeVersion);
    } else {
        int l[3] = {0, 0, 0}, m[3] = {0, 0, 0}, s[3] = {0, 0, 0};
        n = std::sscanf(
            data, "library=\"%d.%d.%d\" file=\"%lf\" min_version=\"%d.%d.%d\" safe_version=\"%d.%d.%d\" ",
            &l[0], &l[1], &l[2], &file, &m[0], &m[1], &m[2], &s[0], &s[1], &s[2]);
        if (n == 10) {
            mLibrary = CZelVersion(l[0], l[1], l[2]);
            mMinVersion = CZelVersion(m[0], m[1], m[2]);
            mSafeVersion = CZelVersion(s[0], s[1], s[2]);
        }
    }
    // No small term here: "5.1" may give minor 0, which only the display string shows.
    mFileMajor = IntegerPart(file);
    mFileMinor = IntegerPart((file - mFileMajor) * 10);
}

// ---- CCheckZELCreatorFile

bool CCheckZELCreatorFile::ProcessingInstruction(const char* target, const char* data) {
    if (std::strcmp(target, "Application") != 0) return true;
    // The scan stops at the first blank: only the first word of a name is seen.
    std::vector<char> word(std::strlen(data) + 1, 0);
    if (std::sscanf(data, "name=\"%s\"", word.data()) < 1) return false;
    size_t length = std::strlen(word.data());
    if (length > 0 && word[length - 1] == '"') word[--length] = 0;
    mCreator.assign(word.data(), length);
    return false;
}

// ---- CReadPreviewImage

CReadPreviewImage::~CReadPreviewImage() {
    delete mImage;
}

void* CReadPreviewImage::StartElement(const char* name) {
    if (std::strcmp(name, "Zel.File") != 0 && std::strcmp(name, "Preview.Image") != 0)
        XThrow("No Preview image availiable");
    return this;
}

void CReadPreviewImage::Attribute(const char*, const char*) {
    XThrow("No Preview image availiable");
}

void CReadPreviewImage::Text(const char*) {
    XThrow("No Preview image availiable");
}

void CReadPreviewImage::CData(KestraXML::CXMLReadStream* stream) {
    delete mImage;
    mImage = new CZelImage(nullptr);
    try {
        mImage->readHex(stream);
    } catch (...) {
        delete mImage;
        mImage = nullptr;
        throw;
    }
}

void CReadPreviewImage::EndElement(void*) {
    // Reached behind a good block too: this is how the parse ends, unread beyond.
    XThrow("No Preview image availiable");
}

CZelImage* CReadPreviewImage::Take() {
    CZelImage* image = mImage;
    mImage = nullptr;
    if (image) image->AddRef();
    return image;
}

// ---- CReadMediaInfo

namespace {

// Stores one name of the manager's object definition under its language code.
void StoreDefinitionName(CZelMgr* mgr, unsigned short code, const char* value) {
    IZelZelObjectDefinition* definition = mgr ? mgr->getObjectDefinition() : nullptr;
    if (definition) definition->getName()->setText(code, value);
}

} // namespace

void* CReadMediaInfo::StartElement(const char* name) {
    if (std::strcmp(name, "Zel.File") == 0) return this;
    if (std::strcmp(name, "Object.Definition") == 0) {
        mInDefinition = true;
        return &mInDefinition;
    }
    if (mInDefinition && std::strcmp(name, "Name") == 0) {
        mInName = true;
        return &mInName;
    }
    return nullptr;
}

void CReadMediaInfo::Attribute(const char* name, const char* value) {
    if (!mInName) return;
    // A language code: the two letters as one 16-bit number, first letter high.
    unsigned char a = static_cast<unsigned char>(name[0]);
    unsigned char b = a ? static_cast<unsigned char>(name[1]) : 0;
    StoreDefinitionName(mMgr, static_cast<unsigned short>(a * 256 + b), value);
}

void CReadMediaInfo::Text(const char*) {}

void CReadMediaInfo::CData(KestraXML::CXMLReadStream* stream) {
    // Nothing sets mInPreview today, so no block is decoded on this path.
    if (!mInPreview) return;
    mInPreview = false;
    IZelImage* preview = mMgr ? mMgr->getPreviewImage() : nullptr;
    if (preview) static_cast<CZelImage*>(preview)->readHex(stream);
}

void CReadMediaInfo::EndElement(void* handle) {
    if (handle == &mInPreview) mInPreview = false;
    if (handle == &mInDefinition) mInDefinition = false;
    if (handle == &mInName) mInName = false;
}

// ---- The static members of CZelMgr

bool CZelMgr::checkFormat(CZelStream* stream, char* creator, int creatorSize) {
    if (!stream) return false;
    unsigned int start = 0;
    int first = -1;
    try {
        first = FirstByte(stream, start);
    } catch (...) {
        return false;
    }
    if (first != '<') {
        try {
            return SniffLegacy(stream, start, creator, creatorSize);
        } catch (...) {
            return false;
        }
    }
    // The older call: a failed parse answers false at once, the stream left where the
    // parser stopped.
    try {
        CZELXMLReadStream input(stream);
        CCheckZELFile check;
        check.Parse(&input);
        bool result = false;
        if (check.mLibrary.major != 0) {
            PrintCreator(creator, creatorSize, "Vantorium (%d.%d)", check.mFileMajor, check.mFileMinor);
            result = true;
        }
        stream->seek(start);
        return result;
    } catch (...) {
        return false;
    }
}

bool CZelMgr::checkFormat2(CZelStream* stream, eReadability* readability, CZelVersion* version, char* creator,
                           int creatorSize) {
    eReadability scratch = eReadabilityNone;
    if (!readability) readability = &scratch;
    *readability = eReadabilityNone;
    if (!stream) return false;
    unsigned int start = 0;
    int first = -1;
    try {
        first = FirstByte(stream, start);
    } catch (...) {
        return false;
    }
    if (first != '<') {
        bool result = false;
        try {
            result = SniffLegacy(stream, start, creator, creatorSize);
        } catch (...) {
        }
        if (result) *readability = eReadabilityCurrent;
        return result;
    }

    CCheckZELFile check;
    CCheckZELCreatorFile creatorCheck;
    bool result = false;
    try {
        // Each pass has its own parser object: a parse stopped early leaves it spent.
        try {
            CZELXMLReadStream input(stream);
            check.Parse(&input);
            stream->seek(start);
            creatorCheck.Parse(&input);
        } catch (...) {
        }

        if (check.mLibrary.major != 0) {
            if (version) *version = check.mLibrary;
            const CZelVersion& library = check.mLibrary;
            const std::string& name = creatorCheck.mCreator;
            bool foreign =
                library > kFirstVersion && !name.empty() && name != "Vantorium" && name != "Asset Forge";
            if (foreign && library.major > 3) {
                *readability = eReadabilityTooNew;
            } else if (foreign) {
                *readability = eReadabilityForeign;
                result = true;
            } else if (check.mMinVersion > kLibraryVersion) {
                *readability = eReadabilityTooNew;
            } else if (check.mSafeVersion > kLibraryVersion) {
                *readability = eReadabilityNewerUnsafe;
                result = true;
            } else if (library > kLibraryVersion) {
                *readability = eReadabilityNewer;
                result = true;
            } else if (library == kLibraryVersion) {
                *readability = eReadabilityCurrent;
                result = true;
            } else if (library == kPreviousVersion) {
                *readability = eReadabilityPrevious;
                result = true;
            } else {
                *readability = eReadabilityOld;
                result = true;
            }
            if (result)
                PrintCreator(creator, creatorSize, "Vantorium (%d.%d)", check.mFileMajor, check.mFileMinor);
        }
        stream->seek(start);
    } catch (...) {
    }
    return result;
}

IZelImage* CZelMgr::readPreviewImage(CZelStream* stream) {
    if (!stream) return nullptr;
    try {
        CReadPreviewImage reader;
        try {
            CZELXMLReadStream input(stream);
            reader.Parse(&input);
        } catch (...) {
        }
        return reader.Take();
    } catch (...) {
        return nullptr;
    }
}

} // namespace KeZel
