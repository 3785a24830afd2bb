#include "XmlTestSupport.h"
#include "support/TestSupport.h"

#include <vector>

using namespace XmlTest;
using ZelTest::ErrorOf;
using ZelTest::LogCapture;

namespace {

// Names of the form "k<n>" whose home entry in a table of `mask + 1` entries is `slot`.
std::vector<std::string> NamesAt(uint32_t slot, uint32_t mask, size_t count, int from = 0) {
    std::vector<std::string> names;
    for (int n = from; names.size() < count; ++n) {
        std::string name = "k" + std::to_string(n);
        if (((CHashKey::Hash(name.c_str()) + 1) & mask) == slot) names.push_back(name);
    }
    return names;
}

} // namespace

TEST(XmlKeys, HashAndInterning) {
    EXPECT_EQ(CHashKey::Hash(""), 0u);
    EXPECT_EQ(CHashKey::Hash("a"), 0x671u);
    EXPECT_EQ(CHashKey::Hash("ab"), 0xCE13u);
    // Long enough for the high bits to come back round through the right shift.
    EXPECT_EQ(CHashKey::Hash("Zel.File.Geometry"), 0x52076FD4u);

    CHashKey keys;
    EXPECT_EQ(keys.Size(), 64u);
    EXPECT_EQ(keys.MaxProbes(), 11u);
    const char* name = *keys.Intern("Name");
    EXPECT_EQ(*keys.Intern("Name"), name);
    EXPECT_NE(*keys.Intern("name"), name);
    EXPECT_EQ(keys.Count(), 2u);
    // A handle is the entry: "a" hashes to 0x671 and so sits 50 entries behind entry 0.
    CHashKey homes;
    XKey zero = homes.Intern(NamesAt(0, 63, 1)[0].c_str());
    EXPECT_EQ(homes.Intern("a") - zero, 50);
    EXPECT_EQ(ErrorOf([&] { keys.Intern(nullptr); }), "exception");

    // No growth by load: 64 names that each have an entry of their own fill the table.
    CHashKey full;
    for (uint32_t slot = 0; slot < 64; ++slot) full.Intern(NamesAt(slot, 63, 1)[0].c_str());
    EXPECT_EQ(full.Size(), 64u);
    EXPECT_EQ(full.Count(), 64u);
}

TEST(XmlKeys, GrowsWhenProbesRunOut) {
    CHashKey keys;
    std::vector<std::string> names = NamesAt(5, 127, 12);
    const char* first = *keys.Intern(names[0].c_str());
    for (size_t i = 1; i < 11; ++i) keys.Intern(names[i].c_str());
    EXPECT_EQ(keys.Size(), 64u);
    keys.Intern(names[11].c_str());
    EXPECT_EQ(keys.Size(), 128u);
    EXPECT_EQ(keys.MaxProbes(), 12u);
    // Texts stay where they were; only the entries moved.
    EXPECT_EQ(*keys.Intern(names[0].c_str()), first);
    EXPECT_EQ(keys.Count(), 12u);
}

TEST(XmlKeys, DoubleGrowWhenReinsertionRunsOut) {
    // Eleven names around the end of the table and four at its start share one run
    // that wraps; doubled, the wrapped run no longer fits in the probes allowed.
    std::vector<std::string> late = NamesAt(124, 255, 12);
    std::vector<std::string> early = NamesAt(0, 255, 4);
    CHashKey keys;
    for (size_t i = 0; i < 11; ++i) keys.Intern(late[i].c_str());
    for (const std::string& name : early) keys.Intern(name.c_str());
    EXPECT_EQ(keys.Size(), 64u);

    LogCapture log;
    keys.Intern(late[11].c_str());
    EXPECT_TRUE(log.has(Kestra::kLogWarning, "CHashKey::Grow - Double grow needed"));
    EXPECT_EQ(log.lines().size(), 1u);
    EXPECT_EQ(keys.Size(), 256u);
    EXPECT_EQ(keys.MaxProbes(), 13u);
    EXPECT_EQ(keys.Count(), 16u);
    for (const std::string& name : late) EXPECT_EQ(std::string(*keys.Intern(name.c_str())), name);
    EXPECT_EQ(keys.Count(), 16u);
}

TEST(XmlTree, EditingLists) {
    XCXMLTree tree;
    XIXMLElement* root = tree.GetRoot();
    XIXMLElement* top = root->NewElement(root->GetKey("top"));
    XIXMLElement* a = top->NewElement(top->GetKey("a"));
    XIXMLComment* note = top->NewComment("note");
    XIXMLElement* b = top->NewElement(top->GetKey("b"));
    XIXMLElement* a2 = top->NewElement(top->GetKey("a"));

    EXPECT_EQ(top->GetElementCount(), 3u);
    EXPECT_EQ(top->GetElement(1), b);
    EXPECT_EQ(top->GetElement(3), nullptr);
    EXPECT_EQ(top->FindElement(top->GetKey("a")), a);
    EXPECT_EQ(a->FindNextElement(), a2);
    EXPECT_EQ(a->GetNextElement(), b);
    EXPECT_EQ(note->AsNode()->GetIndex(), 1u);

    EXPECT_EQ(ErrorOf([&] { top->AddNode(b->AsNode()); }), "exception (assertion failed)");
    EXPECT_EQ(ErrorOf([&] { root->RemoveNode(b->AsNode()); }), "exception (assertion failed)");

    top->MoveNode(b->AsNode(), b->AsNode());
    top->MoveNode(a->AsNode(), note->AsNode());
    EXPECT_EQ(top->GetNodeIndex(b->AsNode()), 2u);
    top->MoveNode(a2->AsNode(), a->AsNode());
    top->MoveNode(a->AsNode(), nullptr);
    EXPECT_EQ(top->GetNodeIndex(a2->AsNode()), 0u);
    EXPECT_EQ(top->GetNodeIndex(a->AsNode()), 3u);
    XIXMLElement* c = top->NewElement(top->GetKey("c"));
    EXPECT_EQ(top->GetNodeIndex(c->AsNode()), 4u);

    // A detached element belongs to no tree.
    top->RemoveNode(c->AsNode());
    EXPECT_EQ(c->AsNode()->GetIndex(), 0xFFFFFFFFu);
    EXPECT_EQ(ErrorOf([&] { c->GetKey("x"); }),
              "XCXMLElement::GetKey - element isn't in a tree (pointer is NULL)");
    EXPECT_EQ(ErrorOf([&] { top->RemoveNode(c->AsNode()); }), "exception (assertion failed)");
    EXPECT_EQ(ErrorOf([&] { top->MoveNode(a->AsNode(), c->AsNode()); }),
              "XCXMLElement::MoveNode previous == NULL (pointer is NULL)");
    top->AddNode(a->AsNode());
    top->AddNode(c->AsNode());
    EXPECT_EQ(top->GetNodeIndex(c->AsNode()), 4u);

    // One data node per element; a refused one leaves the list as it was.
    XIXMLData* data = b->NewData("text");
    EXPECT_EQ(ErrorOf([&] { b->NewData("more"); }), "Only one data node for an element");
    EXPECT_EQ(b->GetFirstNode(), data->AsNode());
    EXPECT_EQ(data->AsNode()->GetNext(), nullptr);
    EXPECT_EQ(b->GetData(), data);
    EXPECT_EQ(ErrorOf([&] { a->NewData(static_cast<XIXMLData::IXMLCData*>(nullptr)); }), "exception");
    EXPECT_NE(a->GetData(), nullptr);
}

TEST(XmlTree, Attributes) {
    XCXMLTree tree;
    XIXMLElement* root = tree.GetRoot();
    XIXMLElement* e = root->NewElement(root->GetKey("e"));
    XIXMLAttribute* x1 = e->AddAttribute(e->GetKey("x"), "1");
    XIXMLAttribute* x2 = e->AddAttribute(e->GetKey("x"), "2");
    XIXMLAttribute* y = e->AddAttribute(e->GetKey("y"), "3.5");
    EXPECT_EQ(e->FindAttribute(e->GetKey("x")), x1);
    EXPECT_EQ(e->FindAttribute(e->GetKey("")), x1);
    EXPECT_EQ(e->FindAttribute(e->GetKey("X")), nullptr);
    EXPECT_TRUE(e->HasAttribute(e->GetKey("y"), "3.5"));
    EXPECT_FALSE(e->HasAttribute(e->GetKey("y"), "3.50"));
    EXPECT_FALSE(e->HasAttribute(e->GetKey("z"), "3.5"));

    // Keys match by address only: the same text interned elsewhere never matches.
    XCXMLTree other;
    EXPECT_EQ(e->FindAttribute(other.GetRoot()->GetKey("x")), nullptr);

    double number = 0;
    y->ScanValue("%lf", &number);
    EXPECT_EQ(number, 3.5);
    EXPECT_EQ(ErrorOf([&] { x1->ScanValue("%lf", nullptr); }), "exception");
    int integer = 0;
    EXPECT_EQ(ErrorOf([&] { e->AddAttribute(e->GetKey("w"), "abc")->ScanValue("%d", &integer); }),
              "exception");
    x2->FormatValue("%d-%s", 7, "seven");
    EXPECT_STREQ(x2->GetValue(), "7-seven");
    std::string big(2047, 'v');
    x2->FormatValue("%s", big.c_str());
    EXPECT_EQ(x2->GetValue(), big);
    EXPECT_EQ(ErrorOf([&] { x2->FormatValue("%s!", big.c_str()); }), "exception");
    EXPECT_EQ(x2->GetValue(), big);
    EXPECT_EQ(ErrorOf([&] { x2->SetValue(nullptr); }), "exception (pointer is NULL)");

    // Removing only unlinks; destroying unlinks by itself.
    e->RemoveAttribute(x2);
    EXPECT_EQ(x1->GetNext(), y);
    EXPECT_EQ(ErrorOf([&] { e->RemoveAttribute(x2); }),
              "XCXMLElement::RemoveAttribute previous == NULL (pointer is NULL)");
    LogCapture log;
    x2->Destroy();
    EXPECT_TRUE(log.has(Kestra::kLogError,
                        "XCXMLAttribute::~XCXMLAttribute: Exception in destructor "
                        "(XCXMLElement::RemoveAttribute previous == NULL (pointer is NULL))"));
    x1->Destroy();
    EXPECT_EQ(e->GetFirstAttribute(), y);
    XIXMLAttribute* last = e->AddAttribute(e->GetKey("last"), "");
    EXPECT_EQ(e->GetFirstAttribute()->GetNext()->GetNext(), last);
}

TEST(XmlTree, DataNodes) {
    XCXMLTree tree;
    XIXMLElement* root = tree.GetRoot();
    XIXMLData* text = root->NewElement(root->GetKey("t"))->NewData("12");
    int value = 0;
    text->ScanText("%d", &value);
    EXPECT_EQ(value, 12);
    text->FormatText("%05d", 42);
    EXPECT_STREQ(text->GetText(), "00042");
    EXPECT_EQ(XGetProvider(text), nullptr);

    int destroyed = 0;
    TestProvider* provider = new TestProvider("abc", &destroyed);
    XIXMLElement* blockElement = root->NewElement(root->GetKey("b"));
    XIXMLData* block = blockElement->NewData(provider);
    EXPECT_EQ(XGetProvider(block), provider);
    EXPECT_EQ(ErrorOf([&] { block->GetText(); }), "exception");
    EXPECT_EQ(ErrorOf([&] { block->SetText("x"); }), "exception");
    EXPECT_EQ(ErrorOf([&] { block->ScanText("%d", &value); }), "exception");
    EXPECT_EQ(ErrorOf([&] { block->FormatText("%d", 1); }), "exception");
    blockElement->AsNode()->Destroy();
    EXPECT_EQ(destroyed, 1);
    root->NewComment("after the last one went");
    EXPECT_EQ(root->GetElementCount(), 1u);
    EXPECT_EQ(root->GetFirstNode()->GetNext()->AsComment() != nullptr, true);
}

TEST(XmlTree, DestroyAndMines) {
    XCXMLTree tree;
    XIXMLElement* root = tree.GetRoot();
    XIXMLElement* top = root->NewElement(root->GetKey("top"));
    XIXMLElement* first = top->NewElement(top->GetKey("first"));
    XCXMLComment* second = static_cast<XCXMLComment*>(top->NewComment("second"));

    // A damaged guard word refuses the destruction and leaves the node in place.
    second->Mine().SetWord(0x12345678);
    EXPECT_EQ(ErrorOf([&] { second->Destroy(); }),
              "XCMine::CheckMine - Invalide mine state (assertion failed)");
    second->Mine().SetWord(Kestra::XCMine::kExploded);
    EXPECT_EQ(ErrorOf([&] { second->Destroy(); }),
              "XCMine::CheckMine - Owner object is destroyed) (assertion failed)");
    EXPECT_EQ(top->GetNodeIndex(second), 1u);

    // The element's destructor stops at the refusing child and abandons the rest.
    XCXMLComment* third = static_cast<XCXMLComment*>(top->NewComment("third"));
    top->MoveNode(first->AsNode(), nullptr);
    LogCapture log;
    top->AsNode()->Destroy();
    EXPECT_TRUE(log.has(Kestra::kLogError,
                        "XCXMLElement::~XCXMLElement: Exception in destructor "
                        "(XCMine::CheckMine - Owner object is destroyed) (assertion failed))"));
    EXPECT_EQ(root->GetFirstNode(), nullptr);
    // Clean up what was abandoned, without its dead parent.
    for (XIXMLNode* node :
         {static_cast<XIXMLNode*>(second), static_cast<XIXMLNode*>(third), first->AsNode()}) {
        node->SetParent(nullptr);
        node->SetNext(nullptr);
    }
    second->Mine().SetWord(Kestra::XCMine::kArmed);
    second->Destroy();
    third->Destroy();
    first->AsNode()->Destroy();
}

TEST(XmlTree, CopyAcrossTrees) {
    int destroyed = 0;
    XCXMLTree source;
    XIXMLElement* root = source.GetRoot();
    root->NewPI("xml", "version=\"1.0\"");
    XIXMLElement* top = root->NewElement(root->GetKey("top"));
    top->AddAttribute(top->GetKey("a"), "1");
    top->AddAttribute(top->GetKey("b"), "2");
    top->NewComment("c");
    top->NewDocType(top->GetKey("d"), nullptr, "sys", nullptr);
    top->NewElement(top->GetKey("leaf"))->NewData("text");
    TestProvider* provider = new TestProvider("block", &destroyed);
    top->NewElement(top->GetKey("block"))->NewData(provider);

    XCXMLTree target;
    XIXMLElement* into = target.GetRoot()->NewElement(target.GetRoot()->GetKey("into"));
    XIXMLElement* copy = top->AsNode()->CopyTo(into)->AsElement();
    ASSERT_NE(copy, nullptr);
    // Keys are those of the target tree.
    EXPECT_EQ(*copy->GetKey(), *target.GetRoot()->GetKey("top"));
    EXPECT_NE(*copy->GetKey(), *top->GetKey());
    EXPECT_NE(copy->FindAttribute(into->GetKey("b")), nullptr);
    EXPECT_EQ(copy->FindAttribute(top->GetKey("b")), nullptr);
    XIXMLElement* block = copy->FindElement(into->GetKey("block"));
    EXPECT_EQ(provider->mClonedFor, block);
    EXPECT_NE(XGetProvider(block->GetData()), provider);
    ASSERT_NE(copy->GetFirstNode()->AsComment(), nullptr);
    EXPECT_STREQ(copy->GetFirstNode()->AsComment()->GetText(), "c");

    // Written out, the copy is the original.
    std::string original = Written(top);
    EXPECT_EQ(Written(copy), original);
    EXPECT_EQ(original,
              "<top\n\t a=\"1\"\n\t b=\"2\">\n\t<!--c-->\n\t<!DOCTYPE d SYSTEM \"sys\">\n\t<leaf>text</leaf>"
              "\n\t<block><![CDATA[block]]>\n\t</block>\n</top>");

    // Copying into its own subtree copies what was there when the copy began.
    top->AsNode()->CopyTo(top);
    EXPECT_EQ(top->GetElementCount(), 3u);
    EXPECT_EQ(ErrorOf([&] { root->AsNode()->CopyTo(into); }), "exception");
}
