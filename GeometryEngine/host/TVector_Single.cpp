#include "GeometryEngine/host/TVector_Single.h"

#include <cmath>

namespace GeometryEngine {

namespace {
constexpr float kSingleResolution = 1e-7F;  // no unit: magnitudes below it count as 0
}  // namespace

float TVector_Single::Length() const {
  return std::sqrt(Dot(*this));
}

float TVector_Single::Dot(const TVector_Single& aOther) const {
  return x * aOther.x + y * aOther.y + z * aOther.z;
}

TVector_Single TVector_Single::Cross(const TVector_Single& aOther) const {
  return {y * aOther.z - z * aOther.y, z * aOther.x - x * aOther.z, x * aOther.y - y * aOther.x};
}

TVector_Single TVector_Single::Normalised() const {
  const float length = Length();
  if (length == 0) return *this;
  return {x / length, y / length, z / length};
}

TVector_Single TVector_Single::operator+(const TVector_Single& aOther) const {
  return {x + aOther.x, y + aOther.y, z + aOther.z};
}

TVector_Single TVector_Single::operator-() const {
  return {-x, -y, -z};
}

TVector_Single TVector_Single::operator*(float aNumber) const {
  return {x * aNumber, y * aNumber, z * aNumber};
}

bool IsZero_Single(float aValue) {
  return std::abs(aValue) < kSingleResolution;
}

}  // namespace GeometryEngine
