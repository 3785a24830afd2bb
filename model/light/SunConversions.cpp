#include "model/light/SunConversions.h"

#include "frame/CZEL.h"

#include <cstring>

namespace KeZel {

void ZelFixSunLight(bool writtenByHost, CHeliodonList& heliodons, CLightList& lights) {
    if (writtenByHost || heliodons.getCount() == 0) return;
    CHeliodon& sun = *heliodons.at(0);
    if (std::strcmp(sun.getName(), "Heliodon") != 0 || sun.isActive()) return;
    for (unsigned int i = 0; i < lights.getCount(); ++i) {
        CLight& light = *lights.at(i);
        if (std::strcmp(light.getName(), "Sun") != 0) continue;
        sun.setActive(true);
        sun.setSunshine(0.6);
        light.setActive(false);
        return;
    }
}

namespace {

// The old study's frequency as today's type, unit and value.
void ConvertFrequency(const COldHeliodonOpt& old, CHeliodonOpt& options) {
    if (!old.isAnimated()) {
        options.setFrequencyType(eFrequencyOneImage);
        options.setFrequencyUnit(eFrequencyFrameRate);
        options.setFrequencyValue(1.0);
        return;
    }
    if (!old.isYearly()) {
        options.setFrequencyType(eFrequencyDaily);
        switch (old.getDailyUnit()) {
        case eOldDailyMinutes:
            options.setFrequencyUnit(eFrequencyMinutes);
            options.setFrequencyValue(old.getXMinutes());
            break;
        case eOldDailyHours:
            options.setFrequencyUnit(eFrequencyHours);
            options.setFrequencyValue(old.getXHours());
            break;
        default:
            options.setFrequencyUnit(eFrequencyFrameRate);
            options.setFrequencyValue(old.getFilmFrameRate());
            break;
        }
        // The old period of a day is in minutes after midnight.
        CTime& start = options.startTime();
        start.setHour(old.getStartTime() / 60);
        start.setMinute(old.getStartTime() % 60);
        CTime& end = options.endTime();
        end.setHour(old.getEndTime() / 60);
        end.setMinute(old.getEndTime() % 60);
        return;
    }
    options.setFrequencyType(eFrequencyYearly);
    switch (old.getYearlyUnit()) {
    case eOldYearlyDays:
        options.setFrequencyUnit(eFrequencyDays);
        options.setFrequencyValue(old.getXDays());
        break;
    case eOldYearlyMonths:
        options.setFrequencyUnit(eFrequencyMonths);
        options.setFrequencyValue(old.getXMonths());
        break;
    default:
        options.setFrequencyUnit(eFrequencyFrameRate);
        options.setFrequencyValue(old.getFilmFrameRate());
        break;
    }
    options.startTime().setDay(old.getStartDay());
    options.startTime().setMonth(old.getStartMonth());
    options.endTime().setDay(old.getEndDay());
    options.endTime().setMonth(old.getEndMonth());
}

} // namespace

void ZelConvertLegacySun(const COldHeliodonOpt* old, CHeliodonList& heliodons, CHeliodonOpt& options) {
    if (!old) return;
    if (heliodons.getCount() == 0) Kestra::XAssertPointer(heliodons.newItem());
    CHeliodon& sun = *heliodons.at(0);
    sun.setSunshine(old->getSunshine());
    sun.setNorthAngle(old->getNorthAngle());
    sun.setActive(old->isActive());
    sun.time().setDate(old->time().toDate());

    if (!old->isNoAnimation()) {
        ConvertFrequency(*old, options);
        double rate = old->getFilmFrameRate();
        if (rate <= 0.00001) rate = 1.0;
        options.setMovieDuration(old->getNbImages() / rate);
    }
    options.rendering().copyValuesFrom(old->rendering());
    options.compression() = old->compression();
}

} // namespace KeZel
