// The air of a scene, held by value inside its owners: sky light, clouds and fog of a
// heliodon or an environment; atmosphere and ambient light of the scene and of each view;
// the camera or radiosity light of a view.
//
// Objects with an element form take their manager at construction; without one their
// putInXML / initWithXML answer null / false and the atmosphere's setters do not clip.
#pragma once

#include "frame/ValueHelpers.h"
#include "frame/ZelFrontier.h"
#include "model/light/IZelSky.h"

namespace KeZel {

class CZEL;

// A colour of three components on a spare byte of 0.

inline bool ZelSameColor(const CZelColor& a, const CZelColor& b) {
    return a.mSpare == b.mSpare && a.mRed == b.mRed && a.mGreen == b.mGreen && a.mBlue == b.mBlue;
}

class CSkylight : public TZelFrontier<IZelSkylight> {
public:
    CSkylight()
        : mUsed(false), mFactor(0.5), mColor(ZelRGB(255, 255, 255)), mSkyType(0), mBackground(false),
          mPollution(0.2), mMixColorFlag(false), mMixColor(ZelRGB(255, 255, 255)), mPowerFlag(false),
          mSkyColorFlag(false) {}

    bool isUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    double getFactor() const override { return mFactor; }
    void setFactor(double factor) override { mFactor = factor; }
    CZelColor getColor() const override { return mColor; }
    void setColor(CZelColor color) override { mColor = color; }
    int getSkyType() const override { return mSkyType; }
    void setSkyType(int type) override { mSkyType = type; }
    bool isBackground() const override { return mBackground; }
    void setBackground(bool background) override { mBackground = background; }
    double getPollution() const override { return mPollution; }
    void setPollution(double pollution) override { mPollution = pollution; }
    bool isSkyMixColorFlag() const override { return mMixColorFlag; }
    void setSkyMixColorFlag(bool on) override { mMixColorFlag = on; }
    CZelColor getSkyMixColor() const override { return mMixColor; }
    void setSkyMixColor(CZelColor color) override { mMixColor = color; }
    bool isPowerFlag() const override { return mPowerFlag; }
    void setPowerFlag(bool on) override { mPowerFlag = on; }
    bool isSkyColorFlag() const override { return mSkyColorFlag; }
    void setSkyColorFlag(bool on) override { mSkyColorFlag = on; }

private:
    bool mUsed;
    double mFactor;
    CZelColor mColor;
    int mSkyType;
    bool mBackground;
    double mPollution;
    bool mMixColorFlag;
    CZelColor mMixColor;
    bool mPowerFlag;
    bool mSkyColorFlag;
};

class CZelClouds : public TZelFrontier<IZelClouds> {
public:
    explicit CZelClouds(CZEL* zel = nullptr)
        : mZel(zel), mActive(false), mCumulusSize(0.6), mCumulusSeed(0), mCirrusSize(0.5), mCirrusSeed(0),
          mStratusSize(0.2), mStratusSeed(0), mCirrocumulusSize(0.4), mCirrocumulusSeed(0),
          mActiveWind(false), mWindSpeed(20.0), mWindDirection(0.0), mExtraValue(0.0) {}

    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getCumulusSize() const override { return mCumulusSize; }
    void setCumulusSize(double size) override { mCumulusSize = size; }
    int getCumulusSeed() const override { return mCumulusSeed; }
    void setCumulusSeed(int seed) override { mCumulusSeed = seed; }
    double getCirrusSize() const override { return mCirrusSize; }
    void setCirrusSize(double size) override { mCirrusSize = size; }
    int getCirrusSeed() const override { return mCirrusSeed; }
    void setCirrusSeed(int seed) override { mCirrusSeed = seed; }
    double getStratusSize() const override { return mStratusSize; }
    void setStratusSize(double size) override { mStratusSize = size; }
    int getStratusSeed() const override { return mStratusSeed; }
    void setStratusSeed(int seed) override { mStratusSeed = seed; }
    double getCirrocumulusSize() const override { return mCirrocumulusSize; }
    void setCirrocumulusSize(double size) override { mCirrocumulusSize = size; }
    int getCirrocumulusSeed() const override { return mCirrocumulusSeed; }
    void setCirrocumulusSeed(int seed) override { mCirrocumulusSeed = seed; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    bool isActiveWind() const override { return mActiveWind; }
    void setActiveWind(bool active) override { mActiveWind = active; }
    double getWindSpeed() const override { return mWindSpeed; }
    void setWindSpeed(double speed) override { mWindSpeed = speed; }
    double getWindDirection() const override { return mWindDirection; }
    void setWindDirection(double direction) override { mWindDirection = direction; }
    double getExtraValue() const override { return mExtraValue; }
    void setExtraValue(double value) override { mExtraValue = value; }

    void setZel(CZEL* zel) { mZel = zel; }

private:
    CZEL* mZel;
    bool mActive;
    double mCumulusSize;
    int mCumulusSeed;
    double mCirrusSize;
    int mCirrusSeed;
    double mStratusSize;
    int mStratusSeed;
    double mCirrocumulusSize;
    int mCirrocumulusSeed;
    bool mActiveWind;
    double mWindSpeed;
    double mWindDirection;
    double mExtraValue;
};

class CZelFog : public TZelFrontier<IZelFog> {
public:
    explicit CZelFog(CZEL* zel = nullptr)
        : mZel(zel), mActive(false), mColor(ZelRGB(221, 221, 221)), mDensity(0.5), mStartDistance(50.0),
          mEndDistance(2500.0), mAltitude(300.0) {}

    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    CZelColor getColor() const override { return mColor; }
    void setColor(CZelColor color) override { mColor = color; }
    double getDensity() const override { return mDensity; }
    void setDensity(double density) override { mDensity = density; }
    double getStartDistance() const override { return mStartDistance; }
    void setStartDistance(double distance) override { mStartDistance = distance; }
    double getEndDistance() const override { return mEndDistance; }
    void setEndDistance(double distance) override { mEndDistance = distance; }
    double getAltitude() const override { return mAltitude; }
    void setAltitude(double altitude) override { mAltitude = altitude; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

    void setZel(CZEL* zel) { mZel = zel; }

private:
    CZEL* mZel;
    bool mActive;
    CZelColor mColor;
    double mDensity;
    double mStartDistance;
    double mEndDistance;
    double mAltitude;
};

class CAtmosphere : public TZelFrontier<CZelAtmosphere> {
public:
    explicit CAtmosphere(CZEL* zel = nullptr)
        : mZel(zel), mUsed(false), mColor(ZelRGB(221, 221, 221)), mHighDensity(0.6), mMediumDensity(0.6),
          mLowDensity(0.6), mScale(2.0), mMinDistance(0.0), mMaxDistance(0.0), mNoise(0.0),
          mUseDefault(true) {}

    bool isUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    CZelColor getColor() const override { return mColor; }
    void setColor(CZelColor color) override { mColor = color; }
    double getHighDensity() const override { return mHighDensity; }
    void setHighDensity(double density) override;
    double getMediumDensity() const override { return mMediumDensity; }
    void setMediumDensity(double density) override;
    double getLowDensity() const override { return mLowDensity; }
    void setLowDensity(double density) override;
    double getScale() const override { return mScale; }
    void setScale(double scale) override;
    double getMinDistance() const override { return mMinDistance; }
    void setMinDistance(double distance) override { mMinDistance = distance; }
    double getMaxDistance() const override { return mMaxDistance; }
    void setMaxDistance(double distance) override;
    double getNoise() const override { return mNoise; }
    void setNoise(double noise) override;
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    bool isUseDefault() const override { return mUseDefault; }
    void setUseDefault(bool useDefault) override { mUseDefault = useDefault; }

    CZEL* getZel() const { return mZel; }
    void setZel(CZEL* zel) { mZel = zel; }

private:
    // Stores `value`; then, with a manager, stores it clipped into lo .. hi and reports.
    void store(double& field, double value, double lo, double hi, const char* report);

    CZEL* mZel;
    bool mUsed;
    CZelColor mColor;
    double mHighDensity;
    double mMediumDensity;
    double mLowDensity;
    double mScale;
    double mMinDistance;
    double mMaxDistance;
    double mNoise;
    bool mUseDefault;
};

class CAmbiance : public TZelFrontier<CZelAmbient> {
public:
    explicit CAmbiance(CZEL* zel = nullptr)
        : mZel(zel), mColor(ZelRGB(37, 37, 37)), mUsed(false), mUseDefault(true) {}

    CZelColor getColor() const override { return mColor; }
    void setColor(CZelColor color) override { mColor = color; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    bool isUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    bool isUseDefault() const override { return mUseDefault; }
    void setUseDefault(bool useDefault) override { mUseDefault = useDefault; }

private:
    CZEL* mZel;
    CZelColor mColor;
    bool mUsed;
    bool mUseDefault;
};

class CZelCameraLight : public TZelFrontier<IZelCameraLight> {
public:
    // `radiosity` makes it the radiosity light, element Radiosity.Light.
    explicit CZelCameraLight(CZEL* zel = nullptr, bool radiosity = false)
        : mZel(zel), mUsed(false), mRadiosity(radiosity), mColor(ZelRGB(255, 255, 255)), mPower(1.0) {}

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Looks for the element of its own kind first, then for the other name.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    bool isUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    bool isRadiosityLight() const override { return mRadiosity; }
    void setRadiosityLight(bool radiosity) override { mRadiosity = radiosity; }
    CZelColor getColor() const override { return mColor; }
    void setColor(CZelColor color) override { mColor = color; }
    double getPower() const override { return mPower; }
    void setPower(double power) override { mPower = power; }

    void setZel(CZEL* zel) { mZel = zel; }
    const char* elementName() const { return mRadiosity ? "Radiosity.Light" : "Camera.Light"; }

private:
    CZEL* mZel;
    bool mUsed;
    bool mRadiosity;
    CZelColor mColor;
    double mPower;
};

} // namespace KeZel
