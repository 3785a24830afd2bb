// The settings that every kind of view owns (CZelViewInfo), and the small objects that
// only it holds: depth of field, clipping box, the four image filters and the renderer's
// free options.
//
// Every object here takes its manager at construction; one without a manager keeps its
// values alike, but its putInXML / initWithXML answer null / false (nothing to report to).
#pragma once

// Background.h needs the manager complete (its lists ask it for the manager).
#include "frame/CZEL.h"
#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/light/Background.h"
#include "model/light/Sky.h"
#include "model/views/IZelViewInfo.h"

#include <memory>
#include <string>

namespace KestraXML {
class XCXMLTree;
}

namespace KeZel {

class CZEL;

class CZelDepthOfField : public TZelFrontier<IZelDepthOfField> {
public:
    explicit CZelDepthOfField(CZEL* zel = nullptr)
        : mZel(zel), mUsed(false), mType(0), mClearnessPoint(), mClearnessDistInv(0.0),
          mClearnessSizeInv(0.0) {}

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Depth.Of.Field.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    bool isUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    int getType() const override { return mType; }
    void setType(int type) override { mType = type; }
    const CZelVector* getClearnessPoint() const override { return &mClearnessPoint; }
    void setClearnessPoint(const CZelVector& point) override { mClearnessPoint = point; }
    double getClearnessDistInv() const override { return mClearnessDistInv; }
    void setClearnessDistInv(double value) override { mClearnessDistInv = value; }
    double getClearnessSizeInv() const override { return mClearnessSizeInv; }
    void setClearnessSizeInv(double value) override { mClearnessSizeInv = value; }

private:
    CZEL* mZel;
    bool mUsed;
    int mType;
    CZelVector mClearnessPoint;
    double mClearnessDistInv;
    double mClearnessSizeInv;
};

class CZelClippingBox : public TZelFrontier<IZelClippingBox> {
public:
    explicit CZelClippingBox(CZEL* zel = nullptr)
        : mZel(zel), mMinimum(), mMaximum(), mAxisPoint(), mAngle(0.0), mVisible(false), mActive(false) {}

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Clipping.Box.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const CZelVector* getMinimum() const override { return &mMinimum; }
    void setMinimum(const CZelVector& minimum) override { mMinimum = minimum; }
    const CZelVector* getMaximum() const override { return &mMaximum; }
    void setMaximum(const CZelVector& maximum) override {
        mMaximum = maximum;
        mAxisPoint.z = maximum.z + 1.0;
    }
    bool isVisible() const override { return mVisible; }
    void setVisible(bool visible) override { mVisible = visible; }
    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    const CZelVector* getAxisPoint() const override { return &mAxisPoint; }
    void setAxisPoint(const CZelVector& point) override { mAxisPoint = point; }
    double getAngle() const override { return mAngle; }
    void setAngle(double angle) override { mAngle = angle; }

private:
    CZEL* mZel;
    CZelVector mMinimum;
    CZelVector mMaximum;
    CZelVector mAxisPoint;
    double mAngle;
    bool mVisible;
    bool mActive;
};

// ---- Filters: no value has bounds. Each initWithXML reads the parent's element of the
// filter's own name.

class CZelImageSettingsFilter : public TZelFrontier<IZelImageSettingsFilter> {
public:
    explicit CZelImageSettingsFilter(CZEL* zel = nullptr)
        : mZel(zel), mActive(true), mContrast(0.5), mBrightness(0.5), mSaturation(0.5), mUseMixColor(false),
          mMixColor(ZelRGB(255, 255, 255)) {}

    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getContrast() const override { return mContrast; }
    void setContrast(double contrast) override { mContrast = contrast; }
    double getBrightness() const override { return mBrightness; }
    void setBrightness(double brightness) override { mBrightness = brightness; }
    double getSaturation() const override { return mSaturation; }
    void setSaturation(double saturation) override { mSaturation = saturation; }
    bool isUseMixColor() const override { return mUseMixColor; }
    void setUseMixColor(bool use) override { mUseMixColor = use; }
    CZelColor getMixColor() const override { return mMixColor; }
    void setMixColor(CZelColor color) override { mMixColor = color; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

private:
    CZEL* mZel;
    bool mActive;
    double mContrast;
    double mBrightness;
    double mSaturation;
    bool mUseMixColor;
    CZelColor mMixColor;
};

class CZelGrainFilter : public TZelFrontier<IZelGrainFilter> {
public:
    explicit CZelGrainFilter(CZEL* zel = nullptr) : mZel(zel), mActive(false), mBrightness(0.5), mSize(0.5) {}

    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getBrightness() const override { return mBrightness; }
    void setBrightness(double brightness) override { mBrightness = brightness; }
    double getSize() const override { return mSize; }
    void setSize(double size) override { mSize = size; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

private:
    CZEL* mZel;
    bool mActive;
    double mBrightness;
    double mSize;
};

class CZelExposureFilter : public TZelFrontier<IZelExposureFilter> {
public:
    explicit CZelExposureFilter(CZEL* zel = nullptr)
        : mZel(zel), mActive(false), mExposure(0.5), mSize(0.5) {}

    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getExposure() const override { return mExposure; }
    void setExposure(double exposure) override { mExposure = exposure; }
    double getSize() const override { return mSize; }
    void setSize(double size) override { mSize = size; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

private:
    CZEL* mZel;
    bool mActive;
    double mExposure;
    double mSize;
};

class CZelHatchingFilter : public TZelFrontier<IZelHatchingFilter> {
public:
    explicit CZelHatchingFilter(CZEL* zel = nullptr)
        : mZel(zel), mActive(false), mContourThreshold(0.5), mIntensityThreshold(0.5), mUseTransparency(true),
          mTransparency(1.0) {}

    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getContourThreshold() const override { return mContourThreshold; }
    void setContourThreshold(double threshold) override { mContourThreshold = threshold; }
    double getIntensityThreshold() const override { return mIntensityThreshold; }
    void setIntensityThreshold(double threshold) override { mIntensityThreshold = threshold; }
    bool isUseTransparency() const override { return mUseTransparency; }
    void setUseTransparency(bool use) override { mUseTransparency = use; }
    double getTransparency() const override { return mTransparency; }
    void setTransparency(double transparency) override { mTransparency = transparency; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

private:
    CZEL* mZel;
    bool mActive;
    double mContourThreshold;
    double mIntensityThreshold;
    bool mUseTransparency;
    double mTransparency;
};

// One of each filter, always there; a new view has the image settings filter alone active.
class CZelFilters : public TZelFrontier<IZelFilters> {
public:
    explicit CZelFilters(CZEL* zel = nullptr)
        : mZel(zel), mImageSettings(zel), mGrain(zel), mExposure(zel), mHatching(zel) {}

    const IZelImageSettingsFilter* getImageSettingsFilter() const override { return &mImageSettings; }
    IZelImageSettingsFilter* getImageSettingsFilter() override { return &mImageSettings; }
    const IZelGrainFilter* getGrainFilter() const override { return &mGrain; }
    IZelGrainFilter* getGrainFilter() override { return &mGrain; }
    const IZelExposureFilter* getExposureFilter() const override { return &mExposure; }
    IZelExposureFilter* getExposureFilter() override { return &mExposure; }
    const IZelHatchingFilter* getHatchingFilter() const override { return &mHatching; }
    IZelHatchingFilter* getHatchingFilter() override { return &mHatching; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Filters.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

    CZelImageSettingsFilter& imageSettings() { return mImageSettings; }
    const CZelImageSettingsFilter& imageSettings() const { return mImageSettings; }
    CZelGrainFilter& grain() { return mGrain; }
    const CZelGrainFilter& grain() const { return mGrain; }
    CZelExposureFilter& exposure() { return mExposure; }
    const CZelExposureFilter& exposure() const { return mExposure; }
    CZelHatchingFilter& hatching() { return mHatching; }
    const CZelHatchingFilter& hatching() const { return mHatching; }

private:
    CZEL* mZel;
    CZelImageSettingsFilter mImageSettings;
    CZelGrainFilter mGrain;
    CZelExposureFilter mExposure;
    CZelHatchingFilter mHatching;
};

// The renderer's name and an element Options that the renderer fills as it likes. The
// element lives in a small document of the info's own; the library copies its subtree to
// and from files without reading it.
class CZelRendererInfo : public TZelFrontier<IZelRendererInfo> {
public:
    explicit CZelRendererInfo(CZEL* zel = nullptr);
    ~CZelRendererInfo() override;
    CZelRendererInfo(const CZelRendererInfo&) = delete;
    CZelRendererInfo& operator=(const CZelRendererInfo&) = delete;

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Renderer.Info.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    const KestraXML::XIXMLElement* getOptions() const override { return mOptions; }
    KestraXML::XIXMLElement* getOptions() override { return mOptions; }

    // Replaces the content of Options by a copy of what `options` holds (its attributes
    // and children); a null `options` leaves it empty.
    void copyOptionsFrom(const KestraXML::XIXMLElement* options);

private:
    CZEL* mZel;
    std::string mName;
    std::unique_ptr<KestraXML::XCXMLTree> mTree;
    KestraXML::XIXMLElement* mOptions;
};

class CZelViewInfo : public TZelFrontier<IZelViewInfo> {
public:
    // Bare identities: of lights groups, of neon shaders, of layers.
    typedef TObjectMgr<CZelUUIDX, CZelUUID, CZelViewInfo> CIdentityList;

    // Raises "Can't create UUID" when no identity can be made.
    explicit CZelViewInfo(CZEL* zel = nullptr);
    ~CZelViewInfo() override;
    CZelViewInfo(const CZelViewInfo&) = delete;
    CZelViewInfo& operator=(const CZelViewInfo&) = delete;

    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    bool isLocked() const override { return mLocked; }
    void setLocked(bool locked) override { mLocked = locked; }
    int getUIValue() const override { return mUIValue; }
    void setUIValue(int value) override { mUIValue = value; }
    const CZelBackground* getBackground() const override { return mBackground.get(); }
    CZelBackground* getBackground() override { return mBackground.get(); }
    const IZelForeground* getForeground() const override { return &mForeground; }
    IZelForeground* getForeground() override { return &mForeground; }
    const TZelObjectMgr<CZelUUID>* getLightsGroups() const override { return &mLightsGroups; }
    TZelObjectMgr<CZelUUID>* getLightsGroups() override { return &mLightsGroups; }
    const char* getHeliodonName() const override { return mHeliodonName.c_str(); }
    void setHeliodonName(const char* name) override { mHeliodonName = name ? name : ""; }
    const IZelCameraLight* getCameraLight() const override { return &mCameraLight; }
    IZelCameraLight* getCameraLight() override { return &mCameraLight; }
    const IZelCameraLight* getRadiosityLight() const override { return &mRadiosityLight; }
    IZelCameraLight* getRadiosityLight() override { return &mRadiosityLight; }
    const CZelAtmosphere* getAtmosphere() const override { return &mAtmosphere; }
    CZelAtmosphere* getAtmosphere() override { return &mAtmosphere; }
    const IZelDepthOfField* getDepthOfField() const override { return &mDepthOfField; }
    IZelDepthOfField* getDepthOfField() override { return &mDepthOfField; }
    const IZelRendererInfo* getRendererInfo() const override { return &mRendererInfo; }
    IZelRendererInfo* getRendererInfo() override { return &mRendererInfo; }
    const IZelClippingBox* getClippingBox() const override { return &mClippingBox; }
    IZelClippingBox* getClippingBox() override { return &mClippingBox; }
    const CZelUUID* getEnvironmentId() const override { return &mEnvironmentId; }
    void setEnvironmentId(const CZelUUID& id) override { mEnvironmentId = id; }
    const IZelFilters* getFilters() const override { return &mFilters; }
    IZelFilters* getFilters() override { return &mFilters; }
    const TZelObjectMgr<CZelUUID>* getNeonShaders() const override { return &mNeonShaders; }
    TZelObjectMgr<CZelUUID>* getNeonShaders() override { return &mNeonShaders; }
    const IZelBackgroundPicture* getBackgroundPicture() const override { return &mBackgroundPicture; }
    IZelBackgroundPicture* getBackgroundPicture() override { return &mBackgroundPicture; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's View.Info. Keeps the identity it has: only a read of the whole scene
    // takes the file's.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const TZelObjectMgr<CZelUUID>* getLayers() const override { return &mLayers; }
    TZelObjectMgr<CZelUUID>* getLayers() override { return &mLayers; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CBackground& background() { return *mBackground; }
    const CBackground& background() const { return *mBackground; }
    CZelBackgroundPicture& backgroundPicture() { return mBackgroundPicture; }
    const CZelBackgroundPicture& backgroundPicture() const { return mBackgroundPicture; }
    CZelForeground& foreground() { return mForeground; }
    const CZelForeground& foreground() const { return mForeground; }
    CIdentityList& lightsGroups() { return mLightsGroups; }
    const CIdentityList& lightsGroups() const { return mLightsGroups; }
    CZelCameraLight& cameraLight() { return mCameraLight; }
    const CZelCameraLight& cameraLight() const { return mCameraLight; }
    CZelCameraLight& radiosityLight() { return mRadiosityLight; }
    const CZelCameraLight& radiosityLight() const { return mRadiosityLight; }
    CAtmosphere& atmosphere() { return mAtmosphere; }
    const CAtmosphere& atmosphere() const { return mAtmosphere; }
    CZelDepthOfField& depthOfField() { return mDepthOfField; }
    const CZelDepthOfField& depthOfField() const { return mDepthOfField; }
    CZelRendererInfo& rendererInfo() { return mRendererInfo; }
    const CZelRendererInfo& rendererInfo() const { return mRendererInfo; }
    CZelClippingBox& clippingBox() { return mClippingBox; }
    const CZelClippingBox& clippingBox() const { return mClippingBox; }
    CZelFilters& filters() { return mFilters; }
    const CZelFilters& filters() const { return mFilters; }
    CIdentityList& neonShaders() { return mNeonShaders; }
    const CIdentityList& neonShaders() const { return mNeonShaders; }
    CIdentityList& layers() { return mLayers; }
    const CIdentityList& layers() const { return mLayers; }

private:
    CZEL* mZel;
    CZelUUID mUUID;
    bool mLocked;
    int mUIValue;
    std::unique_ptr<CBackground> mBackground;
    CZelBackgroundPicture mBackgroundPicture;
    CZelForeground mForeground;
    CIdentityList mLightsGroups;
    std::string mHeliodonName;
    CZelCameraLight mCameraLight;
    CZelCameraLight mRadiosityLight;
    CAtmosphere mAtmosphere;
    CZelDepthOfField mDepthOfField;
    CZelRendererInfo mRendererInfo;
    CZelClippingBox mClippingBox;
    CZelUUID mEnvironmentId;
    CZelFilters mFilters;
    CIdentityList mNeonShaders;
    CIdentityList mLayers;
};

// The background picture of today that an old background stands for: None stays none,
// a stretched, tiled or 3D image becomes a picture (3D marked as such), a cubic
// panorama a 3D movie, and any colour kind a user gradient. URL and the two colours
// come along.
void ZelPictureFromBackground(const CBackground& background, CZelBackgroundPicture& picture);

} // namespace KeZel
