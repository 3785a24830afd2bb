// CZelImage: the scene's image, the preview and each item of the image list.
#pragma once

#include "foundation/Pixels.h"
#include "frame/ZelFrontier.h"
#include "frame/ZelImage.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

class CZEL;

class CZelImage : public Kestra::XTCMatrix<unsigned int, TZelFrontier<IZelImage>> {
public:
    // `owner` is the scene that keeps the image, or null for a free-standing one (a
    // preview read without a scene). The identity starts null.
    explicit CZelImage(CZEL* owner = nullptr);
    CZelImage(CZEL* owner, unsigned int width, unsigned int height, const unsigned int* data);

    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    void setSize(unsigned int width, unsigned int height) override;

    // A scene keeps its images by value and ends them itself: for an image with an owner
    // the count only tracks the host's references. A free-standing image ends with its
    // last Release.
    void Release() override;

    CZEL* getZel() const { return mOwner; }

    // Replaces the pixels by a hex block; on failure the image is 0 x 0 and the
    // exception goes on.
    void readHex(KestraXML::CXMLReadStream* stream);
    // Writes the pixels as a hex block; raises on a short write.
    void writeHex(KestraXML::XIXMLWriteStream* stream) const;

private:
    CZEL* mOwner;
    CZelUUID mUUID;
};

} // namespace KeZel
