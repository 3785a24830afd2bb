// Images inside XML documents: the hexadecimal block with its run-length scheme, and
// XCXMLImage, an image that is its own data block provider.
//
// Block: 8-digit upper-case hexadecimal words, most significant digit first, no
// separators. Version word 1 (0x1000000 from a machine of the other byte order, whose
// words are then read reversed), width, height, then until all pixels are given: a
// repeat run (count, one pixel) and, if pixels remain, a literal run (count, pixels).
// A 0 x 0 image writes nothing at all.
#pragma once

#include "foundation/Pixels.h"
#include "xml/XMLInterfaces.h"

#include <memory>

namespace Kestra {

// Writes the block of `image`. A short write raises
// "XCXMLImage::WriteHex - Write stream error (assertion failed)".
void WriteHexImage(const XTIMatrix<unsigned int>& image, KestraXML::XIXMLWriteStream* stream);

// A decoded block: its size and its pixels (alpha set to 0xFF), null when empty.
struct XCHexPixels {
    unsigned int width = 0;
    unsigned int height = 0;
    std::unique_ptr<unsigned int[]> data;
};

// Decodes a block from the stream. An empty block is the 0 x 0 image. A damaged block
// raises with the texts of the format and leaves nothing behind.
XCHexPixels DecodeHexImage(KestraXML::CXMLReadStream* stream);

// Replaces the content of `image` by the block read from the stream. On failure the
// image is 0 x 0 and the exception goes on.
template <class I> void ReadHexImage(KestraXML::CXMLReadStream* stream, XTCMatrix<unsigned int, I>& image) {
    try {
        XCHexPixels pixels = DecodeHexImage(stream);
        image.Adopt(pixels.width, pixels.height, pixels.data.release());
    } catch (...) {
        image.Clear();
        throw;
    }
}

class XCXMLImage : public XCPixels, public KestraXML::XIXMLData::IXMLCData {
public:
    XCXMLImage() {}
    XCXMLImage(unsigned int width, unsigned int height, const unsigned int* data)
        : XCPixels(width, height, data) {}

    // Writes the block; any failure at all answers false.
    bool Write(KestraXML::XIXMLWriteStream* stream, int indent, KestraXML::XIXMLData* node) override;
    // A copy of the pixels for the copy of the node; null when it can't be made.
    IXMLCData* Clone(KestraXML::XIXMLElement* element) override;
    // The data node that owns the provider gives it up: the image ends now, or with the
    // last Release when references are still held.
    void Destroy() override;

    // Replaces the content from a block; raises as ReadHexImage does.
    void Read(KestraXML::CXMLReadStream* stream) { ReadHexImage(stream, *this); }
};

} // namespace Kestra
