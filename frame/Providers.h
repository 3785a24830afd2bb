// Data block providers: the tree holds one small object per block, and the XML writer
// asks it to stream the block's content at its place in the document.
#pragma once

#include "xml/XMLInterfaces.h"

namespace KeZel {

class CZEL;
class CZelImage;
class CWriter;

// Gives `provider` to a new data node of `element`. When the element refuses it (it
// holds a data node already), the provider is destroyed and the refusal raised.
void ZelAttachProvider(KestraXML::XIXMLElement* element, KestraXML::XIXMLData::IXMLCData* provider);

// Base of the text blocks (points, polygons): the block is written by a text writer over
// a buffered stream into the document.
class CZELProvider : public KestraXML::XIXMLData::IXMLCData {
public:
    explicit CZELProvider(CZEL* zel);

    bool Write(KestraXML::XIXMLWriteStream* stream, int indent, KestraXML::XIXMLData* node) override;
    IXMLCData* Clone(KestraXML::XIXMLElement* element) override;
    void Destroy() override { delete this; }
    ~CZELProvider() override {}

    virtual bool WriteBlock(CWriter* writer) = 0;
    virtual CZELProvider* CloneProvider() = 0;

protected:
    CZEL* mZel;
};

// The Points block: from the scene's table, or from the storage when the manager has
// one. Writing a component's points first tells the storage which component they are.
class CPointsProvider : public CZELProvider {
public:
    explicit CPointsProvider(CZEL* zel) : CZELProvider(zel) {}

    bool Write(KestraXML::XIXMLWriteStream* stream, int indent, KestraXML::XIXMLData* node) override;
    // Raises "CDBIO::write() : no writer provided!" without a writer.
    bool WriteBlock(CWriter* writer) override;
    CZELProvider* CloneProvider() override { return new CPointsProvider(mZel); }
};

// The Polygons block, from the scene's table or from the storage.
class CPolygonsProvider : public CZELProvider {
public:
    explicit CPolygonsProvider(CZEL* zel) : CZELProvider(zel) {}

    // Raises "CDBIO::write() : no writer provided!" without a writer.
    bool WriteBlock(CWriter* writer) override;
    CZELProvider* CloneProvider() override { return new CPolygonsProvider(mZel); }
};

// An image block, written as hexadecimal words. The image is not owned: copies of the
// node point at the same image.
class CImageProvider : public KestraXML::XIXMLData::IXMLCData {
public:
    CImageProvider(CZEL* zel, CZelImage* image) : mZel(zel), mImage(image) {}

    bool Write(KestraXML::XIXMLWriteStream* stream, int indent, KestraXML::XIXMLData* node) override;
    IXMLCData* Clone(KestraXML::XIXMLElement* element) override;
    void Destroy() override { delete this; }

private:
    CZEL* mZel;
    CZelImage* mImage;
};

} // namespace KeZel
