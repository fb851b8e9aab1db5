// The parallel chain at a distance.

#include <cmath>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_EntityStorage/detail/SurfaceSegments.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TPointIndex.h"
#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"
#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/GeometryEngine_Arrays/CoordinateArrays.h"
#include "GeometryEngine/GeometryEngine_Arrays/detail/RingOrder.h"

namespace GeometryEngine {

namespace {

/// The unit normal to the right of the edge from one point to the next, in single precision.
TVector_Single GetRightNormal(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  const TVector_Single direction = GetVectorFromCoordinates(aFrom, aTo).Normalised();
  return {direction.y, -direction.x, 0};
}

/// A point pushed out along the bisector of its two edge normals by the mitre length: the distance divided by the
/// cosine of half the turn.
TEntityCoordinate GetOffsetPoint(const TEntityCoordinate& aPrevious, const TEntityCoordinate& aPoint,
                                 const TEntityCoordinate& aNext, double aDistance) {
  const TVector_Single arriving = GetRightNormal(aPrevious, aPoint);
  const TVector_Single leaving = GetRightNormal(aPoint, aNext);
  const float side = aDistance > 0 ? 1.0F : -1.0F;
  const TVector_Single bisector = ((leaving + arriving) * side).Normalised();
  const double cosine = std::sqrt((static_cast<double>(leaving.Dot(arriving)) + 1) / 2);
  const double mitre = std::abs(aDistance) / cosine;
  return {aPoint.x + mitre * static_cast<double>(bisector.x), aPoint.y + mitre * static_cast<double>(bisector.y)};
}

detail::TPointIndex GetIndex(const TCoordinateArray& aPoints) {
  detail::TPointIndex index;
  index.Reserve(aPoints.size());
  for (const TEntityCoordinate& point : aPoints) index.Add(point);
  return index;
}

/// A position along the points; one that has run past them, or that is none, reads as (0, 0).
TEntityCoordinate PointAt(std::span<const TEntityCoordinate> aPoints, TIndex aPosition) {
  return detail::GetElementOrEmpty(aPoints, aPosition);
}

/// The neighbours of a point are those of the first point of the polyline that is the same.
TCoordinateArray GetOffsetPoints(const TCoordinateArray& aPolyline, const detail::TPointIndex& aIndex,
                                 double aDistance) {
  TCoordinateArray points;
  points.reserve(aPolyline.size());
  for (const TEntityCoordinate& point : aPolyline) {
    const TIndex first = aIndex.FindFirst(point);
    const TEntityCoordinate previous = PointAt(aPolyline, detail::GetRingPrevious(first, aPolyline.size()));
    const TIndex behind = first == kNotFound ? kNotFound : detail::GetRingNext(first, aPolyline.size());
    points.push_back(GetOffsetPoint(previous, point, PointAt(aPolyline, behind), aDistance));
  }
  return points;
}

/// The entity that leaves the vertex found at the place, as `TEntityStorage::GetEntity_Next` answers it; nil for none.
const TDXFEntity* GetLeaving(const TEntityArray& aChain, TIndex aPlace) {
  return aChain.size() < 2 || aPlace == kNotFound ? nullptr : &aChain[static_cast<std::size_t>(aPlace)];
}

/// How many points of the polyline an entity gives.
TIndex GetPointCount(const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFArc) return detail::GetSurfaceSegments(aEntity).aCount;
  return aEntity.EntityType == DXFLine ? 1 : 0;
}

/// Where along the polyline each entity begins; behind the last one the polyline starts over.
std::vector<TIndex> GetFirstPoints(const TEntityArray& aChain) {
  std::vector<TIndex> first{0};
  for (const TDXFEntity& entity : aChain) first.push_back(first.back() + GetPointCount(entity));
  first.back() = 0;
  return first;
}

// KEPT: the radius is held against the distance whatever its sign, so that an arc too small to be offset inwards is
// straightened outwards too: a chain offset there and back has the same entities at every step.
// KEPT: an arc comes back anticlockwise from the first offset point to the second, also where the chain passes it
// clockwise; such an arc turns into its complement, and whoever offsets chains with hollow arcs puts them right.
TDXFEntity GetOffsetArc(const TDXFEntity& aArc, const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                        double aDistance) {
  if (!(aArc.radius > std::abs(aDistance))) return CreateEntity_Line(aFrom, aTo);
  return CreateEntity_Arc_StartEnd(aArc.CentreCoords.x, aArc.CentreCoords.y, aFrom.x, aFrom.y, aTo.x, aTo.y);
}

}  // namespace

void TEntityStorage::Offset(double aDistance) {
  const TFloatEnvironment environment;
  if (aDistance == 0) return;
  const TCoordinateArray polyline = GetVertices_Surf(false);
  const TCoordinateArray vertices = GetVertices();
  const detail::TPointIndex polylineIndex = GetIndex(polyline);
  const detail::TPointIndex vertexIndex = GetIndex(vertices);
  const TCoordinateArray points = GetOffsetPoints(polyline, polylineIndex, aDistance);
  const std::vector<TIndex> firstPoints = GetFirstPoints(fEntityArray);
  TEntityArray rebuilt;
  rebuilt.reserve(vertices.size());
  TIndex position = 0;
  for (TIndex i = 0; i < ToIndex(vertices.size()); ++i) {
    const TDXFEntity* entity = GetLeaving(fEntityArray, vertexIndex.FindFirst(PointAt(vertices, i)));
    const TEntityCoordinate from = PointAt(points, position);
    if (entity != nullptr && entity->EntityType == DXFArc) {
      position = polylineIndex.FindFirst(GetCoordinate_Next(vertices, i));
      // An arc whose ends stray from its circle begins beside its vertex, and the vertex is not found.
      if (position == kNotFound) position = firstPoints[static_cast<std::size_t>(i) + 1];
      rebuilt.push_back(GetOffsetArc(*entity, from, PointAt(points, position), aDistance));
    } else {
      rebuilt.push_back(CreateEntity_Line(from, PointAt(points, GetCoordinateIndex_Next(points, position))));
      ++position;
    }
  }
  fEntityArray = std::move(rebuilt);
}

}  // namespace GeometryEngine
