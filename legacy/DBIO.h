// The sections of the legacy geometry database (.db) that hold the scene's geometry:
// points and polygons, read through the token reader and written through the text
// writer. The same writers serve the Points and Polygons data blocks of a scene file.
//
// Each section goes to the scene's own tables or, when the manager has a storage,
// through the storage one item at a time. Of a .db file read into the scene's tables,
// the points are taken as they stand; everywhere else a point takes the axis rule.
#pragma once

namespace KeZel {

class CZEL;
class CReader;
class CWriter;

class CDBIO {
public:
    // `reader` or `writer` may be null for the direction not used. `format` is the
    // file's format number (4 for the .db file and the data blocks).
    CDBIO(CZEL* zel, CReader* reader, CWriter* writer, int format = 4);

    // Raise "CDBIO::read() : no reader provided!" without a reader.
    void readPoints();
    void readPolygons();
    // Raise "CDBIO::write() : no writer provided!" without a writer.
    void writePoints();
    void writePolygons();

    int getFormat() const { return mFormat; }

private:
    CReader* mReader;
    CWriter* mWriter;
    CZEL* mZel;
    int mFormat;
};

} // namespace KeZel
