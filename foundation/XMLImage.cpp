#include "foundation/XMLImage.h"

#include <algorithm>
#include <cstdint>

namespace Kestra {

namespace {

const char kHexDigits[] = "0123456789ABCDEF";

// Value of each byte as an upper-case hexadecimal digit; 0xFF for any other byte.
struct XCHexTable {
    unsigned char value[256];
    XCHexTable() {
        for (int i = 0; i < 256; ++i) value[i] = 0xFF;
        for (int i = 0; i < 16; ++i)
            value[static_cast<unsigned char>(kHexDigits[i])] = static_cast<unsigned char>(i);
    }
};
const XCHexTable kHexTable;

inline uint32_t Swap(uint32_t v) {
    return (v >> 24) | ((v >> 8) & 0xFF00u) | ((v << 8) & 0xFF0000u) | (v << 24);
}

// Words from the stream through a buffer of its own. The block reader owns the rest of
// the block, so reading ahead within it costs nothing.
class XCHexWordReader {
public:
    explicit XCHexWordReader(KestraXML::CXMLReadStream* stream)
        : mStream(stream), mPosition(0), mEnd(0), mEnded(false), mSwap(false) {}

    // True when the stream has no byte left.
    bool AtEnd() {
        if (mPosition == mEnd) Fill();
        return mPosition == mEnd;
    }
    void SetSwap(bool swap) { mSwap = swap; }

    uint32_t Word() {
        if (mEnd - mPosition < 8) Fill();
        XAssert(mEnd - mPosition >= 8, "XCXMLImage::ReadHex - Read stream error");
        const unsigned char* p = mBuffer + mPosition;
        mPosition += 8;
        uint32_t v = 0;
        unsigned int bad = 0;
        for (int i = 0; i < 8; ++i) {
            unsigned int d = kHexTable.value[p[i]];
            bad |= d;
            v = (v << 4) | (d & 0xF);
        }
        if (bad & 0xF0) XThrow("XCXMLImage::ReadHex - Invalid hex value");
        return mSwap ? Swap(v) : v;
    }

private:
    enum { kSize = 4096 };

    void Fill() {
        size_t left = mEnd - mPosition;
        std::memmove(mBuffer, mBuffer + mPosition, left);
        mPosition = 0;
        mEnd = left;
        while (!mEnded && mEnd < kSize) {
            int n = mStream->Read(mBuffer + mEnd, static_cast<int>(kSize - mEnd));
            if (n <= 0) {
                mEnded = true;
            } else {
                mEnd += std::min(static_cast<size_t>(n), kSize - mEnd);
            }
        }
    }

    KestraXML::CXMLReadStream* mStream;
    size_t mPosition;
    size_t mEnd;
    bool mEnded;
    bool mSwap;
    unsigned char mBuffer[kSize];
};

// Words to the stream, 1024 bytes of text per stream call.
class XCHexWordWriter {
public:
    explicit XCHexWordWriter(KestraXML::XIXMLWriteStream* stream) : mStream(stream), mFill(0) {}

    void Word(uint32_t v) {
        if (mFill + 8 > kSize) Flush();
        char* p = mBuffer + mFill;
        for (int i = 7; i >= 0; --i) {
            p[i] = kHexDigits[v & 0xF];
            v >>= 4;
        }
        mFill += 8;
    }
    void Flush() {
        if (mFill == 0) return;
        int written = mStream->Write(mBuffer, mFill);
        XAssert(written == mFill, "XCXMLImage::WriteHex - Write stream error");
        mFill = 0;
    }

private:
    enum { kSize = 1024 };

    KestraXML::XIXMLWriteStream* mStream;
    int mFill;
    char mBuffer[kSize];
};

void CheckRun(uint64_t count, uint64_t position, uint64_t total) {
    XAssert(count + position <= total, "IZelImage::Read - Wrong data");
}

} // namespace

void WriteHexImage(const XTIMatrix<unsigned int>& image, KestraXML::XIXMLWriteStream* stream) {
    const unsigned int width = image.GetWidth();
    const unsigned int height = image.GetHeight();
    if (width == 0 || height == 0) return;
    XAssertPointer(stream);
    const unsigned int* p = image.GetData();
    XAssertPointer(p);
    const size_t total = static_cast<size_t>(width) * height;

    XCHexWordWriter out(stream);
    out.Word(1);
    out.Word(width);
    out.Word(height);
    size_t i = 0;
    while (i < total) {
        // A run of equal pixels, at least one.
        size_t j = i + 1;
        while (j < total && p[j] == p[i]) ++j;
        out.Word(static_cast<uint32_t>(j - i));
        out.Word(p[i]);
        i = j;
        if (i == total) break;
        // Then the pixels that differ from their successor, up to and with the first one
        // that equals it (or the last pixel).
        j = i;
        while (j + 1 < total && p[j] != p[j + 1]) ++j;
        out.Word(static_cast<uint32_t>(j + 1 - i));
        for (; i <= j; ++i) out.Word(p[i]);
    }
    out.Flush();
}

XCHexPixels DecodeHexImage(KestraXML::CXMLReadStream* stream) {
    XAssertPointer(stream);
    XCHexWordReader in(stream);
    XCHexPixels result;
    // What a 0 x 0 image writes: nothing.
    if (in.AtEnd()) return result;

    uint32_t version = in.Word();
    if (version == 0x1000000)
        in.SetSwap(true);
    else if (version != 1)
        XThrow("Unknown format");
    const uint32_t width = in.Word();
    const uint32_t height = in.Word();
    std::unique_ptr<unsigned int[]> data(XAllocMatrix<unsigned int>(width, height, false));

    // Alpha is not kept: every pixel comes out opaque.
    const uint32_t opaque = 0xFF000000u;
    const uint64_t total = static_cast<uint64_t>(width) * height;
    uint64_t position = 0;
    unsigned int* p = data.get();
    while (position < total) {
        uint32_t count = in.Word();
        CheckRun(count, position, total);
        uint32_t pixel = in.Word() | opaque;
        std::fill(p + position, p + position + count, pixel);
        position += count;
        if (position == total) break;
        count = in.Word();
        CheckRun(count, position, total);
        for (uint32_t k = 0; k < count; ++k) p[position++] = in.Word() | opaque;
    }
    result.width = width;
    result.height = height;
    result.data = std::move(data);
    return result;
}

bool XCXMLImage::Write(KestraXML::XIXMLWriteStream* stream, int, KestraXML::XIXMLData*) {
    try {
        WriteHexImage(*this, stream);
        return true;
    } catch (...) {
        return false;
    }
}

KestraXML::XIXMLData::IXMLCData* XCXMLImage::Clone(KestraXML::XIXMLElement*) {
    try {
        return new XCXMLImage(mWidth, mHeight, mData);
    } catch (...) {
        return nullptr;
    }
}

void XCXMLImage::Destroy() {
    if (RefCount() == 0) delete this;
}

} // namespace Kestra
