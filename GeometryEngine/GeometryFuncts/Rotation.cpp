#include "GeometryEngine/GeometryFuncts/Rotation.h"

#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"
#include "GeometryEngine/GeometryCreation_Drawing/CoordinateCleaning.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

TRotationMatrix GetRotationMatrix(double aAngle) {
  const auto [sine, cosine] = detail::GetSineCosine(aAngle * kRadiansPerDegree);
  return {{{cosine, -sine}, {sine, cosine}}};
}

TEntityCoordinate RotateByAngle_Matrix(const TRotationMatrix& aMatrix, const TEntityCoordinate& aCoordinate) {
  // KEPT: a first element of exactly 1 is the identity, whatever the other three hold, and skips the cleaning too;
  // a rotation by nothing gives back the very bits that it was given.
  if (aMatrix[0][0] == 1.0) return aCoordinate;
  return CheckCoordinate({aCoordinate.x * aMatrix[0][0] + aCoordinate.y * aMatrix[0][1],
                          aCoordinate.x * aMatrix[1][0] + aCoordinate.y * aMatrix[1][1]});
}

TEntityCoordinate RotateByAngle_AboutPoint_Matrix(const TRotationMatrix& aMatrix, const TEntityCoordinate& aPoint,
                                                  const TEntityCoordinate& aCoordinate) {
  return RotateByAngle_Matrix(aMatrix, aCoordinate - aPoint) + aPoint;
}

TEntityCoordinate RotateByAngle(double aAngle, double x, double y) {
  return RotateByAngle_Matrix(GetRotationMatrix(aAngle), {x, y});
}

}  // namespace GeometryEngine
