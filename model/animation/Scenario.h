// Scenarios: timed animations of the scene, with their sequences (shots, each a moving
// camera with a whole view of its own), animated elements, sounds and time guides. The
// library stores them; the host plays them.
#pragma once

#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/animation/IZelScenario.h"
#include "model/animation/KeyFrame.h"
#include "model/views/RenderingOpt.h"
#include "model/views/ViewInfo.h"

#include <string>

namespace KeZel {

class CZEL;
class CZelScenario;
class CZelSequence;
class CZelSnd;
class CZelScenarioTimeGuide;

typedef TObjectMgr<CZelSequence, IZelSequence, CZelScenario> CSequenceList;
typedef TObjectMgr<CZelAnimatedElement, IZelAnimatedElement, CZelScenario> CAnimatedElementList;
typedef TObjectMgr<CZelSnd, IZelSnd, CZelScenario> CSndList;
typedef TObjectMgr<CZelScenarioTimeGuide, IZelScenarioTimeGuide, CZelScenario> CTimeGuideList;
typedef TObjectMgr<CZelScenario, IZelScenario> CScenarioList;

class CZelScenarioTimeGuide : public TZelFrontier<IZelScenarioTimeGuide> {
public:
    CZelScenarioTimeGuide() : mTime(0) {}

    int getTime() const override { return mTime; }
    void setTime(int time) override { mTime = time; }

private:
    int mTime;
};

class CZelSnd : public TZelFrontier<IZelSnd> {
public:
    CZelSnd() : mUUID(), mStartFrame(0) {}

    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url ? url : ""; }
    int getStartFrame() const override { return mStartFrame; }
    void setStartFrame(int frame) override { mStartFrame = frame; }

private:
    CZelUUID mUUID;
    std::string mURL;
    int mStartFrame;
};

class CZelSequence : public TZelFrontier<IZelSequence> {
public:
    // The list must reach a manager (a failed pointer assertion otherwise). A fresh
    // identity ("Can't create UUID"); the camera stands as a new perspective view's does.
    explicit CZelSequence(CSequenceList* list);

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Sequence child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    int getStartFrame() const override { return mStartFrame; }
    void setStartFrame(int frame) override { mStartFrame = frame; }
    int getEndFrame() const override { return mEndFrame; }
    void setEndFrame(int frame) override { mEndFrame = frame; }
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    const CZelVector* getPosition() const override { return &mPosition; }
    void setPosition(const CZelVector& position) override { mPosition = position; }
    int getTargetType() const override { return mTargetType; }
    void setTargetType(int type) override;
    const CZelVector* getTarget() const override { return &mTarget; }
    void setTarget(const CZelVector& target) override { mTarget = target; }
    double getTargetDistance() const override { return mTargetDistance; }
    void setTargetDistance(double distance) override { mTargetDistance = distance; }
    double getHorizontalAngle() const override { return mHorizontalAngle; }
    void setHorizontalAngle(double angle) override { mHorizontalAngle = angle; }
    double getVerticalAngle() const override { return mVerticalAngle; }
    void setVerticalAngle(double angle) override { mVerticalAngle = angle; }
    const CZelVector* getCurrentPathTangent() const override { return &mPathTangent; }
    void setCurrentPathTangent(const CZelVector& tangent) override { mPathTangent = tangent; }
    int isCurrent() const override { return mViewFlags & 1; }
    void setCurrent() override;
    int isFlagged() const override { return (mViewFlags >> 1) & 1; }
    void setFlagged(bool flagged) override;
    int getViewFlags() const override { return mViewFlags; }
    void setViewFlags(int flags) override { mViewFlags = flags; }
    double getRoll() const override { return mRoll; }
    void setRoll(double roll) override { mRoll = roll; }
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override;
    const IZelViewInfo* getViewInfo() const override { return &mViewInfo; }
    IZelViewInfo* getViewInfo() override { return &mViewInfo; }
    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    const IZelViewOpt* getViewOpt() const override { return &mViewOpt; }
    IZelViewOpt* getViewOpt() override { return &mViewOpt; }
    const CZelUUID* getObjectUUID() const override { return &mObjectUUID; }
    void setObjectUUID(const CZelUUID& uuid) override { mObjectUUID = uuid; }

    CZEL* getZel() const { return mZel; }
    CZelViewInfo& viewInfo() { return mViewInfo; }
    const CZelViewInfo& viewInfo() const { return mViewInfo; }
    CAnimRenderingOpt& viewOpt() { return mViewOpt; }
    const CAnimRenderingOpt& viewOpt() const { return mViewOpt; }

private:
    CSequenceList* mOwner;
    CZEL* mZel;
    int mStartFrame;
    int mEndFrame;
    std::string mName;
    CZelVector mPosition;
    CZelVector mTarget;
    int mViewFlags;
    double mRoll;
    double mFocal;
    CZelViewInfo mViewInfo;
    CZelUUID mUUID;
    int mTargetType;
    double mTargetDistance;
    double mHorizontalAngle;
    double mVerticalAngle;
    CZelVector mPathTangent;
    CAnimRenderingOpt mViewOpt;
    CZelUUID mObjectUUID;
};

class CZelScenario : public TZelFrontier<IZelScenario> {
public:
    // 25 frames a second over a time line of 500 frames, all of it visible.
    explicit CZelScenario(CZEL* zel);
    explicit CZelScenario(CScenarioList* list);

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Scenario child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    const TZelObjectMgr<IZelSequence>* getSequences() const override { return &mSequences; }
    TZelObjectMgr<IZelSequence>* getSequences() override { return &mSequences; }
    const TZelObjectMgr<IZelAnimatedElement>* getAnimatedElements() const override { return &mElements; }
    TZelObjectMgr<IZelAnimatedElement>* getAnimatedElements() override { return &mElements; }
    int getCurrentFrame() const override { return mCurrentFrame; }
    void setCurrentFrame(int frame) override { mCurrentFrame = frame; }
    int getCurrentSequence() const override { return mCurrentSequence; }
    void setCurrentSequence(int index) override { mCurrentSequence = index; }
    const TZelObjectMgr<IZelSnd>* getSnds() const override { return &mSnds; }
    TZelObjectMgr<IZelSnd>* getSnds() override { return &mSnds; }
    int getMaxTime() const override { return mMaxTime; }
    void setMaxTime(int frames) override { mMaxTime = frames; }
    int getFPS() const override { return mFPS; }
    void setFPS(int fps) override { mFPS = fps; }
    void setStartVisibleTime(int frame) override { mStartVisibleTime = frame; }
    int getStartVisibleTime() const override { return mStartVisibleTime; }
    void setEndVisibleTime(int frame) override { mEndVisibleTime = frame; }
    int getEndVisibleTime() const override { return mEndVisibleTime; }
    const TZelObjectMgr<IZelScenarioTimeGuide>* getTimeGuides() const override { return &mTimeGuides; }
    TZelObjectMgr<IZelScenarioTimeGuide>* getTimeGuides() override { return &mTimeGuides; }

    CZEL* getZel() const { return mZel; }
    CSequenceList& sequences() { return mSequences; }
    const CSequenceList& sequences() const { return mSequences; }
    CAnimatedElementList& elements() { return mElements; }
    const CAnimatedElementList& elements() const { return mElements; }
    CSndList& snds() { return mSnds; }
    const CSndList& snds() const { return mSnds; }
    CTimeGuideList& timeGuides() { return mTimeGuides; }
    const CTimeGuideList& timeGuides() const { return mTimeGuides; }

private:
    CZEL* mZel;
    CSequenceList mSequences;
    CAnimatedElementList mElements;
    std::string mName;
    int mCurrentFrame;
    int mCurrentSequence;
    int mMaxTime;
    int mFPS;
    CSndList mSnds;
    int mStartVisibleTime;
    int mEndVisibleTime;
    CTimeGuideList mTimeGuides;
};

} // namespace KeZel
