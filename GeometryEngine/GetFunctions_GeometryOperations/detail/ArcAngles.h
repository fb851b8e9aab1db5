#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::detail {

/// The two angles of an arc in degrees, each brought to at least 0 and less than 360.
struct TArcAngles {
  double start = 0;
  double end = 0;
};

TArcAngles GetArcAngles(const TDXFEntity& aArc);

}  // namespace GeometryEngine::detail
