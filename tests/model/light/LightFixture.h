// A manager, a document with an element to write into, and the text of what was written.
#pragma once

#include "codec/ZelXMLIO.h"
#include "frame/CZEL.h"
#include "frame/StreamAdapters.h"
#include "support/TestSupport.h"
#include "xml/XMLTree.h"

#include <string>

namespace LightTest {

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
    // As text, with each attribute back on its element's line: the writer gives an element
    // of several attributes one line for each.
    static std::string flat(KestraXML::XIXMLElement* e) {
        std::string t = text(e), out;
        for (size_t i = 0; i < t.size(); ++i) {
            size_t j = i;
            if (t[j] == '\n') {
                ++j;
                while (j < t.size() && t[j] == '\t') ++j;
                if (j < t.size() && t[j] == ' ') {
                    i = j - 1;
                    continue;
                }
            }
            out += t[i];
        }
        return out;
    }
    // Parses the document `xml` and answers its first element.
    static KestraXML::XIXMLElement* parse(const std::string& xml);
};

} // namespace LightTest
