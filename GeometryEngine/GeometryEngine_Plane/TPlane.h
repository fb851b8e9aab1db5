#pragma once

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TCoordinate_3D.h"
#include "GeometryEngine/host/TVector_Single.h"

namespace GeometryEngine {

class GEOMETRYENGINE_API TPlane {
 public:
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

  void CopyParameters(const TPlane& aPlane);
  TVector_Single GetNormalVector() const;
  TVector_Single NormalVector() const;
  /// Degrees, 0 to 180; 0 when either basis vector has length 0.
  double GetAngleBetweenBasisVectors() const;
  double AngleBetweenBasisVectors() const;
  bool PointOnPlane(const TCoordinate_3D& aCoordinate) const;
  bool Coincident(const TPlane& aPlane) const;

 private:
  TCoordinate_3D fOrigin;
  TVector_Single fVector_X;
  TVector_Single fVector_Y;
};

}  // namespace GeometryEngine
