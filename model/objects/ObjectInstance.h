// Object instances: placements of a definition in the scene. A class name picks a delegate
// that keeps what is particular to that kind of instance in the instance's Instance.Data
// element; the delegate reads that element when it is made and writes it back on
// updateInstanceData.
#pragma once

#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/geometry/Property.h"
#include "model/light/Light.h"
#include "model/objects/IZelObjectInstance.h"
#include "xml/XMLTree.h"

#include <memory>
#include <string>

namespace KeZel {

class CZEL;
class CZelObjectInstance;

typedef TObjectMgr<CZelObjectInstance, IZelObjectInstance> CObjectInstanceList;

class CZelObjectInstance : public TZelFrontier<IZelObjectInstance> {
public:
    // What is particular to one class of instance.
    class IDelegate {
    public:
        virtual ~IDelegate() {}
        virtual void updateInstanceData() {}
    };

    // `zel` must not be null.
    explicit CZelObjectInstance(CZEL* zel);
    explicit CZelObjectInstance(CObjectInstanceList* list);
    ~CZelObjectInstance() override;
    CZelObjectInstance(const CZelObjectInstance&) = delete;
    CZelObjectInstance& operator=(const CZelObjectInstance&) = delete;

    // Writes an Object.Instance element under `parent`.
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Object.Instance child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    const char* getClass() const override { return mClass.c_str(); }
    // A null text is taken as an empty one: no delegate.
    void setClass(const char* className) override;
    const CZelUUID* getId() const override { return &mId; }
    void setId(const CZelUUID& id) override { mId = id; }
    const CZelUUID* getAttachId() const override { return &mAttachId; }
    void setAttachId(const CZelUUID& id) override { mAttachId = id; }
    void setTranslation(const CZelVector& translation) override { mTranslation = translation; }
    const CZelVector* getTranslation() const override { return &mTranslation; }
    void setRotation(const CZelVector& rotation) override { mRotation = rotation; }
    const CZelVector* getRotation() const override { return &mRotation; }
    void setScale(const CZelVector& scale) override { mScale = scale; }
    const CZelVector* getScale() const override { return &mScale; }
    const CZelVector* getTriangleCoord() const override { return mTriangle; }
    void setTriangleCoord(const CZelVector& corner0, const CZelVector& corner1,
                          const CZelVector& corner2) override;
    long long getTriangleId() const override { return mTriangleId; }
    void setTriangleId(long long id) override { mTriangleId = id; }
    const CZelVector* getNormal() const override { return &mNormal; }
    void setNormal(const CZelVector& normal) override { mNormal = normal; }
    const CZelVector* getAnchorPosition() const override { return &mAnchorPosition; }
    void setAnchorPosition(const CZelVector& position) override { mAnchorPosition = position; }
    const CZelVector* getUpVector() const override { return &mUpVector; }
    void setUpVector(const CZelVector& up) override { mUpVector = up; }
    int getPlacementProperty() const override { return mPlacement; }
    void setPlacementProperty(int placement) override { mPlacement = placement; }
    double getInitialAngle() const override { return mInitialAngle; }
    void setInitialAngle(double angle) override { mInitialAngle = angle; }
    const CZelVector* getBoundingBox() const override { return mBox; }
    void setBoundingBox(const CZelVector& minimum, const CZelVector& maximum) override;
    bool isCoordinatesLocked() const override { return mCoordinatesLocked; }
    void setCoordinatesLocked(bool locked) override { mCoordinatesLocked = locked; }
    bool isScaleLocked() const override { return mScaleLocked; }
    void setScaleLocked(bool locked) override { mScaleLocked = locked; }
    void updateInstanceData() override;
    const KestraXML::XIXMLElement* getInstanceData() const override;
    KestraXML::XIXMLElement* getInstanceData() override;
    int getUIValue() const override { return mUIValue; }
    void setUIValue(int value) override { mUIValue = value; }
    const IZelZelObjectInstance* getZelObjectInstance() const override;
    IZelZelObjectInstance* getZelObjectInstance() override;
    const IZel3DPlantRef* get3DPlantRef() const override;
    IZel3DPlantRef* get3DPlantRef() override;
    const IZelBBObjectInstance* getBBObjectInstance() const override;
    IZelBBObjectInstance* getBBObjectInstance() override;
    const IZelObjectLightRef* getObjectLightRef() const override;
    IZelObjectLightRef* getObjectLightRef() override;
    const IZelAnimatedObjectInstance* getAnimatedObjectInstance() const override;
    IZelAnimatedObjectInstance* getAnimatedObjectInstance() override;
    const IZelInternalComponentInstance* getInternalComponentInstance() const override;
    IZelInternalComponentInstance* getInternalComponentInstance() override;
    int getAnimationBehavior() const override { return mAnimationBehavior; }
    void setAnimationBehavior(int behavior) override { mAnimationBehavior = behavior; }
    const CZelVector* getCurrentPathDirection() const override { return &mPathDirection; }
    void setCurrentPathDirection(const CZelVector& direction) override { mPathDirection = direction; }
    bool isTarget() const override { return mTarget; }
    void setTarget(bool target) override { mTarget = target; }
    double getTransparency() const override { return mTransparency; }
    void setTransparency(double transparency) override;
    const CZelUUID* getLayerId() const override { return &mLayerId; }
    void setLayerId(const CZelUUID& id) override { mLayerId = id; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    IDelegate* delegate() const { return mDelegate.get(); }
    // Instance.Data, made again if a host took it away.
    KestraXML::XIXMLElement* instanceData();

private:
    CZEL* mZel;
    std::string mName;
    std::string mClass;
    CZelUUID mId;
    CZelUUID mAttachId;
    CZelVector mTranslation;
    CZelVector mRotation;
    CZelVector mScale;
    // The root holds Instance.Data.
    KestraXML::XCXMLTree mData;
    std::unique_ptr<IDelegate> mDelegate;
    CZelVector mNormal;
    long long mTriangleId;
    CZelVector mTriangle[3];
    CZelVector mAnchorPosition;
    CZelVector mUpVector;
    int mPlacement;
    double mInitialAngle;
    // Minimum, maximum; inverted until the host computes it.
    CZelVector mBox[2];
    int mUIValue;
    bool mCoordinatesLocked;
    bool mScaleLocked;
    CZelVector mPathDirection;
    int mAnimationBehavior;
    bool mTarget;
    double mTransparency;
    CZelUUID mLayerId;
};

// The delegate of a "ModelObject" instance: the component it shows and the per-instance
// replacements of the component's properties (Component.UUID and Properties).
class CZelInternalComponentInstance : public TZelFrontier<IZelInternalComponentInstance>,
                                      public CZelObjectInstance::IDelegate {
public:
    explicit CZelInternalComponentInstance(CZelObjectInstance* instance);

    const IZelObjectInstance* getInstance() const override { return mInstance; }
    IZelObjectInstance* getInstance() override { return mInstance; }
    const CZelUUID* getComponentUUID() const override { return &mComponentUUID; }
    void setComponentUUID(const CZelUUID& uuid) override { mComponentUUID = uuid; }
    const TZelObjectMgr<CZelProperty>* getProperties() const override { return &mProperties; }
    TZelObjectMgr<CZelProperty>* getProperties() override { return &mProperties; }
    void updateInstanceData() override;

    CPropertyList& properties() { return mProperties; }

private:
    CZelObjectInstance* mInstance;
    CZelUUID mComponentUUID;
    CPropertyList mProperties;
};

// The delegate of a "ZelObject" instance, an object stored in a file of its own, and the
// base of the plant and animated object instances. Keeps Current.Overload, Properties and
// Lights in Instance.Data, and the URL as the text of Url there.
class CZelZelObjectInstance : public TZelFrontier<IZelZelObjectInstance>,
                              public CZelObjectInstance::IDelegate {
public:
    explicit CZelZelObjectInstance(CZelObjectInstance* instance);

    const IZelObjectInstance* getInstance() const override { return mInstance; }
    IZelObjectInstance* getInstance() override { return mInstance; }
    const char* getUrl() const override;
    void setUrl(const char* url) override;
    const TZelObjectMgr<CZelProperty>* getProperties() const override { return &mProperties; }
    TZelObjectMgr<CZelProperty>* getProperties() override { return &mProperties; }
    const CZelUUID* getCurrentOverload() const override { return &mCurrentOverload; }
    void setCurrentOverload(const CZelUUID& overload) override { mCurrentOverload = overload; }
    const TZelObjectMgr<CZelLight>* getLights() const override { return &mLights; }
    TZelObjectMgr<CZelLight>* getLights() override { return &mLights; }
    void updateInstanceData() override;

    CZelObjectInstance* instance() const { return mInstance; }
    CPropertyList& properties() { return mProperties; }
    CLightList& lights() { return mLights; }

protected:
    CZelObjectInstance* mInstance;
    CZelUUID mCurrentOverload;
    CPropertyList mProperties;
    CLightList mLights;
};

} // namespace KeZel
