// One pair of each sort, again and again.

#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"

#include <benchmark/benchmark.h>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"

namespace {

using namespace GeometryEngine;

void CheckIntercepts(benchmark::State& aState, const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B) {
  TInterceptionPoints points;
  for ([[maybe_unused]] const auto unused : aState) {
    points.Clear();
    benchmark::DoNotOptimize(GeometryEngine::CheckIntercepts(aEntity_A, aEntity_B, points));
  }
}

const TDXFEntity kLine = CreateEntity_Line(0, 0, 10, 3);
const TDXFEntity kArc = CreateEntity_Arc(5, 1, 3, 10, 200);

BENCHMARK_CAPTURE(CheckIntercepts, line_line, kLine, CreateEntity_Line(1, 4, 8, -5));
BENCHMARK_CAPTURE(CheckIntercepts, line_arc, kLine, kArc);
BENCHMARK_CAPTURE(CheckIntercepts, arc_arc, kArc, CreateEntity_Arc(7, 2, 4, 90, 250));

}  // namespace
