#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"
#include "GeometryEngine/GeometryEngine_Plane/TPlane.h"

namespace GeometryEngine {

namespace {

// The basis vector's components as doubles; the projections are wholly in double precision.
TCoordinate_3D Widened(const TVector_Single& aVector) {
  return {static_cast<double>(aVector.x), static_cast<double>(aVector.y), static_cast<double>(aVector.z)};
}

double Dot(const TCoordinate_3D& aLeft, const TCoordinate_3D& aRight) {
  return aLeft.x * aRight.x + aLeft.y * aRight.y + aLeft.z * aRight.z;
}

}  // namespace

TEntityCoordinate TEntityCoordinate::New(double aX, double aY) {
  return {aX, aY};
}

TCoordinate_3D TEntityCoordinate::GetCoordinate_3D(const TPlane& aPlane) const {
  const TCoordinate_3D& origin = aPlane.Origin();
  const TCoordinate_3D u = Widened(aPlane.Vector_X());
  const TCoordinate_3D v = Widened(aPlane.Vector_Y());
  return {origin.x + x * u.x + y * v.x, origin.y + x * u.y + y * v.y, origin.z + x * u.z + y * v.z};
}

bool operator==(const TEntityCoordinate& aEntityCoord_A, const TEntityCoordinate& aEntityCoord_B) {
  return detail::AreSame(aEntityCoord_A.x, aEntityCoord_B.x, detail::ReadLinearTolerance()) &&
         detail::AreSame(aEntityCoord_A.y, aEntityCoord_B.y, detail::ReadLinearTolerance());
}

bool operator!=(const TEntityCoordinate& aEntityCoord_A, const TEntityCoordinate& aEntityCoord_B) {
  return !(aEntityCoord_A == aEntityCoord_B);
}

TEntityCoordinate GetCoordinate_2D(const TCoordinate_3D& aCoordinate, const TPlane& aPlane) {
  const TCoordinate_3D& origin = aPlane.Origin();
  const TCoordinate_3D d = {aCoordinate.x - origin.x, aCoordinate.y - origin.y, aCoordinate.z - origin.z};
  return {Dot(d, Widened(aPlane.Vector_X())), Dot(d, Widened(aPlane.Vector_Y()))};
}

}  // namespace GeometryEngine
