#include "model/light/Heliodon.h"

#include "codec/HeliodonCodec.h"
#include "foundation/Platform.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

#include <cstdint>
#include <cstring>

namespace KeZel {

using KestraXML::XIXMLElement;

// ---- CTime

void CTime::setToNow() {
    Kestra::Platform::LocalTime now;
    if (!Kestra::Platform::Now(now)) return;
    mDay = now.day;
    mMonth = now.month;
    mHour = now.hour;
    mMinute = now.minute;
    mYear = now.year;
    // A negative hour belongs to the day before.
    if (mHour < 0) {
        mHour += 24;
        --mDay;
    }
}

CZelDate CTime::toDate() const {
    CZelDate d = {mMonth, mDay, mHour, mMinute, mYear};
    return d;
}

void CTime::setDate(const CZelDate& d) {
    setMonth(d.mMonth);
    setDay(d.mDay);
    setHour(d.mHour);
    setMinute(d.mMinute);
    setYear(d.mYear);
}

// ---- CPlace

CZelPlaceData CPlace::toData() const {
    CZelPlaceData p = {mLongitude, mLatitude, mTimeZone, mDaylight};
    return p;
}

void CPlace::setData(const CZelPlaceData& p) {
    setLongitude(p.mLongitude);
    setLatitude(p.mLatitude);
    setTimeZone(p.mTimeZone);
    setDaylight(p.mDaylight);
}

// ---- CHeliodon

namespace {

// 45 degrees, as the sun has always been set up by default.
double DefaultTheta() {
    const uint64_t bits = 0x3fe921fafc8b007aULL;
    double theta;
    std::memcpy(&theta, &bits, sizeof theta);
    return theta;
}

} // namespace

CHeliodon::CHeliodon(CZEL* zel)
    : mZel(zel), mActive(true), mSunshine(0.5), mNorthAngle(0.0), mShadow(false), mShadowPower(0.8),
      mShadowBlur(0), mGlobalIllumination(false), mGlobalIlluminationPower(0.5),
      mGlobalIlluminationQuality(0), mName("Heliodon"),
      mColored(false), mColors{ZelRGB(200, 182, 90), ZelRGB(230, 230, 225), ZelRGB(255, 255, 190),
                               ZelRGB(222, 222, 130), ZelRGB(212, 135, 80)},
      mRadiosity(false), mBehindRadiosity{0, 0, 0}, mUUID(NewZelUUID()),
      mPlacementKind(ePlacementDateAndPlace), mColorType(eSunColorAutomatic), mTheta(DefaultTheta()),
      mPhi(0.5), mClouds(zel), mCloudCoverage(0.5), mCloudMaskSun(false), mFog(zel), mSunPowerFlag(false) {
    Kestra::XAssertPointer(zel, "CHeliodon::CHeliodon: no manager");
    mTime.setToNow();
}

void CHeliodon::setShadowBlur(int blur) {
    if (blur < 0 || blur > 100) {
        mZel->report("CZelHeliodon::setShadowBlur: invalid blur level");
        blur = blur < 0 ? 0 : 100;
    }
    mShadowBlur = blur;
}

CZelColor CHeliodon::getColor(int index) const {
    if (index < 0 || index > 5) {
        mZel->report("CZelHeliodon::getColor: bad index");
        return mColors[0];
    }
    if (index < 5) return mColors[index];
    CZelColor behind = {static_cast<unsigned char>(mRadiosity ? 1 : 0), mBehindRadiosity[0],
                        mBehindRadiosity[1], mBehindRadiosity[2]};
    return behind;
}

void CHeliodon::setColor(int index, CZelColor color) {
    if (index < 0 || index > 5) {
        mZel->report("CZelHeliodon::setColor: bad index");
        return;
    }
    if (index < 5) {
        mColors[index] = color;
        return;
    }
    mRadiosity = color.mSpare != 0;
    mBehindRadiosity[0] = color.mRed;
    mBehindRadiosity[1] = color.mGreen;
    mBehindRadiosity[2] = color.mBlue;
}

void CHeliodon::setPhi(double phi) {
    // Phi is kept off zero, on the side of its sign.
    if (phi > -0.001 && phi < 0.001) phi = phi < 0.0 ? -0.001 : 0.001;
    mPhi = phi;
}

XIXMLElement* CHeliodon::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelHeliodon::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddHeliodon(io, parent, *this); });
}

bool CHeliodon::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelHeliodon::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetHeliodon(io, CZelXMLIO::need(parent, "Heliodon"), *this);
        return true;
    });
}

} // namespace KeZel
