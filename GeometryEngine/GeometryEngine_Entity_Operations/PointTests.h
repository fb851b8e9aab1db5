#pragma once

// Where a point is with respect to one line or arc: beside it, on it, within its sweep, how far from it. Whether a
// point is inside a chain is asked of TEntityStorage.
//
// A not-a-number coordinate is never on, inside or within anything.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// Positive when the point is left of the line from start to end, negative when right, exactly 0 on it: twice the
/// signed area of the triangle.
/// UNITS: drawing length squared.
/// RANGE: never strictly between -1e-5 and 1e-5 but 0, a fixed dead band that the linear tolerance has no part in.
GEOMETRYENGINE_API double IsPointLeft_Line(const TEntityCoordinate& aPoint, const TEntityCoordinate& aLineStart,
                                           const TEntityCoordinate& aLineEnd);

/// True inside the circular segment that the arc's chord cuts off: strictly inside the circle, within the sweep, and on
/// the chord or on the arc's side of it. An arc of more than 180 degrees takes in its whole sector instead.
GEOMETRYENGINE_API bool IsPointInside_Arc(const TEntityCoordinate& aPoint, const TDXFEntity& aEntity);

/// True when the point is on the circle within the linear tolerance and is an end of the arc or within its sweep.
GEOMETRYENGINE_API bool PointTouchingArc(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint);

/// True when the point is an end of the line, or lies between the ends with a height that is the line's within the
/// linear tolerance. A line whose ends' x are the same under the tolerance goes by heights alone.
/// On purpose: the extent (x, or y of an upright line) is compared without tolerance. A point a hair beyond an end is
/// on the line only by being that end.
GEOMETRYENGINE_API bool PointOnLine(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint);

/// True when the direction of the point from the arc's centre lies in the sweep; the distance plays no part.
GEOMETRYENGINE_API bool PointWithinArcSweep(const TEntityCoordinate& aPoint, const TDXFEntity& aEntity);

/// True when the angle lies in the sweep, both ends included within the angle tolerance.
/// UNITS: degrees, any range.
GEOMETRYENGINE_API bool AngleWithinArcSweep(double aAngle, const TDXFEntity& aEntity);

/// The mean of a line's ends; the point half-way along an arc.
/// DEGENERATE: the start of an arc of radius 0; (0, 0) for other kinds of entity.
GEOMETRYENGINE_API TEntityCoordinate GetEntityMidPoint(const TDXFEntity& aEntity);

/// Distance to the nearest point of the segment.
/// DEGENERATE: to its start when it has no length.
GEOMETRYENGINE_API double PointToSegmentDistance(const TEntityCoordinate& aPoint, const TEntityCoordinate& aSegStart,
                                                 const TEntityCoordinate& aSegEnd);

}  // namespace GeometryEngine
