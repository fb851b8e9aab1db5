// The winding contribution of an arc with ever more chords: its radius grows, the point stays within reach of them.

#include <benchmark/benchmark.h>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"

namespace {

using namespace GeometryEngine;

void GetWindingNumber_Entity_Addition(benchmark::State& aState) {
  const auto radius = static_cast<double>(aState.range(0));
  const TDXFEntity arc = CreateEntity_Arc(3, 5, radius, 10, 200);
  const TEntityCoordinate point{3 - radius / 2, 5 + radius / 3};
  for ([[maybe_unused]] const auto unused : aState) {
    benchmark::DoNotOptimize(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, arc.EndCoords, point));
  }
  aState.SetComplexityN(aState.range(0));
}
BENCHMARK(GetWindingNumber_Entity_Addition)->RangeMultiplier(100)->Range(1, 100000000)->Complexity(benchmark::o1);

}  // namespace
