// 3D plants: the delegate of a "3DPlant" definition (a type and setups valid between two
// dates, in Object.Data) and that of its instances (a date or the sun's, and a colour, in
// Instance.Data).
#pragma once

#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/light/Heliodon.h"
#include "model/objects/IZelPlant.h"
#include "model/objects/ObjectDefinition.h"
#include "model/objects/ObjectInstance.h"

namespace KeZel {

class C3DPlant;
class CPlantSetUp;

typedef TObjectMgr<CPlantSetUp, IZel3DPlant::IPlantSetUp, C3DPlant> CPlantSetUpList;

// The year of the local clock; `fallback` when the clock fails.
int ZelCurrentYear(int fallback);

class CPlantSetUp : public TZelFrontier<IZel3DPlant::IPlantSetUp> {
public:
    // Both dates 1 January, 0:00, of this year; no colour; a fresh identity ("Can't create
    // UUID").
    explicit CPlantSetUp(CPlantSetUpList* list);

    CZelTime* getStartTime() override { return &mStart; }
    const CZelTime* getStartTime() const override { return &mStart; }
    CZelTime* getEndTime() override { return &mEnd; }
    const CZelTime* getEndTime() const override { return &mEnd; }
    int getColor() const override { return mColor; }
    void setColor(int color) override { mColor = color; }
    const CZelUUID* getId() const override { return &mId; }
    void setId(const CZelUUID& id) override { mId = id; }

    CTime& start() { return mStart; }
    const CTime& start() const { return mStart; }
    CTime& end() { return mEnd; }
    const CTime& end() const { return mEnd; }

private:
    CTime mStart;
    CTime mEnd;
    int mColor;
    CZelUUID mId;
};

class C3DPlant : public TZelFrontier<IZel3DPlant>, public CZelZelObjectDefinition::IDelegate {
public:
    // Reads Plant.Type and Plant.Setups from the definition's Object.Data.
    explicit C3DPlant(CZelZelObjectDefinition* definition);

    int getPlantType() const override { return mPlantType; }
    void setPlantType(int type) override { mPlantType = type; }
    const TZelObjectMgr<IPlantSetUp>* getSetups() const override { return &mSetups; }
    TZelObjectMgr<IPlantSetUp>* getSetups() override { return &mSetups; }
    void updateObjectData() override;

    CZEL* getZel() const { return mDefinition->getZel(); }
    CPlantSetUpList& setups() { return mSetups; }
    const CPlantSetUpList& setups() const { return mSetups; }

private:
    CZelZelObjectDefinition* mDefinition;
    int mPlantType;
    CPlantSetUpList mSetups;
};

class C3DPlantRef : public CZelZelObjectInstance, public TZelFrontier<IZel3DPlantRef> {
public:
    // Attached to the sun, 1 August, 0:00, of this year, no colour; then reads
    // Instance.Data when it holds a plant's Time.
    explicit C3DPlantRef(CZelObjectInstance* instance);

    const IZelObjectInstance* getInstance() const override { return mInstance; }
    IZelObjectInstance* getInstance() override { return mInstance; }
    bool isHeliodonAttached() const override { return mHeliodonAttached; }
    void setHeliodonAttached(bool attached) override { mHeliodonAttached = attached; }
    CZelTime* getTime() override { return &mTime; }
    const CZelTime* getTime() const override { return &mTime; }
    int getColor() const override { return mColor; }
    void setColor(int color) override { mColor = color; }
    void updateInstanceData() override;

    CTime& time() { return mTime; }
    const CTime& time() const { return mTime; }

private:
    bool mHeliodonAttached;
    CTime mTime;
    int mColor;
};

} // namespace KeZel
