// The points and polygons sections, read the same way by both number readers: the
// token reader of a .db file and the fast reader of a scene's data blocks. A reader R
// offers:
//   int ReadInt();       a 32-bit integer, wrapping
//   double ReadDouble();
//   int ReadMarker();    the next byte that is no white space and not in a '#' comment,
//                        consumed; -1 at the end
//   void PutBack();      gives back the byte ReadMarker answered
// Private to the geometry readers (DBIO.cpp, DBFastReader.cpp).
#pragma once

#include "foundation/Errors.h"
#include "frame/AxisRule.h"
#include "frame/CZEL.h"
#include "frame/Progress.h"
#include "model/geometry/Geometry.h"

#include <exception>

namespace KeZel {
namespace GeometrySections {

// Counts outside 1..kPlausible are reported, and read all the same.
const int kPlausible = 9999999;
// A table is sized once to the count read, up to a bound far above any real scene (a
// block of 512 MB of pointers), so that a damaged count costs growth as the items come
// rather than memory up front. Loops likewise.
const unsigned int kTablePresize = 1u << 26;
const unsigned int kLoopPresize = 1u << 16;

inline unsigned int Room(unsigned int count, unsigned int limit) {
    return count < limit ? count : limit;
}

// The axis rule, taken once for a whole section.
struct CImport {
    CImport(CZEL* zel, bool apply) : mApply(apply), mAxis(zel->axisState()) {}
    void operator()(double* c) const {
        if (mApply) AxisImport(mAxis, c[0], c[1], c[2]);
    }
    bool mApply;
    CAxisState mAxis;
};

template <class R> void ReadCoordinates(R& reader, double* c) {
    c[0] = reader.ReadDouble();
    c[1] = reader.ReadDouble();
    c[2] = reader.ReadDouble();
}

// `importInMemory`: whether points going to the scene's own table take the axis rule;
// points going to a storage always do.
template <class R> void ReadPoints(R& reader, CZEL* zel, bool importInMemory) {
    int n = reader.ReadInt();
    if (n < 1 || n > kPlausible) zel->report("Numbers of points seems wrong");
    unsigned int count = n > 0 ? static_cast<unsigned int>(n) : 0;
    CZelProgress progress(zel->getFeedback(), zel->asMgr(), count, 0);
    if (CZelExtStorage* storage = zel->getExtStorage()) {
        CImport import(zel, true);
        storage->beginPoints(zel->asMgr(), count); // a negative count announces none
        for (unsigned int i = 0; i < count; ++i) {
            progress.check(i);
            double c[3];
            try {
                ReadCoordinates(reader, c);
            } catch (const std::exception&) {
                Kestra::XThrow("Error in CPointIO::read()!");
            }
            import(c);
            if (!storage->addPoint(zel->asMgr(), c, static_cast<int>(i)))
                Kestra::XThrow("External storage cancel IO");
        }
    } else {
        CImport import(zel, importInMemory);
        CPointList& points = zel->geometry().points();
        points.clear();
        if (!points.reserve(Room(count, kTablePresize))) Kestra::XThrow("No memory availiable");
        for (unsigned int i = 0; i < count; ++i) {
            progress.check(i);
            double c[3];
            ReadCoordinates(reader, c);
            import(c);
            CPoint* point = points.newItem();
            if (!point) Kestra::XThrow("No memory availiable");
            point->x = c[0];
            point->y = c[1];
            point->z = c[2];
        }
    }
    progress.finish();
}

// "I" marks the vertex, "M" brings its own mapping coordinates; in this order only.
template <class R> void ReadVertex(R& reader, CZelVertex& vertex) {
    int c = reader.ReadMarker();
    if (c == 'I') {
        vertex.mFlags |= eZelVertexMarked;
        c = reader.ReadMarker();
    }
    if (c == 'M') {
        vertex.mFlags |= eZelVertexMapped;
        vertex.mU = static_cast<float>(reader.ReadDouble());
        vertex.mV = static_cast<float>(reader.ReadDouble());
    } else if (c >= 0) {
        reader.PutBack();
    }
    vertex.mPointIndex = reader.ReadInt();
}

// A loop is sized to its count before its vertices are read; a count below 1 makes an
// empty loop.
template <class R> void ReadLoop(R& reader, CVertexList& vertices) {
    int n = reader.ReadInt();
    unsigned int count = n > 0 ? static_cast<unsigned int>(n) : 0;
    if (!vertices.resize(Room(count, kLoopPresize))) Kestra::XThrow("No memory availiable");
    for (unsigned int i = 0; i < count; ++i) {
        if (i == vertices.getCount()) {
            unsigned int more = i < count - i ? 2 * i : count;
            if (!vertices.resize(more)) Kestra::XThrow("No memory availiable");
        }
        ReadVertex(reader, vertices.at(i));
    }
}

// One record into a new or cleared polygon.
template <class R> void ReadPolygon(R& reader, CZEL* zel, CPolygon& polygon) {
    int type = reader.ReadMarker();
    if (type == 'o')
        polygon.setSmoothed(true);
    else if (type != 'p' && type != 'h')
        zel->report("Polygone type unknown"); // and read on as a plain polygon
    polygon.storePropertyIndex(static_cast<unsigned int>(reader.ReadInt()));
    int loops = type == 'h' ? reader.ReadInt() : 1;
    ReadLoop(reader, polygon.vertices());
    if (loops <= 1) return;
    CHoleList* holes = polygon.holes();
    unsigned int count = static_cast<unsigned int>(loops) - 1;
    if (!holes || !holes->reserve(Room(count, kLoopPresize))) Kestra::XThrow("No memory availiable");
    for (unsigned int i = 0; i < count; ++i) {
        CLoop* hole = holes->newItem();
        if (!hole) Kestra::XThrow("No memory availiable");
        ReadLoop(reader, hole->vertices());
    }
}

// `countWarning`: the words for an implausible count when the polygons go to the
// scene's own table; with a storage they are always the polygons' own.
template <class R> void ReadPolygons(R& reader, CZEL* zel, const char* countWarning) {
    CZelExtStorage* storage = zel->getExtStorage();
    int n = reader.ReadInt();
    if (n < 1 || n > kPlausible) zel->report(storage ? "Numbers of polygons seems wrong" : countWarning);
    unsigned int count = n > 0 ? static_cast<unsigned int>(n) : 0;
    CZelProgress progress(zel->getFeedback(), zel->asMgr(), count, 1000);
    if (storage) {
        storage->beginPolygons(zel->asMgr(), count);
        CPolygon scratch;
        for (unsigned int i = 0; i < count; ++i) {
            progress.check(i);
            ReadPolygon(reader, zel, scratch);
            if (!storage->addPolygon(zel->asMgr(), &scratch, static_cast<int>(i)))
                Kestra::XThrow("External storage cancel IO");
            scratch.clear();
        }
    } else {
        CPolygonList& polygons = zel->geometry().polygons();
        polygons.clear();
        if (!polygons.reserve(Room(count, kTablePresize))) Kestra::XThrow("No memory availiable");
        for (unsigned int i = 0; i < count; ++i) {
            progress.check(i);
            CPolygon* polygon = polygons.newItem();
            if (!polygon) Kestra::XThrow("No memory availiable");
            ReadPolygon(reader, zel, *polygon);
        }
    }
    progress.finish();
}

} // namespace GeometrySections
} // namespace KeZel
