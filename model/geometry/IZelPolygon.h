// A polygon of the scene's geometry and its holes. Public header, C++11.
// Slot order is part of the interface.
//
// Operation order chosen here: the polygon's getVertices is one row of the table whose
// behaviour names a const and a plain form; it takes two slots, plain first, as the
// hole's getVertices does.
#ifndef ZEL_MODEL_GEOMETRY_IZELPOLYGON_H
#define ZEL_MODEL_GEOMETRY_IZELPOLYGON_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"

namespace KeZel {

// A polygon names its points by index into the scene's point list and its material by
// index into the scene's property list. Vertices are records held inside the list: a
// vertex pointer stays valid only until the next insertion or removal in that list.
class ZEL_API CZelPolygon {
public:
    // An inner loop of a polygon.
    class ZEL_API CZelHole {
    public:
        virtual TZelObjectMgr<CZelVertex>* getVertices() = 0;
        virtual const TZelObjectMgr<CZelVertex>* getVertices() const = 0;
        virtual ~CZelHole() {}
    };

    virtual bool isSmoothed() const = 0;
    virtual void setSmoothed(bool smoothed) = 0;
    virtual unsigned int getPropertyIndex() const = 0;
    // An index above the property count is stored all the same, with a report.
    virtual void setPropertyIndex(unsigned int index) = 0;
    // The outer loop; both forms answer the same list.
    virtual TZelObjectMgr<CZelVertex>* getVertices() = 0;
    virtual const TZelObjectMgr<CZelVertex>* getVertices() const = 0;
    virtual TZelObjectMgr<CZelHole>* getHoles() = 0;
    virtual ~CZelPolygon() {}
};

} // namespace KeZel

#endif
