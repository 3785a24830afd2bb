// A manager to build entities against, a document to write their elements into, and the
// text of what was written. Shared by the entity test programs.
#pragma once

#include "codec/ZelXMLIO.h"
#include "frame/CZEL.h"
#include "frame/StreamAdapters.h"
#include "frame/ValueHelpers.h"
#include "support/TestSupport.h"
#include "xml/XMLTree.h"

#include <string>

namespace ZelTest {

struct SceneFixture {
    KeZel::CZelReportCollector feedback;
    KeZel::CZelMgrHandle mgr;
    KeZel::CZEL& zel;
    KeZel::CZelXMLIO io;
    KestraXML::XCXMLTree tree;
    KestraXML::XIXMLElement* root;

    explicit SceneFixture(KeZel::EVersionZEL version = KeZel::eZelVersionCurrent);

    // A new empty element under the document, apart from `root`.
    KestraXML::XIXMLElement* fresh(const char* name = "E");

    // The element as the writer prints it.
    static std::string text(KestraXML::XIXMLElement* e);
    // As text, with each attribute back on its element's line: the writer gives an element
    // of several attributes one line for each.
    static std::string flat(KestraXML::XIXMLElement* e);
    // Parses the document `xml` and answers its first element; the document lives as long
    // as the test program.
    static KestraXML::XIXMLElement* parse(const std::string& xml);
    static unsigned count(const KestraXML::XIXMLElement* parent, const char* name);
    static KestraXML::XIXMLElement* child(const KestraXML::XIXMLElement* e, const char* name);
    static const char* attribute(const KestraXML::XIXMLElement* e, const char* name);
    // The names of the element's children, in order, separated by blanks.
    static std::string children(const KestraXML::XIXMLElement* e);
};

inline bool Same(const KeZel::CZelVector& a, const KeZel::CZelVector& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

inline KeZel::CZelUUID Id(unsigned char seed) {
    KeZel::CZelUUID id;
    for (int i = 0; i < 16; ++i) id.mBytes[i] = static_cast<unsigned char>(seed + i);
    return id;
}

} // namespace ZelTest
