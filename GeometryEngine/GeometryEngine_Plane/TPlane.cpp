#include "GeometryEngine/GeometryEngine_Plane/TPlane.h"

#include <algorithm>
#include <cmath>

#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

// From `aFrom` to `aTo`; subtracted in double precision, so that far origins cost nothing.
TVector_Single Difference_Single(const TCoordinate_3D& aTo, const TCoordinate_3D& aFrom) {
  return {static_cast<float>(aTo.x - aFrom.x), static_cast<float>(aTo.y - aFrom.y),
          static_cast<float>(aTo.z - aFrom.z)};
}

bool IsZeroVector_Single(const TVector_Single& aVector) {
  return IsZero_Single(aVector.x) && IsZero_Single(aVector.y) && IsZero_Single(aVector.z);
}

}  // namespace

TPlane::TPlane() = default;

TPlane::~TPlane() = default;

const TCoordinate_3D& TPlane::Origin() const {
  return fOrigin;
}

void TPlane::Origin(const TCoordinate_3D& aOrigin) {
  fOrigin = aOrigin;
}

const TVector_Single& TPlane::Vector_X() const {
  return fVector_X;
}

void TPlane::Vector_X(const TVector_Single& aVector) {
  fVector_X = aVector;
}

const TVector_Single& TPlane::Vector_Y() const {
  return fVector_Y;
}

void TPlane::Vector_Y(const TVector_Single& aVector) {
  fVector_Y = aVector;
}

void TPlane::CopyParameters(const TPlane& aPlane) {
  fOrigin = aPlane.fOrigin;
  fVector_X = aPlane.fVector_X;
  fVector_Y = aPlane.fVector_Y;
}

TVector_Single TPlane::GetNormalVector() const {
  if (fVector_X.Length() == 0 || fVector_Y.Length() == 0) return {};
  const TVector_Single normal = fVector_X.Cross(fVector_Y);
  const double angle = GetAngleBetweenBasisVectors();
  // KEPT: the angle never exceeds 180, so the normal is never turned; an oriented angle would need this branch.
  return angle > kHalfTurn && angle < kFullTurn ? -normal : normal;
}

TVector_Single TPlane::NormalVector() const {
  return GetNormalVector();
}

double TPlane::GetAngleBetweenBasisVectors() const {
  const float length_X = fVector_X.Length();
  const float length_Y = fVector_Y.Length();
  if (length_X == 0 || length_Y == 0) return 0;
  const float cosine = fVector_X.Dot(fVector_Y) / (length_X * length_Y);
  // Single precision may leave the cosine of parallel vectors a hair outside -1 to 1.
  return std::acos(static_cast<double>(std::clamp(cosine, -1.0F, 1.0F))) * kDegreesPerRadian;
}

double TPlane::AngleBetweenBasisVectors() const {
  return GetAngleBetweenBasisVectors();
}

bool TPlane::PointOnPlane(const TCoordinate_3D& aCoordinate) const {
  const TVector_Single normal = GetNormalVector();
  const TVector_Single d = Difference_Single(aCoordinate, fOrigin);
  // KEPT: the plane's own origin is not reported as lying on it; Coincident asks for the origins first.
  if (normal.Length() == 0 || d.Length() == 0) return false;
  return IsZero_Single(normal.Dot(d));
}

bool TPlane::Coincident(const TPlane& aPlane) const {
  const TVector_Single normal_A = GetNormalVector();
  const TVector_Single normal_B = aPlane.GetNormalVector();
  if (normal_A.Length() == 0 || normal_B.Length() == 0) return false;
  if (!IsZeroVector_Single(normal_A.Cross(normal_B))) return false;
  return fOrigin == aPlane.fOrigin || PointOnPlane(aPlane.fOrigin);
}

}  // namespace GeometryEngine
