#pragma once

// The end points that follow from an arc's centre, radius and angles. To rotate a whole entity, its stored ends
// included, use RotateEntity_AroundAxis.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

struct TArcEndPoints {
  double startX = 0;
  double startY = 0;
  double endX = 0;
  double endY = 0;
};

/// Where the arc's ends are after a rotation by `aAngle` about the origin. Computed from centre, radius and angles; the
/// stored ends play no part. The rotated centre is cleaned unless nothing turns, the ends are not.
/// UNITS: degrees.
GEOMETRYENGINE_API TArcEndPoints GetArc_EndPoints(const TDXFEntity& aEntity, double aAngle);

}  // namespace GeometryEngine
