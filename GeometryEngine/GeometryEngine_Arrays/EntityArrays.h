#pragma once

#include <span>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

inline namespace TEntityArray_Helper {

GEOMETRYENGINE_API TIndex IndexOfEntity(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity);
GEOMETRYENGINE_API bool ContainsEntity(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity);
GEOMETRYENGINE_API void AddEntity(TEntityArray& aEntities, const TDXFEntity& aEntity);
GEOMETRYENGINE_API void InsertEntity(TEntityArray& aEntities, const TDXFEntity& aEntity, TIndex aIndex);
GEOMETRYENGINE_API void RemoveEntity(TEntityArray& aEntities, TIndex aIndex);
GEOMETRYENGINE_API void RemoveEntity(TEntityArray& aEntities, const TDXFEntity& aEntity);
GEOMETRYENGINE_API void AddEntities_CheckDuplicate(TEntityArray& aEntities, std::span<const TDXFEntity> aArray);
GEOMETRYENGINE_API TDXFEntity GetEntity_Next(std::span<const TDXFEntity> aEntities, TIndex aIndex);
GEOMETRYENGINE_API TDXFEntity GetEntity_Next(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity);
GEOMETRYENGINE_API TDXFEntity GetEntity_Previous(std::span<const TDXFEntity> aEntities, TIndex aIndex);
GEOMETRYENGINE_API TDXFEntity GetEntity_Previous(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity);

}  // namespace TEntityArray_Helper

}  // namespace GeometryEngine
