// What lies behind and in front of the scene: the backdrop of a view, the picture layers
// of an environment, environments, and infinite grounds. Public header, C++11. Slot order
// is part of the interface.
//
// Operation order chosen here: the ground's material, a property held by value, is reached
// in two forms, plain first, then const, as every other sub-object held by value.
#ifndef ZEL_MODEL_LIGHT_IZELBACKGROUND_H
#define ZEL_MODEL_LIGHT_IZELBACKGROUND_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "model/geometry/IZelProperty.h"
#include "model/light/IZelSky.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// Kinds of CZelBackground::getImageType.
enum EBackgroundImageType {
    eBackgroundImageNone = 0,
    eBackgroundImageStretched = 1,
    eBackgroundImage3D = 2,
    eBackgroundImageMotif = 3,
    eBackgroundImageQTVRCubic = 4
};
// Kinds of CZelBackground::getColorType.
enum EBackgroundColorType {
    eBackgroundColorNone = 0,
    eBackgroundColorUniform = 1,
    eBackgroundColorGraduated = 2,
    eBackgroundColorGraduatedLine = 3
};
// Kinds of IZelBackgroundPicture::getType.
enum EBackgroundPictureType {
    eBackgroundPictureNone = 0,
    eBackgroundPictureUserGradient = 1,
    eBackgroundPicture2D = 2,
    eBackgroundPictureMovie3D = 3
};

// The backdrop of a view: a colour or a gradient, and optionally an image.
class ZEL_API CZelBackground {
public:
    // Both kinds in one number, for hosts of the older interface: with no image, the
    // colour type minus 1 (at least 0); otherwise the image type plus 2. Setting a value
    // below 3 clears the image type; 3 and above clear the colour type.
    virtual int getType() const = 0;
    virtual void setType(int type) = 0;
    virtual CZelColor getColor() const = 0;
    virtual void setColor(CZelColor color) = 0;
    virtual CZelColor getSecondColor() const = 0;
    virtual void setSecondColor(CZelColor color) = 0;
    virtual const CZelVector* getUpDirection() const = 0;
    virtual void setUpDirection(const CZelVector& direction) = 0;
    virtual double getLinePower() const = 0;
    // With a manager, clipped to 0 .. 100.0 with a report; then any value below 10.0
    // becomes 1.0.
    virtual void setLinePower(double power) = 0;
    virtual const char* getURL() const = 0;
    virtual void setURL(const char* url) = 0;
    virtual double getOriginObsolete() const = 0;
    virtual void setOriginObsolete(double origin) = 0;
    // Replaces any Background child of `parent`.
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    // One of EBackgroundImageType.
    virtual int getImageType() const = 0;
    virtual void setImageType(int type) = 0;
    // One of EBackgroundColorType.
    virtual int getColorType() const = 0;
    virtual void setColorType(int type) = 0;
    virtual bool isUseDefault() const = 0;
    virtual void setUseDefault(bool useDefault) = 0;
    virtual double getOrigin() const = 0;
    virtual void setOrigin(double origin) = 0;
    virtual double getDirectionAngle() const = 0;
    virtual void setDirectionAngle(double angle) = 0;
    virtual const CZelUUID* getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    virtual ~CZelBackground() {}
};

// The picture behind an environment.
class ZEL_API IZelBackgroundPicture {
public:
    // One of EBackgroundPictureType.
    virtual int getType() const = 0;
    virtual void setType(int type) = 0;
    virtual const char* getURL() const = 0;
    virtual void setURL(const char* url) = 0;
    virtual bool is3D() const = 0;
    virtual void set3D(bool on) = 0;
    virtual CZelColor getFirstColor() const = 0;
    virtual void setFirstColor(CZelColor color) = 0;
    virtual CZelColor getSecondColor() const = 0;
    virtual void setSecondColor(CZelColor color) = 0;
    virtual CZelColor getThirdColor() const = 0;
    virtual void setThirdColor(CZelColor color) = 0;
    virtual double getHOffset() const = 0;
    virtual void setHOffset(double offset) = 0;
    virtual double getVOffset() const = 0;
    virtual void setVOffset(double offset) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelBackgroundPicture() {}
};

// The picture in front of an environment, placed in pixels.
class ZEL_API IZelForeground {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const char* getURL() const = 0;
    virtual void setURL(const char* url) = 0;
    virtual int getPositionX() const = 0;
    virtual void setPositionX(int x) = 0;
    virtual int getPositionY() const = 0;
    virtual void setPositionY(int y) = 0;
    virtual const CZelUUID* getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    virtual ~IZelForeground() {}
};

// Fog, clouds, background picture and foreground under one name.
class ZEL_API IZelEnvironment {
public:
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual IZelClouds* getClouds() = 0;
    virtual const IZelClouds* getClouds() const = 0;
    virtual IZelFog* getFog() = 0;
    virtual const IZelFog* getFog() const = 0;
    virtual IZelBackgroundPicture* getBackgroundPicture() = 0;
    virtual const IZelBackgroundPicture* getBackgroundPicture() const = 0;
    virtual IZelForeground* getForeground() = 0;
    virtual const IZelForeground* getForeground() const = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelEnvironment() {}
};

// An infinite ground plane with a material of its own, outside the scene's property list.
class ZEL_API IZelGround {
public:
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual const CZelUUID* getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    virtual double getHeight() const = 0;
    virtual void setHeight(double height) = 0;
    virtual CZelProperty* getProperty() = 0;
    virtual const CZelProperty* getProperty() const = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    // Fails when the Ground element has no Property.
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual ~IZelGround() {}
};

} // namespace KeZel

#endif
