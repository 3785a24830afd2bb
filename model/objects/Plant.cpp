#include "model/objects/Plant.h"

#include "codec/ObjectCodec.h"
#include "foundation/Platform.h"
#include "frame/CZEL.h"

namespace KeZel {

int ZelCurrentYear(int fallback) {
    Kestra::Platform::LocalTime now;
    return Kestra::Platform::Now(now) ? now.year : fallback;
}

namespace {

// 0:00 of a day of this year.
void SetDay(CTime& time, int month, int day) {
    time.setMonth(month);
    time.setDay(day);
    time.setHour(0);
    time.setMinute(0);
    time.setYear(ZelCurrentYear(time.getYear()));
}

} // namespace

CPlantSetUp::CPlantSetUp(CPlantSetUpList*) : mColor(-1), mId(NewZelUUID()) {
    SetDay(mStart, 1, 1);
    SetDay(mEnd, 1, 1);
}

C3DPlant::C3DPlant(CZelZelObjectDefinition* definition)
    : mDefinition(definition), mPlantType(0), mSetups(this) {
    ZelReadDelegateData(definition->getZel(),
                        [&](const CZelXMLIO& io) { ZelGetPlantData(io, definition->objectData(), *this); });
}

void C3DPlant::updateObjectData() {
    CZelXMLIO io(getZel());
    ZelPutPlantData(io, mDefinition->objectData(), *this);
}

C3DPlantRef::C3DPlantRef(CZelObjectInstance* instance)
    : CZelZelObjectInstance(instance), mHeliodonAttached(true), mColor(-1) {
    SetDay(mTime, 8, 1);
    ZelReadDelegateData(instance->getZel(), [&](const CZelXMLIO& io) {
        ZelGetPlantRefData(io, instance->instanceData(), *this);
    });
}

void C3DPlantRef::updateInstanceData() {
    CZelZelObjectInstance::updateInstanceData();
    CZelXMLIO io(mInstance->getZel());
    ZelPutPlantRefData(io, mInstance->instanceData(), *this);
}

} // namespace KeZel
