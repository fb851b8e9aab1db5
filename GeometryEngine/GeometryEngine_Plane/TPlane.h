#pragma once

// Planes in space. The maps between a plane and space are TEntityCoordinate::GetCoordinate_3D and GetCoordinate_2D.

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TCoordinate_3D.h"
#include "GeometryEngine/host/TVector_Single.h"

namespace GeometryEngine {

/// A plane given by an origin and two basis vectors, which need be neither of length 1 nor at right angles.
///
/// The origin is in double precision, the vectors and all that is computed with them alone in single; only the
/// arccosine and the degrees of the angle are in double. A vector has length 0 when its single-precision length is
/// exactly 0; products count as 0 within the single-precision resolution. A plane whose normal has
/// length 0, as a new one has, holds no point and coincides with no plane, itself included.
///
/// OWNS: nothing. Copied by CopyParameters only, since who created a plane frees it.
class GEOMETRYENGINE_API TPlane {
 public:
  /// Origin (0, 0, 0) and two zero vectors.
  TPlane();
  ~TPlane();
  TPlane(const TPlane&) = delete;
  TPlane& operator=(const TPlane&) = delete;

  const TCoordinate_3D& Origin() const;
  void Origin(const TCoordinate_3D& aOrigin);
  const TVector_Single& Vector_X() const;
  void Vector_X(const TVector_Single& aVector);
  const TVector_Single& Vector_Y() const;
  void Vector_Y(const TVector_Single& aVector);

  /// Takes over origin and both vectors.
  void CopyParameters(const TPlane& aPlane);
  /// Vector_X x Vector_Y, not normalised. DEGENERATE: zero when either vector has length 0 or they are parallel.
  TVector_Single GetNormalVector() const;
  TVector_Single NormalVector() const;
  /// UNITS: degrees. RANGE: 0 to 180. DEGENERATE: 0 when either vector has length 0.
  double GetAngleBetweenBasisVectors() const;
  double AngleBetweenBasisVectors() const;
  /// True when the way from the origin to the point is at right angles to the normal. False for the plane's own origin.
  bool PointOnPlane(const TCoordinate_3D& aCoordinate) const;
  /// True when the normals are parallel and the other plane's origin is this plane's, under the linear tolerance, or
  /// lies on it.
  bool Coincident(const TPlane& aPlane) const;

 private:
  TCoordinate_3D fOrigin;
  TVector_Single fVector_X;
  TVector_Single fVector_Y;
};

}  // namespace GeometryEngine
