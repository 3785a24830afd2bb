// Perspective views. CCamera is the one object behind two public faces: CZelCamera, and
// CZelCameraExObsolete for clients that look for the depth of field on the camera itself
// (it stores nothing of its own: every value is the view info's).
#pragma once

#include "frame/ObjectLists.h"
#include "model/objects/InsertionObject.h"
#include "model/views/IZelCamera.h"
#include "model/views/RenderingOpt.h"
#include "model/views/ViewInfo.h"

#include <string>

namespace KeZel {

class CCamera;
typedef TObjectMgr<CCamera, CZelCamera> CCameraList;

class CCamera : public TZelFrontier<CZelCamera>, public TZelFrontier<CZelCameraExObsolete> {
public:
    // The list gives the manager. Without one the camera is on its own: setFocal then
    // stores anything and its element form answers null / false. Raises "Can't create
    // UUID" when its view info can get no identity.
    explicit CCamera(CCameraList* list = nullptr);

    // ---- CZelCamera
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    const CZelVector* getPosition() const override { return &mPosition; }
    void setPosition(const CZelVector& position) override { mPosition = position; }
    const CZelVector* getTarget() const override { return &mTarget; }
    void setTarget(const CZelVector& target) override { mTarget = target; }
    int isCurrent() const override { return mViewFlags & 1; }
    void setCurrent() override;
    int isFlagged() const override { return (mViewFlags >> 1) & 1; }
    void setFlagged(bool flagged) override;
    double getRoll() const override { return mRoll; }
    void setRoll(double roll) override;
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override;
    const CZelCameraExObsolete* getCameraExObsolete(int clientVersion) const override;
    CZelCameraExObsolete* getCameraExObsolete(int clientVersion) override;
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Perspective.View.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    // Shared by both faces.
    int getViewFlags() const override { return mViewFlags; }
    void setViewFlags(int flags) override { mViewFlags = flags; }
    const IZelViewInfo* getViewInfo() const override { return &mViewInfo; }
    IZelViewInfo* getViewInfo() override { return &mViewInfo; }
    const IZelViewOpt* getViewOpt() const override { return &mViewOpt; }
    IZelViewOpt* getViewOpt() override { return &mViewOpt; }
    const IZelInsertionObject* getInsertionObject() const override { return &mInsertionObject; }
    IZelInsertionObject* getInsertionObject() override { return &mInsertionObject; }
    int getTargetType() const override { return mTargetType; }
    void setTargetType(int type) override { mTargetType = (type == 1) ? 1 : 0; }
    const CZelUUID* getObjectId() const override { return &mObjectId; }
    void setObjectId(const CZelUUID& id) override { mObjectId = id; }

    // ---- CZelCameraExObsolete: the depth of field of the view info.
    const CZelVector* getClearnessPoint() const override {
        return mViewInfo.depthOfField().getClearnessPoint();
    }
    void setClearnessPoint(const CZelVector& point) override {
        mViewInfo.depthOfField().setClearnessPoint(point);
    }
    int getDepthType() const override { return mViewInfo.depthOfField().getType(); }
    void setDepthType(int type) override { mViewInfo.depthOfField().setType(type); }
    double getClearnessDistInv() const override { return mViewInfo.depthOfField().getClearnessDistInv(); }
    void setClearnessDistInv(double value) override { mViewInfo.depthOfField().setClearnessDistInv(value); }
    double getClearnessSizeInv() const override { return mViewInfo.depthOfField().getClearnessSizeInv(); }
    void setClearnessSizeInv(double value) override { mViewInfo.depthOfField().setClearnessSizeInv(value); }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CCameraList* getOwner() const { return mOwner; }
    CZelViewInfo& viewInfo() { return mViewInfo; }
    const CZelViewInfo& viewInfo() const { return mViewInfo; }
    CAnimRenderingOpt& viewOpt() { return mViewOpt; }
    const CAnimRenderingOpt& viewOpt() const { return mViewOpt; }
    CZelInsertionObject& insertionObject() { return mInsertionObject; }
    const CZelInsertionObject& insertionObject() const { return mInsertionObject; }
    // The two vectors that only the legacy stanza fills; no accessor, not in XML.
    CZelVector& up() { return mUp; }
    const CZelVector& up() const { return mUp; }
    CZelVector& secondVector() { return mSecondVector; }
    const CZelVector& secondVector() const { return mSecondVector; }

private:
    CCameraList* mOwner;
    CZEL* mZel;
    std::string mName;
    CZelVector mPosition;
    CZelVector mTarget;
    CZelVector mUp;
    CZelVector mSecondVector;
    int mViewFlags;
    double mRoll;
    double mFocal;
    CZelViewInfo mViewInfo;
    CAnimRenderingOpt mViewOpt;
    CZelInsertionObject mInsertionObject;
    int mTargetType;
    CZelUUID mObjectId;
};

} // namespace KeZel
