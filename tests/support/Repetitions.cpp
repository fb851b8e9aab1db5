#include "tests/support/Repetitions.h"

#include <cstdlib>

namespace GeometryEngine::support {

int Repetitions(int aTimes) {
  const char* factor = std::getenv("RELIABILITY_TIMES");
  return factor == nullptr ? aTimes : aTimes * std::atoi(factor);
}

}  // namespace GeometryEngine::support
