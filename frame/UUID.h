// Making, writing and reading identities.
#pragma once

#include "frame/ZelTypes.h"

#include <string>

namespace KeZel {

// A new random identity (version 4, as a GUID generator makes them; never null).
// Raises "Can't create UUID" when the system's random source fails.
CZelUUID NewZelUUID();

// 32 upper-case hexadecimal digits, byte 0 first, no separators. `out` takes 33 bytes.
void ZelUUIDToText(const CZelUUID& uuid, char out[33]);
std::string ZelUUIDToText(const CZelUUID& uuid);

// Reads 16 pairs of hexadecimal digits of either case; what follows the 32nd digit is
// ignored. A character that is no hexadecimal digit, the end of the text included,
// raises "Invalid hex value".
CZelUUID ZelUUIDFromText(const char* text);

// An identity that can be an item of a list (TObjectMgr<CZelUUIDX, CZelUUID>).
struct CZelUUIDX : CZelUUID {
    CZelUUIDX() : CZelUUID() {}
    CZelUUIDX(const CZelUUID& other) : CZelUUID(other) {}
};

} // namespace KeZel
