#pragma once

// Moved copies of one point or entity: mirrored, translated, rotated. Whole chains are moved by TEntityStorage, arrays
// of coordinates by CoordinateArrays.h. Tags are copied along.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TRotationMatrix.h"

namespace GeometryEngine {

/// The point on the other side of a line, which counts as unbounded. A line is upright here when its ends' x differ by
/// no more than the linear tolerance; its start's x then is the mirror.
/// DEGENERATE: the point itself when `aLine` is no line.
GEOMETRYENGINE_API TEntityCoordinate MirrorPoint_AboutLine(const TEntityCoordinate& aPoint, const TDXFEntity& aLine);

/// Both ends, and an arc's centre, mirrored. A line keeps its direction. A mirrored arc has its ends swapped, so that
/// it still runs anticlockwise, and its angles rebuilt from its points.
/// RANGE: rebuilt angles are 0 to below 360.
/// DEGENERATE: a region marker comes back unchanged, and so does every entity when the mirror is no line.
GEOMETRYENGINE_API TDXFEntity MirrorEntity_AboutLine(const TDXFEntity& aEntity, const TDXFEntity& aLine);

/// Both ends moved, whatever the kind of entity, and the centre of an arc. Radius and angles stay as stored.
GEOMETRYENGINE_API TDXFEntity TranslateEntity(const TDXFEntity& aEntity, double dx, double dy);

/// Both ends, and an arc's centre, rotated about the origin by RotateByAngle_Matrix. An arc keeps its radius; its
/// angles are rebuilt from the rotated points, in 0 to below 360, and not shifted by the rotation.
/// DEGENERATE: a region marker comes back unchanged.
GEOMETRYENGINE_API TDXFEntity RotateEntity_AroundAxis(const TDXFEntity& aEntity, const TRotationMatrix& aMatrix);

/// The same about `aPoint`.
GEOMETRYENGINE_API TDXFEntity RotateEntity_AroundPoint(const TDXFEntity& aEntity, const TRotationMatrix& aMatrix,
                                                       const TEntityCoordinate& aPoint);

}  // namespace GeometryEngine
