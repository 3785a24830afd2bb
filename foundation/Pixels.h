// Counted matrices of pixels: the storage behind every image of the system.
#pragma once

#include "foundation/BaseRefCount.h"
#include "foundation/Errors.h"
#include "foundation/Image.h"

#include <cstddef>
#include <cstring>
#include <new>
#include <vector>

namespace Kestra {

// The most elements a matrix may hold (1 GB of pixels). A size read from a damaged file
// is refused like any allocation that fails, instead of asking the system for gigabytes.
constexpr unsigned long long kMatrixMaxElements = 1ull << 28;

// Raises "XTCMatrix::XTCMatrix - Can't allocate buffer".
X_NORETURN X_COLD void XMatrixAllocationFailed();

// A new[] array of width x height elements, zero-filled on request; null for an empty
// matrix.
template <class T> T* XAllocMatrix(unsigned int width, unsigned int height, bool zero) {
    unsigned long long count = static_cast<unsigned long long>(width) * height;
    if (count == 0) return nullptr;
    if (count > kMatrixMaxElements) XMatrixAllocationFailed();
    T* data = zero ? new (std::nothrow) T[count]() : new (std::nothrow) T[count];
    if (!data) XMatrixAllocationFailed();
    return data;
}

// The source index of each of `count` target positions along one axis of `size`
// source elements, by the error term of the nearest-neighbour step: the source moves on
// only once the term passes `count`.
void XNearestSteps(unsigned int size, unsigned int count, unsigned int* index);

// Nearest neighbour, in integers only. The error terms step the source only once they
// pass the target size, so a copy at the same size repeats the first row and column and
// drops the last ones: files and tests depend on that exact result. A source without
// pixels leaves the target as it was given.
template <class T>
void XResizeNearest(const T* source, unsigned int sw, unsigned int sh, T* target, unsigned int width,
                    unsigned int height) {
    if (width == 0 || height == 0 || sw == 0 || sh == 0) return;
    std::vector<unsigned int> columns(width), rows(height);
    XNearestSteps(sw, width, columns.data());
    XNearestSteps(sh, height, rows.data());
    for (unsigned int y = 0; y < height; ++y) {
        const T* row = source + static_cast<size_t>(rows[y]) * sw;
        for (unsigned int x = 0; x < width; ++x) *target++ = row[columns[x]];
    }
}

// The class that Resized makes for an element type.
template <class T> struct XTMatrixClass;

// Rows after rows of T, counted through I (an interface derived from XTIMatrix<T>).
template <class T, class I> class XTCMatrix : public XTCRefCount<I> {
public:
    XTCMatrix() : mWidth(0), mHeight(0), mData(nullptr) {}
    // With `data` null the elements are zero; otherwise width x height are copied.
    XTCMatrix(unsigned int width, unsigned int height, const T* data) : XTCMatrix() {
        Assign(width, height, data);
    }
    ~XTCMatrix() override { delete[] mData; }
    XTCMatrix(const XTCMatrix&) = delete;
    XTCMatrix& operator=(const XTCMatrix&) = delete;

    unsigned int GetWidth() const override { return mWidth; }
    unsigned int GetHeight() const override { return mHeight; }
    const T* GetData() const override { return mData; }
    T* GetData() override { return mData; }
    T GetAt(unsigned int x, unsigned int y) const override {
        CheckIndex(x, y);
        return mData[static_cast<size_t>(y) * mWidth + x];
    }
    void SetAt(unsigned int x, unsigned int y, T value) override {
        CheckIndex(x, y);
        mData[static_cast<size_t>(y) * mWidth + x] = value;
    }
    XTIMatrix<T>* Resized(unsigned int width, unsigned int height) const override;

    // Replaces the content by a copy of `data`, or by zeros when it is null. The old
    // content stays when the allocation fails.
    void Assign(unsigned int width, unsigned int height, const T* data) {
        T* fresh = XAllocMatrix<T>(width, height, data == nullptr);
        if (fresh && data) std::memcpy(fresh, data, static_cast<size_t>(width) * height * sizeof(T));
        Adopt(width, height, fresh);
    }
    // Takes over `data`, a new[] array of width x height elements.
    void Adopt(unsigned int width, unsigned int height, T* data) {
        delete[] mData;
        mData = data;
        mWidth = width;
        mHeight = height;
    }
    // The 0 x 0 matrix.
    void Clear() { Adopt(0, 0, nullptr); }

protected:
    void CheckIndex(unsigned int x, unsigned int y) const {
        XAssert(x < mWidth && y < mHeight, "XTCMatrix::CheckIndex - Invalid index");
    }

    unsigned int mWidth;
    unsigned int mHeight;
    T* mData;
};

template <class T> struct XTMatrixClass { typedef XTCMatrix<T, XTIMatrix<T>> Type; };

// The plain image: a counted matrix of 32-bit pixels.
class XCPixels : public XTCMatrix<unsigned int, XIImage> {
public:
    XCPixels() {}
    XCPixels(unsigned int width, unsigned int height, const unsigned int* data)
        : XTCMatrix<unsigned int, XIImage>(width, height, data) {}
};

template <> struct XTMatrixClass<unsigned int> { typedef XCPixels Type; };

template <class T, class I>
XTIMatrix<T>* XTCMatrix<T, I>::Resized(unsigned int width, unsigned int height) const {
    typedef typename XTMatrixClass<T>::Type Result;
    Result* result = new Result(width, height, nullptr);
    XResizeNearest<T>(mData, mWidth, mHeight, result->GetData(), width, height);
    result->AddRef();
    return result;
}

} // namespace Kestra
