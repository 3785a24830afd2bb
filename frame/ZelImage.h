// Public face of a scene image (the preview, and the items of the image list).
// Public header, C++11.
#ifndef ZEL_FRAME_ZELIMAGE_H
#define ZEL_FRAME_ZELIMAGE_H

#include "foundation/Image.h"
#include "frame/ZelTypes.h"

namespace KeZel {

// An image is counted: the release that takes its count to 0 destroys it. An image that
// zel_read_preview_image hands out holds one reference for the caller.
class ZEL_API IZelImage : public Kestra::XIImage {
public:
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    // Replaces the pixels by an image of that size, all pixels 0, to be filled with SetAt.
    virtual void setSize(unsigned int width, unsigned int height) = 0;
};

} // namespace KeZel

#endif
