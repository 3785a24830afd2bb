// The mapping node: images laid on a surface. Child 0 is what lies under the mapping.
#pragma once

#include "model/geometry/IZelMappingNode.h"
#include "model/geometry/ShaderNode.h"

#include <string>
#include <vector>

namespace KeZel {

// The fields that a clone copies as they stand.
struct CMappingFields {
    bool mShader = false;
    CZelVector mNormal = {0, 0, 0};
    CZelVector mOrigin = {0, 0, 0};
    CZelVector mXAxis = {0, 0, 0};
    CZelVector mYAxis = {0, 0, 0};
    double mAngle = 0;
    double mHeight = 1.0;
    double mWidth = 1.0;
    double mBump = 0;
    double mXCenter = 0.5;
    double mYCenter = 0.5;
    double mXDelta = 0;
    double mYDelta = 0;
    double mGlossy = 1000.0;
    bool mXRepeat = false;
    bool mYRepeat = false;
    CZelColor mSpecular = {0, 0, 0, 0};
    CZelColor mTransparent = {0, 0, 0, 0};
    CZelColor mReflection = {0, 0, 0, 0};
    double mReflectionLimit = 0;
    bool mCutSet = false;
    bool mUseCutOut1 = false;
    CZelColor mCutOut1 = {0, 0, 0, 0};
    bool mUseCutOut2 = false;
    CZelColor mCutOut2 = {0, 0, 0, 0};
    bool mXInvert = false;
    bool mYInvert = false;
    int mProjection = eXCylindricalProjection;
    bool mPlanar = false;
    bool mVisible = true;
    bool mMix = false;
    CZelColor mMixColor = {0, 127, 127, 127};
    double mMixValue = 0;
    double mAngularLODShift = 0.7;
    double mLinearLODShift = 0.75;
    bool mCutAlpha = false;
    bool mXMirror = false;
    bool mYMirror = false;
    bool mAlphaBump = false;
    bool mAlphaTransparency = false;
    bool mMIPMAP = false;
    bool mTrilinearFilter = false;
    bool mDisplayMode = false;
    double mBrightness = 0;
    double mContrast = 1.0;
    int mFrame = 0;
    int mMovieLength = 0;
    double mNormalMap = 0;
};

class CMappingNode : public TTCENode<IMappingNode> {
public:
    // The three direction defaults follow the client's axis convention.
    explicit CMappingNode(CZelTCE* tree);
    // The copy of a clone: fields and URLs; a fresh MappingNode.Id, no parent id, no
    // linked maps.
    CMappingNode(CZelTCE* tree, const CMappingNode& source);

    const char* getURL(int kind) const override;
    void setURL(const char* url, int kind) override;
    bool isShader() const override { return mFields.mShader; }
    void setShader(bool shader) override { mFields.mShader = shader; }
    unsigned int getMapLinkedCount() const override { return static_cast<unsigned int>(mLinkedMaps.size()); }
    const CZelUUID& getMapLinked(unsigned int index) const override;
    void addLinkedMap(const CZelUUID& uuid) override;
    void removeLinkedMap(const CZelUUID& uuid) override;
    const CZelVector* getNormal() const override { return &mFields.mNormal; }
    void setNormal(const CZelVector& normal) override { mFields.mNormal = normal; }
    const CZelVector* getOrigin() const override { return &mFields.mOrigin; }
    void setOrigin(const CZelVector& origin) override { mFields.mOrigin = origin; }
    const CZelVector* getXAxis() const override { return &mFields.mXAxis; }
    void setXAxis(const CZelVector& axis) override { mFields.mXAxis = axis; }
    const CZelVector* getYAxis() const override { return &mFields.mYAxis; }
    void setYAxis(const CZelVector& axis) override { mFields.mYAxis = axis; }
    double getAngle() const override { return mFields.mAngle; }
    void setAngle(double angle) override { mFields.mAngle = angle; }
    double getHeight() const override { return mFields.mHeight; }
    void setHeight(double height) override { mFields.mHeight = height; }
    double getWidth() const override { return mFields.mWidth; }
    void setWidth(double width) override { mFields.mWidth = width; }
    double getBump() const override { return mFields.mBump; }
    void setBump(double bump) override { mFields.mBump = bump; }
    double getXCenter() const override { return mFields.mXCenter; }
    void setXCenter(double center) override { mFields.mXCenter = center < 0 ? 0 : center; }
    double getYCenter() const override { return mFields.mYCenter; }
    void setYCenter(double center) override { mFields.mYCenter = center < 0 ? 0 : center; }
    double getXDelta() const override { return mFields.mXDelta; }
    void setXDelta(double delta) override { mFields.mXDelta = delta; }
    double getYDelta() const override { return mFields.mYDelta; }
    void setYDelta(double delta) override { mFields.mYDelta = delta; }
    double getGlossy() const override { return mFields.mGlossy; }
    void setGlossy(double glossy) override { mFields.mGlossy = glossy < 0 ? 0 : glossy; }
    bool isXRepeat() const override { return mFields.mXRepeat; }
    void setXRepeat(bool repeat) override { mFields.mXRepeat = repeat; }
    bool isYRepeat() const override { return mFields.mYRepeat; }
    void setYRepeat(bool repeat) override { mFields.mYRepeat = repeat; }
    CZelColor getSpecular() const override { return mFields.mSpecular; }
    void setSpecular(CZelColor color) override { mFields.mSpecular = color; }
    CZelColor getTransparent() const override { return mFields.mTransparent; }
    void setTransparent(CZelColor color) override { mFields.mTransparent = color; }
    CZelColor getReflection() const override { return mFields.mReflection; }
    void setReflection(CZelColor color) override { mFields.mReflection = color; }
    double getReflectionLimit() const override { return mFields.mReflectionLimit; }
    void setReflectionLimit(double limit) override { mFields.mReflectionLimit = limit; }
    bool isCutSet() const override { return mFields.mCutSet; }
    void setCutSet(bool cut) override { mFields.mCutSet = cut; }
    bool isUseCutOut1() const override { return mFields.mUseCutOut1; }
    void setUseCutOut1(bool use) override { mFields.mUseCutOut1 = use; }
    CZelColor getCutOut1() const override { return mFields.mCutOut1; }
    void setCutOut1(CZelColor color) override { mFields.mCutOut1 = color; }
    bool isUseCutOut2() const override { return mFields.mUseCutOut2; }
    void setUseCutOut2(bool use) override { mFields.mUseCutOut2 = use; }
    CZelColor getCutOut2() const override { return mFields.mCutOut2; }
    void setCutOut2(CZelColor color) override { mFields.mCutOut2 = color; }
    bool isXInvert() const override { return mFields.mXInvert; }
    void setXInvert(bool invert) override { mFields.mXInvert = invert; }
    bool isYInvert() const override { return mFields.mYInvert; }
    void setYInvert(bool invert) override { mFields.mYInvert = invert; }
    int getProjection() const override { return mFields.mProjection; }
    void setProjection(int projection) override { mFields.mProjection = projection; }
    bool isPlanar() const override { return mFields.mPlanar; }
    void setPlanar(bool planar) override { mFields.mPlanar = planar; }
    bool isVisible() const override { return mFields.mVisible; }
    void setVisible(bool visible) override { mFields.mVisible = visible; }
    bool isMix() const override { return mFields.mMix; }
    void setMix(bool mix) override { mFields.mMix = mix; }
    CZelColor getMixColor() const override { return mFields.mMixColor; }
    void setMixColor(CZelColor color) override { mFields.mMixColor = color; }
    double getMixValue() const override { return mFields.mMixValue; }
    void setMixValue(double value) override { mFields.mMixValue = value < 0 ? 0 : value; }
    double getAngularLODShift() const override { return mFields.mAngularLODShift; }
    void setAngularLODShift(double shift) override { mFields.mAngularLODShift = shift < 0 ? 0 : shift; }
    double getLinearLODShift() const override { return mFields.mLinearLODShift; }
    void setLinearLODShift(double shift) override { mFields.mLinearLODShift = shift < 0 ? 0 : shift; }
    bool isCutAlpha() const override { return mFields.mCutAlpha; }
    void setCutAlpha(bool cut) override { mFields.mCutAlpha = cut; }
    bool isXMirror() const override { return mFields.mXMirror; }
    void setXMirror(bool mirror) override { mFields.mXMirror = mirror; }
    bool isYMirror() const override { return mFields.mYMirror; }
    void setYMirror(bool mirror) override { mFields.mYMirror = mirror; }
    bool isAlphaBump() const override { return mFields.mAlphaBump; }
    void setAlphaBump(bool on) override { mFields.mAlphaBump = on; }
    bool isAlphaTransparency() const override { return mFields.mAlphaTransparency; }
    void setAlphaTransparency(bool on) override { mFields.mAlphaTransparency = on; }
    bool isMIPMAP() const override { return mFields.mMIPMAP; }
    void setMIPMAP(bool on) override { mFields.mMIPMAP = on; }
    bool isTrilinearFilter() const override { return mFields.mTrilinearFilter; }
    void setTrilinearFilter(bool on) override { mFields.mTrilinearFilter = on; }
    void setDisplayMode(bool mode) override { mFields.mDisplayMode = mode; }
    bool isDisplayMode() const override { return mFields.mDisplayMode; }
    double getBrightness() const override { return mFields.mBrightness; }
    void setBrightness(double brightness) override { mFields.mBrightness = brightness; }
    double getContrast() const override { return mFields.mContrast; }
    void setContrast(double contrast) override { mFields.mContrast = contrast; }
    int getFrame() const override { return mFields.mFrame; }
    void setFrame(int frame) override { mFields.mFrame = frame; }
    int getMovieLength() const override { return mFields.mMovieLength; }
    void setMovieLength(int length) override { mFields.mMovieLength = length; }
    double getNormalMap() const override { return mFields.mNormalMap; }
    void setNormalMap(double power) override { mFields.mNormalMap = power; }
    const CZelUUID* getMappingNodeId() const override { return &mMappingNodeId; }
    void setMappingNodeId(const CZelUUID& id) override { mMappingNodeId = id; }
    const CZelUUID* getMappingNodeParentId() const override { return &mMappingNodeParentId; }
    void setMappingNodeParentId(const CZelUUID& id) override { mMappingNodeParentId = id; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

private:
    CMappingFields mFields;
    std::string mURLs[11]; // by map kind; entry 0 unused
    std::vector<CZelUUID> mLinkedMaps;
    CZelUUID mMappingNodeId;
    CZelUUID mMappingNodeParentId;
};

} // namespace KeZel
