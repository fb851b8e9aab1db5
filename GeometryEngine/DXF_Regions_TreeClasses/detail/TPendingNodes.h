#pragma once

namespace GeometryEngine {
class TEntityTree;
}

namespace GeometryEngine::detail {

/// What a pass has found, with which it leaves a tree that makes its nodes when somebody first looks at them. Passes
/// that know of it take what they need from here, and no node is made.
class TPendingNodes {
 public:
  TPendingNodes() = default;
  virtual ~TPendingNodes() = default;
  TPendingNodes(const TPendingNodes&) = delete;
  TPendingNodes& operator=(const TPendingNodes&) = delete;

  /// Adds the nodes to a tree that is empty. One in which this fails midway can only be cleared.
  virtual void AddNodes(TEntityTree& aTree) const = 0;
};

}  // namespace GeometryEngine::detail
