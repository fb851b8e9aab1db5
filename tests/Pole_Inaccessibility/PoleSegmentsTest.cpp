#include "GeometryEngine/Pole_Inaccessibility/detail/PoleSegments.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/Chains.h"
#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine::detail {

TEST(PoleSegments, DistanceOfABoxIsThatOfTheLastVertex) {
  const support::TSettingsGuard settings;
  const auto chain = support::MakeChain(support::PolygonText("4,5 20,5 20,30"));
  const std::array<const TEntityStorage*, 1> chains{chain.get()};
  const TPoleSegments segments(chains);
  EXPECT_EQ(segments.GetDistanceOfBox({0, 20, 0, 30}), 0);
  EXPECT_EQ(segments.GetDistanceOfBox({0, 17, 0, 26}), 5);
  EXPECT_EQ(segments.GetDistanceOfBox({0, 30, 0, 20}), 10) << "although the chain passes the box";
}

TEST(PoleSegments, DistanceOfABoxIsInfiniteWithoutAPolyline) {
  const support::TSettingsGuard settings;
  const TEntityStorage empty;
  const std::array<const TEntityStorage*, 1> chains{&empty};
  EXPECT_EQ(TPoleSegments(chains).GetDistanceOfBox({0, 1, 0, 1}), std::numeric_limits<double>::infinity());
}

TEST(PoleSegments, RoundingGrowsWithTheLargestCoordinateOfChainsAndBox) {
  const support::TSettingsGuard settings;
  const auto chain = support::MakeChain(support::PolygonText("4,5 20,5 20,30"));
  const std::array<const TEntityStorage*, 1> chains{chain.get()};
  const TPoleSegments segments(chains);
  const double least = segments.GetRounding({0, 1, 0, 1});
  EXPECT_GT(least, 0);
  EXPECT_LT(least, 1e-12);
  for (const TPlaneBox& box : {TPlaneBox{-300, 1, 0, 1}, {0, 300, 0, 1}, {0, 1, -300, 1}, {0, 1, 0, 300}}) {
    EXPECT_DOUBLE_EQ(segments.GetRounding(box), 10 * least);
  }
}

}  // namespace GeometryEngine::detail
