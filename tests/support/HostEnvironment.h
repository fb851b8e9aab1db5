#pragma once

// Hosts that compute in a floating-point environment of their own.

#include <cfenv>
#include <ostream>

namespace GeometryEngine::support {

struct TEnvironmentKind {
  const char* name = "";
  int traps = 0;  ///< exceptions that trap, as fenv.h names them
  int rounding = FE_TONEAREST;
  bool flushesDenormals = false;  ///< results and operands, where the processor can
};

inline constexpr TEnvironmentKind kEnvironmentKinds[] = {{"Usual", 0, FE_TONEAREST, false},
                                                         {"EveryTrap", FE_ALL_EXCEPT, FE_TONEAREST, false},
                                                         {"Upward", 0, FE_UPWARD, false},
                                                         {"Downward", 0, FE_DOWNWARD, false},
                                                         {"TowardZero", 0, FE_TOWARDZERO, false},
                                                         {"Flushing", 0, FE_TONEAREST, true},
                                                         {"AllAtOnce", FE_ALL_EXCEPT, FE_UPWARD, true}};

void PrintTo(const TEnvironmentKind& aKind, std::ostream* aOut);

/// The thread runs in such an environment until `End` or the end of the object.
///
/// REQUIRES: as little as possible in between but the calls under test, since a test's own arithmetic traps too.
class THostEnvironment {
 public:
  explicit THostEnvironment(const TEnvironmentKind& aKind);
  ~THostEnvironment();
  THostEnvironment(const THostEnvironment&) = delete;
  THostEnvironment& operator=(const THostEnvironment&) = delete;

  /// Whether traps, rounding, flushing and the flags of exceptions are those that the host set.
  bool IsUnchanged() const;
  void End() const;

 private:
  std::fenv_t fBefore;
  std::fenv_t fHosts;
};

}  // namespace GeometryEngine::support
