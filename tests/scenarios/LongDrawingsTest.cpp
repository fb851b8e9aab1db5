// The length of a loop or chain costs no stack: whole detections on a thread with 64 KiB.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_Detection/RegionTracing.h"
#include "tests/support/Detection.h"
#include "tests/support/RunWithStack.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::IsLoop;
using support::RunWithStack;
using support::TDetection;

namespace {

constexpr std::size_t kSmallStack = 64 * 1024;  // bytes
constexpr std::int32_t kLoopLength = 100000;    // entities
constexpr std::int32_t kChainLength = 100000;   // entities
// A host's own walk looks up each vertex among all: it is followed along fewer.
constexpr std::int32_t kChainLength_OwnWalk = 1000;
constexpr double kPi = 3.141592653589793;
constexpr double kRadius = 1e7;  // so large that no edge is within the tolerance of upright

TEntityCoordinate CornerOf(std::int32_t aIndex) {
  const double angle = 2 * kPi * (aIndex % kLoopLength) / kLoopLength;
  return {kRadius * std::cos(angle), kRadius * std::sin(angle)};
}

/// A regular polygon.
TEntityArray MakeLoop() {
  TEntityArray loop;
  for (std::int32_t i = 0; i < kLoopLength; ++i) loop.push_back(TDXFEntity::Line(CornerOf(i), CornerOf(i + 1)));
  return loop;
}

/// A zigzag along the x axis, with all of its ends recorded.
TEntityArray MakeChain(std::int32_t aLength) {
  TEntityArray chain;
  const auto point = [](std::int32_t i) {
    return TEntityCoordinate{static_cast<double>(i), static_cast<double>(i % 2)};
  };
  for (std::int32_t i = 0; i < aLength; ++i) chain.push_back(TDXFEntity::Line(point(i), point(i + 1)));
  chain.push_back(TDXFEntity::Line({10.0 * aLength, 0}, {10.0 * aLength + 1, 0}));
  return chain;
}

double AreaOfPolygon() {
  return kLoopLength * kRadius * kRadius * std::sin(2 * kPi / kLoopLength) / 2;
}

class LongDrawings : public testing::Test {
 protected:
  support::TSettingsGuard fSettings;
};

}  // namespace

TEST_F(LongDrawings, LoopOfAHundredThousandEntitiesIsDetectedUnderASmallStack) {
  RunWithStack(kSmallStack, [] {
    TDetection detection(MakeLoop());
    detection.driver.DetermineRegions(detection.driver.CoordinateTree(), 0);
    EXPECT_THAT(support::GetLoops(detection.driver),
                testing::ElementsAre(IsLoop(kLoopLength, -AreaOfPolygon()), IsLoop(kLoopLength, AreaOfPolygon())));
  });
}

TEST_F(LongDrawings, ChainOfAHundredThousandEntitiesIsDetectedUnderASmallStack) {
  RunWithStack(kSmallStack, [] {
    TDetection detection(MakeChain(kChainLength));
    detection.driver.DetectOrphanEntities(detection.driver.CoordinateTree());
    const std::vector<support::TLoop> chains = support::GetLoops(detection.driver);
    ASSERT_EQ(chains.size(), 1U);
    EXPECT_EQ(chains[0].count, kChainLength);
  });
}

TEST_F(LongDrawings, ChainOfAThousandEntitiesIsSteppedBackFromUnderASmallStack) {
  RunWithStack(kSmallStack, [] {
    TDetection detection(MakeChain(kChainLength_OwnWalk));
    TEntityTree& tree = detection.driver.CoordinateTree();
    TTreeNode* vertex = tree.Search_L1_Coords({0, 0});
    ASSERT_NE(vertex, nullptr);
    TRegionWalk walk;
    walk.fBacktracking = true;
    FindNextRegionEntity(tree, vertex, vertex->GetNode(0), walk);
    EXPECT_TRUE(walk.fPath.empty());
    EXPECT_EQ(walk.fBlocked.size(), static_cast<std::size_t>(kChainLength_OwnWalk)) << "every entity is a dead end";
  });
}

TEST_F(LongDrawings, ChainOfAHundredThousandEntitiesBoundsNoRegionUnderASmallStack) {
  RunWithStack(kSmallStack, [] {
    TDetection detection(MakeChain(kChainLength));
    detection.driver.DetermineRegions(detection.driver.CoordinateTree(), 0);
    EXPECT_EQ(detection.driver.RegionTree().RootNode()->Count(), 0);
  });
}
