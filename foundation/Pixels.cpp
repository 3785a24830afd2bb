#include "foundation/Pixels.h"

namespace Kestra {

void XMatrixAllocationFailed() {
    XThrow("XTCMatrix::XTCMatrix - Can't allocate buffer");
}

void XNearestSteps(unsigned int size, unsigned int count, unsigned int* index) {
    // The error term grows by `size` per target position; each time it passes `count` the
    // source moves on by one and the term loses `count`. Done by division, so that a
    // large shrink costs no more than a small one.
    unsigned long long error = 0;
    unsigned int source = 0;
    for (unsigned int i = 0; i < count; ++i) {
        index[i] = source;
        error += size;
        if (error > count) {
            unsigned long long steps = (error - 1) / count;
            error -= steps * count;
            source += static_cast<unsigned int>(steps);
        }
    }
}

template class XTCMatrix<unsigned int, XIImage>;

} // namespace Kestra
