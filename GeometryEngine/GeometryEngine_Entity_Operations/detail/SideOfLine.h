#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

namespace GeometryEngine::detail {

/// What `IsPointLeft_Line` answers, for loops that ask it of many points.
inline double GetSideOfLine(const TEntityCoordinate& aPoint, const TEntityCoordinate& aLineStart,
                            const TEntityCoordinate& aLineEnd) {
  constexpr double kDeadBand = 1e-5;  // drawing length units squared, exclusive
  const double c =
      (aLineEnd.x - aLineStart.x) * (aPoint.y - aLineStart.y) - (aPoint.x - aLineStart.x) * (aLineEnd.y - aLineStart.y);
  return -kDeadBand < c && c < kDeadBand ? 0 : c;
}

}  // namespace GeometryEngine::detail
