#pragma once

// Polar angles of coordinates, and the host's polar and line helpers with a coordinate as their answer.
//
// UNITS: degrees. GetAngleFromCoordinate (DXF_SweepLine_Utilities) measures the same direction but puts one within the
// angle tolerance of the positive x axis onto it.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// The point at distance `r` from the origin in direction `t`.
GEOMETRYENGINE_API TEntityCoordinate RT_To_XY_Coordinate(double r, double t);

/// Direction of the coordinate as seen from the origin.
/// RANGE: -180 to 180, 0 for the origin itself.
GEOMETRYENGINE_API double GetCoordinateAngle(const TEntityCoordinate& aCoordinate);

/// The same as seen from `aPoint`.
GEOMETRYENGINE_API double GetCoordinateAngle_AboutPoint(const TEntityCoordinate& aCoordinate,
                                                        const TEntityCoordinate& aPoint);

/// Where y = a x + b and y = c x + d meet.
/// DEGENERATE: infinite or not a number for parallel lines.
GEOMETRYENGINE_API TEntityCoordinate GetLinesIntersection_Coordinate(double a, double b, double c, double d);

}  // namespace GeometryEngine
