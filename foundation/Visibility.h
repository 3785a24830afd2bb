// Symbol visibility of the shared library: everything is hidden unless marked here.
// Public headers only; they compile as C++11.
#ifndef ZEL_FOUNDATION_VISIBILITY_H
#define ZEL_FOUNDATION_VISIBILITY_H

#if defined(__GNUC__)
#define ZEL_API __attribute__((visibility("default")))
#else
#define ZEL_API
#endif

#endif
