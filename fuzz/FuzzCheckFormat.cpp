// Sniffing arbitrary bytes: never raises, never crashes, always puts the stream back,
// and its answer agrees with its verdict.
#include "frame/ZelHost.h"
#include "frame/ZelMgr.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace KeZel;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    CZelMemoryStream stream(std::string(reinterpret_cast<const char*>(data), size));

    eReadability readability = eReadabilityForeign;
    CZelVersion version(-1, -1, -1);
    char creator[24];
    bool result = CZelMgr::checkFormat2(&stream, &readability, &version, creator, 12);
    if (stream.tell() != 0) std::abort();
    if (readability < eReadabilityNone || readability > eReadabilityForeign) std::abort();
    if (result != (readability != eReadabilityNone && readability != eReadabilityTooNew)) std::abort();
    if (readability == eReadabilityNone && version != CZelVersion(-1, -1, -1)) std::abort();

    stream.rewind();
    bool older = CZelMgr::checkFormat(&stream, creator, 5);
    // Both calls see the same file: the older one knows no verdict, only whether it is a
    // scene at all.
    if (older != (result || readability == eReadabilityTooNew)) std::abort();
    return 0;
}
