#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"

#include <cmath>
#include <limits>

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/GeometryFuncts/CoordinateAngles.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;

/// Walks the entities as a chain that begins at `aStart`.
int WindingNumber(std::string_view aText, TEntityCoordinate aStart, const TEntityCoordinate& aPoint) {
  int sum = 0;
  for (const TDXFEntity& entity : ParseEntities(aText)) {
    const TEntityCoordinate end = GetEntityEndCoordinate(aStart, entity);
    sum += GetWindingNumber_Entity_Addition(entity, aStart, end, aPoint);
    aStart = end;
  }
  return sum;
}

TEST(DetermineInterceptResult, UpwardCountsAPointToTheLeft) {
  TSettingsGuard settings;
  EXPECT_EQ(DetermineInterceptResult({0, 0}, {0, 2}, {-1, 1}), 1);
  EXPECT_EQ(DetermineInterceptResult({0, 0}, {0, 2}, {1, 1}), 0);
}

TEST(DetermineInterceptResult, DownwardCountsAPointToTheRight) {
  TSettingsGuard settings;
  EXPECT_EQ(DetermineInterceptResult({0, 2}, {0, 0}, {-1, 1}), -1);
  EXPECT_EQ(DetermineInterceptResult({0, 2}, {0, 0}, {1, 1}), 0);
}

TEST(DetermineInterceptResult, PointOnTheLineCountsDownwardOnlyKept) {
  TSettingsGuard settings;
  EXPECT_EQ(DetermineInterceptResult({0, 0}, {2, 2}, {1, 1}), 0);
  EXPECT_EQ(DetermineInterceptResult({2, 2}, {0, 0}, {1, 1}), -1);
}

TEST(DetermineInterceptResult, LowerEndAtThePointsHeightCountsAndUpperEndDoesNot) {
  TSettingsGuard settings;
  EXPECT_EQ(DetermineInterceptResult({0, 1}, {0, 2}, {-1, 1}), 1);
  EXPECT_EQ(DetermineInterceptResult({0, 0}, {0, 1}, {-1, 1}), 0);
  EXPECT_EQ(DetermineInterceptResult({0, 2}, {0, 1}, {-1, 1}), -1);
  EXPECT_EQ(DetermineInterceptResult({0, 1}, {0, 0}, {-1, 1}), 0);
}

TEST(DetermineInterceptResult, EndWithinTheToleranceOfTheHeightLiesBelow) {
  TSettingsGuard settings;
  EXPECT_EQ(DetermineInterceptResult({0, 1 + 5e-5}, {0, 2}, {-1, 1}), 1);
  EXPECT_EQ(DetermineInterceptResult({0, 1 + 2e-4}, {0, 2}, {-1, 1}), 0);
  EXPECT_EQ(DetermineInterceptResult({0, 0}, {0, 1 + 5e-5}, {-1, 1}), 0);
  EXPECT_EQ(DetermineInterceptResult({0, 0}, {0, 1 + 2e-4}, {-1, 1}), 1);
}

TEST(DetermineInterceptResult, HorizontalSegmentCountsNothing) {
  TSettingsGuard settings;
  for (const double height : {0.0, 1.0, 1.00005, 2.0}) {
    EXPECT_EQ(DetermineInterceptResult({0, height}, {5, height}, {2, 1}), 0) << height;
    EXPECT_EQ(DetermineInterceptResult({5, height}, {0, height}, {2, 1}), 0) << height;
  }
}

TEST(DetermineInterceptResult, NotANumberCountsNothing) {
  TSettingsGuard settings;
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(DetermineInterceptResult({kNaN, 0}, {0, 2}, {-1, 1}), 0);
  EXPECT_EQ(DetermineInterceptResult({kNaN, 2}, {0, 0}, {-1, 1}), 0);
  EXPECT_EQ(DetermineInterceptResult({0, 0}, {0, 2}, {-1, kNaN}), 0);
}

TEST(GetWindingNumber_Entity_Addition, SquareWindsOnceRoundItsCentre) {
  TSettingsGuard settings;
  constexpr std::string_view kSquare = "L 0,0 1,0; L 1,0 1,1; L 1,1 0,1; L 0,1 0,0";
  constexpr std::string_view kClockwise = "L 0,1 0,0; L 1,1 0,1; L 1,0 1,1; L 0,0 1,0";
  EXPECT_EQ(WindingNumber(kSquare, {0, 0}, {0.5, 0.5}), 1);
  EXPECT_EQ(WindingNumber(kClockwise, {0, 0}, {0.5, 0.5}), -1);
  for (const TEntityCoordinate& outside : ParseCoordinates("2,0.5 -1,0.5 0.5,2 0.5,-1 -1,0 2,1")) {
    EXPECT_EQ(WindingNumber(kSquare, {0, 0}, outside), 0) << ToText(outside);
    EXPECT_EQ(WindingNumber(kClockwise, {0, 0}, outside), 0) << ToText(outside);
  }
}

TEST(GetWindingNumber_Entity_Addition, PointOnAnEdgeIsOutsideAnticlockwiseAndInsideClockwiseKept) {
  TSettingsGuard settings;
  for (const TEntityCoordinate& point : ParseCoordinates("0,0.5 1,0.5")) {
    EXPECT_EQ(WindingNumber("L 0,0 1,0; L 1,0 1,1; L 1,1 0,1; L 0,1 0,0", {0, 0}, point), 0);
    EXPECT_EQ(WindingNumber("L 0,1 0,0; L 1,1 0,1; L 1,0 1,1; L 0,0 1,0", {0, 0}, point), -1);
  }
}

TEST(GetWindingNumber_Entity_Addition, CircleOfTwoArcsWindsOnceRoundItsInside) {
  TSettingsGuard settings;
  constexpr std::string_view kCircle = "A c 3,4 r 2 0..180; A c 3,4 r 2 180..360";
  EXPECT_EQ(WindingNumber(kCircle, {5, 4}, {3, 4.3}), 1);
  EXPECT_EQ(WindingNumber(kCircle, {5, 4}, {4.9, 4.1}), 1);
  EXPECT_EQ(WindingNumber(kCircle, {5, 4}, {5.1, 4.1}), 0);
  EXPECT_EQ(WindingNumber("A c 3,4 r 2 180..360; A c 3,4 r 2 0..180", {5, 4}, {3, 4.3}), -1);
}

TEST(GetWindingNumber_Entity_Addition, ChordsStayWithinAHundredthOfTheArc) {
  TSettingsGuard settings;
  const auto countInside = [](double aDepth) {
    int inside = 0;
    for (int i = 0; i < 1000; ++i) {
      const TEntityCoordinate point = RT_To_XY_Coordinate(100 - aDepth, 0.1 + 0.36 * i);
      inside += WindingNumber("A c 0,0 r 100 0..180; A c 0,0 r 100 180..360", {100, 0}, point);
    }
    return inside;
  };
  EXPECT_EQ(countInside(0.003), 1000);
  EXPECT_LT(countInside(0.001), 1000) << "chords, not the arc itself";
}

TEST(GetWindingNumber_Entity_Addition, ArcGoesByWhereItIsEntered) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 2 -90..90");
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, arc.EndCoords, {0, 0.1}), 1);
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.EndCoords, arc.StartCoords, {0, 0.1}), -1);
}

TEST(GetWindingNumber_Entity_Addition, LeavingCoordinateOfAnArcIsNotUsed) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 2 -90..90");
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, {77, -5}, {0, 0.1}), 1);
}

TEST(GetWindingNumber_Entity_Addition, ArcEnteredAtNeitherEndIsWalkedFromAngleZero) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 2 90..270");
  // 0 is not the start angle, so the walk runs clockwise over the lower half instead of down the left one.
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, {7, 7}, {}, {0, -0.1}), -1);
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, {7, 7}, {}, {0, 0.1}), 0);
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, {}, {0, -0.1}), 0);
}

TEST(GetWindingNumber_Entity_Addition, ArcOfSweepZeroCountsNothing) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 2 30..390");
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, arc.EndCoords, {0, 0}), 0);
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, arc.EndCoords, {-5, 1}), 0);
}

TEST(GetWindingNumber_Entity_Addition, ArcTurnedByMillionsOfDegreesIsWalkedInAMillionChordsAtMost) {
  TSettingsGuard settings;
  TDXFEntity arc = ParseEntity("A c 0,0 r 2 -90..90");
  arc.radius = 1e13;  // 140 million chords of their own for the half circle
  arc.startAngle = 360e6 - 90;
  arc.endAngle = 360e6 + 90;
  arc.StartCoords = {0, -1e13};
  arc.EndCoords = {0, 1e13};
  for (const double y : {-0.9e13, 0.0, 0.9e13}) {
    EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, arc.EndCoords, {0, y}), 1) << y;
  }
}

// The point lies on the near side of all chords of the arc's own, and on the far side of the middle one of a million.
TEST(GetWindingNumber_Entity_Addition, ArcIsWalkedInMoreThanAMillionChordsWhereItHasThem) {
  TSettingsGuard settings;
  constexpr double kRadius = 1e10;
  TDXFEntity arc = ParseEntity("A c 0,0 r 2 -90..90");
  arc.radius = kRadius;
  arc.StartCoords = {0, -kRadius};
  arc.EndCoords = {0, kRadius};
  const TArcSegments own = GetArcSegmentPoints_Surf(arc, 0.01);
  ASSERT_GT(own.aCount, 2'000'000);
  const auto sagitta = [](double step) { return kRadius * (1 - std::cos(step / 2 * M_PI / 180)); };
  constexpr double kStep = 180.0 / 1'000'000;
  ASSERT_LT(sagitta(own.aStep), sagitta(kStep) / 2);
  const double depth = (sagitta(own.aStep) + sagitta(kStep)) / 2;
  const double y = kRadius * std::sin(kStep / 2 * M_PI / 180);  // of the middle chord of a million, next to the x axis
  const double x = std::sqrt(kRadius * kRadius - y * y);
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, arc.EndCoords, {x - depth, y}), 1);
  EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, arc.EndCoords, {x, y}), 0);
}

TEST(GetWindingNumber_Entity_Addition, OtherTypesCountNothing) {
  TSettingsGuard settings;
  TDXFEntity region = ParseEntity("L 0,0 0,2");
  region.EntityType = DXFRegion;
  EXPECT_EQ(GetWindingNumber_Entity_Addition(region, {0, 0}, {0, 2}, {-1, 1}), 0);
  EXPECT_EQ(GetWindingNumber_Entity_Addition({}, {0, 0}, {0, 2}, {-1, 1}), 0);
}

TEST(GetWindingNumber_Entity_Addition, DegenerateRadiiAreAbsorbed) {
  TSettingsGuard settings;
  for (const double radius :
       {0.0, 0.001, -2.0, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    TDXFEntity arc = ParseEntity("A c 0,0 r 2 90..270");
    arc.radius = radius;
    EXPECT_EQ(GetWindingNumber_Entity_Addition(arc, arc.StartCoords, arc.EndCoords, {50, 0.5}), 0) << radius;
  }
}

}  // namespace
}  // namespace GeometryEngine
