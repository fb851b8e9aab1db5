#pragma once

// Walks through a vertex graph from half-edge to half-edge, and so traces one closed loop or one open chain. Which
// walks are begun, and which of the loops are kept, is up to TEntityBaseClass.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <cstdint>
#include <span>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/IntegerArrays.h"

namespace GeometryEngine {

/// What a walk keeps. A caller sets start and flag, leaves the rest empty, and reads path, area and centroid
/// afterwards.
struct TRegionWalk {
  TEntityCoordinate fStart;     ///< where the loop has to close
  TEntityCoordinate fCentroid;  ///< running centroid sum; the centroid once the loop has closed
  double fArea = 0;             ///< running signed area
  TIntegerArray fPath;          ///< absolute indexes of the half-edges walked, in order
  TIntegerArray fBlocked;       ///< absolute indexes of half-edges stepped back from
  bool fBacktracking = false;   ///< whether a dead end is stepped back from
};

/// Walks on from a vertex along one of its half-edges until the loop closes or the walk can't go on.
///
/// At each vertex the walk takes the sharpest left turn among the half-edges not yet travelled, so that it goes round
/// the face on its left: a face comes out anticlockwise, the outline of a connected group of entities clockwise. Of two
/// half-edges in exactly the same direction it takes the one whose far end lies to the left. Every half-edge that it
/// leaves a vertex by is marked as travelled and isn't taken again by later walks.
///
/// The loop closes as soon as the next half-edge leads to the start. Path, area and centroid then describe it, and with
/// backtracking the half-edges stepped back from are free again.
///
/// A vertex without a half-edge to take is a dead end. Without backtracking the walk is over there: path and area are
/// those of an open chain and the centroid is a bare sum. With backtracking it steps back to the vertex before and
/// takes the next best turn; it also does so rather than take an entity that is on the path already. Once it has
/// stepped back over the first half-edge the path is empty and the half-edges stepped back from are free again.
///
/// DEGENERATE: nothing happens for a nil vertex or half-edge. A far end at which the graph has no vertex is a dead end.
/// A loop of area 0 has no finite centroid.
/// REQUIRES: a tree in which absolute indexes are positions (see TEntityTree).
/// COST: ends for every input, under every setting, and needs no stack for the length of the walk. Each step searches
/// the vertices one by one.
GEOMETRYENGINE_API void FindNextRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, TTreeNode* aEntityEnd,
                                             TRegionWalk& aWalk);

/// Takes the last two half-edges off the path and their entities out of the sums, and walks on from the vertex before
/// the last, with backtracking on. `aEntity` is the last entity walked, from `aVertex` to `aFarEnd`; its half-edge
/// keeps its mark, so that the walk turns elsewhere. With a single half-edge on the path the walk is over, with an
/// empty path and the half-edges stepped back from free again. DEGENERATE: nothing happens for a nil vertex or an empty
/// path; a path that the tree doesn't hold ends the walk.
GEOMETRYENGINE_API void StepBackRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, const TEntityCoordinate& aFarEnd,
                                             const TDXFEntity& aEntity, TRegionWalk& aWalk);

/// True when some half-edge of the path is of that entity. Indexes that the tree doesn't hold are passed over.
GEOMETRYENGINE_API bool IsEntityInRegionPath(const TEntityTree& aTree, std::span<const std::int32_t> aPath,
                                             TIndex aEntityIndex);

}  // namespace GeometryEngine
