// Billboards: flat pictures that stand for objects, drawn as a few textured quads. The
// scene keeps one entry per billboard; a placement is an object instance of the class
// "Billboard". Public header, C++11. Slot order is part of the interface.
//
// Operation order chosen here, each value a getter then a setter in the order of its
// table, lists and sub-objects as a const then a mutable getter:
// - IZelBBMgrData (ten slots): hasBillboard, getBillboard (const, then mutable),
//   getQuads (const, then mutable), getProperty, setProperty, getTexture (const, then
//   mutable), destructor. The entry always holds its billboard; hasBillboard lets the
//   writer and a host ask before they look.
// - IZelBillboard: getNames (const, then mutable: a list has no setter), getBehavior,
//   setBehavior, getNbFaces, setNbFaces, isAnimate, setAnimate, getScale, setScale,
//   getNormal, setNormal, destructor.
// - IZelBillboard::IZelBBName: getCode, setCode, getText, setText, destructor.
// - IZelQuad: getTriangle, setTriangle, getId, setId, destructor.
// - IZelTexture: getURL, setURL, getOrigin, setOrigin, getXAxis, setXAxis, getYAxis,
//   setYAxis, getWidth, setWidth, getHeight, setHeight, getCutOut1, setCutOut1,
//   getCutOut2, setCutOut2, isCutSet, setCutSet, destructor. A cut-out colour is one
//   value of a flag and a colour, got and set together.
// - IZelBBObjectInstance: getInstance (const, then mutable), then its table:
//   isOrientWithCamera, setOrientWithCamera, isVerticalFlip, setVerticalFlip,
//   isHorizontalFlip, setHorizontalFlip, getRenderType, setRenderType, getShininess,
//   setShininess, getRoughness, setRoughness, getBrightness, setBrightness, getContrast,
//   setContrast, getKind, setKind, getDefinitionSize, setDefinitionSize,
//   getDefinitionName (const, then mutable), getCurrentConfig, setCurrentConfig,
//   destructor.
#ifndef ZEL_MODEL_OBJECTS_IZELBILLBOARD_H
#define ZEL_MODEL_OBJECTS_IZELBILLBOARD_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "model/objects/IZelString.h"

namespace KeZel {

class IZelObjectInstance;

class ZEL_API IZelBillboard {
public:
    // One name of the billboard in one language.
    class ZEL_API IZelBBName {
    public:
        // Two letters in 16 bits, the first in the high byte ("en" is 25966).
        virtual unsigned short getCode() const = 0;
        virtual void setCode(unsigned short code) = 0;
        virtual const char* getText() const = 0;
        virtual void setText(const char* text) = 0;
        virtual ~IZelBBName() {}
    };

    virtual const TZelObjectMgr<IZelBBName>* getNames() const = 0;
    virtual TZelObjectMgr<IZelBBName>* getNames() = 0;
    // 0 Flat, 1 Uniface, 2 Multifaces.
    virtual int getBehavior() const = 0;
    virtual void setBehavior(int behavior) = 0;
    virtual int getNbFaces() const = 0;
    virtual void setNbFaces(int count) = 0;
    virtual bool isAnimate() const = 0;
    virtual void setAnimate(bool animate) = 0;
    virtual double getScale() const = 0;
    virtual void setScale(double scale) = 0;
    virtual const CZelVector* getNormal() const = 0;
    virtual void setNormal(const CZelVector& normal) = 0;
    virtual ~IZelBillboard() {}
};

class ZEL_API IZelQuad {
public:
    // The three corners, one after the other.
    virtual const CZelVector* getTriangle() const = 0;
    virtual void setTriangle(const CZelVector& corner0, const CZelVector& corner1,
                             const CZelVector& corner2) = 0;
    // -1 on a new quad.
    virtual long long getId() const = 0;
    virtual void setId(long long id) = 0;
    virtual ~IZelQuad() {}
};

class ZEL_API IZelTexture {
public:
    virtual const char* getURL() const = 0;
    virtual void setURL(const char* url) = 0;
    virtual const CZelVector* getOrigin() const = 0;
    virtual void setOrigin(const CZelVector& origin) = 0;
    virtual const CZelVector* getXAxis() const = 0;
    virtual void setXAxis(const CZelVector& axis) = 0;
    virtual const CZelVector* getYAxis() const = 0;
    virtual void setYAxis(const CZelVector& axis) = 0;
    virtual double getWidth() const = 0;
    virtual void setWidth(double width) = 0;
    virtual double getHeight() const = 0;
    virtual void setHeight(double height) = 0;
    // Answers whether the first cut-out colour is used, and copies the colour into `color`
    // unless it is null.
    virtual bool getCutOut1(CZelColor* color) const = 0;
    virtual void setCutOut1(bool used, CZelColor color) = 0;
    // The same for the second cut-out colour.
    virtual bool getCutOut2(CZelColor* color) const = 0;
    virtual void setCutOut2(bool used, CZelColor color) = 0;
    virtual bool isCutSet() const = 0;
    virtual void setCutSet(bool set) = 0;
    virtual ~IZelTexture() {}
};

// The scene's record of one billboard: the billboard, its quads and its texture.
class ZEL_API IZelBBMgrData {
public:
    virtual bool hasBillboard() const = 0;
    virtual const IZelBillboard* getBillboard() const = 0;
    virtual IZelBillboard* getBillboard() = 0;
    virtual const TZelObjectMgr<IZelQuad>* getQuads() const = 0;
    virtual TZelObjectMgr<IZelQuad>* getQuads() = 0;
    virtual unsigned int getProperty() const = 0;
    virtual void setProperty(unsigned int value) = 0;
    virtual const IZelTexture* getTexture() const = 0;
    virtual IZelTexture* getTexture() = 0;
    virtual ~IZelBBMgrData() {}
};

// The delegate of an instance of the class "Billboard".
class ZEL_API IZelBBObjectInstance {
public:
    virtual const IZelObjectInstance* getInstance() const = 0;
    virtual IZelObjectInstance* getInstance() = 0;
    virtual bool isOrientWithCamera() const = 0;
    virtual void setOrientWithCamera(bool orient) = 0;
    virtual bool isVerticalFlip() const = 0;
    virtual void setVerticalFlip(bool flip) = 0;
    virtual bool isHorizontalFlip() const = 0;
    virtual void setHorizontalFlip(bool flip) = 0;
    // 0 Normal, 1 Display.
    virtual int getRenderType() const = 0;
    virtual void setRenderType(int type) = 0;
    virtual double getShininess() const = 0;
    virtual void setShininess(double shininess) = 0;
    virtual double getRoughness() const = 0;
    virtual void setRoughness(double roughness) = 0;
    virtual double getBrightness() const = 0;
    virtual void setBrightness(double brightness) = 0;
    virtual double getContrast() const = 0;
    virtual void setContrast(double contrast) = 0;
    // 0 Flat, 1 Uniface, 2 Multiface.
    virtual int getKind() const = 0;
    virtual void setKind(int kind) = 0;
    virtual double getDefinitionSize() const = 0;
    virtual void setDefinitionSize(double size) = 0;
    virtual const IZelString* getDefinitionName() const = 0;
    virtual IZelString* getDefinitionName() = 0;
    virtual int getCurrentConfig() const = 0;
    virtual void setCurrentConfig(int config) = 0;
    virtual ~IZelBBObjectInstance() {}
};

} // namespace KeZel

#endif
