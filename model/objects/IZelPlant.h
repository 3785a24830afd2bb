// 3D plants: a definition of the class "3DPlant" changes through the year by setups valid
// between two dates; an instance of that class holds its own date and colour, or takes
// its date from the sun. Public header, C++11. Slot order is part of the interface.
//
// Operation order chosen here:
// - IZel3DPlant: getPlantType, setPlantType, getSetups (const, then mutable), destructor.
// - IZel3DPlantRef: getInstance (const, then mutable), isHeliodonAttached,
//   setHeliodonAttached, getTime (plain, then const, as the setups' dates), getColor,
//   setColor, destructor.
#ifndef ZEL_MODEL_OBJECTS_IZELPLANT_H
#define ZEL_MODEL_OBJECTS_IZELPLANT_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"

namespace KeZel {

class CZelTime;
class IZelObjectInstance;

// The delegate of a definition of the class "3DPlant".
class ZEL_API IZel3DPlant {
public:
    // One appearance of the plant between two dates.
    class ZEL_API IPlantSetUp {
    public:
        virtual CZelTime* getStartTime() = 0;
        virtual const CZelTime* getStartTime() const = 0;
        virtual CZelTime* getEndTime() = 0;
        virtual const CZelTime* getEndTime() const = 0;
        // -1 Undefined, 0 White, 1 Red, 2 Orange, 3 Rose, 4 Purple, 5 LightBlue,
        // 6 DarkBlue, 7 Yellow, 8 Brown.
        virtual int getColor() const = 0;
        virtual void setColor(int color) = 0;
        virtual const CZelUUID* getId() const = 0;
        virtual void setId(const CZelUUID& id) = 0;
        virtual ~IPlantSetUp() {}
    };

    // 0 Undefined, 1 Tree, 2 Flower, 3 Bushes, 4 PottedPlant, 5 PalmTree, 6 Cactus,
    // 7 WaterPlant, 8 Fern.
    virtual int getPlantType() const = 0;
    virtual void setPlantType(int type) = 0;
    virtual const TZelObjectMgr<IPlantSetUp>* getSetups() const = 0;
    virtual TZelObjectMgr<IPlantSetUp>* getSetups() = 0;
    virtual ~IZel3DPlant() {}
};

// The delegate of an instance of the class "3DPlant".
class ZEL_API IZel3DPlantRef {
public:
    virtual const IZelObjectInstance* getInstance() const = 0;
    virtual IZelObjectInstance* getInstance() = 0;
    // When attached, the plant takes its date from the heliodon rather than its own time.
    virtual bool isHeliodonAttached() const = 0;
    virtual void setHeliodonAttached(bool attached) = 0;
    virtual CZelTime* getTime() = 0;
    virtual const CZelTime* getTime() const = 0;
    // A colour of the setups' table; -1 is Undefined.
    virtual int getColor() const = 0;
    virtual void setColor(int color) = 0;
    virtual ~IZel3DPlantRef() {}
};

} // namespace KeZel

#endif
