// Byte buffers of the XML parser: the read window over a client stream, the growable
// text buffer that names and values are collected in, and the stream that hands a CDATA
// block to a client. Private to the engine (the legacy token reader reads by the same
// window rule and may use CXMLReadBuffer too).
#pragma once

#include "xml/XMLInterfaces.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace KestraXML {

// Reads the stream in requests of kSize bytes. A read that delivers fewer ends the
// stream, so a client stream must deliver full requests until its end. The unread part
// of the window is open to scanning code, which consumes it in runs.
class CXMLReadBuffer {
public:
    enum { kSize = 1024 };

    // A null stream raises "exception".
    explicit CXMLReadBuffer(CXMLReadStream* stream);
    CXMLReadBuffer(const CXMLReadBuffer&) = delete;
    CXMLReadBuffer& operator=(const CXMLReadBuffer&) = delete;

    // The next byte as an unsigned value, or -1 at the end of the stream.
    int Next() { return mPosition != mEnd ? *mPosition++ : Fill(); }

    const unsigned char* Position() const { return mPosition; }
    const unsigned char* End() const { return mEnd; }
    // Marks the bytes up to `position` (inside the window) as read.
    void Consume(const unsigned char* position) { mPosition = position; }

private:
    int Fill();

    const unsigned char* mPosition;
    const unsigned char* mEnd;
    bool mEof;
    CXMLReadStream* mStream;
    unsigned char mData[kSize];
};

// Growable byte buffer. Its capacity is kept across Reset, so a parse allocates only
// when a longer name or value than any before comes along.
class CXMLTextBuffer {
public:
    static constexpr int32_t kInitial = 256;

    CXMLTextBuffer() : mData(nullptr), mLength(0), mCapacity(0) {}
    ~CXMLTextBuffer() { std::free(mData); }
    CXMLTextBuffer(const CXMLTextBuffer&) = delete;
    CXMLTextBuffer& operator=(const CXMLTextBuffer&) = delete;

    void Reset() {
        mLength = 0;
        if (!mData) Resize(kInitial);
    }
    void Append(int byte) {
        if (mLength == mCapacity) Resize(mCapacity ? static_cast<int64_t>(mCapacity) * 2 : int64_t{kInitial});
        mData[mLength++] = static_cast<char>(byte);
    }
    void Append(const void* bytes, size_t count) {
        if (count > static_cast<size_t>(mCapacity - mLength))
            Resize(static_cast<int64_t>(mCapacity) + mLength + static_cast<int64_t>(count));
        if (count) std::memcpy(mData + mLength, bytes, count);
        mLength += static_cast<int32_t>(count);
    }
    // Makes room for `count` more bytes to be written at Tail().
    void Reserve(size_t count) {
        if (count > static_cast<size_t>(mCapacity - mLength))
            Resize(static_cast<int64_t>(mCapacity) + mLength + static_cast<int64_t>(count));
    }
    char* Tail() { return mData + mLength; }
    void Grew(int count) { mLength += count; }
    void Truncate(int length) { mLength = length; }

    // Zero-terminates the content without counting the zero, and answers it.
    const char* Terminate() {
        Append(0);
        --mLength;
        return mData;
    }
    const char* Data() const { return mData; }
    int Length() const { return mLength; }
    int Capacity() const { return mCapacity; }

private:
    // Raises "Can't allocate buffer." (leaving the buffer empty) when the memory or the
    // 32-bit size runs out.
    void Resize(int64_t capacity);

    char* mData;
    int32_t mLength;
    int32_t mCapacity;
};

// The bytes of one CDATA block, read straight from the parser's window: "]]>" is taken
// out, and the block ends there. Any amount may be read at a time; after the client is
// done the parser drains the rest.
class CXMLCDataStream : public CXMLReadStream {
public:
    // Reads the first byte of the block.
    explicit CXMLCDataStream(CXMLReadBuffer& buffer);
    CXMLCDataStream(const CXMLCDataStream&) = delete;
    CXMLCDataStream& operator=(const CXMLCDataStream&) = delete;

    // 0 once the block has ended. A failure of the underlying stream ends the block
    // unclosed (the exception is dropped; the parser then reports the block as broken).
    int Read(void* buffer, int length) override;
    // Reads and drops whatever the client left.
    void Drain();
    // The block ended with "]]>".
    bool Closed() const { return mClosed; }

private:
    CXMLReadBuffer& mBuffer;
    int mCurrent;
    unsigned mBrackets;
    bool mFinished;
    bool mClosed;
};

} // namespace KestraXML
