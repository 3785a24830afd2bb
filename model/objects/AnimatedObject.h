// Animated objects: the delegate of an "AnimatedObject" definition (an external animation
// file and its takes, in Object.Data) and that of its instances (the take and frames
// chosen, and overloaded materials, in Instance.Data).
#pragma once

#include "frame/ObjectLists.h"
#include "model/geometry/Property.h"
#include "model/objects/IZelAnimatedObject.h"
#include "model/objects/ObjectDefinition.h"
#include "model/objects/ObjectInstance.h"
#include "model/objects/ZelString.h"

namespace KeZel {

class CZelAnimatedObject;
class CZelTake;

typedef TObjectMgr<CZelTake, IZelAnimatedObject::IZelTake, CZelAnimatedObject> CTakeList;

class CZelTake : public TZelFrontier<IZelAnimatedObject::IZelTake> {
public:
    explicit CZelTake(CTakeList* list);

    int getDuration() const override { return mDuration; }
    void setDuration(int duration) override { mDuration = duration; }
    int getFPS() const override { return mFPS; }
    void setFPS(int fps) override { mFPS = fps; }
    const IZelString* getName() const override { return &mName; }
    IZelString* getName() override { return &mName; }
    double getZMin() const override { return mZMin; }
    void setZMin(double z) override { mZMin = z; }
    int getType() const override { return mType; }
    void setType(int type) override { mType = type; }
    double getZAngle() const override { return mZAngle; }
    void setZAngle(double angle) override { mZAngle = angle; }

    CZelString& name() { return mName; }
    const CZelString& name() const { return mName; }

private:
    int mDuration;
    int mFPS;
    CZelString mName;
    double mZMin;
    int mType;
    double mZAngle;
};

class CZelAnimatedObject : public TZelFrontier<IZelAnimatedObject>,
                           public CZelZelObjectDefinition::IDelegate {
public:
    // Reads External.File.Type, Index and Takes from the definition's Object.Data.
    explicit CZelAnimatedObject(CZelZelObjectDefinition* definition);

    // The text of External.File in Object.Data, empty without it.
    const char* getExternalFile() const override;
    void setExternalFile(const char* file) override;
    int getExternalFileType() const override { return mExternalFileType; }
    void setExternalFileType(int type) override { mExternalFileType = type; }
    int getIndex() const override { return mIndex; }
    void setIndex(int index) override { mIndex = index; }
    const TZelObjectMgr<IZelTake>* getTakes() const override { return &mTakes; }
    TZelObjectMgr<IZelTake>* getTakes() override { return &mTakes; }
    void updateObjectData() override;

    CZEL* getZel() const { return mDefinition->getZel(); }
    CTakeList& takes() { return mTakes; }
    const CTakeList& takes() const { return mTakes; }

private:
    CZelZelObjectDefinition* mDefinition;
    int mExternalFileType;
    int mIndex;
    CTakeList mTakes;
};

class CZelAnimatedObjectInstance : public CZelZelObjectInstance,
                                   public TZelFrontier<IZelAnimatedObjectInstance> {
public:
    explicit CZelAnimatedObjectInstance(CZelObjectInstance* instance);

    const IZelObjectInstance* getInstance() const override { return mInstance; }
    IZelObjectInstance* getInstance() override { return mInstance; }
    int getCurrentFrame() const override { return mCurrentFrame; }
    void setCurrentFrame(int frame) override { mCurrentFrame = frame; }
    int getCurrentTake() const override { return mCurrentTake; }
    void setCurrentTake(int take) override { mCurrentTake = take; }
    int getRealDuration() const override { return mRealDuration; }
    void setRealDuration(int duration) override { mRealDuration = duration; }
    int getStartFrame() const override { return mStartFrame; }
    void setStartFrame(int frame) override { mStartFrame = frame; }
    const TZelObjectMgr<CZelProperty>* getOverloadedProperties() const override { return &mOverloaded; }
    TZelObjectMgr<CZelProperty>* getOverloadedProperties() override { return &mOverloaded; }
    void updateInstanceData() override;

    CPropertyList& overloaded() { return mOverloaded; }
    const CPropertyList& overloaded() const { return mOverloaded; }

private:
    int mCurrentFrame;
    int mCurrentTake;
    int mRealDuration;
    int mStartFrame;
    CPropertyList mOverloaded;
};

} // namespace KeZel
