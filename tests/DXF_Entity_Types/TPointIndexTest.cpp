#include "GeometryEngine/DXF_Entity_Types/detail/TPointIndex.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

#include "tests/support/Repetitions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::TPointIndex;
using enum Maindataenum::TInputFields;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

// The rule itself: point by point from the first one on.
TIndex FindFirst_Plain(const TCoordinateArray& aPoints, const TEntityCoordinate& aPoint) {
  for (std::size_t i = 0; i < aPoints.size(); ++i) {
    if (aPoints[i] == aPoint) return ToIndex(i);
  }
  return kNotFound;
}

struct TAnswers {
  int fSearches = 0;
  int fHits = 0;
  int fDifferences = 0;
};

// Adds points of a lattice with a step of half a tolerance, so that a search has to choose among several matches and
// many points lie on the border of sameness or of a cell, and searches for each before it goes in.
TAnswers CompareOnLattice(double aTolerance, double aOrigin, std::uint32_t aSeed) {
  std::mt19937 random(aSeed);
  std::uniform_int_distribution<int> place(-80, 80);
  TPointIndex index;
  TCoordinateArray points;
  TAnswers answers;
  for (int i = 0; i < 400; ++i) {
    const TEntityCoordinate point{aOrigin + place(random) * aTolerance / 2, place(random) * aTolerance / 2};
    const TIndex expected = FindFirst_Plain(points, point);
    ++answers.fSearches;
    answers.fHits += expected != kNotFound ? 1 : 0;
    answers.fDifferences += index.FindFirst(point) != expected ? 1 : 0;
    points.push_back(point);
    index.Add(point);
  }
  return answers;
}

}  // namespace

TEST(TPointIndex, AnswersWhatALinearSearchAnswers) {
  support::TSettingsGuard settings;
  TAnswers total;
  for (const double tolerance : {1e-3, 0.5, 1e-9, 1.0 / 3, 1e-300, 1e300}) {
    settings.With(ifLinearTolerance, tolerance);
    for (int seed = support::Repetitions(40); seed > 0; --seed) {
      for (const double origin : {0.0, 1234.56789, -1e6}) {
        const TAnswers answers = CompareOnLattice(tolerance, origin, static_cast<std::uint32_t>(seed));
        EXPECT_EQ(answers.fDifferences, 0) << "tolerance " << tolerance << " origin " << origin << " seed " << seed;
        total.fSearches += answers.fSearches;
        total.fHits += answers.fHits;
      }
    }
  }
  EXPECT_GT(total.fHits, total.fSearches / 100);
  EXPECT_LT(total.fHits, total.fSearches);
}

TEST(TPointIndex, AnswersThePointAddedFirstOfSeveralThatMatch) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, 1);
  TPointIndex index;
  for (const double x : {0.9, 0.0, 0.4}) index.Add({x, 0});
  EXPECT_EQ(index.FindFirst({0.1, 0}), 0);
  EXPECT_EQ(index.FindFirst({-0.2, 0}), 1);
  EXPECT_EQ(index.FindFirst({-1, 0}), kNotFound);
}

TEST(TPointIndex, FindsNothingUnderAToleranceThatMatchesNothing) {
  support::TSettingsGuard settings;
  for (const double tolerance : {0.0, -1.0, kNotANumber, -kInfinity}) {
    settings.With(ifLinearTolerance, tolerance);
    TPointIndex index;
    index.Add({1, 2});
    EXPECT_EQ(index.FindFirst({1, 2}), kNotFound) << tolerance;
  }
}

TEST(TPointIndex, FindsEveryFinitePointUnderAnInfiniteTolerance) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, kInfinity);
  TPointIndex index;
  index.Add({kInfinity, 0});
  index.Add({5, 5});
  EXPECT_EQ(index.FindFirst({-1e300, 1e300}), 1);
  EXPECT_EQ(index.FindFirst({kInfinity, 0}), kNotFound);
}

TEST(TPointIndex, SearchesFewCellsUnderTheLeastTolerances) {
  support::TSettingsGuard settings;
  for (const double tolerance : {1e-307, 1e-310, std::numeric_limits<double>::denorm_min()}) {
    settings.With(ifLinearTolerance, tolerance);
    TPointIndex index;
    for (const TEntityCoordinate& point : TCoordinateArray{{0, 0}, {1e-300, 0}, {1, -1}, {1e300, 3}}) index.Add(point);
    for (TIndex i = 0; i < index.Count(); ++i) EXPECT_EQ(index.FindFirst(index.Point(i)), i) << tolerance;
    EXPECT_EQ(index.FindFirst({1, 1}), kNotFound);
  }
}

TEST(TPointIndex, CountsPointsThatAreNotFiniteWithoutFindingThem) {
  support::TSettingsGuard settings;
  TPointIndex index;
  index.Add({kNotANumber, 0});
  index.Add({0, kInfinity});
  index.Add({0, 0});
  EXPECT_EQ(index.Count(), 3);
  EXPECT_EQ(index.FindFirst({0, 0}), 2);
  EXPECT_EQ(index.FindFirst({0, kInfinity}), kNotFound);
}

TEST(TPointIndex, FindsAtTheEndsOfTheRangeOfNumbers) {
  support::TSettingsGuard settings;
  constexpr double kLargest = std::numeric_limits<double>::max();
  for (const double tolerance : {1e-3, 1e290, 1e307, kLargest}) {
    settings.With(ifLinearTolerance, tolerance);
    TPointIndex index;
    index.Add({kLargest, -kLargest});
    EXPECT_EQ(index.FindFirst({kLargest, -kLargest}), 0) << tolerance;
  }
}

TEST(TPointIndex, IsNotCurrentUnderAnotherTolerance) {
  support::TSettingsGuard settings;
  const TPointIndex index;
  EXPECT_TRUE(index.IsCurrent());
  settings.With(ifLinearTolerance, 0.25);
  EXPECT_FALSE(index.IsCurrent());
}

TEST(TPointIndex, StaysCurrentFromOneToleranceThatMatchesNothingToAnother) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, kNotANumber);
  const TPointIndex index;
  for (const double tolerance : {kNotANumber, 0.0, -1.0}) {
    settings.With(ifLinearTolerance, tolerance);
    EXPECT_TRUE(index.IsCurrent()) << tolerance;
  }
}

TEST(TPointIndex, FindsAmongPointsReservedFor) {
  support::TSettingsGuard settings;
  TPointIndex index;
  index.Reserve(1000);
  for (int i = 0; i < 2000; ++i) index.Add({1.0 * i, 0});
  for (int i = 0; i < 2000; ++i) ASSERT_EQ(index.FindFirst({1.0 * i, 0}), i);
}

}  // namespace GeometryEngine
