#include "GeometryEngine/DXF_Regions_Detection/detail/TLoopTracing.h"

#include <gmock/gmock.h>

#include "tests/support/Detection.h"

namespace GeometryEngine {

namespace {

constexpr int kLines = 40;       // across the grid in each direction
constexpr int kTriangles = 400;  // left of it

// A grid, and triangles each joined to it by a line: walked from outside, every one of them leads into the grid. The
// rounding of a walk through the grid might hide the area of small ones.
TEntityArray GridWithTriangles(double aSize) {
  TEntityArray drawing;
  for (int i = 0; i < kLines; ++i) {
    drawing.push_back(TDXFEntity::Line({0, 10.0 * i}, {10.0 * (kLines - 1), 10.0 * i}));
    drawing.push_back(TDXFEntity::Line({10.0 * i, 0}, {10.0 * i, 10.0 * (kLines - 1)}));
  }
  for (int i = 0; i < kTriangles; ++i) {
    const double y = 0.5 + i * 10.0 * (kLines - 1) / kTriangles;
    const double x = -1 - aSize;
    drawing.push_back(TDXFEntity::Line({-1, y}, {x, y - 0.8 * aSize}));
    drawing.push_back(TDXFEntity::Line({x, y - 0.8 * aSize}, {x, y + aSize}));
    drawing.push_back(TDXFEntity::Line({x, y + aSize}, {-1, y}));
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
  detail::TVertexGraph graph(aTree);
  detail::TLoopTracing tracing(graph);
  TTraced traced;
  for (TIndex place = 0; place < graph.HalfEdgeCount(); ++place) {
    if (tracing.Walk().IsTravelled(graph.HalfEdgeInOrder(place)) || !tracing.Trace(place, aNegativeToo)) continue;
    ++(tracing.Area() < 0 ? traced.fNegative : traced.fPositive);
  }
  traced.fStepsBack = tracing.StepsBack();
  traced.fHalfEdges = static_cast<std::size_t>(graph.HalfEdgeCount());
  return traced;
}

}  // namespace

TEST(TLoopTracing, LoopsInDoubtTakeNoMoreThanAMillionStepsBeyondBridgesAndKeepTheirSigns) {
  const support::TDetection detection(GridWithTriangles(0.0005));
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

TEST(TLoopTracing, LoopsSurelyClockwiseAreNotWalkedBeyondTheirBridges) {
  const support::TDetection detection(GridWithTriangles(0.4));
  const TTraced traced = TraceAll(detection.driver.CoordinateTree(), false);
  EXPECT_LT(traced.fStepsBack, 2 * traced.fHalfEdges) << "one walk through the grid alone takes about as many";
  EXPECT_EQ(traced.fPositive, (kLines - 1) * (kLines - 1) + kTriangles);
  EXPECT_EQ(traced.fNegative, 1 + kTriangles);
}

}  // namespace GeometryEngine
