#include "frame/Providers.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/SceneGeometry.h"
#include "frame/StreamAdapters.h"
#include "frame/SceneImage.h"
#include "legacy/DBIO.h"
#include "legacy/TextWriter.h"

#include <new>
#include <string>

namespace KeZel {

using namespace Kestra;

void ZelAttachProvider(KestraXML::XIXMLElement* element, KestraXML::XIXMLData::IXMLCData* provider) {
    KestraXML::XIXMLData* node = nullptr;
    try {
        node = element->NewData(provider);
    } catch (...) {
        provider->Destroy();
        throw;
    }
    if (!node) {
        provider->Destroy();
        XThrow("No memory availiable");
    }
}

CZELProvider::CZELProvider(CZEL* zel) : mZel(zel) {
    if (!mZel) XThrow("");
}

bool CZELProvider::Write(KestraXML::XIXMLWriteStream* stream, int, KestraXML::XIXMLData*) {
    try {
        bool done;
        {
            // The buffered stream reaches the document when it is destroyed, before the
            // block's end is written.
            CZelXMLWriteStream buffered(stream);
            CWriter writer(&buffered, mZel);
            done = WriteBlock(&writer);
        }
        return done;
    } catch (const std::exception& e) {
        mZel->report(e.what());
    } catch (...) {
        mZel->report("Unknown provider writing exception");
    }
    return false;
}

KestraXML::XIXMLData::IXMLCData* CZELProvider::Clone(KestraXML::XIXMLElement*) {
    try {
        return CloneProvider();
    } catch (...) {
        return nullptr;
    }
}

bool CPointsProvider::Write(KestraXML::XIXMLWriteStream* stream, int indent, KestraXML::XIXMLData* node) {
    if (node) {
        try {
            ZelNoteInternalComponent(mZel, node->AsNode()->GetParent());
        } catch (const std::exception& e) {
            mZel->report(e.what());
            return false;
        } catch (...) {
            mZel->report("Unknown provider writing exception");
            return false;
        }
    }
    return CZELProvider::Write(stream, indent, node);
}

bool CPointsProvider::WriteBlock(CWriter* writer) {
    if (!writer) XThrow("CDBIO::write() : no writer provided!");
    CDBIO(mZel, nullptr, writer).writePoints();
    return true;
}

bool CPolygonsProvider::WriteBlock(CWriter* writer) {
    if (!writer) XThrow("CDBIO::write() : no writer provided!");
    CDBIO(mZel, nullptr, writer).writePolygons();
    return true;
}

bool CImageProvider::Write(KestraXML::XIXMLWriteStream* stream, int, KestraXML::XIXMLData*) {
    try {
        mImage->writeHex(stream);
        return true;
    } catch (const std::exception& e) {
        mZel->report(e.what());
    } catch (...) {
        mZel->report("CImageProvider::Write - Unknown exception");
    }
    return false;
}

KestraXML::XIXMLData::IXMLCData* CImageProvider::Clone(KestraXML::XIXMLElement*) {
    return new (std::nothrow) CImageProvider(mZel, mImage);
}

} // namespace KeZel
