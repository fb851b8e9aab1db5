#pragma once

#include <cstddef>
#include <functional>

namespace GeometryEngine::support {

/// Frames are larger without optimisation and under sanitizers, so that stacks are too in such builds.
#ifdef NDEBUG
inline constexpr std::size_t kStackFactor = 1;
#else
inline constexpr std::size_t kStackFactor = 8;
#endif

/// Runs `aFunction` to its end on a thread whose stack has `aBytes` (times the factor above), to show that depth of the
/// input costs no stack.
/// What the function throws is thrown on. An overrun ends the whole program, as it would in a host.
void RunWithStack(std::size_t aBytes, const std::function<void()>& aFunction);

}  // namespace GeometryEngine::support
