// Drawings as the library would take them otherwise in another direction, and what the preparation makes of them.
#include "xsec/prepare/Prepare.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <set>
#include <utility>

#include <gmock/gmock.h>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/InnerPoint.h"
#include "xsec/RegionDetection.h"
#include "xsec/RegionNotes.h"
#include "xsec/prepare/Curves.h"
#include "xsec/prepare/Motion.h"

namespace xsec {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

std::vector<PreparedGroup> PreparedGroups(const Drawing& drawing, double tolerance = 1e-3) {
  const GeometryEngine::support::TSettingsGuard guard;
  SettingsRequest request;
  request.tolerance = tolerance;
  return Prepare(drawing, ApplySettings(request, drawing).tolerance);
}

PreparedGroup Prepared(const Drawing& drawing, double tolerance = 1e-3) {
  std::vector<PreparedGroup> groups = PreparedGroups(drawing, tolerance);
  EXPECT_THAT(groups, SizeIs(1));
  return std::move(groups.front());
}

Detection DetectAt(const Drawing& drawing, bool prepares, double tolerance = 1e-3) {
  const GeometryEngine::support::TSettingsGuard guard;
  SettingsRequest request;
  request.tolerance = tolerance;
  request.prepares = prepares;
  return DetectRegions(drawing, ApplySettings(request, drawing));
}

std::size_t Count(const std::vector<Cure>& cures, CureKind kind) {
  return static_cast<std::size_t>(
      std::count_if(cures.begin(), cures.end(), [&](const Cure& cure) { return cure.kind == kind; }));
}

bool AreSameBits(const GeometryEngine::TDXFEntity& a, const GeometryEngine::TDXFEntity& b) {
  const auto bits = [](const GeometryEngine::TDXFEntity& entity) {
    return std::array{entity.StartCoords.x, entity.StartCoords.y, entity.EndCoords.x,    entity.EndCoords.y,
                      entity.radius,        entity.startAngle,    entity.CentreCoords.x, entity.CentreCoords.y};
  };
  return a.EntityType == b.EntityType && bits(a) == bits(b);
}

TEST(Prepare, LeavesADrawingWithoutDifficultiesAlone) {
  const Drawing drawing = DrawingOf(Rectangle(0, 0, 9, 9) + "L 3,0 3,9; " + Circle(6, 4, 1));
  const PreparedGroup prepared = Prepared(drawing);
  EXPECT_THAT(prepared.cures, IsEmpty());
  EXPECT_THAT(prepared.pieces, SizeIs(drawing.entities.size()));
}

TEST(Prepare, CirclesWithCentresAtOneHeightAreCutWhereTheyCross) {
  const Drawing drawing = DrawingOf(Circle(0, 0, 4) + Circle(5, 0, 3));
  EXPECT_THAT(DetectAt(drawing, false).regions, SizeIs(2));
  const Detection detection = DetectAt(drawing, true);
  EXPECT_THAT(detection.regions, SizeIs(3));
  EXPECT_GE(Count(detection.diagnostics.cures, CureKind::OneHeight), 1U);
  for (const TravelledPiece& piece : detection.regions[0].outline) EXPECT_NE(piece.source, kNone);
}

TEST(Prepare, ArcsOfOneCircleGetOneCentreAndRadius) {
  const Drawing drawing = DrawingOf(
      "A c 0,0 r 5 -10..90; A c 0,0 r 5 90..190; "
      "A c 0.0002,0.0001 r 5.0001 170..270; A c 0.0002,0.0001 r 5.0001 270..370");
  EXPECT_THAT(DetectAt(drawing, false).regions, IsEmpty());
  const Detection detection = DetectAt(drawing, true);
  ASSERT_THAT(detection.regions, SizeIs(1));
  EXPECT_NEAR(detection.regions[0].netArea, 25 * std::numbers::pi, 0.01);
  EXPECT_EQ(Count(detection.diagnostics.cures, CureKind::OneCircle), 2U);
}

TEST(Prepare, LinesThatLieOnEachOtherAreCutAtEachOthersEndsAndKeptOnce) {
  const PreparedGroup prepared = Prepared(DrawingOf("L 0,0 10,0.0003; L 4,0 6,0.0002"));
  EXPECT_EQ(Count(prepared.cures, CureKind::Overlap), 1U);
  EXPECT_EQ(Count(prepared.cures, CureKind::Duplicate), 1U);
  EXPECT_THAT(prepared.pieces, SizeIs(3));
}

TEST(Prepare, DrawnTwoThousandTimesGivesThePiecesOfDrawnOnce) {
  const std::string once = Rectangle(0, 0, 9, 9) + "L 3,0 3,9; " + Circle(6, 4, 1) + Circle(7, 4, 1);
  std::string often;
  for (int i = 0; i < 2000; ++i) often += once;
  const PreparedGroup expected = Prepared(DrawingOf(once));
  const PreparedGroup prepared = Prepared(DrawingOf(often));
  ASSERT_THAT(prepared.pieces, SizeIs(expected.pieces.size()));
  for (std::size_t i = 0; i < expected.pieces.size(); ++i) {
    EXPECT_TRUE(AreSameBits(prepared.pieces[i].geometry, expected.pieces[i].geometry)) << i;
    EXPECT_EQ(prepared.pieces[i].source, expected.pieces[i].source);
  }
  EXPECT_EQ(Count(prepared.cures, CureKind::Overlap), 1999 * DrawingOf(once).entities.size());
  EXPECT_EQ(Count(prepared.cures, CureKind::Duplicate), 1999 * expected.pieces.size());
}

TEST(Prepare, LineDrawnTheOtherWayIsADouble) {
  const PreparedGroup prepared = Prepared(DrawingOf("L 0,0 9,1; L 4,-3 5,3; L 9,1 0,0"));
  EXPECT_THAT(prepared.pieces, SizeIs(2));
  EXPECT_EQ(Count(prepared.cures, CureKind::Overlap), 1U);
  EXPECT_EQ(Count(prepared.cures, CureKind::Duplicate), 1U);
}

TEST(Prepare, HalfOfACircleThatIsDrawnAloneAsWellDoesNotTakeItsPlace) {
  const PreparedGroup prepared = Prepared(DrawingOf("A c 6,4 r 1 0..180; L 0,0 9,0; " + Circle(6, 4, 1)));
  EXPECT_THAT(prepared.pieces, SizeIs(3));
  EXPECT_EQ(Count(prepared.cures, CureKind::Duplicate), 1U);
}

TEST(Prepare, ThousandLinesFromOnePointInOneDirectionAreCutAtEachOthersEnds) {
  constexpr std::size_t kLines = 1000;
  std::string drawing;
  for (std::size_t i = 1; i <= kLines; ++i)
    drawing += "L 0,0 " + std::to_string(2 * i) + "," + std::to_string(i) + "; ";
  const PreparedGroup prepared = Prepared(DrawingOf(drawing));
  EXPECT_THAT(prepared.pieces, SizeIs(kLines));
  EXPECT_EQ(Count(prepared.cures, CureKind::Overlap), kLines * (kLines - 1) / 2);
  EXPECT_EQ(Count(prepared.cures, CureKind::Duplicate), kLines * (kLines - 1) / 2);
}

TEST(Prepare, HundredsOfArcsOfOneCircleAreCutAtEachOthersEnds) {
  constexpr std::size_t kArcs = 340;
  std::string drawing;
  for (std::size_t i = 1; i <= kArcs; ++i) drawing += "A c 1,2 r 50 3.." + std::to_string(3 + i) + "; ";
  const PreparedGroup prepared = Prepared(DrawingOf(drawing));
  EXPECT_THAT(prepared.pieces, SizeIs(kArcs));
  EXPECT_EQ(Count(prepared.cures, CureKind::Overlap), kArcs * (kArcs - 1) / 2);
}

/// Slots along a bore, each of four parts one above the other, as a file writes their points.
Drawing SlotsAlongABore(int slots, const Point& middle = {}) {
  const double step = 360.0 / slots;
  const auto written = [](double value) { return std::round(value * 1e9) / 1e9; };
  const auto on = [&](double radius, double degrees) {
    const double radians = degrees * std::numbers::pi / 180;
    return Point{written(middle.x + radius * std::cos(radians)), written(middle.y + radius * std::sin(radians))};
  };
  Drawing drawing = DrawingOf(Circle(middle.x, middle.y, 140));
  const auto add = [&](const GeometryEngine::TDXFEntity& entity) {
    drawing.entities.push_back({entity, {}, {}, {}, {}});
  };
  const auto addArc = [&](double radius, double from, double to) {
    add(GeometryEngine::TDXFEntity::Arc(on(radius, from), on(radius, to), middle, radius, from, to));
  };
  for (int slot = 0; slot < slots; ++slot) {
    const double left = (slot + 0.25) * step;
    const double right = (slot + 0.75) * step;
    for (const double side : {left, right}) add(GeometryEngine::TDXFEntity::Line(on(100, side), on(120, side)));
    for (const double radius : {100.0, 105.0, 110.0, 115.0, 120.0}) addArc(radius, left, right);
    addArc(100, slot == 0 ? 360 - 0.25 * step : left - 0.5 * step, left);
  }
  return drawing;
}

TEST(Prepare, EveryPartOfEverySlotIsFoundThoughSomeOfTheirSidesAreSteepInEveryOrientation) {
  for (const int slots : {106, 108, 119, 133, 160, 168}) {
    const Detection detection = DetectAt(SlotsAlongABore(slots), true, 0.15);
    EXPECT_GT(Count(detection.diagnostics.cures, CureKind::SteepLine), 0U) << slots;
    EXPECT_THAT(detection.regions, SizeIs(4 * slots + 2)) << slots;
  }
}

TEST(Prepare, RegionsFarFromTheOriginAreThoseNearIt) {
  constexpr int kSlots = 12;
  for (const Point& middle : {Point{1e5, 0}, Point{-3e5, 2e5}, Point{1e3, -1e6}}) {
    const Detection detection = DetectAt(SlotsAlongABore(kSlots, middle), true);
    EXPECT_THAT(detection.regions, SizeIs(4 * kSlots + 2)) << middle.x << "," << middle.y;
    EXPECT_THAT(detection.diagnostics.lostSides, IsEmpty());
    EXPECT_THAT(detection.diagnostics.cures, IsEmpty());
  }
}

/// Two arcs of an air gap and the steep edge of a tooth begin at one point, where the library finds a second one: so
/// far from the origin an end has too few digits to be recognised. A frame round all of it keeps the drawing there.
TEST(Prepare, EndsThatWouldMeetOtherwiseAreSeenToByATurn) {
  const Drawing drawing = DrawingOf(
      "A c 3531.250200155,6099.436662289 r 83.892861195 89.3255563411..90.7235563412; "
      "A c 3531.247834665,6099.453454521 r 83.876040458 90.7220854563..91.7916854563; "
      "L 3530.190792310,6183.322834061 3530.191230952,6182.299379097; "
      "L 3532.237702238,6183.323711344 3532.225390356,6182.298488658; "
      "L 3532.225390356,6182.298488658 3530.191230952,6182.299379097; "
      "L 3530.191230952,6182.299379097 3528.725390356,6182.298488658; "
      "L 3528.725390356,6182.298488658 3528.625390356,6183.288488658; " +
      Rectangle(-3600, -6200, 3600, 6200));
  const Detection detection = DetectAt(drawing, true, 1e-4);
  EXPECT_THAT(detection.regions, SizeIs(3));
  EXPECT_THAT(detection.diagnostics.cures, IsEmpty());
}

// The library reckons crossings of such a line with circles by squares of the line's height above the origin, and far
// along the line from where they are: a cut in the right place would only be one more beside them.
TEST(DetectRegions, LineThatIsAllButUprightPartsCirclesWhereItCrossesThem) {
  const double segment = 25 * std::acos(0.4) - 2 * std::sqrt(21);  // mm2, left of the line in the inner circle
  for (const double lean : {2e-4, -2e-4, 3e-4, -3e-4, 5e-4, -5e-4, 2e-3, -2e-3}) {
    for (const double tolerance : {1e-4, 1e-5, 1e-6}) {
      Drawing drawing =
          DrawingOf(Rectangle(0, 0, 200, 100) + Circle(100, 50, 10) + Circle(100, 50, 5) + "L 98,38 98,62");
      drawing.entities.back().geometry.EndCoords.x += lean;
      const Detection detection = DetectAt(drawing, true, tolerance);
      ASSERT_THAT(detection.regions, SizeIs(5)) << "lean " << lean << ", tolerance " << tolerance;
      EXPECT_THAT(detection.diagnostics.lostSides, IsEmpty());
      const auto smallest = std::min_element(detection.regions.begin(), detection.regions.end(),
                                             [](const Region& a, const Region& b) { return a.baseArea < b.baseArea; });
      EXPECT_NEAR(smallest->baseArea, segment, 10 * std::abs(lean));
    }
  }
}

constexpr double kHalfRootTwo = 0.7071067811865476;
constexpr double kLongestStep = 1.125;  // tolerances between points that become one

Drawing Turned(Drawing drawing, int degrees) {
  for (DrawingEntity& entity : drawing.entities) entity.geometry = Motion({0, 0}, degrees)(entity.geometry);
  return drawing;
}

/// Three lines across a disc. They meet in pairs, at the corners of a triangle whose longest side has this length, the
/// others 0.71 of it.
Drawing LinesThatAllButMeetInOnePoint(double side) {
  Drawing drawing = DrawingOf(Circle(0, 0, 5) + "L -6,0 6,0; L -5,-5 5,5; L 5,-5 -5,5");
  GeometryEngine::TDXFEntity& last = drawing.entities.back().geometry;
  last = GeometryEngine::TDXFEntity::Line({5 + side, -5}, {-5 + side, 5});
  return drawing;
}

TEST(DetectRegions, LinesThatAllButMeetInOnePointPartADiscAlikeInEveryDirection) {
  for (const double tolerances : {0.3, 0.99, 1.01, 1.2, 1.4, 1.42, 1.5, 1.7, 2.0, 2.2, 3.0}) {
    for (int degrees = 0; degrees < 180; degrees += 5) {
      const Detection detection = DetectAt(Turned(LinesThatAllButMeetInOnePoint(tolerances * 1e-3), degrees), true);
      EXPECT_THAT(detection.regions, SizeIs(kHalfRootTwo * tolerances < kLongestStep ? 6 : 7))
          << tolerances << " at " << degrees;
      EXPECT_THAT(detection.diagnostics.lostSides, IsEmpty()) << tolerances << " at " << degrees;
      EXPECT_THAT(detection.diagnostics.warnings, IsEmpty()) << tolerances << " at " << degrees;
    }
  }
}

/// The ends of pieces close to the origin.
std::vector<Point> EndsInTheMiddle(const PreparedGroup& prepared) {
  std::vector<Point> ends;
  for (const PreparedPiece& piece : prepared.pieces) {
    for (const Point& end : {piece.geometry.StartCoords, piece.geometry.EndCoords}) {
      if (std::hypot(end.x, end.y) < 0.1) ends.push_back(end);
    }
  }
  return ends;
}

TEST(Prepare, PointsThatAreTheSameInSomeDirectionsOnlyBecomeOneUnderAFinerTolerance) {
  const PreparedGroup prepared = Prepared(LinesThatAllButMeetInOnePoint(1.2e-3));
  EXPECT_DOUBLE_EQ(prepared.tolerance, 1e-4);
  EXPECT_EQ(Count(prepared.cures, CureKind::OnePoint), 3U);
  const std::vector<Point> ends = EndsInTheMiddle(prepared);
  ASSERT_THAT(ends, SizeIs(6));
  for (const Point& end : ends) EXPECT_TRUE(IsSameBits(end, ends.front()));
}

TEST(Prepare, PointsThatAreApartInEveryDirectionStayApart) {
  const PreparedGroup prepared = Prepared(LinesThatAllButMeetInOnePoint(1.7e-3));
  EXPECT_DOUBLE_EQ(prepared.tolerance, 1e-4);
  EXPECT_EQ(Count(prepared.cures, CureKind::OnePoint), 0U);
  EXPECT_THAT(EndsInTheMiddle(prepared), SizeIs(12));
}

TEST(Prepare, PointsOfWhichThereIsNoDoubtAreLeftToTheLibrary) {
  for (const double side : {0.5e-3, 3e-3}) {
    const PreparedGroup prepared = Prepared(LinesThatAllButMeetInOnePoint(side));
    EXPECT_EQ(prepared.tolerance, 1e-3);
    EXPECT_THAT(EndsInTheMiddle(prepared), IsEmpty());
  }
}

// The library has no digits for a tenth of such a tolerance.
TEST(Prepare, ToleranceBelowTwoThousandMillionthsOfADrawingIsNotMadeFiner) {
  for (const double tolerance : {2e-8, 4e-8}) {
    const Drawing drawing = LinesThatAllButMeetInOnePoint(1.2 * tolerance);
    const double fineEnough = 2e-9 * Diagonal(drawing.extents);
    const PreparedGroup prepared = PreparedGroups(drawing, tolerance).front();
    EXPECT_DOUBLE_EQ(prepared.tolerance, tolerance < fineEnough ? tolerance : tolerance / 10);
  }
}

// Each line passes the middle by up to the tolerance, so that their crossings fill a disc as wide as that.
TEST(Prepare, CrossingsOfManyLinesThroughOnePlaceBecomePointsThatAreApart) {
  constexpr int kLines = 60;
  Drawing drawing = DrawingOf(Circle(0, 0, 5));
  for (int i = 0; i < kLines; ++i) {
    const double angle = (i + 0.3) * std::numbers::pi / kLines;
    const Point run = {6 * std::cos(angle), 6 * std::sin(angle)};
    const Point off = {1e-3 * std::sin(7 * i), 1e-3 * std::cos(11 * i)};
    DrawingEntity line = drawing.entities.front();
    line.geometry = GeometryEngine::TDXFEntity::Line(off - run, off + run);
    drawing.entities.push_back(line);
  }
  const PreparedGroup prepared = Prepared(drawing);
  EXPECT_DOUBLE_EQ(prepared.tolerance, 1e-4);
  std::set<std::pair<double, double>> ends;
  for (const Point& end : EndsInTheMiddle(prepared)) ends.emplace(end.x, end.y);
  for (auto a = ends.begin(); a != ends.end(); ++a) {
    for (auto b = std::next(a); b != ends.end(); ++b)
      EXPECT_GE(std::hypot(a->first - b->first, a->second - b->second), 1e-3);
  }
}

// The short side of the plate and what divides the plate are met in one point.
TEST(DetectRegions, SideShorterThanWhatItIsMetInVanishesInEveryDirection) {
  const Drawing plate =
      DrawingOf("L 0,0 10,0; L 10,0 10,4; L 10,4 10,4.0015; L 10,4.0015 10,9; L 10,9 0,9; L 0,9 0,0; L 0,5 10,4.00075");
  for (int degrees = 0; degrees < 180; degrees += 5) {
    const Detection detection = DetectAt(Turned(plate, degrees), true);
    EXPECT_THAT(detection.regions, SizeIs(2)) << degrees;
    EXPECT_THAT(detection.diagnostics.lostSides, IsEmpty()) << degrees;
  }
}

// The chord and the arc above it are less than half the tolerance apart, and 0.6 mm long.
TEST(DetectRegions, WhatRunsTogetherBetweenTwoMeetingsIsThereOnceInEveryDirection) {
  const Drawing drawing =
      DrawingOf(Circle(0, 0, 100) + "L -120,99.9995 120,99.9995; L 0,99.9 0,120; L 0,120 30,99.9995");
  for (int degrees = 0; degrees < 180; degrees += 5) {
    const Detection detection = DetectAt(Turned(drawing, degrees), true);
    EXPECT_THAT(detection.regions, SizeIs(2)) << degrees;
    EXPECT_THAT(detection.diagnostics.lostSides, IsEmpty()) << degrees;
    EXPECT_EQ(Count(detection.diagnostics.cures, CureKind::Overlap), 1U) << degrees;
  }
}

TEST(PieceBetween, OfAnArcLiesOnACircleThroughPointsBesideTheArcs) {
  GeometryEngine::support::TSettingsGuard guard;
  guard.With(Maindataenum::TInputFields::ifLinearTolerance, 1e-4);
  const GeometryEngine::TDXFEntity arc = DrawingOf(Circle(1, 2, 5)).entities[0].geometry;
  const Point end = MidPoint(Travel(arc, true));
  const GeometryEngine::TDXFEntity onArc = PieceBetween(arc, arc.StartCoords, end);
  EXPECT_EQ(onArc.CentreCoords.x, arc.CentreCoords.x);
  EXPECT_EQ(onArc.CentreCoords.y, arc.CentreCoords.y);
  EXPECT_EQ(onArc.radius, arc.radius);

  const Point start = {arc.StartCoords.x + 1e-3, arc.StartCoords.y};
  const GeometryEngine::TDXFEntity beside = PieceBetween(arc, start, end);
  EXPECT_NEAR(Distance(beside.CentreCoords, start), beside.radius, 1e-12);
  EXPECT_NEAR(Distance(beside.CentreCoords, end), beside.radius, 1e-12);
  EXPECT_NEAR(beside.radius, 5, 1e-3);
  EXPECT_NEAR(beside.ArcSweep(), onArc.ArcSweep(), 0.1);
}

// About the old centre, or one moved along the chord, it would be a half circle.
TEST(PieceBetween, OfAShortArcKeepsItsRadiusHoweverFarItsEndsLieBesideIt) {
  GeometryEngine::support::TSettingsGuard guard;
  guard.With(Maindataenum::TInputFields::ifLinearTolerance, 1e-4);
  const GeometryEngine::TDXFEntity arc = GeometryEngine::TDXFEntity::Arc({5, 0}, {0, 5}, {0, 0}, 5, 0, 90);
  const GeometryEngine::TDXFEntity radial = PieceBetween(arc, {5, 0}, {5.001, 0});
  EXPECT_NEAR(radial.radius, 5, 1e-9);
  EXPECT_NEAR(radial.ArcSweep(), 1e-3 / 5 * 180 / std::numbers::pi, 1e-6);
}

TEST(Prepare, DrawingThatIsMovedMeanwhileKeepsItsDigits) {
  const Drawing drawing = DrawingOf("L 100000.1,7 100003.3,7; L 100003.3,7 100000.1,9; L 100000.1,9 100000.1,7");
  const Detection detection = DetectAt(drawing, true);
  ASSERT_THAT(detection.regions, SizeIs(1));
  EXPECT_THAT(detection.regions[0].outline, SizeIs(3));
  for (const TravelledPiece& piece : detection.regions[0].outline) {
    EXPECT_TRUE(piece.from.x == 100000.1 || piece.from.x == 100003.3);
    EXPECT_TRUE(piece.from.y == 7 || piece.from.y == 9);
  }
}

/// A plate with a steep line through it, so that it must be turned, and a square in its left half.
std::string SteeplyPartedPlate(double x, double y) {
  const auto at = [](double value) { return std::to_string(value); };
  return "L " + at(x + 5) + "," + at(y) + " " + at(x + 5.0005) + "," + at(y + 9) + "; " +
         Rectangle(x, y, x + 9, y + 9) + Rectangle(x + 1, y + 1, x + 3, y + 3);
}

TEST(Prepare, PartsSideBySideAreTurnedEachAsItNeedsAndTheOthersNotAtAll) {
  const Drawing drawing = DrawingOf(SteeplyPartedPlate(20, 0) + Rectangle(-4, 0, 5, 9) + SteeplyPartedPlate(40, 3) +
                                    Rectangle(-4, 20, -2, 22));
  const std::vector<PreparedGroup> groups = PreparedGroups(drawing);
  ASSERT_THAT(groups, SizeIs(3));
  EXPECT_THAT(groups[0].cures, IsEmpty());
  ASSERT_THAT(groups[0].pieces, SizeIs(8));
  for (const PreparedPiece& piece : groups[0].pieces) {
    EXPECT_TRUE(AreSameBits(piece.geometry, drawing.entities[piece.source].geometry));
  }
  for (std::size_t i = 1; i < 3; ++i) {
    EXPECT_EQ(Count(groups[i].cures, CureKind::SteepLine), 1U);
    EXPECT_THAT(groups[i].pieces, SizeIs(9));
    const GeometryEngine::TDXFEntity& steep = groups[i].pieces[0].geometry;
    EXPECT_GT(std::abs(steep.StartCoords.x - steep.EndCoords.x), 0.1);
  }
  EXPECT_THAT(groups[1].cures[0].place, GeometryEngine::support::IsNear(25, 0, 1e-9));
  EXPECT_THAT(groups[2].cures[0].place, GeometryEngine::support::IsNear(45, 3, 1e-9));
}

TEST(Prepare, WhatAFrameHoldsIsTurnedTogether) {
  const Drawing drawing = DrawingOf(SteeplyPartedPlate(0, 0) + SteeplyPartedPlate(40, 3) + Rectangle(-5, -5, 60, 60));
  EXPECT_THAT(PreparedGroups(drawing), SizeIs(1));
  EXPECT_THAT(DetectAt(drawing, true).regions, SizeIs(7));
}

TEST(DetectRegions, RegionsOfPartsThatWereTurnedApartAreOneDetection) {
  const Drawing drawing = DrawingOf(SteeplyPartedPlate(0, 0) + Rectangle(20, 0, 29, 9) + Rectangle(22, 2, 25, 5) +
                                    SteeplyPartedPlate(40, 3) + "L 70,70 75,70");
  const Detection detection = DetectAt(drawing, true);
  ASSERT_THAT(detection.regions, SizeIs(8));
  std::set<std::string> names;
  std::map<std::size_t, std::size_t> sourceOfPiece;
  double area = 0;
  for (std::size_t i = 0; i < detection.regions.size(); ++i) {
    const Region& region = detection.regions[i];
    names.insert(region.uniqueName);
    area += region.netArea;
    EXPECT_TRUE(IsInside(region.outline, region.label)) << i;
    EXPECT_GT(region.clearance, 0.1) << i;
    EXPECT_EQ(region.depth, region.parent == kNone ? 0U : 1U);
    for (const std::size_t child : region.children) EXPECT_EQ(detection.regions[child].parent, i);
    if (region.parent != kNone) {
      EXPECT_THAT(detection.regions[region.parent].children, ElementsAre(i));
    }
    for (const TravelledPiece& piece : region.outline) {
      EXPECT_EQ(sourceOfPiece.emplace(piece.index, piece.source).first->second, piece.source);
    }
  }
  EXPECT_THAT(names, SizeIs(8));
  EXPECT_NEAR(area, 3 * 81, 1e-6);
  EXPECT_THAT(WarningTexts(detection.diagnostics), IsEmpty());
  EXPECT_THAT(detection.diagnostics.lostSides, IsEmpty());
  ASSERT_THAT(detection.diagnostics.openPieces, SizeIs(1));
  EXPECT_THAT(MidPoint(detection.diagnostics.openPieces[0].piece), GeometryEngine::support::IsNear(72.5, 70, 1e-9));
}

TEST(DetectRegions, SliversOfPartsThatWereTurnedApartAreDropped) {
  const auto sliver = [](double y) {
    return "L 0," + std::to_string(y) + " 9," + std::to_string(y) + "; L 0," + std::to_string(y + 0.002) + " 9," +
           std::to_string(y + 0.002) + "; ";
  };
  const Drawing drawing = DrawingOf(SteeplyPartedPlate(0, 0) + sliver(6) + SteeplyPartedPlate(0, 40) + sliver(47));
  const GeometryEngine::support::TSettingsGuard guard;
  SettingsRequest request;
  request.tolerance = 1e-3;
  request.sliverArea = 0.1;
  EXPECT_THAT(DetectRegions(drawing, ApplySettings(request, drawing)).regions, SizeIs(14));
  request.dropsSlivers = true;
  const Detection detection = DetectRegions(drawing, ApplySettings(request, drawing));
  EXPECT_THAT(detection.regions, SizeIs(10));
  EXPECT_EQ(Count(detection.diagnostics.cures, CureKind::Sliver), 4U);
}

TEST(Prepare, CircleThatTouchesAnotherFromInsideIsARegionInEveryDirection) {
  for (int k = 0; k < 120; ++k) {
    const double angle = 3 * k * std::numbers::pi / 180;
    const Drawing drawing = DrawingOf(Circle(0, 0, 5) + Circle(2 * std::cos(angle), 2 * std::sin(angle), 3));
    EXPECT_THAT(DetectAt(drawing, true).regions, SizeIs(2)) << 3 * k << " degrees";
  }
}

TEST(Prepare, FirstPiecesOfEqualChordDoNotShowInTheOutlines) {
  std::size_t settled = 0;
  for (int k = 0; k < 120; ++k) {
    const double angle = 3 * k * std::numbers::pi / 180;
    const Drawing drawing = DrawingOf(Circle(0, 0, 5) + Circle(2 * std::cos(angle), 2 * std::sin(angle), 3));
    const Detection detection = DetectAt(drawing, true);
    settled += Count(detection.diagnostics.cures, CureKind::TurnOrder);
    for (const Region& region : detection.regions) EXPECT_LE(region.outline.size(), 6U) << 3 * k << " degrees";
  }
  EXPECT_GT(settled, 0U);
}

/// The places close to a point, but not that of the point itself.
std::vector<Point> PlacesAround(const PreparedGroup& prepared, const Point& point) {
  std::vector<Point> places;
  const Motion back = prepared.motion.Back();
  for (const Point& place : prepared.places) {
    const double away = Distance(back(place), point);
    if (1e-3 < away && away < 0.5) places.push_back(back(place));
  }
  return places;
}

/// The least distance between two of the points.
double LeastGap(const std::vector<Point>& points) {
  double gap = 1;
  for (std::size_t i = 0; i < points.size(); ++i) {
    for (std::size_t j = i + 1; j < points.size(); ++j) gap = std::min(gap, Distance(points[i], points[j]));
  }
  return gap;
}

// Two circles that touch, one within the other. Where a half ends close by it has no first piece, so that there may be
// three.
TEST(Prepare, FirstPiecesOfEqualChordPartByAGapOfTolerances) {
  std::size_t settled = 0;
  for (int k = 0; k < 120; ++k) {
    const Point direction{std::cos(k * std::numbers::pi / 60), std::sin(k * std::numbers::pi / 60)};
    const PreparedGroup prepared = Prepared(DrawingOf(Circle(0, 0, 5) + Circle(2 * direction.x, 2 * direction.y, 3)));
    if (Count(prepared.cures, CureKind::TurnOrder) == 0) continue;
    ++settled;
    const std::vector<Point> ends = PlacesAround(prepared, 5 * direction);
    ASSERT_GE(ends.size(), 3U) << 3 * k << " degrees";
    for (const Point& end : ends) {
      EXPECT_NEAR(Distance(end, 5 * direction), Distance(ends.front(), 5 * direction), 1e-6) << 3 * k << " degrees";
      EXPECT_LT(std::min(std::abs(Distance(end, {}) - 5), std::abs(Distance(end, 2 * direction) - 3)), 1e-6);
    }
    EXPECT_NEAR(LeastGap(ends), 8e-3, 1e-4) << 3 * k << " degrees";
  }
  EXPECT_GT(settled, 0U);
}

TEST(Prepare, SeamsOfACircleGoWhereItIsMetLeast) {
  std::string drawing = Circle(0, 0, 5);
  for (const double degrees : {2., 50., 100.}) {
    const double radians = degrees * std::numbers::pi / 180;
    for (const double radius : {5., 8.}) {
      drawing += (radius == 5 ? "L " : " ") + std::to_string(radius * std::cos(radians)) + "," +
                 std::to_string(radius * std::sin(radians));
    }
    drawing += "; ";
  }
  const PreparedGroup prepared = Prepared(DrawingOf(drawing));
  const auto seam = std::find_if(prepared.cures.begin(), prepared.cures.end(),
                                 [](const Cure& cure) { return cure.kind == CureKind::Seam; });
  ASSERT_NE(seam, prepared.cures.end());
  const double degrees = std::atan2(seam->place.y, seam->place.x) * 180 / std::numbers::pi;
  EXPECT_NEAR(std::fmod(degrees + 360, 180), 141, 1e-4);  // midway from 100 to 182
}

TEST(Prepare, WhatIsDoneToPiecesIsToldOfTheEntitiesThatTheyArePartsOf) {
  std::string lines;
  for (int i = 0; i < 12; ++i) lines += "L " + std::to_string(i) + ",-9 " + std::to_string(i) + ".5,-7; ";
  Drawing drawing = DrawingOf(lines + "L 2,4 8,4.0003; L 3,4 7,4.0002");
  for (const DrawingEntity& entity : LinesThatAllButMeetInOnePoint(1.2e-3).entities) drawing.entities.push_back(entity);
  std::size_t told = 0;
  for (const PreparedGroup& group : PreparedGroups(drawing)) {
    for (const Cure& cure : group.cures) {
      for (const std::size_t entity : {cure.entity, cure.other}) {
        if (entity == kNone) continue;
        ++told;
        ASSERT_LT(entity, drawing.entities.size());
        EXPECT_LT(DistanceTo(drawing.entities[entity].geometry, cure.place), 2e-3) << CureName(cure.kind);
      }
    }
  }
  EXPECT_GT(told, 4U);
}

TEST(Prepare, CountOfPiecesGrowsWithTheDrawingAndNoFaster) {
  std::string grid;
  for (int i = 0; i <= 20; ++i) {
    const std::string at = std::to_string(i);
    grid += "L " + at + ",0 " + at + ",20; L 0," + at + " 20," + at + "; ";
  }
  EXPECT_THAT(Prepared(DrawingOf(grid)).pieces, SizeIs(42));
}

}  // namespace
}  // namespace xsec
