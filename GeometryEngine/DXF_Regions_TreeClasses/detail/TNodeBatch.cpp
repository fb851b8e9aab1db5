#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeBatch.h"

#include <memory>
#include <utility>

namespace GeometryEngine::detail {

TNodeBatch::TNodeBatch(TEntityTree& aTree, std::size_t aRootChildren, std::size_t aOthers)
    : fTree(aTree),
      fSlots(aTree.Allocate<TTreeNode>(aRootChildren + aOthers)),
      fLists(aTree.Allocate<TTreeNode*>(aRootChildren + aOthers)) {
  fTree.fTreeNodes.reserve(fTree.fTreeNodes.size() + aRootChildren + aOthers);
  fTree.fRootNode->fChildren = fLists;
  fTree.fRootNode->fRoomForChildren = ToIndex(aRootChildren);
  fLists += aRootChildren;
}

TNodeBatch::TParent TNodeBatch::AddToRoot(TIndex aChildren) {
  TTreeNode& root = *fTree.fRootNode;
  TTreeNode& node = MakeNode(root, root.fNumChildNodes);
  root.fChildren[root.fNumChildNodes++] = &node;
  node.fLevel = 1;
  node.fChildren = fLists;
  node.fNumChildNodes = aChildren;
  node.fRoomForChildren = aChildren;
  fLists += aChildren;
  return {&node, node.fChildren};
}

TTreeNode& TNodeBatch::Add(const TParent& aParent, TIndex aPlace) {
  TTreeNode& node = MakeNode(*aParent.fNode, aPlace);
  aParent.fChildren[aPlace] = &node;
  node.fLevel = 2;
  return node;
}

void TNodeBatch::AddPending(TPendingLeaves aLeaves) {
  auto leaves = std::make_unique<TPendingLeaves>(std::move(aLeaves));
  fTree.findex = 0;
  fTree.PendingLeaves(std::move(leaves));
}

TTreeNode& TNodeBatch::MakeNode(TTreeNode& aParent, TIndex aPlace) {
  const bool isFirst = fTree.fTreeNodes.empty();
  TTreeNode* node = isFirst ? &fTree.MakeNode() : new (fSlots++) TTreeNode(&fTree, fTree.findex++);
  node->fIsPooled = !isFirst;
  node->fParent = &aParent;
  node->frelindex = aPlace;
  fTree.fTreeNodes.push_back(node);
  return *node;
}

}  // namespace GeometryEngine::detail
