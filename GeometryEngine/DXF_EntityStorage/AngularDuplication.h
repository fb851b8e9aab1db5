#pragma once

// Which entities survive when a sector is copied round the origin: the radial seams between neighbouring copies do not.
// `TEntityStorage::DuplicateAroundAxis` asks here for every entity of every copy.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// Whether the ring keeps `aEntity`, an entity of copy `aIndex` that has been turned by `aCopyAngle` already.
///
/// Only radial lines can be refused, that is lines whose two ends lie in one direction from the origin (an end at the
/// origin counts as lying in the other end's direction). Of these
/// - a full ring (`aDuplications == aDuplications_Full`) keeps none on an edge of the copy;
/// - a partial ring drops one on the near edge, except in the copy that has not been turned, and one on the far edge,
///   except in the last copy. So the ring keeps its own two edges and loses its seams.
///
/// A copy's near edge lies at `aCopyAngle`, its far edge at `aCopyAngle + aAngle`.
/// UNITS: degrees, compared within the angle tolerance. RANGE: the far edge is brought into 0 to 360 first, the near
/// edge is taken as given; directions of entities lie in 0 to 360. Give copy angles in that range.
GEOMETRYENGINE_API bool IncludeDuplicatedEntity(std::int32_t aDuplications, std::int32_t aDuplications_Full,
                                                std::int32_t aIndex, double aCopyAngle, double aAngle,
                                                const TDXFEntity& aEntity);

/// The direction of (x, y) from the origin. A negative zero counts as zero, and (0, 0) has direction 0.
/// UNITS: degrees. RANGE: at least 0 and less than 360; not-a-number stays so.
GEOMETRYENGINE_API double GetTheta(double x, double y);

}  // namespace GeometryEngine
