#pragma once

namespace GeometryEngine::detail {

/// Has memory fetch what stands at an address, without waiting for it.
///
/// Functions that do nothing else are inline by force, like this one: to g++ they look as if they could be left out.
[[gnu::always_inline]] inline void FetchAhead(const void* aAddress) {
#ifdef __GNUC__
  __builtin_prefetch(aAddress);
#else
  static_cast<void>(aAddress);
#endif
}

}  // namespace GeometryEngine::detail
