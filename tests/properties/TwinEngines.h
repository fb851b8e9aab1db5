#pragma once

// The library and its plain twin behind one face, for code that runs both.

#include <memory>
#include <string_view>
#include <vector>

#include "GeometryEngine/GeometryEngine.h"
#include "tests/reference/plain/TEntityBaseClass.h"

namespace GeometryEngine::properties {

struct TLibrary {
  using Storage = TEntityStorage;
  using Tree = TEntityTree;
  using Node = TTreeNode;
  using Driver = TEntityBaseClass;
  using Merge = TEntityMerge;
  using RegionTree = TTree_Geometry;
  using Region = TTreeNode_Geometry;

  static Region* AddRegion(RegionTree& aTree) {
    std::unique_ptr<TTreeNode_Base> node = aTree.CreateTreeNode();
    return Region::TypeCast(aTree.AddNewTreeNode(node));
  }
  static void RemoveRegion(RegionTree& aTree, Region* aRegion) { aTree.RemoveFreeTreeNode(aRegion, false); }
  static void Attach(RegionTree& aTree, Region* aChild, Region* aParent) {
    aTree.MoveTreeNode_Recursive(aChild, aParent);
  }
  static bool PointInsideRegion(const Region& aRegion, const TEntityCoordinate& aPoint) {
    return aRegion.PointInsideRegion(aPoint, TGeometryRegionTypesSet::All(), false);
  }
  static TDXFEntity GetEntity_Next(const Storage& aStorage, const TEntityCoordinate& aVertex) {
    return aStorage.GetEntity_Next(aVertex).aEntity;
  }
  static TDXFEntity GetEntity_Previous(const Storage& aStorage, const TEntityCoordinate& aVertex) {
    return aStorage.GetEntity_Previous(aVertex).aEntity;
  }
  static void AddWithoutDuplicates(TEntityArray& aEntities, const TEntityArray& aAdded) {
    AddEntities_CheckDuplicate(aEntities, aAdded);
  }
};

struct TPlain {
  using Storage = Plain::TEntityStorage;
  using Tree = Plain::TEntityTree;
  using Node = Plain::TTreeNode;
  using Driver = Plain::TEntityBaseClass;
  using Merge = Plain::TEntityMerge;
  using RegionTree = Plain::TTree_Geometry;
  using Region = Plain::TTreeNode_Geometry;

  static Region* AddRegion(RegionTree& aTree) { return aTree.AddRegion(); }
  static void RemoveRegion(RegionTree& aTree, Region* aRegion) { aTree.RemoveRegion(aRegion); }
  static void Attach(RegionTree&, Region* aChild, Region* aParent) { aParent->fChildren.push_back(aChild); }
  static bool PointInsideRegion(const Region& aRegion, const TEntityCoordinate& aPoint) {
    return aRegion.PointInsideRegion(aPoint, false);
  }
  static TDXFEntity GetEntity_Next(const Storage& aStorage, const TEntityCoordinate& aVertex) {
    return aStorage.GetEntity_Next(aVertex);
  }
  static TDXFEntity GetEntity_Previous(const Storage& aStorage, const TEntityCoordinate& aVertex) {
    return aStorage.GetEntity_Previous(aVertex);
  }
  static void AddWithoutDuplicates(TEntityArray& aEntities, const TEntityArray& aAdded) {
    Plain::AddEntities_CheckDuplicate(aEntities, aAdded);
  }
};

}  // namespace GeometryEngine::properties
