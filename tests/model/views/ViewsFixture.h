// A manager to build views against, a document to write into, and the text of what was
// written. Shared by the views and the objects test programs.
#pragma once

#include "codec/ZelXMLIO.h"
#include "frame/CZEL.h"
#include "frame/StreamAdapters.h"
#include "support/TestSupport.h"
#include "xml/XMLParser.h"
#include "xml/XMLTree.h"

#include <memory>
#include <string>
#include <vector>

namespace ViewsTest {

struct Fixture {
    KeZel::CZelReportCollector feedback;
    KeZel::CZelMgrHandle mgr;
    KeZel::CZEL& zel;
    KeZel::CZelXMLIO io;
    KestraXML::XCXMLTree tree;
    KestraXML::XIXMLElement* root;

    explicit Fixture(KeZel::EVersionZEL version = KeZel::eZelVersionCurrent)
        : mgr(&feedback, nullptr, version), zel(*static_cast<KeZel::CZEL*>(mgr.get())), io(&zel),
          root(tree.GetRoot()->NewElement(tree.GetRoot()->GetKey("Zel.File"))) {}

    // A new empty element under the document, apart from `root`.
    KestraXML::XIXMLElement* fresh(const char* name = "E") {
        return tree.GetRoot()->NewElement(tree.GetRoot()->GetKey(name));
    }
    static std::string text(KestraXML::XIXMLElement* e) {
        KeZel::CZelMemoryStream out;
        KeZel::CZELXMLWriteStream stream(&out);
        e->Write(&stream);
        return out.bytes();
    }
    static unsigned count(const KestraXML::XIXMLElement* parent, const char* name) {
        unsigned n = 0;
        for (KestraXML::XIXMLElement* e = KeZel::CZelXMLIO::find(parent, name); e; e = e->FindNextElement())
            ++n;
        return n;
    }
    // Parses the document `xml` and answers its first element; the document lives as long
    // as the test program.
    static KestraXML::XIXMLElement* parse(const std::string& xml) {
        struct Source : KestraXML::CXMLReadStream {
            explicit Source(const std::string& t) : mText(t), mAt(0) {}
            int Read(void* buffer, int length) override {
                size_t n = mText.size() - mAt;
                if (n > static_cast<size_t>(length)) n = static_cast<size_t>(length);
                mText.copy(static_cast<char*>(buffer), n, mAt);
                mAt += n;
                return static_cast<int>(n);
            }
            std::string mText;
            size_t mAt;
        } source(xml);
        static std::vector<std::unique_ptr<KestraXML::XCXMLTree>> trees;
        KestraXML::CXMLTreeReader reader;
        trees.emplace_back(reader.Read(&source));
        KestraXML::XIXMLElement* top = trees.back()->GetRoot();
        KestraXML::XIXMLElement* first = top->GetFirstElement();
        return first ? first : top;
    }
};

inline KeZel::CZelVector Vec(double x, double y, double z) {
    KeZel::CZelVector v = {x, y, z};
    return v;
}

inline bool Same(const KeZel::CZelVector& a, const KeZel::CZelVector& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

inline KeZel::CZelUUID Id(unsigned char seed) {
    KeZel::CZelUUID id;
    for (int i = 0; i < 16; ++i) id.mBytes[i] = static_cast<unsigned char>(seed + i);
    return id;
}

} // namespace ViewsTest
