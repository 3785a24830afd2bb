#include "LightFixture.h"

#include "xml/XMLParser.h"

#include <memory>
#include <vector>

namespace LightTest {

namespace {

struct CStringSource : KestraXML::CXMLReadStream {
    explicit CStringSource(const std::string& text) : mText(text), mAt(0) {}
    int Read(void* buffer, int length) override {
        size_t n = mText.size() - mAt;
        if (n > static_cast<size_t>(length)) n = static_cast<size_t>(length);
        mText.copy(static_cast<char*>(buffer), n, mAt);
        mAt += n;
        return static_cast<int>(n);
    }
    std::string mText;
    size_t mAt;
};

// Parsed documents live as long as the test program: a test reads them once.
std::vector<std::unique_ptr<KestraXML::XCXMLTree>>& Parsed() {
    static std::vector<std::unique_ptr<KestraXML::XCXMLTree>> trees;
    return trees;
}

} // namespace

KestraXML::XIXMLElement* Fixture::parse(const std::string& xml) {
    CStringSource source(xml);
    KestraXML::CXMLTreeReader reader;
    Parsed().emplace_back(reader.Read(&source));
    KestraXML::XIXMLElement* top = Parsed().back()->GetRoot();
    KestraXML::XIXMLElement* first = top->GetFirstElement();
    return first ? first : top;
}

} // namespace LightTest
