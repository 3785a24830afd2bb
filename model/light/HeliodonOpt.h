// How a heliodon study is rendered as a film (CHeliodonOpt), and the older form of the
// same settings read from legacy option files (COldHeliodonOpt).
#pragma once

#include "frame/ZelFrontier.h"
#include "model/light/Heliodon.h"
#include "model/light/IZelHeliodonOpt.h"
#include "model/views/RenderingOpt.h"

#include <string>

namespace KeZel {

class CZEL;

class CHeliodonOpt : public TZelFrontier<CZelHeliodonOpt> {
public:
    // A daily study from 10:00 on 1 January to 15:00 on 31 December of this year, as a
    // QuickTime film of 320 by 200 at 25 frames a second.
    explicit CHeliodonOpt(CZEL* zel = nullptr);

    const CZelRenderingOpt* getRenderingOpt() const override { return &mRendering; }
    CZelRenderingOpt* getRenderingOpt() override { return &mRendering; }
    const CZelCompressionOpt* getCompressionOpt() const override { return &mCompression; }
    CZelCompressionOpt* getCompressionOpt() override { return &mCompression; }
    // Replaces the Options of `parent` (the element Heliodons) and answers it.
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the Options of `parent`; false without one.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    int getFrequencyType() const override { return mFrequencyType; }
    void setFrequencyType(int type) override { mFrequencyType = type; }
    int getFrequencyUnit() const override { return mFrequencyUnit; }
    void setFrequencyUnit(int unit) override { mFrequencyUnit = unit; }
    double getFrequencyValue() const override { return mFrequencyValue; }
    void setFrequencyValue(double value) override { mFrequencyValue = static_cast<int>(value); }
    double getMovieDuration() const override { return mMovieDuration; }
    void setMovieDuration(double duration) override { mMovieDuration = duration; }
    CZelTime* getStartTime() override { return &mStartTime; }
    const CZelTime* getStartTime() const override { return &mStartTime; }
    CZelTime* getEndTime() override { return &mEndTime; }
    const CZelTime* getEndTime() const override { return &mEndTime; }
    bool isAllRange() const override { return mAllRange; }
    void setAllRange(bool all) override { mAllRange = all; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CRenderingOpt& rendering() { return mRendering; }
    const CRenderingOpt& rendering() const { return mRendering; }
    CCompressionOpt& compression() { return mCompression; }
    const CCompressionOpt& compression() const { return mCompression; }
    CTime& startTime() { return mStartTime; }
    const CTime& startTime() const { return mStartTime; }
    CTime& endTime() { return mEndTime; }
    const CTime& endTime() const { return mEndTime; }

private:
    CZEL* mZel;
    CRenderingOpt mRendering;
    CCompressionOpt mCompression;
    int mFrequencyType;
    int mFrequencyUnit;
    int mFrequencyValue;
    double mMovieDuration;
    CTime mStartTime;
    CTime mEndTime;
    bool mAllRange;
};

// Units of a daily study in the old options.
enum EOldDailyUnit { eOldDailyMinutes = 0, eOldDailyHours = 1, eOldDailyFrameRate = 2 };
// Units of a yearly study in the old options.
enum EOldYearlyUnit { eOldYearlyDays = 0, eOldYearlyMonths = 1, eOldYearlyFrameRate = 2 };

// The sun study of a legacy option file. The clipping setters store the value first; only
// with a manager do they then store the bound and report "Method <setter> has clipped a
// value out of range.".
class COldHeliodonOpt : public CAnimRenderingOpt {
public:
    // Local time of now, a place of zeros, the scene "file:///C|/Heliodon".
    explicit COldHeliodonOpt(CZEL* zel = nullptr);

    // The sun itself.
    bool isActive() const { return mActive; }
    void setActive(bool active) { mActive = active; }
    CTime& time() { return mTime; }
    const CTime& time() const { return mTime; }
    CPlace& place() { return mPlace; }
    const CPlace& place() const { return mPlace; }
    const char* getSceneUrl() const { return mSceneUrl.c_str(); }
    void setSceneUrl(const char* url) { mSceneUrl = url ? url : ""; }

    // How the study runs.
    bool isUsed() const { return mUsed; }
    void setUsed(bool used) { mUsed = used; }
    bool isAnimated() const { return mAnimated; }
    void setAnimated(bool animated) { mAnimated = animated; }
    // One image of this hour or this day: no study at all.
    bool isNoAnimation() const { return mNoAnimation; }
    void setNoAnimation(bool on) { mNoAnimation = on; }
    bool isYearly() const { return mYearly; }
    void setYearly(bool yearly) { mYearly = yearly; }
    // One of EOldDailyUnit.
    int getDailyUnit() const { return mDailyUnit; }
    void setDailyUnit(int unit) { mDailyUnit = unit; }
    // One of EOldYearlyUnit.
    int getYearlyUnit() const { return mYearlyUnit; }
    void setYearlyUnit(int unit) { mYearlyUnit = unit; }

    // The guarded fields, in the order of their storage.
    double getSunshine() const { return mSunshine; }
    void setSunshine(double sunshine); // 0 .. 1.0
    double getNorthAngle() const { return mNorthAngle; }
    void setNorthAngle(double angle); // 0 .. 360.0 degrees
    // The integer after the north angle, whose meaning the old files never settled.
    int getSunshineSteps() const { return mSunshineSteps; }
    void setSunshineSteps(int steps); // reports under the name setSunshine
    double getFilmFrameRate() const { return mFilmFrameRate; }
    void setFilmFrameRate(double rate);
    int getXHours() const { return mXHours; }
    void setXHours(int hours);
    int getXMinutes() const { return mXMinutes; }
    void setXMinutes(int minutes);
    int getXDays() const { return mXDays; }
    void setXDays(int days);
    int getXMonths() const { return mXMonths; }
    void setXMonths(int months);
    int getImageTime() const { return mImageTime; }
    void setImageTime(int time);
    int getNbImages() const { return mNbImages; }
    void setNbImages(int count);
    int getStartMonth() const { return mStartMonth; }
    void setStartMonth(int month);
    int getEndMonth() const { return mEndMonth; }
    void setEndMonth(int month);
    int getStartDay() const { return mStartDay; }
    void setStartDay(int day);
    int getEndDay() const { return mEndDay; }
    void setEndDay(int day);
    // Minutes after midnight.
    int getStartTime() const { return mStartTime; }
    void setStartTime(int minutes);
    int getEndTime() const { return mEndTime; }
    void setEndTime(int minutes);

private:
    template <class T> void store(T& field, T value, T lo, T hi, const char* setter);

    CTime mTime;
    CPlace mPlace;
    std::string mSceneUrl;
    bool mActive;
    bool mUsed;
    bool mAnimated;
    bool mNoAnimation;
    bool mYearly;
    int mDailyUnit;
    int mYearlyUnit;
    double mSunshine;
    double mNorthAngle;
    int mSunshineSteps;
    double mFilmFrameRate;
    int mXHours;
    int mXMinutes;
    int mXDays;
    int mXMonths;
    int mImageTime;
    int mNbImages;
    int mStartMonth;
    int mEndMonth;
    int mStartDay;
    int mEndDay;
    int mStartTime;
    int mEndTime;
};

} // namespace KeZel
