#pragma once

// The same request as HostRun.h, by the plain twin that the tests hold the library against: searches over everything,
// every pair compared. It shows what the library saves.

#include "benchmarks/drawings/Drawing.h"
#include "tests/reference/plain/TEntityBaseClass.h"
#include "tests/reference/plain/TTreeNode_Geometry.h"

namespace benchmarks {

class TPlainRun {
 public:
  explicit TPlainRun(const drawings::Drawing& aDrawing);

  void All();
  std::size_t FaceCount() { return fDriver.RegionTree().RootNode()->Children().size(); }

 private:
  void HandOver();

  GeometryEngine::Plain::TEntityStorage fDrawing;
  GeometryEngine::Plain::TEntityBaseClass fDriver;
  GeometryEngine::Plain::TTree_Geometry fTree;
};

}  // namespace benchmarks
