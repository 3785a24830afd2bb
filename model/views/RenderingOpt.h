// Rendering and compression options, and the option objects of each view family that
// embed them.
//
//   CRadiosityControl           radiosity flag, quality and factor; stores anything
//   CRenderingOpt               image size, ray tracing, output, radiosity: clips and warns
//   CCompressionOpt             the codec of moving pictures
//   CAnimRenderingOpt           both, behind IZelViewOpt: perspective views, animations,
//                               view objects, each view of those families
//   CParallelViewRenderingOpt   a CAnimRenderingOpt behind the parallel views' narrower face
//   CVRRenderingOpt             a CAnimRenderingOpt behind the panoramas' narrower face
//
// The warnings of the clipping setters go to the manager's feedback when the options know
// a manager; without one they clip silently.
#pragma once

#include "frame/ZelFrontier.h"
#include "model/light/IZelSky.h"
#include "model/views/IZelRenderingOpt.h"

#include <string>

namespace KeZel {

class CZEL;

class CRadiosityControl : public TZelFrontier<IZelRadiosityControl> {
public:
    CRadiosityControl() : mRadiosity(true), mQuality(4.0), mFactor(1.0), mSpareFlag(false) {}

    bool isRadiosity() const override { return mRadiosity; }
    void setRadiosity(bool on) override { mRadiosity = on; }
    double getRadiosityQuality() const override { return mQuality; }
    void setRadiosityQuality(double quality) override { mQuality = quality; }
    double getRadiosityFactor() const override { return mFactor; }
    void setRadiosityFactor(double factor) override { mFactor = factor; }

private:
    bool mRadiosity;
    double mQuality;
    double mFactor;
    [[maybe_unused]] bool mSpareFlag; // carried for the renderer; no accessor
};

class CRenderingOpt : public TZelFrontier<CZelRenderingOpt> {
public:
    explicit CRenderingOpt(CZEL* zel = nullptr);

    bool isRaytracing() const override { return mRaytracing; }
    void setRaytracing(bool on) override { mRaytracing = on; }
    bool isShadow() const override { return mShadow; }
    void setShadow(bool on) override { mShadow = on; }
    bool isTransparency() const override { return mTransparency; }
    void setTransparency(bool on) override { mTransparency = on; }
    bool isAlpha() const override { return mAlpha; }
    void setAlpha(bool on) override { mAlpha = on; }
    int getNbReflection() const override { return mNbReflection; }
    void setNbReflection(int count) override;
    int getNbRefraction() const override { return mNbRefraction; }
    void setNbRefraction(int count) override;
    int getHeight() const override { return mHeight; }
    void setHeight(int pixels) override;
    int getWidth() const override { return mWidth; }
    void setWidth(int pixels) override;
    const char* getUrl() const override { return mUrl.c_str(); }
    // A null url forgets the string: the writer then leaves URL out.
    void setUrl(const char* url) override;
    int getOutputType() const override { return mOutputType; }
    void setOutputType(int type) override { mOutputType = type; }
    int getAntialias() const override { return mAntialias; }
    void setAntialias(int level) override { mAntialias = level; }
    bool isRenderAll() const override { return mRenderAll; }
    void setRenderAll(bool on) override { mRenderAll = on; }
    int getRenderFirst() const override { return mRenderFirst; }
    void setRenderFirst(int frame) override;
    int getRenderLast() const override { return mRenderLast; }
    void setRenderLast(int frame) override;
    bool isUseViewOptions() const override { return mUseViewOptions; }
    void setUseViewOptions(bool on) override { mUseViewOptions = on; }
    bool isPreviewAntialias() const override { return mPreviewAntialias; }
    void setPreviewAntialias(bool on) override { mPreviewAntialias = on; }
    bool isHeightWidthLinked() const override { return mHeightWidthLinked; }
    void setHeightWidthLinked(bool on) override { mHeightWidthLinked = on; }
    bool isScaleOn() const override { return mScaleOn; }
    void setScaleOn(bool on) override { mScaleOn = on; }
    int getParallelScale() const override { return mParallelScale; }
    void setParallelScale(int scale) override;
    int getImageResolution() const override { return mImageResolution; }
    void setImageResolution(int dpi) override;
    int getPanoramaResolution() const override { return mPanoramaResolution; }
    void setPanoramaResolution(int level) override;
    bool isRadiosity() const override { return mRadiosity.isRadiosity(); }
    void setRadiosity(bool on) override { mRadiosity.setRadiosity(on); }
    double getRadiosityFactor() const override { return mRadiosity.getRadiosityFactor(); }
    void setRadiosityFactor(double factor) override;
    double getRadiosityQuality() const override { return mRadiosity.getRadiosityQuality(); }
    void setRadiosityQuality(double quality) override;
    double getContrast() const override { return mContrast; }
    void setContrast(double contrast) override;
    double getLuminosity() const override { return mLuminosity; }
    void setLuminosity(double luminosity) override;
    double getLongRange() const override { return mLongRange; }
    void setLongRange(double range) override { mLongRange = range; }
    double getShortRange() const override { return mShortRange; }
    void setShortRange(double range) override { mShortRange = range; }
    double getFirstBounce() const override { return mFirstBounce; }
    void setFirstBounce(double value) override { mFirstBounce = value; }
    double getNextBounces() const override { return mNextBounces; }
    void setNextBounces(double value) override { mNextBounces = value; }
    double getAttenuation() const override { return mAttenuation; }
    void setAttenuation(double value) override { mAttenuation = value; }
    double getColorBleeding() const override { return mColorBleeding; }
    void setColorBleeding(double value) override { mColorBleeding = value; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    // Whether a URL was ever set or read: only then is it written.
    bool hasUrl() const { return mHasUrl; }
    IZelRadiosityControl* getRadiosityControl() { return &mRadiosity; }
    // Takes every value of `other`; this object keeps its own manager.
    void copyValuesFrom(const CRenderingOpt& other);

private:
    // Stores max(value, 0) in `field`; warns when that changed the value.
    void clipCount(int& field, int value, const char* warning);
    void warn(const char* text) const;

    CZEL* mZel;
    bool mRaytracing;
    bool mShadow;
    bool mTransparency;
    bool mAlpha;
    int mNbReflection;
    int mNbRefraction;
    int mHeight;
    int mWidth;
    std::string mUrl;
    bool mHasUrl;
    int mOutputType;
    int mAntialias;
    bool mRenderAll;
    int mRenderFirst;
    int mRenderLast;
    bool mUseViewOptions;
    bool mPreviewAntialias;
    bool mHeightWidthLinked;
    bool mScaleOn;
    int mParallelScale;
    int mImageResolution;
    int mPanoramaResolution;
    CRadiosityControl mRadiosity;
    double mContrast;
    double mLuminosity;
    double mLongRange;
    double mShortRange;
    double mFirstBounce;
    double mNextBounces;
    double mAttenuation;
    double mColorBleeding;
};

// "raw " read as a big-endian integer: uncompressed frames.
const int kZelCodecRaw = ('r' << 24) | ('a' << 16) | ('w' << 8) | ' ';

class CCompressionOpt : public TZelFrontier<CZelCompressionOpt> {
public:
    CCompressionOpt()
        : mCodec(kZelCodecRaw), mDepth(0), mSpatialQuality(512), mTemporalQuality(0), mFrameRate(0.0),
          mKeyFrameRate(0) {}

    int getCodec() const override { return mCodec; }
    void setCodec(int codec) override { mCodec = codec; }
    int getDepth() const override { return mDepth; }
    void setDepth(int depth) override { mDepth = depth; }
    int getSpatialQuality() const override { return mSpatialQuality; }
    void setSpatialQuality(int quality) override { mSpatialQuality = quality; }
    int getTemporalQuality() const override { return mTemporalQuality; }
    void setTemporalQuality(int quality) override { mTemporalQuality = quality; }
    double getFrameRate() const override { return mFrameRate; }
    void setFrameRate(double rate) override { mFrameRate = rate >= 1.0 ? rate : 1.0; }
    int getKeyFrameRate() const override { return mKeyFrameRate; }
    void setKeyFrameRate(int rate) override { mKeyFrameRate = rate; }

private:
    int mCodec;
    int mDepth;
    int mSpatialQuality;
    int mTemporalQuality;
    double mFrameRate;
    int mKeyFrameRate;
};

// The options that a view of the perspective, animation or view object families owns.
class CAnimRenderingOpt : public TZelFrontier<IZelViewOpt> {
public:
    explicit CAnimRenderingOpt(CZEL* zel = nullptr);

    const CZelRenderingOpt* getRenderingOpt() const override { return &mRendering; }
    CZelRenderingOpt* getRenderingOpt() override { return &mRendering; }
    const CZelCompressionOpt* getCompressionOpt() const override { return &mCompression; }
    CZelCompressionOpt* getCompressionOpt() override { return &mCompression; }
    // Writes Rendering and Compression below parent's Options; answers that Options.
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads from parent's Options.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CRenderingOpt& rendering() { return mRendering; }
    const CRenderingOpt& rendering() const { return mRendering; }
    CCompressionOpt& compression() { return mCompression; }
    const CCompressionOpt& compression() const { return mCompression; }
    // Takes every value of `other`; this object keeps its own manager.
    void copyValuesFrom(const CAnimRenderingOpt& other);

protected:
    CZEL* mZel;
    CRenderingOpt mRendering;
    CCompressionOpt mCompression;
};

class CParallelViewRenderingOpt : public TZelFrontier<IZelParallelViewsOpt> {
public:
    explicit CParallelViewRenderingOpt(CZEL* zel = nullptr);

    const CZelRenderingOpt* getRenderingOpt() const override { return mOptions.getRenderingOpt(); }
    CZelRenderingOpt* getRenderingOpt() override { return mOptions.getRenderingOpt(); }
    const CZelCompressionOpt* getCompressionOpt() const override { return mOptions.getCompressionOpt(); }
    CZelCompressionOpt* getCompressionOpt() override { return mOptions.getCompressionOpt(); }
    bool isScaleOn() const override { return mOptions.rendering().isScaleOn(); }
    void setScaleOn(bool on) override { mOptions.rendering().setScaleOn(on); }
    int getParallelScale() const override { return mOptions.rendering().getParallelScale(); }
    void setParallelScale(int scale) override { mOptions.rendering().setParallelScale(scale); }
    int getImageResolution() const override { return mOptions.rendering().getImageResolution(); }
    void setImageResolution(int dpi) override { mOptions.rendering().setImageResolution(dpi); }

    // ---- Internal API: the IZelViewOpt face (getParallelViewOptions of the manager).
    CAnimRenderingOpt& viewOpt() { return mOptions; }
    const CAnimRenderingOpt& viewOpt() const { return mOptions; }

private:
    CAnimRenderingOpt mOptions;
};

class CVRRenderingOpt : public TZelFrontier<CZelPanoramaRenderingOpt> {
public:
    explicit CVRRenderingOpt(CZEL* zel = nullptr);

    const CZelRenderingOpt* getRenderingOpt() const override { return mOptions.getRenderingOpt(); }
    CZelRenderingOpt* getRenderingOpt() override { return mOptions.getRenderingOpt(); }
    const CZelCompressionOpt* getCompressionOpt() const override { return mOptions.getCompressionOpt(); }
    CZelCompressionOpt* getCompressionOpt() override { return mOptions.getCompressionOpt(); }
    int getPanoramaResolution() const override { return mOptions.rendering().getPanoramaResolution(); }
    void setPanoramaResolution(int level) override { mOptions.rendering().setPanoramaResolution(level); }

    // ---- Internal API: the IZelViewOpt face (getVRViewOptions of the manager).
    CAnimRenderingOpt& viewOpt() { return mOptions; }
    const CAnimRenderingOpt& viewOpt() const { return mOptions; }

private:
    CAnimRenderingOpt mOptions;
};

} // namespace KeZel
