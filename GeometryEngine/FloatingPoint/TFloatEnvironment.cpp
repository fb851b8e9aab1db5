#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"

namespace GeometryEngine {

// The environment holds the control word of the vector unit too, with its traps, its rounding and its two modes of
// flushing denormals.
TFloatEnvironment::TFloatEnvironment() {
  std::fegetenv(&fHostEnvironment);
  std::fesetenv(FE_DFL_ENV);
}

TFloatEnvironment::~TFloatEnvironment() {
  std::fesetenv(&fHostEnvironment);
}

}  // namespace GeometryEngine
