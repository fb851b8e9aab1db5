#pragma once

// The floating-point environment that the library computes in, for as long as it computes.

#include <cfenv>
#include <cstdint>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// Gives the thread the default floating-point environment, and gives it back the one that it had.
///
/// The library divides by zero and takes roots of negative numbers on purpose, since later tests turn away what comes
/// of it, and its answers hold for rounding to nearest with denormals kept. A host may run otherwise: with traps
/// unmasked, with another rounding mode, with denormals flushed to zero. The calls that compute for long hold a guard
/// of their own: the passes of `TEntityBaseClass`, the tracing of regions, the offset of a chain, the pole search, and
/// the outputs of a region node. The others, too many and too short for it, do not: a host that runs with traps, or in
/// another rounding mode, holds a guard round them.
///
///     const TFloatEnvironment environment;
///     const double area = chain.GetClosedArea();
///
/// While the guard lives: no exception traps, rounding is to nearest, denormals are numbers like others. At its end all
/// is as it was, the flags of exceptions raised before included; those raised meanwhile are gone. Guards may be nested.
/// Functions should compute behind the guard in calls of their own, since a compiler may move plain arithmetic of the
/// same function across it.
///
/// REQUIRES: the guard ends on the thread on which it began. COST: some ten cycles in a host that runs in the default
/// environment itself, some hundred in others.
class GEOMETRYENGINE_API TFloatEnvironment {
 public:
  TFloatEnvironment();
  ~TFloatEnvironment();
  TFloatEnvironment(const TFloatEnvironment&) = delete;
  TFloatEnvironment& operator=(const TFloatEnvironment&) = delete;

 private:
  bool fHostHasDefault;  ///< but for its flags
  std::uint32_t fHostVectorWord;
  std::fenv_t fHostEnvironment;  ///< of a host that has another
};

}  // namespace GeometryEngine
