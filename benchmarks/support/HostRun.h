#pragma once

// A host's whole detection request on one of the drawings, pass by pass: what the benchmarks and the comparison with
// other systems measure.

#include <vector>

#include "GeometryEngine/GeometryEngine.h"
#include "benchmarks/drawings/Drawing.h"

namespace benchmarks {

/// The entities of a drawing as a host hands them in.
GeometryEngine::TEntityArray ToEntities(const drawings::Drawing& aDrawing);

/// The passes are called once each, in the order in which they stand here. Making and destroying the run is no part of
/// the work: a drawing is there before, and its regions are looked at after.
class THostRun {
 public:
  explicit THostRun(const drawings::Drawing& aDrawing);

  void DetermineInterceptions();
  void DetermineRegions();
  /// In the place of the closed regions, the open chains.
  void DetectOrphanEntities();
  void IdentifySubRegions();
  void RemoveDuplicatedSubRegions();
  /// Every region becomes a node below that of the region that lists it, with outputs and label point.
  void HandOver();
  void All();

  /// Faces: the anticlockwise regions found.
  std::size_t FaceCount() const;
  GeometryEngine::TEntityBaseClass& Driver() { return fDriver; }
  GeometryEngine::TTree_Geometry& Tree() { return fTree; }
  /// In the order of the regions.
  const GeometryEngine::TTreeNodeArray_Geometry& Nodes() const { return fNodes; }

 private:
  std::vector<std::size_t> ContainersFirst(const std::vector<GeometryEngine::TIndex>& aParents) const;
  void PlaceNodes(const std::vector<std::size_t>& aOrder, const std::vector<GeometryEngine::TIndex>& aParents);

  GeometryEngine::TEntityStorage fDrawing;
  GeometryEngine::TEntityBaseClass fDriver;
  GeometryEngine::TTree_Geometry fTree;
  GeometryEngine::TTreeNodeArray_Geometry fNodes;
};

}  // namespace benchmarks
