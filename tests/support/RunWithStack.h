#pragma once

#include <cstddef>
#include <functional>

namespace GeometryEngine::support {

/// Runs `aFunction` to its end on a thread whose stack has `aBytes`, to show that depth of the input costs no stack.
/// What the function throws is thrown on. An overrun ends the whole program, as it would in a host.
void RunWithStack(std::size_t aBytes, const std::function<void()>& aFunction);

}  // namespace GeometryEngine::support
