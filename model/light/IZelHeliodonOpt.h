// How a heliodon study is rendered as a film: the frequency of its frames, the period it
// covers, and the rendering and compression options of animations. Public header, C++11.
// Slot order is part of the interface: the options of IZelViewOpt, its destructor
// included, come first.
#ifndef ZEL_MODEL_LIGHT_IZELHELIODONOPT_H
#define ZEL_MODEL_LIGHT_IZELHELIODONOPT_H

#include "foundation/Visibility.h"
#include "model/light/IZelHeliodon.h"
#include "model/views/IZelRenderingOpt.h"

namespace KeZel {

// Kinds of getFrequencyType.
enum EFrequencyType { eFrequencyOneImage = 0, eFrequencyDaily = 1, eFrequencyYearly = 2 };
// Units of getFrequencyUnit.
enum EFrequencyUnit {
    eFrequencyFrameRate = 0,
    eFrequencyMinutes = 1,
    eFrequencyHours = 2,
    eFrequencyDays = 3,
    eFrequencyMonths = 4
};

class ZEL_API CZelHeliodonOpt : public IZelViewOpt {
public:
    // One of EFrequencyType.
    virtual int getFrequencyType() const = 0;
    virtual void setFrequencyType(int type) = 0;
    // One of EFrequencyUnit.
    virtual int getFrequencyUnit() const = 0;
    virtual void setFrequencyUnit(int unit) = 0;
    // Stored as a whole number: the setter truncates.
    virtual double getFrequencyValue() const = 0;
    virtual void setFrequencyValue(double value) = 0;
    virtual double getMovieDuration() const = 0;
    virtual void setMovieDuration(double duration) = 0;
    virtual CZelTime* getStartTime() = 0;
    virtual const CZelTime* getStartTime() const = 0;
    virtual CZelTime* getEndTime() = 0;
    virtual const CZelTime* getEndTime() const = 0;
    virtual bool isAllRange() const = 0;
    virtual void setAllRange(bool all) = 0;
};

} // namespace KeZel

#endif
