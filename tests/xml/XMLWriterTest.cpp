#include "XmlTestSupport.h"
#include "support/TestSupport.h"

using namespace XmlTest;
using ZelTest::ErrorOf;

namespace {

// Every kind of node, in the one layout the writer produces.
const char kDocument[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<!DOCTYPE Zel.File PUBLIC \"pub\" \"sys\" [<!ENTITY x \"y\">]>\n"
                         "<!--top-->\n"
                         "<Zel.File version=\"3\">\n"
                         "\t<Empty/>\n"
                         "\t<Two\n"
                         "\t\t a=\"1\"\n"
                         "\t\t b=\"x&quot;y&amp;z<w>'\"/>\n"
                         "\t<Text>a&lt;b&gt;&amp;c\"d'</Text>\n"
                         "\t<Mixed>lead<Child/>\n"
                         "\t</Mixed>\n"
                         "\t<Block><![CDATA[raw ]] <x> & x]]]>\n"
                         "\t</Block>\n"
                         "\t<Nested>\n"
                         "\t\t<!--inner -- dashes-->\n"
                         "\t\t<Leaf k=\"v\">42 </Leaf>\n"
                         "\t</Nested>\n"
                         "</Zel.File>\n"
                         "<!--tail-->\n";

// Hands each block to the tree as a provider, as a scene reader does.
class ProviderMaker : public IXMLCDataReader {
public:
    bool Read(XIXMLElement* element, CXMLReadStream* stream, CXMLParser*) override {
        std::string block;
        char piece[100];
        for (int count; (count = stream->Read(piece, sizeof piece)) > 0;)
            block.append(piece, static_cast<size_t>(count));
        element->NewData(new TestProvider(block, nullptr));
        return true;
    }
};

void Build(XIXMLElement* root, int* destroyed) {
    root->NewPI("xml", "version=\"1.0\" encoding=\"UTF-8\"");
    root->NewDocType(root->GetKey("Zel.File"), "pub", "sys", "<!ENTITY x \"y\">");
    root->NewComment("top");
    XIXMLElement* file = root->NewElement(root->GetKey("Zel.File"));
    root->NewComment("tail");
    file->AddAttribute(file->GetKey("version"), "3");
    file->NewElement(file->GetKey("Empty"));
    XIXMLElement* two = file->NewElement(file->GetKey("Two"));
    two->AddAttribute(two->GetKey("a"), "1");
    two->AddAttribute(two->GetKey("b"), "x\"y&z<w>'");
    file->NewElement(file->GetKey("Text"))->NewData("a<b>&c\"d'");
    XIXMLElement* mixed = file->NewElement(file->GetKey("Mixed"));
    mixed->NewData("lead");
    mixed->NewElement(file->GetKey("Child"));
    file->NewElement(file->GetKey("Block"))->NewData(new TestProvider("raw ]] <x> & x]", destroyed));
    XIXMLElement* nested = file->NewElement(file->GetKey("Nested"));
    nested->NewComment("inner -- dashes");
    XIXMLElement* leaf = nested->NewElement(file->GetKey("Leaf"));
    leaf->AddAttribute(file->GetKey("k"), "v");
    leaf->NewData("42 ");
}

} // namespace

TEST(XmlWriter, ExactBytes) {
    int destroyed = 0;
    {
        XCXMLTree tree;
        Build(tree.GetRoot(), &destroyed);
        EXPECT_EQ(Written(tree.GetRoot()), kDocument);
    }
    EXPECT_EQ(destroyed, 1);

    // Texts and values longer than what one stream call is given.
    std::string text, escaped;
    for (int i = 0; i < 3000; ++i) {
        text += (i % 97 == 0) ? '&' : char('a' + i % 26);
        escaped += (i % 97 == 0) ? "&amp;" : std::string(1, char('a' + i % 26));
    }
    XCXMLTree longer;
    XIXMLElement* t = longer.GetRoot()->NewElement(longer.GetRoot()->GetKey("t"));
    t->AddAttribute(t->GetKey("v"), text.c_str());
    t->NewData(text.c_str());
    EXPECT_EQ(Written(t), "<t v=\"" + escaped + "\">" + escaped + "</t>");

    // Indentation deeper than one block of tabs.
    XCXMLTree deep;
    XIXMLElement* element = deep.GetRoot();
    for (int level = 0; level < 40; ++level) element = element->NewElement(element->GetKey("e"));
    std::string nested = Written(deep.GetRoot());
    EXPECT_NE(nested.find("\n" + std::string(39, '\t') + "<e/>\n" + std::string(38, '\t') + "</e>"),
              std::string::npos);
    EXPECT_EQ(nested.substr(0, 8), "<e>\n\t<e>");
    EXPECT_EQ(nested.substr(nested.size() - 6), "\n</e>\n");
}

TEST(XmlWriter, ShortWrites) {
    XCXMLTree tree;
    int destroyed = 0;
    Build(tree.GetRoot(), &destroyed);
    std::string document = kDocument;
    // The writer stops at the first byte refused, wherever that is: in a literal, a
    // name, an escaped run, an entity, a data block.
    size_t inBlock = document.find("raw ]]") + 3;
    for (size_t limit :
         {size_t(0), size_t(10), document.find("Zel.File version") + 3, document.find("&quot;") + 2,
          document.find("a&lt;") + 1, inBlock, document.size() - 1}) {
        StringWriter out;
        out.mLimit = static_cast<long>(limit);
        EXPECT_EQ(ErrorOf([&] { tree.GetRoot()->Write(&out); }),
                  limit == inBlock ? "exception" : "Can't write character")
            << limit;
        EXPECT_EQ(out.mText, document.substr(0, limit));
    }
    XIXMLElement* block = tree.GetRoot()->GetFirstElement()->FindElement(tree.GetRoot()->GetKey("Block"));
    static_cast<TestProvider*>(XGetProvider(block->GetData()))->mOk = false;
    EXPECT_EQ(ErrorOf([&] { Written(block); }), "exception");
}

TEST(XmlWriter, ReadWriteRead) {
    ProviderMaker blocks;
    std::unique_ptr<XCXMLTree> tree = ReadTree(kDocument, &blocks);
    std::string written = Written(tree->GetRoot());
    EXPECT_EQ(written, kDocument);
    EXPECT_EQ(Written(ReadTree(written, &blocks)->GetRoot()), kDocument);

    // What does not come back: leading blanks of text, and a leading entity of text.
    XCXMLTree changed;
    XIXMLElement* root = changed.GetRoot();
    root->NewElement(root->GetKey("a"))->NewData("  &x");
    EXPECT_EQ(Written(root), "<a>  &amp;x</a>\n");
    EXPECT_STREQ(ReadTree(Written(root))->GetRoot()->GetFirstElement()->GetData()->GetText(), "&amp;x");
}
