// What lies behind and in front of the scene: the backdrop of the scene and of each view
// (CBackground), the picture layers of an environment, environments and grounds.
#pragma once

#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/geometry/Property.h"
#include "model/light/IZelBackground.h"
#include "model/light/Sky.h"

#include <string>

namespace KeZel {

class CZEL;

class CBackground : public TZelFrontier<CZelBackground> {
public:
    // A white-to-blue gradient. Raises "Can't create UUID" when no identity can be made.
    explicit CBackground(CZEL* zel = nullptr);

    int getType() const override;
    void setType(int type) override;
    CZelColor getColor() const override { return mColor; }
    void setColor(CZelColor color) override { mColor = color; }
    CZelColor getSecondColor() const override { return mSecondColor; }
    void setSecondColor(CZelColor color) override { mSecondColor = color; }
    const CZelVector* getUpDirection() const override { return &mUpDirection; }
    void setUpDirection(const CZelVector& direction) override { mUpDirection = direction; }
    double getLinePower() const override { return mLinePower; }
    void setLinePower(double power) override;
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url ? url : ""; }
    double getOriginObsolete() const override { return mOriginObsolete; }
    void setOriginObsolete(double origin) override { mOriginObsolete = origin; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Backgroung, the old name, or else its Background.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    int getImageType() const override { return mImageType; }
    void setImageType(int type) override { mImageType = type; }
    int getColorType() const override { return mColorType; }
    void setColorType(int type) override { mColorType = type; }
    bool isUseDefault() const override { return mUseDefault; }
    void setUseDefault(bool useDefault) override { mUseDefault = useDefault; }
    double getOrigin() const override { return mOrigin; }
    void setOrigin(double origin) override { mOrigin = origin; }
    double getDirectionAngle() const override { return mDirectionAngle; }
    void setDirectionAngle(double angle) override { mDirectionAngle = angle; }
    const CZelUUID* getId() const override { return &mId; }
    void setId(const CZelUUID& id) override { mId = id; }

    CZEL* getZel() const { return mZel; }
    void setZel(CZEL* zel) { mZel = zel; }

private:
    CZEL* mZel;
    CZelColor mColor;
    CZelColor mSecondColor;
    CZelVector mUpDirection;
    double mLinePower;
    std::string mURL;
    double mOriginObsolete;
    int mImageType;
    int mColorType;
    bool mUseDefault;
    double mOrigin;
    double mDirectionAngle;
    CZelUUID mId;
};

class CZelBackgroundPicture : public TZelFrontier<IZelBackgroundPicture> {
public:
    explicit CZelBackgroundPicture(CZEL* zel = nullptr)
        : mZel(zel), mType(eBackgroundPictureNone), m3D(false), mFirstColor(ZelRGB(255, 255, 255)),
          mSecondColor(ZelRGB(255, 255, 255)), mThirdColor(ZelRGB(255, 255, 255)), mHOffset(0.0),
          mVOffset(0.0) {}

    int getType() const override { return mType; }
    void setType(int type) override { mType = type; }
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url ? url : ""; }
    bool is3D() const override { return m3D; }
    void set3D(bool on) override { m3D = on; }
    CZelColor getFirstColor() const override { return mFirstColor; }
    void setFirstColor(CZelColor color) override { mFirstColor = color; }
    CZelColor getSecondColor() const override { return mSecondColor; }
    void setSecondColor(CZelColor color) override { mSecondColor = color; }
    CZelColor getThirdColor() const override { return mThirdColor; }
    void setThirdColor(CZelColor color) override { mThirdColor = color; }
    double getHOffset() const override { return mHOffset; }
    void setHOffset(double offset) override { mHOffset = offset; }
    double getVOffset() const override { return mVOffset; }
    void setVOffset(double offset) override { mVOffset = offset; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Background.Picture.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

    void setZel(CZEL* zel) { mZel = zel; }

private:
    CZEL* mZel;
    int mType;
    std::string mURL;
    bool m3D;
    CZelColor mFirstColor;
    CZelColor mSecondColor;
    CZelColor mThirdColor;
    double mHOffset;
    double mVOffset;
};

class CZelForeground : public TZelFrontier<IZelForeground> {
public:
    explicit CZelForeground(CZEL* zel = nullptr) : mZel(zel), mPositionX(0), mPositionY(0), mId() {}

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Foregroung.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url ? url : ""; }
    int getPositionX() const override { return mPositionX; }
    void setPositionX(int x) override { mPositionX = x; }
    int getPositionY() const override { return mPositionY; }
    void setPositionY(int y) override { mPositionY = y; }
    const CZelUUID* getId() const override { return &mId; }
    void setId(const CZelUUID& id) override { mId = id; }

    void setZel(CZEL* zel) { mZel = zel; }

private:
    CZEL* mZel;
    std::string mURL;
    int mPositionX;
    int mPositionY;
    CZelUUID mId;
};

class CZelEnvironment;
typedef TObjectMgr<CZelEnvironment, IZelEnvironment> CEnvironmentList;

class CZelEnvironment : public TZelFrontier<IZelEnvironment> {
public:
    // Raises "Can't create UUID" when no identity can be made.
    explicit CZelEnvironment(CZEL* zel);
    explicit CZelEnvironment(CEnvironmentList* list) : CZelEnvironment(list ? list->getZel() : nullptr) {}

    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    IZelClouds* getClouds() override { return &mClouds; }
    const IZelClouds* getClouds() const override { return &mClouds; }
    IZelFog* getFog() override { return &mFog; }
    const IZelFog* getFog() const override { return &mFog; }
    IZelBackgroundPicture* getBackgroundPicture() override { return &mBackgroundPicture; }
    const IZelBackgroundPicture* getBackgroundPicture() const override { return &mBackgroundPicture; }
    IZelForeground* getForeground() override { return &mForeground; }
    const IZelForeground* getForeground() const override { return &mForeground; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Environment.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

    CZEL* getZel() const { return mZel; }
    CZelClouds& clouds() { return mClouds; }
    const CZelClouds& clouds() const { return mClouds; }
    CZelFog& fog() { return mFog; }
    const CZelFog& fog() const { return mFog; }
    CZelBackgroundPicture& backgroundPicture() { return mBackgroundPicture; }
    const CZelBackgroundPicture& backgroundPicture() const { return mBackgroundPicture; }
    CZelForeground& foreground() { return mForeground; }
    const CZelForeground& foreground() const { return mForeground; }

private:
    CZEL* mZel;
    CZelUUID mUUID;
    std::string mName;
    CZelClouds mClouds;
    CZelFog mFog;
    CZelBackgroundPicture mBackgroundPicture;
    CZelForeground mForeground;
};

class CZelGround;
typedef TObjectMgr<CZelGround, IZelGround> CGroundList;

class CZelGround : public TZelFrontier<IZelGround> {
public:
    // Off, 10 below the origin, with a material of its own named "Ground Material Name".
    // Raises "Can't create UUID" when no identity can be made.
    explicit CZelGround(CZEL* zel);
    explicit CZelGround(CGroundList* list) : CZelGround(list ? list->getZel() : nullptr) {}

    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    const CZelUUID* getId() const override { return &mId; }
    void setId(const CZelUUID& id) override { mId = id; }
    double getHeight() const override { return mHeight; }
    void setHeight(double height) override { mHeight = height; }
    CZelProperty* getProperty() override { return &mProperty; }
    const CZelProperty* getProperty() const override { return &mProperty; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Ground.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

    CZEL* getZel() const { return mZel; }
    CProperty& property() { return mProperty; }
    const CProperty& property() const { return mProperty; }

private:
    CZEL* mZel;
    bool mActive;
    CZelUUID mId;
    double mHeight;
    CProperty mProperty;
};

} // namespace KeZel
