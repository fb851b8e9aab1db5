// Whole drawings and the loops that come out of them, each drawing also shuffled and turned.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <ostream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::DetectLoops;
using support::IsLoop;
using support::ParseEntities;
using support::TLoop;
using enum Maindataenum::TInputFields;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kRounding = 1e-9;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kTolerances[] = {1e-4,  0,   -1,  kNotANumber, kInfinity, -kInfinity,
                                  1e300, 1e9, 0.5, 1e-12,       1e-300,    5e-324};

using TExpected = std::pair<TIndex, double>;  // entities, signed area

struct TScenario {
  const char* name;
  const char* drawing;
  std::vector<TExpected> faces;     // anticlockwise, in ascending order of area
  std::vector<TExpected> outlines;  // clockwise, likewise
};

void PrintTo(const TScenario& aScenario, std::ostream* aOut) {
  *aOut << aScenario.name;
}

const TScenario kScenarios[] = {
    {"SquareWithMiddleLine", "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L 2,0 2,4", {{4, 8}, {4, 8}}, {{6, -16}}},
    {"NestedCircles",
     "A c 0,0 r 5 0..180; A c 0,0 r 5 180..360; A c 0,0 r 3 0..180; A c 0,0 r 3 180..360; A c 0,0 r 1 0..180;"
     "A c 0,0 r 1 180..360",
     {{2, kPi}, {2, 9 * kPi}, {2, 25 * kPi}},
     {{2, -25 * kPi}, {2, -9 * kPi}, {2, -kPi}}},
    {"TouchingSquaresEachDrawnWhole",
     "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L 4,0 8,0; L 8,0 8,4; L 8,4 4,4; L 4,4 4,0",
     {{4, 16}, {4, 16}},
     {{6, -32}}},
    {"SquaresThatShareHalfASide",
     "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L 4,2 8,2; L 8,2 8,6; L 8,6 4,6; L 4,6 4,2",
     {{5, 16}, {5, 16}},
     {{8, -32}}},
    {"SlotWithARoundBottomAndADivider",
     "L -1,0 -1,-6; A c 0,-6 r 1 180..360; L 1,-6 1,0; L 1,0 -1,0; L -1,-3 1,-3",
     {{4, 6}, {4, 6 + kPi / 2}},
     {{6, -12 - kPi / 2}}},
    {"ObroundSlotWithADivider",
     "L -4,0 4,0; A c 4,3 r 3 270..90; L 4,6 -4,6; A c -4,3 r 3 90..270; L 4,0 4,6",
     {{2, 4.5 * kPi}, {4, 48 + 4.5 * kPi}},
     {{4, -48 - 9 * kPi}}},
    {"BridgeBetweenTwoLoops",
     "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L 4,2 8,2; L 8,0 12,0; L 12,0 12,4; L 12,4 8,4; L 8,4 8,0",
     {{5, 16}, {5, 16}},
     {{5, -16}, {5, -16}}},
    {"BridgeFromAnInnerLoopToTheOuterOne",
     "L 0,0 8,0; L 8,0 8,8; L 8,8 0,8; L 0,8 0,0; L 2,2 6,2; L 6,2 6,6; L 6,6 2,6; L 2,6 2,2; L 0,0 2,2",
     {{4, 16}, {4, 64}},
     {{4, -64}, {4, -16}}},
    {"InnerLoopHeldByTwoLines",
     "L 0,0 8,0; L 8,0 8,8; L 8,8 0,8; L 0,8 0,0; L 2,2 6,2; L 6,2 6,6; L 6,6 2,6; L 2,6 2,2; L 0,0 2,2; L 8,8 6,6",
     {{4, 16}, {6, 24}, {6, 24}},
     {{4, -64}}},
    {"DanglingEndsInsideAndOutside",
     "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L 4,4 6,6; L 2,0 2,2; L 2,2 3,3",
     {{5, 16}},
     {{5, -16}}},
    {"EntitiesDrawnTwiceAndOverlapping",
     "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L 0,0 4,0; L 4,0 0,0; L 1,0 3,0; L 2,4 6,4",
     {{7, 16}},
     {{7, -16}}},
    {"LinesThatRunOnBeyondTheSquare",
     "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L -1,2 5,2; L 2,-1 2,5",
     {{4, 4}, {4, 4}, {4, 4}, {4, 4}},
     {{8, -16}}},
    {"CircleAboutACornerOfASquare",
     "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; A c 4,4 r 2 0..180; A c 4,4 r 2 180..360",
     {{3, kPi}, {4, 3 * kPi}, {5, 16 - kPi}},
     {{6, -16 - 3 * kPi}}},
    {"OneCircleAsTwoOverlappingArcs", "A c 0,0 r 5 0..200; A c 0,0 r 5 180..20", {{4, 25 * kPi}}, {{4, -25 * kPi}}},
    {"CircleInscribedInASquare",
     "A c 0,0 r 5 0..180; A c 0,0 r 5 180..360; L -5,-5 5,-5; L 5,-5 5,5; L 5,5 -5,5; L -5,5 -5,-5",
     {{3, 25 - 6.25 * kPi}, {3, 25 - 6.25 * kPi}, {3, 25 - 6.25 * kPi}, {3, 25 - 6.25 * kPi}, {4, 25 * kPi}},
     {{8, -100}}},
    {"SixSectorsOfACircle",
     "A c 0,0 r 6 0..180; A c 0,0 r 6 180..360; L 0,0 6,0; L 0,0 3,5.196152422706632; L 0,0 -3,5.196152422706632;"
     "L 0,0 -6,0; L 0,0 -3,-5.196152422706632; L 0,0 3,-5.196152422706632",
     {{3, 6 * kPi}, {3, 6 * kPi}, {3, 6 * kPi}, {3, 6 * kPi}, {3, 6 * kPi}, {3, 6 * kPi}},
     {{6, -36 * kPi}}},
    {"SectorOfARingInFourParts",
     "A c 0,0 r 10 0..90; A c 0,0 r 6 0..90; A c 0,0 r 8 0..90; L 6,0 10,0; L 0,6 0,10;"
     "L 3,5.196152422706632 5,8.660254037844387",
     {{4, 7 * kPi / 3}, {4, 3 * kPi}, {4, 14 * kPi / 3}, {4, 6 * kPi}},
     {{8, -16 * kPi}}},
    {"TwoDiametersOfACircle",
     "A c 0,0 r 5 0..180; A c 0,0 r 5 180..360; L -5,0 5,0; L 0,5 0,-5",
     {{3, 6.25 * kPi}, {3, 6.25 * kPi}, {3, 6.25 * kPi}, {3, 6.25 * kPi}},
     {{4, -25 * kPi}}},
    {"TriangleOnTheMidpointsOfAnother",
     "L 0,0 6,0; L 6,0 3,5; L 3,5 0,0; L 3,0 1.5,2.5; L 1.5,2.5 4.5,2.5; L 4.5,2.5 3,0",
     {{3, 3.75}, {3, 3.75}, {3, 3.75}, {3, 3.75}},
     {{6, -15}}},
    {"OutlineThatCrossesItself", "L 0,0 4,3; L 4,3 4,0; L 4,0 0,3; L 0,3 0,0", {{3, 3}, {3, 3}}, {{6, -6}}},
    {"OpenChainsOnly", "L 0,0 4,0; L 4,0 4,4; L 6,0 9,1; A c 20,0 r 3 0..90", {}, {}},
};

class ClosedRegions : public testing::TestWithParam<TScenario> {
 protected:
  static std::vector<testing::Matcher<const TLoop&>> Loops(const std::vector<TExpected>& aExpected) {
    std::vector<testing::Matcher<const TLoop&>> matchers;
    for (const auto& [count, area] : aExpected) matchers.push_back(IsLoop(count, area));
    return matchers;
  }
  /// Of both signs, in ascending order of area.
  static std::vector<TExpected> All() {
    std::vector<TExpected> all = GetParam().outlines;
    all.insert(all.end(), GetParam().faces.begin(), GetParam().faces.end());
    return all;
  }
  TEntityArray Drawing() const { return ParseEntities(GetParam().drawing); }
  TEntityArray Turned(double aAngle) const {
    TEntityArray drawing = Drawing();
    const TRotationMatrix matrix = GetRotationMatrix(aAngle);
    for (TDXFEntity& entity : drawing) entity = RotateEntity_AroundPoint(entity, matrix, {0.3, 0.7});
    return drawing;
  }

  support::TSettingsGuard fSettings;
};

// Another order of the entities, and some of the lines the other way round.
void Shuffle(TEntityArray& aDrawing, std::mt19937& aGenerator) {
  std::shuffle(aDrawing.begin(), aDrawing.end(), aGenerator);
  for (TDXFEntity& entity : aDrawing) {
    if (entity.EntityType == DXFLine && aGenerator() % 2 == 0) std::swap(entity.StartCoords, entity.EndCoords);
  }
}

}  // namespace

TEST_P(ClosedRegions, FacesComeOutAnticlockwise) {
  EXPECT_THAT(DetectLoops(Drawing(), 1), testing::ElementsAreArray(Loops(GetParam().faces)));
}

TEST_P(ClosedRegions, OutlinesOfConnectedGroupsComeOutClockwise) {
  EXPECT_THAT(DetectLoops(Drawing(), 2), testing::ElementsAreArray(Loops(GetParam().outlines)));
}

TEST_P(ClosedRegions, BothComeOutTogether) {
  EXPECT_THAT(DetectLoops(Drawing(), 0), testing::ElementsAreArray(Loops(All())));
}

TEST_P(ClosedRegions, OrderAndDirectionOfTheDrawingAreFree) {
  std::mt19937 generator(20);
  TEntityArray drawing = Drawing();
  const std::vector<TLoop> expected = DetectLoops(drawing, 0);
  for (int run = 0; run < 20; ++run) {
    Shuffle(drawing, generator);
    ASSERT_THAT(DetectLoops(drawing, 0), support::AreSameLoops(expected, kRounding)) << support::ToText(drawing);
  }
}

TEST_P(ClosedRegions, TurningTheDrawingTurnsTheFaces) {
  for (const double angle : {17.0, 45.0, 90.0, 180.0, 271.0}) {
    EXPECT_THAT(DetectLoops(Turned(angle), 1), testing::ElementsAreArray(Loops(GetParam().faces))) << angle;
  }
}

TEST_P(ClosedRegions, EveryToleranceEndsAndLeavesADriverThatFindsTheRegions) {
  TEntityBaseClass driver;
  for (const double tolerance : kTolerances) {
    fSettings.With(ifLinearTolerance, tolerance);
    support::RunEveryPass(driver, Drawing());
  }
  fSettings.With(ifLinearTolerance, kTolerances[0]);
  support::RunEveryPass(driver, Drawing());
  EXPECT_THAT(support::GetLoops(driver), testing::ElementsAreArray(Loops(All())));
}

TEST_P(ClosedRegions, AToleranceThatChangesBetweenEveryTwoCallsEnds) {
  TEntityBaseClass driver;
  for (std::size_t first = 0; first < std::size(kTolerances); ++first) {
    for (const std::size_t step : {1U, 5U, 7U, 11U}) {
      std::size_t next = first;
      support::RunEveryPass(driver, Drawing(), [&] {
        next += step;
        fSettings.With(ifLinearTolerance, kTolerances[next % std::size(kTolerances)]);
      });
    }
  }
  fSettings.With(ifLinearTolerance, kTolerances[0]);
  support::RunEveryPass(driver, Drawing());
  EXPECT_THAT(support::GetLoops(driver), testing::ElementsAreArray(Loops(All())));
}

INSTANTIATE_TEST_SUITE_P(Drawings, ClosedRegions, testing::ValuesIn(kScenarios),
                         [](const auto& aInfo) { return std::string(aInfo.param.name); });

// A loop closes where it first comes back to its start: an outline that passes a vertex twice stays whole unless it is
// walked from that very vertex. The faces don't depend on it.
TEST(ClosedRegions_Corner, SquaresThatTouchInACornerHaveTheirFacesWhereverTheWalkStarts) {
  const support::TSettingsGuard settings;
  const std::string one = "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0;";
  const std::string two = "L 4,4 8,4; L 8,4 8,8; L 8,8 4,8; L 4,8 4,4";
  EXPECT_THAT(DetectLoops(one + two, 1), testing::ElementsAre(IsLoop(4, 16), IsLoop(4, 16)));
  EXPECT_THAT(DetectLoops(one + two, 2), testing::ElementsAre(IsLoop(8, -32)));
  const std::string turned =
      "L 0,0 0,4; L 0,4 -4,4; L -4,4 -4,0; L -4,0 0,0; L -4,4 -4,8; L -4,8 -8,8; L -8,8 -8,4;"
      "L -8,4 -4,4";
  EXPECT_THAT(DetectLoops(turned, 1), testing::ElementsAre(IsLoop(4, 16), IsLoop(4, 16)));
}

TEST(ClosedRegions_Gaps, GapsBelowTheToleranceCloseAndWiderOnesDoNot) {
  const support::TSettingsGuard settings;
  EXPECT_THAT(DetectLoops("L 0,0 4.00001,0; L 4,0.00001 4,4; L 4.00001,4 0,4; L 0,4.00001 0,0.00001", 1),
              testing::ElementsAre(testing::Field("area", &TLoop::area, testing::DoubleNear(16, 1e-4))));
  EXPECT_THAT(DetectLoops("L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0.0002", 1), testing::IsEmpty());
}

TEST(ClosedRegions_Random, SignedAreasOfAllLoopsCancelBecauseEachEdgeIsWalkedBothWays) {
  const support::TSettingsGuard settings;
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    std::mt19937 generator(seed);
    const auto coordinate = [&] { return static_cast<double>(generator() % 11); };
    TEntityArray drawing{TDXFEntity::Line({1000, 0}, {1001, 0})};
    for (int i = 0; i < 15; ++i) {
      const TEntityCoordinate start{coordinate(), coordinate()};
      drawing.push_back(TDXFEntity::Line(start, {coordinate(), coordinate()}));
    }
    const std::vector<TLoop> loops = DetectLoops(drawing, 0);
    ASSERT_FALSE(loops.empty()) << "seed " << seed;
    double sum = 0;
    for (const TLoop& loop : loops) sum += loop.area;
    EXPECT_NEAR(sum, 0, 1e-9) << "seed " << seed << ": " << support::ToText(drawing);
  }
}
