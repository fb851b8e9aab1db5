#include "xsec/ProcessLimits.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <string_view>

#include "xsec/Errors.h"

namespace xsec {

namespace {

// Runs in the middle of anything: nothing here allocates.
void EndForTime(int) {
  constexpr std::string_view kMessage = "xsec: the time given by --max-seconds is used up\n";
  const bool told = ::write(STDERR_FILENO, kMessage.data(), kMessage.size()) > 0;
  ::_exit(static_cast<int>(told ? ExitCode::LimitReached : ExitCode::UnexpectedFault));
}

template <typename TResource>
void Limit(TResource resource, std::uint64_t most) {
  rlimit limit{};
  ::getrlimit(resource, &limit);
  limit.rlim_cur = std::min<rlim_t>(most, limit.rlim_max);
  ::setrlimit(resource, &limit);
}

}  // namespace

void LimitProcess(const ProcessLimits& aLimits) {
  if (aLimits.seconds) {
    std::signal(SIGXCPU, &EndForTime);
    Limit(RLIMIT_CPU, *aLimits.seconds);
  }
  if (aLimits.memory) Limit(RLIMIT_AS, *aLimits.memory);
}

}  // namespace xsec
