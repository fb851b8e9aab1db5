#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

struct TArcEndPoints {
  double startX = 0;
  double startY = 0;
  double endX = 0;
  double endY = 0;
};

GEOMETRYENGINE_API TArcEndPoints GetArc_EndPoints(const TDXFEntity& aEntity, double aAngle);

}  // namespace GeometryEngine
