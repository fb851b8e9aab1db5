#pragma once

#include <span>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// What a pole search needs to know of a region: its chains and those of its children.
struct TPoleRegion {
  TEntityStorage* fOutline = nullptr;  ///< its bounds are recomputed
  const TEntityStorage* fInternal = nullptr;
  std::vector<const TEntityStorage*> fChildOutlines;
  TEntityCoordinate fCentroid;
  bool fSearchable = false;  ///< a valid closed region that is no polyline
};

/// One square cell of the search.
struct GEOMETRYENGINE_API TCell {
  double fCenter_X = 0;
  double fCenter_Y = 0;
  double fHalfWidth = 0;
  double fDistance = 0;
  double fMaxDistance = 0;

  TCell(double aCenter_X, double aCenter_Y, double aHalfWidth, const TPoleRegion& aRegion);
};

/// Negative when `aLeft` comes before `aRight` (greater bound), positive when after, 0 when equal.
GEOMETRYENGINE_API int CellComparer(const TCell& aLeft, const TCell& aRight);
/// Signed distance of a point to the region's boundaries, positive inside.
GEOMETRYENGINE_API double GetSignedDistance(const TPoleRegion& aRegion, const TEntityCoordinate& aPoint);
GEOMETRYENGINE_API TEntityCoordinate FindPoleInaccessibility(const TPoleRegion& aRegion, double aPrecision,
                                                             double aMinimumDistance);

}  // namespace GeometryEngine
