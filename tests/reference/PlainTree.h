#pragma once

#include <algorithm>
#include <vector>

namespace GeometryEngine::reference {

/// What `TTree_Base` says about its nodes, kept in plain lists: nodes are numbers, 0 is the root.
struct PlainTree {
  std::vector<int> flat{0};
  std::vector<int> parent{-1};
  std::vector<std::vector<int>> children{1};

  int Add(std::size_t aPlace) {
    const int node = static_cast<int>(parent.size());
    flat.insert(flat.begin() + static_cast<std::ptrdiff_t>(aPlace), node);
    parent.push_back(0);
    children.emplace_back();
    children[0].push_back(node);
    return node;
  }

  bool IsBelow(int aNode, int aTop) const {
    for (; aNode != -1; aNode = Parent(aNode)) {
      if (aNode == aTop) return true;
    }
    return false;
  }

  void Move(int aNode, int aNewParent, bool aWithChildren) {
    if (aNode == 0 || IsBelow(aNewParent, aNode)) return;
    if (!aWithChildren) HandChildrenUp(aNode);
    std::erase(ChildrenOf(Parent(aNode)), aNode);
    ChildrenOf(aNewParent).push_back(aNode);
    Parent(aNode) = aNewParent;
  }

  void Remove(int aNode, bool aWithChildren) {
    if (aNode == 0) return;
    if (!aWithChildren) HandChildrenUp(aNode);
    std::erase_if(flat, [&](int node) { return IsBelow(node, aNode); });
    std::erase(ChildrenOf(Parent(aNode)), aNode);
  }

  std::vector<int>& ChildrenOf(int aNode) { return children[static_cast<std::size_t>(aNode)]; }

 private:
  int& Parent(int aNode) { return parent[static_cast<std::size_t>(aNode)]; }
  int Parent(int aNode) const { return parent[static_cast<std::size_t>(aNode)]; }

  void HandChildrenUp(int aNode) {
    std::vector<int>& siblings = ChildrenOf(Parent(aNode));
    std::vector<int>& own = ChildrenOf(aNode);
    siblings.insert(std::find(siblings.begin(), siblings.end(), aNode) + 1, own.begin(), own.end());
    for (const int child : own) Parent(child) = Parent(aNode);
    own.clear();
  }
};

}  // namespace GeometryEngine::reference
