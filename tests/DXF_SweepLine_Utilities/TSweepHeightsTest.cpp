#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TSweepHeights.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/CircleTouching.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::THeights;
using detail::TSweepHeights;
using support::ParseEntities;
using support::ParseEntity;
using enum Maindataenum::TInputFields;

namespace {

/// Entities with much in common: places, radii and steps that make them touch, end on each other and stand upright.
class TRandomEntities {
 public:
  TRandomEntities(std::uint32_t aSeed, double aTolerance, double aOrigin)
      : fRandom(aSeed), fTolerance(aTolerance), fOrigin(aOrigin) {}

  TDXFEntity Next() {
    if (Choice(2) == 0) return TDXFEntity::Line(Point(), Point());
    if (Choice(3) != 0) return CreateEntity_Arc(Place(), Place(), Radius(), 15.0 * Choice(25), 15.0 * Choice(25));
    return TDXFEntity::Arc(Point(), Point(), Point(), Radius(), 15.0 * Choice(25), 15.0 * Choice(25));
  }

 private:
  int Choice(int aCount) { return static_cast<int>(fRandom() % static_cast<std::uint32_t>(aCount)); }
  /// A few whole numbers, many of them off by some halves of the tolerance.
  double Place() { return fOrigin + Choice(5) + (Choice(2) == 0 ? 0 : (Choice(9) - 4) * fTolerance / 2); }
  double Radius() { return Choice(8) == 0 ? -1.0 * Choice(2) : 0.5 * Choice(7) + (Choice(3) - 1) * fTolerance / 2; }
  TEntityCoordinate Point() {
    const double x = Place();
    return {x, Place()};
  }

  std::mt19937 fRandom;
  double fTolerance;
  double fOrigin;
};

struct TCounts {
  int fMeeting = 0;
  int fApart = 0;
};

bool IsLeftBehind(const TDXFEntity& aActive, const TDXFEntity& aEntering) {
  return ValueMoreThan_DXFTolerance(GetLeftMostCoordinate(aEntering).x, GetRightMostCoordinate(aActive).x);
}

void HoldAgainstPairCheck(const TDXFEntity& aEntering, const TDXFEntity& aActive, TCounts& aCounts) {
  if (GetLeftMostCoordinate(aActive).x > GetLeftMostCoordinate(aEntering).x) return;
  if (IsLeftBehind(aActive, aEntering)) return;
  const TEntityArray both{aActive, aEntering};
  const TSweepHeights heights(both);
  const bool meets = heights.GetHeights(aEntering)->Meets(*heights.GetHeights(aActive));
  const bool touches =
      aEntering.EntityType == DXFArc && aActive.EntityType == DXFArc && detail::AreCirclesTouching(aEntering, aActive);
  if (touches) {
    EXPECT_TRUE(heights.GetHeights_Circle(aEntering).Meets(heights.GetHeights_Circle(aActive)))
        << support::ToText(both);
  }
  TInterceptionPoints points;
  const bool reports = CheckIntercepts(aEntering, aActive, points);
  if (reports) {
    EXPECT_TRUE(meets || touches) << support::ToText(both);
  }
  (reports ? aCounts.fMeeting : aCounts.fApart) += reports || !(meets || touches) ? 1 : 0;
}

}  // namespace

TEST(TSweepHeights, LetNoPairApartThatReportsAPoint) {
  support::TSettingsGuard settings;
  TCounts counts;
  for (const double tolerance : {1e-4, 1e-2, 0.3, 1e-9}) {
    for (const double angleTolerance : {1e-4, 20.0, 400.0}) {
      for (const double origin : {0.0, 1e4, -3e6}) {
        settings.With(ifLinearTolerance, tolerance).With(ifAngleTolerance, angleTolerance);
        TRandomEntities entities(static_cast<std::uint32_t>(std::abs(origin) + 1 / tolerance), tolerance, origin);
        for (int i = 0; i < 1500; ++i) {
          const TDXFEntity entering = entities.Next();
          HoldAgainstPairCheck(entering, entities.Next(), counts);
        }
      }
    }
  }
  EXPECT_GT(counts.fMeeting, 2000);
  EXPECT_GT(counts.fApart, 200);
}

TEST(TSweepHeights, OfASmallPieceOfALargeCircleStayNearThePiece) {
  support::TSettingsGuard settings;
  const TEntityArray drawing = ParseEntities("A c 0,0 r 1000 30..31; A c 0,0 r 1000 200..80");
  const TSweepHeights heights(drawing);
  const THeights piece = *heights.GetHeights(drawing[0]);
  EXPECT_NEAR(piece.fLow, 500, 0.01);
  EXPECT_NEAR(piece.fHigh, 1000 * std::sin(31 * std::acos(-1) / 180), 0.01);
  EXPECT_NEAR(heights.GetHeights(drawing[1])->fLow, -1000, 0.01);
  EXPECT_NEAR(heights.GetHeights(drawing[1])->fHigh, 1000 * std::sin(80 * std::acos(-1) / 180), 0.01);
  EXPECT_NEAR(heights.GetHeights_Circle(drawing[0]).fHigh, 1000, 0.01);
}

TEST(TSweepHeights, OfASteepLineTakeInWhereItWouldBeBesideItsEnds) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0.001);
  const TEntityArray drawing = ParseEntities("L 0,0 0.002,100; L 0,0 100,0.002; L 0,0 0,100");
  const TSweepHeights heights(drawing);
  EXPECT_GT(heights.GetHeights(drawing[0])->fHigh, 200);
  EXPECT_LT(heights.GetHeights(drawing[1])->fHigh, 0.1);
  EXPECT_LT(heights.GetHeights(drawing[2])->fHigh, 100.1);
}

TEST(TSweepHeights, AreUnknownForNumbersOutOfProportion) {
  support::TSettingsGuard settings;
  const TSweepHeights heights({});
  for (const char* entity : {"L 0,0 nan,1", "L 0,inf 1,1", "L 0,0 1e80,1", "A c nan,0 r 1 0..90 from 1,0 to 0,1",
                             "A c 0,0 r inf 0..90 from 1,0 to 0,1", "A c 0,0 r 1 0..nan from 1,0 to 0,1"}) {
    EXPECT_FALSE(heights.GetHeights(ParseEntity(entity))) << entity;
  }
  EXPECT_TRUE(heights.GetHeights(ParseEntity("L 0,0 1,1")));
  settings.With(ifLinearTolerance, 1e300);
  EXPECT_FALSE(TSweepHeights({}).GetHeights(ParseEntity("L 0,0 1,1")));
}

}  // namespace GeometryEngine
