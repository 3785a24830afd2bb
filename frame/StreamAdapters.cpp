#include "frame/StreamAdapters.h"

#include "foundation/Errors.h"

#include <cstring>

namespace KeZel {

using namespace Kestra;

CZelXMLReadStream::CZelXMLReadStream(KestraXML::CXMLReadStream* source)
    : mSource(source), mPosition(0), mCursor(0), mFill(0) {
    if (!mSource) XThrow("");
}

int CZelXMLReadStream::read(void* buffer, int size) {
    unsigned char* out = static_cast<unsigned char*>(buffer);
    int copied = 0;
    while (copied < size) {
        if (mCursor >= mFill) {
            if (mCursor == kBufferSize) {
                mCursor = kKeep;
                std::memmove(mBuffer, mBuffer + kKeep, kKeep);
            }
            int got = mSource->Read(mBuffer + mCursor, static_cast<int>(kBufferSize - mCursor));
            if (got <= 0) {
                mFill = mCursor;
                break;
            }
            mFill = mCursor + static_cast<unsigned int>(got);
        }
        unsigned int available = mFill - mCursor;
        unsigned int wanted = static_cast<unsigned int>(size - copied);
        unsigned int n = available < wanted ? available : wanted;
        std::memcpy(out + copied, mBuffer + mCursor, n);
        mCursor += n;
        copied += static_cast<int>(n);
    }
    mPosition += static_cast<unsigned int>(copied);
    return copied;
}

void CZelXMLReadStream::seek(unsigned int position) {
    unsigned int difference = position - mPosition;
    mPosition = position;
    mCursor += difference;
}

CZelXMLWriteStream::CZelXMLWriteStream(KestraXML::XIXMLWriteStream* sink) : mSink(sink), mCount(0) {
    if (!mSink) XThrow("");
}

CZelXMLWriteStream::~CZelXMLWriteStream() {
    if (mCount > 0) {
        try {
            mSink->Write(mBuffer, static_cast<int>(mCount));
        } catch (...) {
            // A destructor never raises; the writer above notices the short block.
        }
    }
}

void CZelXMLWriteStream::Drain() {
    if (mCount > 0) mSink->Write(mBuffer, static_cast<int>(mCount));
    mCount = 0;
}

void CZelXMLWriteStream::write(const void* buffer, int size) {
    if (size <= 0) return;
    unsigned int n = static_cast<unsigned int>(size);
    if (mCount + n <= kBufferSize) {
        std::memcpy(mBuffer + mCount, buffer, n);
        mCount += n;
        return;
    }
    Drain();
    if (n <= kBufferSize) {
        std::memcpy(mBuffer, buffer, n);
        mCount = n;
    } else {
        mSink->Write(buffer, size);
    }
}

} // namespace KeZel
