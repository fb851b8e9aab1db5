#pragma once

// Loops over numbers that take four at once where the processor can. Private.

// Put before a function, it is compiled for processors with AVX2 and may run on no other; its bits are the same, as no
// step multiplies and adds in one. Such a function stands beside a common one, and `HasWideLoops` tells which to call.
// A program that is to test the common ones everywhere says so.
#if defined(__GNUC__) && defined(__x86_64__) && !defined(GEOMETRYENGINE_COMMON_LOOPS)
#define GEOMETRYENGINE_KNOWS_WIDE_LOOPS
#define GEOMETRYENGINE_WIDE_LOOPS __attribute__((target("avx2")))
#else
#define GEOMETRYENGINE_WIDE_LOOPS
#endif

namespace GeometryEngine::detail {

/// Whether functions of wide loops may run.
inline bool HasWideLoops() {
#ifdef GEOMETRYENGINE_KNOWS_WIDE_LOOPS
  return __builtin_cpu_supports("avx2") != 0;
#else
  return false;
#endif
}

/// Of two functions of loops that do the same, the one to call. Asking is a plain load.
template <class TFunction>
TFunction* ChooseLoops(TFunction* aWide, TFunction* aCommon) {
  return HasWideLoops() ? aWide : aCommon;
}

}  // namespace GeometryEngine::detail
