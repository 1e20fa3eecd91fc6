// Vectors of 32 bytes, where the processor that the library runs on has them.
#pragma once

#if defined(__x86_64__) && defined(__GNUC__) && !defined(NAVFRAME_PLAIN)
#include <immintrin.h>
#define NAVFRAME_WIDE __attribute__((target("avx2")))

namespace navframe {

inline bool HasWideVectors() { return __builtin_cpu_supports("avx2"); }

}  // namespace navframe

#endif
