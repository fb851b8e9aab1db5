#include "tests/support/Detection.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"

namespace GeometryEngine::support {

namespace {

constexpr double kRounding = 1e-9;  // relative to the area
constexpr double kGrid = 1e-6;      // drawing units, and their squares

bool IsClose(double aLeft, double aRight, double aEps) {
  return aLeft == aRight || std::abs(aLeft - aRight) <= aEps;
}

bool IsClose(const TEntityCoordinate& aLeft, const TEntityCoordinate& aRight, double aEps) {
  return IsClose(aLeft.x, aRight.x, aEps) && IsClose(aLeft.y, aRight.y, aEps);
}

TLoop GetLoop(const TEntityTree& aRegionTree, const TTreeNode& aRegion) {
  TEntityStorage chain;
  TLoop loop;
  for (const TTreeNode* child : aRegion.Children()) {
    chain.AddEntity(aRegionTree.GetNodeEntity(*child));
    loop.length += aRegionTree.GetNodeEntity(*child).EntityLength();
  }
  chain.CalculateMinMaxValues();
  loop.count = chain.Count();
  loop.area = aRegion.GaussArea();
  loop.low = {chain.Min_X(), chain.Min_Y()};
  loop.high = {chain.Max_X(), chain.Max_Y()};
  loop.centroid = aRegion.RegionCentroid();
  return loop;
}

// Numbers are compared on a grid, so that the order doesn't hang on rounding.
bool ComesBefore(const TLoop& aLeft, const TLoop& aRight) {
  const auto key = [](const TLoop& loop) {
    const auto onGrid = [](double number) { return std::round(number / kGrid); };
    return std::make_tuple(onGrid(loop.area), loop.count, onGrid(loop.low.x), onGrid(loop.low.y),
                           onGrid(loop.centroid.x), onGrid(loop.centroid.y));
  };
  return key(aLeft) < key(aRight);
}

}  // namespace

TDetection::TDetection(std::string_view aDrawing) : TDetection(ParseEntities(aDrawing)) {}

TDetection::TDetection(const TEntityArray& aDrawing) {
  drawing.AddEntities(aDrawing);
  driver.DetermineInterceptions(&drawing);
}

void RunEveryPass(TEntityBaseClass& aDriver, const TEntityArray& aDrawing, const std::function<void()>& aBetween) {
  TEntityStorage drawing;
  drawing.AddEntities(aDrawing);
  aDriver.DetermineInterceptions(&drawing);
  aBetween();
  aDriver.DetectOrphanEntities(aDriver.CoordinateTree());
  aBetween();
  aDriver.DetermineInterceptions(&drawing);
  aBetween();
  aDriver.DetermineRegions(aDriver.CoordinateTree(), 0);
  aBetween();
  aDriver.IdentifySubRegions(aDriver.CoordinateTree());
  aBetween();
  aDriver.RemoveDuplicatedSubRegions();
  TTree_Geometry tree;
  for (TIndex i = 0; i < aDriver.RegionTree().RootNode()->Count(); ++i) {
    auto node = tree.CreateTreeNode();
    auto* region = TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node));
    aBetween();
    aDriver.AddRegionEntities(region, i);
    aBetween();
    region->UpdateGeometry_Outputs();
    aBetween();
    region->SetRegionName("Region");
  }
}

void PrintTo(const TLoop& aLoop, std::ostream* aOut) {
  *aOut << aLoop.count << " entities, area " << ToText(aLoop.area) << ", length " << ToText(aLoop.length) << ", box "
        << ToText(aLoop.low) << " to " << ToText(aLoop.high) << ", centroid " << ToText(aLoop.centroid);
}

std::vector<TLoop> GetLoops(const TEntityBaseClass& aDriver) {
  std::vector<TLoop> loops;
  for (const TTreeNode* region : aDriver.RegionTree().RootNode()->Children()) {
    loops.push_back(GetLoop(aDriver.RegionTree(), *region));
  }
  std::ranges::sort(loops, ComesBefore);
  return loops;
}

std::vector<TLoop> DetectLoops(const TEntityArray& aDrawing, std::int32_t aRegionType) {
  TDetection detection(aDrawing);
  detection.driver.DetermineRegions(detection.driver.CoordinateTree(), aRegionType);
  return GetLoops(detection.driver);
}

std::vector<TLoop> DetectLoops(std::string_view aDrawing, std::int32_t aRegionType) {
  return DetectLoops(ParseEntities(aDrawing), aRegionType);
}

std::vector<TLoop> DetectChains(std::string_view aDrawing) {
  TDetection detection(aDrawing);
  detection.driver.DetectOrphanEntities(detection.driver.CoordinateTree());
  return GetLoops(detection.driver);
}

testing::Matcher<const TLoop&> IsLoop(TIndex aCount, double aArea) {
  return testing::AllOf(
      testing::Field("count", &TLoop::count, aCount),
      testing::Field("area", &TLoop::area, testing::DoubleNear(aArea, kRounding * std::max(1.0, std::abs(aArea)))));
}

bool IsSameLoop(const TLoop& aLeft, const TLoop& aRight, double aEps) {
  return aLeft.count == aRight.count && IsClose(aLeft.area, aRight.area, aEps) &&
         IsClose(aLeft.length, aRight.length, aEps) && IsClose(aLeft.low, aRight.low, aEps) &&
         IsClose(aLeft.high, aRight.high, aEps) && IsClose(aLeft.centroid, aRight.centroid, aEps);
}

}  // namespace GeometryEngine::support
