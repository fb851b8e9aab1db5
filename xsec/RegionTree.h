#pragma once

// The hand-over to the library's geometry tree, which names the regions and gives their areas, centroids and labels.

#include <span>
#include <vector>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"
#include "xsec/Nesting.h"
#include "xsec/Regions.h"
#include "xsec/prepare/Motion.h"

namespace xsec {

/// One tree for all regions of a drawing, whichever run of the library found them: a name is unique in all of it.
class RegionTree {
 public:
  /// Takes each face of a driver into a node of its own. `aBack` leads from how the driver has the drawing to how it
  /// was drawn. The driver may go afterwards.
  void Add(GeometryEngine::TEntityBaseClass& aDriver, std::span<const TracedLoop> aFaces, const Motion& aBack);

  /// Nests the nodes as the regions' parents say, and fills in what they answer: unique name, type, areas, centroid and
  /// label point. Name and parent must stand already. The tree is empty afterwards.
  /// REQUIRES: as many regions as faces were taken in, in the same order.
  void Fill(std::vector<Region>& aRegions);

 private:
  struct Face {
    GeometryEngine::TTreeNode_Geometry* node;
    Motion back;
  };

  GeometryEngine::TTree_Geometry fTree;
  std::vector<Face> fFaces;
};

}  // namespace xsec
