#include "model/views/RenderingOpt.h"

#include "codec/RenderingCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

// ---- CRenderingOpt

CRenderingOpt::CRenderingOpt(CZEL* zel)
    : mZel(zel), mRaytracing(true), mShadow(true), mTransparency(true), mAlpha(false), mNbReflection(2),
      mNbRefraction(6), mHeight(240), mWidth(320), mHasUrl(false), mOutputType(2), mAntialias(0),
      mRenderAll(true), mRenderFirst(0), mRenderLast(0), mUseViewOptions(false), mPreviewAntialias(false),
      mHeightWidthLinked(false), mScaleOn(true), mParallelScale(100), mImageResolution(72),
      mPanoramaResolution(1), mContrast(1.0), mLuminosity(0.0), mLongRange(96.0), mShortRange(4.0),
      mFirstBounce(4.0), mNextBounces(1.0), mAttenuation(0.3), mColorBleeding(1.0) {}

void CRenderingOpt::warn(const char* text) const {
    if (mZel) mZel->report(text);
}

void CRenderingOpt::clipCount(int& field, int value, const char* warning) {
    field = value < 0 ? 0 : value;
    if (field != value) warn(warning);
}

void CRenderingOpt::setNbReflection(int count) {
    clipCount(mNbReflection, count,
              "class CRenderingOpt: Method setNbReflection has clipped a value out of range.");
}

void CRenderingOpt::setNbRefraction(int count) {
    clipCount(mNbRefraction, count,
              "class CRenderingOpt: Method setNbRefraction has clipped a value out of range.");
}

void CRenderingOpt::setHeight(int pixels) {
    clipCount(mHeight, pixels, "class CRenderingOpt: Method setHeight has clipped a value out of range.");
}

void CRenderingOpt::setWidth(int pixels) {
    clipCount(mWidth, pixels, "class CRenderingOpt: Method setWidth has clipped a value out of range.");
}

void CRenderingOpt::setUrl(const char* url) {
    mHasUrl = url != nullptr;
    mUrl = url ? url : "";
}

void CRenderingOpt::setRenderFirst(int frame) {
    clipCount(mRenderFirst, frame,
              "class CRenderingOpt: Method setRenderFirst has clipped a value out of range.");
}

void CRenderingOpt::setRenderLast(int frame) {
    clipCount(mRenderLast, frame,
              "class CRenderingOpt: Method setRenderLast has clipped a value out of range.");
}

void CRenderingOpt::setParallelScale(int scale) {
    clipCount(mParallelScale, scale,
              "class CRenderingOpt: Method setParallelScale has clipped a value out of range.");
}

void CRenderingOpt::setImageResolution(int dpi) {
    clipCount(mImageResolution, dpi,
              "class CRenderingOpt: Method setImageResolution has clipped a value out of range.");
}

void CRenderingOpt::setPanoramaResolution(int level) {
    clipCount(mPanoramaResolution, level,
              "class CRenderingOpt: Method setPanoramaResolution has clipped a value out of range.");
}

void CRenderingOpt::setRadiosityFactor(double factor) {
    if (factor < 0.0) {
        factor = 0.0;
        warn("class CRenderingOpt:Method setRadiosityFactor has clipped a value out of range.");
    }
    mRadiosity.setRadiosityFactor(factor);
}

void CRenderingOpt::setRadiosityQuality(double quality) {
    const double most = 2147483647.0;
    if (quality < 0.0 || quality > most) {
        quality = quality < 0.0 ? 0.0 : most;
        warn("class CRenderingOpt: Method setRadiosityQuality has clipped a value out of range.");
    }
    mRadiosity.setRadiosityQuality(quality);
}

void CRenderingOpt::setContrast(double contrast) {
    if (contrast < 0.0) {
        contrast = 0.0;
        warn("CRenderingOpt::setContrast value must be positive");
    }
    mContrast = contrast;
}

void CRenderingOpt::setLuminosity(double luminosity) {
    if (luminosity < -1.0 || luminosity > 1.0) {
        luminosity = luminosity < -1.0 ? -1.0 : 1.0;
        warn("CRenderingOpt::setLuminosity value must be between -1 and 1.");
    }
    mLuminosity = luminosity;
}

void CRenderingOpt::copyValuesFrom(const CRenderingOpt& other) {
    CZEL* zel = mZel;
    *this = other;
    mZel = zel;
}

// ---- CAnimRenderingOpt

CAnimRenderingOpt::CAnimRenderingOpt(CZEL* zel) : mZel(zel), mRendering(zel) {
    mRendering.setOutputType(7); // QTime
    mCompression.setTemporalQuality(512);
    mCompression.setFrameRate(25.0);
    mCompression.setKeyFrameRate(10);
}

KestraXML::XIXMLElement* CAnimRenderingOpt::putInXML(KestraXML::XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelViewOpt::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddViewOpt(io, parent, *this); });
}

bool CAnimRenderingOpt::initWithXML(KestraXML::XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelViewOpt::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetViewOpt(io, CZelXMLIO::need(parent, "Options"), *this);
        return true;
    });
}

void CAnimRenderingOpt::copyValuesFrom(const CAnimRenderingOpt& other) {
    mRendering.copyValuesFrom(other.mRendering);
    mCompression = other.mCompression;
}

// ---- The narrower faces

namespace {

// Settings that parallel views and panoramas share on top of those of animations.
void SetStillDefaults(CAnimRenderingOpt& options, int outputType) {
    CRenderingOpt& r = options.rendering();
    r.setRaytracing(true);
    r.setTransparency(true);
    r.setNbReflection(1);
    r.setOutputType(outputType);
    r.setAntialias(2); // Excellent
    options.compression().setCodec(kZelCodecRaw);
}

} // namespace

CParallelViewRenderingOpt::CParallelViewRenderingOpt(CZEL* zel) : mOptions(zel) {
    SetStillDefaults(mOptions, 5); // JPEG
}

CVRRenderingOpt::CVRRenderingOpt(CZEL* zel) : mOptions(zel) {
    SetStillDefaults(mOptions, 6); // CmpQTime
}

} // namespace KeZel
