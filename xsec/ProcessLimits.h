#pragma once

#include <cstdint>
#include <optional>

namespace xsec {

/// What the process may take of the machine.
struct ProcessLimits {
  std::optional<std::uint64_t> memory;   ///< UNITS: bytes of address space
  std::optional<std::uint64_t> seconds;  ///< of processor time, since the program began
};

/// Limits this process from now on. Where it asks for more memory, std::bad_alloc is thrown; where it takes more time,
/// it says so and ends with ExitCode::LimitReached. No output is left half written.
/// DEGENERATE: a limit above the one that the process was started with leaves that one.
void LimitProcess(const ProcessLimits& aLimits);

}  // namespace xsec
