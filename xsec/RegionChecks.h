#pragma once

// What is checked once the regions stand: each label, each area, the library's own nesting, and the pieces that bound
// nothing. What was put right or looks wrong goes into the diagnostics.

#include <span>
#include <vector>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "xsec/Drawing.h"
#include "xsec/Nesting.h"
#include "xsec/Regions.h"
#include "xsec/Settings.h"

namespace xsec {

/// Reports where the library's sub-region lists put a face elsewhere than its inner point does. The regions keep the
/// place of their points.
void CompareNesting(const GeometryEngine::TEntityTree& aRegionTree, std::span<const TracedLoop> aFaces,
                    std::span<const Region> aRegions, Diagnostics& aDiagnostics);

/// Measures centroids along the true arcs, sees to it that every label lies well inside its region and outside its
/// children, moves it when it does not, marks slivers, and compares the library's areas with those of the loops.
void CheckRegions(Detection& aDetection, const Settings& aSettings);

/// Lists the pieces that bound no region, and the sides of the others that no loop was traced along.
void CheckPieces(const GeometryEngine::TEntityTree& aCoordinateTree, const GeometryEngine::TEntityTree& aRegionTree,
                 std::span<const std::size_t> aSources, Diagnostics& aDiagnostics);

/// Counts the entities of which nothing is left under the tolerance.
void CountCollapsed(const Drawing& aDrawing, Diagnostics& aDiagnostics);

}  // namespace xsec
