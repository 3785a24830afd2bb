// How a view is rendered: image size, ray tracing, output format, radiosity, and the
// codec of moving pictures. Public header, C++11. Slot order is part of the interface.
#ifndef ZEL_MODEL_VIEWS_IZELRENDERINGOPT_H
#define ZEL_MODEL_VIEWS_IZELRENDERINGOPT_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// Integer setters with a lower bound of 0 store 0 for a negative value and warn through the
// manager's feedback when there is one. OutputType and Antialias are labels, stored
// unchecked: a value without a label makes the view fail to write.
class ZEL_API CZelRenderingOpt {
public:
    virtual bool isRaytracing() const = 0;
    virtual void setRaytracing(bool on) = 0;
    virtual bool isShadow() const = 0;
    virtual void setShadow(bool on) = 0;
    virtual bool isTransparency() const = 0;
    virtual void setTransparency(bool on) = 0;
    virtual bool isAlpha() const = 0;
    virtual void setAlpha(bool on) = 0;
    virtual int getNbReflection() const = 0;
    virtual void setNbReflection(int count) = 0;
    virtual int getNbRefraction() const = 0;
    virtual void setNbRefraction(int count) = 0;
    virtual int getHeight() const = 0;
    virtual void setHeight(int pixels) = 0;
    virtual int getWidth() const = 0;
    virtual void setWidth(int pixels) = 0;
    virtual const char* getUrl() const = 0;
    virtual void setUrl(const char* url) = 0;
    // 0 CmpPict, 1 Pict, 2 CmpTGA, 3 TGA, 4 BMP, 5 JPEG, 6 CmpQTime, 7 QTime,
    // 8 CmpVRQTime, 9 VRQTime, 10 Real, 11 AVI, 12 Epix, 13 Tiff.
    virtual int getOutputType() const = 0;
    virtual void setOutputType(int type) = 0;
    // 0 No, 1 Good, 2 Excellent, 3 Special.
    virtual int getAntialias() const = 0;
    virtual void setAntialias(int level) = 0;
    virtual bool isRenderAll() const = 0;
    virtual void setRenderAll(bool on) = 0;
    virtual int getRenderFirst() const = 0;
    virtual void setRenderFirst(int frame) = 0;
    virtual int getRenderLast() const = 0;
    virtual void setRenderLast(int frame) = 0;
    virtual bool isUseViewOptions() const = 0;
    virtual void setUseViewOptions(bool on) = 0;
    virtual bool isPreviewAntialias() const = 0;
    virtual void setPreviewAntialias(bool on) = 0;
    virtual bool isHeightWidthLinked() const = 0;
    virtual void setHeightWidthLinked(bool on) = 0;
    virtual bool isScaleOn() const = 0;
    virtual void setScaleOn(bool on) = 0;
    virtual int getParallelScale() const = 0;
    virtual void setParallelScale(int scale) = 0;
    virtual int getImageResolution() const = 0;
    virtual void setImageResolution(int dpi) = 0;
    virtual int getPanoramaResolution() const = 0;
    virtual void setPanoramaResolution(int level) = 0;
    virtual bool isRadiosity() const = 0;
    virtual void setRadiosity(bool on) = 0;
    virtual double getRadiosityFactor() const = 0;
    // Clips to 0.0 from below, with a warning; no upper bound.
    virtual void setRadiosityFactor(double factor) = 0;
    virtual double getRadiosityQuality() const = 0;
    // Clips into 0.0 .. 2147483647.0, with a warning.
    virtual void setRadiosityQuality(double quality) = 0;
    virtual double getContrast() const = 0;
    // Clips to 0.0 from below, with a warning.
    virtual void setContrast(double contrast) = 0;
    virtual double getLuminosity() const = 0;
    // Clips into -1.0 .. 1.0, with a warning.
    virtual void setLuminosity(double luminosity) = 0;
    virtual double getLongRange() const = 0;
    virtual void setLongRange(double range) = 0;
    virtual double getShortRange() const = 0;
    virtual void setShortRange(double range) = 0;
    virtual double getFirstBounce() const = 0;
    virtual void setFirstBounce(double value) = 0;
    virtual double getNextBounces() const = 0;
    virtual void setNextBounces(double value) = 0;
    virtual double getAttenuation() const = 0;
    virtual void setAttenuation(double value) = 0;
    virtual double getColorBleeding() const = 0;
    virtual void setColorBleeding(double value) = 0;
    virtual ~CZelRenderingOpt() {}
};

// The codec of moving pictures.
class ZEL_API CZelCompressionOpt {
public:
    // A four-character code read as a big-endian integer ("raw " is 1918990112).
    virtual int getCodec() const = 0;
    virtual void setCodec(int codec) = 0;
    virtual int getDepth() const = 0;
    virtual void setDepth(int depth) = 0;
    virtual int getSpatialQuality() const = 0;
    virtual void setSpatialQuality(int quality) = 0;
    virtual int getTemporalQuality() const = 0;
    virtual void setTemporalQuality(int quality) = 0;
    virtual double getFrameRate() const = 0;
    // Anything below 1.0 is stored as 1.0, silently.
    virtual void setFrameRate(double rate) = 0;
    virtual int getKeyFrameRate() const = 0;
    virtual void setKeyFrameRate(int rate) = 0;
    virtual ~CZelCompressionOpt() {}
};

// The rendering and compression options that a view owns.
class ZEL_API IZelViewOpt {
public:
    virtual const CZelRenderingOpt* getRenderingOpt() const = 0;
    virtual CZelRenderingOpt* getRenderingOpt() = 0;
    virtual const CZelCompressionOpt* getCompressionOpt() const = 0;
    virtual CZelCompressionOpt* getCompressionOpt() = 0;
    // Writes Rendering and Compression below the parent's Options (made when missing) and
    // answers that Options element; null on failure.
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelViewOpt() {}
};

// The options of a parallel view: a narrower face over the same rendering options.
class ZEL_API IZelParallelViewsOpt {
public:
    virtual const CZelRenderingOpt* getRenderingOpt() const = 0;
    virtual CZelRenderingOpt* getRenderingOpt() = 0;
    virtual const CZelCompressionOpt* getCompressionOpt() const = 0;
    virtual CZelCompressionOpt* getCompressionOpt() = 0;
    virtual bool isScaleOn() const = 0;
    virtual void setScaleOn(bool on) = 0;
    virtual int getParallelScale() const = 0;
    virtual void setParallelScale(int scale) = 0;
    virtual int getImageResolution() const = 0;
    virtual void setImageResolution(int dpi) = 0;
    virtual ~IZelParallelViewsOpt() {}
};

// The options of a panorama: a narrower face over the same rendering options.
class ZEL_API CZelPanoramaRenderingOpt {
public:
    virtual const CZelRenderingOpt* getRenderingOpt() const = 0;
    virtual CZelRenderingOpt* getRenderingOpt() = 0;
    virtual const CZelCompressionOpt* getCompressionOpt() const = 0;
    virtual CZelCompressionOpt* getCompressionOpt() = 0;
    virtual int getPanoramaResolution() const = 0;
    virtual void setPanoramaResolution(int level) = 0;
    virtual ~CZelPanoramaRenderingOpt() {}
};

} // namespace KeZel

#endif
