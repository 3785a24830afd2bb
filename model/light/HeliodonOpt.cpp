#include "model/light/HeliodonOpt.h"

#include "codec/HeliodonCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

#include <cstdio>
#include <limits>

namespace KeZel {

using KestraXML::XIXMLElement;

// ---- CHeliodonOpt

CHeliodonOpt::CHeliodonOpt(CZEL* zel)
    : mZel(zel), mRendering(zel), mFrequencyType(eFrequencyDaily), mFrequencyUnit(eFrequencyMinutes),
      mFrequencyValue(0), mMovieDuration(15.0), mAllRange(false) {
    mRendering.setWidth(320);
    mRendering.setHeight(200);
    mRendering.setOutputType(7); // QTime
    mCompression.setCodec(kZelCodecRaw);
    mCompression.setTemporalQuality(512);
    mCompression.setFrameRate(25.0);
    mCompression.setKeyFrameRate(10);

    CTime now;
    now.setToNow();
    mStartTime.setDate(CZelDate{1, 1, 10, 0, now.getYear()});
    mEndTime.setDate(CZelDate{12, 31, 15, 0, now.getYear()});
}

XIXMLElement* CHeliodonOpt::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelHeliodonOpt::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddHeliodonOpt(io, parent, *this); });
}

bool CHeliodonOpt::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelHeliodonOpt::initWithXML", [&](const CZelXMLIO& io) {
        const XIXMLElement* options = CZelXMLIO::find(parent, "Options");
        if (options) ZelGetHeliodonOpt(io, options, *this);
        return options != nullptr;
    });
}

// ---- COldHeliodonOpt

COldHeliodonOpt::COldHeliodonOpt(CZEL* zel)
    : CAnimRenderingOpt(zel), mSceneUrl("file:///C|/Heliodon"), mActive(true), mUsed(false), mAnimated(false),
      mNoAnimation(false), mYearly(false), mDailyUnit(eOldDailyMinutes), mYearlyUnit(eOldYearlyDays),
      mSunshine(0.5), mNorthAngle(0.0), mSunshineSteps(0), mFilmFrameRate(0.0), mXHours(0), mXMinutes(0),
      mXDays(0), mXMonths(0), mImageTime(0), mNbImages(0), mStartMonth(0), mEndMonth(0), mStartDay(0),
      mEndDay(0), mStartTime(0), mEndTime(0) {
    mTime.setToNow();
}

template <class T> void COldHeliodonOpt::store(T& field, T value, T lo, T hi, const char* setter) {
    field = value;
    if (!mZel || (value >= lo && value <= hi)) return;
    field = value < lo ? lo : hi;
    char text[128];
    std::snprintf(text, sizeof text, "Method %s has clipped a value out of range.", setter);
    mZel->report(text);
}

namespace {
const int kNoIntTop = std::numeric_limits<int>::max();
const double kNoDoubleTop = std::numeric_limits<double>::max();
} // namespace

void COldHeliodonOpt::setSunshine(double sunshine) {
    store(mSunshine, sunshine, 0.0, 1.0, "setSunshine");
}
void COldHeliodonOpt::setNorthAngle(double angle) {
    store(mNorthAngle, angle, 0.0, 360.0, "setNorthAngle");
}
void COldHeliodonOpt::setSunshineSteps(int steps) {
    // Its report has always borrowed the name of setSunshine.
    store(mSunshineSteps, steps, 0, kNoIntTop, "setSunshine");
}
void COldHeliodonOpt::setFilmFrameRate(double rate) {
    store(mFilmFrameRate, rate, 0.0, kNoDoubleTop, "setFilmFrameRate");
}
void COldHeliodonOpt::setXHours(int hours) {
    store(mXHours, hours, 0, kNoIntTop, "setXHours");
}
void COldHeliodonOpt::setXMinutes(int minutes) {
    store(mXMinutes, minutes, 0, kNoIntTop, "setXMinutes");
}
void COldHeliodonOpt::setXDays(int days) {
    store(mXDays, days, 0, kNoIntTop, "setXDays");
}
void COldHeliodonOpt::setXMonths(int months) {
    store(mXMonths, months, 0, kNoIntTop, "setXMonths");
}
void COldHeliodonOpt::setImageTime(int time) {
    store(mImageTime, time, 0, kNoIntTop, "setImageTime");
}
void COldHeliodonOpt::setNbImages(int count) {
    store(mNbImages, count, 0, kNoIntTop, "setNbImages");
}
void COldHeliodonOpt::setStartMonth(int month) {
    store(mStartMonth, month, 0, kNoIntTop, "setStartMonth");
}
void COldHeliodonOpt::setEndMonth(int month) {
    store(mEndMonth, month, 0, kNoIntTop, "setEndMonth");
}
void COldHeliodonOpt::setStartDay(int day) {
    store(mStartDay, day, 0, kNoIntTop, "setStartDay");
}
void COldHeliodonOpt::setEndDay(int day) {
    store(mEndDay, day, 0, kNoIntTop, "setEndDay");
}
void COldHeliodonOpt::setStartTime(int minutes) {
    store(mStartTime, minutes, 0, kNoIntTop, "setStartTime");
}
void COldHeliodonOpt::setEndTime(int minutes) {
    store(mEndTime, minutes, 0, kNoIntTop, "setEndTime");
}

} // namespace KeZel
