#pragma once

// What one entity contributes to the area and the centroid of a closed chain, and the directions in which it leaves its
// ends. TEntityStorage sums the terms over a chain.
//
// A travel is given by the ends of the entity in the order in which the chain passes them (`aFrom`, `aTo`); an arc is
// travelled anticlockwise when its angle at `aFrom` is its own start angle.
//
// Directions are single precision, angles between them double.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/host/TVector_Single.h"

namespace GeometryEngine {

/// The entity's share of the signed area: over a closed chain the shares add up to its area, positive when travelled
/// anticlockwise. Exact for arcs as for lines.
/// DEGENERATE: not a number for an arc of sweep 0; 0 for entities that are neither line nor arc.
GEOMETRYENGINE_API double GetSignedArea_Entity(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                                               const TDXFEntity& aEntity);

/// Twice the signed-area share of an arc, by way of a fan of `aSegments` triangles: its inner points lie on the radius
/// on which the fan has exactly the area of the sector. `aDirection` is 0 for anticlockwise travel and 1 for clockwise.
/// DEGENERATE: the chord's share for fewer than 2 segments; not a number for 2 segments and for a sweep of 0.
/// COST: proportional to `aSegments`.
GEOMETRYENGINE_API double GetArea_Arc(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                                      const TDXFEntity& aArc, std::int32_t aSegments, std::int32_t aDirection);

/// The entity's share of the sums from which a chain's centroid follows: six times the first moments about the origin.
/// An arc counts as chords at the host's arc resolution, so its share is near, not exact.
/// DEGENERATE: (0, 0) for entities that are neither line nor arc.
/// COST: proportional to the resolution.
GEOMETRYENGINE_API TEntityCoordinate GetCentroidComponent_Entity(const TEntityCoordinate& aFrom,
                                                                 const TEntityCoordinate& aTo,
                                                                 const TDXFEntity& aEntity);

/// The step of an arc cut into so many equal segments.
/// UNITS: degrees.
/// DEGENERATE: infinite or not a number for 0 segments.
GEOMETRYENGINE_API double GetArcSegment_Step(const TDXFEntity& aArc, std::int32_t aSegments);

/// Segments for an arc at a resolution of `aFactor` segments per 10 degrees, rounded to the nearest count, halves to
/// the even one. To keep chords within a distance of the arc use GetArcSegmentPoints_Surf.
/// RANGE: at least 3; saturates.
/// DEGENERATE: 3 for a factor that is 0, negative or not a number.
GEOMETRYENGINE_API TArcSegments GetArcSegmentPoints_Step(const TDXFEntity& aArc, double aFactor);

/// The direction of travel at an end of an entity that runs from A to B. Mode 1: the direction in which it leaves A.
/// Mode 0: the direction in which it leaves its far end back towards A. An arc is taken by its first or last chord,
/// with chords within 0.01 drawing units of it; B then plays no part. Not of length 1.
/// DEGENERATE: the zero vector for any other mode and for an arc that doesn't end at A.
GEOMETRYENGINE_API TVector_Single GetEntityVector(const TEntityCoordinate& aCoordinate_A,
                                                  const TEntityCoordinate& aCoordinate_B, const TDXFEntity& aEntity,
                                                  std::int32_t aMode);

/// B - A, subtracted in double precision and then narrowed.
GEOMETRYENGINE_API TVector_Single GetVectorFromCoordinates(const TEntityCoordinate& aCoordinate_A,
                                                           const TEntityCoordinate& aCoordinate_B);

/// The anticlockwise turn from the first vector to the second.
/// UNITS: radians.
/// RANGE: 0 to a full turn; 0 for vectors of the same direction. The zero vector counts as pointing along the x axis.
/// On purpose: a difference of more than a full turn would come out negative; two arctangents never differ by that
/// much.
GEOMETRYENGINE_API double GetAngleBetweenVectors(const TVector_Single& aVector_1, const TVector_Single& aVector_2);

}  // namespace GeometryEngine
