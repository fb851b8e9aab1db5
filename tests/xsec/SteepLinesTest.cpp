// Which turns leave the fewest lines too steep, held against turning and counting.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include <gmock/gmock.h>

#include "xsec/prepare/Motion.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::size_t kTurns = 7;

/// Lines all round, each met by others at a few places.
Preparation LinesInAllDirections(std::size_t count) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> any(0, 1);
  Preparation work;
  work.tolerance = 0.01;
  for (std::size_t i = 0; i < count; ++i) {
    const double angle = 2 * std::numbers::pi * any(random);
    const Point from{100 * any(random), 100 * any(random)};
    const Point run{std::cos(angle), std::sin(angle)};
    Part part{GeometryEngine::TDXFEntity::Line(from, from + 10.0 * run), i, {}, {}};
    for (int k = 0; k < 3; ++k) part.meetings.push_back(from + 10 * any(random) * run);
    work.parts.push_back(part);
  }
  return work;
}

std::size_t SteepWhenTurnedBy(const Preparation& work, double degrees) {
  const Motion turn({}, degrees);
  Preparation turned;
  turned.tolerance = work.tolerance;
  for (const Part& part : work.parts) {
    Part moved{turn(part.geometry), part.source, {}, {}};
    for (const Point& meeting : part.meetings) moved.meetings.push_back(turn(meeting));
    turned.parts.push_back(moved);
  }
  CutSteepLines(turned);
  return turned.doubtful.size();
}

TEST(TurnsWithFewSteepLines, HaveAsFewAsAnyTurn) {
  for (const std::size_t lines : {20UL, 200UL, 600UL}) {
    const Preparation work = LinesInAllDirections(lines);
    std::size_t fewest = lines;
    for (double degrees = 0.7; degrees < 180; ++degrees) {
      fewest = std::min(fewest, SteepWhenTurnedBy(work, degrees));
    }
    const std::vector<double> turns = TurnsWithFewSteepLines(work, kTurns);
    ASSERT_THAT(turns, SizeIs(kTurns));
    EXPECT_LE(SteepWhenTurnedBy(work, turns[0]), fewest) << lines;
    for (std::size_t i = 1; i < kTurns; ++i) {
      EXPECT_LE(SteepWhenTurnedBy(work, turns[i - 1]), SteepWhenTurnedBy(work, turns[i])) << lines;
    }
  }
}

TEST(TurnsWithFewSteepLines, LieApart) {
  std::vector<double> turns = TurnsWithFewSteepLines(LinesInAllDirections(20), kTurns);
  turns.push_back(0);
  turns.push_back(180);
  std::sort(turns.begin(), turns.end());
  for (std::size_t i = 1; i < turns.size(); ++i) EXPECT_GT(turns[i] - turns[i - 1], 4.9);
}

TEST(TurnsWithFewSteepLines, AvoidTheOneTurnThatMakesALineSteep) {
  for (double degrees = 0; degrees < 360; degrees += 15) {
    const double radians = degrees * std::numbers::pi / 180;
    Preparation work;
    work.tolerance = 1;
    work.parts.push_back(
        {GeometryEngine::TDXFEntity::Line({0, 0}, {1.05 * std::cos(radians), 1.05 * std::sin(radians)}), 0, {}, {}});
    for (const double turn : TurnsWithFewSteepLines(work, 2)) EXPECT_EQ(SteepWhenTurnedBy(work, turn), 0U) << degrees;
  }
}

TEST(TurnsWithFewSteepLines, OfNothingAreAnyAndOfNoneAreNone) {
  EXPECT_THAT(TurnsWithFewSteepLines({}, kTurns), SizeIs(kTurns));
  EXPECT_THAT(TurnsWithFewSteepLines({}, 0), IsEmpty());
}

}  // namespace
}  // namespace xsec
