// The nesting of all regions at once against the containment of each pair, on random regions: many of them at heights
// and with gaps at which winding numbers have their oddities.

#include <cmath>
#include <limits>
#include <random>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_Detection/Containment.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using Maindataenum::TInputFields;

namespace {

constexpr double kTolerance = 1e-4;

// Regions made by hand, on a lattice with steps of half a tolerance, so that heights one tolerance apart are common.
class TRandomRegions {
 public:
  explicit TRandomRegions(std::uint32_t aSeed) : fEngine(aSeed) {
    fDriver.CoordinateTree().pEntityStorage(&fPieces);
    fDriver.RegionTree().pEntityStorage(&fPieces);
    const int regions = 2 + Below(8);
    for (int i = 0; i < regions; ++i) AddRegion();
  }

  TEntityBaseClass& Driver() { return fDriver; }
  int Below(int aEnd) { return static_cast<int>(fEngine() % static_cast<unsigned>(aEnd)); }

 private:
  double Nudge() { return Below(3) == 0 ? 0.5 * kTolerance * (Below(7) - 3) + Hair() : Hair(); }
  double Hair() { return Below(4) == 0 ? 1e-13 * (Below(5) - 2) : 0; }
  double Coordinate() { return Below(9) + Nudge(); }

  void AddRegion() {
    TTreeNode* region = fDriver.RegionTree().AddTreeNode_ToRoot();
    const int corners = 2 + Below(4);
    const TEntityCoordinate start{Coordinate(), Coordinate()};
    region->Coordinates(start);
    TEntityCoordinate from = start;
    for (int i = 0; i < corners; ++i) {
      const TEntityCoordinate to = i + 1 == corners ? start : TEntityCoordinate{Coordinate(), Coordinate()};
      AddPiece(*region, from, to);
      from = to;
    }
    if (Below(40) == 0) fPieces.EntityArray().back().StartCoords.y = std::numeric_limits<double>::quiet_NaN();
    if (Below(40) == 0) fPieces.EntityArray().back().EndCoords.x = 1e200;
    if (Below(40) == 0) fPieces.EntityArray().back().EntityType = DXFNoLineType;
  }

  void AddPiece(TTreeNode& aRegion, const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
    fDriver.RegionTree().AddTreeNode(&aRegion)->EntityIndex(fPieces.Count());
    const bool turned = Below(2) == 0;
    const TEntityCoordinate& start = turned ? aTo : aFrom;
    const TEntityCoordinate& end = turned ? aFrom : aTo;
    if (Below(3) > 0) {
      fPieces.AddEntity(TDXFEntity::Line(start, end));
    } else {
      fPieces.AddEntity(HalfCircle(start, end));
    }
  }

  // The computed ends of the arc differ from its stored ones by rounding, at times by much more.
  TDXFEntity HalfCircle(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd) {
    const TEntityCoordinate centre = (aStart + aEnd) / 2;
    const double radius = std::hypot(aStart.x - centre.x, aStart.y - centre.y) + (Below(4) == 0 ? Nudge() : 0);
    const double angle = std::atan2(aStart.y - centre.y, aStart.x - centre.x) * 180 / 3.141592653589793;
    const double from = Below(5) == 0 ? angle + 360 * (Below(5) - 2) : angle;
    return TDXFEntity::Arc(aStart, aEnd, centre, radius, from, Below(9) == 0 ? from : angle + 180);
  }

  std::mt19937 fEngine;
  TEntityBaseClass fDriver;
  TEntityStorage fPieces;
};

std::vector<TIntegerArray> NestedPairByPair(TEntityBaseClass& aDriver) {
  const TTreeNode& root = *aDriver.RegionTree().RootNode();
  std::vector<TIntegerArray> nested(static_cast<std::size_t>(root.Count()));
  for (TIndex i = 0; i < root.Count(); ++i) {
    for (TIndex j = 0; j < root.Count(); ++j) {
      const bool contained = RegionContains_SubRegion(aDriver.CoordinateTree(), root.GetNode(i), root.GetNode(j));
      if (i != j && contained) nested[static_cast<std::size_t>(j)].push_back(i);
    }
  }
  return nested;
}

std::vector<TIntegerArray> NestedAtOnce(TEntityBaseClass& aDriver) {
  aDriver.IdentifySubRegions(aDriver.CoordinateTree());
  std::vector<TIntegerArray> nested;
  for (const TTreeNode* region : aDriver.RegionTree().RootNode()->Children()) nested.push_back(region->SubRegions());
  return nested;
}

}  // namespace

TEST(NestingEquality, RegionsListWhatEachPairAnswers) {
  const support::TSettingsGuard settings;
  std::size_t nestings = 0;
  for (std::uint32_t seed = 0; seed < 4000; ++seed) {
    TRandomRegions regions(seed);
    const double tolerances[] = {kTolerance, kTolerance, kTolerance, 1, 0, std::numeric_limits<double>::infinity()};
    Kelvaralinks::dataStore.SetValue(TInputFields::ifLinearTolerance, tolerances[regions.Below(6)]);
    const std::vector<TIntegerArray> expected = NestedPairByPair(regions.Driver());
    ASSERT_EQ(NestedAtOnce(regions.Driver()), expected) << seed;
    for (const TIntegerArray& nested : expected) nestings += nested.size();
  }
  EXPECT_GT(nestings, 300U) << "of all regions together";
}
