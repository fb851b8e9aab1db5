#pragma once

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ArcAngles.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

/// Whether a direction (degrees, in range) lies on an arc that meets a line; both ends count within the angle
/// tolerance.
inline bool IsAngleOnArc(double aAngle, const TArcAngles& aArc) {
  const double a = aAngle;
  const double s = aArc.start;
  const double e = aArc.end;
  const bool isFromStart = a > s || ValuesSame_DXFAngle(a, s);
  if (!(s > e)) return isFromStart && (!(a > e) || ValuesSame_DXFAngle(a, e));
  // KEPT: the start, not the angle, is held against 360. A direction in range is always below 360, so the start decides
  // only for a host whose ranges include their upper end.
  if (isFromStart && (a < kFullTurn || ValuesSame_DXFAngle(s, kFullTurn))) return true;
  return (a > 0 || ValuesSame_DXFAngle(a, 0)) && (a < e || ValuesSame_DXFAngle(a, e));
}

}  // namespace GeometryEngine::detail
