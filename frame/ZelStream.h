// The three interfaces a host implements: the byte stream, the feedback for errors and
// progress, and the optional external storage of the main geometry. Public header, C++11.
#ifndef ZEL_FRAME_ZELSTREAM_H
#define ZEL_FRAME_ZELSTREAM_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"

namespace KeZel {

class CZelMgr;
class CZelPolygon;

// All bytes come and go through a stream that the host supplies.
class ZEL_API CZelStream {
public:
    virtual bool isOpen() = 0;
    // Opens a secondary stream next to this one: a bare file name, mode 0 for reading.
    virtual CZelStream* openStream(const char* name, int mode) = 0;
    // Ends a stream that openStream gave; called exactly once for each.
    virtual void release() = 0;
    virtual void flush() = 0;
    // Reads up to `size` bytes and answers how many; 0 is the end of the stream.
    virtual int read(void* buffer, int size) = 0;
    // Writes all `size` bytes.
    virtual void write(const void* buffer, int size) = 0;
    virtual unsigned int tell() = 0;
    // Moves to an absolute position that tell gave.
    virtual void seek(unsigned int position) = 0;
    virtual bool isValid() { return true; }
    virtual ~CZelStream() {}
};

// Errors, warnings and progress go to a feedback that the host supplies.
class ZEL_API CZelFeedback {
public:
    // `mgr` is null only when a manager could not be created. The text is valid
    // during the call only.
    virtual void reportError(CZelMgr* mgr, const char* text) = 0;
    // False means the user cancelled.
    virtual bool reportProgress(CZelMgr* mgr, int current, int total) = 0;

protected:
    ~CZelFeedback() {}
};

// A host that keeps its geometry elsewhere receives and supplies the points and
// polygons of the main geometry through this interface. The polygon handed over is a
// scratch object of the library's, reused for each call: copy what you need.
class ZEL_API CZelExtStorage {
public:
    virtual void noteInternalComponent(const CZelUUID* uuid, int geometryLevel) = 0;
    virtual void beginPoints(CZelMgr* mgr, unsigned int count) = 0;
    virtual bool addPoint(CZelMgr* mgr, const double* coords, int index) = 0;
    virtual void beginPolygons(CZelMgr* mgr, unsigned int count) = 0;
    virtual bool addPolygon(CZelMgr* mgr, CZelPolygon* polygon, int index) = 0;
    virtual int getPointCount() = 0;
    virtual bool getPoint(CZelMgr* mgr, double* coords, int index) = 0;
    virtual int getPolygonCount() = 0;
    virtual bool getPolygon(CZelMgr* mgr, CZelPolygon* polygon, int index) = 0;

protected:
    ~CZelExtStorage() {}
};

} // namespace KeZel

#endif
