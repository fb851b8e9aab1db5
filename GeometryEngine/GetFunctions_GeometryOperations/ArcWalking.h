#pragma once

// Walking along an arc in chords: where a walk starts and ends, which way it turns, how many chords keep close to the
// arc, and the points between them.
//
//   const double startAngle = GetEntityStartAngle_Arc(entered, arc);
//   const TTravelDirection direction = GetArcTravelDirection(startAngle, arc);
//   const auto [aCount, aStep] = GetArcSegmentPoints_Surf(arc, 0.01);
//   // point k of 0 .. aCount: GetArc_LineSegmentCoord(arc, k, direction, startAngle, aStep)
//
// The other way to choose a number of chords, so many for ten degrees, is GetArcSegmentPoints_Step (EntityTerms.h).
// UNITS: degrees.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// How an arc is cut into chords.
struct TArcSegments {
  std::int32_t aCount = 0;
  double aStep = 0;  ///< degrees
};

/// The angle at which a walk starts that enters the arc at this coordinate: the stored angle of the end that it equals,
/// the start tried first. Not brought into 0 to 360.
/// DEGENERATE: 0 when it is neither end.
GEOMETRYENGINE_API double GetEntityStartAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aEntity);

/// The angle at which that walk ends: the stored angle of the other end.
/// DEGENERATE: 0 when it is neither end.
GEOMETRYENGINE_API double GetEntityEndAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aEntity);

/// Anticlockwise when `aAngle` is the arc's stored start angle to the bit, else clockwise.
GEOMETRYENGINE_API TTravelDirection GetArcTravelDirection(double aAngle, const TDXFEntity& aEntity);

/// Enough equal chords to keep within `aTolerance` of the arc.
/// RANGE: at least 3; at most 421 657 428, since the angle of a chord is 0 or more than 8e-7 degrees.
/// DEGENERATE: 3 when the radius is 0, negative, infinite, not a number or less than half the tolerance, and when the
/// tolerance is too small for a chord's angle to differ from 0. A sweep of 0 gives 3 chords of step 0.
GEOMETRYENGINE_API TArcSegments GetArcSegmentPoints_Surf(const TDXFEntity& aEntity, double aTolerance);

/// The point of the circle after `aIndex` steps from the start angle.
/// DEGENERATE: the point at angle 0 for a direction that is neither of the two.
GEOMETRYENGINE_API TEntityCoordinate GetArc_LineSegmentCoord(const TDXFEntity& aEntity, std::int32_t aIndex,
                                                             TTravelDirection aDirection, double aStartAngle,
                                                             double aStep);

}  // namespace GeometryEngine
