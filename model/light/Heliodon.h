// The sun of a scene (CHeliodon) with its date (CTime) and place (CPlace). The library
// keeps the parameters; the sun's position is the host's to compute.
#pragma once

#include "codec/ZelXMLIO.h"
#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/light/IZelHeliodon.h"
#include "model/light/Light.h"
#include "model/light/Sky.h"

#include <string>

namespace KeZel {

class CZEL;

class CTime : public TZelFrontier<CZelTime> {
public:
    // 1 January 2004, 0:00.
    CTime() : mDay(1), mMonth(1), mHour(0), mMinute(0), mYear(2004) {}

    int getMonth() const override { return mMonth; }
    void setMonth(int month) override { mMonth = month < 1 ? 1 : (month > 12 ? 12 : month); }
    int getDay() const override { return mDay; }
    void setDay(int day) override { mDay = day < 1 ? 1 : (day > 31 ? 31 : day); }
    int getHour() const override { return mHour; }
    void setHour(int hour) override { mHour = hour < 0 ? 0 : (hour > 23 ? 23 : hour); }
    int getMinute() const override { return mMinute; }
    void setMinute(int minute) override { mMinute = minute < 0 ? 0 : (minute > 59 ? 59 : minute); }
    int getYear() const override { return mYear; }
    void setYear(int year) override { mYear = year; }

    // ---- Internal API
    // The machine's local time; left as it is when the clock fails.
    void setToNow();
    CZelDate toDate() const;
    // Through the setters, so that a file's values are clipped.
    void setDate(const CZelDate& date);

private:
    int mDay;
    int mMonth;
    int mHour;
    int mMinute;
    int mYear;
};

class CPlace : public TZelFrontier<CZelPlace> {
public:
    CPlace() : mLongitude(0), mLatitude(0), mTimeZone(0), mDaylight(false) {}

    int getLongitude() const override { return mLongitude; }
    void setLongitude(int longitude) override { mLongitude = longitude; }
    int getLatitude() const override { return mLatitude; }
    void setLatitude(int latitude) override { mLatitude = latitude; }
    int getTimeZone() const override { return mTimeZone; }
    void setTimeZone(int zone) override { mTimeZone = zone; }
    bool isDaylight() const override { return mDaylight; }
    void setDaylight(bool daylight) override { mDaylight = daylight; }

    CZelPlaceData toData() const;
    void setData(const CZelPlaceData& place);

private:
    int mLongitude;
    int mLatitude;
    int mTimeZone;
    bool mDaylight;
};

class CHeliodon;
typedef TObjectMgr<CHeliodon, CZelHeliodon> CHeliodonList;

class CHeliodon : public TZelFrontier<CZelHeliodon> {
public:
    // Set to the local time of now. `zel` must not be null. Raises "Can't create UUID"
    // when no identity can be made.
    explicit CHeliodon(CZEL* zel);
    explicit CHeliodon(CHeliodonList* list) : CHeliodon(list ? list->getZel() : nullptr) {}

    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    CZelTime* getTime() override { return &mTime; }
    const CZelTime* getTime() const override { return &mTime; }
    CZelPlace* getPlace() override { return &mPlace; }
    const CZelPlace* getPlace() const override { return &mPlace; }
    double getSunshine() const override { return mSunshine; }
    void setSunshine(double sunshine) override { mSunshine = sunshine; }
    double getNorthAngle() const override { return mNorthAngle; }
    void setNorthAngle(double angle) override { mNorthAngle = angle; }
    bool isShadow() const override { return mShadow; }
    void setShadow(bool shadow) override { mShadow = shadow; }
    double getShadowPower() const override { return mShadowPower; }
    void setShadowPower(double power) override { mShadowPower = power; }
    int getShadowBlur() const override { return mShadowBlur; }
    void setShadowBlur(int blur) override;
    bool isGlobalIllumination() const override { return mGlobalIllumination; }
    void setGlobalIllumination(bool on) override { mGlobalIllumination = on; }
    double getGlobalIlluminationPower() const override { return mGlobalIlluminationPower; }
    void setGlobalIlluminationPower(double power) override { mGlobalIlluminationPower = power; }
    int getGlobalIlluminationQuality() const override { return mGlobalIlluminationQuality; }
    void setGlobalIlluminationQuality(int quality) override { mGlobalIlluminationQuality = quality; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Heliodon child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    IZelLensFlare* getLensFlare() override { return &mLensFlare; }
    const IZelLensFlare* getLensFlare() const override { return &mLensFlare; }
    bool isColored() const override { return mColored; }
    void setColored(bool colored) override { mColored = colored; }
    CZelColor getColor(int index) const override;
    void setColor(int index, CZelColor color) override;
    bool isRadiosity() const override { return mRadiosity; }
    void setRadiosity(bool on) override { mRadiosity = on; }
    IZelSkylight* getSkylight() override { return &mSkylight; }
    const IZelSkylight* getSkylight() const override { return &mSkylight; }
    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    int getPlacementKind() const override { return mPlacementKind; }
    void setPlacementKind(int kind) override { mPlacementKind = kind; }
    int getColorType() const override { return mColorType; }
    void setColorType(int type) override { mColorType = type; }
    CZelColor getMiddleColor() const override { return mColors[2]; }
    void setMiddleColor(CZelColor color) override { mColors[2] = color; }
    double getTheta() const override { return mTheta; }
    void setTheta(double theta) override { mTheta = theta; }
    double getPhi() const override { return mPhi; }
    void setPhi(double phi) override;
    IZelClouds* getClouds() override { return &mClouds; }
    const IZelClouds* getClouds() const override { return &mClouds; }
    double getCloudCoverage() const override { return mCloudCoverage; }
    void setCloudCoverage(double coverage) override { mCloudCoverage = coverage; }
    bool isCloudMaskSun() const override { return mCloudMaskSun; }
    void setCloudMaskSun(bool mask) override { mCloudMaskSun = mask; }
    IZelFog* getFog() override { return &mFog; }
    const IZelFog* getFog() const override { return &mFog; }
    bool isSunPowerFlag() const override { return mSunPowerFlag; }
    void setSunPowerFlag(bool on) override { mSunPowerFlag = on; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CTime& time() { return mTime; }
    const CTime& time() const { return mTime; }
    CPlace& place() { return mPlace; }
    const CPlace& place() const { return mPlace; }
    CZelLensFlare& lensFlare() { return mLensFlare; }
    const CZelLensFlare& lensFlare() const { return mLensFlare; }
    CSkylight& skylight() { return mSkylight; }
    const CSkylight& skylight() const { return mSkylight; }
    CZelClouds& clouds() { return mClouds; }
    const CZelClouds& clouds() const { return mClouds; }
    CZelFog& fog() { return mFog; }
    const CZelFog& fog() const { return mFog; }

private:
    CZEL* mZel;
    bool mActive;
    CTime mTime;
    CPlace mPlace;
    double mSunshine;
    double mNorthAngle;
    bool mShadow;
    double mShadowPower;
    int mShadowBlur;
    bool mGlobalIllumination;
    double mGlobalIlluminationPower;
    int mGlobalIlluminationQuality;
    std::string mName;
    CZelLensFlare mLensFlare;
    bool mColored;
    CZelColor mColors[5];
    // The radiosity flag and the three bytes behind it: what the colour of index 5 reads
    // and writes, since the index test has always let 5 through.
    bool mRadiosity;
    unsigned char mBehindRadiosity[3];
    CSkylight mSkylight;
    CZelUUID mUUID;
    int mPlacementKind;
    int mColorType;
    double mTheta;
    double mPhi;
    CZelClouds mClouds;
    double mCloudCoverage;
    bool mCloudMaskSun;
    CZelFog mFog;
    bool mSunPowerFlag;
};

} // namespace KeZel
