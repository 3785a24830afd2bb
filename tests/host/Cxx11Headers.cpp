// Compiled as C++11: a host with an older compiler must be able to include the surface.
#include "zel.h"

#if __cplusplus != 201103L
#error "this unit checks the public headers under C++11"
#endif

int zelCxx11HeadersCompile() {
    return KeZel::eZelVersionCurrent;
}
