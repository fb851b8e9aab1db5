#pragma once

// The way to make lines and arcs from raw numbers. Arcs made here are consistent: from a centre and angles follow the
// ends, from ends follow radius and angles, from two ends and a signed radius follows the centre. TDXFEntity::Line and
// TDXFEntity::Arc store what they are given and check nothing.
//
// UNITS: lengths in drawing units, angles in degrees, anticlockwise from the positive x axis.
// Tags of the new entity keep their starting values. Snapping follows the host's mode, see CoordinateCleaning.h; in
// mode 0 the components of an arc's stored centre that are below 1e-9 become 0.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// A line between two points.
/// On purpose: of the cleaning only not-a-number becomes 0; infinities stay and nothing is snapped, so that a line
/// keeps the very coordinates of its drawing.
GEOMETRYENGINE_API TDXFEntity CreateEntity_Line(double x1, double y1, double x2, double y2);
GEOMETRYENGINE_API TDXFEntity CreateEntity_Line(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd);

/// An arc round a centre. The centre is cleaned; radius and angles are stored as given, neither cleaned nor brought
/// into 0 to 360; the ends are computed from what is stored and not cleaned.
GEOMETRYENGINE_API TDXFEntity CreateEntity_Arc(double centreX, double centreY, double radius, double startAngle,
                                               double endAngle);

/// An arc round a centre from one end to the other, anticlockwise. All six values are cleaned. The radius is the mean
/// of the distances of the two ends, which need not agree: the ends are stored as they are and not moved onto the
/// circle.
/// RANGE: both angles are above -180 and at most 180.
GEOMETRYENGINE_API TDXFEntity CreateEntity_Arc_StartEnd(double centreX, double centreY, double startX, double startY,
                                                        double endX, double endY);

/// The shorter arc of this radius between two points; the sign chooses the side. A positive radius has its centre left
/// of the way from start to end, and the arc runs from `aStart` to `aEnd`. A negative one has it on the right, and the
/// ends are swapped so that the arc still runs anticlockwise: walked from `aStart` it turns clockwise.
/// DEGENERATE: a line when the points coincide (standard closeness) and when the radius is 0 or not a number. A radius
/// shorter than half the chord gives the centre of GetArcCentre and the mean distance of the ends as stored radius.
GEOMETRYENGINE_API TDXFEntity CreateEntity_Arc_StartEnd_Radius(const TEntityCoordinate& aStart,
                                                               const TEntityCoordinate& aEnd, double aRadius);

/// The centre of the circle of this radius through two points: left of the way from start to end for a positive radius,
/// right of it for a negative one and for 0.
/// On purpose: a radius shorter than half the chord is no error; the centre then lies sqrt((d / 2)^2 - r^2) beside the
/// middle of the chord d.
/// DEGENERATE: coincident points give a division by zero, which is not guarded.
GEOMETRYENGINE_API TEntityCoordinate GetArcCentre(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                                  double aRadius);

}  // namespace GeometryEngine
