// Where the label of a region goes, for regions of many entities and with many children.

#include <benchmark/benchmark.h>

#include <memory>

#include "benchmarks/support/HostRun.h"
#include "benchmarks/support/Sizes.h"

namespace {

using namespace GeometryEngine;

constexpr double kPrecision = 1.0;
constexpr double kMinimumDistance = 0.001;

void Sizes(benchmark::internal::Benchmark* aBenchmark) {
  aBenchmark->Arg(100)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
  aBenchmark->Complexity(benchmark::oNLogN);
}

std::unique_ptr<TEntityStorage> ClosedChain(std::size_t aEntities) {
  auto chain = std::make_unique<TEntityStorage>();
  chain->AddEntities(benchmarks::ToEntities(drawings::Polygon(aEntities)));
  chain->StartCoordinate(chain->GetStartCoordinate());
  return chain;
}

// A long outline, and a centroid that says nothing: the search has to look.
void FindPoleInaccessibility_LongOutline(benchmark::State& aState) {
  const auto outline = ClosedChain(benchmarks::SizeOf(aState));
  TPoleRegion region;
  region.fOutline = outline.get();
  region.fCentroid = {1e6, 1e6};
  region.fSearchable = true;
  for ([[maybe_unused]] const auto unused : aState) {
    benchmark::DoNotOptimize(FindPoleInaccessibility(region, kPrecision, kMinimumDistance));
  }
  aState.SetComplexityN(aState.range(0));
}
BENCHMARK(FindPoleInaccessibility_LongOutline)->Apply(Sizes);

// A ring, as between two long outlines: its centroid is in the hole.
void FindPoleInaccessibility_Ring(benchmark::State& aState) {
  const auto outline = ClosedChain(benchmarks::SizeOf(aState) / 2);
  const auto hole = ClosedChain(benchmarks::SizeOf(aState) / 2 - 40);
  TPoleRegion region;
  region.fOutline = outline.get();
  region.fChildOutlines = {hole.get()};
  region.fSearchable = true;
  for ([[maybe_unused]] const auto unused : aState) {
    benchmark::DoNotOptimize(FindPoleInaccessibility(region, kPrecision, kMinimumDistance));
  }
  aState.SetComplexityN(aState.range(0));
}
BENCHMARK(FindPoleInaccessibility_Ring)->Apply(Sizes);

}  // namespace
