// The scene's geometry: points, polygons with their holes, and the two tables of the
// manager. Geometry is the bulk of a scene (up to ten million of each), so every byte of
// a point and of a triangle counts:
//   a point is three doubles with no virtual table (24 bytes in the pool, 8 in the table);
//   a triangle keeps its three vertices inline and makes its hole list only when asked
//   (104 bytes in the pool, 8 in the table).
#pragma once

#include "frame/ObjectLists.h"
#include "frame/ZelFrontier.h"
#include "model/geometry/IZelPolygon.h"

namespace KeZel {

class CZEL;
class CPolygon;
class CLoop;

// A point of the scene, all zero when new.
struct CPoint : CZelVector {
    CPoint() : CZelVector() {}
};

typedef TRapideMgr<CPoint, CZelVector, CZEL, TZelPooledItems<CPoint>> CPointList;
typedef TRapideMgr<CPolygon, CZelPolygon, CZEL, TZelPooledItems<CPolygon>> CPolygonList;
// The vertices of a loop, three of them inline. The list's owner is the polygon table
// (null for a free-standing polygon): its reports reach the manager the way the
// polygon's do, and the polygon needs no pointer of its own for that.
typedef TSimpleMgr<CZelVertex, CPolygonList, 3> CVertexList;
typedef TRapideMgr<CLoop, CZelPolygon::CZelHole, CPolygon> CHoleList;

// A hole: one inner loop of vertices.
class CLoop : public TZelFrontier<CZelPolygon::CZelHole> {
public:
    explicit CLoop(CHoleList* list);

    // Defined where CPolygon is complete: taking the list's address looks into the
    // polygon table's class.
    TZelObjectMgr<CZelVertex>* getVertices() override;
    const TZelObjectMgr<CZelVertex>* getVertices() const override;

    CVertexList& vertices() { return mVertices; }
    const CVertexList& vertices() const { return mVertices; }

private:
    CVertexList mVertices;
};

class CPolygon : public TZelFrontier<CZelPolygon> {
public:
    // A polygon of the scene's table, or a free-standing one (scratch) without owner.
    explicit CPolygon(CPolygonList* owner = nullptr);
    ~CPolygon() override;
    CPolygon(const CPolygon&) = delete;
    CPolygon& operator=(const CPolygon&) = delete;

    bool isSmoothed() const override { return mSmoothed; }
    void setSmoothed(bool smoothed) override { mSmoothed = smoothed; }
    unsigned int getPropertyIndex() const override { return mPropertyIndex; }
    // Reports "You are assigning a property that does not exist to a polygon." for an
    // index above the manager's property count, and stores the index all the same.
    void setPropertyIndex(unsigned int index) override;
    TZelObjectMgr<CZelVertex>* getVertices() override;
    const TZelObjectMgr<CZelVertex>* getVertices() const override;
    // Made on first use; null only when it cannot be had.
    TZelObjectMgr<CZelHole>* getHoles() override { return holes(); }

    // ---- Internal API of the block reader and writer
    CPolygonList* getOwner() const { return mVertices.getOwner(); }
    CZEL* getZel() const;
    CVertexList& vertices() { return mVertices; }
    const CVertexList& vertices() const { return mVertices; }
    // The hole list, made on first use; null only when it cannot be had.
    CHoleList* holes();
    unsigned int getHoleCount() const { return mHoles ? mHoles->getCount() : 0; }
    // Raises "getObject: index out of range" past the end.
    const CLoop& hole(unsigned int index) const;
    // Stores the index as a file gives it, with no test.
    void storePropertyIndex(unsigned int index) { mPropertyIndex = index; }
    // Back to a new polygon (not smoothed, property 0, no vertex, holes removed from the
    // last), keeping the room it had: the scratch polygon of a storage is reused so.
    void clear();

private:
    bool mSmoothed;
    unsigned int mPropertyIndex;
    CVertexList mVertices;
    CHoleList* mHoles;
};

// The two tables of the scene, held by the manager.
class CZelGeometry {
public:
    explicit CZelGeometry(CZEL* zel) : mPolygons(zel), mPoints(zel) {}
    CZelGeometry(const CZelGeometry&) = delete;
    CZelGeometry& operator=(const CZelGeometry&) = delete;

    CPointList& points() { return mPoints; }
    CPolygonList& polygons() { return mPolygons; }

private:
    CPolygonList mPolygons;
    CPointList mPoints;
};

} // namespace KeZel
