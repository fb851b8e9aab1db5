#pragma once

// Measures along one line or arc as the drawing has it, from its start to its end.

#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/TravelledPiece.h"

namespace xsec {

inline bool IsArc(const GeometryEngine::TDXFEntity& aEntity) {
  return aEntity.EntityType == GeometryEngine::DXFArc;
}

/// Whether an end of the entity, or a point near the entity, is on an arc's circle, under the tolerance.
bool IsOnCurve(const GeometryEngine::TDXFEntity& aEntity, const Point& aEnd);

/// How far along the entity the point, or the point of the entity closest to it, lies. UNITS: millimetres.
/// RANGE: points beyond the start lie below 0, points beyond the end above the length.
double PositionOf(const GeometryEngine::TDXFEntity& aEntity, const Point& aPoint);

double LengthOf(const GeometryEngine::TDXFEntity& aEntity);
double DistanceTo(const GeometryEngine::TDXFEntity& aEntity, const Point& aPoint);

/// Puts points in order along the entity. COST: n log n
void SortAlong(const GeometryEngine::TDXFEntity& aEntity, std::vector<Point>& aPoints);

/// Whether both arcs are the halves of a circle, one behind the other as reading makes them.
bool AreHalves(const GeometryEngine::TDXFEntity& aFirst, const GeometryEngine::TDXFEntity& aSecond);

/// An arc of that circle between two points on it, its angles taken from them.
GeometryEngine::TDXFEntity ArcBetween(const Point& aStart, const Point& aEnd, const Point& aCentre, double aRadius);

/// The part of the entity between two points on it, the first of them closer to its start. Where one is beside an arc's
/// circle by the tolerance or more, the piece has a circle through both: of the same radius while the chord is shorter
/// than that, else about the centre moved along the chord.
GeometryEngine::TDXFEntity PieceBetween(const GeometryEngine::TDXFEntity& aEntity, const Point& aStart,
                                        const Point& aEnd);

/// The pieces between points on the entity, in order along it. Where points are the same, the first of them counts.
std::vector<GeometryEngine::TDXFEntity> PiecesAt(const GeometryEngine::TDXFEntity& aEntity, std::vector<Point> aCuts);

}  // namespace xsec
