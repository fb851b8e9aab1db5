#pragma once

// Arrays of entities: searching under the drawing tolerance, adding without duplicates, walking as a closed ring. The
// array is just a list here; an ordered chain that can be walked vertex by vertex, measured and moved is
// `TEntityStorage`, which keeps such an array.
//
// Two entities are the same when `operator==` says so: by their geometry within the tolerance, a line also the same as
// its reverse, tags ignored, and an entity that is neither line nor arc never the same as any. The first match from
// index 0 wins.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <span>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

inline namespace TEntityArray_Helper {

/// Index of the first element that is the same entity, else `kNotFound`. COST: linear.
GEOMETRYENGINE_API TIndex IndexOfEntity(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity);

/// True when some element is the same entity.
GEOMETRYENGINE_API bool ContainsEntity(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity);

/// Appends a copy; duplicates are welcome.
GEOMETRYENGINE_API void AddEntity(TEntityArray& aEntities, const TDXFEntity& aEntity);

/// Inserts a copy before `aIndex`. DEGENERATE: an index outside the array appends.
GEOMETRYENGINE_API void InsertEntity(TEntityArray& aEntities, const TDXFEntity& aEntity, TIndex aIndex);

/// Removes the element at `aIndex`, later ones move down; nothing for an index outside the array.
GEOMETRYENGINE_API void RemoveEntity(TEntityArray& aEntities, TIndex aIndex);

/// Removes the first element that is the same entity; nothing when there is none.
GEOMETRYENGINE_API void RemoveEntity(TEntityArray& aEntities, const TDXFEntity& aEntity);

/// Appends, in order, each entity of `aArray` that the array doesn't hold by then: what the call itself appended
/// counts, so duplicates within `aArray` are dropped too. `aArray` may be a view of the array itself.
/// COST: the sum of the two lengths, as long as few different entities join the same two places.
GEOMETRYENGINE_API void AddEntities_CheckDuplicate(TEntityArray& aEntities, std::span<const TDXFEntity> aArray);

/// The element after `aIndex`, where the first one follows the last. DEGENERATE: an empty entity when the index is
/// negative or past the end.
GEOMETRYENGINE_API TDXFEntity GetEntity_Next(std::span<const TDXFEntity> aEntities, TIndex aIndex);

/// The element after the first match of `aEntity`; an empty entity when there is no match.
GEOMETRYENGINE_API TDXFEntity GetEntity_Next(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity);

/// The element before `aIndex`, where the last one precedes the first. DEGENERATE: an empty entity when the index is
/// negative or further than one past the end.
GEOMETRYENGINE_API TDXFEntity GetEntity_Previous(std::span<const TDXFEntity> aEntities, TIndex aIndex);

/// The element before the first match of `aEntity`; an empty entity when there is no match.
GEOMETRYENGINE_API TDXFEntity GetEntity_Previous(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity);

}  // namespace TEntityArray_Helper

}  // namespace GeometryEngine
