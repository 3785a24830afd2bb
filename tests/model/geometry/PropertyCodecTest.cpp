#include "MaterialsTestSupport.h"

#include "codec/PropertyCodec.h"
#include "frame/UUID.h"
#include "model/geometry/IZelMappingNode.h"
#include "model/geometry/IZelProceduralNodes.h"
#include "support/TestSupport.h"

using namespace KeZel;
using namespace MaterialsTest;
using KestraXML::XCXMLTree;
using KestraXML::XIXMLElement;

namespace {

class PropertyElements : public Materials {
protected:
    // A property with a tree and every own field away from its default.
    void Fill(CProperty& p) {
        p.setName("Brick");
        p.setVisible(false);
        p.setUVDefined(true);
        p.setSmooth(0.5);
        p.setURL("file:///brick.shd");
        p.setShaderId(NewZelUUID());
        p.shaderNames().setText(CZelString::CodeOf("en"), "Brick");
        p.shaderNames().setText(CZelString::CodeOf("fr"), "Brique");
        p.setDiffuseMap("file:///brick.jpg");
        p.setOverloadId(NewZelUUID());
        p.setUIValue(3);
    }
    std::string Written(const CProperty& p) {
        XCXMLTree tree;
        return Bytes(ZelAddProperty(CZelXMLIO(zel()), tree.GetRoot(), p));
    }
    void Read(const std::string& text, CProperty& p, bool fullMode) {
        std::unique_ptr<XCXMLTree> tree = Parse(text);
        ZelGetProperty(CZelXMLIO(zel(), fullMode), Top(tree), p);
    }
};

const char kLeafNode[] =
    "<Node Type=\"Leaf\"><Diffuse R=\"1\" G=\"1\" B=\"1\"/><Transparent R=\"0\" G=\"0\" B=\"0\"/>"
    "<Specular R=\"0\" G=\"0\" B=\"0\"/><Reflection R=\"0\" G=\"0\" B=\"0\"/>"
    "<Neon.Color R=\"0\" G=\"0\" B=\"0\"/><Neon.Value>0</Neon.Value>"
    "<Refraction>1</Refraction><Glossy>1</Glossy></Node>";

std::string PropertyText(const std::string& inside, const std::string& attributes = "") {
    return "<Property" + attributes + "><Name en=\"P\"/><Smooth>0.5</Smooth><Scale>2</Scale><URL/>" + inside +
           kLeafNode + "</Property>";
}

} // namespace

TEST_F(PropertyElements, ModesDecideWhoseIdentitiesStand) {
    CProperty p(zel());
    Fill(p);
    std::string written = Written(p);
    std::unique_ptr<XCXMLTree> parsed = Parse(written);
    XIXMLElement* e = Top(parsed);
    EXPECT_EQ(CZelXMLIO::find(e, "Visible"), nullptr);
    EXPECT_NE(CZelXMLIO::findAttribute(e, "Shader.Id"), nullptr);
    KestraXML::XIXMLAttribute* name = CZelXMLIO::need(e, "Shader.Name")->GetFirstAttribute();
    ASSERT_NE(name, nullptr);
    EXPECT_STREQ(*name->GetKey(), "en");
    EXPECT_STREQ(*name->GetNext()->GetKey(), "fr");

    CProperty q(zel());
    Read(written, q, true);
    EXPECT_EQ(*q.getId(), *p.getId());
    EXPECT_EQ(*q.getOverloadPropIndex(), *p.getOverloadPropIndex());
    EXPECT_EQ(q.getUIValue(), 3);
    EXPECT_FALSE(q.isVisible());
    EXPECT_STREQ(q.getDiffuseMap(), "file:///brick.jpg");
    EXPECT_EQ(q.getShaderNames()->getCount(), 2);
    EXPECT_EQ(Written(q), written);

    // A partial read keeps the property's own identities and gives the mappings new ones.
    CProperty a(zel()), b(zel());
    CZelUUID aId = *a.getId();
    Read(written, a, false);
    Read(written, b, false);
    EXPECT_EQ(*a.getId(), aId);
    EXPECT_NE(*a.getId(), *b.getId());
    EXPECT_NE(*a.getOverloadPropIndex(), *p.getOverloadPropIndex());
    EXPECT_EQ(a.getUIValue(), 3); // read in either mode
    EXPECT_NE(*a.findMapping()->getMappingNodeId(), *p.findMapping()->getMappingNodeId());
    EXPECT_STREQ(a.getName(), "Brick");
}

TEST_F(PropertyElements, ReadingRules) {
    CProperty p(zel());
    p.setDiffuseColor(Color(5, 5, 5)); // a child 0 that the read replaces
    Read(PropertyText("<Shadow/>"), p, true);
    EXPECT_TRUE(p.isCastShadow());
    EXPECT_FALSE(p.isVisible() || p.isReceiveShadow());
    EXPECT_EQ(p.getSmooth(), 0.5);
    EXPECT_EQ(p.getRootNode()->asNode()->getChildCount(), 1);
    EXPECT_TRUE(Same(p.getDiffuseColor(), Color(1, 1, 1)));
    // Without the identities, a full read keeps what it read before them.
    EXPECT_STREQ(p.getName(), "P");

    Read(PropertyText("<Shader.Name de=\"Ziegel\"/>"), p, true);
    EXPECT_FALSE(p.isCastShadow());
    EXPECT_STREQ(p.getShaderNames()->findText(CZelString::CodeOf("de")), "Ziegel");

    std::string root = PropertyText("");
    root.replace(root.find("Type=\"Leaf\""), 11, "Type=\"Root\"");
    EXPECT_EQ(ZelTest::ErrorOf([&] { Read(root, p, true); }), "Can't root's child");

    // The public reader looks for its child and reports under its own name.
    std::unique_ptr<XCXMLTree> tree = Parse("<Holder>" + PropertyText("", " Id=\"zz\"") + "</Holder>");
    EXPECT_TRUE(p.initWithXML(Top(tree)));
    EXPECT_FALSE(p.initWithXML(CZelXMLIO::find(Top(tree), "Property")));
    EXPECT_EQ(mFeedback.last().find("Exception in CZelProperty::initWithXML : "), 0u);
    CProperty empty(zel());
    EXPECT_EQ(empty.putInXML(Top(tree)), nullptr);
    EXPECT_EQ(mFeedback.last().find("Exception in CZelProperty::putInXML : "), 0u);
}

TEST_F(PropertyElements, PropertiesListReplacesAndRefills) {
    CPropertyList list(zel());
    Fill(*list.newItem());
    list.newItem()->setSpecularColor(Color(1, 2, 3));
    // The second property's mapping is a derived copy of the first's.
    CProperty* second = list.at(1);
    second->setDiffuseMap("file:///x.jpg");
    second->findMapping()->setMappingNodeParentId(*list.at(0)->findMapping()->getMappingNodeId());

    XCXMLTree tree;
    XIXMLElement* file = CZelXMLIO::add(tree.GetRoot(), "Zel.File");
    CZelXMLIO::add(file, "Properties");
    CZelXMLIO::add(file, "Lights");
    CZelXMLIO io(zel());
    ZelPutProperties(io, file, list);
    ZelPutProperties(io, file, list);
    EXPECT_EQ(file->GetElementCount(), 2u);
    EXPECT_EQ(CZelXMLIO::find(file, "Properties")->FindNextElement(), nullptr);
    EXPECT_EQ(CZelXMLIO::find(file, "Properties")->GetElementCount(), 2u);

    CPropertyList partial(zel());
    partial.newItem();
    partial.newItem();
    partial.newItem();
    ASSERT_TRUE(ZelGetProperties(io, file, partial));
    ASSERT_EQ(partial.getCount(), 2u);
    EXPECT_STREQ(partial.at(0)->getName(), "Brick");
    EXPECT_TRUE(Same(partial.at(1)->getSpecularColor(), Color(1, 2, 3)));
    // New identities, with the link between the two mappings kept.
    const CZelUUID* firstId = partial.at(0)->findMapping()->getMappingNodeId();
    EXPECT_NE(*firstId, *list.at(0)->findMapping()->getMappingNodeId());
    EXPECT_EQ(*partial.at(1)->findMapping()->getMappingNodeParentId(), *firstId);

    CPropertyList full(zel());
    ASSERT_TRUE(ZelGetProperties(CZelXMLIO(zel(), true), file, full));
    EXPECT_EQ(*full.at(1)->getId(), *list.at(1)->getId());
    XCXMLTree none;
    EXPECT_FALSE(ZelGetProperties(io, none.GetRoot(), full));
    EXPECT_EQ(full.getCount(), 2u);
}

TEST_F(PropertyElements, ShaderFilesBothWaysAndTheirFailures) {
    CZelMgrEx* ex = zel()->getMgrEx(eZelExtendedVersionCurrent);
    CProperty p(zel());
    p.setDiffuseMap("file:///wood.jpg");
    p.setGlossy(42);
    CZelMemoryStream file;
    EXPECT_EQ(ex->writeShader(&p, &file), 0);
    EXPECT_EQ(file.bytes().find("<Kestra.Shader>"), 0u);

    CProperty q(zel());
    q.setDiffuseColor(Color(1, 1, 1));
    file.rewind();
    EXPECT_EQ(ex->readShader(&q, &file), 0);
    EXPECT_EQ(q.getRootNode()->asNode()->getChildCount(), 1);
    EXPECT_STREQ(q.getDiffuseMap(), "file:///wood.jpg");
    EXPECT_EQ(q.getGlossyValue(), 42);
    EXPECT_EQ(*q.getRootNode()->asNode()->getChild(0)->getId(),
              *p.getRootNode()->asNode()->getChild(0)->getId());
    EXPECT_TRUE(mFeedback.empty());

    CProperty empty(zel());
    EXPECT_EQ(ex->writeShader(nullptr, &file), 2);
    EXPECT_EQ(mFeedback.last(), "Property is NULL");
    EXPECT_EQ(ex->writeShader(&empty, &file), 2);
    EXPECT_EQ(mFeedback.last(), "Property root's child is NULL");

    EXPECT_EQ(ex->readShader(&q, nullptr), 1);
    EXPECT_EQ(mFeedback.last(), "read strem is NULL");
    EXPECT_EQ(ex->readShader(nullptr, &file), 1);
    EXPECT_EQ(mFeedback.last(), "Can't get root node");
    CZelMemoryStream other(std::string("<Zel.File/>"));
    EXPECT_EQ(ex->readShader(&q, &other), 1);
    EXPECT_EQ(mFeedback.last(), "This is not a shader");

    // The legacy form: its node reader is missing, so it always fails, and the
    // converting flag does not outlive the call.
    CZelMemoryStream legacy(std::string("! !\n\te\t1 1 1\n"));
    EXPECT_EQ(ex->readShader(&q, &legacy), 1);
    EXPECT_EQ(mFeedback.last(), "Can't read tce");
    EXPECT_FALSE(zel()->isConverting());
    CZelMemoryStream noMarks(std::string("!x"));
    EXPECT_EQ(ex->readShader(&q, &noMarks), 1);
    EXPECT_EQ(mFeedback.last(), "Reading wrong data type!");
    EXPECT_STREQ(q.getDiffuseMap(), "file:///wood.jpg");
}
