#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "benchmarks/drawings/Drawing.h"
#include "benchmarks/floor/BarePipeline.h"
#include "benchmarks/support/HostRun.h"
#include "tests/support/Settings.h"

namespace benchmarks {
namespace {

std::size_t FacesOf(const drawings::Drawing& aDrawing) {
  const GeometryEngine::support::TSettingsGuard settings;
  THostRun run(aDrawing);
  run.All();
  return run.FaceCount();
}

// The area of all faces, each with what lies in it.
double TotalAreaOf(const drawings::Drawing& aDrawing) {
  const GeometryEngine::support::TSettingsGuard settings;
  THostRun run(aDrawing);
  run.All();
  double area = 0;
  for (const auto* node : run.Nodes()) area += node->RegionArea_Base();
  return area;
}

TEST(Drawings, HaveAboutAsManyEntitiesAsAskedFor) {
  constexpr std::size_t kMachine = 1354;  // the least that is a machine
  for (const drawings::Kind& kind : drawings::Kinds()) {
    for (const std::size_t entities : {1000U, 5000U, 20000U}) {
      const auto difference = static_cast<double>(kind.make(entities).size()) - static_cast<double>(entities);
      EXPECT_LE(std::abs(difference), static_cast<double>(kMachine - 1000)) << kind.name << ' ' << entities;
    }
  }
}

TEST(Drawings, AreFoundByName) {
  EXPECT_EQ(drawings::FindKind("nested")->make, drawings::Nested);
  EXPECT_EQ(drawings::FindKind("no such kind"), nullptr);
}

TEST(Drawings, AreTheSameEachTime) {
  const drawings::Drawing first = drawings::Random(50);
  const drawings::Drawing second = drawings::Random(50);
  for (std::size_t k = 0; k < 50; ++k) {
    EXPECT_EQ(first[k].start.x, second[k].start.x);
    EXPECT_EQ(first[k].end.y, second[k].end.y);
  }
}

// Machines, nested loops, and lines and circles that cross cleanly: nothing there is a matter of tolerance, so that the
// bare pipeline finds the same.
TEST(Drawings, WithoutFaultsHaveTheFacesOfTheBarePipeline) {
  for (const char* name : {"machine", "one_machine", "nested", "crossing", "circles_rays", "polygon"}) {
    const drawings::Drawing drawing = drawings::FindKind(name)->make(40);
    TBarePipeline bare(drawing);
    const std::size_t faces = bare();
    EXPECT_GT(faces, 0U) << name;
    EXPECT_EQ(FacesOf(drawing), faces) << name;
    EXPECT_NEAR(TotalAreaOf(drawing), bare.TotalArea(), 1e-7 * bare.TotalArea()) << name;
  }
}

TEST(Drawings, OfLinesAndCirclesThatCrossHaveTheFacesThatTheyMustHave) {
  EXPECT_EQ(FacesOf(drawings::Crossing(40)), 19U * 19U);
  EXPECT_EQ(FacesOf(drawings::CirclesAndRays(40)), 9U * 20U + 1);
}

TEST(Drawings, WithFaultsHaveTheFacesThatADraughtsmanSees) {
  constexpr std::size_t kInstances = 20;
  EXPECT_EQ(FacesOf(drawings::Doubled(16 * kInstances)), kInstances);
  EXPECT_EQ(FacesOf(drawings::LineBetweenArcs(3 * kInstances)), 2 * kInstances);
  EXPECT_EQ(FacesOf(drawings::OverlappingEdges(8 * kInstances)), 2 * kInstances);
  EXPECT_EQ(FacesOf(drawings::OverlappingArcs(4 * kInstances)), kInstances);
  EXPECT_EQ(FacesOf(drawings::Gaps(4 * kInstances)), kInstances);
}

TEST(Drawings, ThatCloseNowhereHaveNoFaces) {
  EXPECT_EQ(FacesOf(drawings::OpenPolyline(60)), 0U);
  EXPECT_EQ(FacesOf(drawings::Comb(60)), 0U);
  EXPECT_EQ(FacesOf(drawings::HorizontalLines(60)), 0U);
}

TEST(HostRun, PutsEveryRegionBelowTheClosestOneThatHoldsIt) {
  const GeometryEngine::support::TSettingsGuard settings;
  THostRun run(drawings::Nested(300));
  run.All();
  for (const auto* node : run.Nodes()) {
    EXPECT_GT(node->RegionArea_Base(), 0);
    for (const auto* child : node->Children()) EXPECT_LT(child->RegionArea_Base(), node->RegionArea_Base());
    EXPECT_GT(node->GetRegionArea(), 0);
    EXPECT_TRUE(
        node->PointInsideRegion(node->RegionCoordinate(), GeometryEngine::TGeometryRegionTypesSet::All(), true));
  }
}

}  // namespace
}  // namespace benchmarks
