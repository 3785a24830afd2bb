// Taking the preview of arbitrary bytes: null or a whole image, never half of one.
#include "frame/ZelHost.h"
#include "frame/ZelImage.h"
#include "frame/ZelMgr.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace KeZel;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    CZelMemoryStream stream(std::string(reinterpret_cast<const char*>(data), size));
    IZelImage* image = CZelMgr::readPreviewImage(&stream);
    if (!image) return 0;
    size_t count = static_cast<size_t>(image->GetWidth()) * image->GetHeight();
    const unsigned int* pixels = image->GetData();
    if (count && !pixels) std::abort();
    for (size_t i = 0; i < count; ++i)
        if ((pixels[i] >> 24) != 0xFF) std::abort();
    image->Release();
    return 0;
}
