// Billboards: the scene's entries (CZelBBMgrData), each a billboard with its names, its
// quads and its texture, and the delegate of a "Billboard" instance.
#pragma once

#include "frame/ObjectLists.h"
#include "model/objects/IZelBillboard.h"
#include "model/objects/ObjectInstance.h"
#include "model/objects/ZelString.h"

#include <string>

namespace KeZel {

class CZEL;
class CZelBillboard;
class CZelBBMgrData;
class CZelQuad;

class CZelBBName : public TZelFrontier<IZelBillboard::IZelBBName> {
public:
    // "Billboard" in English.
    CZelBBName() : mCode(25966), mText("Billboard") {}

    unsigned short getCode() const override { return mCode; }
    void setCode(unsigned short code) override { mCode = code; }
    const char* getText() const override { return mText.c_str(); }
    void setText(const char* text) override { mText = text ? text : ""; }

private:
    unsigned short mCode;
    std::string mText;
};

typedef TObjectMgr<CZelBBName, IZelBillboard::IZelBBName, CZelBillboard> CBBNameList;
typedef TObjectMgr<CZelQuad, IZelQuad, CZelBBMgrData> CQuadList;
typedef TObjectMgr<CZelBBMgrData, IZelBBMgrData> CBillboardList;

class CZelBillboard : public TZelFrontier<IZelBillboard> {
public:
    // Uniface, scale 1, facing Y in the library's axes.
    explicit CZelBillboard(CZEL* zel);

    const TZelObjectMgr<IZelBBName>* getNames() const override { return &mNames; }
    TZelObjectMgr<IZelBBName>* getNames() override { return &mNames; }
    int getBehavior() const override { return mBehavior; }
    void setBehavior(int behavior) override { mBehavior = behavior; }
    int getNbFaces() const override { return mNbFaces; }
    void setNbFaces(int count) override { mNbFaces = count; }
    bool isAnimate() const override { return mAnimate; }
    void setAnimate(bool animate) override { mAnimate = animate; }
    double getScale() const override { return mScale; }
    void setScale(double scale) override { mScale = scale; }
    const CZelVector* getNormal() const override { return &mNormal; }
    void setNormal(const CZelVector& normal) override { mNormal = normal; }

    CZEL* getZel() const { return mZel; }
    CBBNameList& names() { return mNames; }
    const CBBNameList& names() const { return mNames; }

private:
    CZEL* mZel;
    CBBNameList mNames;
    int mBehavior;
    int mNbFaces;
    bool mAnimate;
    double mScale;
    CZelVector mNormal;
};

class CZelQuad : public TZelFrontier<IZelQuad> {
public:
    // A zero triangle and the identity -1.
    explicit CZelQuad(CQuadList* owner);

    const CZelVector* getTriangle() const override { return mTriangle; }
    void setTriangle(const CZelVector& corner0, const CZelVector& corner1,
                     const CZelVector& corner2) override;
    long long getId() const override { return mId; }
    void setId(long long id) override { mId = id; }

    CQuadList* getOwner() const { return mOwner; }

private:
    CQuadList* mOwner;
    CZelVector mTriangle[3];
    long long mId;
};

class CZelTexture : public TZelFrontier<IZelTexture> {
public:
    CZelTexture();

    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url ? url : ""; }
    const CZelVector* getOrigin() const override { return &mOrigin; }
    void setOrigin(const CZelVector& origin) override { mOrigin = origin; }
    const CZelVector* getXAxis() const override { return &mXAxis; }
    void setXAxis(const CZelVector& axis) override { mXAxis = axis; }
    const CZelVector* getYAxis() const override { return &mYAxis; }
    void setYAxis(const CZelVector& axis) override { mYAxis = axis; }
    double getWidth() const override { return mWidth; }
    void setWidth(double width) override { mWidth = width; }
    double getHeight() const override { return mHeight; }
    void setHeight(double height) override { mHeight = height; }
    bool getCutOut1(CZelColor* color) const override;
    void setCutOut1(bool used, CZelColor color) override;
    bool getCutOut2(CZelColor* color) const override;
    void setCutOut2(bool used, CZelColor color) override;
    bool isCutSet() const override { return mCutSet; }
    void setCutSet(bool set) override { mCutSet = set; }

private:
    std::string mURL;
    CZelVector mOrigin;
    CZelVector mXAxis;
    CZelVector mYAxis;
    double mWidth;
    double mHeight;
    bool mCutOut[2];
    CZelColor mCutOutColor[2];
    bool mCutSet;
};

class CZelBBMgrData : public TZelFrontier<IZelBBMgrData> {
public:
    explicit CZelBBMgrData(CBillboardList* list);

    // An entry always holds its billboard.
    bool hasBillboard() const override { return true; }
    const IZelBillboard* getBillboard() const override { return &mBillboard; }
    IZelBillboard* getBillboard() override { return &mBillboard; }
    const TZelObjectMgr<IZelQuad>* getQuads() const override { return &mQuads; }
    TZelObjectMgr<IZelQuad>* getQuads() override { return &mQuads; }
    unsigned int getProperty() const override { return mProperty; }
    void setProperty(unsigned int value) override { mProperty = value; }
    const IZelTexture* getTexture() const override { return &mTexture; }
    IZelTexture* getTexture() override { return &mTexture; }

    CZEL* getZel() const { return mZel; }
    CZelBillboard& billboard() { return mBillboard; }
    const CZelBillboard& billboard() const { return mBillboard; }
    CQuadList& quads() { return mQuads; }
    const CQuadList& quads() const { return mQuads; }
    CZelTexture& texture() { return mTexture; }
    const CZelTexture& texture() const { return mTexture; }

private:
    CZEL* mZel;
    CZelBillboard mBillboard;
    CQuadList mQuads;
    unsigned int mProperty;
    CZelTexture mTexture;
};

class CZelBBObjectInstance : public TZelFrontier<IZelBBObjectInstance>, public CZelObjectInstance::IDelegate {
public:
    // Reads Instance.Data; what can't be read keeps its default.
    explicit CZelBBObjectInstance(CZelObjectInstance* instance);

    const IZelObjectInstance* getInstance() const override { return mInstance; }
    IZelObjectInstance* getInstance() override { return mInstance; }
    bool isOrientWithCamera() const override { return mOrient; }
    void setOrientWithCamera(bool orient) override { mOrient = orient; }
    bool isVerticalFlip() const override { return mVerticalFlip; }
    void setVerticalFlip(bool flip) override { mVerticalFlip = flip; }
    bool isHorizontalFlip() const override { return mHorizontalFlip; }
    void setHorizontalFlip(bool flip) override { mHorizontalFlip = flip; }
    int getRenderType() const override { return mRenderType; }
    void setRenderType(int type) override { mRenderType = type; }
    double getShininess() const override { return mShininess; }
    void setShininess(double shininess) override { mShininess = shininess; }
    double getRoughness() const override { return mRoughness; }
    void setRoughness(double roughness) override { mRoughness = roughness; }
    double getBrightness() const override { return mBrightness; }
    void setBrightness(double brightness) override { mBrightness = brightness; }
    double getContrast() const override { return mContrast; }
    void setContrast(double contrast) override { mContrast = contrast; }
    int getKind() const override { return mKind; }
    void setKind(int kind) override { mKind = kind; }
    double getDefinitionSize() const override { return mDefinitionSize; }
    void setDefinitionSize(double size) override { mDefinitionSize = size; }
    const IZelString* getDefinitionName() const override { return &mDefinitionName; }
    IZelString* getDefinitionName() override { return &mDefinitionName; }
    int getCurrentConfig() const override { return mCurrentConfig; }
    void setCurrentConfig(int config) override { mCurrentConfig = config; }
    void updateInstanceData() override;

    CZelString& definitionName() { return mDefinitionName; }
    const CZelString& definitionName() const { return mDefinitionName; }

private:
    CZelObjectInstance* mInstance;
    bool mOrient;
    bool mVerticalFlip;
    bool mHorizontalFlip;
    int mRenderType;
    double mShininess;
    double mRoughness;
    double mBrightness;
    double mContrast;
    int mKind;
    double mDefinitionSize;
    CZelString mDefinitionName;
    int mCurrentConfig;
};

} // namespace KeZel
