#pragma once

// Directions in space, in single precision. Points in space are TCoordinate_3D, in double precision.

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// A direction as the host's vector package keeps it. Lengths and products are computed in single precision throughout;
/// angles, which need more digits, are for the callers to compute in double.
struct GEOMETRYENGINE_API TVector_Single {
  float x = 0;
  float y = 0;
  float z = 0;

  /// DEGENERATE: 0 or infinite when the squares leave the single-precision range.
  float Length() const;
  float Dot(const TVector_Single& aOther) const;
  TVector_Single Cross(const TVector_Single& aOther) const;
  /// The vector of length 1 in the same direction; a vector of length 0 is returned unchanged.
  TVector_Single Normalised() const;
  TVector_Single operator+(const TVector_Single& aOther) const;
  TVector_Single operator-() const;
  TVector_Single operator*(float aNumber) const;
};

/// True when `aValue` is 0 within the single-precision resolution: when its magnitude is below 1e-7.
GEOMETRYENGINE_API bool IsZero_Single(float aValue);

}  // namespace GeometryEngine
