#pragma once

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// How an arc is cut into chords.
struct TArcSegments {
  std::int32_t aCount = 0;
  double aStep = 0;  ///< degrees
};

GEOMETRYENGINE_API double GetEntityStartAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aEntity);
GEOMETRYENGINE_API double GetEntityEndAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aEntity);
GEOMETRYENGINE_API TTravelDirection GetArcTravelDirection(double aAngle, const TDXFEntity& aEntity);
GEOMETRYENGINE_API TArcSegments GetArcSegmentPoints_Surf(const TDXFEntity& aEntity, double aTolerance);
GEOMETRYENGINE_API TEntityCoordinate GetArc_LineSegmentCoord(const TDXFEntity& aEntity, std::int32_t aIndex,
                                                             TTravelDirection aDirection, double aStartAngle,
                                                             double aStep);

}  // namespace GeometryEngine
