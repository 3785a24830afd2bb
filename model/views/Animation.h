// Camera paths, the older kind of animation: an animation (CZelAnimation) is a named
// collection of paths (CAnimation) with its output options; a path is a curve of points
// with keys (CCamKey) that say how the camera moves along it.
#pragma once

#include "frame/ObjectLists.h"
#include "model/views/IZelAnimation.h"
#include "model/views/RenderingOpt.h"
#include "model/views/ViewInfo.h"

#include <string>

namespace KeZel {

class CZEL;
class CZelAnimation;
class CAnimation;
typedef TObjectMgr<CZelAnimation, IZelAnimation> CAnimationList;
typedef TObjectMgr<CAnimation, IZelCameraPath, CZelAnimation> CCameraPathList;

// A key on a path. Its clips are silent.
class CCamKey : public TZelFrontier<CZelCamKey> {
public:
    CCamKey()
        : mPitch(0.0), mFocal(0.0), mKeyType(0), mFadingDuration(0), mFadingNbImages(0),
          mHorizontalAngle(0.0), mVerticalAngle(0.0), mAnticipation(0.0), mBezierSection(0), mBezierT(0.0),
          mBezierTransition(0), mBezierTransitionT(0.0), mTarget() {}

    double getPitch() const override { return mPitch; }
    void setPitch(double pitch) override;
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override { mFocal = focal; }
    int getKeyType() const override { return mKeyType; }
    void setKeyType(int type) override { mKeyType = type; }
    int getFadingDuration() const override { return mFadingDuration; }
    void setFadingDuration(int duration) override { mFadingDuration = duration; }
    int getFadingNbImages() const override { return mFadingNbImages; }
    void setFadingNbImages(int count) override { mFadingNbImages = count; }
    double getHorizontalAngle() const override { return mHorizontalAngle; }
    void setHorizontalAngle(double angle) override { mHorizontalAngle = angle; }
    double getVerticalAngle() const override { return mVerticalAngle; }
    void setVerticalAngle(double angle) override { mVerticalAngle = angle; }
    double getAnticipation() const override { return mAnticipation; }
    void setAnticipation(double anticipation) override;
    int getBezierSection() const override { return mBezierSection; }
    void setBezierSection(int section) override { mBezierSection = section < 0 ? 0 : section; }
    double getBezierT() const override { return mBezierT; }
    void setBezierT(double t) override;
    int getBezierTransition() const override { return mBezierTransition; }
    void setBezierTransition(int transition) override { mBezierTransition = transition < 0 ? 0 : transition; }
    double getBezierTransitionT() const override { return mBezierTransitionT; }
    void setBezierTransitionT(double t) override;
    const CZelVector* getTarget() const override { return &mTarget; }
    void setTarget(const CZelVector& target) override { mTarget = target; }

private:
    double mPitch;
    double mFocal;
    int mKeyType;
    int mFadingDuration;
    int mFadingNbImages;
    double mHorizontalAngle;
    double mVerticalAngle;
    double mAnticipation;
    int mBezierSection;
    double mBezierT;
    int mBezierTransition;
    double mBezierTransitionT;
    CZelVector mTarget;
};

// A camera path.
class CAnimation : public TZelFrontier<IZelCameraPath> {
public:
    typedef TSimpleMgr<CZelVector, CAnimation> CPointList;
    typedef TObjectMgr<CCamKey, CZelCamKey, CAnimation> CKeyList;

    // Raises "Can't create UUID" when its view info can get no identity.
    explicit CAnimation(CZEL* zel = nullptr);
    explicit CAnimation(CCameraPathList* list);

    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    bool isViewFlag() const override { return mViewFlag; }
    void setViewFlag(bool flag) override { mViewFlag = flag; }
    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getDuration() const override { return mDuration; }
    void setDuration(double duration) override;
    int getNbXImage() const override { return mNbXImage; }
    void setNbXImage(int count) override;
    bool isSpeedOn() const override { return mSpeedOn; }
    void setSpeedOn(bool on) override { mSpeedOn = on; }
    double getSpeed() const override { return mSpeed; }
    void setSpeed(double speed) override { mSpeed = speed; }
    bool isPathClosed() const override { return mPathClosed; }
    void setPathClosed(bool closed) override { mPathClosed = closed; }
    const TZelObjectMgr<CZelVector>* getPoints() const override { return &mPoints; }
    TZelObjectMgr<CZelVector>* getPoints() override { return &mPoints; }
    const TZelObjectMgr<CZelCamKey>* getKeys() const override { return &mKeys; }
    TZelObjectMgr<CZelCamKey>* getKeys() override { return &mKeys; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Camera.Path.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const IZelViewInfo* getViewInfo() const override { return &mViewInfo; }
    IZelViewInfo* getViewInfo() override { return &mViewInfo; }
    double getCurrentTime() const override { return mCurrentTime; }
    void setCurrentTime(double time) override { mCurrentTime = time; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CPointList& points() { return mPoints; }
    const CPointList& points() const { return mPoints; }
    CKeyList& keys() { return mKeys; }
    const CKeyList& keys() const { return mKeys; }
    CZelViewInfo& viewInfo() { return mViewInfo; }
    const CZelViewInfo& viewInfo() const { return mViewInfo; }

private:
    CZEL* mZel;
    std::string mName;
    bool mViewFlag;
    bool mActive;
    double mDuration;
    int mNbXImage;
    bool mSpeedOn;
    double mSpeed;
    bool mPathClosed;
    CPointList mPoints;
    CKeyList mKeys;
    CZelViewInfo mViewInfo;
    double mCurrentTime;
};

class CZelAnimation : public TZelFrontier<IZelAnimation> {
public:
    explicit CZelAnimation(CZEL* zel = nullptr);
    explicit CZelAnimation(CAnimationList* list) : CZelAnimation(list ? list->getZel() : nullptr) {}

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Animation.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    const TZelObjectMgr<IZelCameraPath>* getCameraPaths() const override { return &mPaths; }
    TZelObjectMgr<IZelCameraPath>* getCameraPaths() override { return &mPaths; }
    int getCurrentPath() const override { return mCurrentPath; }
    void setCurrentPath(int index) override;
    const IZelViewOpt* getViewOpt() const override { return &mViewOpt; }
    IZelViewOpt* getViewOpt() override { return &mViewOpt; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CCameraPathList& paths() { return mPaths; }
    const CCameraPathList& paths() const { return mPaths; }
    CAnimRenderingOpt& viewOpt() { return mViewOpt; }
    const CAnimRenderingOpt& viewOpt() const { return mViewOpt; }

private:
    CZEL* mZel;
    std::string mName;
    CCameraPathList mPaths;
    CAnimRenderingOpt mViewOpt;
    int mCurrentPath;
};

} // namespace KeZel
