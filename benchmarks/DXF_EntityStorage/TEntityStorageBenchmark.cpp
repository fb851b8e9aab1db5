// What the storage does with long chains: sorting, offset, duplication, measures.

#include <benchmark/benchmark.h>

#include "benchmarks/support/HostRun.h"
#include "benchmarks/support/Sizes.h"

namespace {

using benchmarks::SizeOf;
using benchmarks::ToEntities;
using GeometryEngine::TEntityArray;
using GeometryEngine::TEntityStorage;

// Measures what is done to a fresh copy of the entities, again and again.
template <typename TWork>
void OnCopies(benchmark::State& aState, const TEntityArray& aEntities, const TWork& aWork) {
  for ([[maybe_unused]] const auto unused : aState) {
    aState.PauseTiming();
    TEntityStorage storage;
    storage.AddEntities(aEntities);
    aState.ResumeTiming();
    aWork(storage);
  }
  aState.SetComplexityN(static_cast<std::int64_t>(aEntities.size()));
}

void Sort(TEntityStorage& aStorage) {
  aStorage.QuickSortArray(0, aStorage.Count() - 1);
}

void QuickSortArray(benchmark::State& aState) {
  OnCopies(aState, ToEntities(drawings::Machines(SizeOf(aState))), Sort);
}
BENCHMARK(QuickSortArray)->Apply(benchmarks::FromThousandToMillion);

void QuickSortArray_Sorted(benchmark::State& aState) {
  TEntityStorage sorted;
  sorted.AddEntities(ToEntities(drawings::Machines(SizeOf(aState))));
  Sort(sorted);
  OnCopies(aState, sorted.EntityArray(), Sort);
}
BENCHMARK(QuickSortArray_Sorted)->Apply(benchmarks::FromThousandToMillion);

void Offset(benchmark::State& aState) {
  OnCopies(aState, ToEntities(drawings::Polygon(SizeOf(aState))), [](TEntityStorage& chain) { chain.Offset(0.01); });
}
BENCHMARK(Offset)->Apply(benchmarks::FromThousandToHundredThousand);

// A sixth of a ring, six times round the axis.
void DuplicateAroundAxis(benchmark::State& aState) {
  OnCopies(aState, ToEntities(drawings::Polygon(SizeOf(aState) / 6)),
           [](TEntityStorage& chain) { chain.DuplicateAroundAxis(6, 6, 60, false); });
}
BENCHMARK(DuplicateAroundAxis)->Apply(benchmarks::FromThousandToHundredThousand);

void DuplicateAlongAxis(benchmark::State& aState) {
  OnCopies(aState, ToEntities(drawings::Polygon(SizeOf(aState) / 6)),
           [](TEntityStorage& chain) { chain.DuplicateAlongAxis(6, 2); });
}
BENCHMARK(DuplicateAlongAxis)->Apply(benchmarks::FromThousandToHundredThousand);

// The measures that walk along the chain, on one of so many entities.
template <typename TMeasure>
void OnChain(benchmark::State& aState, const TMeasure& aMeasure) {
  TEntityStorage chain;
  chain.AddEntities(ToEntities(drawings::Polygon(SizeOf(aState))));
  chain.StartCoordinate(chain.GetStartCoordinate());
  for ([[maybe_unused]] const auto unused : aState) benchmark::DoNotOptimize(aMeasure(chain));
  aState.SetComplexityN(aState.range(0));
}

void GetClosedArea(benchmark::State& aState) {
  OnChain(aState, [](const TEntityStorage& chain) { return chain.GetClosedArea(); });
}
BENCHMARK(GetClosedArea)->Apply(benchmarks::FromThousandToHundredThousand);

void GetCentroid(benchmark::State& aState) {
  OnChain(aState, [](const TEntityStorage& chain) { return chain.GetCentroid().x; });
}
BENCHMARK(GetCentroid)->Apply(benchmarks::FromThousandToHundredThousand);

void PointInsideEntities(benchmark::State& aState) {
  OnChain(aState, [](const TEntityStorage& chain) { return chain.PointInsideEntities({0.3, 0.7}, true); });
}
BENCHMARK(PointInsideEntities)->Apply(benchmarks::FromThousandToHundredThousand);

}  // namespace
