#pragma once

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"

namespace GeometryEngine::detail {

/// What a pass of the driver runs in: the default floating-point environment, and the promise that the tree that it
/// fills is empty when an allocation fails on the way.
class TDriverPass {
 public:
  explicit TDriverPass(TEntityTree& aFilledTree) : fFilledTree(&aFilledTree) {}
  ~TDriverPass() {
    if (fFilledTree != nullptr) fFilledTree->Clear();
  }
  TDriverPass(const TDriverPass&) = delete;
  TDriverPass& operator=(const TDriverPass&) = delete;

  /// The pass has come to its end.
  void Done() { fFilledTree = nullptr; }

 private:
  TFloatEnvironment fEnvironment;
  TEntityTree* fFilledTree;
};

}  // namespace GeometryEngine::detail
