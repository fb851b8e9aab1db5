#pragma once

// Where to put a label inside a region: the point that lies furthest from its boundaries, its pole of inaccessibility.
// This file works on the region's chains alone; PoleInaccessibility.h takes a node of the geometry tree.

#include <span>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// What a pole search needs to know of a region: its chains and those of its children. A chain that is nil counts as
/// one without entities.
///
/// REQUIRES: every chain holds its start vertex (`StartCoordinate`), since the tests for inside walk from it.
/// OWNS: nothing; the chains must outlive the view.
struct TPoleRegion {
  TEntityStorage* fOutline = nullptr;         ///< anticlockwise; a search recomputes its bounds
  const TEntityStorage* fInternal = nullptr;  ///< the boundary of what is cut out of the region
  std::vector<const TEntityStorage*> fChildOutlines;
  TEntityCoordinate fCentroid;  ///< the answer where there is nothing to search
  bool fSearchable = false;     ///< a valid closed region that is no polyline
};

/// One square cell of the search, measured against the region as it is made.
struct GEOMETRYENGINE_API TCell {
  double fCenter_X = 0;
  double fCenter_Y = 0;
  double fHalfWidth = 0;    ///< half a side
  double fDistance = 0;     ///< signed distance of the centre, as GetSignedDistance has it
  double fMaxDistance = 0;  ///< no point of the cell is further inside than this

  /// COST: one distance to every boundary of the region.
  TCell(double aCenter_X, double aCenter_Y, double aHalfWidth, const TPoleRegion& aRegion);
  /// A cell whose distance is known.
  TCell(double aCenter_X, double aCenter_Y, double aHalfWidth, double aDistance);
};

/// Negative when `aLeft` comes before `aRight` (greater bound), positive when after, 0 when equal.
/// DEGENERATE: bounds that are not a number come after all others and equal each other.
GEOMETRYENGINE_API int CellComparer(const TCell& aLeft, const TCell& aRight);

/// Distance from the point to the nearest of the region's outline, its internal chain and its children's outlines:
/// positive when the point lies inside the region's material, negative when not. Inside means within the outline, and
/// neither within nor on the internal chain or a child.
/// DEGENERATE: minus infinity without any boundary.
GEOMETRYENGINE_API double GetSignedDistance(const TPoleRegion& aRegion, const TEntityCoordinate& aPoint);

/// A point well inside the region's material. Squares cover the region's box; those with the best prospect are looked
/// at first, and quartered until the search has found a centre that lies further inside than `aMinimumDistance`. Of all
/// centres that it has looked at by then, and the centroid, the one that lies furthest inside is the answer.
///
/// When the centroid itself lies that far inside, squares are quartered only while one promises an advance of more than
/// `aPrecision` over it, and until a better centre is found.
///
/// UNITS: both lengths in drawing length units.
/// RANGE: the answer lies inside the material wherever the search succeeds, but it need not be the best point: it is a
/// good place for a label, not a measure of the region.
/// DEGENERATE: the centroid for a region that isn't searchable, whose box has no width or no height, whose box would
/// need more than 1,000,000 squares to cover (or squares too small to tell their positions apart), and when 1001
/// splits have not settled the search.
/// COST: one distance evaluation a square: the cover has as many as the box's longer side holds its shorter one, and
/// every split adds four. An evaluation looks at the segments near by and the entities at its height, not at all; those
/// are prepared once.
GEOMETRYENGINE_API TEntityCoordinate FindPoleInaccessibility(const TPoleRegion& aRegion, double aPrecision,
                                                             double aMinimumDistance);

}  // namespace GeometryEngine
