// What changes over time in a scenario: animated elements (which entity), their
// interpolated values (which parameter) and key frames (the values at given times). The
// library stores them; the host interpolates.
#pragma once

#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/animation/IZelKeyFrame.h"

namespace KeZel {

class CZEL;
class CZelKeyFrame;
class CZelInterpolatedValue;
class CZelAnimatedElement;

typedef TObjectMgr<CZelKeyFrame, IZelKeyFrame, CZelInterpolatedValue> CKeyFrameList;
typedef TObjectMgr<CZelInterpolatedValue, IZelInterpolatedValue, CZelAnimatedElement> CInterpolatedValueList;

// Value types of a key frame.
enum EKeyFrameValueType {
    eKeyCoord3D = 0,
    eKeyColor = 1,
    eKeyDouble = 2,
    eKeyBoolean = 3,
    eKeyInteger = 4,
    eKeyDate = 5,
    eKeyUUID = 6,
    eKeyEnum = 7
};

class CZelKeyFrame : public TZelFrontier<IZelKeyFrame> {
public:
    // An "Integer" key at time 0, visible, "Linear", locked, all areas zero.
    explicit CZelKeyFrame(CZEL* zel);
    explicit CZelKeyFrame(CKeyFrameList* list);

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first KeyFrame child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    int getValueType() const override { return mValueType; }
    void setValueType(int type) override { mValueType = type; }
    const CZelVector* getValue() const override { return &mArea[0]; }
    void setValue(const CZelVector& value) override { mArea[0] = value; }
    int getTime() const override { return mTime; }
    void setTime(int time) override { mTime = time; }
    bool isVisible() const override { return mVisible; }
    void setVisible(bool visible) override { mVisible = visible; }
    int getInterpolationType() const override { return mInterpolation; }
    void setInterpolationType(int type) override { mInterpolation = type; }
    const CZelVector* getCPBefore() const override { return &mArea[1]; }
    void setCPBefore(const CZelVector& point) override { mArea[1] = point; }
    const CZelVector* getCPAfter() const override { return &mArea[2]; }
    void setCPAfter(const CZelVector& point) override { mArea[2] = point; }
    bool areLocked() const override { return mLocked; }
    void setLocked(bool locked) override { mLocked = locked; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    // The three areas by number: 0 the value, 1 the control point before, 2 after.
    CZelVector& area(int index) { return mArea[index]; }
    const CZelVector& area(int index) const { return mArea[index]; }

private:
    CZEL* mZel;
    int mTime;
    int mValueType;
    // Value, control point before, control point after; read by the value type.
    CZelVector mArea[3];
    bool mVisible;
    int mInterpolation;
    bool mLocked;
};

// Typed views of a key frame's 24-byte area: the value stands in its first bytes.
double ZelAreaDouble(const CZelVector& area);
void ZelSetAreaDouble(CZelVector& area, double value);
int ZelAreaInt(const CZelVector& area);
void ZelSetAreaInt(CZelVector& area, int value);
bool ZelAreaBool(const CZelVector& area);
void ZelSetAreaBool(CZelVector& area, bool value);
CZelColor ZelAreaColor(const CZelVector& area);
void ZelSetAreaColor(CZelVector& area, const CZelColor& value);
CZelUUID ZelAreaUUID(const CZelVector& area);
void ZelSetAreaUUID(CZelVector& area, const CZelUUID& value);

class CZelInterpolatedValue : public TZelFrontier<IZelInterpolatedValue> {
public:
    explicit CZelInterpolatedValue(CZEL* zel);
    explicit CZelInterpolatedValue(CInterpolatedValueList* list);

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Interpolated.Value child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    int getType() const override { return mType; }
    void setType(int type) override { mType = type; }
    const TZelObjectMgr<IZelKeyFrame>* getKeyFrames() const override { return &mKeyFrames; }
    TZelObjectMgr<IZelKeyFrame>* getKeyFrames() override { return &mKeyFrames; }
    const IZelKeyFrame* getDefaultValue() const override { return &mDefault; }
    IZelKeyFrame* getDefaultValue() override { return &mDefault; }
    bool isLoop() const override { return mLoop; }
    void setLoop(bool loop) override { mLoop = loop; }
    int getNbLoops() const override { return mNbLoops; }
    void setNbLoops(int count) override { mNbLoops = count; }
    const CZelUUID* getPathId() const override { return &mPathId; }
    void setPathId(const CZelUUID& id) override { mPathId = id; }

    CZEL* getZel() const { return mZel; }
    CKeyFrameList& keyFrames() { return mKeyFrames; }
    const CKeyFrameList& keyFrames() const { return mKeyFrames; }
    CZelKeyFrame& defaultValue() { return mDefault; }
    const CZelKeyFrame& defaultValue() const { return mDefault; }

private:
    CZEL* mZel;
    CKeyFrameList mKeyFrames;
    CZelKeyFrame mDefault;
    int mType;
    bool mLoop;
    int mNbLoops;
    CZelUUID mPathId;
};

class CZelAnimatedElement : public TZelFrontier<IZelAnimatedElement> {
public:
    // Type 0, which has no label: a new element must be given a type to be written.
    explicit CZelAnimatedElement(CZEL* zel);
    template <class Owner>
    explicit CZelAnimatedElement(TObjectMgr<CZelAnimatedElement, IZelAnimatedElement, Owner>* list)
        : CZelAnimatedElement(list ? list->getZel() : nullptr) {}

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Animated.Element child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    int getType() const override { return mType; }
    void setType(int type) override { mType = type; }
    const TZelObjectMgr<IZelInterpolatedValue>* getInterpolatedValues() const override { return &mValues; }
    TZelObjectMgr<IZelInterpolatedValue>* getInterpolatedValues() override { return &mValues; }

    CZEL* getZel() const { return mZel; }
    CInterpolatedValueList& values() { return mValues; }
    const CInterpolatedValueList& values() const { return mValues; }

private:
    CZEL* mZel;
    int mType;
    CZelUUID mUUID;
    CInterpolatedValueList mValues;
};

} // namespace KeZel
