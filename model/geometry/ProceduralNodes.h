// The node kinds besides the mapping: Leaf, Chess, Turbulence, Fresnel, Glazing, Custom.
// Each is its fields and nothing else: counting, children, cloning and the element walk
// are shared (ShaderNode.h, codec/ShaderCodec.h).
#pragma once

#include "model/geometry/IZelProceduralNodes.h"
#include "model/geometry/ShaderNode.h"

#include <memory>

namespace KestraXML {
class XCXMLTree;
}

namespace KeZel {

class CLeafNode : public TTCENode<ILeafNode> {
public:
    explicit CLeafNode(CZelTCE* tree) : TTCENode<ILeafNode>(tree) {}
    CLeafNode(CZelTCE* tree, const CLeafNode& source) : TTCENode<ILeafNode>(tree, source), mF(source.mF) {}

    CZelColor getDiffuse() const override { return mF.mDiffuse; }
    void setDiffuse(CZelColor color) override { mF.mDiffuse = color; }
    CZelColor getTransparent() const override { return mF.mTransparent; }
    void setTransparent(CZelColor color) override { mF.mTransparent = color; }
    CZelColor getSpecular() const override { return mF.mSpecular; }
    void setSpecular(CZelColor color) override { mF.mSpecular = color; }
    CZelColor getReflection() const override { return mF.mReflection; }
    void setReflection(CZelColor color) override { mF.mReflection = color; }
    double getReflectionLimit() const override { return mF.mReflectionLimit; }
    void setReflectionLimit(double limit) override { mF.mReflectionLimit = limit; }
    CZelColor getNeonColor() const override { return mF.mNeonColor; }
    void setNeonColor(CZelColor color) override { mF.mNeonColor = color; }
    double getNeonValue() const override { return mF.mNeonValue; }
    void setNeonValue(double value) override { mF.mNeonValue = value < 0 ? 0 : value; }
    double getRefraction() const override { return mF.mRefraction; }
    void setRefraction(double refraction) override {
        mF.mRefraction = refraction < 0 ? 0 : (refraction > 3.5 ? 3.5 : refraction);
    }
    double getGlossy() const override { return mF.mGlossy; }
    void setGlossy(double glossy) override { mF.mGlossy = glossy < 0 ? 0 : glossy; }
    CZelColor getEmittingColor() const override { return mF.mEmittingColor; }
    void setEmittingColor(CZelColor color) override { mF.mEmittingColor = color; }
    double getEmittingPower() const override { return mF.mEmittingPower; }
    void setEmittingPower(double power) override { mF.mEmittingPower = power; }

private:
    struct Fields {
        CZelColor mDiffuse = {0, 100, 100, 100};
        CZelColor mTransparent = {0, 0, 0, 0};
        CZelColor mSpecular = {0, 0, 0, 0};
        CZelColor mReflection = {0, 0, 0, 0};
        double mReflectionLimit = 0;
        CZelColor mNeonColor = {0, 0, 0, 0};
        double mNeonValue = 0;
        double mRefraction = 1.0;
        double mGlossy = 1000.0;
        CZelColor mEmittingColor = {0, 0, 0, 0};
        double mEmittingPower = 0;
    } mF;
};

class CChessNode : public TTCENode<IChessNode> {
public:
    explicit CChessNode(CZelTCE* tree);
    CChessNode(CZelTCE* tree, const CChessNode& source);

    const CZelVector* getOrigin() const override { return &mF.mOrigin; }
    void setOrigin(const CZelVector& origin) override { mF.mOrigin = origin; }
    const CZelVector* getXAxis() const override { return &mF.mXAxis; }
    void setXAxis(const CZelVector& axis) override { mF.mXAxis = axis; }
    const CZelVector* getYAxis() const override { return &mF.mYAxis; }
    void setYAxis(const CZelVector& axis) override { mF.mYAxis = axis; }
    const CZelVector* getZAxis() const override { return &mF.mZAxis; }
    void setZAxis(const CZelVector& axis) override { mF.mZAxis = axis; }
    const CZelVector* getSize() const override { return &mF.mSize; }
    void setSize(const CZelVector& size) override { mF.mSize = size; }
    const CZelVector* getProportion() const override { return &mF.mProportion; }
    void setProportion(const CZelVector& proportion) override { mF.mProportion = proportion; }
    bool isChecker() const override { return mF.mChecker; }
    void setChecker(bool checker) override { mF.mChecker = checker; }
    bool isSmooth() const override { return mF.mSmooth; }
    void setSmooth(bool smooth) override { mF.mSmooth = smooth; }
    int getGeometry() const override { return mF.mGeometry; }
    void setGeometry(int geometry) override { mF.mGeometry = geometry; }
    ITable* getTable1() override { return &mTable1; }
    const ITable* getTable1() const override { return &mTable1; }
    ITable* getTable2() override { return &mTable2; }
    const ITable* getTable2() const override { return &mTable2; }
    ITable* getTable3() override { return &mTable3; }
    const ITable* getTable3() const override { return &mTable3; }

private:
    struct Fields {
        CZelVector mOrigin = {0, 0, 0};
        CZelVector mXAxis = {0, 0, 0};
        CZelVector mYAxis = {0, 0, 0};
        CZelVector mZAxis = {0, 0, 0};
        CZelVector mSize = {0, 0, 0};
        CZelVector mProportion = {0, 0, 0};
        bool mChecker = false;
        bool mSmooth = false;
        int mGeometry = eChessCube;
    } mF;
    CTable mTable1;
    CTable mTable2;
    CTable mTable3;
};

class CTurbulenceNode : public TTCENode<ITurbulenceNode> {
public:
    explicit CTurbulenceNode(CZelTCE* tree);
    CTurbulenceNode(CZelTCE* tree, const CTurbulenceNode& source);

    const CZelVector* getOrigin() const override { return &mF.mOrigin; }
    void setOrigin(const CZelVector& origin) override { mF.mOrigin = origin; }
    const CZelVector* getAmplitude() const override { return &mF.mAmplitude; }
    void setAmplitude(const CZelVector& amplitude) override { mF.mAmplitude = amplitude; }
    const CZelVector* getDirection() const override { return &mF.mDirection; }
    void setDirection(const CZelVector& direction) override { mF.mDirection = direction; }
    double getSize() const override { return mF.mSize; }
    void setSize(double size) override { mF.mSize = size; }
    ITable* getTable() override { return &mTable; }
    const ITable* getTable() const override { return &mTable; }

private:
    struct Fields {
        CZelVector mOrigin = {0, 0, 0};
        CZelVector mAmplitude = {0, 0, 0};
        CZelVector mDirection = {0, 0, 0};
        double mSize = 0;
    } mF;
    CTable mTable;
};

class CFresnelNode : public TTCENode<IFresnelNode> {
public:
    explicit CFresnelNode(CZelTCE* tree) : TTCENode<IFresnelNode>(tree) {}
    CFresnelNode(CZelTCE* tree, const CFresnelNode& source)
        : TTCENode<IFresnelNode>(tree, source), mF(source.mF) {}

    double getMinReflection() const override { return mF.mMinReflection; }
    // Clipped to 0 .. 1, with a report.
    void setMinReflection(double reflection) override;
    double getPowerFactor() const override { return mF.mPowerFactor; }
    void setPowerFactor(double factor) override { mF.mPowerFactor = factor; }

private:
    struct Fields {
        double mMinReflection = 0.05;
        double mPowerFactor = 5.0;
    } mF;
};

class CGlazingNode : public TTCENode<IGlazingNode> {
public:
    explicit CGlazingNode(CZelTCE* tree) : TTCENode<IGlazingNode>(tree) {}
    CGlazingNode(CZelTCE* tree, const CGlazingNode& source)
        : TTCENode<IGlazingNode>(tree, source), mF(source.mF) {}

    double getXScale() const override { return mF.mXScale; }
    void setXScale(double scale) override { mF.mXScale = scale; }
    double getYScale() const override { return mF.mYScale; }
    void setYScale(double scale) override { mF.mYScale = scale; }
    double getFlatness() const override { return mF.mFlatness; }
    void setFlatness(double flatness) override { mF.mFlatness = flatness; }
    bool isTiltDetect() const override { return mF.mTiltDetect; }
    void setTiltDetect(bool detect) override { mF.mTiltDetect = detect; }
    double getTiltFactor() const override { return mF.mTiltFactor; }
    void setTiltFactor(double factor) override { mF.mTiltFactor = factor; }
    bool isAnimation() const override { return mF.mAnimation; }
    void setAnimation(bool animation) override { mF.mAnimation = animation; }
    double getSpeed() const override { return mF.mSpeed; }
    void setSpeed(double speed) override { mF.mSpeed = speed; }
    void setExtraValue(double value) override { mF.mExtraValue = value; }
    double getExtraValue() const override { return mF.mExtraValue; }

private:
    struct Fields {
        double mXScale = 50.0;
        double mYScale = 50.0;
        double mFlatness = 0.5;
        bool mTiltDetect = true;
        double mTiltFactor = 0.5;
        bool mAnimation = false;
        double mSpeed = 2.0;
        double mExtraValue = 0;
    } mF;
};

// The host's data is a small XML document of the node's own, rooted at Custom.Data.
class CCustomNode : public TTCENode<ICustomNode> {
public:
    // Custom.Data with Class "Unknown".
    explicit CCustomNode(CZelTCE* tree);
    CCustomNode(CZelTCE* tree, const CCustomNode& source);
    ~CCustomNode() override;

    const char* getClass() const override;
    void setClass(const char* name) override;
    KestraXML::XIXMLElement* getCustomData() override;
    const KestraXML::XIXMLElement* getCustomData() const override;

    // ---- Internal API
    // Takes a copy of `data`, which must be a Custom.Data element with a Class; otherwise
    // reports "ICustomNode::initWithXML - invalid parameter" and answers false.
    bool initWithXML(const KestraXML::XIXMLElement* data);

private:
    // A document holding a copy of `data` (or a new Custom.Data of class "Unknown").
    static std::unique_ptr<KestraXML::XCXMLTree> MakeData(const KestraXML::XIXMLElement* data);

    std::unique_ptr<KestraXML::XCXMLTree> mData;
};

} // namespace KeZel
