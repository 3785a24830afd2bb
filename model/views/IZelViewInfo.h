// The settings that every kind of view owns, and the small objects that only they hold:
// depth of field, clipping box, image filters, renderer options.
// Public header, C++11. Slot order is part of the interface.
//
// Sub-objects are handed out by fixed getters and can't be replaced, only changed.
#ifndef ZEL_MODEL_VIEWS_IZELVIEWINFO_H
#define ZEL_MODEL_VIEWS_IZELVIEWINFO_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// Light and sky, declared with their own family.
class CZelBackground;
class IZelBackgroundPicture;
class IZelForeground;
class IZelCameraLight;
class CZelAtmosphere;

class ZEL_API IZelDepthOfField {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool isUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    // 0 FromPoint, 1 FromTarget, 2 FromInfinity, 3 FromDistance.
    virtual int getType() const = 0;
    virtual void setType(int type) = 0;
    virtual const CZelVector* getClearnessPoint() const = 0;
    virtual void setClearnessPoint(const CZelVector& point) = 0;
    virtual double getClearnessDistInv() const = 0;
    virtual void setClearnessDistInv(double value) = 0;
    virtual double getClearnessSizeInv() const = 0;
    virtual void setClearnessSizeInv(double value) = 0;
    virtual ~IZelDepthOfField() {}
};

class ZEL_API IZelClippingBox {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const CZelVector* getMinimum() const = 0;
    virtual void setMinimum(const CZelVector& minimum) = 0;
    virtual const CZelVector* getMaximum() const = 0;
    // Also moves the axis point's z to the maximum's z plus 1.0.
    virtual void setMaximum(const CZelVector& maximum) = 0;
    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    // Not stored in files: after a read it follows from the maximum.
    virtual const CZelVector* getAxisPoint() const = 0;
    virtual void setAxisPoint(const CZelVector& point) = 0;
    virtual double getAngle() const = 0;
    virtual void setAngle(double angle) = 0;
    virtual ~IZelClippingBox() {}
};

// No filter value has bounds.
class ZEL_API IZelImageSettingsFilter {
public:
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual double getContrast() const = 0;
    virtual void setContrast(double contrast) = 0;
    virtual double getBrightness() const = 0;
    virtual void setBrightness(double brightness) = 0;
    virtual double getSaturation() const = 0;
    virtual void setSaturation(double saturation) = 0;
    virtual bool isUseMixColor() const = 0;
    virtual void setUseMixColor(bool use) = 0;
    virtual CZelColor getMixColor() const = 0;
    virtual void setMixColor(CZelColor color) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelImageSettingsFilter() {}
};

class ZEL_API IZelGrainFilter {
public:
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual double getBrightness() const = 0;
    virtual void setBrightness(double brightness) = 0;
    virtual double getSize() const = 0;
    virtual void setSize(double size) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelGrainFilter() {}
};

class ZEL_API IZelExposureFilter {
public:
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual double getExposure() const = 0;
    virtual void setExposure(double exposure) = 0;
    virtual double getSize() const = 0;
    virtual void setSize(double size) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelExposureFilter() {}
};

class ZEL_API IZelHatchingFilter {
public:
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual double getContourThreshold() const = 0;
    virtual void setContourThreshold(double threshold) = 0;
    virtual double getIntensityThreshold() const = 0;
    virtual void setIntensityThreshold(double threshold) = 0;
    virtual bool isUseTransparency() const = 0;
    virtual void setUseTransparency(bool use) = 0;
    virtual double getTransparency() const = 0;
    virtual void setTransparency(double transparency) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelHatchingFilter() {}
};

// One of each filter, always there; only their activity varies.
class ZEL_API IZelFilters {
public:
    virtual const IZelImageSettingsFilter* getImageSettingsFilter() const = 0;
    virtual IZelImageSettingsFilter* getImageSettingsFilter() = 0;
    virtual const IZelGrainFilter* getGrainFilter() const = 0;
    virtual IZelGrainFilter* getGrainFilter() = 0;
    virtual const IZelExposureFilter* getExposureFilter() const = 0;
    virtual IZelExposureFilter* getExposureFilter() = 0;
    virtual const IZelHatchingFilter* getHatchingFilter() const = 0;
    virtual IZelHatchingFilter* getHatchingFilter() = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelFilters() {}
};

// The renderer's name and its own options, kept as free XML that the library copies to
// and from the file without reading it.
class ZEL_API IZelRendererInfo {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    // The element Options, owned by the info; the renderer puts what it likes below it.
    virtual const KestraXML::XIXMLElement* getOptions() const = 0;
    virtual KestraXML::XIXMLElement* getOptions() = 0;
    virtual ~IZelRendererInfo() {}
};

class ZEL_API IZelViewInfo {
public:
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual bool isLocked() const = 0;
    virtual void setLocked(bool locked) = 0;
    virtual int getUIValue() const = 0;
    virtual void setUIValue(int value) = 0;
    // Written with the scene, not with the view.
    virtual const CZelBackground* getBackground() const = 0;
    virtual CZelBackground* getBackground() = 0;
    virtual const IZelForeground* getForeground() const = 0;
    virtual IZelForeground* getForeground() = 0;
    // Identities of entries of the scene's lights groups.
    virtual const TZelObjectMgr<CZelUUID>* getLightsGroups() const = 0;
    virtual TZelObjectMgr<CZelUUID>* getLightsGroups() = 0;
    virtual const char* getHeliodonName() const = 0;
    virtual void setHeliodonName(const char* name) = 0;
    virtual const IZelCameraLight* getCameraLight() const = 0;
    virtual IZelCameraLight* getCameraLight() = 0;
    virtual const IZelCameraLight* getRadiosityLight() const = 0;
    virtual IZelCameraLight* getRadiosityLight() = 0;
    virtual const CZelAtmosphere* getAtmosphere() const = 0;
    virtual CZelAtmosphere* getAtmosphere() = 0;
    virtual const IZelDepthOfField* getDepthOfField() const = 0;
    virtual IZelDepthOfField* getDepthOfField() = 0;
    virtual const IZelRendererInfo* getRendererInfo() const = 0;
    virtual IZelRendererInfo* getRendererInfo() = 0;
    virtual const IZelClippingBox* getClippingBox() const = 0;
    virtual IZelClippingBox* getClippingBox() = 0;
    virtual const CZelUUID* getEnvironmentId() const = 0;
    virtual void setEnvironmentId(const CZelUUID& id) = 0;
    virtual const IZelFilters* getFilters() const = 0;
    virtual IZelFilters* getFilters() = 0;
    // Identities of shaders.
    virtual const TZelObjectMgr<CZelUUID>* getNeonShaders() const = 0;
    virtual TZelObjectMgr<CZelUUID>* getNeonShaders() = 0;
    virtual const IZelBackgroundPicture* getBackgroundPicture() const = 0;
    virtual IZelBackgroundPicture* getBackgroundPicture() = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    // Identities of entries of the scene's layers.
    virtual const TZelObjectMgr<CZelUUID>* getLayers() const = 0;
    virtual TZelObjectMgr<CZelUUID>* getLayers() = 0;
    virtual ~IZelViewInfo() {}
};

} // namespace KeZel

#endif
