#include "model/animation/KeyFrame.h"

#include "codec/KeyFrameCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

#include <cstring>

namespace KeZel {

using KestraXML::XIXMLElement;

// ---- The typed views of an area

namespace {

template <class T> T Read(const CZelVector& area) {
    static_assert(sizeof(T) <= sizeof(CZelVector), "a value fits its area");
    T value;
    std::memcpy(&value, &area, sizeof value);
    return value;
}

// The rest of the area is left as it was.
template <class T> void Write(CZelVector& area, const T& value) {
    static_assert(sizeof(T) <= sizeof(CZelVector), "a value fits its area");
    std::memcpy(&area, &value, sizeof value);
}

} // namespace

double ZelAreaDouble(const CZelVector& area) {
    return area.x;
}
void ZelSetAreaDouble(CZelVector& area, double value) {
    area.x = value;
}
int ZelAreaInt(const CZelVector& area) {
    return Read<int>(area);
}
void ZelSetAreaInt(CZelVector& area, int value) {
    Write(area, value);
}
bool ZelAreaBool(const CZelVector& area) {
    return Read<unsigned char>(area) != 0;
}
void ZelSetAreaBool(CZelVector& area, bool value) {
    Write(area, static_cast<unsigned char>(value ? 1 : 0));
}
CZelColor ZelAreaColor(const CZelVector& area) {
    return Read<CZelColor>(area);
}
void ZelSetAreaColor(CZelVector& area, const CZelColor& value) {
    Write(area, value);
}
CZelUUID ZelAreaUUID(const CZelVector& area) {
    return Read<CZelUUID>(area);
}
void ZelSetAreaUUID(CZelVector& area, const CZelUUID& value) {
    Write(area, value);
}

// ---- CZelKeyFrame

CZelKeyFrame::CZelKeyFrame(CZEL* zel)
    : mZel(zel), mTime(0), mValueType(eKeyInteger), mArea(), mVisible(true), mInterpolation(0),
      mLocked(true) {}

CZelKeyFrame::CZelKeyFrame(CKeyFrameList* list) : CZelKeyFrame(list ? list->getZel() : nullptr) {}

XIXMLElement* CZelKeyFrame::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelKeyFrame::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddKeyFrame(io, parent, *this); });
}

bool CZelKeyFrame::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelKeyFrame::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetKeyFrame(io, CZelXMLIO::need(parent, "KeyFrame"), *this);
        return true;
    });
}

// ---- CZelInterpolatedValue

CZelInterpolatedValue::CZelInterpolatedValue(CZEL* zel)
    : mZel(zel), mKeyFrames(this), mDefault(zel), mType(0), mLoop(false), mNbLoops(0), mPathId() {}

CZelInterpolatedValue::CZelInterpolatedValue(CInterpolatedValueList* list)
    : CZelInterpolatedValue(list ? list->getZel() : nullptr) {}

XIXMLElement* CZelInterpolatedValue::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelInterpolatedValue::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddInterpolatedValue(io, parent, *this); });
}

bool CZelInterpolatedValue::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelInterpolatedValue::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetInterpolatedValue(io, CZelXMLIO::need(parent, "Interpolated.Value"), *this);
        return true;
    });
}

// ---- CZelAnimatedElement

CZelAnimatedElement::CZelAnimatedElement(CZEL* zel) : mZel(zel), mType(0), mUUID(), mValues(this) {}

XIXMLElement* CZelAnimatedElement::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelAnimatedElement::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddAnimatedElement(io, parent, *this); });
}

bool CZelAnimatedElement::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelAnimatedElement::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetAnimatedElement(io, CZelXMLIO::need(parent, "Animated.Element"), *this);
        return true;
    });
}

} // namespace KeZel
