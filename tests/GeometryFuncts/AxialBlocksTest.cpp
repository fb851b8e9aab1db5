#include "GeometryEngine/GeometryFuncts/AxialBlocks.h"

#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

namespace GeometryEngine {
namespace {

using testing::ElementsAre;
using testing::Pair;

std::vector<std::pair<double, double>> Extents(const TAxialBlockArray& aBlocks) {
  std::vector<std::pair<double, double>> extents;
  for (const TAxialBlock& block : aBlocks) extents.emplace_back(block.AxPos_Start, block.AxPos_End);
  return extents;
}

TEST(GetAxialBlocks, GapsPartTheLengthIntoOneBlockMore) {
  EXPECT_THAT(Extents(GetAxialBlocks(0, 100, 2, 5)), ElementsAre(Pair(0, 30), Pair(35, 65), Pair(70, 100)));
}

TEST(GetAxialBlocks, BlocksBeginAtTheStart) {
  EXPECT_THAT(Extents(GetAxialBlocks(-50, 100, 1, 10)), ElementsAre(Pair(-50, -5), Pair(5, 50)));
}

TEST(GetAxialBlocks, LengthEqualToTheGapsIsOneBlock) {
  EXPECT_THAT(Extents(GetAxialBlocks(0, 10, 2, 5)), ElementsAre(Pair(0, 10)));
}

TEST(GetAxialBlocks, NoGapsAreOneBlock) {
  EXPECT_THAT(Extents(GetAxialBlocks(0, 100, 0, 5)), ElementsAre(Pair(0, 100)));
  EXPECT_THAT(Extents(GetAxialBlocks(3, 100, -4, 5)), ElementsAre(Pair(3, 103)));
  EXPECT_THAT(Extents(GetAxialBlocks(3, 100, std::numeric_limits<std::int32_t>::min(), 5)), ElementsAre(Pair(3, 103)));
}

TEST(GetAxialBlocks, GapThatIsNotANumberIsOneBlock) {
  EXPECT_THAT(Extents(GetAxialBlocks(0, 100, 2, std::numeric_limits<double>::quiet_NaN())), ElementsAre(Pair(0, 100)));
}

TEST(GetAxialBlocks, EveryBlockIsUnshifted) {
  for (const TAxialBlock& block : GetAxialBlocks(0, 100, 2, 5)) EXPECT_EQ(block.AngleShift, 0);
  EXPECT_EQ(GetAxialBlocks(0, 100, 0, 5).front().AngleShift, 0);
}

}  // namespace
}  // namespace GeometryEngine
