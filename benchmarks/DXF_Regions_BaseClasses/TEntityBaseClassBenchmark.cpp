// A host's request, whole and pass by pass, on drawings of every kind. Lines of one pass are found by its name:
// --benchmark_filter=DetermineRegions.

#include <benchmark/benchmark.h>

#include <memory>

#include "benchmarks/support/HostRun.h"
#include "benchmarks/support/PlainRun.h"
#include "benchmarks/support/Sizes.h"

namespace {

using benchmarks::THostRun;
using drawings::Drawing;
using TMake = Drawing (*)(std::size_t);

// Runs a pass on a fresh driver each time; the passes that come before it are not measured.
template <typename TRun, typename... TPasses>
void Run(benchmark::State& aState, TMake aMake, void (TRun::*aPass)(), TPasses... aBefore) {
  const Drawing drawing = aMake(benchmarks::SizeOf(aState));
  std::size_t faces = 0;
  for ([[maybe_unused]] const auto unused : aState) {
    aState.PauseTiming();
    auto run = std::make_unique<TRun>(drawing);
    ((*run.*aBefore)(), ...);
    aState.ResumeTiming();
    (*run.*aPass)();
    aState.PauseTiming();
    faces = run->FaceCount();
    run.reset();
    aState.ResumeTiming();
  }
  aState.SetComplexityN(static_cast<std::int64_t>(drawing.size()));
  aState.counters["entities"] = static_cast<double>(drawing.size());
  aState.counters["faces"] = static_cast<double>(faces);
  aState.counters["per_entity"] = benchmark::Counter(
      static_cast<double>(drawing.size()), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Detection(benchmark::State& aState, TMake aMake) {
  Run(aState, aMake, &THostRun::All);
}

// The same by searches over everything and all pairs.
void Detection_Plain(benchmark::State& aState, TMake aMake) {
  Run(aState, aMake, &benchmarks::TPlainRun::All);
}

void DetermineInterceptions(benchmark::State& aState, TMake aMake) {
  Run(aState, aMake, &THostRun::DetermineInterceptions);
}

void DetermineRegions(benchmark::State& aState, TMake aMake) {
  Run(aState, aMake, &THostRun::DetermineRegions, &THostRun::DetermineInterceptions);
}

void IdentifySubRegions(benchmark::State& aState, TMake aMake) {
  Run(aState, aMake, &THostRun::IdentifySubRegions, &THostRun::DetermineInterceptions, &THostRun::DetermineRegions);
}

void RemoveDuplicatedSubRegions(benchmark::State& aState, TMake aMake) {
  Run(aState, aMake, &THostRun::RemoveDuplicatedSubRegions, &THostRun::DetermineInterceptions,
      &THostRun::DetermineRegions, &THostRun::IdentifySubRegions);
}

void HandOver(benchmark::State& aState, TMake aMake) {
  Run(aState, aMake, &THostRun::HandOver, &THostRun::DetermineInterceptions, &THostRun::DetermineRegions,
      &THostRun::IdentifySubRegions, &THostRun::RemoveDuplicatedSubRegions);
}

// A drawing that the detection before has left sorted, which a careless sort takes for the worst case.
void DetectionTwice(benchmark::State& aState, TMake aMake) {
  const GeometryEngine::TEntityArray entities = benchmarks::ToEntities(aMake(benchmarks::SizeOf(aState)));
  for ([[maybe_unused]] const auto unused : aState) {
    aState.PauseTiming();
    GeometryEngine::TEntityStorage drawing;
    drawing.AddEntities(entities);
    GeometryEngine::TEntityBaseClass driver;
    driver.DetermineInterceptions(&drawing);
    aState.ResumeTiming();
    driver.DetermineInterceptions(&drawing);
    driver.DetermineRegions(driver.CoordinateTree(), 1);
  }
  aState.SetComplexityN(static_cast<std::int64_t>(entities.size()));
}

// Open chains: those of a drawing that closes nowhere.
void DetectOrphanEntities(benchmark::State& aState, TMake aMake) {
  Run(aState, aMake, &THostRun::DetectOrphanEntities, &THostRun::DetermineInterceptions);
}

void OneSize(benchmark::internal::Benchmark* aBenchmark) {
  aBenchmark->Arg(1000)->Unit(benchmark::kMillisecond);
}

void PlainSizes(benchmark::internal::Benchmark* aBenchmark) {
  aBenchmark->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
}

void PathologicalSize(benchmark::internal::Benchmark* aBenchmark) {
  aBenchmark->Arg(1000)->Arg(20000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

#define GROWING_DRAWINGS(pass)                                                                          \
  BENCHMARK_CAPTURE(pass, machine, drawings::Machines)->Apply(benchmarks::FromThousandToMillion);       \
  BENCHMARK_CAPTURE(pass, one_machine, drawings::OneMachine)->Apply(benchmarks::FromThousandToMillion); \
  BENCHMARK_CAPTURE(pass, nested, drawings::Nested)->Apply(benchmarks::FromThousandToMillion);          \
  BENCHMARK_CAPTURE(pass, random, drawings::Random)->Apply(benchmarks::FromThousandToMillion);          \
  BENCHMARK_CAPTURE(pass, crossing, drawings::Crossing)->Apply(OneSize);                                \
  BENCHMARK_CAPTURE(pass, circles_rays, drawings::CirclesAndRays)->Apply(OneSize)

GROWING_DRAWINGS(Detection);
GROWING_DRAWINGS(DetermineInterceptions);
GROWING_DRAWINGS(DetermineRegions);
GROWING_DRAWINGS(IdentifySubRegions);
GROWING_DRAWINGS(RemoveDuplicatedSubRegions);
GROWING_DRAWINGS(HandOver);

BENCHMARK_CAPTURE(Detection_Plain, machine, drawings::Machines)->Apply(PlainSizes);
BENCHMARK_CAPTURE(Detection_Plain, one_machine, drawings::OneMachine)->Apply(PlainSizes);
BENCHMARK_CAPTURE(Detection_Plain, nested, drawings::Nested)->Apply(PlainSizes);
BENCHMARK_CAPTURE(Detection_Plain, random, drawings::Random)->Apply(OneSize);

BENCHMARK_CAPTURE(Detection, open_polyline, drawings::OpenPolyline)->Apply(PathologicalSize);
BENCHMARK_CAPTURE(Detection, comb, drawings::Comb)->Apply(PathologicalSize);
BENCHMARK_CAPTURE(Detection, horizontal_lines, drawings::HorizontalLines)->Apply(PathologicalSize);
BENCHMARK_CAPTURE(Detection, polygon, drawings::Polygon)->Apply(PathologicalSize);
BENCHMARK_CAPTURE(DetectionTwice, machine, drawings::Machines)->Apply(PathologicalSize);
BENCHMARK_CAPTURE(DetectionTwice, horizontal_lines, drawings::HorizontalLines)->Apply(PathologicalSize);
BENCHMARK_CAPTURE(DetectOrphanEntities, open_polyline, drawings::OpenPolyline)->Apply(PathologicalSize);
BENCHMARK_CAPTURE(DetectOrphanEntities, comb, drawings::Comb)->Apply(PathologicalSize);

}  // namespace
