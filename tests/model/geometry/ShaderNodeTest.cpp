#include "MaterialsTestSupport.h"

#include "frame/UUID.h"
#include "model/geometry/MappingNode.h"
#include "model/geometry/ProceduralNodes.h"
#include "model/geometry/Property.h"
#include "support/TestSupport.h"

using namespace KeZel;
using namespace MaterialsTest;

namespace {

int CountOf(ITCENode* node) {
    return static_cast<CTCENode*>(node)->getRefCount();
}

// A leaf that tells when it is deleted.
struct ProbeLeaf : CLeafNode {
    ProbeLeaf(CZelTCE* tree, bool* gone) : CLeafNode(tree), mGone(gone) {}
    ~ProbeLeaf() override { *mGone = true; }
    bool* mGone;
};

class ShaderNodes : public Materials {};

} // namespace

TEST_F(ShaderNodes, ChildrenAreCountedAndTheSubtreeGoesWithTheLastRelease) {
    CProperty property(zel());
    ITCENode* chess = property.createNode(eChessNode);
    EXPECT_EQ(CountOf(chess), 1);

    bool leafGone = false, secondGone = false;
    ProbeLeaf* leaf = new ProbeLeaf(&property, &leafGone);
    ProbeLeaf* second = new ProbeLeaf(&property, &secondGone);
    chess->setChild(0, leaf); // the count itself: appends
    EXPECT_EQ(chess->getChildCount(), 1);
    EXPECT_EQ(leaf->getRefCount(), 1);
    chess->addChild(second);
    EXPECT_EQ(chess->getChild(2), nullptr);
    EXPECT_EQ(chess->getChild(-1), nullptr);
    chess->removeChild(2); // past the end: nothing
    EXPECT_EQ(chess->getChildCount(), 2);

    // Replacing drops the old child's reference; a node set in its own place stays.
    second->AddRef();
    chess->setChild(1, second);
    EXPECT_EQ(second->getRefCount(), 2);
    chess->setChild(1, leaf);
    EXPECT_FALSE(secondGone);
    EXPECT_EQ(second->getRefCount(), 1);
    EXPECT_EQ(leaf->getRefCount(), 2);
    chess->setChild(1, second);
    second->Release();

    // Under a mapping, the chess and its children go with the mapping's last release.
    ITCENode* mapping = property.createNode(eMappingNode);
    mapping->addChild(chess);
    chess->Release();
    EXPECT_FALSE(leafGone);
    mapping->Release();
    EXPECT_TRUE(leafGone);
    EXPECT_TRUE(secondGone);

    // removeChild releases.
    ITCENode* fresnel = property.createNode(eFresnelNode);
    leafGone = false;
    fresnel->addChild(new ProbeLeaf(&property, &leafGone));
    fresnel->removeChild(0);
    EXPECT_TRUE(leafGone);
    EXPECT_EQ(fresnel->getChildCount(), 0);
    fresnel->Release();
}

TEST_F(ShaderNodes, ANodeOrRootDestroyedWhileCountedIsLogged) {
    ZelTest::LogCapture log;
    {
        CProperty property(zel());
        property.getRootNode()->asNode()->AddRef();
        // The root belongs to the property: its last release does not delete it.
        property.getRootNode()->asNode()->AddRef();
        property.getRootNode()->asNode()->Release();
        property.setDiffuseColor(Color(1, 2, 3));
    }
    EXPECT_TRUE(log.has(Kestra::kLogError, "Object deleted with a non zero ref count"));

    // So is a table of a node: the node owns it.
    CProperty property(zel());
    CNodeRef chess = ZelNewNode(eChessNode, &property);
    ITable* table = chess->asChess()->getTable1();
    table->AddRef();
    table->Release();
    table->setLength(3);
    table->setValue(1, 2.5f);
    table->setValue(3, 1.0f);
    table->setLength(5);
    EXPECT_EQ(table->getValue(1), 2.5f);
    EXPECT_EQ(table->getValue(3), 0.0f);
    EXPECT_EQ(table->getValue(5), 0.0f);
}

TEST_F(ShaderNodes, CreateNodeGivesEachKindWithItsOwnViewOnly) {
    CProperty property(zel());
    EXPECT_EQ(property.createNode(eRootNode), nullptr);
    EXPECT_EQ(mFeedback.last(), "CZelProperty::createNode - eRootNode node cannot be created");
    EXPECT_EQ(property.createNode(8), nullptr);
    EXPECT_EQ(mFeedback.last(), "CZelProperty::createNode - Unknown node type");

    for (int kind = eChessNode; kind <= eCustomNode; ++kind) {
        ITCENode* n = property.createNode(kind);
        ASSERT_NE(n, nullptr);
        EXPECT_EQ(n->getKind(), kind);
        EXPECT_EQ(n->getParent(), property.getTCE());
        EXPECT_FALSE(n->getId()->isNull());
        void* views[] = {n->asRoot(), n->asChess(),   n->asMapping(), n->asTurbulence(),
                         n->asLeaf(), n->asFresnel(), n->asGlazing(), n->asCustom()};
        for (int v = 0; v < 8; ++v) EXPECT_EQ(views[v] != nullptr, v == kind) << kind << " " << v;
        EXPECT_EQ(n->asReserved1(), nullptr);
        n->Release();
    }
    EXPECT_EQ(property.getRootNode()->asNode()->getKind(), eRootNode);
}

TEST_F(ShaderNodes, CloneIsDeepWithFreshIdentities) {
    CProperty source(zel());
    CNodeRef chess = ZelNewNode(eChessNode, &source);
    CNodeRef mapping = ZelNewNode(eMappingNode, &source);
    CNodeRef leaf = ZelNewNode(eLeafNode, &source);
    CNodeRef custom = ZelNewNode(eCustomNode, &source);
    mapping->addChild(leaf.get());
    chess->addChild(mapping.get());
    chess->addChild(custom.get());
    chess->setUIValue(7);
    chess->asChess()->setChecker(true);
    chess->asChess()->getTable2()->setLength(2);
    chess->asChess()->getTable2()->setValue(1, 4.0f);
    IMappingNode* m = mapping->asMapping();
    m->setURL("file:///a.jpg", eBumpMap);
    CZelUUID other = NewZelUUID();
    m->addLinkedMap(other);
    m->setMappingNodeParentId(other);
    leaf->asLeaf()->setDiffuse(Color(9, 8, 7));
    custom->asCustom()->getCustomData()->NewElement(custom->asCustom()->getCustomData()->GetKey("Mine"));

    CProperty target(zel());
    CNodeRef copy = ZelCloneNode(&target, chess.get());
    EXPECT_NE(*copy->getId(), *chess->getId());
    EXPECT_EQ(copy->getUIValue(), 7);
    EXPECT_TRUE(copy->asChess()->isChecker());
    EXPECT_EQ(copy->asChess()->getTable2()->getValue(1), 4.0f);
    ASSERT_EQ(copy->getChildCount(), 2);
    ITCENode* cm = copy->getChild(0);
    EXPECT_NE(cm, mapping.get());
    EXPECT_STREQ(cm->asMapping()->getURL(eBumpMap), "file:///a.jpg");
    EXPECT_NE(*cm->asMapping()->getMappingNodeId(), *m->getMappingNodeId());
    EXPECT_TRUE(cm->asMapping()->getMappingNodeParentId()->isNull());
    EXPECT_EQ(cm->asMapping()->getMapLinkedCount(), 0u);
    EXPECT_TRUE(Same(cm->getChild(0)->asLeaf()->getDiffuse(), Color(9, 8, 7)));
    EXPECT_NE(copy->getChild(1)->asCustom()->getCustomData(), custom->asCustom()->getCustomData());
    EXPECT_NE(CZelXMLIO::find(copy->getChild(1)->asCustom()->getCustomData(), "Mine"), nullptr);

    // The copy is its own: changing it leaves the source alone.
    cm->getChild(0)->asLeaf()->setDiffuse(Color(1, 1, 1));
    EXPECT_TRUE(Same(leaf->asLeaf()->getDiffuse(), Color(9, 8, 7)));

    EXPECT_EQ(ZelTest::ErrorOf([&] { ZelCloneNode(&target, nullptr); }), "Node is NULL");
    CNodeRef bare = ZelNewNode(eMappingNode, &source);
    EXPECT_EQ(ZelTest::ErrorOf([&] { ZelCloneNode(&target, bare.get()); }), "Node is NULL");
    EXPECT_EQ(ZelTest::ErrorOf([&] { ZelCloneNode(&target, source.getRootNode()->asNode()); }),
              "Node is unknown");
}

TEST_F(ShaderNodes, NodeSettersClipAndReport) {
    CProperty property(zel());
    CNodeRef mapping = ZelNewNode(eMappingNode, &property);
    IMappingNode* m = mapping->asMapping();
    EXPECT_STREQ(m->getURL(0), "");
    EXPECT_EQ(mFeedback.last(), "IMappingNode::getURL - Invalid map type");
    m->setURL("x", 11);
    EXPECT_EQ(mFeedback.last(), "IMappingNode::setURL - Invalid map type");
    mFeedback.clear();

    CZelUUID id = NewZelUUID();
    m->addLinkedMap(id);
    m->addLinkedMap(id);
    EXPECT_EQ(m->getMapLinkedCount(), 1u);
    EXPECT_EQ(mFeedback.reports().size(), 1u);
    EXPECT_EQ(mFeedback.last(), "CMappingNode::addLinkedMap - Map already linked");
    m->addLinkedMap(CZelUUID());
    EXPECT_EQ(mFeedback.last(), "CMappingNode::addLinkedMap - NULL UUID is Invalid");
    EXPECT_TRUE(m->getMapLinked(1).isNull());
    EXPECT_EQ(mFeedback.last(), "CMappingNode::getMapLinked - Invalid index");
    m->removeLinkedMap(id);
    m->removeLinkedMap(id);
    EXPECT_EQ(mFeedback.last(), "CMappingNode::removeLinkedMap - Map isn't linked");

    m->setGlossy(-1);
    EXPECT_EQ(m->getGlossy(), 0.0);

    // A client of the current convention has Z up: the defaults follow.
    EXPECT_EQ(m->getNormal()->y, -1.0);
    EXPECT_EQ(m->getYAxis()->z, -1.0);
    EXPECT_EQ(m->getXAxis()->x, -1.0);

    CNodeRef fresnel = ZelNewNode(eFresnelNode, &property);
    fresnel->asFresnel()->setMinReflection(2);
    EXPECT_EQ(fresnel->asFresnel()->getMinReflection(), 1.0);
    EXPECT_EQ(mFeedback.last(), "IFresnelNode::setMinReflection - Value is higer than 1");
    fresnel->asFresnel()->setMinReflection(-0.5);
    EXPECT_EQ(fresnel->asFresnel()->getMinReflection(), 0.0);
    EXPECT_EQ(mFeedback.last(), "IFresnelNode::setMinReflection - Value is lower than 0");

    CNodeRef custom = ZelNewNode(eCustomNode, &property);
    mFeedback.clear();
    EXPECT_STREQ(custom->asCustom()->getClass(), "Unknown");
    EXPECT_TRUE(mFeedback.empty());
    custom->asCustom()->setClass("x");
    EXPECT_STREQ(custom->asCustom()->getClass(), "x");
    EXPECT_EQ(mFeedback.last(), "ICustomNode::setClass - data integrity failed");
    KestraXML::XIXMLElement* data = custom->asCustom()->getCustomData();
    data->FindAttribute(data->GetKey("Class"))->Destroy();
    EXPECT_EQ(custom->asCustom()->getClass(), nullptr);
    EXPECT_EQ(mFeedback.last(), "ICustomNode::getClass - data integrity failed");
}
