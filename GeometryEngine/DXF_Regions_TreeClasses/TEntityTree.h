#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

class GEOMETRYENGINE_API TEntityTree {
 public:
  explicit TEntityTree(std::string_view aName);
  ~TEntityTree();
  TEntityTree(const TEntityTree&) = delete;
  TEntityTree& operator=(const TEntityTree&) = delete;

  TTreeNode* AddTreeNode(TTreeNode* aParentNode);
  TTreeNode* AddTreeNode_AtIndex(TTreeNode* aParentNode, TIndex aIndex);
  TTreeNode* AddTreeNode_ToRoot();
  void RemoveTreeNode(TTreeNode* aNode, bool aRemoveChildren);
  void Clear();

  TTreeNode* Search_L1_Coords(const TEntityCoordinate& aCoordinates) const;
  TTreeNode* Search_L1_Entities(const TDXFEntity& aEntity) const;
  TTreeNode* Search_L2_Coordinates(const TEntityCoordinate& aCoordinates, const TTreeNode* aNode) const;
  void ResetTravelledFlag(TIndex aIndex);
  TTreeNode* GetNodeFromIndex(TIndex aIndex) const;
  TTreeNode* Item(TIndex aIndex) const;
  /// The entity that the node refers to; an empty one without storage or outside of it.
  const TDXFEntity& GetNodeEntity(const TTreeNode& aNode) const;
  TIndex GetCount() const;
  TIndex Count() const;
  TTreeNode* RootNode() const;
  const std::string& Name() const;
  TEntityStorage* pEntityStorage() const;
  void pEntityStorage(TEntityStorage* apEntityStorage);

 private:
  friend class TTreeNode;
  void AttachChild(TTreeNode& aParentNode, TTreeNode& aNode, TIndex aIndex);
  void HandChildrenTo(TTreeNode& aParentNode, TTreeNode& aNode);
  void ReleaseSubtree(TTreeNode& aNode);
  void EmptyChildLists();
  std::unique_ptr<TTreeNode> TakeDroppedNode();

  std::unique_ptr<TTreeNode> fRootNode;
  std::vector<TTreeNode*> fTreeNodes;
  TIndex findex = 0;
  bool fRemoveAll = false;
  std::string fTreeName;
  TEntityStorage* fEntityStorage = nullptr;
  std::vector<std::unique_ptr<TTreeNode>> fOwnedNodes;  ///< every node but the root, until it is destroyed
};

}  // namespace GeometryEngine
