#include "GeometryEngine/DXF_Regions_Detection/detail/TLoopTracing.h"

#include <gmock/gmock.h>

#include "tests/support/Detection.h"

namespace GeometryEngine {

namespace {

constexpr int kLines = 40;       // across the grid in each direction
constexpr int kTriangles = 400;  // left of it

// A grid, and triangles so small that the rounding of a walk through the grid might hide their area, each joined to
// the grid by a line: walked from outside, every one of them leads into the grid.
TEntityArray GridWithTriangles() {
  TEntityArray drawing;
  for (int i = 0; i < kLines; ++i) {
    drawing.push_back(TDXFEntity::Line({0, 10.0 * i}, {10.0 * (kLines - 1), 10.0 * i}));
    drawing.push_back(TDXFEntity::Line({10.0 * i, 0}, {10.0 * i, 10.0 * (kLines - 1)}));
  }
  for (int i = 0; i < kTriangles; ++i) {
    const double y = 0.5 + i * 10.0 * (kLines - 1) / kTriangles;
    drawing.push_back(TDXFEntity::Line({-1, y}, {-1.0005, y - 0.0004}));
    drawing.push_back(TDXFEntity::Line({-1.0005, y - 0.0004}, {-1.0005, y + 0.0005}));
    drawing.push_back(TDXFEntity::Line({-1.0005, y + 0.0005}, {-1, y}));
    drawing.push_back(TDXFEntity::Line({-1, y}, {0, y}));
  }
  return drawing;
}

struct TTraced {
  int fPositive = 0;
  int fNegative = 0;
  std::size_t fStepsBack = 0;
  std::size_t fHalfEdges = 0;
};

TTraced TraceAll(const TEntityTree& aTree, bool aNegativeToo) {
  const detail::TVertexGraph graph(aTree);
  detail::TLoopTracing tracing(graph);
  TTraced traced;
  for (TIndex h = 0; h < graph.HalfEdgeCount(); ++h) {
    if (tracing.Walk().IsTravelled(h) || !tracing.Trace(h, aNegativeToo)) continue;
    ++(tracing.Area() < 0 ? traced.fNegative : traced.fPositive);
  }
  traced.fStepsBack = tracing.Walk().StepsBack();
  traced.fHalfEdges = static_cast<std::size_t>(graph.HalfEdgeCount());
  return traced;
}

}  // namespace

TEST(TLoopTracing, LoopsInDoubtTakeNoMoreThanAMillionStepsBeyondBridgesAndKeepTheirSigns) {
  const support::TDetection detection(GridWithTriangles());
  const TTraced traced = TraceAll(detection.driver.CoordinateTree(), false);
  const TTraced whole = TraceAll(detection.driver.CoordinateTree(), true);

  constexpr std::size_t kLimit = detail::TLoopTracing::kMostStepsInDoubt;
  ASSERT_GT(whole.fStepsBack, 2 * kLimit);
  EXPECT_GT(traced.fStepsBack, kLimit);
  EXPECT_LT(traced.fStepsBack, kLimit + 4 * traced.fHalfEdges);  // the last walk in doubt may go on
  EXPECT_EQ(traced.fPositive, (kLines - 1) * (kLines - 1) + kTriangles);
  EXPECT_EQ(traced.fPositive, whole.fPositive);
  EXPECT_EQ(traced.fNegative, whole.fNegative);
}

}  // namespace GeometryEngine
