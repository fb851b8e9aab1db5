#pragma once

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/host/TVector_Single.h"

namespace GeometryEngine {

GEOMETRYENGINE_API double GetSignedArea_Entity(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                                               const TDXFEntity& aEntity);
GEOMETRYENGINE_API double GetArea_Arc(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                                      const TDXFEntity& aArc, std::int32_t aSegments, std::int32_t aDirection);
GEOMETRYENGINE_API TEntityCoordinate GetCentroidComponent_Entity(const TEntityCoordinate& aFrom,
                                                                 const TEntityCoordinate& aTo,
                                                                 const TDXFEntity& aEntity);
/// The angular step in degrees.
GEOMETRYENGINE_API double GetArcSegment_Step(const TDXFEntity& aArc, std::int32_t aSegments);
GEOMETRYENGINE_API TArcSegments GetArcSegmentPoints_Step(const TDXFEntity& aArc, double aFactor);
GEOMETRYENGINE_API TVector_Single GetEntityVector(const TEntityCoordinate& aCoordinate_A,
                                                  const TEntityCoordinate& aCoordinate_B, const TDXFEntity& aEntity,
                                                  std::int32_t aMode);
GEOMETRYENGINE_API TVector_Single GetVectorFromCoordinates(const TEntityCoordinate& aCoordinate_A,
                                                           const TEntityCoordinate& aCoordinate_B);
/// Radians.
GEOMETRYENGINE_API double GetAngleBetweenVectors(const TVector_Single& aVector_1, const TVector_Single& aVector_2);

}  // namespace GeometryEngine
