#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeBatch.h"

#include <algorithm>
#include <span>

namespace GeometryEngine::detail {

TNodeBatch::TNodeBatch(TEntityTree& aTree, std::size_t aMostNodes)
    : fTree(aTree), fFirst(aTree.fTreeNodes.size()), fSlots(aTree.Allocate<TTreeNode>(aMostNodes)) {
  fTree.fTreeNodes.reserve(fFirst + aMostNodes);
}

TTreeNode& TNodeBatch::Add(TTreeNode& aParent, TIndex aPlace) {
  const bool isFirst = fTree.fTreeNodes.empty();
  TTreeNode* node = isFirst ? &fTree.MakeNode() : new (fSlots++) TTreeNode(&fTree);
  node->fIsPooled = !isFirst;
  node->fParent = &aParent;
  node->fLevel = aParent.fLevel + 1;
  node->frelindex = aPlace;
  ++aParent.fNumChildNodes;
  fTree.fTreeNodes.push_back(node);
  return *node;
}

TTreeNode& TNodeBatch::AddToRoot(TIndex aPlace) {
  return Add(*fTree.fRootNode, aPlace);
}

void TNodeBatch::Finish() {
  const std::span<TTreeNode* const> nodes = std::span(fTree.fTreeNodes).subspan(fFirst);
  TTreeNode** lists = fTree.Allocate<TTreeNode*>(nodes.size());
  const auto giveList = [&](TTreeNode& node) {
    node.fChildren = lists;
    node.fRoomForChildren = node.fNumChildNodes;
    lists += node.fNumChildNodes;
  };
  giveList(*fTree.fRootNode);
  for (TTreeNode* node : nodes) {
    giveList(*node);
    node->fParent->fChildren[node->frelindex] = node;
  }
}

}  // namespace GeometryEngine::detail
