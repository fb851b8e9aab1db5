// Coordinates at the ends of the range of numbers, and drawings in other units than millimetres.

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "tests/everything/Observations.h"
#include "tests/support/Detection.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using enum Maindataenum::TInputFields;

namespace {

TEntityArray Scaled(TEntityArray aEntities, double aFactor) {
  for (TDXFEntity& entity : aEntities) {
    for (TEntityCoordinate* point : {&entity.StartCoords, &entity.EndCoords, &entity.CentreCoords}) {
      *point = {point->x * aFactor, point->y * aFactor};
    }
    entity.radius *= aFactor;
  }
  return aEntities;
}

struct TFound {
  TIndex regions = 0;
  double area = 0;  ///< of the anticlockwise ones together
};

TFound Detect(const TEntityArray& aDrawing) {
  TEntityStorage drawing;
  drawing.AddEntities(aDrawing);
  TEntityBaseClass driver;
  driver.DetermineInterceptions(&drawing);
  driver.DetermineRegions(driver.CoordinateTree(), 1);
  driver.IdentifySubRegions(driver.CoordinateTree());
  driver.RemoveDuplicatedSubRegions();
  TTree_Geometry tree;
  TFound found;
  for (const TTreeNode* region : driver.RegionTree().RootNode()->Children()) {
    auto node = tree.CreateTreeNode();
    auto* handed = TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node));
    driver.AddRegionEntities(handed, found.regions);
    handed->UpdateGeometry_Outputs();
    ++found.regions;
    found.area += region->GaussArea();
  }
  return found;
}

// Squares in rows, four lines each.
TEntityArray Squares(int aCount) {
  TEntityArray drawing;
  for (int i = 0; i < aCount; ++i) {
    const double x = 10 * (i % 16);
    const double y = 10 * (i / 16);
    const double size = 4 + 0.01 * i;
    drawing.push_back(CreateEntity_Line(x, y, x + size, y));
    drawing.push_back(CreateEntity_Line(x + size, y, x + size, y + size));
    drawing.push_back(CreateEntity_Line(x + size, y + size, x, y + size));
    drawing.push_back(CreateEntity_Line(x, y + size, x, y));
  }
  return drawing;
}

class Coordinates : public testing::TestWithParam<double> {
 protected:
  support::TSettingsGuard fSettings;
};

}  // namespace

TEST_P(Coordinates, AtTheEndsOfTheRangeAreDetectedToTheEnd) {
  const TEntityArray drawing = everything::MixedDrawing();
  const TFound usual = Detect(drawing);
  EXPECT_LE(Detect(Scaled(drawing, GetParam())).regions, usual.regions);
  fSettings.With(ifLinearTolerance, 1e-4 * GetParam());
  EXPECT_LE(Detect(Scaled(drawing, GetParam())).regions, 4 * usual.regions);
  TEntityStorage chain;
  chain.AddEntities(Scaled(everything::RoundedChain(1, 1, 4), GetParam()));
  chain.StartCoordinate(chain.GetStartCoordinate());
  chain.CalculateMinMaxValues_RT();
  chain.GetCentroid();
  chain.PointInsideEntities({GetParam(), GetParam()}, true);
  chain.Offset(0.1 * GetParam());
  chain.DuplicateAlongAxis(3, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Factors, Coordinates,
                         testing::Values(5e-324, 1e-310, 1e-300, 1e-150, 1e-9, 1e9, 1e12, 1e150, 1e300, 1e308,
                                         std::numeric_limits<double>::infinity(),
                                         std::numeric_limits<double>::quiet_NaN()));

// The tolerances can be scaled with the drawing; the constants of docs/numerics.md cannot.
TEST(DrawingUnits, LinesGiveTheSameRegionsInMetresAndMicrometresUnderScaledTolerances) {
  const TEntityArray drawing = {CreateEntity_Line(0, 0, 40, 0),   CreateEntity_Line(40, 0, 40, 30),
                                CreateEntity_Line(40, 30, 0, 30), CreateEntity_Line(0, 30, 0, 0),
                                CreateEntity_Line(-5, 9, 50, 13), CreateEntity_Line(15, -5, 19, 50),
                                CreateEntity_Line(90, 0, 99, 0)};
  support::TSettingsGuard settings;
  const TFound millimetres = Detect(drawing);
  ASSERT_EQ(millimetres.regions, 4);
  for (const double factor : {1e-3, 1e3}) {
    settings.With(ifLinearTolerance, 1e-4 * factor);
    const TFound scaled = Detect(Scaled(drawing, factor));
    EXPECT_EQ(scaled.regions, millimetres.regions) << factor;
    EXPECT_NEAR(scaled.area / (factor * factor), millimetres.area, 1e-6) << factor;
  }
}

TEST(DrawingUnits, ConstantsAreForMillimetresSoThatSmallArcsAreCoarseInMetres) {
  // An arc of 1 mm in metres is smaller than the 0.01 that a chord may stray from it: three chords are all it gets.
  TEntityStorage chain;
  chain.AddEntity(CreateEntity_Arc(0, 0, 0.001, 0, 180));
  EXPECT_EQ(chain.GetVertices_Surf(false).size(), 3U);
  TEntityStorage same;
  same.AddEntity(CreateEntity_Arc(0, 0, 1, 0, 180));
  EXPECT_GT(same.GetVertices_Surf(false).size(), 10U);
}

// A full circle as one arc has sweep 0 and no area; it takes no other region with it, beside it or round it. Where a
// walk begins may change, and with it the last digits of a centroid.
TEST(SweepOfZero, LosesItsOwnLoopAndChangesNoOther) {
  const support::TSettingsGuard settings;
  const TEntityArray drawing = Squares(250);
  ASSERT_EQ(drawing.size(), 1000U);
  const std::vector<support::TLoop> without = support::DetectLoops(drawing, 0);
  ASSERT_EQ(without.size(), 500U);
  for (const TEntityCoordinate centre : {TEntityCoordinate{2, 2}, {-50, 60}, {500, 60}}) {
    TEntityArray with = drawing;
    with.insert(with.begin(), CreateEntity_Arc(centre.x, centre.y, 1, 0, 360));
    EXPECT_THAT(support::DetectLoops(with, 0), support::AreSameLoops(without, 1e-9)) << centre.x;
  }
}

// Points 0.9 tolerances apart: which of them merge depends on the order, and the same order gives the same always.
TEST(ToleranceChains, GiveTheSameForTheSameOrder) {
  const TEntityArray drawing = everything::ToleranceChain();
  const TFound first = Detect(drawing);
  const TFound second = Detect(drawing);
  EXPECT_EQ(first.regions, second.regions);
  EXPECT_EQ(first.area, second.area);
}
