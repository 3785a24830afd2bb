// Sniffing without a manager; filled by format detection.
#include "frame/ZelMgr.h"

namespace KeZel {

bool CZelMgr::checkFormat(CZelStream*, char* creator, int creatorSize) {
    if (creator && creatorSize > 0) creator[0] = 0;
    return false;
}

bool CZelMgr::checkFormat2(CZelStream*, eReadability* readability, CZelVersion*, char* creator,
                           int creatorSize) {
    if (readability) *readability = eReadabilityNone;
    if (creator && creatorSize > 0) creator[0] = 0;
    return false;
}

IZelImage* CZelMgr::readPreviewImage(CZelStream*) {
    return nullptr;
}

void CZelMgr::doImportReference(CZelMgr*, CZelMgr*, int) {}

} // namespace KeZel
