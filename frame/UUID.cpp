#include "frame/UUID.h"

#include "foundation/Errors.h"
#include "foundation/Platform.h"

namespace KeZel {

CZelUUID NewZelUUID() {
    CZelUUID uuid;
    if (!Kestra::Platform::RandomBytes(uuid.mBytes, sizeof uuid.mBytes)) Kestra::XThrow("Can't create UUID");
    // Laid out as a Windows GUID: Data3 is little-endian, so its version nibble is the
    // high nibble of byte 7; the variant bits 10 lead byte 8.
    uuid.mBytes[7] = static_cast<unsigned char>((uuid.mBytes[7] & 0x0F) | 0x40);
    uuid.mBytes[8] = static_cast<unsigned char>((uuid.mBytes[8] & 0x3F) | 0x80);
    return uuid;
}

void ZelUUIDToText(const CZelUUID& uuid, char out[33]) {
    static const char kDigits[] = "0123456789ABCDEF";
    for (int i = 0; i < 16; ++i) {
        out[2 * i] = kDigits[uuid.mBytes[i] >> 4];
        out[2 * i + 1] = kDigits[uuid.mBytes[i] & 0x0F];
    }
    out[32] = 0;
}

std::string ZelUUIDToText(const CZelUUID& uuid) {
    char text[33];
    ZelUUIDToText(uuid, text);
    return text;
}

static unsigned HexDigit(char c) {
    if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
    if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
    if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
    Kestra::XThrow("Invalid hex value");
}

CZelUUID ZelUUIDFromText(const char* text) {
    if (!text) Kestra::XThrow("Invalid hex value");
    CZelUUID uuid;
    // A short text stops at its terminator, which is no digit: nothing is read past it.
    for (int i = 0; i < 16; ++i) {
        unsigned high = HexDigit(text[2 * i]);
        unsigned low = HexDigit(text[2 * i + 1]);
        uuid.mBytes[i] = static_cast<unsigned char>(high * 16 + low);
    }
    return uuid;
}

} // namespace KeZel
