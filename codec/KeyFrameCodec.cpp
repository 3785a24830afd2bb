#include "codec/KeyFrameCodec.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"

#include <cstdio>

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {

const char* const kAreaKeys[3] = {"Value", "CPBefore", "CPAfter"};

bool KnownValueType(int type) {
    return type >= eKeyCoord3D && type <= eKeyEnum;
}

// A key frame's colour: attributes Red, Green, Blue, "%ld" each.
void PutKeyColor(XIXMLElement* e, const char* key, const CZelColor& c) {
    XIXMLElement* child = CZelXMLIO::add(e, key);
    const unsigned char bytes[3] = {c.mRed, c.mGreen, c.mBlue};
    const char* const names[3] = {"Red", "Green", "Blue"};
    for (int i = 0; i < 3; ++i) {
        char text[16];
        std::snprintf(text, sizeof text, "%ld", static_cast<long>(bytes[i]));
        CZelXMLIO::setAttribute(child, names[i], text);
    }
}

CZelColor GetKeyColor(const XIXMLElement* e, const char* key) {
    const XIXMLElement* child = CZelXMLIO::need(e, key);
    long v[3];
    const char* const names[3] = {"Red", "Green", "Blue"};
    for (int i = 0; i < 3; ++i)
        Kestra::XRequire(std::sscanf(CZelXMLIO::attributeText(child, names[i]), "%ld", &v[i]) == 1);
    CZelColor c;
    c.mSpare = 0;
    c.mRed = static_cast<unsigned char>(v[0] & 0xFF);
    c.mGreen = static_cast<unsigned char>(v[1] & 0xFF);
    c.mBlue = static_cast<unsigned char>(v[2] & 0xFF);
    return c;
}

void PutArea(const CZelXMLIO& io, XIXMLElement* e, const char* key, int type, const CZelVector& area) {
    switch (type) {
    case eKeyCoord3D:
        io.putVector(e, key, area);
        break;
    case eKeyColor:
        PutKeyColor(e, key, ZelAreaColor(area));
        break;
    case eKeyDouble:
        io.putDouble(e, key, ZelAreaDouble(area));
        break;
    case eKeyBoolean:
        io.putFlag(e, key, ZelAreaBool(area));
        break;
    case eKeyInteger:
    case eKeyDate:
    case eKeyEnum:
        io.putInt(e, key, ZelAreaInt(area));
        break;
    case eKeyUUID:
        io.putUUID(e, key, ZelAreaUUID(area));
        break;
    default:
        Kestra::XThrow("CZelXMLIO::AddKeyFrame : Unknow value type");
    }
}

// The value stands in the first bytes of a zeroed area.
CZelVector GetArea(const CZelXMLIO& io, const XIXMLElement* e, const char* key, int type) {
    CZelVector area = CZelVector();
    switch (type) {
    case eKeyCoord3D:
        area = io.getVector(e, key);
        break;
    case eKeyColor:
        ZelSetAreaColor(area, GetKeyColor(e, key));
        break;
    case eKeyDouble:
        ZelSetAreaDouble(area, io.getDouble(e, key));
        break;
    case eKeyBoolean:
        ZelSetAreaBool(area, io.getFlag(e, key));
        break;
    case eKeyInteger:
    case eKeyDate:
    case eKeyEnum:
        ZelSetAreaInt(area, io.getInt(e, key));
        break;
    case eKeyUUID:
        ZelSetAreaUUID(area, io.getUUID(e, key));
        break;
    default:
        Kestra::XThrow("CZelXMLIO::GetKeyFrame : Unknow value type");
    }
    return area;
}

} // namespace

XIXMLElement* ZelAddKeyFrame(const CZelXMLIO& io, XIXMLElement* parent, const CZelKeyFrame& k) {
    int type = k.getValueType();
    if (!KnownValueType(type)) Kestra::XThrow("CZelXMLIO::AddKeyFrame : Unknow value type");
    XIXMLElement* e = CZelXMLIO::add(parent, "KeyFrame");
    io.putInt(e, "Time", k.getTime());
    io.putFlag(e, "Visible", k.isVisible());
    io.putLabel(e, "Type", kKeyFrameValueTypeLabels, type);
    for (int i = 0; i < 3; ++i) PutArea(io, e, kAreaKeys[i], type, k.area(i));
    io.putLabel(e, "Interpolation.Type", kInterpolationTypeLabels, k.getInterpolationType());
    io.putFlag(e, "AreLocked", k.areLocked());
    return e;
}

void ZelGetKeyFrame(const CZelXMLIO& io, const XIXMLElement* e, CZelKeyFrame& k) {
    k.setTime(io.getInt(e, "Time"));
    k.setVisible(io.getFlag(e, "Visible"));
    int type = io.getLabel(e, "Type", kKeyFrameValueTypeLabels);
    k.setValueType(type);
    for (int i = 0; i < 3; ++i) k.area(i) = GetArea(io, e, kAreaKeys[i], type);
    k.setInterpolationType(io.getLabel(e, "Interpolation.Type", kInterpolationTypeLabels));
    // Written only when true: absence is false, whatever a new key frame holds.
    k.setLocked(io.getFlag(e, "AreLocked"));
}

XIXMLElement* ZelAddInterpolatedValue(const CZelXMLIO& io, XIXMLElement* parent,
                                      const CZelInterpolatedValue& v) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Interpolated.Value");
    io.putLabel(e, "Type", kInterpolatedValueLabels, v.getType());
    io.putFlag(e, "Loop", v.isLoop());
    io.putInt(e, "Nb.Loops", v.getNbLoops());
    io.putUUID(e, "Path.Id", *v.getPathId());
    ZelAddKeyFrame(io, CZelXMLIO::add(e, "Default.Value"), v.defaultValue());
    io.putList(e, "KeyFrames", "KeyFrame", v.keyFrames(),
               [&](XIXMLElement* outer, const CZelKeyFrame& k) { ZelAddKeyFrame(io, outer, k); });
    return e;
}

void ZelGetInterpolatedValue(const CZelXMLIO& io, const XIXMLElement* e, CZelInterpolatedValue& v) {
    v.setType(io.getLabel(e, "Type", kInterpolatedValueLabels));
    v.setLoop(io.getFlag(e, "Loop"));
    v.setPathId(io.getUUID(e, "Path.Id"));
    v.setNbLoops(io.getInt(e, "Nb.Loops"));
    ZelGetKeyFrame(io, CZelXMLIO::need(CZelXMLIO::need(e, "Default.Value"), "KeyFrame"), v.defaultValue());
    io.getList(e, "KeyFrames", "KeyFrame", v.keyFrames(),
               [&](const XIXMLElement* x, CZelKeyFrame& k) { ZelGetKeyFrame(io, x, k); });
}

XIXMLElement* ZelAddAnimatedElement(const CZelXMLIO& io, XIXMLElement* parent, const CZelAnimatedElement& a) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Animated.Element");
    io.putLabel(e, "Type", kAnimatedElementTypeLabels, a.getType());
    io.putUUID(e, "UUID", *a.getUUID());
    io.putList(
        e, "Interpolated.Values", "Interpolated.Value", a.values(),
        [&](XIXMLElement* outer, const CZelInterpolatedValue& v) { ZelAddInterpolatedValue(io, outer, v); });
    return e;
}

void ZelGetAnimatedElement(const CZelXMLIO& io, const XIXMLElement* e, CZelAnimatedElement& a) {
    a.setType(io.getLabel(e, "Type", kAnimatedElementTypeLabels));
    a.setUUID(io.getUUID(e, "UUID"));
    io.getList(e, "Interpolated.Values", "Interpolated.Value", a.values(),
               [&](const XIXMLElement* x, CZelInterpolatedValue& v) { ZelGetInterpolatedValue(io, x, v); });
}

} // namespace KeZel
