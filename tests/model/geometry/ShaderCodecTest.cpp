#include "MaterialsTestSupport.h"

#include "codec/ShaderCodec.h"
#include "frame/UUID.h"
#include "model/geometry/MappingNode.h"
#include "model/geometry/ProceduralNodes.h"
#include "model/geometry/Property.h"
#include "support/TestSupport.h"

#include <functional>

using namespace KeZel;
using namespace MaterialsTest;
using KestraXML::XCXMLTree;
using KestraXML::XIXMLElement;

namespace {

// One node kind: a node with every field away from its default, and a look at the fields
// after a round trip.
struct KindCase {
    const char* name;
    int kind;
    std::function<void(ITCENode&)> build;
    std::function<void(ITCENode&)> check;
};

void AddLeaves(ITCENode& node, CZelTCE* tree, int count) {
    for (int i = 0; i < count; ++i) {
        CNodeRef leaf = ZelNewNode(eLeafNode, tree);
        leaf->asLeaf()->setGlossy(10 + i);
        node.addChild(leaf.get());
    }
}

// Each kind with its last written field and a few others set; the rewrite of what was
// read compares every field.
std::vector<KindCase> KindCases() {
    return {
        {"Leaf", eLeafNode,
         [](ITCENode& n) {
             n.asLeaf()->setDiffuse(Color(1, 2, 3));
             n.asLeaf()->setEmittingPower(2);
             n.asLeaf()->setReflectionLimit(0.5);
         },
         [](ITCENode& n) {
             EXPECT_TRUE(Same(n.asLeaf()->getDiffuse(), Color(1, 2, 3)));
             EXPECT_EQ(n.asLeaf()->getEmittingPower(), 2);
             EXPECT_EQ(n.asLeaf()->getReflectionLimit(), 0.5);
         }},
        {"Chess", eChessNode,
         [](ITCENode& n) {
             n.asChess()->setZAxis({0, 0, 2});
             n.asChess()->setSmooth(true);
             n.asChess()->setGeometry(eChessSphere);
             n.asChess()->getTable3()->setLength(2);
             n.asChess()->getTable3()->setValue(1, 0.5f);
             AddLeaves(n, n.getParent(), 2);
         },
         [](ITCENode& n) {
             EXPECT_EQ(n.asChess()->getZAxis()->z, 2);
             EXPECT_EQ(n.asChess()->getGeometry(), eChessSphere);
             EXPECT_EQ(n.asChess()->getTable3()->getValue(1), 0.5f);
             EXPECT_EQ(n.getChild(1)->asLeaf()->getGlossy(), 11);
         }},
        {"Mapping", eMappingNode,
         [](ITCENode& n) {
             IMappingNode* m = n.asMapping();
             m->setURL("file:///r.jpg", eReflectionMap);
             m->addLinkedMap(ZelUUIDFromText("000102030405060708090A0B0C0D0E0F"));
             m->setUseCutOut2(true);
             m->setCutOut2(Color(1, 1, 2));
             m->setProjection(eUVProjection);
             m->setNormalMap(0.25);
             m->setMappingNodeParentId(ZelUUIDFromText("0F0E0D0C0B0A09080706050403020100"));
             AddLeaves(n, n.getParent(), 1);
         },
         [](ITCENode& n) {
             IMappingNode* m = n.asMapping();
             EXPECT_STREQ(m->getURL(eReflectionMap), "file:///r.jpg");
             EXPECT_EQ(m->getMapLinkedCount(), 1u);
             EXPECT_TRUE(m->isUseCutOut2());
             EXPECT_EQ(m->getNormalMap(), 0.25);
             EXPECT_FALSE(m->getMappingNodeParentId()->isNull());
         }},
        {"Turbulence", eTurbulenceNode,
         [](ITCENode& n) {
             n.asTurbulence()->setAmplitude({1, 2, 3});
             n.asTurbulence()->getTable()->setLength(3);
             n.asTurbulence()->getTable()->setValue(2, 1.25f);
             AddLeaves(n, n.getParent(), 1);
         },
         [](ITCENode& n) {
             EXPECT_EQ(n.asTurbulence()->getAmplitude()->y, 2);
             EXPECT_EQ(n.asTurbulence()->getTable()->getValue(2), 1.25f);
         }},
        {"Fresnel", eFresnelNode,
         [](ITCENode& n) {
             n.asFresnel()->setPowerFactor(2);
             AddLeaves(n, n.getParent(), 1);
         },
         [](ITCENode& n) { EXPECT_EQ(n.asFresnel()->getPowerFactor(), 2); }},
        {"Glazing", eGlazingNode,
         [](ITCENode& n) {
             n.asGlazing()->setTiltDetect(false);
             n.asGlazing()->setAnimation(true);
             n.asGlazing()->setSpeed(4);
             n.asGlazing()->setExtraValue(9);
             AddLeaves(n, n.getParent(), 1);
         },
         [](ITCENode& n) {
             EXPECT_EQ(n.asGlazing()->getSpeed(), 4);
             EXPECT_EQ(n.asGlazing()->getExtraValue(), 0); // never in a file
         }},
        {"Custom", eCustomNode,
         [](ITCENode& n) {
             CZelXMLIO::setAttribute(n.asCustom()->getCustomData(), "Class", "Rain");
             CZelXMLIO::add(n.asCustom()->getCustomData(), "Drops")->NewData("42");
             AddLeaves(n, n.getParent(), 3);
         },
         [](ITCENode& n) {
             EXPECT_STREQ(n.asCustom()->getClass(), "Rain");
             EXPECT_EQ(n.getChildCount(), 3);
         }},
    };
}

class NodeElements : public Materials, public ::testing::WithParamInterface<KindCase> {};

class ShaderElements : public Materials {
protected:
    // Writes `node` under a fresh document and answers the Node element.
    XIXMLElement* Write(const ITCENode* node) {
        CZelXMLIO io(zel());
        return ZelAddNode(io, mDocument.GetRoot(), "Node", node);
    }
    CNodeRef Read(const XIXMLElement* e, bool fullMode = true, CZelIdRemap* remap = nullptr) {
        CZelXMLIO io(zel(), fullMode);
        CZelNodeReading reading = {&mProperty, fullMode, remap};
        return ZelGetNode(io, e, reading);
    }
    CNodeRef ReadText(const std::string& text, bool fullMode = true, CZelIdRemap* remap = nullptr) {
        mParsed = Parse(text);
        return Read(Top(mParsed), fullMode, remap);
    }

    CProperty mProperty{zel()};
    XCXMLTree mDocument;
    std::unique_ptr<XCXMLTree> mParsed;
};

// A mapping element with every required field, and `extra` inside.
std::string MappingText(const std::string& extra) {
    return "<Node Type=\"Mapping\" Projection=\"Vertical\"><Maps/>"
           "<Normal X=\"0\" Y=\"0\" Z=\"1\"/><Origin X=\"0\" Y=\"0\" Z=\"0\"/>"
           "<X.Axis X=\"1\" Y=\"0\" Z=\"0\"/><Y.Axis X=\"0\" Y=\"1\" Z=\"0\"/>"
           "<Angle>0</Angle><Width>1</Width><Height>1</Height><Bump>0</Bump><X.Center>0</X.Center>"
           "<Y.Center>0</Y.Center><X.Delta>0</X.Delta><Y.Delta>0</Y.Delta><Glossy>5</Glossy>"
           "<Specular R=\"0\" G=\"0\" B=\"0\"/><Transparent R=\"0\" G=\"0\" B=\"0\"/>"
           "<Reflection R=\"0\" G=\"0\" B=\"0\"/><Mix.Color R=\"1\" G=\"2\" "
           "B=\"3\"/><Mix.Value>0</Mix.Value>" +
           extra + "</Node>";
}

} // namespace

TEST_P(NodeElements, RoundTripKeepsEveryField) {
    const KindCase& c = GetParam();
    CProperty property(zel());
    CNodeRef node = ZelNewNode(c.kind, &property);
    node->setUIValue(5);
    c.build(*node);

    CZelXMLIO io(zel(), true);
    XCXMLTree first;
    std::string written = Bytes(ZelAddNode(io, first.GetRoot(), "Node", node.get()));
    std::unique_ptr<XCXMLTree> parsed = Parse(written);
    CZelNodeReading reading = {&property, true, nullptr};
    CNodeRef back = ZelGetNode(io, Top(parsed), reading);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->getKind(), c.kind);
    EXPECT_EQ(*back->getId(), *node->getId());
    EXPECT_EQ(back->getUIValue(), 5);
    c.check(*back);

    XCXMLTree second;
    EXPECT_EQ(Bytes(ZelAddNode(io, second.GetRoot(), "Node", back.get())), written);
}

INSTANTIATE_TEST_SUITE_P(EveryKind, NodeElements, ::testing::ValuesIn(KindCases()),
                         [](const ::testing::TestParamInfo<KindCase>& info) { return info.param.name; });

TEST_F(ShaderElements, GenericWalkRules) {
    // No UI.Value for 0; a leaf's children are not written.
    CProperty property(zel());
    CNodeRef leaf = ZelNewNode(eLeafNode, &property);
    AddLeaves(*leaf, &property, 1);
    XIXMLElement* e = Write(leaf.get());
    EXPECT_EQ(CZelXMLIO::find(e, "UI.Value"), nullptr);
    EXPECT_EQ(CZelXMLIO::find(e, "Node"), nullptr);
    EXPECT_EQ(Read(e)->getChildCount(), 0);

    // A kind with children must have them.
    CNodeRef chess = ZelNewNode(eChessNode, &property);
    AddLeaves(*chess, &property, 1);
    EXPECT_NE(ZelTest::ErrorOf([&] { Write(chess.get()); }), "<no exception>");
    CNodeRef mapping = ZelNewNode(eMappingNode, &property);
    EXPECT_NE(ZelTest::ErrorOf([&] { Write(mapping.get()); }), "<no exception>");

    EXPECT_FALSE(ReadText("<Node Type=\"Root\"/>"));
    EXPECT_EQ(ZelTest::ErrorOf([&] { ReadText("<Node Type=\"Marble\"/>"); }),
              "Invalid label (Marble) [Root..Custom]");

    // A file cannot nest nodes deeper than the reader goes.
    std::string deep;
    for (int i = 0; i < 5000; ++i)
        deep += "<Node Type=\"Fresnel\"><Min.Reflection>0</Min.Reflection><Power.Factor>1</Power.Factor>";
    for (int i = 0; i < 5000; ++i) deep += "</Node>";
    EXPECT_NE(ZelTest::ErrorOf([&] { ReadText(deep); }), "<no exception>");

    // Leaf without emission keeps its defaults.
    CNodeRef old =
        ReadText("<Node Type=\"Leaf\"><Diffuse><Red>1</Red><Green>2</Green><Blue>3</Blue></Diffuse>"
                 "<Transparent R=\"0\" G=\"0\" B=\"0\"/><Specular R=\"0\" G=\"0\" B=\"0\"/>"
                 "<Reflection R=\"0\" G=\"0\" B=\"0\"/><Neon.Color R=\"0\" G=\"0\" B=\"0\"/>"
                 "<Neon.Value>0</Neon.Value><Refraction>9</Refraction><Glossy>3</Glossy></Node>");
    EXPECT_TRUE(Same(old->asLeaf()->getDiffuse(), Color(1, 2, 3)));
    EXPECT_EQ(old->asLeaf()->getRefraction(), 3.5);
    EXPECT_EQ(old->asLeaf()->getEmittingPower(), 0);
}

TEST_F(ShaderElements, TablesTakeTheirLengthFirst) {
    CNodeRef t =
        ReadText("<Node Type=\"Turbulence\"><Origin X=\"0\" Y=\"0\" Z=\"0\"/>"
                 "<Amplitude X=\"0\" Y=\"0\" Z=\"0\"/><Direction X=\"0\" Y=\"0\" Z=\"0\"/><Size>1</Size>"
                 "<Table Length=\"2\"><Float>1</Float><Float>2</Float><Float>3</Float></Table></Node>");
    ITable* table = t->asTurbulence()->getTable();
    EXPECT_EQ(table->getLength(), 2);
    EXPECT_EQ(table->getValue(1), 2.0f);

    // Fewer values than the length leave the others as they were.
    table->setValue(1, 7.0f);
    mParsed = Parse("<X><Table Length=\"2\"><Float>5</Float></Table></X>");
    ZelGetTable(CZelXMLIO(zel()), Top(mParsed), "Table", *table);
    EXPECT_EQ(table->getValue(0), 5.0f);
    EXPECT_EQ(table->getValue(1), 7.0f);
}

TEST_F(ShaderElements, MappingForms) {
    // Empty URLs still give an empty Maps; the old label reads and the new one is written.
    CNodeRef m = ReadText(MappingText(""));
    EXPECT_EQ(m->asMapping()->getAngularLODShift(), 0.7);
    EXPECT_EQ(m->asMapping()->getProjection(), eVerticalProjection);
    EXPECT_TRUE(Same(m->asMapping()->getMixColor(), Color(1, 2, 3)));
    AddLeaves(*m, &mProperty, 1);
    XIXMLElement* e = Write(m.get());
    EXPECT_NE(CZelXMLIO::find(e, "Maps"), nullptr);
    EXPECT_EQ(CZelXMLIO::find(CZelXMLIO::find(e, "Maps"), "URL"), nullptr);

    std::string withOld = MappingText("");
    withOld.replace(withOld.find("<Maps/>"), 7, "<Maps><URL Type=\"Refletion\">r.jpg</URL></Maps>");
    m = ReadText(withOld);
    EXPECT_STREQ(m->asMapping()->getURL(eReflectionMap), "r.jpg");
    AddLeaves(*m, &mProperty, 1);
    EXPECT_NE(Bytes(Write(m.get())).find("<URL Type=\"Reflection\">r.jpg</URL>"), std::string::npos);

    // The oldest form has one diffuse URL straight under the node, and no Maps.
    std::string oldest = MappingText("");
    oldest.replace(oldest.find("<Maps/>"), 7, "<URL>d.jpg</URL>");
    EXPECT_STREQ(ReadText(oldest)->asMapping()->getURL(eDiffuseMap), "d.jpg");

    std::string noProjection = MappingText("");
    noProjection.erase(noProjection.find(" Projection=\"Vertical\""), 22);
    EXPECT_NE(ZelTest::ErrorOf([&] { ReadText(noProjection); }), "<no exception>");

    // The public form writes the fields only and checks the type on reading.
    CProperty property(zel());
    CNodeRef mapping = ZelNewNode(eMappingNode, &property);
    mapping->asMapping()->setAngle(12);
    XCXMLTree tree;
    XIXMLElement* holder = CZelXMLIO::add(tree.GetRoot(), "Holder");
    ASSERT_NE(mapping->asMapping()->putInXML(holder), nullptr);
    CNodeRef other = ZelNewNode(eMappingNode, &property);
    ASSERT_TRUE(other->asMapping()->initWithXML(holder));
    EXPECT_EQ(other->asMapping()->getAngle(), 12);
    EXPECT_EQ(*other->asMapping()->getMappingNodeId(), *mapping->asMapping()->getMappingNodeId());
    EXPECT_EQ(*other->getId(), *mapping->getId());
    CZelXMLIO::setAttribute(CZelXMLIO::find(holder, "Node"), "Type", "Leaf");
    EXPECT_FALSE(other->asMapping()->initWithXML(holder));
    EXPECT_EQ(
        mFeedback.last(),
        "Exception in CTCENode::initWithXML : CZelXMLIO::GetMappingNode : xml node is not a mapping node");
    EXPECT_FALSE(other->asMapping()->initWithXML(CZelXMLIO::find(holder, "Node")));
}

namespace {
class OldClientElements : public ShaderElements {
protected:
    OldClientElements() : mOld(&mFeedback, nullptr, eZelVersion7) {}
    CZelMgrHandle mOld;
};
} // namespace

TEST_F(OldClientElements, ChessAxesTradeElementsForAnOldClient) {
    CZEL* old = static_cast<CZEL*>(mOld.get());
    CProperty property(old);
    CNodeRef chess = ZelNewNode(eChessNode, &property);
    chess->asChess()->setYAxis({0, 1, 2});
    chess->asChess()->setZAxis({0, 3, 4});
    AddLeaves(*chess, &property, 2);
    CZelXMLIO io(old, true);
    XIXMLElement* e = ZelAddNode(io, mDocument.GetRoot(), "Node", chess.get());
    // The element Y.Axis holds the Z axis, its components exchanged for the old client.
    XIXMLElement* y = CZelXMLIO::find(e, "Y.Axis");
    EXPECT_STREQ(CZelXMLIO::attributeText(y, "Y"), "4.000000");
    EXPECT_STREQ(CZelXMLIO::attributeText(y, "Z"), "3.000000");

    CZelNodeReading reading = {&property, true, nullptr};
    CNodeRef back = ZelGetNode(io, e, reading);
    EXPECT_EQ(back->asChess()->getYAxis()->z, 2);
    EXPECT_EQ(back->asChess()->getZAxis()->z, 4);

    // The mapping's own directions start in the old convention.
    CNodeRef mapping = ZelNewNode(eMappingNode, &property);
    EXPECT_EQ(mapping->asMapping()->getNormal()->z, -1.0);
    EXPECT_EQ(mapping->asMapping()->getYAxis()->y, -1.0);
}
