// ELLIPSE and SPLINE as lines and arcs: vertices on the curve, and nothing of it further off than the tolerance.
#include "xsec/Flattening.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <tuple>

#include "tests/support/Geometry.h"
#include "tests/xsec/DxfTexts.h"
#include "xsec/prepare/Curves.h"

namespace xsec {
namespace {

using GeometryEngine::support::IsBits;
using GeometryEngine::support::IsNear;

const ReadOptions kFine{std::nullopt, 1e-4};

double DistanceToDrawing(const Drawing& drawing, double x, double y) {
  double least = 1e300;
  for (const DrawingEntity& entity : drawing.entities) {
    least = std::min(least, DistanceTo(entity.geometry, {x, y}));
  }
  return least;
}

std::size_t CountArcs(const Drawing& drawing) {
  return static_cast<std::size_t>(std::count_if(drawing.entities.begin(), drawing.entities.end(),
                                                [](const DrawingEntity& entity) { return IsArc(entity.geometry); }));
}

bool AreSameBits(const GeometryEngine::TEntityCoordinate& a, const GeometryEngine::TEntityCoordinate& b) {
  return a.x == b.x && a.y == b.y;
}

/// One way from the first entity to the last, whichever way each of them runs: ends met are the same bits.
bool AreJoined(const Drawing& drawing) {
  const auto& first = drawing.entities.front().geometry;
  const auto leadsOn = [&](GeometryEngine::TEntityCoordinate at) {
    for (const DrawingEntity& entity : drawing.entities) {
      const auto& [start, end] = std::tie(entity.geometry.StartCoords, entity.geometry.EndCoords);
      if (!AreSameBits(at, start) && !AreSameBits(at, end)) return false;
      at = AreSameBits(at, start) ? end : start;
    }
    return true;
  };
  return leadsOn(first.StartCoords) || leadsOn(first.EndCoords);
}

TEST(ReadEllipse, WholeOneIsAClosedRingOfArcsWithinTheTolerance) {
  const Drawing drawing =
      ReadEntities("0 ELLIPSE | 10 1 | 20 2 | 11 30 | 21 40 | 40 0.25 | 41 0 | 42 6.283185307179586", kFine);
  EXPECT_EQ(drawing.flattened.at("ELLIPSE"), 1U);
  EXPECT_TRUE(AreJoined(drawing));
  EXPECT_THAT(drawing.entities.back().geometry.EndCoords, IsBits(drawing.entities.front().geometry.StartCoords));
  double furthest = 0;
  for (int i = 0; i < 5000; ++i) {
    const double t = i * 2 * std::numbers::pi / 5000;
    const double x = 1 + 30 * std::cos(t) - 10 * std::sin(t);
    const double y = 2 + 40 * std::cos(t) + 7.5 * std::sin(t);
    furthest = std::max(furthest, DistanceToDrawing(drawing, x, y));
  }
  EXPECT_LE(furthest, 1e-4);
  EXPECT_GT(furthest, 2e-5);  // not finer than asked for by much
  EXPECT_EQ(CountArcs(drawing), drawing.entities.size());
  EXPECT_LT(drawing.entities.size(), 180U);  // chords would be above a thousand
}

TEST(ReadEllipse, NeedleOfAnEllipseHasNoArcsOfHugeRadius) {
  const Drawing drawing = ReadEntities("0 ELLIPSE | 11 3 | 40 3000", kFine);
  EXPECT_GT(CountArcs(drawing), 0U);  // round its tips
  double furthest = 0;
  for (int i = 0; i < 500; ++i) {
    const double t = i * 2 * std::numbers::pi / 500;
    furthest = std::max(furthest, DistanceToDrawing(drawing, 3 * std::cos(t), 9000 * std::sin(t)));
  }
  EXPECT_LE(furthest, 1e-4);
  for (const DrawingEntity& entity : drawing.entities) {
    const auto& [start, end] = std::tie(entity.geometry.StartCoords, entity.geometry.EndCoords);
    EXPECT_LE(entity.geometry.radius, 1001 * std::hypot(end.x - start.x, end.y - start.y));
  }
}

TEST(ReadEllipse, PartRunsFromItsFirstParameterToItsLast) {
  const Drawing drawing = ReadEntities("0 ELLIPSE | 11 10 | 40 0.5 | 41 1.5707963267948966 | 42 3.141592653589793");
  EXPECT_THAT(drawing.entities.front().geometry.StartCoords, IsNear(0, 5, 1e-12));
  EXPECT_THAT(drawing.entities.back().geometry.EndCoords, IsNear(-10, 0, 1e-12));
}

TEST(ReadEllipse, ExtrusionAlongMinusZTurnsItTheOtherWay) {
  const Drawing drawing =
      ReadEntities("0 ELLIPSE | 11 10 | 40 0.5 | 41 0 | 42 1.5707963267948966 | 210 0 | 220 0 | 230 -1");
  EXPECT_THAT(drawing.entities.back().geometry.StartCoords, IsNear(0, -5, 1e-12));  // arcs run anticlockwise
}

TEST(ReadEllipse, OneWithEqualAxesIsAnArc) {
  const Drawing arc = ReadEntities("0 ELLIPSE | 10 1 | 11 0 | 21 2 | 40 1 | 41 0 | 42 1.5707963267948966");
  EXPECT_THAT(GeometryOf(arc), IsNear("A c 1,0 r 2 90..180", 1e-12));
  EXPECT_TRUE(arc.flattened.empty());
  const Drawing circle = ReadEntities("0 ELLIPSE | 11 0 | 21 2 | 40 1 | 41 0 | 42 6.283185307179586");
  EXPECT_THAT(GeometryOf(circle), IsNear("A c 0,0 r 2 0..180; A c 0,0 r 2 180..0", 1e-12));
}

TEST(ReadEllipse, StretchedIntoACircleItIsAnArc) {
  const Drawing drawing =
      ReadBlocks("0 BLOCK | 2 b | 0 ELLIPSE | 11 4 | 40 0.5 | 41 0 | 42 1.5707963267948966 | 0 ENDBLK",
                 "0 INSERT | 2 b | 41 -1 | 42 2");
  EXPECT_THAT(GeometryOf(drawing), IsNear("A c 0,0 r 4 90..180", 1e-9));
}

TEST(ReadEllipse, WithoutAMajorAxisItIsSkipped) {
  EXPECT_EQ(SkippedCount(ReadEntities("0 ELLIPSE | 40 0.5"), "ELLIPSE", "0", "its radius is not above 0"), 1U);
}

TEST(ReadEllipse, DefaultToleranceIsAHundredthOfAMillimetreOrAThousandthOfTheCurve) {
  const Drawing large = ReadEntities("0 ELLIPSE | 11 1000 | 40 0.5");
  const Drawing small = ReadEntities("0 ELLIPSE | 11 0.001 | 40 0.5");
  EXPECT_LE(DistanceToDrawing(large, 1000 * std::cos(0.01), 500 * std::sin(0.01)), 0.01);
  EXPECT_GE(small.entities.size(), 12U);
  EXPECT_LE(DistanceToDrawing(small, 0.001 * std::cos(0.1), 0.0005 * std::sin(0.1)), 2e-6);
}

const std::string kQuarterCircle =  // of radius 10, exactly, as a rational spline
    "0 SPLINE | 70 4 | 71 2 | 72 6 | 73 3 | 40 0 | 40 0 | 40 0 | 40 1 | 40 1 | 40 1 |"
    "10 10 | 20 0 | 41 1 | 10 10 | 20 10 | 41 0.7071067811865476 | 10 0 | 20 10 | 41 1";

TEST(ReadSpline, RationalSplineIsFlattenedWithinTheTolerance) {
  const Drawing drawing = ReadEntities(kQuarterCircle, kFine);
  EXPECT_EQ(drawing.flattened.at("SPLINE"), 1U);
  EXPECT_TRUE(AreJoined(drawing));
  EXPECT_THAT(drawing.entities.front().geometry.StartCoords, IsBits(10, 0));
  EXPECT_THAT(drawing.entities.back().geometry.EndCoords, IsBits(0, 10));
  for (const DrawingEntity& entity : drawing.entities) {
    const auto& end = entity.geometry.EndCoords;
    EXPECT_NEAR(std::hypot(end.x, end.y), 10, 1e-12);
  }
  EXPECT_EQ(drawing.entities.size(), CountArcs(drawing));
  EXPECT_LE(drawing.entities.size(), 2U);  // it is an arc
  for (int i = 0; i <= 500; ++i) {
    const double t = i * std::numbers::pi / 1000;
    EXPECT_LE(DistanceToDrawing(drawing, 10 * std::cos(t), 10 * std::sin(t)), 1e-4);
  }
}

TEST(ReadSpline, StraightSplineIsOneLineForEachSpan) {
  EXPECT_THAT(
      GeometryOf(ReadEntities("0 SPLINE | 71 1 | 40 0 | 40 0 | 40 1 | 40 2 | 40 2 | 10 0 | 10 4 | 10 4 | 20 3")),
      IsBits("L 0,0 4,0; L 4,0 4,3"));
}

TEST(ReadSpline, KnotsThatDoNotRepeatAtTheEndsAreAllowed) {
  // A uniform quadratic spline begins and ends in the middle of its first and last legs.
  const Drawing drawing = ReadEntities(
      "0 SPLINE | 71 2 | 40 0 | 40 1 | 40 2 | 40 3 | 40 4 | 40 5 | 40 6 | 10 0 | 10 4 | 10 4 | 20 4 | 10 8 | 20 4",
      kFine);
  EXPECT_THAT(drawing.entities.front().geometry.StartCoords, IsNear(2, 0, 1e-12));
  EXPECT_THAT(drawing.entities.back().geometry.StartCoords, IsNear(6, 4, 1e-12));
  EXPECT_LE(DistanceToDrawing(drawing, 3.5, 0.5), 1e-4);  // parameter 2.5: (4, 0) pulled by both neighbours
}

TEST(ReadSpline, BlockPlacesAndStretchesIt) {
  const Drawing drawing =
      ReadBlocks("0 BLOCK | 2 b | " + kQuarterCircle + " | 0 ENDBLK", "0 INSERT | 2 b | 10 5 | 41 2 | 42 1", kFine);
  for (const DrawingEntity& entity : drawing.entities) {
    const auto& end = entity.geometry.EndCoords;
    EXPECT_NEAR(std::hypot((end.x - 5) / 2, end.y), 10, 1e-12);
  }
}

TEST(ReadSpline, WhatCannotBeFlattenedIsSkippedWithTheReason) {
  const auto reasonOf = [](const std::string& pairs) {
    const Drawing drawing = ReadEntities("0 SPLINE | " + pairs);
    EXPECT_TRUE(drawing.entities.empty());
    return drawing.skipped.size() == 1 ? drawing.skipped.begin()->first.reason : "";
  };
  EXPECT_EQ(reasonOf("71 3"), "it has no control points");
  EXPECT_EQ(reasonOf("71 3 | 74 2 | 11 5 | 21 1 | 11 5 | 21 1"), "it has no control points");
  EXPECT_EQ(reasonOf("71 3 | 10 0 | 10 1 | 10 2"), "its degree does not suit its control points");
  EXPECT_EQ(reasonOf("71 0 | 10 0 | 10 1 | 40 0"), "its degree does not suit its control points");
  EXPECT_EQ(reasonOf("71 -4 | 10 0 | 10 1 | 40 0"), "its degree does not suit its control points");
  EXPECT_EQ(reasonOf("71 1 | 10 0 | 10 1 | 40 0 | 40 0 | 40 1"), "its knots do not suit its control points");
  EXPECT_EQ(reasonOf("71 1 | 10 0 | 10 1 | 40 0 | 40 1 | 40 0 | 40 1"), "its knots do not suit its control points");
  EXPECT_EQ(reasonOf("71 1 | 10 0 | 10 1 | 40 0 | 40 0 | 40 0 | 40 0"), "its knots do not suit its control points");
  EXPECT_EQ(reasonOf("71 1 | 10 0 | 41 1 | 10 1 | 41 0 | 40 0 | 40 0 | 40 1 | 40 1"),
            "its weights are not all positive");
}

/// A cubic from (0, 0) by a cusp, where it turns back on itself, to (10, 0).
TEST(ReadSpline, CuspIsFollowedWithinTheTolerance) {
  const Drawing drawing = ReadEntities(
      "0 SPLINE | 71 3 | 40 0 | 40 0 | 40 0 | 40 0 | 40 1 | 40 1 | 40 1 | 40 1 | 10 0 | 20 0 | 10 10 | 20 10 | 10 0 |"
      "20 10 | 10 10 | 20 0",
      kFine);
  EXPECT_TRUE(AreJoined(drawing));
  for (int i = 0; i <= 2000; ++i) {
    const double t = i / 2000.0;
    const double s = 1 - t;
    const double x = 30 * s * s * t + 10 * t * t * t;
    EXPECT_LE(DistanceToDrawing(drawing, x, 30 * s * t), 1e-4);
  }
}

TEST(ReadSpline, GivenByPointsAloneItPassesThroughThemSmoothly) {
  const Drawing drawing = ReadEntities(
      "0 LINE | 10 0 | 11 0 | 21 -1 | 0 SPLINE | 71 3 | 74 4 | 11 0 | 21 0 | 11 10 | 21 5 | 11 20 | 21 5 |"
      "11 30 | 21 0",
      kFine);
  for (const auto& [x, y] : {std::pair{0, 0}, {10, 5}, {20, 5}, {30, 0}}) {
    EXPECT_LE(DistanceToDrawing(drawing, x, y), 1e-12);
  }
  EXPECT_EQ(drawing.flattened.at("SPLINE"), 1U);
  EXPECT_EQ(drawing.interpolated.count, 1U);
  ASSERT_EQ(drawing.warnings.size(), 1U);
  EXPECT_THAT(drawing.warnings.front(), testing::HasSubstr("points to pass through: 1, first on line "));
}

TEST(ReadSpline, ControlPointsCountWhenThereArePointsToPassThroughAsWell) {
  const Drawing drawing =
      ReadEntities("0 SPLINE | 71 1 | 40 0 | 40 0 | 40 1 | 40 1 | 10 0 | 10 4 | 74 3 | 11 0 | 11 2 | 21 7 | 11 4");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 0,0 4,0"));
  EXPECT_EQ(drawing.interpolated.count, 0U);
}

TEST(SplineThrough, PointsOfACircleMakeACircleAlmost) {
  SourceFit fit;
  fit.isClosed = true;
  for (int i = 0; i < 24; ++i) {
    fit.points.push_back({10 * std::cos(i * std::numbers::pi / 12), 10 * std::sin(i * std::numbers::pi / 12)});
  }
  for (const SourceVertex& vertex : FlattenSpline(SplineThrough(fit), 1e-6).path) {
    EXPECT_NEAR(std::hypot(vertex.point.x, vertex.point.y), 10, 2e-4);
  }
}

TEST(SplineThrough, TangentsAreFollowedAtTheEnds) {
  const SourceFit fit{{{0, 0}, {10, 0}}, {0, 5}, {0, -0.5}, false};
  const SourceSpline spline = SplineThrough(fit);
  ASSERT_EQ(spline.points.size(), 4U);
  EXPECT_NEAR(spline.points[1].point.x, 0, 1e-12);
  EXPECT_GT(spline.points[1].point.y, 1);
  EXPECT_NEAR(spline.points[2].point.x, 10, 1e-12);
  EXPECT_GT(spline.points[2].point.y, 1);
}

TEST(SplineThrough, PointsOfALineMakeALine) {
  const SourceFit fit{{{0, 0}, {1, 2}, {3, 6}, {4, 8}}, {}, {}, false};
  for (const SourceControlPoint& control : SplineThrough(fit).points) {
    EXPECT_NEAR(control.point.y, 2 * control.point.x, 1e-12);
  }
}

TEST(ReadSpline, StatedCountsAreNotBelieved) {
  EXPECT_THAT(
      GeometryOf(ReadEntities("0 SPLINE | 71 1 | 72 2000000000 | 73 2000000000 | 74 2000000000 | 40 0 | 40 0 | 40 1 |"
                              "40 1 | 10 0 | 10 4")),
      IsBits("L 0,0 4,0"));
}

/// A cubic that goes up and down from point to point, and needs many arcs for each of its spans.
SourceSpline Wave(std::size_t points) {
  SourceSpline spline;
  spline.degree = 3;
  for (std::size_t i = 0; i < points; ++i) {
    spline.points.push_back({{static_cast<double>(i), i % 2 == 0 ? 10. : -10.}, 1});
  }
  for (std::size_t i = 0; i < points + 4; ++i) spline.knots.push_back(static_cast<double>(i));
  return spline;
}

std::string PairsOf(const SourceSpline& spline) {
  std::string pairs = "0 SPLINE | 71 " + std::to_string(spline.degree);
  for (const double knot : spline.knots) pairs += " | 40 " + std::to_string(knot);
  for (const SourceControlPoint& control : spline.points) {
    pairs += " | 10 " + std::to_string(control.point.x) + " | 20 " + std::to_string(control.point.y);
  }
  return pairs;
}

/// On the spans of a wave, from the formula of uniform cubics.
Point PointOfWave(std::size_t span, double t) {
  const double s = 1 - t;
  const std::array weights = {s * s * s, 3 * t * t * t - 6 * t * t + 4, 3 * s * s * s - 6 * s * s + 4, t * t * t};
  Point point{0, 0};
  for (std::size_t k = 0; k < weights.size(); ++k) {
    point.x += weights[k] / 6 * static_cast<double>(span + k);
    point.y += weights[k] / 6 * ((span + k) % 2 == 0 ? 10 : -10);
  }
  return point;
}

TEST(FlattenSpline, CurveOfMoreThanTheMostArcsIsFollowedLessCloselyAndTold) {
  const std::size_t points = 100;
  const ReadOptions fine{std::nullopt, 1e-12};
  const Drawing drawing = ReadEntities("0 LINE | 10 -50 | 11 -40 | " + PairsOf(Wave(points)), fine);
  EXPECT_LE(drawing.entities.size(), kMostArcsOfCurve + 1);
  EXPECT_GT(drawing.entities.size(), kMostArcsOfCurve / 4);
  EXPECT_TRUE(drawing.skipped.empty());
  EXPECT_EQ(drawing.coarse.count, 1U);
  EXPECT_GT(drawing.coarse.line, 1U);
  EXPECT_GT(drawing.coarseness, 1e-12);
  EXPECT_LT(drawing.coarseness, 1e-4);
  for (std::size_t span = 0; span + 3 < points; span += 5) {
    for (const double t : {0.1, 0.37, 0.8}) {
      const Point point = PointOfWave(span, t);
      EXPECT_LE(DistanceToDrawing(drawing, point.x, point.y), drawing.coarseness + 1e-12);
    }
  }
  ASSERT_EQ(drawing.warnings.size(), 1U);
  EXPECT_THAT(drawing.warnings.front(),
              testing::StartsWith("curves that would take more than 10000 lines and arcs: 1, first on line "));
}

TEST(FlattenSpline, CurveWithinTheMostArcsIsFollowedAsAskedAndNothingIsTold) {
  const Drawing drawing = ReadEntities(PairsOf(Wave(100)), kFine);
  EXPECT_EQ(drawing.coarse.count, 0U);
  EXPECT_TRUE(drawing.warnings.empty());
  EXPECT_LE(FlattenSpline(Wave(100), 1e-4).tolerance, 1e-4);
}

TEST(FlattenSpline, CurveOfMorePiecesThanTheMostArcsHasOneForEach) {
  const std::size_t points = 15'000;
  const FlatCurve flat = FlattenSpline(Wave(points), 0.01);
  EXPECT_EQ(flat.path.size(), points - 3 + 1);
  EXPECT_GT(flat.tolerance, 0.01);
}

TEST(FlattenSpline, SpanWithoutLengthCostsTheRestNothing) {
  const Drawing drawing = ReadEntities(
      "0 SPLINE | 71 2 | 40 0 | 40 0 | 40 0 | 40 1 | 40 2 | 40 3 | 40 3 | 40 3 | 10 0 | 20 0 | 10 0 | 20 0 | 10 0 |"
      "20 0 | 10 10 | 20 0 | 10 10 | 20 10",
      kFine);
  EXPECT_TRUE(AreJoined(drawing));
  EXPECT_EQ(CountArcs(drawing) + 1, drawing.entities.size());  // the span that leaves the point is straight
  EXPECT_GT(drawing.entities.size(), 4U);
  EXPECT_LT(drawing.entities.size(), 100U);
  EXPECT_EQ(drawing.coarse.count, 0U);
}

TEST(FlattenSpline, FinenessIsBoundedWhateverTheToleranceAsksFor) {
  EXPECT_LE(ReadEntities(kQuarterCircle, ReadOptions{std::nullopt, 1e-300}).entities.size(), kMostArcsOfCurve);
  EXPECT_LE(ReadEntities("0 ELLIPSE | 11 10 | 40 0.5", ReadOptions{std::nullopt, 0}).entities.size(), kMostArcsOfCurve);
}

TEST(FlattenSpline, NumbersThatOverflowGiveAChordForEachPieceAndAreTold) {
  SourceSpline spline;
  spline.degree = 1;
  for (int i = 0; i < 40; ++i) {
    spline.points.push_back({{1e300, i * 1e300}, i % 2 == 0 ? 1e300 : 1e10});
    spline.knots.push_back(i);
  }
  spline.knots.push_back(40);
  spline.knots.push_back(41);
  const FlatCurve flat = FlattenSpline(spline, 0.01);
  EXPECT_LE(flat.path.size(), 40U);
  EXPECT_TRUE(std::isinf(flat.tolerance));
}

}  // namespace
}  // namespace xsec
