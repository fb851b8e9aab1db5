#include "GeometryEngine/DXF_Regions_Detection/detail/Directions.h"

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::GetDirection;
using detail::GetRoughDirection_Arc;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t kLeaving = 1;
constexpr std::int32_t kArriving = 0;

TDXFEntity Arc(const TEntityCoordinate& aCentre, double aRadius, double aStartAngle, double aEndAngle) {
  return TDXFEntity::Arc(detail::GetCirclePoint(aCentre, aRadius, aStartAngle),
                         detail::GetCirclePoint(aCentre, aRadius, aEndAngle), aCentre, aRadius, aStartAngle, aEndAngle);
}

// How far the direction of a vector is from another one, the shorter way round.
double Deviation(const TVector_Single& aVector, double aDirection) {
  const double exact = GetDirection(static_cast<double>(aVector.x), static_cast<double>(aVector.y));
  const double difference = std::abs(exact - aDirection);
  return std::min(difference, detail::kFullTurn_Direction - difference);
}

TEST(Direction, GrowsWithTheAngleFrom0To4) {
  EXPECT_EQ(GetDirection(1, 0), 0);
  EXPECT_EQ(GetDirection(0, 2), 1);
  EXPECT_EQ(GetDirection(-3, 0), 2);
  EXPECT_EQ(GetDirection(0, -1), 3);
  double before = -1;
  for (int degree = 0; degree < 360; ++degree) {
    const double angle = degree * std::numbers::pi / 180;
    const double direction = GetDirection(std::cos(angle), std::sin(angle));
    EXPECT_GT(direction, before) << degree;
    before = direction;
  }
  EXPECT_LT(before, 4);
  EXPECT_TRUE(std::isnan(GetDirection(0, 0)));
}

// The chords that leave both ends, and those by which a walk comes to them, which differ by rounding alone.
TEST(RoughDirection, IsWithinItsSlackOfTheChordsAtBothEnds) {
  const support::TSettingsGuard settings;
  std::mt19937_64 random(20261122);
  std::uniform_real_distribution<double> share(0, 1);
  int known = 0;
  for (int i = 0; i < 200'000; ++i) {
    const double radius = std::pow(10, -2 + 8 * share(random));
    const double sweep = std::min(360 * std::pow(10, -5 * share(random)), 359.9);
    const double start = 720 * share(random) - 360;
    const TEntityCoordinate centre{2000 * share(random) - 1000, 2000 * share(random) - 1000};
    const TDXFEntity arc = Arc(centre, radius, start, start + sweep);
    if (arc.StartCoords == arc.EndCoords) continue;
    for (const bool isFromStart : {true, false}) {
      const auto rough = GetRoughDirection_Arc(arc, isFromStart);
      if (!rough) continue;
      const TEntityCoordinate& from = isFromStart ? arc.StartCoords : arc.EndCoords;
      const TEntityCoordinate& to = isFromStart ? arc.EndCoords : arc.StartCoords;
      ++known;
      const double most = rough->fSlack + detail::kRoughness;
      ASSERT_LE(Deviation(GetEntityVector(from, to, arc, kLeaving), rough->fDirection), most)
          << "radius " << radius << ", from " << start << ", sweep " << sweep << ", " << isFromStart;
      ASSERT_LE(Deviation(GetEntityVector(to, from, arc, kArriving), rough->fDirection), most)
          << "radius " << radius << ", from " << start << ", sweep " << sweep << ", " << isFromStart;
    }
  }
  EXPECT_GT(known, 200'000);
}

// So that an arc of a machine rarely leaves any doubt.
TEST(RoughDirection, OfAnOrdinaryArcIsMissedByLittle) {
  const auto small = GetRoughDirection_Arc(Arc({70, 0}, 4, 10, 80), true);
  ASSERT_TRUE(small);
  EXPECT_LT(small->fSlack, 0.01);
  const auto large = GetRoughDirection_Arc(Arc({0, 0}, 100, 0, 10), false);
  ASSERT_TRUE(large);
  EXPECT_LT(large->fSlack, 0.0015);
  const auto few = GetRoughDirection_Arc(Arc({0, 0}, 100, 0, 1), false);
  ASSERT_TRUE(few);
  EXPECT_EQ(few->fSlack, 0) << "of three chords, whatever the radius";
}

TEST(RoughDirection, IsNotKnownOfArcsThatAreNotOrdinary) {
  EXPECT_FALSE(GetRoughDirection_Arc(Arc({0, 0}, 0.019, 0, 90), true));
  EXPECT_FALSE(GetRoughDirection_Arc(Arc({0, 0}, 1.1e6, 0, 90), true));
  EXPECT_FALSE(GetRoughDirection_Arc(Arc({0, 0}, -1, 0, 90), true));
  EXPECT_FALSE(GetRoughDirection_Arc(Arc({0, 0}, 10, 36000, 36090), true));
  EXPECT_FALSE(GetRoughDirection_Arc(Arc({0, 0}, 10, 90, 90), true)) << "without a sweep";
  EXPECT_FALSE(GetRoughDirection_Arc(Arc({1e8, 0}, 10, 0, 90), true)) << "ends that are rounded too much";
  for (const double bad : {kInfinity, -kInfinity, kNotANumber}) {
    EXPECT_FALSE(GetRoughDirection_Arc(Arc({bad, 0}, 10, 0, 90), true));
    EXPECT_FALSE(GetRoughDirection_Arc(Arc({0, bad}, 10, 0, 90), true));
    EXPECT_FALSE(GetRoughDirection_Arc(Arc({0, 0}, bad, 0, 90), true));
    EXPECT_FALSE(GetRoughDirection_Arc(Arc({0, 0}, 10, bad, 90), true));
    EXPECT_FALSE(GetRoughDirection_Arc(Arc({0, 0}, 10, 0, bad), false));
  }
}

}  // namespace
}  // namespace GeometryEngine
