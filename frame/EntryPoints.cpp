// The exported surface: C entry points forwarding to the static members of CZelMgr.
#include "frame/ZelEntryPoints.h"

#include "frame/CZEL.h"

#include <new>
#include <stdexcept>

namespace KeZel {

CZelMgr* ZelNewMgr(EVersionZEL version, CZelFeedback* feedback, CZelExtStorage* storage);

CZelMgr* CZelMgr::newCZelMgr(EVersionZEL version, CZelFeedback* feedback, CZelExtStorage* storage) {
    void* memory = ::operator new(sizeof(CZEL), std::nothrow);
    if (!memory) return nullptr;
    try {
        return (new (memory) CZEL(version, feedback, storage))->asMgr();
    } catch (const std::exception& e) {
        ::operator delete(memory);
        // The only report of the library that has no manager to go with it.
        if (feedback) feedback->reportError(nullptr, e.what());
        return nullptr;
    }
}

CZelMgr* ZelNewMgr(EVersionZEL version, CZelFeedback* feedback, CZelExtStorage* storage) {
    return CZelMgr::newCZelMgr(version, feedback, storage);
}

EVersionZEL CZelMgr::getZELVersion() {
    return eZelVersionCurrent;
}

EExtendedVersionZEL CZelMgr::getExtendedZelVersion() {
    return eZelExtendedVersionCurrent;
}

namespace {

struct FileTypes {
    CZelFileType records[3];
    const CZelFileType* list[4];
    bool filled[3];
};

FileTypes gFileTypes;

void Fill(CZelFileType& r, const char* extension, const char* type, const char* creator,
          const char* description) {
    r.mExtension = extension;
    for (int i = 0; i < 4; ++i) {
        r.mType[i] = type[i];
        r.mCreator[i] = creator[i];
    }
    r.mRevision = 6;
    r.mDescription = description;
}

} // namespace

const CZelFileType* const* CZelMgr::getFileTypeList() {
    // Each record has its own bit, so a first pass that failed halfway can resume.
    FileTypes& t = gFileTypes;
    if (!t.filled[0]) {
        Fill(t.records[0], ".zel", "TEXT", "zvth", "Vantorium (.zel)");
        t.list[0] = &t.records[0];
        t.filled[0] = true;
    }
    if (!t.filled[1]) {
        Fill(t.records[1], ".zof", "TEXT", "zvth", "Vantorium Object (.zof)");
        t.list[1] = &t.records[1];
        t.filled[1] = true;
    }
    if (!t.filled[2]) {
        Fill(t.records[2], ".opt", "TEXT", "ZEL2", "Van*torium (.opt)");
        t.list[2] = &t.records[2];
        t.filled[2] = true;
    }
    t.list[3] = nullptr;
    return t.list;
}

} // namespace KeZel

using namespace KeZel;

extern "C" {

CZelMgr* zel_new_mgr(EVersionZEL version, CZelFeedback* feedback, CZelExtStorage* storage) {
    return ZelNewMgr(version, feedback, storage);
}

bool zel_check_format(CZelStream* stream, char* creator, int creatorSize) {
    return CZelMgr::checkFormat(stream, creator, creatorSize);
}

bool zel_check_format2(CZelStream* stream, eReadability* readability, CZelVersion* version, char* creator,
                       int creatorSize) {
    return CZelMgr::checkFormat2(stream, readability, version, creator, creatorSize);
}

const CZelFileType* const* zel_get_file_type_list() {
    return CZelMgr::getFileTypeList();
}

EVersionZEL zel_get_version() {
    return CZelMgr::getZELVersion();
}

EExtendedVersionZEL zel_get_extended_version() {
    return CZelMgr::getExtendedZelVersion();
}

IZelImage* zel_read_preview_image(CZelStream* stream) {
    return CZelMgr::readPreviewImage(stream);
}
}
