#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

struct TCommonCoordinate {
  TEntityCoordinate aCoordinate;
  TIndex aIndex = kNotFound;  ///< 0 when the two entities touch, else kNotFound
};

GEOMETRYENGINE_API TCommonCoordinate GetCommonCoordinate(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B);
GEOMETRYENGINE_API TEntityCoordinate GetEntityEndCoordinate(const TEntityCoordinate& aCoordinate,
                                                            const TDXFEntity& aEntity);

}  // namespace GeometryEngine
