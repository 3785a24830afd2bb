#include "XmlTestSupport.h"
#include "support/TestSupport.h"

#include <stdexcept>
#include <vector>

using namespace XmlTest;
using ZelTest::ErrorOf;

namespace {

// Reads each block in pieces of the given sizes, up to `mLimit` bytes, and keeps it.
class BlockReader : public IXMLCDataReader {
public:
    bool Read(XIXMLElement* element, CXMLReadStream* stream, CXMLParser*) override {
        std::string block;
        char piece[5000];
        for (size_t step = 0; block.size() < mLimit; ++step) {
            int want = mSizes[step % mSizes.size()];
            int count = stream->Read(piece, want);
            EXPECT_LE(count, want);
            block.append(piece, static_cast<size_t>(count));
            if (count < want) {
                mReadAfterEnd = stream->Read(piece, 10);
                break;
            }
        }
        mBlocks.push_back(block);
        if (mAttach) element->NewData(new TestProvider(block, nullptr));
        return mResult;
    }
    std::vector<int> mSizes{4096};
    size_t mLimit = static_cast<size_t>(-1);
    std::vector<std::string> mBlocks;
    int mReadAfterEnd = -1;
    bool mAttach = false;
    bool mResult = true;
};

// A stream that fails on its `mFailAt`th read.
class FailingReader : public StringReader {
public:
    using StringReader::StringReader;
    int Read(void* buffer, int length) override {
        if (++mCalls == mFailAt) throw std::runtime_error("disk gone");
        return StringReader::Read(buffer, length);
    }
    int mCalls = 0;
    int mFailAt = 2;
};

bool EndsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

std::string ReadError(const std::string& xml, IXMLCDataReader* blocks = nullptr) {
    return ErrorOf([&] { ReadTree(xml, blocks); });
}

} // namespace

TEST(XmlParser, GrammarOfItsOwn) {
    EXPECT_EQ(Events(""), "!XML file must begin with <");
    EXPECT_EQ(Events("\xEF\xBB\xBF<a/>"), "!XML file must begin with <");
    EXPECT_EQ(Events("<a></b>"), "<a/>");
    EXPECT_EQ(Events("<a b=\"1\" b='2'c='\"'/>"), "<a b=1 b=2 c=\"/>");
    EXPECT_EQ(Events("<a<b&c d\"=\"x'\"/>"), "<a<b&c d\"=x'/>");
    EXPECT_EQ(Events("<a><?pi x?></a>"), "<a!Must be a name here");
    EXPECT_EQ(Events("<?xml?><?xml?><a/>"), "P(xml|)P(xml|)<a/>");
    EXPECT_EQ(Events("<?p a?b ?"
                     "?>\n<a/>"),
              "P(p|a?b ?)<a/>");
    EXPECT_EQ(Events("<a><!-- x -- y ---><!----></a>"), "<aC( x -- y -)C()/>");
    // Text loses its leading blanks and its first byte is never decoded.
    EXPECT_EQ(Events("<a>\n  &amp;b&amp; </a>"), "<aT(&amp;b& )/>");
    EXPECT_EQ(Events("<a><[CDATA[x]]></a>"), "<aT(x)/>");
    EXPECT_EQ(Events("<![CDATA[p]]><a/>"), "T(p)<a/>");
    EXPECT_EQ(Events("<a><![CDAT[x]]></a>"), "<a!Must be CDATA here");
    EXPECT_EQ(Events("<!D x SYS 's'><a/>"), "D(x|-|s|)<a/>");
    EXPECT_EQ(Events("<!DOCTYPE x P \"p\" 's' [ <!x> ]><a/>"), "D(x|p|s| <!x> )<a/>");
    EXPECT_EQ(Events("<!DOCTYPE x [s]><a/>"), "D(x|-|-|s)<a/>");
    EXPECT_EQ(Events("<!DOCTYPE x><a/>"), "!Must be a name here");
    EXPECT_EQ(Events("<!DOCTYPEX x><a/>"), "!Only !DOCTYPE is recognized.");
    EXPECT_EQ(Events("<!DOCTYPE x PUB 'p'><a/>"), "!Literal must start with ' or \".");
    EXPECT_EQ(Events("<!DOCTYPE x FOO 'p'><a/>"), "!Only PUBLIC and SYSTEM can be specified here");
    EXPECT_EQ(Events("<!DOCTYPE x SYSTEM 's' x><a/>"), "!Declaration must end with '>'.");
    EXPECT_EQ(Events("<!x><a/>"), "!Only !DOCTYPE is recognized.");
    EXPECT_EQ(Events("<a/>\n<!--c--> <?p d?> "), "<a/>C(c)P(p|d)");
    EXPECT_EQ(Events("<a/><![CDATA[x]]>"), "<a/>!Only comments and processing instructions accepted here");
    EXPECT_EQ(Events("<a/>x"), "<a/>!Only comments and processing instructions accepted here");
    EXPECT_EQ(Events("<a/><!-x-->"), "<a/>!Comment must begin with '<!--'");
    EXPECT_EQ(Events("<?p?>x<a/>"), "P(p|)!XML root must begin with '<'");
    EXPECT_EQ(Events("<a/ >"), "<a!Bad empty node closing.");
    EXPECT_EQ(Events("<a></a x>"), "<a!exception");
    EXPECT_EQ(Events("<a b></a>"), "<a!Attribute name must be followed by '='.");
    EXPECT_EQ(Events("<a b=1></a>"), "<a!Attribute value must begin with ''' or '\"'.");

    // Names, values and texts that end anywhere near the boundary of the parser's window.
    for (size_t n = 1008; n < 1026; ++n) {
        std::string name(n, 'n'), value(n - 7, 'v'), text(n - 2, 't');
        EXPECT_EQ(Events("<" + name + " v='" + value + "'/>"), "<" + name + " v=" + value + "/>");
        EXPECT_EQ(Events("<a>" + text + "&lt;</a>"), "<aT(" + text + "<)/>");
        EXPECT_EQ(Events("<a>" + text + "</a>"), "<aT(" + text + ")/>");
    }

    // A short read ends the stream.
    std::string doc = "<a>" + std::string(2000, 'x') + "</a>";
    EXPECT_EQ(ErrorOf([&] {
                  CXMLTreeReader reader;
                  StringReader stream(doc, 1000);
                  delete reader.Read(&stream);
              }),
              "exception");
    StringReader full(doc, 1024);
    CXMLTreeReader reader;
    std::unique_ptr<XCXMLTree> tree(reader.Read(&full));
    EXPECT_EQ(strlen(tree->GetRoot()->GetFirstElement()->GetData()->GetText()), 2000u);
}

TEST(XmlParser, Entities) {
    EXPECT_EQ(Events("<a v='&#65;&#x41;&lt;&amp;&gt;&apos;&quot;'/>"), "<a v=AA<&>'\"/>");
    EXPECT_EQ(Events("<a>x&#0;&#x;&#xe9;&#8364;&#x1f600;&#x200000;&#x7fffffff;&#4294967361;</a>"),
              "<aT(x\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xF8\x88\x80\x80\x80\xFD\xBF\xBF\xBF\xBF\xBF"
              "A)/>");
    EXPECT_EQ(Events("<a v='&#X41;'/>"), "<a!Bad unicode value");
    EXPECT_EQ(Events("<a v='&#x4A;'/>"), "<a!Bad unicode value");
    EXPECT_EQ(Events("<a v='&#1a;'/>"), "<a!Bad unicode value");
    EXPECT_EQ(Events("<a v='&#x80000000;'/>"), "<a!Unicode value too big");
    // A resolver is asked, and what it answers is refused all the same.
    EXPECT_EQ(Events("<a>x&nbsp;</a>"), "<aR(nbsp)!Unrecognized entity");
    std::string name(255, 'n');
    EXPECT_EQ(Events("<a v='&" + name + ";'/>"), "<aR(" + name + ")!Unrecognized entity");
    EXPECT_EQ(Events("<a v='&" + name + "n;'/>"), "<a!Entity too big");
    EXPECT_EQ(Events("<a v='&amp"), "<a!End of Data unexpected");
}

TEST(XmlParser, EndOfDataInsideConstructs) {
    for (const char* xml : {"<a v='x", "<a v='x&amp;", "<a><!-- x -", "<?pi x?", "<a", "<a b", "<a></",
                            "<!DOCTYPE x [abc", "<!DOCTYPE x SYSTEM 'abc", "<!DOCTYPE", "<"})
        EXPECT_TRUE(EndsWith(Events(xml), "!End of Data unexpected")) << xml;
    EXPECT_EQ(Events("<a>x"), "<a!exception");
    EXPECT_EQ(Events("<a>x&amp;"), "<a!exception");
    EXPECT_EQ(Events("<r><a>some text", true, {"a"}), "<r<a!End of Data unexpected");
    EXPECT_EQ(Events("<r><a>x/", true, {"a"}), "<r<a!End of Data unexpected");
}

TEST(XmlParser, Selective) {
    // Skipped content is scanned for its end tag without nesting: a descendant of the
    // same name ends the skip, and no end event is reported.
    EXPECT_EQ(Events("<r><a x='1'>t<a>u</a>rest</a><b/></r>", true, {"a"}),
              "<r<aT(rest)/>!Only comments and processing instructions accepted here");
    EXPECT_EQ(Events("<r><a/><a y='2'/><b z='3'/></r>", true, {"a"}), "<r<a/0><a/0><b z=3/>/>");
    EXPECT_EQ(Events("<r><a><x/>http://y</a><c/></r>", true, {"a"}), "<r<a<c/>/>");
    EXPECT_EQ(Events("<r><a>1</a><bb>2</bb><a>3</a><c/></r>", true, {"a", "bb"}), "<r<a<bb<a<c/>/>");
    EXPECT_EQ(Events("<r><a>1 / 2</a></r>", true, {"a"}), "<r<a!Must be a name here");
    EXPECT_EQ(Events("<r><a>1 / 2</a></r>", false, {"a"}), "<r<aT(1 / 2)/0>/>");
}

TEST(XmlParser, ProcessingInstructionStopsTheParse) {
    Recorder recorder;
    recorder.mStopAtPI = true;
    StringReader stream("<?zel v?>&&& not a document");
    recorder.Parse(&stream);
    EXPECT_EQ(recorder.mLog, "P(zel|v)");
    StringReader again("<a/>");
    EXPECT_EQ(ErrorOf([&] { recorder.Parse(&again); }), "exception");

    Recorder late;
    late.mStopAtPI = true;
    StringReader epilog("<a/><?x?>garbage");
    late.ParseSelective(&epilog);
    EXPECT_EQ(late.mLog, "<a/>P(x|)");
}

TEST(XmlParser, DataBlockHandOver) {
    BlockReader brackets;
    brackets.mSizes = {1};
    ReadTree("<a><![CDATA[x]]]></a>", &brackets);
    ReadTree("<b><![CDATA[a]b]]c]]]]>\n</b>", &brackets);
    EXPECT_EQ(brackets.mBlocks, (std::vector<std::string>{"x]", "a]b]]c]]"}));
    EXPECT_EQ(brackets.mReadAfterEnd, 0);

    // A block whose end straddles the boundary of the parser's window, read in pieces of
    // odd sizes, comes over unchanged; the parse goes on behind it.
    std::string content;
    for (int i = 0; content.size() < 2035; ++i)
        content += (i % 7 == 0 || i % 11 == 0) ? ']' : char('a' + i % 26);
    BlockReader pieces;
    pieces.mSizes = {7, 1, 4096, 3};
    std::unique_ptr<XCXMLTree> tree = ReadTree("<a><![CDATA[" + content + "]]><b/></a>", &pieces);
    EXPECT_EQ(pieces.mBlocks, std::vector<std::string>{content});
    EXPECT_NE(tree->GetRoot()->GetFirstElement()->GetFirstElement(), nullptr);

    // What a reader leaves is drained.
    BlockReader some;
    some.mSizes = {3};
    some.mLimit = 3;
    tree = ReadTree("<a><![CDATA[" + content + "]]><b/></a>", &some);
    EXPECT_EQ(some.mBlocks[0], content.substr(0, 3));
    EXPECT_NE(tree->GetRoot()->GetFirstElement()->GetFirstElement(), nullptr);

    // Without a reader, a block becomes the element's text.
    std::string big(5000, 'z');
    tree = ReadTree("<a><![CDATA[" + big + "]]></a>");
    EXPECT_EQ(tree->GetRoot()->GetFirstElement()->GetData()->GetText(), big);

    BlockReader refusing;
    refusing.mResult = false;
    EXPECT_EQ(ReadError("<a><![CDATA[x]]></a>", &refusing), "exception");
    EXPECT_EQ(ReadError("<a><![CDATA[x]]</a>"), "Error while reading <[CDATA[...]]>");
    EXPECT_EQ(ReadError("<a><![CDATA[x]]</a>", &pieces), "Error while reading <[CDATA[...]]>");

    // A failing stream ends the block unclosed.
    FailingReader failing("<a><![CDATA[" + std::string(3000, 'q') + "]]></a>");
    BlockReader cut;
    EXPECT_EQ(ErrorOf([&] {
                  CXMLTreeReader reader(&cut);
                  delete reader.Read(&failing);
              }),
              "Error while reading <[CDATA[...]]>");
    EXPECT_EQ(cut.mBlocks[0], std::string(1024 - 12, 'q'));
}

TEST(XmlParser, TreeReader) {
    EXPECT_EQ(ReadError("<a>x<b/>y</a>"), "Only one data node for an element");
    EXPECT_EQ(ReadError("<a><![CDATA[x]]>y</a>"), "Only one data node for an element");
    std::unique_ptr<XCXMLTree> tree =
        ReadTree("<!--c--><?p d?><!DOCTYPE a SYSTEM 's'><a k='v'>t</a><!--e-->");
    XIXMLElement* root = tree->GetRoot();
    XIXMLNode* node = root->GetFirstNode();
    EXPECT_STREQ(node->AsComment()->GetText(), "c");
    EXPECT_STREQ((node = node->GetNext())->AsPI()->GetData(), "d");
    EXPECT_EQ(*(node = node->GetNext())->AsDocType()->GetKey(), *root->GetKey("a"));
    XIXMLElement* a = (node = node->GetNext())->AsElement();
    EXPECT_EQ(a, root->FindElement(root->GetKey("a")));
    EXPECT_TRUE(a->HasAttribute(root->GetKey("k"), "v"));
    EXPECT_STREQ(a->GetData()->GetText(), "t");
    EXPECT_STREQ(node->GetNext()->AsComment()->GetText(), "e");
    EXPECT_EQ(root->GetElementCount(), 1u);

    // Depth costs no stack, in reading nor in destroying (also of a tree a failed read
    // leaves behind).
    std::string open, close;
    for (int i = 0; i < 200000; ++i) open += "<a>", close += "</a>";
    tree = ReadTree(open + "<b/>" + close);
    XIXMLElement* deepest = tree->GetRoot();
    while (XIXMLElement* child = deepest->GetFirstElement()) deepest = child;
    EXPECT_EQ(*deepest->GetKey(), *deepest->GetKey("b"));
    tree.reset();
    EXPECT_EQ(ReadError(open), "exception");
}
