#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TWalkedEntity.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/ArcHeights.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"

using namespace GeometryEngine;
using detail::GetHeights;
using detail::THeightRange;
using detail::TWalkedEntity;

namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TDXFEntity MakeArc(const TEntityCoordinate& aCentre, double aRadius, double aStart, double aEnd) {
  return TDXFEntity::Arc(detail::GetCirclePoint(aCentre, aRadius, aStart),
                         detail::GetCirclePoint(aCentre, aRadius, aEnd), aCentre, aRadius, aStart, aEnd);
}

bool HoldsAll(const THeightRange& aHeights) {
  return aHeights.fLow == -std::numeric_limits<double>::infinity() &&
         aHeights.fHigh == std::numeric_limits<double>::infinity();
}

/// Points at heights that matter: those of the entity's ends, of its circle's top and bottom, and a hair beside them.
std::vector<double> Heights(const TDXFEntity& aEntity, double aTolerance) {
  std::vector<double> heights;
  const double radius = aEntity.radius;
  for (const double height : {aEntity.StartCoords.y, aEntity.EndCoords.y, aEntity.CentreCoords.y,
                              aEntity.CentreCoords.y + radius, aEntity.CentreCoords.y - radius}) {
    for (const double beside : {-2.0, -1.0, -0.5, 0.0, 0.5, 1.0, 2.0}) heights.push_back(height + beside * aTolerance);
  }
  return heights;
}

}  // namespace

TEST(GetHeights, OfAPartBetweenTheQuarterPointsAreThoseOfItsEnds) {
  const THeightRange heights = GetHeights({10, 2, 30, -30});
  EXPECT_NEAR(heights.fLow, 9, 1e-8);
  EXPECT_NEAR(heights.fHigh, 11, 1e-8);
}

TEST(GetHeights, TakeInTheTopAndTheBottomThatThePartPasses) {
  EXPECT_GE(GetHeights({0, 2, 80, 100}).fHigh, 2);
  EXPECT_GE(GetHeights({0, 2, 440, 460}).fHigh, 2);
  EXPECT_LE(GetHeights({0, 2, -80, -100}).fLow, -2);
  EXPECT_LE(GetHeights({0, 2, 190, 350}).fLow, -2);
  EXPECT_GE(GetHeights({0, 2, 90, 180}).fHigh, 2);
  EXPECT_GE(GetHeights({0, 2, 0, 90}).fHigh, 2);
  EXPECT_LT(GetHeights({0, 2, 91, 180}).fHigh, 2);
}

TEST(GetHeights, AreAllOfThemWhereNothingIsSure) {
  EXPECT_TRUE(HoldsAll(GetHeights({0, -2, 0, 90})));
  EXPECT_TRUE(HoldsAll(GetHeights({0, kNotANumber, 0, 90})));
  EXPECT_TRUE(HoldsAll(GetHeights({kNotANumber, 2, 0, 90})));
  EXPECT_TRUE(HoldsAll(GetHeights({0, 2, 1e9, 90})));
  EXPECT_TRUE(HoldsAll(GetHeights({0, 2, 0, kNotANumber})));
}

TEST(THeightRange, IsAllHeightsWhenWidenedByWhatIsNoNumber) {
  EXPECT_TRUE(HoldsAll(THeightRange{1, 2}.Widened(kNotANumber)));
  EXPECT_TRUE(HoldsAll(THeightRange{1, kNotANumber}.Widened(1)));
  EXPECT_TRUE((THeightRange{1, 2}.Holds(kNotANumber)));
}

TEST(TWalkedEntity, AddsWhatTheEntityAddsPointByPoint) {
  std::mt19937 random(1);
  const auto between = [&](double aLow, double aHigh) {
    return std::uniform_real_distribution<double>(aLow, aHigh)(random);
  };
  const double tolerance = GetLinearTolerance();
  int turns = 0;
  for (int k = 0; k < 2000; ++k) {
    const double start = 15.0 * static_cast<int>(between(-30, 30));
    const TDXFEntity arc = MakeArc({between(-5, 5), between(-5, 5)}, std::exp(between(-4, 6)), start,
                                   k % 3 == 0 ? between(0, 360) : start + 15.0 * static_cast<int>(between(1, 24)));
    const TDXFEntity entity = k % 5 == 0 ? TDXFEntity::Line(arc.StartCoords, arc.EndCoords) : arc;
    // Walked from one end, from the other, and from a point that is neither.
    const TEntityCoordinate ends[] = {arc.StartCoords, arc.EndCoords, {between(-5, 5), between(-5, 5)}};
    const TEntityCoordinate& from = ends[k % 7 == 0 ? 2 : k % 2];
    const TEntityCoordinate& to = ends[(k + 1) % 2];
    TWalkedEntity walked(entity, from, to, tolerance);
    for (const double height : Heights(arc, tolerance)) {
      const TEntityCoordinate point{arc.CentreCoords.x + between(-1.2, 1.2) * arc.radius, height};
      const std::int32_t expected = GetWindingNumber_Entity_Addition(entity, from, to, point);
      ASSERT_EQ(walked.GetWinding(point, tolerance), expected) << k;
      if (expected != 0) ++turns;
    }
  }
  EXPECT_GT(turns, 1000);
}
