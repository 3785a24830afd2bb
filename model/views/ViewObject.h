// View objects: a turntable of views around a centre, the camera standing on a sphere and
// stepping through horizontal and vertical angles.
#pragma once

#include "frame/ObjectLists.h"
#include "model/views/IZelViewObject.h"
#include "model/views/RenderingOpt.h"
#include "model/views/ViewInfo.h"

#include <string>

namespace KeZel {

class CViewObject;
typedef TObjectMgr<CViewObject, CZelViewObject> CViewObjectList;

// All clips are silent and don't depend on a manager.
class CViewObject : public TZelFrontier<CZelViewObject> {
public:
    // Raises "Can't create UUID" when its view info can get no identity.
    explicit CViewObject(CZEL* zel = nullptr);
    explicit CViewObject(CViewObjectList* list) : CViewObject(list ? list->getZel() : nullptr) {}

    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    int getViewFlags() const override { return mViewFlags; }
    void setViewFlags(int flags) override { mViewFlags = flags; }
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override;
    const CZelVector* getCenter() const override { return &mCenter; }
    void setCenter(const CZelVector& center) override { mCenter = center; }
    double getRadius() const override { return mRadius; }
    void setRadius(double radius) override { mRadius = radius < 0.0 ? 0.0 : radius; }
    int getHorizontalAngle() const override { return mHorizontalAngle; }
    void setHorizontalAngle(int angle) override;
    int getVerticalAngle() const override { return mVerticalAngle; }
    void setVerticalAngle(int angle) override;
    int getHorizontalStep() const override { return mHorizontalStep; }
    void setHorizontalStep(int step) override { mHorizontalStep = step; }
    int getVerticalStep() const override { return mVerticalStep; }
    void setVerticalStep(int step) override { mVerticalStep = step; }
    int getHorizontalShift() const override { return mHorizontalShift; }
    void setHorizontalShift(int shift) override { mHorizontalShift = shift; }
    int getVerticalShift() const override { return mVerticalShift; }
    void setVerticalShift(int shift) override { mVerticalShift = shift; }
    double getHorizontalStart() const override { return mHorizontalStart; }
    void setHorizontalStart(double start) override { mHorizontalStart = start; }
    double getVerticalStart() const override { return mVerticalStart; }
    void setVerticalStart(double start) override { mVerticalStart = start; }
    int getOriginAngle() const override { return mOriginAngle; }
    void setOriginAngle(int angle) override { mOriginAngle = angle; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's View.Object.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const IZelViewInfo* getViewInfo() const override { return &mViewInfo; }
    IZelViewInfo* getViewInfo() override { return &mViewInfo; }
    const IZelViewOpt* getViewOpt() const override { return &mViewOpt; }
    IZelViewOpt* getViewOpt() override { return &mViewOpt; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CZelViewInfo& viewInfo() { return mViewInfo; }
    const CZelViewInfo& viewInfo() const { return mViewInfo; }
    CAnimRenderingOpt& viewOpt() { return mViewOpt; }
    const CAnimRenderingOpt& viewOpt() const { return mViewOpt; }

private:
    CZEL* mZel;
    std::string mName;
    int mViewFlags;
    double mFocal;
    CZelVector mCenter;
    double mRadius;
    int mHorizontalAngle;
    int mVerticalAngle;
    int mHorizontalStep;
    int mVerticalStep;
    int mHorizontalShift;
    int mVerticalShift;
    double mHorizontalStart;
    double mVerticalStart;
    int mOriginAngle;
    CZelViewInfo mViewInfo;
    CAnimRenderingOpt mViewOpt;
};

} // namespace KeZel
