// Unique names in a tree of many regions.

#include <benchmark/benchmark.h>

#include <array>

#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"
#include "benchmarks/support/Sizes.h"

namespace {

using namespace GeometryEngine;

// Regions enter the tree and get their names one after the other, as a host makes them.
template <typename TNameOf>
void NameRegions(benchmark::State& aState, const TNameOf& aNameOf) {
  for ([[maybe_unused]] const auto unused : aState) {
    aState.PauseTiming();
    TTree_CoreProperties tree;
    std::vector<TTreeNode_CoreProperties*> regions;
    for (std::int64_t k = 0; k < aState.range(0); ++k) {
      auto node = tree.CreateTreeNode();
      regions.push_back(TTreeNode_CoreProperties::TypeCast(tree.AddNewTreeNode(node)));
    }
    aState.ResumeTiming();
    for (std::size_t k = 0; k < regions.size(); ++k) regions[k]->SetRegionName(aNameOf(k));
  }
  aState.SetComplexityN(aState.range(0));
}

void Sizes(benchmark::internal::Benchmark* aBenchmark) {
  aBenchmark->Arg(1000)->Arg(10000)->Arg(20000)->Arg(100000)->Unit(benchmark::kMillisecond);
  aBenchmark->Complexity(benchmark::oNLogN);
}

void SetRegionName_OneName(benchmark::State& aState) {
  NameRegions(aState, [](std::size_t) { return "Conductor"; });
}
BENCHMARK(SetRegionName_OneName)->Apply(Sizes);

void SetRegionName_SomeNames(benchmark::State& aState) {
  constexpr std::array kNames = {"Conductor", "Magnet", "Slot", "Barrier", "Stator"};
  NameRegions(aState, [&](std::size_t k) { return kNames[k % kNames.size()]; });
}
BENCHMARK(SetRegionName_SomeNames)->Apply(Sizes);

}  // namespace
