#include "GeometryEngine/GeometryEngine_Definitions/TCoordinate_3D.h"

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"

namespace GeometryEngine {

void TCoordinate_3D::SetValues(double x_, double y_, double z_) {
  x = x_;
  y = y_;
  z = z_;
}

void TCoordinate_3D::MoveAlongVector(const TVector_Single& aVector, double aDistance) {
  const TVector_Single direction = aVector.Normalised();
  x += aDistance * static_cast<double>(direction.x);
  y += aDistance * static_cast<double>(direction.y);
  z += aDistance * static_cast<double>(direction.z);
}

TCoordinate_3D TCoordinate_3D::CopyCoordinate_3D() const {
  return *this;
}

bool operator==(const TCoordinate_3D& aCoord_A, const TCoordinate_3D& aCoord_B) {
  return ValuesSame_DXFTolerance(aCoord_A.x, aCoord_B.x) && ValuesSame_DXFTolerance(aCoord_A.y, aCoord_B.y) &&
         ValuesSame_DXFTolerance(aCoord_A.z, aCoord_B.z);
}

bool operator!=(const TCoordinate_3D& aCoord_A, const TCoordinate_3D& aCoord_B) {
  return !(aCoord_A == aCoord_B);
}

}  // namespace GeometryEngine
