// Reading a scene: the branch chosen by the first byte, the version pass, the tree read
// with its data blocks decoded in flight, the entity read and the conversion passes.
#include "codec/SceneLayout.h"
#include "codec/ZelXMLIO.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/Detection.h"
#include "frame/Providers.h"
#include "frame/StreamAdapters.h"
#include "frame/UUID.h"
#include "legacy/TokenReader.h"
#include "xml/XMLTree.h"

#include <cstring>
#include <string>

namespace KeZel {

using namespace Kestra;
using KestraXML::XCXMLTree;
using KestraXML::XIXMLElement;
using KestraXML::XIXMLNode;

namespace {

const CZelVersion kVersion200(2, 0, 0);
const CZelVersion kVersion202(2, 0, 2);

// Ends the secondary stream of the legacy branch on every way out.
struct SecondaryStream {
    CZelStream* mStream = nullptr;
    ~SecondaryStream() {
        if (mStream) mStream->release();
    }
};

} // namespace

std::string ZelDbFileName(const std::string& name) {
    std::string cut = name.substr(0, 255);
    std::string::size_type at = cut.find_last_of('\\');
    if (at == std::string::npos) at = cut.find_last_of('/');
    return at == std::string::npos ? cut : cut.substr(at + 1);
}

int CZEL::read(CZelStream* stream) {
    SecondaryStream secondary;
    try {
        XRequire(stream != nullptr, "read strem is NULL");
        unsigned int start = stream->tell();
        unsigned char first = 0;
        int got = stream->read(&first, 1);
        stream->seek(start);

        if (got == 1 && first == '<') {
            int answer = readXML(stream, start);
            mConverting = false;
            return answer;
        }

        // The legacy text pair: options, then the geometry database beside it.
        mConverting = true;
        if (mLegacyLevel[0] == 2) {
            CTokenReader options(stream, this);
            readOptionFile(options);
            secondary.mStream = stream->openStream(ZelDbFileName(mDbName).c_str(), 0);
            if (!secondary.mStream) XThrow("Can't open secondary stream!");
            {
                CTokenReader db(secondary.mStream, this);
                readDbFile(db);
            }
            secondary.mStream->release();
            secondary.mStream = nullptr;
            convertLegacyOptions();
        }
        fixModelInstances();
        mConverting = false;
        return 0;
    } catch (const std::exception& e) {
        report(e.what());
    } catch (...) {
        report("Unknown reading error");
    }
    mConverting = false;
    return 1;
}

int CZEL::readXML(CZelStream* stream, unsigned int start) {
    // The version pass stops at the Zel instruction. A file without a usable one is not
    // a scene, whatever stopped the pass.
    CCheckZELFile check;
    try {
        CZELXMLReadStream input(stream);
        check.Parse(&input);
    } catch (const std::exception&) {
        if (check.mLibrary.major != 0) throw;
    }
    if (check.mLibrary.major == 0) {
        report("Not a valid zel file");
        return 1;
    }
    stream->seek(start);
    mFileVersion[0] = check.mFileMajor;
    mFileVersion[1] = check.mFileMinor;
    mVersion = check.mLibrary;
    mConverting = mVersion < kVersion200;
    mBefore202 = mVersion < kVersion202;

    // The tree read decodes the data blocks into the scene as they come.
    mImages.clear();
    XCXMLTree* tree;
    {
        CZELXMLReadStream input(stream);
        KestraXML::CXMLTreeReader reader(this);
        tree = reader.Read(&input);
    }
    deleteTree();
    mTree = tree;
    XIXMLElement* root = mTree->GetRoot();
    mFileNode = CZelXMLIO::find(root, "Zel.File");
    XAssertPointer(mFileNode, "Zel.File");
    for (XIXMLNode* node = root->GetFirstNode(); node && !(mApplicationNode && mZelNode);
         node = node->GetNext())
        if (KestraXML::XIXMLPI* pi = node->AsPI()) {
            if (!mApplicationNode && std::strcmp(pi->GetTarget(), "Application") == 0) mApplicationNode = pi;
            if (!mZelNode && std::strcmp(pi->GetTarget(), "Zel") == 0) mZelNode = pi;
        }

    if (mConverting) {
        // Their data is in the scene now.
        CZelXMLIO::removeAll(mFileNode, "Materials");
        CZelXMLIO::removeAll(mFileNode, "Lights");
        CZelXMLIO::removeAll(mFileNode, "Options");
        convertOldSceneSettings();
    }
    CZelXMLIO io(this, true);
    ZelReadScene(io, mFileNode);
    if (mConverting) {
        fixSunLight();
        convertOldViewSettings();
    }

    // A scene once read can always be written with its preview first.
    XIXMLElement* images = CZelXMLIO::find(mFileNode, "Images");
    if (!images) {
        images = CZelXMLIO::add(mFileNode, "Images");
        mFileNode->MoveNode(images->AsNode(), mFileNode->GetFirstElement()->AsNode());
    }
    if (!CZelXMLIO::find(mFileNode, "Preview.Image")) {
        XIXMLElement* preview = CZelXMLIO::add(mFileNode, "Preview.Image");
        preview->NewData(new CImageProvider(this, &mPreviewImage));
        mFileNode->MoveNode(preview->AsNode(), images->AsNode());
    }
    fixModelInstances();
    return 0;
}

bool CZEL::Read(XIXMLElement* element, KestraXML::CXMLReadStream* stream, KestraXML::CXMLParser*) {
    // A block in the prolog belongs to the document, which has no name.
    const char* name = *element->GetKey() ? *element->GetKey() : "";
    try {
        if (std::strcmp(name, "Preview.Image") == 0) {
            // The provider goes on whether the block decodes or not, so that a preview
            // set later is always written.
            ZelAttachProvider(element, new CImageProvider(this, &mPreviewImage));
            mPreviewImage.readHex(stream);
            return true;
        }
        if (mSkipDataBlocks) return true;
        if (std::strcmp(name, "Image") == 0) {
            CZelImage* image = mImages.newItem();
            XAssertPointer(image);
            if (CZelXMLIO::findAttribute(element, "UUID"))
                image->setUUID(ZelUUIDFromText(CZelXMLIO::attributeText(element, "UUID")));
            ZelAttachProvider(element, new CImageProvider(this, image));
            image->readHex(stream);
            return true;
        }
        if (std::strcmp(name, "Points") == 0) {
            readGeometryBlock(element, stream, true);
            return true;
        }
        if (std::strcmp(name, "Polygons") == 0) {
            readGeometryBlock(element, stream, false);
            return true;
        }
        if (std::strcmp(name, "Options") == 0 || std::strcmp(name, "Materials") == 0 ||
            std::strcmp(name, "Lights") == 0)
            XThrow("Legacy data blocks can't be read by this library yet");
        XThrow("CData block unknow");
    } catch (const std::exception& e) {
        // A block's failure stops that block only.
        std::string text = std::string("Error \"") + e.what() + "\" while parsing '" + name + "' data block";
        report(text.c_str());
    } catch (...) {
        std::string text = std::string("Unknownm exception while parsing '") + name + "' data block";
        report(text.c_str());
    }
    return true;
}

void CZEL::readDataBlocks(CZelStream* stream, CZelExtStorage* storage) {
    struct Restore {
        CZEL* zel;
        CZelExtStorage* old;
        ~Restore() { zel->mExtStorage = old; }
    } restore{this, mExtStorage};
    mExtStorage = storage;
    CZELXMLReadStream input(stream);
    KestraXML::CXMLTreeReader reader(this);
    delete reader.Read(&input);
}

bool CZEL::isVantoriumFile(const XIXMLNode* node) const {
    if (!node) XThrow("CZEL::isVantoriumFile - inNode is NULL");
    const XIXMLNode* top = node;
    while (top->GetParent()) top = top->GetParent()->AsNode();
    const XIXMLElement* document = const_cast<XIXMLNode*>(top)->AsElement();
    if (!document) return false;
    for (XIXMLNode* n = document->GetFirstNode(); n; n = n->GetNext())
        if (KestraXML::XIXMLPI* pi = n->AsPI())
            if (std::strcmp(pi->GetTarget(), "Application") == 0) {
                const char* data = pi->GetData();
                return std::strncmp(data, "name=\"Van\xE2\x80\xA2torium\"", 19) == 0 ||
                       std::strncmp(data, "name=\"Vantorium\"", 16) == 0;
            }
    return false;
}

bool CZEL::isVantoriumFile() const {
    return mFileNode && isVantoriumFile(mFileNode->AsNode());
}

} // namespace KeZel
