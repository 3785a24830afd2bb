// Lights, their lens flare, and the groups that gather them by identity.
//
// The scene keeps its lights in a CLightList and its groups in a CLightsGroupList; both
// lists hand each new item their manager, which every light needs (its default position
// follows the client's axis convention).
#pragma once

#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/light/IZelLight.h"

#include <string>

namespace KeZel {

class CZEL;

class CZelLensFlare : public TZelFrontier<IZelLensFlare> {
public:
    CZelLensFlare() : mUsed(false), mType(eLensFlare1), mSize(1.0), mIntensity(1.0) {}

    bool isUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    int getType() const override { return mType; }
    void setType(int type) override { mType = type; }
    double getSize() const override { return mSize; }
    void setSize(double size) override { mSize = size; }
    double getIntensity() const override { return mIntensity; }
    void setIntensity(double intensity) override { mIntensity = intensity; }

private:
    bool mUsed;
    int mType;
    double mSize;
    double mIntensity;
};

// The profile that stands for no particular distribution of a light's emission.
CZelUUID ZelDefaultIES();

class CLight;
typedef TObjectMgr<CLight, CZelLight> CLightList;

class CLight : public TZelFrontier<CZelLight> {
public:
    // The groups of a light: bare identities.
    typedef TObjectMgr<CZelUUIDX, CZelUUID, CLight> CGroupIds;

    // `zel` must not be null. Raises "Can't create UUID" when no identity can be made.
    explicit CLight(CZEL* zel);
    // Made by a list of lights, which knows the manager.
    template <class Owner>
    explicit CLight(TObjectMgr<CLight, CZelLight, Owner>* list) : CLight(list ? list->getZel() : nullptr) {}

    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    int getType() const override { return mType; }
    void setType(int type) override { mType = type; }
    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    CZelColor getColor() const override { return mColor; }
    void setColor(CZelColor color) override { mColor = color; }
    double getPower() const override { return mPower; }
    void setPower(double power) override;
    double getDistanceNear() const override { return mDistanceNear; }
    void setDistanceNear(double distance) override { mDistanceNear = distance; }
    double getDistanceFar() const override { return mDistanceFar; }
    void setDistanceFar(double distance) override { mDistanceFar = distance; }
    const CZelVector* getPosition() const override { return &mPosition; }
    void setPosition(const CZelVector& position) override { mPosition = position; }
    const CZelVector* getTarget() const override { return &mTarget; }
    void setTarget(const CZelVector& target) override { mTarget = target; }
    double getConeAngle() const override { return mConeAngle; }
    void setConeAngle(double angle) override;
    double getSharpness() const override { return mSharpness; }
    void setSharpness(double sharpness) override;
    int getShadowType() const override { return mShadowType; }
    void setShadowType(int type) override { mShadowType = type; }
    double getShadowPower() const override { return mShadowPower; }
    void setShadowPower(double power) override;
    int getMapSize() const override { return mMapSize; }
    void setMapSize(int size) override;
    double getBias() const override { return mBias; }
    void setBias(double bias) override;
    bool isGlobalIllumination() const override { return mGlobalIllumination; }
    void setGlobalIllumination(bool on) override { mGlobalIllumination = on; }
    double getGlobalIlluminationPower() const override { return mGlobalIlluminationPower; }
    void setGlobalIlluminationPower(double power) override { mGlobalIlluminationPower = power; }
    int getGlobalIlluminationQuality() const override { return mGlobalIlluminationQuality; }
    void setGlobalIlluminationQuality(int quality) override { mGlobalIlluminationQuality = quality; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Light child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    bool isLocked() const override { return mLocked; }
    void setLocked(bool locked) override { mLocked = locked; }
    int getUIValue() const override { return mUIValue; }
    void setUIValue(int value) override { mUIValue = value; }
    TZelObjectMgr<CZelUUID>* getLightsGroups() override { return &mGroups; }
    const TZelObjectMgr<CZelUUID>* getLightsGroups() const override { return &mGroups; }
    IZelLensFlare* getLensFlare() override { return &mLensFlare; }
    const IZelLensFlare* getLensFlare() const override { return &mLensFlare; }
    bool isRadiosity() const override { return mRadiosity; }
    void setRadiosity(bool on) override { mRadiosity = on; }
    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    int getTargetType() const override { return mTargetType; }
    void setTargetType(int type) override;
    const CZelUUID* getObjectId() const override { return &mObjectId; }
    void setObjectId(const CZelUUID& id) override { mObjectId = id; }
    void getIES(CZelUUID* ies) const override;
    void setIES(const CZelUUID& ies) override { mIES = ies; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CGroupIds& groups() { return mGroups; }
    const CGroupIds& groups() const { return mGroups; }
    CZelLensFlare& lensFlare() { return mLensFlare; }
    const CZelLensFlare& lensFlare() const { return mLensFlare; }
    const CZelUUID& ies() const { return mIES; }

private:
    CZEL* mZel;
    std::string mName;
    int mType;
    bool mActive;
    CZelColor mColor;
    double mPower;
    double mDistanceNear;
    double mDistanceFar;
    CZelVector mPosition;
    CZelVector mTarget;
    double mConeAngle;
    double mSharpness;
    int mShadowType;
    double mShadowPower;
    int mMapSize;
    double mBias;
    bool mGlobalIllumination;
    double mGlobalIlluminationPower;
    int mGlobalIlluminationQuality;
    bool mLocked;
    int mUIValue;
    CGroupIds mGroups;
    CZelLensFlare mLensFlare;
    bool mRadiosity;
    CZelUUID mUUID;
    int mTargetType;
    CZelUUID mObjectId;
    CZelUUID mIES;
};

class CZelLightsGroup;
typedef TObjectMgr<CZelLightsGroup, IZelLightsGroup> CLightsGroupList;

class CZelLightsGroup : public TZelFrontier<IZelLightsGroup> {
public:
    // A group has a fresh identity; raises "Can't create UUID" when none can be made.
    explicit CZelLightsGroup(CZEL* zel);
    explicit CZelLightsGroup(CLightsGroupList* list) : CZelLightsGroup(list ? list->getZel() : nullptr) {}

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Lights.Group child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const CZelUUID* getID() const override { return &mID; }
    void setID(const CZelUUID& id) override { mID = id; }
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    int getUIValue() const override { return mUIValue; }
    void setUIValue(int value) override { mUIValue = value; }

    CZEL* getZel() const { return mZel; }

private:
    CZEL* mZel;
    CZelUUID mID;
    std::string mName;
    int mUIValue;
};

} // namespace KeZel
