#include "support/SceneFixture.h"

#include "xml/XMLParser.h"

#include <memory>
#include <vector>

namespace ZelTest {

using KestraXML::XIXMLElement;

SceneFixture::SceneFixture(KeZel::EVersionZEL version)
    : mgr(&feedback, nullptr, version), zel(*static_cast<KeZel::CZEL*>(mgr.get())), io(&zel),
      root(tree.GetRoot()->NewElement(tree.GetRoot()->GetKey("Zel.File"))) {}

XIXMLElement* SceneFixture::fresh(const char* name) {
    return tree.GetRoot()->NewElement(tree.GetRoot()->GetKey(name));
}

std::string SceneFixture::text(XIXMLElement* e) {
    KeZel::CZelMemoryStream out;
    {
        KeZel::CZELXMLWriteStream stream(&out);
        e->Write(&stream);
    }
    return out.bytes();
}

std::string SceneFixture::flat(XIXMLElement* e) {
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

XIXMLElement* SceneFixture::parse(const std::string& xml) {
    static std::vector<std::unique_ptr<KestraXML::XCXMLTree>> trees;
    KeZel::CZelMemoryStream bytes(xml);
    KeZel::CZELXMLReadStream input(&bytes);
    KestraXML::CXMLTreeReader reader;
    trees.emplace_back(reader.Read(&input));
    XIXMLElement* top = trees.back()->GetRoot();
    XIXMLElement* first = top->GetFirstElement();
    return first ? first : top;
}

unsigned SceneFixture::count(const XIXMLElement* parent, const char* name) {
    unsigned n = 0;
    for (XIXMLElement* e = KeZel::CZelXMLIO::find(parent, name); e; e = e->FindNextElement()) ++n;
    return n;
}

XIXMLElement* SceneFixture::child(const XIXMLElement* e, const char* name) {
    return KeZel::CZelXMLIO::find(e, name);
}

const char* SceneFixture::attribute(const XIXMLElement* e, const char* name) {
    KestraXML::XIXMLAttribute* a = KeZel::CZelXMLIO::findAttribute(e, name);
    return a ? a->GetValue() : nullptr;
}

std::string SceneFixture::children(const XIXMLElement* e) {
    std::string names;
    for (XIXMLElement* c = e->GetFirstElement(); c; c = c->GetNextElement())
        names += (names.empty() ? "" : " ") + std::string(*c->GetKey());
    return names;
}

} // namespace ZelTest
