#include "MaterialsTestSupport.h"

#include "frame/UUID.h"
#include "model/geometry/IZelMappingNode.h"
#include "model/geometry/IZelProceduralNodes.h"
#include "model/geometry/Property.h"

using namespace KeZel;
using namespace MaterialsTest;

namespace {

class PropertyFacade : public Materials {};

const CZelColor kC = {0, 10, 20, 30};

const CZelVector kO = {1, 2, 3}, kX = {1, 0, 0}, kY = {0, 1, 0};

// One setter of the facade, the node it has to make, and the getter that sees its value.
struct FacadeRow {
    const char* name;
    int kind;
    void (*set)(CProperty&);
    bool (*isSet)(const CProperty&);
};

typedef const CProperty& P;
double Height(P p) {
    double h = 0;
    return p.getMapSize(&h, nullptr) ? h : -1;
}
CZelVector Origin(P p) {
    CZelVector o = {0, 0, 0};
    p.getMapAxes(&o, nullptr, nullptr);
    return o;
}
bool YRepeat(P p) {
    bool y = false;
    return p.getMapRepeat(nullptr, &y) && y;
}

// clang-format off
#define ROW(kind, SET, CHECK) {#SET, kind, [](CProperty& p) { p.SET; }, [](P p) { return CHECK; }}
// clang-format on
const FacadeRow kFacadeRows[] = {
    ROW(eLeafNode, setDiffuseColor(kC), Same(p.getDiffuseColor(), kC)),
    ROW(eLeafNode, setSpecularColor(kC), Same(p.getSpecularColor(), kC)),
    ROW(eLeafNode, setGlossy(12), p.getGlossyValue() == 12),
    ROW(eLeafNode, setTransparentColor(kC), Same(p.getTransparentColor(), kC)),
    ROW(eLeafNode, setReflectionColor(kC), Same(p.getReflectionColor(), kC)),
    ROW(eLeafNode, setNeonColor(kC), Same(p.getNeonColor(), kC)),
    ROW(eLeafNode, setNeonValue(2), p.getNeonValue() == 2),
    ROW(eLeafNode, setRefraction(9), p.getRefraction() == 3.5),
    ROW(eLeafNode, setEmittingColor(kC), Same(p.getEmittingColor(), kC)),
    ROW(eLeafNode, setEmittingPower(3), p.getEmittingPower() == 3),
    ROW(eLeafNode, setReflectionLimit(1), p.getReflectionLimit() == 1),
    ROW(eMappingNode, setDiffuseMap("d"), std::string(p.getDiffuseMap()) == "d"),
    ROW(eMappingNode, setNormalMap("n"), std::string(p.getNormalMap()) == "n"),
    ROW(eMappingNode, setNormalMapPower(2), p.getNormalMapPower() == 2),
    ROW(eMappingNode, setMapProjection(3), p.getMapProjection() == 3),
    ROW(eMappingNode, setMapAxes(kO, kX, kY), Origin(p).z == 3),
    ROW(eMappingNode, setMapSize(2, 3), Height(p) == 2),
    ROW(eMappingNode, setMapRepeat(false, true), YRepeat(p)),
    ROW(eMappingNode, setCutAlpha(true), p.getCutAlpha()),
    ROW(eMappingNode, setDisplayMode(true), p.getDisplayMode()),
};
#undef ROW

} // namespace

TEST_F(PropertyFacade, GettersNeverMakeNodesAndSettersMakeTheOneTheyNeed) {
    CProperty fresh(zel());
    double out = 0;
    fresh.getGlossy(&out);
    fresh.getGlossy(nullptr);
    EXPECT_EQ(out, 6.0);
    EXPECT_TRUE(Same(fresh.getDiffuseColor(), Color(100, 100, 100)));
    EXPECT_TRUE(Same(fresh.getSpecularColor(), Color(0, 0, 0)) &&
                Same(fresh.getEmittingColor(), Color(0, 0, 0)));
    EXPECT_EQ(fresh.getNeonValue() + fresh.getRefraction() + fresh.getReflectionLimit(), 0);
    EXPECT_STREQ(fresh.getDiffuseMap(), "");
    EXPECT_STREQ(fresh.getNormalMap(), "");
    EXPECT_EQ(fresh.getMapProjection(), -1);
    EXPECT_FALSE(fresh.getMapAxes(nullptr, nullptr, nullptr) || fresh.getMapTransparentColor(nullptr) ||
                 fresh.getMapRepeat(nullptr, nullptr) || fresh.getMapInvert(nullptr, nullptr) ||
                 fresh.getMapSize(nullptr, nullptr) || fresh.getMapAngle(nullptr) ||
                 fresh.getAngularLODShift(nullptr) || fresh.getCutAlpha() || fresh.getDisplayMode());
    EXPECT_EQ(fresh.getRootNode()->asNode()->getChildCount(), 0);

    for (const FacadeRow& row : kFacadeRows) {
        SCOPED_TRACE(row.name);
        CProperty p(zel());
        ITCENode* root = p.getRootNode()->asNode();
        row.set(p);
        EXPECT_TRUE(row.isSet(p));
        ASSERT_EQ(root->getChildCount(), 1);
        // A leaf hangs under the root; a mapping goes in above a new leaf.
        ITCENode* first = root->getChild(0);
        EXPECT_EQ(first->getKind(), row.kind);
        EXPECT_EQ(first->getChildCount(), row.kind == eMappingNode ? 1 : 0);
        if (row.kind == eMappingNode) {
            EXPECT_EQ(first->getChild(0)->getKind(), eLeafNode);
        }
    }
}

TEST_F(PropertyFacade, OwnFieldBounds) {
    CProperty p(zel());
    p.setSmooth(0);
    EXPECT_EQ(p.getSmooth(), 0.01);
    p.setSmooth(5);
    EXPECT_EQ(p.getSmooth(), 1.0);
    p.setScale(-1);
    EXPECT_EQ(p.getScale(), 0.0);
    CZelUUID before = *p.getId();
    p.setId(CZelUUID());
    EXPECT_FALSE(p.getId()->isNull());
    EXPECT_NE(*p.getId(), before);
}

TEST_F(PropertyFacade, MappingGoesAboveTheTreeAndSkipsShaderMappings) {
    CProperty p(zel());
    p.setDiffuseColor(kC);
    ITCENode* root = p.getRootNode()->asNode();
    ITCENode* leaf = root->getChild(0);
    p.setReflectionLimit(0.5); // no mapping yet: the leaf's
    EXPECT_EQ(leaf->asLeaf()->getReflectionLimit(), 0.5);

    p.setDiffuseMap("file:///a.jpg");
    ITCENode* mapping = root->getChild(0);
    ASSERT_NE(mapping->asMapping(), nullptr);
    EXPECT_EQ(mapping->getChild(0), leaf);
    p.setReflectionLimit(0.75); // now the mapping's
    EXPECT_EQ(mapping->asMapping()->getReflectionLimit(), 0.75);
    EXPECT_EQ(leaf->asLeaf()->getReflectionLimit(), 0.5);
    EXPECT_EQ(p.getReflectionLimit(), 0.75);

    // A shader mapping is not M: a new one goes in above it.
    mapping->asMapping()->setShader(true);
    EXPECT_STREQ(p.getDiffuseMap(), "");
    EXPECT_TRUE(Same(p.getDiffuseColor(), kC)); // the leaf is still found beneath
    p.setMapAngle(10);
    EXPECT_NE(root->getChild(0), mapping);
    EXPECT_EQ(root->getChild(0)->getChild(0), mapping);

    // The linear shift of a property is the mapping's angular one.
    p.setLinearLODShift(0.3);
    double shift = 0;
    EXPECT_TRUE(p.getAngularLODShift(&shift));
    EXPECT_EQ(shift, 0.3);
    EXPECT_EQ(root->getChild(0)->asMapping()->getLinearLODShift(), 0.75);
}

TEST_F(PropertyFacade, ProjectionTableAndAxes) {
    CProperty p(zel());
    const int projections[8] = {
        eOrthogonalProjection,   eOrthogonalProjection,   eVerticalProjection,  eSphericalProjection,
        eYCylindricalProjection, eXCylindricalProjection, ePlanetaryProjection, eUVProjection};
    for (int v = 0; v < 8; ++v) {
        p.setMapProjection(v);
        EXPECT_EQ(p.getMapProjection(), v);
        EXPECT_EQ(p.findMapping()->getProjection(), projections[v]);
    }
    // Planar is left alone from 2 on, and a value above 7 changes nothing.
    p.setMapProjection(1);
    p.setMapProjection(4);
    EXPECT_TRUE(p.findMapping()->isPlanar());
    p.setMapProjection(8);
    EXPECT_EQ(p.getMapProjection(), 4);
    p.findMapping()->setProjection(9);
    EXPECT_EQ(p.getMapProjection(), -1);

    CProperty q(zel());
    q.setMapProjection(8); // ignored, but the mapping is made
    EXPECT_NE(q.findMapping(), nullptr);

    p.setMapAxes({0, 0, 0}, {2, 0, 0}, {0, 3, 0});
    const CZelVector* n = p.findMapping()->getNormal();
    EXPECT_DOUBLE_EQ(n->x, 0);
    EXPECT_DOUBLE_EQ(n->z, 1);
    // Parallel axes leave the normal as it was; axes are stored all the same.
    p.setMapAxes({1, 1, 1}, {1, 0, 0}, {2, 0, 0});
    EXPECT_DOUBLE_EQ(p.findMapping()->getNormal()->z, 1);
    EXPECT_EQ(p.findMapping()->getYAxis()->x, 2);
}

TEST_F(PropertyFacade, CopyFromClonesTheTreeAndKeepsOwnIdentity) {
    CProperty source(zel()), target(zel());
    source.setName("Brick");
    source.setURL("file:///brick.shd");
    source.setDiffuseMap("file:///brick.jpg");
    source.setSmooth(0.5);
    source.setBillboard(true);
    source.setUIValue(4);
    source.shaderNames().setText(CZelString::CodeOf("fr"), "Brique");
    CZelUUID shader = NewZelUUID();
    source.setShaderId(shader);
    target.setUIValue(9);
    CZelUUID id = *target.getId();

    EXPECT_TRUE(target.copyFrom(&source));
    EXPECT_STREQ(target.getName(), "Brick");
    EXPECT_STREQ(target.getURL(), "file:///brick.shd");
    EXPECT_STREQ(target.getDiffuseMap(), "file:///brick.jpg");
    EXPECT_EQ(target.getSmooth(), 0.5);
    EXPECT_TRUE(target.isBillboard());
    EXPECT_STREQ(target.getShaderNames()->findText(CZelString::CodeOf("fr")), "Brique");
    EXPECT_EQ(*target.getShaderId(), shader);
    EXPECT_EQ(*target.getId(), id);
    EXPECT_EQ(target.getUIValue(), 9);
    ITCENode* copied = target.getRootNode()->asNode()->getChild(0);
    EXPECT_NE(copied, source.getRootNode()->asNode()->getChild(0));
    EXPECT_EQ(copied->getParent(), target.getTCE());

    // Nothing to clone under an empty root.
    CProperty empty(zel());
    EXPECT_FALSE(target.copyFrom(&empty));
    EXPECT_EQ(mFeedback.last(), "Can load property from another property");
    EXPECT_FALSE(target.copyFrom(nullptr));
}
