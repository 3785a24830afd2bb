#include "legacy/DBIO.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/Progress.h"
#include "frame/ZelStream.h"
#include "legacy/GeometrySections.h"
#include "legacy/TextWriter.h"
#include "legacy/TokenReader.h"
#include "model/geometry/Geometry.h"

#include <cstring>
#include <memory>

namespace KeZel {

using namespace Kestra;

namespace {

// The token reader as a section reader.
class CTokenSectionReader {
public:
    explicit CTokenSectionReader(CReader& reader) : mReader(reader) {}
    int ReadInt() { return mReader.ReadInt(); }
    double ReadDouble() { return mReader.ReadDouble(); }
    int ReadMarker() {
        for (;;) {
            int c = mReader.ReadChar();
            if (c == ' ' || c == '\t' || c == '\r' || c == '\n') continue;
            if (c != '#') return c;
            do c = mReader.ReadChar();
            while (c >= 0 && c != '\r' && c != '\n');
            if (c < 0) XThrow("End of file unexpected");
        }
    }
    void PutBack() { mReader.Unread(); }

private:
    CReader& mReader;
};

const char kPairs[] = "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
                      "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
                      "8081828384858687888990919293949596979899";

// The text of a block, formatted as the text writer formats it (decimal integers and
// its six-decimal numbers, each with one blank behind), gathered into large runs so that
// the stream is called once in 64 kilobytes rather than once a number.
class CBlockText {
public:
    explicit CBlockText(CZelStream* stream)
        : mStream(stream), mBuffer(new char[kSize]), mCursor(mBuffer.get()),
          mLimit(mBuffer.get() + kSize - kItem) {}

    bool HasStream() const { return mStream != nullptr; }
    void Text(const char* text, size_t size) {
        Room();
        std::memcpy(mCursor, text, size);
        mCursor += size;
    }
    void Int(int i) {
        Room();
        unsigned int v = static_cast<unsigned int>(i);
        if (i < 0) {
            *mCursor++ = '-';
            v = 0u - v;
        }
        char digits[10];
        char* d = digits + sizeof digits;
        for (; v >= 100; v /= 100) {
            d -= 2;
            std::memcpy(d, kPairs + 2 * (v % 100), 2);
        }
        if (v >= 10) {
            d -= 2;
            std::memcpy(d, kPairs + 2 * v, 2);
        } else {
            *--d = static_cast<char>('0' + v);
        }
        size_t n = static_cast<size_t>(digits + sizeof digits - d);
        std::memcpy(mCursor, d, n);
        mCursor += n;
        *mCursor++ = ' ';
    }
    void Double(double d) {
        Room();
        mCursor += CWriter::FormatDouble(d, mCursor);
    }
    // x y z; x z y for a client of the old orientation.
    void Vector(const double* v, bool exchange) {
        Double(v[0]);
        Double(exchange ? v[2] : v[1]);
        Double(exchange ? v[1] : v[2]);
    }
    void Flush() {
        if (mStream && mCursor != mBuffer.get())
            mStream->write(mBuffer.get(), static_cast<int>(mCursor - mBuffer.get()));
        mCursor = mBuffer.get();
    }

private:
    // Room for one item: a number is at most 64 bytes, a literal a few.
    enum { kSize = 64 * 1024, kItem = 64 };
    void Room() {
        if (mCursor > mLimit) Flush();
    }

    CZelStream* mStream;
    std::unique_ptr<char[]> mBuffer;
    char* mCursor;
    char* mLimit;
};

void WritePoint(CBlockText& out, const double* c, bool exchange) {
    if (!out.HasStream()) XThrow("Error in CPointIO::write()!");
    out.Vector(c, exchange);
}

// `pointCount` < 0: indices are not tested (their points live with the storage).
void WriteLoop(CBlockText& out, CZEL* zel, const CVertexList& vertices, long long pointCount) {
    unsigned int count = vertices.getCount();
    out.Int(static_cast<int>(count));
    for (unsigned int i = 0; i < count; ++i) {
        const CZelVertex& v = vertices.at(i);
        if (v.mFlags & eZelVertexMarked) out.Text("I ", 2);
        if (v.mFlags & eZelVertexMapped) {
            out.Text("M ", 2);
            out.Double(v.mU);
            out.Double(v.mV);
        }
        if (pointCount >= 0 && (v.mPointIndex < 0 || v.mPointIndex >= pointCount))
            zel->report("Polygon: invalid point index.");
        out.Int(v.mPointIndex);
    }
}

// The type letter follows from the data: any hole makes `h`, a smoothing that `h`
// cannot carry is reported and dropped.
void WritePolygon(CBlockText& out, CZEL* zel, const CPolygon& polygon, long long pointCount,
                  const char* failure) {
    if (!out.HasStream()) XThrow(failure);
    unsigned int holes = polygon.getHoleCount();
    if (holes) {
        if (polygon.isSmoothed()) zel->report("Holed polygone smoothed (smoothing will be loss)");
        out.Text("\nh\t", 3);
    } else {
        out.Text(polygon.isSmoothed() ? "\no\t" : "\np\t", 3);
    }
    out.Int(static_cast<int>(polygon.getPropertyIndex()));
    if (holes) out.Int(static_cast<int>(holes + 1));
    WriteLoop(out, zel, polygon.vertices(), pointCount);
    for (unsigned int h = 0; h < holes; ++h) WriteLoop(out, zel, polygon.hole(h).vertices(), pointCount);
}

} // namespace

CDBIO::CDBIO(CZEL* zel, CReader* reader, CWriter* writer, int format)
    : mReader(reader), mWriter(writer), mZel(zel), mFormat(format) {
    XAssertPointer(mZel);
}

void CDBIO::readPoints() {
    if (!mReader) XThrow("CDBIO::read() : no reader provided!");
    CTokenSectionReader reader(*mReader);
    // Kept as .db files have always been read: their points are taken as they stand.
    GeometrySections::ReadPoints(reader, mZel, false);
}

void CDBIO::readPolygons() {
    if (!mReader) XThrow("CDBIO::read() : no reader provided!");
    CTokenSectionReader reader(*mReader);
    // The points' words for the polygons are those that .db files have always had.
    GeometrySections::ReadPolygons(reader, mZel, "Numbers of points seems wrong");
}

// In memory: the count and a line end, then a point a line. With a storage: a line end
// before the count and before each point, and one at the very end.
void CDBIO::writePoints() {
    if (!mWriter) XThrow("CDBIO::write() : no writer provided!");
    CBlockText out(mWriter->getStream());
    bool exchange = mZel->isOldClient();
    CZelMgr* mgr = mZel->asMgr();
    if (CZelExtStorage* storage = mZel->getExtStorage()) {
        int n = storage->getPointCount();
        unsigned int count = n > 0 ? static_cast<unsigned int>(n) : 0;
        CZelProgress progress(mZel->getFeedback(), mgr, count, 0);
        out.Text("\n", 1);
        out.Int(n);
        for (unsigned int i = 0; i < count; ++i) {
            progress.check(i);
            double c[3] = {0.0, 0.0, 0.0};
            if (!storage->getPoint(mgr, c, static_cast<int>(i))) XThrow("External storage cancel IO");
            out.Text("\n", 1);
            WritePoint(out, c, exchange);
        }
        out.Text("\n", 1);
        progress.finish();
    } else {
        CPointList& points = mZel->geometry().points();
        unsigned int count = points.getCount();
        CZelProgress progress(mZel->getFeedback(), mgr, count, 0);
        out.Int(static_cast<int>(count));
        out.Text("\n", 1);
        for (unsigned int i = 0; i < count; ++i) {
            progress.check(i);
            const CPoint* p = points.at(i);
            const double c[3] = {p->x, p->y, p->z};
            WritePoint(out, c, exchange);
            out.Text("\n", 1);
        }
        progress.finish();
    }
    out.Flush();
}

// The count, then the records; in memory each record is followed by a line end.
void CDBIO::writePolygons() {
    if (!mWriter) XThrow("CDBIO::write() : no writer provided!");
    CBlockText out(mWriter->getStream());
    CZelMgr* mgr = mZel->asMgr();
    if (CZelExtStorage* storage = mZel->getExtStorage()) {
        int n = storage->getPolygonCount();
        unsigned int count = n > 0 ? static_cast<unsigned int>(n) : 0;
        CZelProgress progress(mZel->getFeedback(), mgr, count, 1000);
        out.Int(n);
        CPolygon scratch;
        for (unsigned int i = 0; i < count; ++i) {
            progress.check(i);
            scratch.clear();
            if (!storage->getPolygon(mgr, &scratch, static_cast<int>(i)))
                XThrow("External storage cancel IO");
            WritePolygon(out, mZel, scratch, -1, "Can't write polygone");
        }
        progress.finish();
    } else {
        CPolygonList& polygons = mZel->geometry().polygons();
        long long pointCount = mZel->geometry().points().getCount();
        unsigned int count = polygons.getCount();
        CZelProgress progress(mZel->getFeedback(), mgr, count, 1000);
        out.Int(static_cast<int>(count));
        for (unsigned int i = 0; i < count; ++i) {
            progress.check(i);
            WritePolygon(out, mZel, *polygons.at(i), pointCount, "Error writing polygone");
            out.Text("\n", 1);
        }
        progress.finish();
    }
    out.Flush();
}

} // namespace KeZel
