// Whole drawings and the open chains that come out of them.

#include <string>

#include <gmock/gmock.h>

#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::IsLoop;
using support::TDetection;

namespace {

/// With a line far to the right: when the sweep reaches it, all others have their ends recorded.
std::vector<support::TLoop> ChainsOf(const std::string& aEntities) {
  return support::DetectChains(aEntities + "; L 1000,0 1001,0");
}

std::vector<TIndex> CountsOf(const std::vector<support::TLoop>& aChains) {
  std::vector<TIndex> counts;
  for (const support::TLoop& chain : aChains) counts.push_back(chain.count);
  return counts;
}

class OpenChains : public testing::Test {
 protected:
  support::TSettingsGuard fSettings;
};

}  // namespace

TEST_F(OpenChains, ChainIsFoundFromEitherEndAndListedOnce) {
  EXPECT_THAT(CountsOf(ChainsOf("L 0,0 4,0; L 4,0 4,4; L 4,4 8,4; L 8,4 8,8")), testing::ElementsAre(4));
}

TEST_F(OpenChains, ChainOfLinesAndArcsIsFound) {
  EXPECT_THAT(CountsOf(ChainsOf("L 0,0 4,0; A c 4,3 r 3 270..90 from 4,0 to 4,6; L 4,6 0,6")), testing::ElementsAre(3));
}

TEST_F(OpenChains, SeparateChainsAreListedEach) {
  EXPECT_THAT(ChainsOf("L 0,0 4,0; L 4,0 4,4; L 20,0 24,0; L 24,0 24,4; L 24,4 28,4"),
              testing::UnorderedElementsAre(IsLoop(2, -8), IsLoop(3, 40)));
}

TEST_F(OpenChains, ChainDrawnTwiceIsListedOnce) {
  EXPECT_THAT(CountsOf(ChainsOf("L 0,0 4,0; L 4,0 4,4; L 4,4 4,0; L 0,0 4,0")), testing::ElementsAre(2));
}

TEST_F(OpenChains, CrossingLinesAreChainsThatTurnLeftAtTheCrossing) {
  const auto chains = ChainsOf("L -4,0 4,0; L 0,-4 0,4");
  EXPECT_THAT(CountsOf(chains), testing::Each(2));
  EXPECT_FALSE(chains.empty());
}

TEST_F(OpenChains, ChainThatEndsOnALoopRunsRoundItAndBack) {
  // There and back again over the spur: three sides of the triangle and the spur twice.
  EXPECT_THAT(CountsOf(ChainsOf("L 0,0 4,0; L 4,0 4,3; L 4,3 0,0; L 4,3 6,6")), testing::ElementsAre(5));
}

TEST_F(OpenChains, ClosedLoopsHaveNone) {
  EXPECT_THAT(ChainsOf("L 0,0 4,0; L 4,0 4,3; L 4,3 0,0"), testing::IsEmpty());
}

TEST_F(OpenChains, BothLoopsAndChainsOfOneDrawingNeedInterceptionsDeterminedInBetween) {
  TDetection detection("L 0,0 4,0; L 4,0 4,3; L 4,3 0,0; L 10,0 12,0; L 12,0 12,2; L 1000,0 1001,0");
  TEntityBaseClass& driver = detection.driver;
  driver.DetermineRegions(driver.CoordinateTree(), 0);
  EXPECT_THAT(CountsOf(support::GetLoops(driver)), testing::ElementsAre(3, 3));
  driver.DetermineInterceptions(&detection.drawing);
  driver.DetectOrphanEntities(driver.CoordinateTree());
  EXPECT_THAT(CountsOf(support::GetLoops(driver)), testing::ElementsAre(2));
}
