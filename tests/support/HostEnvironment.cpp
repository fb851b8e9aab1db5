#include "tests/support/HostEnvironment.h"

#include <cstring>

#if defined(__x86_64__)
#include <xmmintrin.h>
#endif

namespace GeometryEngine::support {

namespace {

void FlushDenormals() {
#if defined(__x86_64__)
  constexpr unsigned kFlushToZero = 0x8000;
  constexpr unsigned kDenormalsAreZero = 0x0040;
  _mm_setcsr(_mm_getcsr() | kFlushToZero | kDenormalsAreZero);
#endif
}

}  // namespace

void PrintTo(const TEnvironmentKind& aKind, std::ostream* aOut) {
  *aOut << aKind.name;
}

THostEnvironment::THostEnvironment(const TEnvironmentKind& aKind) {
  std::memset(&fHosts, 0, sizeof fHosts);
  std::fegetenv(&fBefore);
  std::feclearexcept(FE_ALL_EXCEPT);
  std::fesetround(aKind.rounding);
  if (aKind.flushesDenormals) FlushDenormals();
  feenableexcept(aKind.traps);
  std::fegetenv(&fHosts);
}

THostEnvironment::~THostEnvironment() {
  End();
}

bool THostEnvironment::IsUnchanged() const {
  std::fenv_t now;
  std::memset(&now, 0, sizeof now);
  std::fegetenv(&now);
  return std::memcmp(&now, &fHosts, sizeof now) == 0;
}

void THostEnvironment::End() const {
  std::fesetenv(&fBefore);
}

}  // namespace GeometryEngine::support
