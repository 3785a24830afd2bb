// Writing a scene: the tree held since construction or the last read is brought up to
// date in place, so that what this library does not know stays in the file.
#include "codec/SceneLayout.h"
#include "codec/ZelXMLIO.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/Providers.h"
#include "frame/StreamAdapters.h"
#include "frame/UUID.h"
#include "xml/XMLTree.h"

#include <cstdio>
#include <string>

namespace KeZel {

using namespace Kestra;
using KestraXML::XIXMLElement;

namespace {

const CZelVersion kLibrary(3, 0, 2);
const CZelVersion kSafe(3, 0, 1);

std::string Triple(const CZelVersion& v) {
    char text[64];
    std::snprintf(text, sizeof text, "%d.%d.%d", v.major, v.minor, v.patch);
    return text;
}

} // namespace

int CZEL::write(CZelStream* stream) {
    return write(stream, nullptr);
}

int CZEL::write(CZelStream* stream, const CZelVersion* version) {
    try {
        XRequire(stream != nullptr, "write stream is NULL");
        XAssertPointer(mTree, "mTree is NULL");
        XAssertPointer(mFileNode, "mFileNode is NULL");
        rebuildImages();
        CZelXMLIO io(this);
        ZelWriteScene(io, mFileNode);
        CZELXMLWriteStream output(stream);
        refreshInstructions(version);
        mTree->GetRoot()->Write(&output);
        return 0;
    } catch (const std::exception& e) {
        std::string text = std::string("Error \"") + e.what() + "\" while writting";
        report(text.c_str());
    } catch (...) {
        report("Unknownm exception while writting");
    }
    return 2;
}

void CZEL::rebuildImages() {
    // In place when there is one, so that writing twice gives the same bytes; a new one
    // goes in front of the internal components, or at the end.
    bool existed = CZelXMLIO::find(mFileNode, "Images") != nullptr;
    XIXMLElement* images = CZelXMLIO::replace(mFileNode, "Images");
    XIXMLElement* components = CZelXMLIO::find(mFileNode, "InternalComponentDefinitions");
    if (!existed && components) mFileNode->MoveNode(images->AsNode(), components->AsNode());
    for (unsigned int i = 0; i < mImages.getCount(); ++i) {
        CZelImage* image = mImages.at(i);
        XIXMLElement* item = CZelXMLIO::add(images, "Image");
        CZelXMLIO::setAttribute(item, "UUID", ZelUUIDToText(*image->getUUID()).c_str());
        item->NewData(new CImageProvider(this, image));
    }
}

void CZEL::refreshInstructions(const CZelVersion* version) {
    if (mApplicationNode) {
        std::string data = "name=\"" + mApplicationName + "\" version=\"" + mApplicationVersion + "\"";
        mApplicationNode->SetData(data.c_str());
    }
    if (mZelNode) {
        std::string safe = Triple(version ? *version : kSafe);
        std::string data = "library=\"" + Triple(kLibrary) + "\" file=\"5.0\" min_version=\"" + safe +
                           "\" safe_version=\"" + safe + "\"";
        mZelNode->SetData(data.c_str());
    }
}

} // namespace KeZel
