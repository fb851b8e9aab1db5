#pragma once

// Which traced region lies inside which, and which one holds a point. All of it rests on the winding number of a point
// (WindingContributions.h). For regions of the geometry tree ask TTreeNode_Geometry::PointInsideRegion instead.
//
// A region here is a node of level 1 of a region tree. The coordinate tree is the one in which it was traced, whose
// storage holds its entities. A region is walked from its start vertex, each entity from where the last one left off.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <cstdint>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// How often the region goes round the point: 1 inside an anticlockwise loop, -1 inside a clockwise one, 0 outside.
/// A point on the boundary counts as inside or outside by the rule of WindingContributions.h, side by side.
/// DEGENERATE: 0 for nil and for a region without entities.
GEOMETRYENGINE_API std::int32_t CalculateWindingNumber(const TEntityTree& aTree, const TTreeNode* aRegion,
                                                       const TEntityCoordinate& aPoint);

/// True when `aRegion_A` lies inside `aRegion_B`: when B goes round the start point of each of A's entities, as the
/// record has it. Nothing else is looked at, neither far ends nor points along arcs, so that two regions must not
/// cross. B has to run anticlockwise. DEGENERATE: false when either is nil and when A has no entities.
GEOMETRYENGINE_API bool RegionContains_SubRegion(const TEntityTree& aTree, const TTreeNode* aRegion_A,
                                                 const TTreeNode* aRegion_B);

/// The innermost anticlockwise region that holds the point, and its index. DEGENERATE: nil when there is none;
/// `aRegionIndex` is then left as it was.
GEOMETRYENGINE_API TTreeNode* IdentifyRegionFromCoordinate(const TEntityTree& aRegionTree,
                                                           const TEntityTree& aCoordinateTree,
                                                           const TEntityCoordinate& aPoint, TIndex& aRegionIndex);

/// Lists every clockwise region inside `aRegion` as a sub-region of the region at `aRegionIndex`, unless `aRegion`
/// lists it already. Both arguments are to name the same region. DEGENERATE: nothing happens for nil and for an index
/// outside.
GEOMETRYENGINE_API void DetermineClockwiseSubRegions(TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree,
                                                     const TTreeNode* aRegion, TIndex aRegionIndex);

/// True when some point just beside an edge of `aRegion_R`, on the way to R's centroid, lies inside `aRegion_T`.
/// Arcs are looked at chord by chord, as finely as the arc resolution has it (input field 6529). Lines with both ends
/// at one of the two angles, seen from the origin, are passed over: they bound the machine sector. The search is over
/// at the first entity that starts nearer to the origin than the least radius or farther than the greatest. UNITS:
/// degrees, -180 to 180. DEGENERATE: false when either region is nil; a radius that is not a number excludes nothing.
GEOMETRYENGINE_API bool GenerateRegionPoint(const TEntityTree& aTree, const TTreeNode* aRegion_R,
                                            const TTreeNode* aRegion_T, double aRadius_Min, double aRadius_Max,
                                            double aAngle_1, double aAngle_2);

}  // namespace GeometryEngine
