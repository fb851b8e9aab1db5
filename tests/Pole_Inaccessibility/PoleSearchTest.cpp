#include "GeometryEngine/Pole_Inaccessibility/PoleSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/reference/plain/TTreeNode_Geometry.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::MakeChain;
using support::RectangleText;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kPrecision = 1.0;
constexpr double kMinimumDistance = 0.001;
const TEntityCoordinate kCentroid = {-77, 77};  // far outside, so that it is told from a point that was found

// A region of chains given as text.
class PoleSearchTest : public ::testing::Test {
 protected:
  explicit PoleSearchTest(const std::string& aOutline = RectangleText(0, 0, 10, 10)) { Outline(aOutline); }

  void Outline(const std::string& aText) {
    fOutline = MakeChain(aText);
    fRegion.fOutline = fOutline.get();
    fRegion.fCentroid = kCentroid;
    fRegion.fSearchable = true;
  }
  void Internal(const std::string& aText) {
    fInternal = MakeChain(aText);
    fRegion.fInternal = fInternal.get();
  }
  void Child(const std::string& aText) {
    fChildren.push_back(MakeChain(aText));
    fRegion.fChildOutlines.push_back(fChildren.back().get());
  }
  TEntityCoordinate Find(double aPrecision = kPrecision, double aMinimumDistance = kMinimumDistance) const {
    return FindPoleInaccessibility(fRegion, aPrecision, aMinimumDistance);
  }
  TEntityCoordinate FindPlainly(double aPrecision, double aMinimumDistance) const {
    Plain::TTreeNode_Geometry region(nullptr);
    region.fEntities.AddEntities(fRegion.fOutline->EntityArray());
    region.fEntities.StartCoordinate(fRegion.fOutline->StartCoordinate());
    region.fCentroid = fRegion.fCentroid;
    return Plain::FindPoleInaccessibility(region, true, aPrecision, aMinimumDistance);
  }
  double DistanceAt(double x, double y) const { return GetSignedDistance(fRegion, {x, y}); }

  support::TSettingsGuard fSettings;
  TPoleRegion fRegion;

 private:
  std::unique_ptr<TEntityStorage> fOutline;
  std::unique_ptr<TEntityStorage> fInternal;
  std::vector<std::unique_ptr<TEntityStorage>> fChildren;
};

using SignedDistance = PoleSearchTest;

TEST_F(SignedDistance, IsPositiveInsideAndNegativeOutside) {
  EXPECT_EQ(DistanceAt(5, 5), 5);
  EXPECT_EQ(DistanceAt(2, 7), 2);
  EXPECT_EQ(DistanceAt(-3, 5), -3);
  EXPECT_EQ(DistanceAt(13, 14), -5);
  EXPECT_EQ(DistanceAt(10, 5), 0);
}

TEST_F(SignedDistance, TheInternalChainIsABoundaryAndWhatItHoldsIsOutside) {
  Internal(RectangleText(4, 4, 6, 6));
  EXPECT_EQ(DistanceAt(3, 5), 1);
  EXPECT_EQ(DistanceAt(5, 5), -1);
  EXPECT_EQ(DistanceAt(1, 5), 1);
}

TEST_F(SignedDistance, ChildrenAreBoundariesAndOutsideWithTheirRims) {
  Child(RectangleText(1, 1, 3, 3));
  Child(RectangleText(6, 6, 9, 9));
  EXPECT_EQ(DistanceAt(2, 2), -1);
  EXPECT_EQ(DistanceAt(7.5, 7.5), -1.5);
  EXPECT_EQ(DistanceAt(5, 2), 2);
  EXPECT_EQ(DistanceAt(5, 7), 1);
}

TEST_F(SignedDistance, EveryRimIsOutside) {
  Internal(RectangleText(4, 4, 6, 6));
  Child(RectangleText(1, 1, 3, 3));
  for (const TEntityCoordinate& rim : support::ParseCoordinates("10,5 4,5 3,2")) {
    EXPECT_EQ(DistanceAt(rim.x, rim.y), 0);
    EXPECT_TRUE(std::signbit(DistanceAt(rim.x, rim.y))) << support::ToText(rim);
  }
}

TEST_F(SignedDistance, WithoutAnyBoundaryIsMinusInfinity) {
  fRegion = {};
  EXPECT_EQ(DistanceAt(0, 0), -kInfinity);
  Child(RectangleText(1, 1, 3, 3));
  fRegion.fChildOutlines.push_back(nullptr);
  EXPECT_EQ(DistanceAt(5, 2), -2) << "a region without an outline has no inside";
}

using Cell = PoleSearchTest;

TEST_F(Cell, IsMeasuredAsItIsMade) {
  const TCell cell(2, 5, 3, fRegion);
  EXPECT_EQ(cell.fCenter_X, 2);
  EXPECT_EQ(cell.fCenter_Y, 5);
  EXPECT_EQ(cell.fHalfWidth, 3);
  EXPECT_EQ(cell.fDistance, 2);
  EXPECT_EQ(cell.fMaxDistance, 2 + 3 * 1.4142135623730951);
}

TEST_F(Cell, OfNoWidthHasItsDistanceAsBound) {
  const TCell cell(2, 5, 0, fRegion);
  EXPECT_EQ(cell.fMaxDistance, cell.fDistance);
}

class CompareCells : public PoleSearchTest {
 protected:
  int Compare(double aLeft, double aRight) const {
    TCell left(5, 5, 0, fRegion);
    TCell right(5, 5, 0, fRegion);
    left.fMaxDistance = aLeft;
    right.fMaxDistance = aRight;
    return CellComparer(left, right);
  }
};

TEST_F(CompareCells, TheGreaterBoundComesFirst) {
  EXPECT_LT(Compare(2, 1), 0);
  EXPECT_GT(Compare(1, 2), 0);
  EXPECT_EQ(Compare(2, 2), 0);
  EXPECT_EQ(Compare(kInfinity, kInfinity), 0);
  EXPECT_LT(Compare(kInfinity, 1), 0);
  EXPECT_GT(Compare(-kInfinity, 1), 0);
}

TEST_F(CompareCells, BoundsThatAreNoNumberComeLast) {
  EXPECT_LT(Compare(-kInfinity, kNotANumber), 0);
  EXPECT_GT(Compare(kNotANumber, -kInfinity), 0);
  EXPECT_EQ(Compare(kNotANumber, kNotANumber), 0);
}

using FindPole = PoleSearchTest;

TEST_F(FindPole, OfASquareIsItsCentre) {
  fRegion.fCentroid = {5, 5};
  EXPECT_THAT(Find(), IsBits(5, 5));
  fRegion.fCentroid = kCentroid;
  EXPECT_THAT(Find(), IsBits(5, 5)) << "the one cell of the grid is the square itself";
}

TEST_F(FindPole, PrefersTheCentroidWhereNoCellIsBetter) {
  Outline(RectangleText(0, 0, 30, 10));
  fRegion.fCentroid = {15, 5};
  EXPECT_THAT(Find(), IsBits(15, 5));
}

TEST_F(FindPole, AmongEqualCellsTakesTheLeftmost) {
  Outline(RectangleText(0, 0, 30, 10));
  EXPECT_THAT(Find(), IsBits(5, 5));
}

TEST_F(FindPole, RecomputesTheBoundsOfTheOutline) {
  fRegion.fOutline->Translate(100, 0);
  EXPECT_THAT(Find(), IsBits(105, 5));
  EXPECT_EQ(fRegion.fOutline->Max_X(), 110);
}

TEST_F(FindPole, OfARegionThatIsNotSearchableIsTheCentroid) {
  fRegion.fSearchable = false;
  EXPECT_THAT(Find(), IsBits(kCentroid));
  fRegion.fSearchable = true;
  fRegion.fOutline = nullptr;
  EXPECT_THAT(Find(), IsBits(kCentroid));
}

TEST_F(FindPole, OfABoxWithoutWidthOrHeightIsTheCentroid) {
  for (const char* flat : {"L 0,3 10,3; L 10,3 0,3", "L 3,0 3,10; L 3,10 3,0", ""}) {
    Outline(flat);
    EXPECT_THAT(Find(), IsBits(kCentroid)) << flat;
  }
}

TEST_F(FindPole, BoundIsHeldAgainstTheBestBoundAndNotItsDistanceKept) {
  Internal(RectangleText(5.5, 4, 6.5, 6));
  const TEntityCoordinate found = Find();
  EXPECT_THAT(found, IsBits(5, 5));
  EXPECT_EQ(DistanceAt(found.x, found.y), 0.5);
  EXPECT_GT(DistanceAt(2.75, 5), 0.5 + kPrecision) << "far better points are left unsearched";
}

TEST_F(FindPole, PrunesNothingUntilTheMinimumDistanceIsReached) {
  Internal(RectangleText(5.5, 4, 6.5, 6));
  const TEntityCoordinate found = Find(kPrecision, 0.5);
  EXPECT_GT(DistanceAt(found.x, found.y), 0.5);
}

TEST_F(FindPole, ACentroidInsideStaysUnlessACellPromisesMoreThanThePrecision) {
  Outline(support::PolygonText("0,0 10,0 10,2 2,2 2,8 10,8 10,10 0,10"));
  fRegion.fCentroid = {1, 5};
  ASSERT_EQ(DistanceAt(1, 5), 1);
  EXPECT_THAT(Find(4), IsBits(1, 5)) << "the whole box promises 4.07 at most";
  const TEntityCoordinate found = Find(2);
  EXPECT_GT(DistanceAt(found.x, found.y), 1);
}

TEST_F(FindPole, APromiseOfJustThePrecisionIsNotWorthASplit) {
  Outline(support::PolygonText("0,0 10,0 10,2 2,2 2,8 10,8 10,10 0,10"));
  fRegion.fCentroid = {1, 5};
  const double promise = TCell(2.5, 2.5, 2.5, fRegion).fMaxDistance - 1;  // of a quarter, less than the box's
  EXPECT_THAT(Find(promise), IsBits(1, 5));
  EXPECT_THAT(Find(promise - 1e-12), ::testing::Not(IsBits(1, 5)));
}

TEST_F(FindPole, ASearchThatUsesUpItsSplitsAnswersTheCentroidKept) {
  EXPECT_THAT(Find(kPrecision, 4.9), IsBits(5, 5));
  EXPECT_THAT(Find(kPrecision, 1e9), IsBits(kCentroid)) << "although (5, 5) was found at once";
  EXPECT_THAT(Find(kPrecision, kNotANumber), IsBits(kCentroid));
  Internal(RectangleText(5.5, 4, 6.5, 6));
  EXPECT_THAT(Find(-kInfinity), IsBits(kCentroid));
}

// Slanting rectangles whose search comes upon a better centre just after the 1000th and just after the 1001st split.
TEST_F(FindPole, ASearchOf1000SplitsIsAnsweredAndOneOf1001IsGivenUp) {
  Outline(support::PolygonText("32,0 244,128 212,181 0,53"));
  EXPECT_THAT(Find(kPrecision, 30.9549), IsBits(155.81201171875, 110.91552734375));
  EXPECT_THAT(Find(kPrecision, 30.955), IsBits(kCentroid));
  Outline(support::PolygonText("48,0 330,288 282,335 0,47"));
  const double distance = DistanceAt(77.8271484375, 78.4716796875);
  EXPECT_GT(distance, 33.588);
  EXPECT_THAT(Find(kPrecision, 33.588), IsBits(kCentroid));
}

TEST_F(FindPole, MoreThan1000ColumnsOrRowsAreSearchedLikeFewerKept) {
  fRegion.fCentroid = {750, 0.5};
  Outline(RectangleText(0, 0, 1500, 1));
  EXPECT_THAT(Find(), IsBits(0.5, 0.5));
  Outline(RectangleText(0, 0, 1, 1500));
  EXPECT_THAT(Find(), IsBits(0.5, 0.5));
}

TEST_F(FindPole, OfABoxThatNeedsMoreThanAMillionCellsIsTheCentroid) {
  Outline(RectangleText(0, 0, 1e7, 1));
  EXPECT_THAT(Find(), IsBits(kCentroid));
  Outline(RectangleText(0, 0, 1, 1e300));
  EXPECT_THAT(Find(), IsBits(kCentroid));
}

// Up to a million cells each; more of them, and boxes too thin for a label, are answered at once.
TEST_F(FindPole, OfBoxesOfEverySizeIsInsideOrTheCentroid) {
  for (int w = -12; w <= 3; ++w) {
    for (int h = -3; h <= 9; h += 3) {
      const double width = std::pow(10, w);
      const double height = std::pow(10, h);
      Outline(RectangleText(0, 0, width, height));
      const TEntityCoordinate found = Find();
      const bool isInside = found.x > 0 && found.x < width && found.y > 0 && found.y < height;
      EXPECT_TRUE(isInside || (found.x == kCentroid.x && found.y == kCentroid.y)) << width << " by " << height;
      EXPECT_TRUE(isInside || std::min(width, height) < 0.01 || std::max(width, height) > 1e6 * std::min(width, height))
          << width << " by " << height;
    }
  }
}

TEST_F(FindPole, OfAThinBoxIsTheCentroidLevelUprightAndSlanting) {
  for (const char* vertices : {"0,0 50,0 50,0.0001 0,0.0001", "7,0 7.0002,0 7.0002,80 7,80", "0,0 30,40 30,40.0001"}) {
    Outline(support::PolygonText(vertices));
    EXPECT_THAT(Find(), IsBits(kCentroid)) << vertices;
  }
}

TEST_F(FindPole, StepsThatGetLostInLargeCoordinatesEndTheSearch) {
  Outline(RectangleText(1e16, 0, 1e16 + 4, 0.5));
  EXPECT_THAT(Find(), IsBits(kCentroid));
  Outline(RectangleText(0, 2e6, 1.1e-10, 2e6 + 4));
  for (const double minimumDistance : {kMinimumDistance, 0.0, -1.0}) {
    EXPECT_THAT(Find(kPrecision, minimumDistance), IsBits(kCentroid)) << minimumDistance;
  }
}

struct TPoleCase {
  const char* fOutline;
  double fMinimumDistance;
};

// Among the outlines are some in which a smaller cell that waits lies deeper than the first one that is found inside.
TEST_F(FindPole, IsThePlainSearchsPoleWhateverThePrecision) {
  constexpr TPoleCase kCases[] = {{"0,0 10,0 10,2 2,2 2,8 10,8 10,10 0,10", 0.7},
                                  {"32,0 244,128 212,181 0,53", 6},
                                  {"0,0 40,0 40,3 34,3 34,9 28,9 28,3 9,3 9,14 3,14 3,3 0,3", 1.4},
                                  {"20,1 -4,-7 -2,-7 3,-7 10,-6 19,-2", 0.75},
                                  {"26,11 22,14 12,18 -18,16 -26,-11 30,-5", 3.25},
                                  {"30,1 22,37 -11,-51 -4,-54 2,-55", 6.5},
                                  {"2,-27 53,7 56,29 -56,29 -53,7 -2,-27", 1},
                                  {"24,34 -34,-27 -17,-37 37,-24", 5.5},
                                  {"10,-39 13,-20 24,-18 42,13 -42,13 -24,-18 -13,-20 -10,-39", 5.25}};
  int found = 0;
  for (const auto& [outline, minimumDistance] : kCases) {
    Outline(support::PolygonText(outline));
    for (const double precision : {-10.0, -1.0, -0.0, 0.0, 0.25, 1.0, kInfinity, kNotANumber}) {
      for (const double distance : {-100.0, 0.001, minimumDistance}) {
        const TEntityCoordinate expected = FindPlainly(precision, distance);
        EXPECT_THAT(Find(precision, distance), IsBits(expected))
            << outline << ", precision " << precision << ", minimum distance " << distance;
        if (expected != kCentroid) ++found;
      }
    }
  }
  EXPECT_GT(found, 100);
}

TEST_F(FindPole, EndlessBoxesAndBoxesOfNoNumberEndTheSearch) {
  for (const double bad : {kInfinity, -kInfinity, kNotANumber}) {
    for (const std::string& outline : {RectangleText(0, 0, bad, 10), RectangleText(0, 0, bad, bad)}) {
      Outline(outline);
      EXPECT_THAT(Find(), IsBits(kCentroid)) << outline;
    }
  }
}

TEST_F(FindPole, ACentroidOfNoNumberLosesAgainstACellThatIsInside) {
  fRegion.fCentroid = {kNotANumber, kNotANumber};
  EXPECT_THAT(Find(), IsBits(5, 5));
}

}  // namespace
}  // namespace GeometryEngine
