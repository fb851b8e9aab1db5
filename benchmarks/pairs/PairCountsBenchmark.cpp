// How many pairs of entities the sweep proposes, tests and finds to meet.
//
// This program is linked from the library's own objects, and so that their calls of CheckIntercepts come here first
// (CMakeLists.txt beside this file). Its times are those of counting; TEntityBaseClassBenchmark.cpp has the others.

#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>

#include "benchmarks/support/HostRun.h"
#include "benchmarks/support/Sizes.h"

namespace {

struct TPairCounts {
  std::size_t tested = 0;
  std::size_t hit = 0;
};

TPairCounts counts;

}  // namespace

// What the linker puts between the callers of CheckIntercepts and CheckIntercepts itself.
extern "C" {
bool COUNTED(const GeometryEngine::TDXFEntity&, const GeometryEngine::TDXFEntity&,
             GeometryEngine::TInterceptionPoints&);
bool REAL(const GeometryEngine::TDXFEntity&, const GeometryEngine::TDXFEntity&, GeometryEngine::TInterceptionPoints&);
}

bool COUNTED(const GeometryEngine::TDXFEntity& aEntity_A, const GeometryEngine::TDXFEntity& aEntity_B,
             GeometryEngine::TInterceptionPoints& aPoints) {
  const bool isHit = REAL(aEntity_A, aEntity_B, aPoints);
  ++counts.tested;
  counts.hit += isHit ? 1 : 0;
  return isHit;
}

namespace {

using namespace GeometryEngine;

// Pairs that share an x: what a sweep without any more thought would test.
double CountPairsInX(const TEntityArray& aEntities) {
  std::vector<double> lefts;
  std::vector<double> rights;
  for (const TDXFEntity& entity : aEntities) {
    lefts.push_back(GetLeftMostCoordinate(entity).x);
    rights.push_back(GetRightMostCoordinate(entity).x);
  }
  std::ranges::sort(lefts);
  std::ranges::sort(rights);
  double pairs = 0;
  std::size_t left_behind = 0;
  for (std::size_t k = 0; k < lefts.size(); ++k) {
    while (rights[left_behind] < lefts[k] && !ValuesSame_DXFTolerance(rights[left_behind], lefts[k])) ++left_behind;
    pairs += static_cast<double>(k - left_behind);
  }
  return pairs;
}

void Pairs(benchmark::State& aState, drawings::Drawing (*aMake)(std::size_t)) {
  const drawings::Drawing drawing = aMake(benchmarks::SizeOf(aState));
  for ([[maybe_unused]] const auto unused : aState) {
    aState.PauseTiming();
    counts = {};
    auto run = std::make_unique<benchmarks::THostRun>(drawing);
    aState.ResumeTiming();
    run->DetermineInterceptions();
    aState.PauseTiming();
    run.reset();
    aState.ResumeTiming();
  }
  if (counts.tested == 0) aState.SkipWithError("the library does not call the function that counts");
  aState.counters["proposed"] = CountPairsInX(benchmarks::ToEntities(drawing));
  aState.counters["tested"] = static_cast<double>(counts.tested);
  aState.counters["hit"] = static_cast<double>(counts.hit);
  aState.counters["tested_per_entity"] = static_cast<double>(counts.tested) / static_cast<double>(drawing.size());
}

void Once(benchmark::internal::Benchmark* aBenchmark) {
  aBenchmark->RangeMultiplier(10)->Range(1000, 1000000)->Iterations(1)->Unit(benchmark::kMillisecond);
}

void OnceAThousand(benchmark::internal::Benchmark* aBenchmark) {
  aBenchmark->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(Pairs, machine, drawings::Machines)->Apply(Once);
BENCHMARK_CAPTURE(Pairs, one_machine, drawings::OneMachine)->Apply(Once);
BENCHMARK_CAPTURE(Pairs, nested, drawings::Nested)->Apply(Once);
BENCHMARK_CAPTURE(Pairs, random, drawings::Random)->Apply(Once);
BENCHMARK_CAPTURE(Pairs, crossing, drawings::Crossing)->Apply(OnceAThousand);
BENCHMARK_CAPTURE(Pairs, circles_rays, drawings::CirclesAndRays)->Apply(OnceAThousand);
BENCHMARK_CAPTURE(Pairs, open_polyline, drawings::OpenPolyline)->Apply(Once);
BENCHMARK_CAPTURE(Pairs, comb, drawings::Comb)->Apply(Once);

}  // namespace
