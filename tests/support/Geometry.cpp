#include "tests/support/Geometry.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace GeometryEngine {

namespace support {

namespace {

bool NumbersNear(double aLeft, double aRight, double aEps) {
  return aLeft == aRight || std::abs(aLeft - aRight) <= aEps;
}

bool CoordinatesNear(const TEntityCoordinate& aLeft, const TEntityCoordinate& aRight, double aEps) {
  return NumbersNear(aLeft.x, aRight.x, aEps) && NumbersNear(aLeft.y, aRight.y, aEps);
}

bool ArcFieldsNear(const TDXFEntity& aLeft, const TDXFEntity& aRight, double aEps) {
  return CoordinatesNear(aLeft.CentreCoords, aRight.CentreCoords, aEps) &&
         NumbersNear(aLeft.radius, aRight.radius, aEps) && NumbersNear(aLeft.startAngle, aRight.startAngle, aEps) &&
         NumbersNear(aLeft.endAngle, aRight.endAngle, aEps);
}

bool EntitiesNear(const TDXFEntity& aLeft, const TDXFEntity& aRight, double aEps) {
  if (aLeft.EntityType != aRight.EntityType) return false;
  if (aLeft.EntityType != DXFLine && aLeft.EntityType != DXFArc) return true;
  return CoordinatesNear(aLeft.StartCoords, aRight.StartCoords, aEps) &&
         CoordinatesNear(aLeft.EndCoords, aRight.EndCoords, aEps) &&
         (aLeft.EntityType == DXFLine || ArcFieldsNear(aLeft, aRight, aEps));
}

bool GeometryNear(const TGeometry& aLeft, const TGeometry& aRight, double aEps) {
  const auto coordinatesNear = [&](const auto& l, const auto& r) { return CoordinatesNear(l, r, aEps); };
  const auto entitiesNear = [&](const auto& l, const auto& r) { return EntitiesNear(l, r, aEps); };
  return std::ranges::equal(aLeft.coordinates, aRight.coordinates, coordinatesNear) &&
         std::ranges::equal(aLeft.entities, aRight.entities, entitiesNear);
}

bool IsEntityText(std::string_view aText) {
  const std::size_t first = aText.find_first_not_of(" \t\n;");
  return first != std::string_view::npos && std::string_view("LANR").find(aText[first]) != std::string_view::npos;
}

}  // namespace

TGeometry::TGeometry(std::string_view aText) {
  if (IsEntityText(aText)) {
    entities = ParseEntities(aText);
  } else {
    coordinates = ParseCoordinates(aText);
  }
}

std::string ToText(const TGeometry& aGeometry) {
  return aGeometry.entities.empty() ? ToText(aGeometry.coordinates) : ToText(aGeometry.entities);
}

TGeometryMatcher::TGeometryMatcher(TGeometry aExpected, std::optional<double> aEps)
    : fExpected(std::move(aExpected)), fEps(aEps) {}

bool TGeometryMatcher::MatchAndExplain(const TGeometry& aActual, std::ostream* aExplanation) const {
  if (aExplanation != nullptr) *aExplanation << "as text: " << ToText(aActual);
  return fEps ? GeometryNear(aActual, fExpected, *fEps) : ToText(aActual) == ToText(fExpected);
}

void TGeometryMatcher::DescribeTo(std::ostream* aOut) const {
  *aOut << (fEps ? "is within " + ToText(*fEps) + " of: " : "has the bits of: ") << ToText(fExpected);
}

void TGeometryMatcher::DescribeNegationTo(std::ostream* aOut) const {
  *aOut << "not: ";
  DescribeTo(aOut);
}

TGeometryMatcher IsBits(TGeometry aExpected) {
  return TGeometryMatcher(std::move(aExpected));
}

TGeometryMatcher IsBits(double aX, double aY) {
  return IsBits(TEntityCoordinate{aX, aY});
}

TGeometryMatcher IsNear(TGeometry aExpected, double aEps) {
  return TGeometryMatcher(std::move(aExpected), aEps);
}

TGeometryMatcher IsNear(double aX, double aY, double aEps) {
  return IsNear(TEntityCoordinate{aX, aY}, aEps);
}

}  // namespace support

void PrintTo(const TEntityCoordinate& aCoordinate, std::ostream* aOut) {
  *aOut << support::ToText(aCoordinate);
}

void PrintTo(const TDXFEntity& aEntity, std::ostream* aOut) {
  *aOut << support::ToText(aEntity);
}

}  // namespace GeometryEngine
