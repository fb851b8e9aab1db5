#pragma once

// The left-most, right-most, upper-most and lower-most point of one entity, as the sweep and the bounds of a chain use
// them, and the direction between two points.
//
// The arc rules look at whether the arc passes an axis direction. Some of their answers are deliberately not extremes
// (see there): for boxes that must hold an entity take its true geometry instead. Arcs of at most half a circle are
// always answered truly to the left, to the right and above.
//
// DEGENERATE: an entity that is neither line nor arc answers its centre.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TEntityCoordinate GetLeftMostCoordinate(const TDXFEntity& aEntity);
/// Of a line: the end opposite to its left-most one, so that a vertical line answers two different ends. The `_Line`
/// functions answer its start for both.
GEOMETRYENGINE_API TEntityCoordinate GetRightMostCoordinate(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetUpperMostCoordinate(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetLowerMostCoordinate(const TDXFEntity& aEntity);

// One of the two ends; the start when they tie, whatever the other axis says. Only the ends are read, so these serve
// arcs as well.
// On purpose: left and right compare x exactly; up and down take heights within the linear tolerance for a tie.
// DEGENERATE: (0, 0) when a not-a-number leaves the ends without an order.
GEOMETRYENGINE_API TEntityCoordinate GetLeftMostCoordinate_Line(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetRightMostCoordinate_Line(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetUpperMostCoordinate_Line(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetLowerMostCoordinate_Line(const TDXFEntity& aEntity);

// The circle's extreme point when the arc passes that axis direction, else an end. Angles are compared exactly: an arc
// that starts or ends on the axis direction answers its end.
/// On purpose: an arc that passes both 0 and 180 degrees answers its left-most end, not the circle's left-most point.
GEOMETRYENGINE_API TEntityCoordinate GetLeftMostCoordinate_Arc(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetRightMostCoordinate_Arc(const TDXFEntity& aEntity);
/// An arc that passes 0 degrees answers the circle's top only when both its angles lie above 90.
GEOMETRYENGINE_API TEntityCoordinate GetUpperMostCoordinate_Arc(const TDXFEntity& aEntity);
/// On purpose: an arc that passes 0 degrees answers the circle's bottom only when both its angles lie above 270, and
/// otherwise its upper end.
GEOMETRYENGINE_API TEntityCoordinate GetLowerMostCoordinate_Arc(const TDXFEntity& aEntity);

/// Direction from `aOrigin` to `aPoint`; exactly 0 within the angle tolerance of the positive x axis.
/// UNITS: degrees.
/// RANGE: -180 to 180.
GEOMETRYENGINE_API double GetAngleFromCoordinate(const TEntityCoordinate& aPoint, const TEntityCoordinate& aOrigin);

}  // namespace GeometryEngine
