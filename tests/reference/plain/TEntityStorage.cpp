#include "tests/reference/plain/TEntityStorage.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/host/Numerics.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

bool ShareBothEnds(const TDXFEntity& A, const TDXFEntity& B) {
  return (Same(A.StartCoords, B.StartCoords) && Same(A.EndCoords, B.EndCoords)) ||
         (Same(A.StartCoords, B.EndCoords) && Same(A.EndCoords, B.StartCoords));
}

bool IsLoopOfOneOrTwo(const TEntityArray& aChain) {
  return aChain.size() == 1 || (aChain.size() == 2 && ShareBothEnds(aChain[0], aChain[1]));
}

/// The end of the first entity that the second doesn't touch.
TEntityCoordinate FreeEnd(const TDXFEntity& aFirst, const TDXFEntity& aSecond) {
  for (const TEntityCoordinate& shared : {aFirst.StartCoords, aFirst.EndCoords}) {
    if (Plain::IsEntityEnd(aSecond, shared)) return Plain::GetEntityEndCoordinate(shared, aFirst);
  }
  return {};
}

/// Calls `aStep(entity, from, to)` along the chain.
template <typename TStep>
void Walk(const TEntityArray& aChain, TEntityCoordinate aFrom, const TStep& aStep) {
  for (const TDXFEntity& entity : aChain) {
    const TEntityCoordinate to = Plain::GetEntityEndCoordinate(aFrom, entity);
    aStep(entity, aFrom, to);
    aFrom = to;
  }
}

bool IsPointOn(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint) {
  if (aEntity.EntityType == DXFLine) return Plain::PointOnLine(aEntity, aPoint);
  return aEntity.EntityType == DXFArc && Plain::PointTouchingArc(aEntity, aPoint);
}

double Squared(const TEntityCoordinate& aPoint) {
  return aPoint.x * aPoint.x + aPoint.y * aPoint.y;
}

}  // namespace

double DistanceToPolyline(const TCoordinateArray& aPolyline, const TEntityCoordinate& aPoint) {
  double distance = kInfinity;
  if (aPolyline.size() < 2) return distance;
  for (std::size_t i = 0; i < aPolyline.size(); ++i) {
    const TEntityCoordinate& next = aPolyline[i + 1 == aPolyline.size() ? 0 : i + 1];
    distance = std::min(distance, Plain::PointToSegmentDistance(aPoint, aPolyline[i], next));
  }
  return distance;
}

TIndex IndexOf(const TCoordinateArray& aCoordinates, const TEntityCoordinate& aCoordinate) {
  for (std::size_t i = 0; i < aCoordinates.size(); ++i) {
    if (Same(aCoordinates[i], aCoordinate)) return ToIndex(i);
  }
  return kNotFound;
}

TIndex IndexOf(const TEntityArray& aEntities, const TDXFEntity& aEntity) {
  for (std::size_t i = 0; i < aEntities.size(); ++i) {
    if (Same(aEntities[i], aEntity)) return ToIndex(i);
  }
  return kNotFound;
}

void AddEntities_CheckDuplicate(TEntityArray& aEntities, const TEntityArray& aAdded) {
  for (const TDXFEntity& entity : aAdded) {
    if (Plain::IndexOf(aEntities, entity) == kNotFound) aEntities.push_back(entity);
  }
}

// Container ----------------------------------------------------------------------------------------------------------

void TEntityStorage::AddEntities(const TEntityArray& aEntities) {
  fEntities.insert(fEntities.end(), aEntities.begin(), aEntities.end());
}

TIndex TEntityStorage::IndexOf(const TDXFEntity& aEntity) const {
  return Plain::IndexOf(fEntities, aEntity);
}

void TEntityStorage::RemoveEntityFromArray(const TDXFEntity& aEntity) {
  const TIndex index = IndexOf(aEntity);
  if (index != kNotFound) fEntities.erase(fEntities.begin() + index);
}

void TEntityStorage::RemoveEntities(const TEntityArray& aEntities) {
  for (const TDXFEntity& entity : aEntities) RemoveEntityFromArray(entity);
}

void TEntityStorage::QuickSortArray(TIndex aLow, TIndex aHigh) {
  GeometryEngine::TEntityStorage sorter;
  sorter.AddEntities(fEntities);
  sorter.QuickSortArray(aLow, aHigh);
  fEntities = sorter.EntityArray();
}

// Chain --------------------------------------------------------------------------------------------------------------

TEntityCoordinate TEntityStorage::GetStartCoordinate() const {
  if (fEntities.empty()) return {};
  return IsLoopOfOneOrTwo(fEntities) ? fEntities[0].StartCoords : FreeEnd(fEntities[0], fEntities[1]);
}

TEntityCoordinate TEntityStorage::GetEndCoordinate() const {
  if (fEntities.empty()) return {};
  if (IsLoopOfOneOrTwo(fEntities)) return fEntities[0].EndCoords;
  return FreeEnd(fEntities.back(), fEntities[fEntities.size() - 2]);
}

TIndex TEntityStorage::FindVertex(const TEntityCoordinate& aVertex) const {
  return fEntities.size() < 2 ? kNotFound : Plain::IndexOf(GetVertices(), aVertex);
}

TDXFEntity TEntityStorage::GetEntity_Next(const TEntityCoordinate& aVertex) const {
  const TIndex index = FindVertex(aVertex);
  return index == kNotFound ? TDXFEntity{} : fEntities[static_cast<std::size_t>(index)];
}

TDXFEntity TEntityStorage::GetEntity_Previous(const TEntityCoordinate& aVertex) const {
  const TIndex index = FindVertex(aVertex);
  if (index == kNotFound) return {};
  return index == 0 ? fEntities.back() : fEntities[static_cast<std::size_t>(index) - 1];
}

void TEntityStorage::ReOrderEntities(const TEntityCoordinate& aCoordinate) {
  const TIndex first = FindVertex(aCoordinate);
  if (first != kNotFound) std::rotate(fEntities.begin(), fEntities.begin() + first, fEntities.end());
}

void TEntityStorage::ReverseEntities() {
  std::reverse(fEntities.begin(), fEntities.end());
}

TCoordinateArray TEntityStorage::GetVertices() const {
  TCoordinateArray vertices;
  Walk(fEntities, GetStartCoordinate(),
       [&](const TDXFEntity&, const TEntityCoordinate& from, const TEntityCoordinate&) { vertices.push_back(from); });
  return vertices;
}

TCoordinateArray TEntityStorage::GetVertices_Surf(bool aIncludeMidPoint) const {
  TCoordinateArray points;
  const auto addPoints = [&](const TDXFEntity& entity, const TEntityCoordinate& from, const TEntityCoordinate& to) {
    if (entity.EntityType == DXFLine) points.push_back(from);
    if (entity.EntityType == DXFLine && aIncludeMidPoint) points.push_back((from + to) / 2);
    if (entity.EntityType != DXFArc) return;
    const TArcWalk walk = Plain::WalkArc_Surf(entity, from).Limited();
    for (std::int32_t k = 0; k < walk.fCount; ++k) points.push_back(walk.Point(k));
  };
  Walk(fEntities, GetStartCoordinate(), addPoints);
  return points;
}

// Bounds -------------------------------------------------------------------------------------------------------------

void TEntityStorage::CalculateMinMaxValues() {
  fMin = {kInfinity, kInfinity};
  fMax = {-kInfinity, -kInfinity};
  for (const TDXFEntity& entity : fEntities) {
    fMax.x = std::max(fMax.x, Plain::GetRightMostCoordinate(entity).x);
    fMax.y = std::max(fMax.y, Plain::GetUpperMostCoordinate(entity).y);
    fMin.x = std::min(fMin.x, Plain::GetLeftMostCoordinate(entity).x);
    fMin.y = std::min(fMin.y, Plain::GetLowerMostCoordinate(entity).y);
  }
}

void TEntityStorage::CalculateMinMaxValues_RT() {
  fMin_RT = {kInfinity, kInfinity};
  fMax_RT = {-kInfinity, -kInfinity};
  for (const TEntityCoordinate& point : GetVertices_Surf(true)) {
    const auto [r, angle] = XY_To_RT(point.x, point.y);
    fMin_RT = {std::min(fMin_RT.x, r), std::min(fMin_RT.y, angle)};
    fMax_RT = {std::max(fMax_RT.x, r), std::max(fMax_RT.y, angle)};
  }
}

double TEntityStorage::GetRadius_Maximum() const {
  double radius = fEntities.empty() ? 0 : -1e9;
  for (const TDXFEntity& entity : fEntities) {
    radius = std::max(radius, std::sqrt(Squared(entity.StartCoords)));
    radius = std::max(radius, std::sqrt(Squared(entity.EndCoords)));
  }
  return radius;
}

double TEntityStorage::GetRadius_Minimum() const {
  double radius = fEntities.empty() ? 0 : 1e9;
  for (const TDXFEntity& entity : fEntities) {
    radius = std::min(radius, std::sqrt(Squared(entity.StartCoords)));
    radius = std::min(radius, std::sqrt(Squared(entity.EndCoords)));
  }
  return radius;
}

double TEntityStorage::GetRadius_MaximumSurf() const {
  double squared = fEntities.empty() ? 0 : -1e9;
  for (const TEntityCoordinate& point : GetVertices_Surf(false)) squared = std::max(squared, Squared(point));
  return std::sqrt(squared);
}

// Measures -----------------------------------------------------------------------------------------------------------

bool TEntityStorage::PointOnEntities(const TEntityCoordinate& aPoint) const {
  return std::ranges::any_of(fEntities, [&](const TDXFEntity& aEntity) { return IsPointOn(aEntity, aPoint); });
}

bool TEntityStorage::PointInsideEntities(const TEntityCoordinate& aPoint, bool aIncludePointOnEntity) const {
  if (PointOnEntities(aPoint)) return aIncludePointOnEntity;
  std::int64_t winding = 0;
  Walk(fEntities, fStartCoordinate,
       [&](const TDXFEntity& entity, const TEntityCoordinate& from, const TEntityCoordinate& to) {
         winding += Plain::GetWindingNumber_Entity_Addition(entity, from, to, aPoint);
       });
  return winding > 0;
}

double TEntityStorage::GetClosedArea() const {
  double area = 0;
  Walk(fEntities, GetStartCoordinate(),
       [&](const TDXFEntity& entity, const TEntityCoordinate& from, const TEntityCoordinate& to) {
         area += Plain::GetSignedArea_Entity(from, to, entity);
       });
  return area;
}

TEntityCoordinate TEntityStorage::GetCentroid() const {
  TEntityCoordinate sum;
  Walk(fEntities, GetStartCoordinate(),
       [&](const TDXFEntity& entity, const TEntityCoordinate& from, const TEntityCoordinate& to) {
         sum = sum + Plain::GetCentroidComponent_Entity(from, to, entity);
       });
  return (1 / (6 * GetClosedArea())) * sum;
}

double TEntityStorage::MinPointToEntitiesDistance(const TEntityCoordinate& aPoint) const {
  return Plain::DistanceToPolyline(GetVertices_Surf(false), aPoint);
}

}  // namespace GeometryEngine::Plain
