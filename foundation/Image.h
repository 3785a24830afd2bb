// Counted matrix of 32-bit pixels. Public header, C++11.
#ifndef ZEL_FOUNDATION_IMAGE_H
#define ZEL_FOUNDATION_IMAGE_H

#include "foundation/RefCount.h"
#include "foundation/Visibility.h"

namespace Kestra {

// Rows after rows; the element at (x, y) stands at index y * width + x.
template <class T> class XTIMatrix : public XIRefCount {
public:
    virtual unsigned int GetWidth() const = 0;
    virtual unsigned int GetHeight() const = 0;
    virtual const T* GetData() const = 0;
    virtual T* GetData() = 0;
    virtual T GetAt(unsigned int x, unsigned int y) const = 0;
    virtual void SetAt(unsigned int x, unsigned int y, T value) = 0;
    // A new matrix, nearest neighbour, with one reference held for the caller.
    virtual XTIMatrix<T>* Resized(unsigned int width, unsigned int height) const = 0;
};

// A pixel: colour in the low 24 bits, alpha in the top byte.
class ZEL_API XIImage : public XTIMatrix<unsigned int> {};

} // namespace Kestra

#endif
