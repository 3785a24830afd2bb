#include "frame/SceneImage.h"

#include "foundation/XMLImage.h"

namespace KeZel {

CZelImage::CZelImage(CZEL* owner) : mOwner(owner), mUUID() {}

CZelImage::CZelImage(CZEL* owner, unsigned int width, unsigned int height, const unsigned int* data)
    : Kestra::XTCMatrix<unsigned int, TZelFrontier<IZelImage>>(width, height, data), mOwner(owner), mUUID() {}

void CZelImage::Release() {
    if (DecRef() && !mOwner) delete this;
}

void CZelImage::readHex(KestraXML::CXMLReadStream* stream) {
    Kestra::ReadHexImage(stream, *this);
}

void CZelImage::writeHex(KestraXML::XIXMLWriteStream* stream) const {
    Kestra::WriteHexImage(*this, stream);
}

void CZelImage::setSize(unsigned int width, unsigned int height) {
    Assign(width, height, nullptr);
}

} // namespace KeZel
