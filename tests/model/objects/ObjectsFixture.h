// A manager, a document to write into, and helpers to look at what was written. Shared by
// the tests of objects and of scenarios.
#pragma once

#include "codec/ZelXMLIO.h"
#include "frame/CZEL.h"
#include "frame/StreamAdapters.h"
#include "support/TestSupport.h"
#include "xml/XMLTree.h"

#include <string>

namespace ObjectsTest {

inline KeZel::CZelVector V(double x, double y, double z) {
    KeZel::CZelVector v = {x, y, z};
    return v;
}

inline bool Same(const KeZel::CZelVector& a, const KeZel::CZelVector& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

struct Fixture {
    KeZel::CZelReportCollector feedback;
    KeZel::CZelMgrHandle mgr;
    KeZel::CZEL& zel;
    KeZel::CZelXMLIO io;
    KestraXML::XCXMLTree tree;

    explicit Fixture(KeZel::EVersionZEL version = KeZel::eZelVersionCurrent)
        : mgr(&feedback, nullptr, version), zel(*static_cast<KeZel::CZEL*>(mgr.get())), io(&zel) {}

    // A new empty element at the top of the document.
    KestraXML::XIXMLElement* fresh(const char* name = "E") {
        return tree.GetRoot()->NewElement(tree.GetRoot()->GetKey(name));
    }
    static KestraXML::XIXMLElement* child(const KestraXML::XIXMLElement* e, const char* name) {
        return KeZel::CZelXMLIO::find(e, name);
    }
    static const char* attribute(const KestraXML::XIXMLElement* e, const char* name) {
        KestraXML::XIXMLAttribute* a = KeZel::CZelXMLIO::findAttribute(e, name);
        return a ? a->GetValue() : nullptr;
    }
    // The element as the writer prints it, with each attribute back on its element's line.
    static std::string flat(KestraXML::XIXMLElement* e) {
        KeZel::CZelMemoryStream out;
        {
            KeZel::CZELXMLWriteStream stream(&out);
            e->Write(&stream);
        }
        std::string t = out.bytes(), result;
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
            result += t[i];
        }
        return result;
    }
    // The names of the element's children, in order, separated by blanks.
    static std::string children(const KestraXML::XIXMLElement* e) {
        std::string names;
        for (KestraXML::XIXMLElement* c = e->GetFirstElement(); c; c = c->GetNextElement())
            names += (names.empty() ? "" : " ") + std::string(*c->GetKey());
        return names;
    }
};

} // namespace ObjectsTest
