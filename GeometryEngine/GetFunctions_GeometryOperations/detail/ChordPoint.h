#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"

namespace GeometryEngine::detail {

/// The direction, in degrees, after so many steps from the start angle; 0 in a direction of travel that is none.
inline double GetWalkedAngle(std::int32_t aIndex, TTravelDirection aDirection, double aStartAngle, double aStep) {
  switch (aDirection) {
    case Travel_AntiClockwise:
      return aStartAngle + aIndex * aStep;
    case Travel_Clockwise:
      return aStartAngle - aIndex * aStep;
  }
  return 0;
}

/// `GetArc_LineSegmentCoord`, for loops over chords.
inline TEntityCoordinate GetChordPoint(const TDXFEntity& aArc, std::int32_t aIndex, TTravelDirection aDirection,
                                       double aStartAngle, double aStep) {
  return GetCirclePoint(aArc.CentreCoords, aArc.radius, GetWalkedAngle(aIndex, aDirection, aStartAngle, aStep));
}

}  // namespace GeometryEngine::detail
