// The seven C entry points of the library. Public header, C++11.
#ifndef ZEL_FRAME_ZELENTRYPOINTS_H
#define ZEL_FRAME_ZELENTRYPOINTS_H

#include "foundation/Visibility.h"
#include "frame/ZelMgr.h"
#include "frame/ZelTypes.h"

extern "C" {

// Creates a manager for a client built against `version` (5..21). Both pointers may be
// null and are kept, not owned, for the manager's life. Null on refusal, after one
// reportError call with a null manager.
ZEL_API KeZel::CZelMgr* zel_new_mgr(KeZel::EVersionZEL version, KeZel::CZelFeedback* feedback,
                                    KeZel::CZelExtStorage* storage);

// True when the stream is a file of one of the three families; `creator` (may be null)
// receives a display string of at most `creatorSize` characters.
ZEL_API bool zel_check_format(KeZel::CZelStream* stream, char* creator, int creatorSize);

// True when the stream can be read, in full or with the losses `*readability` tells.
ZEL_API bool zel_check_format2(KeZel::CZelStream* stream, KeZel::eReadability* readability,
                               KeZel::CZelVersion* version, char* creator, int creatorSize);

// Three static records, then a null pointer; the same storage on every call.
ZEL_API const KeZel::CZelFileType* const* zel_get_file_type_list();

ZEL_API KeZel::EVersionZEL zel_get_version();
ZEL_API KeZel::EExtendedVersionZEL zel_get_extended_version();

// The preview image, or null. The caller owns one reference and ends it with Release.
ZEL_API KeZel::IZelImage* zel_read_preview_image(KeZel::CZelStream* stream);
}

#endif
