// Multiplication without carries, where the processor that the library runs on has it.
#pragma once

#if defined(__x86_64__) && defined(__GNUC__) && !defined(NAVFRAME_PLAIN)
#include <immintrin.h>
#define NAVFRAME_CARRYLESS __attribute__((target("pclmul,ssse3")))

namespace navframe {

inline bool HasCarrylessMultiplication() {
  return __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("ssse3");
}

}  // namespace navframe

#endif
