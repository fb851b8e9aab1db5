#pragma once

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// A direction in single precision, as the host's vector package keeps it.
struct GEOMETRYENGINE_API TVector_Single {
  float x = 0;
  float y = 0;
  float z = 0;

  float Length() const;
  float Dot(const TVector_Single& aOther) const;
  TVector_Single Cross(const TVector_Single& aOther) const;
  /// The vector of length 1 in the same direction; a vector of length 0 is returned unchanged.
  TVector_Single Normalised() const;
  TVector_Single operator+(const TVector_Single& aOther) const;
  TVector_Single operator-() const;
  TVector_Single operator*(float aNumber) const;
};

/// True when `aValue` is 0 within the single-precision resolution.
GEOMETRYENGINE_API bool IsZero_Single(float aValue);

}  // namespace GeometryEngine
