// A material: its own record of fields, and the shader tree of which it holds the root.
// Most colour and map operations are a facade over the tree: they act on the first Leaf
// (L) or the first Mapping without the shader flag (M) down the chain of first children;
// getters never create a node, setters make the one they need.
#pragma once

#include "frame/ObjectLists.h"
#include "model/geometry/IZelProperty.h"
#include "model/geometry/ShaderNode.h"
#include "model/objects/ZelString.h"

#include <string>

namespace KeZel {

class CProperty;

// The scene's materials (and its standalone shaders): made with the list, owned by it.
typedef TObjectMgr<CProperty, CZelProperty> CPropertyList;

class CProperty : public TZelFrontier<CZelProperty>, public TZelFrontier<CZelTCE> {
public:
    // A temporary property: strings empty, everything else zero, no manager.
    CProperty();
    // A property of the scene's list, or of `zel` directly. Fresh identities; raises
    // "Can't create UUID".
    explicit CProperty(CPropertyList* list);
    explicit CProperty(CZEL* zel);
    ~CProperty() override;
    CProperty(const CProperty&) = delete;
    CProperty& operator=(const CProperty&) = delete;

    // ---- CZelProperty
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    bool isVisible() const override { return mVisible; }
    void setVisible(bool visible) override { mVisible = visible; }
    bool isCastShadow() const override { return mCastShadow; }
    void setCastShadow(bool cast) override { mCastShadow = cast; }
    double getSmooth() const override { return mSmooth; }
    void setSmooth(double smooth) override;
    double getScale() const override { return mScale; }
    void setScale(double scale) override { mScale = scale < 0 ? 0 : scale; }
    CZelColor getDiffuseColor() const override;
    void setDiffuseColor(CZelColor color) override;
    CZelColor getSpecularColor() const override;
    void setSpecularColor(CZelColor color) override;
    void getGlossy(double* glossy) const override;
    void setGlossy(double glossy) override;
    CZelColor getTransparentColor() const override;
    void setTransparentColor(CZelColor color) override;
    CZelColor getReflectionColor() const override;
    void setReflectionColor(CZelColor color) override;
    const char* getDiffuseMap() const override;
    void setDiffuseMap(const char* url) override;
    int getMapProjection() const override;
    void setMapProjection(int projection) override;
    bool getMapAxes(CZelVector* origin, CZelVector* xAxis, CZelVector* yAxis) const override;
    void setMapAxes(const CZelVector& origin, const CZelVector& xAxis, const CZelVector& yAxis) override;
    bool getMapTransparentColor(CZelColor* color) const override;
    void setMapTransparentColor(CZelColor color) override;
    bool getMapRepeat(bool* xRepeat, bool* yRepeat) const override;
    void setMapRepeat(bool xRepeat, bool yRepeat) override;
    bool getMapInvert(bool* xInvert, bool* yInvert) const override;
    void setMapInvert(bool xInvert, bool yInvert) override;
    bool getMapSize(double* height, double* width) const override;
    void setMapSize(double height, double width) override;
    const CZelTCE* getTCE() const override { return this; }
    CZelTCE* getTCE() override { return this; }
    bool getMapAngle(double* angle) const override;
    void setMapAngle(double angle) override;
    bool copyFrom(const CZelProperty* other) override;
    bool isBillboard() const override { return mBillboard; }
    void setBillboard(bool billboard) override { mBillboard = billboard; }
    double getGlossyValue() const override;
    CZelColor getNeonColor() const override;
    void setNeonColor(CZelColor color) override;
    double getNeonValue() const override;
    void setNeonValue(double value) override;
    double getRefraction() const override;
    void setRefraction(double refraction) override;
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const CZelUUID* getId() const override { return &mId; }
    void setId(const CZelUUID& id) override;
    const CZelUUID* getOverloadPropIndex() const override { return &mOverloadPropIndex; }
    void setOverloadPropIndex(const CZelUUID& id) override { mOverloadPropIndex = id; }
    const CZelUUID* getOverloadId() const override { return &mOverloadId; }
    void setOverloadId(const CZelUUID& id) override { mOverloadId = id; }
    bool isReceiveShadow() const override { return mReceiveShadow; }
    void setReceiveShadow(bool receive) override { mReceiveShadow = receive; }
    bool isUVDefined() const override { return mUVDefined; }
    void setUVDefined(bool defined) override { mUVDefined = defined; }
    bool getAngularLODShift(double* shift) const override;
    void setAngularLODShift(double shift) override;
    bool getLinearLODShift(double* shift) const override;
    void setLinearLODShift(double shift) override;
    bool getCutAlpha() const override;
    void setCutAlpha(bool cut) override;
    double getReflectionLimit() const override;
    void setReflectionLimit(double limit) override;
    CZelColor getEmittingColor() const override;
    void setEmittingColor(CZelColor color) override;
    double getEmittingPower() const override;
    void setEmittingPower(double power) override;
    void setDisplayMode(bool mode) override;
    bool getDisplayMode() const override;
    int getUIValue() const override { return mUIValue; }
    void setUIValue(int value) override { mUIValue = value; }
    double getNormalMapPower() const override;
    void setNormalMapPower(double power) override;
    const char* getNormalMap() const override;
    void setNormalMap(const char* url) override;

    // ---- CZelTCE
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url ? url : ""; }
    const CZelUUID* getShaderId() const override { return &mShaderId; }
    void setShaderId(const CZelUUID& id) override { mShaderId = id; }
    IZelString* getShaderNames() override { return &mShaderNames; }
    const IZelString* getShaderNames() const override { return &mShaderNames; }
    IRootNode* getRootNode() override { return &mRoot; }
    const IRootNode* getRootNode() const override { return &mRoot; }
    // Kind 0 and unknown kinds are reported and answer null.
    ITCENode* createNode(int kind) override;

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CRootNode& root() { return mRoot; }
    const CRootNode& root() const { return mRoot; }
    CZelString& shaderNames() { return mShaderNames; }
    const CZelString& shaderNames() const { return mShaderNames; }
    // The property behind a tree, or null for a tree of another kind.
    static const CProperty* FromTCE(const CZelTCE* tree);

    // L and M, or null; the facade's search.
    ILeafNode* findLeaf() const;
    IMappingNode* findMapping() const;
    // L and M, made as the facade's setters make them when missing.
    ILeafNode* needLeaf();
    IMappingNode* needMapping();

private:
    void report(const char* text) const;

    CZEL* mZel;
    std::string mName;
    std::string mURL;
    CZelUUID mShaderId;
    CZelString mShaderNames;
    bool mVisible;
    bool mCastShadow;
    bool mBillboard;
    double mSmooth;
    double mScale;
    CZelUUID mId;
    CZelUUID mOverloadPropIndex;
    CZelUUID mOverloadId;
    bool mReceiveShadow;
    bool mUVDefined;
    int mUIValue;
    CRootNode mRoot;
};

} // namespace KeZel
