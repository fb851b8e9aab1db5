#pragma once

// A tree of regions that have types and names, and the searches by them. TTree_Geometry adds the regions' shapes.

#include <memory>
#include <string_view>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTreeNode_CoreProperties.h"
#include "GeometryEngine/host/TTree_Base.h"

namespace GeometryEngine {

namespace detail {
class TNameTable;
}

/// A tree of TTreeNode_CoreProperties; CreateTreeNode makes such nodes. The root, at index 0, is a region like the
/// others: searches by type include it.
///
/// OWNS: its nodes, as every tree does.
class GEOMETRYENGINE_API TTree_CoreProperties : public TTree_Base {
 public:
  TTree_CoreProperties();
  ~TTree_CoreProperties() override;

  /// The node at that place of the flat index.
  /// DEGENERATE: nil outside the index, and for a node of another class that a host entered.
  TTreeNode_CoreProperties* GetNodeFromIndex(TIndex aIndex) const;
  /// Appends to `aRegions`, in index order, every node that is of some type of the set. What the array held stays.
  void GetRegionsFromTypeSet(const TGeometryRegionTypesSet& aTypes, TTreeNodeArray_CoreProperties& aRegions) const;
  /// The first node, in index order, of type rtConductor whose given name is exactly this one, upper and lower case
  /// told apart; nil when none. Unique names play no part.
  TTreeNode_CoreProperties* GetConductorRegionFromName(std::string_view aConductorName) const;

 protected:
  /// For derived trees with a node class of their own.
  explicit TTree_CoreProperties(TNodeFactory aFactory);

 private:
  friend class TTreeNode_CoreProperties;
  detail::TNameTable& Names();

  std::unique_ptr<detail::TNameTable> fNames;
};

}  // namespace GeometryEngine
