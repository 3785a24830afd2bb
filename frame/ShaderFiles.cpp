// Shaders stored alone, in files of their own: an XML document "Kestra.Shader" holding one
// Node, or the legacy text form.
#include "codec/ShaderCodec.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/StreamAdapters.h"
#include "legacy/TokenReader.h"
#include "model/geometry/IZelProperty.h"
#include "xml/XMLParser.h"
#include "xml/XMLTree.h"

#include <exception>
#include <memory>

namespace KeZel {

using namespace Kestra;
using KestraXML::XIXMLElement;

namespace {

// Sets a manager flag for a span and clears it on every way out.
class CFlagSpan {
public:
    explicit CFlagSpan(bool& flag) : mFlag(flag) { mFlag = true; }
    ~CFlagSpan() { mFlag = false; }
    CFlagSpan(const CFlagSpan&) = delete;
    CFlagSpan& operator=(const CFlagSpan&) = delete;

private:
    bool& mFlag;
};

ITCENode* RootOf(CZelProperty* property) {
    CZelTCE* tree = property ? property->getTCE() : nullptr;
    IRootNode* root = tree ? tree->getRootNode() : nullptr;
    return root ? root->asNode() : nullptr;
}

} // namespace

int CZEL::readShader(CZelProperty* property, CZelStream* stream) {
    try {
        if (!stream) XThrow("read strem is NULL");
        ITCENode* root = RootOf(property);
        if (!root) XThrow("Can't get root node");
        CZelTCE* tree = property->getTCE();

        unsigned int start = stream->tell();
        unsigned char first = 0;
        bool xml = stream->read(&first, 1) == 1 && first == '<';
        stream->seek(start);

        if (xml) {
            CZELXMLReadStream input(stream);
            KestraXML::CXMLTreeReader reader;
            std::unique_ptr<KestraXML::XCXMLTree> document(reader.Read(&input));
            const XIXMLElement* shader = CZelXMLIO::find(document->GetRoot(), "Kestra.Shader");
            if (!shader) XThrow("This is not a shader");
            CZelXMLIO io(this, true);
            CZelNodeReading reading = {tree, true, nullptr};
            CNodeRef node = ZelGetNode(io, CZelXMLIO::need(shader, "Node"), reading);
            XAssertPointer(node.get(), "CZEL::readShader - a root node in the file");
            root->setChild(0, node.get());
        } else {
            CFlagSpan converting(mConverting);
            CTokenReader reader(stream, this);
            // A legacy shader opens with two '!' marks.
            for (int i = 0; i < 2; ++i)
                if (reader.NextSignificant() != '!') XThrow("Reading wrong data type!");
            // The node reader of the legacy text notation is not part of this library
            // yet, so no tree can come from such a file.
            XThrow("Can't read tce");
        }
    } catch (const std::exception& e) {
        report(e.what());
        return 1;
    } catch (...) {
        report("Unknown shader reading error");
        return 1;
    }
    return 0;
}

int CZEL::writeShader(CZelProperty* property, CZelStream* stream) {
    try {
        if (!property) XThrow("Property is NULL");
        ITCENode* root = RootOf(property);
        if (!root) XThrow("Property root is NULL");
        const ITCENode* child = root->getChild(0);
        if (!child) XThrow("Property root's child is NULL");
        XAssertPointer(stream, "CZEL::writeShader - stream is NULL");

        KestraXML::XCXMLTree document;
        XIXMLElement* shader = CZelXMLIO::add(document.GetRoot(), "Kestra.Shader");
        CZelXMLIO io(this);
        ZelAddNode(io, shader, "Node", child);
        CZELXMLWriteStream output(stream);
        document.GetRoot()->Write(&output);
    } catch (const std::exception& e) {
        report(e.what());
        return 2;
    } catch (...) {
        report("Unknown shader writing error");
        return 2;
    }
    return 0;
}

} // namespace KeZel
