#pragma once

// Where two entities meet: crossings, touchings, shared ends, and the ends of stretches that overlap.
//
//   TInterceptionPoints points;
//   if (CheckIntercepts(entity, active, points)) record(points.Points());
//
// Each check appends what it finds to the list, in a fixed order, and answers whether any candidate was accepted, even
// one that the list held already. Nothing fails: a division by zero or the root of a negative number gives a candidate
// that is not a number, which no acceptance test takes.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/TInterceptionPoints.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// Picks the check by the two kinds.
/// DEGENERATE: false, and the list untouched, unless both are lines or arcs.
GEOMETRYENGINE_API bool CheckIntercepts(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B,
                                        TInterceptionPoints& aPoints);

/// Two lines, A the one that comes first in the sweep. At most one crossing; of parallel lines (slopes within 1e-6, or
/// both vertical) the ends of the overlap, those of B before those of A.
/// On purpose: a B that begins right of A is turned away, to the bit and on this side only; the sweep sees to the
/// other.
/// On purpose: where exactly one line is vertical, the point is held against that line's extent alone; the sweep has
/// bounded it by the other's already.
GEOMETRYENGINE_API bool CheckLineLineInterceptions(const TDXFEntity& aLine_A, const TDXFEntity& aLine_B,
                                                   TInterceptionPoints& aPoints);

/// A line and an arc in either order. Shared ends first, as the first argument has them; then the crossing of larger x
/// and that of smaller x, for a vertical line the upper and the lower one. A line that passes the circle so closely
/// that the discriminant is within 0.001 of 0 touches it in one point, which lies on the line and need not lie on the
/// circle.
/// On purpose: of an arc that passes 0 degrees the start angle is held against 360 where the point's own would be
/// expected; no angle in range ever gets there.
GEOMETRYENGINE_API bool CheckLineArcInterceptions(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B,
                                                  TInterceptionPoints& aPoints);

/// Two arcs. On one circle: the ends of the overlap, those of B before those of A. Circles that touch within the linear
/// tolerance, from outside or from inside: the touching point. Otherwise the crossing of larger x before that of
/// smaller x. Shared ends come last.
/// On purpose: centres at one height leave no crossing, only touchings and shared ends; centres that are the same with
/// radii that differ leave none either.
/// On purpose: for circles that touch, the list as a whole is cut down to points on B, and what is left of it decides
/// the answer; a caller hands over an empty list.
GEOMETRYENGINE_API bool CheckArcArcInterceptions(const TDXFEntity& aArc_A, const TDXFEntity& aArc_B,
                                                 TInterceptionPoints& aPoints);

/// Where on the arc such a point lies: `aStartValue` at its start, `aEndValue` at its end, so that ends get exactly the
/// angles that the caller has for them, else the direction from the centre, offsets below the linear tolerance taken
/// for 0.
/// UNITS: degrees.
/// RANGE: 0 to below 360, apart from the two values.
GEOMETRYENGINE_API double GetArcInterceptAngle(const TEntityCoordinate& aPoint, const TDXFEntity& aArc,
                                               double aStartValue, double aEndValue);

}  // namespace GeometryEngine
