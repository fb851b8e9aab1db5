#pragma once

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"

namespace GeometryEngine::detail {

/// What a pass of the driver runs in: the default floating-point environment, and the promise that the tree that it
/// fills, and the storage of the entities in it, are empty when an allocation fails on the way.
class TDriverPass {
 public:
  explicit TDriverPass(TEntityTree& aFilledTree, TEntityStorage* aFilledStorage = nullptr)
      : fFilledTree(&aFilledTree), fFilledStorage(aFilledStorage) {}
  ~TDriverPass() {
    if (fFilledTree == nullptr) return;
    fFilledTree->Clear();
    if (fFilledStorage != nullptr) fFilledStorage->FreeEntities();
  }
  TDriverPass(const TDriverPass&) = delete;
  TDriverPass& operator=(const TDriverPass&) = delete;

  /// The pass has come to its end.
  void Done() { fFilledTree = nullptr; }

 private:
  TFloatEnvironment fEnvironment;
  TEntityTree* fFilledTree;
  TEntityStorage* fFilledStorage;
};

}  // namespace GeometryEngine::detail
