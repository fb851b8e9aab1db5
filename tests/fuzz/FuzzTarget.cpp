#include "tests/fuzz/FuzzTarget.h"

#include <cstdio>
#include <cstdlib>

namespace fuzz {

void Require(bool aHolds, const char* aWhat) {
  if (aHolds) return;
  std::fprintf(stderr, "does not hold: %s\n", aWhat);
  std::abort();
}

}  // namespace fuzz
