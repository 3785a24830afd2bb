// Adapters between the host's CZelStream and the XML engine, in both directions, and
// the buffered CZelStream faces over an XML data block.
#pragma once

#include "frame/ZelStream.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// XML engine input over a host stream.
class CZELXMLReadStream : public KestraXML::CXMLReadStream {
public:
    explicit CZELXMLReadStream(CZelStream* stream) : mStream(stream) {}
    int Read(void* buffer, int size) override { return mStream->read(buffer, size); }

private:
    CZelStream* mStream;
};

// XML engine output over a host stream; the host's write has no result, so every write
// counts as complete.
class CZELXMLWriteStream : public KestraXML::XIXMLWriteStream {
public:
    explicit CZELXMLWriteStream(CZelStream* stream) : mStream(stream) {}
    int Write(const void* buffer, int size) override {
        mStream->write(buffer, size);
        return size;
    }

private:
    CZelStream* mStream;
};

// Inert CZelStream, base of the two block streams below.
class CZelXMLStream : public CZelStream {
public:
    bool isOpen() override { return false; }
    CZelStream* openStream(const char*, int) override { return nullptr; }
    void release() override { delete this; }
    void flush() override {}
    int read(void*, int) override { return 0; }
    void write(const void*, int) override {}
    unsigned int tell() override { return 0; }
    void seek(unsigned int) override {}
};

// CZelStream over an XML data block, for the legacy and block readers. Reads through a
// 1024-byte window; when the window is used up its upper half slides down, so that the
// last 512 bytes stay behind the cursor and a small step back stays possible.
class CZelXMLReadStream : public CZelXMLStream {
public:
    enum { kBufferSize = 1024, kKeep = 512 };

    explicit CZelXMLReadStream(KestraXML::CXMLReadStream* source);
    int read(void* buffer, int size) override;
    unsigned int tell() override { return mPosition; }
    // Only good for a step back within the bytes kept, or forward within what was read.
    void seek(unsigned int position) override;

private:
    KestraXML::CXMLReadStream* mSource;
    unsigned int mPosition;
    unsigned int mCursor;
    unsigned int mFill;
    unsigned char mBuffer[kBufferSize];
};

// CZelStream into an XML data block, for the block writers. Buffers 2048 bytes; what is
// left reaches the sink when the object is destroyed, which must happen before the
// block ends.
class CZelXMLWriteStream : public CZelXMLStream {
public:
    enum { kBufferSize = 2048 };

    explicit CZelXMLWriteStream(KestraXML::XIXMLWriteStream* sink);
    ~CZelXMLWriteStream() override;
    void write(const void* buffer, int size) override;

private:
    void Drain();

    KestraXML::XIXMLWriteStream* mSink;
    unsigned char mBuffer[kBufferSize];
    unsigned int mCount;
};

} // namespace KeZel
