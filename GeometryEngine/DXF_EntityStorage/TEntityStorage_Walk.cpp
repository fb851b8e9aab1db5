// The chain of a storage: its two ends, the vertex walk and what is found or listed along it.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_EntityStorage/detail/SurfaceSegments.h"
#include "GeometryEngine/DXF_EntityStorage/detail/VertexWalk.h"
#include "GeometryEngine/GeometryEngine_Arrays/EntityArrays.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordPoint.h"

namespace GeometryEngine {

namespace {

constexpr std::size_t kLeastSearched = 2;  // entities; a shorter chain has no neighbours to find

/// True when the two entities run between the same two vertices: as a chain they close on themselves.
bool ShareBothEnds(const TDXFEntity& aFirst, const TDXFEntity& aSecond) {
  const bool alongside = aFirst.StartCoords == aSecond.StartCoords && aFirst.EndCoords == aSecond.EndCoords;
  return alongside || (aFirst.StartCoords == aSecond.EndCoords && aFirst.EndCoords == aSecond.StartCoords);
}

/// True when the chain's end vertices are those of its first record: a single entity, or a loop of two.
bool FirstRecordHasBothEnds(const TEntityArray& aChain) {
  return aChain.size() == 1 || (aChain.size() == 2 && ShareBothEnds(aChain[0], aChain[1]));
}

/// Index of the first entity that begins at the vertex, else kNotFound.
TIndex FindVertex(const TEntityArray& aChain, const TEntityCoordinate& aStart, const TEntityCoordinate& aVertex) {
  if (aChain.size() < kLeastSearched) return kNotFound;
  for (detail::TVertexWalk walk(aChain, aStart); walk.Next();) {
    if (walk.From() == aVertex) return walk.Index();
  }
  return kNotFound;
}

void AddLinePoints(TCoordinateArray& aVertices, const detail::TVertexWalk& aWalk, bool aIncludeMidPoint) {
  aVertices.push_back(aWalk.From());
  if (aIncludeMidPoint) aVertices.push_back((aWalk.From() + aWalk.To()) / 2);
}

void AddArcPoints(TCoordinateArray& aVertices, const detail::TVertexWalk& aWalk) {
  const TDXFEntity& arc = aWalk.Entity();
  const double start_angle = GetEntityStartAngle_Arc(aWalk.From(), arc);
  const TTravelDirection direction = GetArcTravelDirection(start_angle, arc);
  const auto [aCount, aStep] = detail::GetSurfaceSegments(arc);
  detail::ForEachChordPoint(arc, detail::GetWalkedAngles(direction, start_angle, aStep), 0, std::int64_t{aCount} - 1,
                            [&](const TEntityCoordinate& aPoint) { aVertices.push_back(aPoint); });
}

}  // namespace

TEntityCoordinate TEntityStorage::GetStartCoordinate() const {
  if (fEntityArray.empty()) return {};
  if (FirstRecordHasBothEnds(fEntityArray)) return fEntityArray[0].StartCoords;
  return GetCommonCoordinate_StartEnd(fEntityArray[0], fEntityArray[1]);
}

TEntityCoordinate TEntityStorage::GetEndCoordinate() const {
  if (fEntityArray.empty()) return {};
  if (FirstRecordHasBothEnds(fEntityArray)) return fEntityArray[0].EndCoords;
  const std::size_t last = fEntityArray.size() - 1;
  return GetCommonCoordinate_StartEnd(fEntityArray[last], fEntityArray[last - 1]);
}

TEntityCoordinate TEntityStorage::GetCommonCoordinate_StartEnd(const TDXFEntity& aFirst, const TDXFEntity& aSecond) {
  const auto [aCoordinate, aIndex] = GetCommonCoordinate(aFirst, aSecond);
  return aIndex == 0 ? GetEntityEndCoordinate(aCoordinate, aFirst) : TEntityCoordinate{};
}

TEntityAtVertex TEntityStorage::GetEntity_Next(const TEntityCoordinate& aVertex) const {
  const TIndex index = FindVertex(fEntityArray, GetStartCoordinate(), aVertex);
  if (index == kNotFound) return {};
  return {GetEntityFromIndex(index), 0};
}

TEntityAtVertex TEntityStorage::GetEntity_Previous(const TEntityCoordinate& aVertex) const {
  const TIndex index = FindVertex(fEntityArray, GetStartCoordinate(), aVertex);
  if (index == kNotFound) return {};
  return {TEntityArray_Helper::GetEntity_Previous(fEntityArray, index), 0};
}

void TEntityStorage::ReOrderEntities(const TEntityCoordinate& aCoordinate) {
  const TIndex first = FindVertex(fEntityArray, GetStartCoordinate(), aCoordinate);
  if (first >= 1) std::rotate(fEntityArray.begin(), fEntityArray.begin() + first, fEntityArray.end());
}

void TEntityStorage::ReverseEntities() {
  std::reverse(fEntityArray.begin(), fEntityArray.end());
}

TCoordinateArray TEntityStorage::GetVertices() const {
  TCoordinateArray vertices;
  vertices.reserve(fEntityArray.size());
  for (detail::TVertexWalk walk(fEntityArray, GetStartCoordinate()); walk.Next();) {
    vertices.push_back(walk.From());
  }
  return vertices;
}

TCoordinateArray TEntityStorage::GetVertices_Surf(bool aIncludeMidPoint) const {
  TCoordinateArray vertices;
  vertices.reserve(fEntityArray.size());
  for (detail::TVertexWalk walk(fEntityArray, GetStartCoordinate()); walk.Next();) {
    if (walk.Entity().EntityType == DXFLine) AddLinePoints(vertices, walk, aIncludeMidPoint);
    if (walk.Entity().EntityType == DXFArc) AddArcPoints(vertices, walk);
  }
  return vertices;
}

}  // namespace GeometryEngine
