#include "GeometryEngine/DXF_Regions_TreeClasses/TDetectedRegion_Toroid.h"

#include <algorithm>
#include <limits>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

using namespace GeometryEngine;

namespace {

TDetectedRegion_Toroid AddRegion(TEntityTree& aTree, double aArea) {
  TTreeNode* node = aTree.AddTreeNode_ToRoot();
  node->GaussArea(aArea);
  return {node, false};
}

std::int32_t Compare(const TDetectedRegion_Toroid& aLeft, const TDetectedRegion_Toroid& aRight) {
  return TTreeNodeComparer_Area{}.Compare(aLeft, aRight);
}

}  // namespace

TEST(TTreeNodeComparer_Area, SortsTheLargestSignedAreaFirst) {
  TEntityTree tree("Regions");
  std::vector<TDetectedRegion_Toroid> regions{AddRegion(tree, 5), AddRegion(tree, -2), AddRegion(tree, 7)};
  std::ranges::sort(regions, [](const auto& left, const auto& right) { return Compare(left, right) < 0; });
  std::vector<double> areas;
  for (const TDetectedRegion_Toroid& region : regions) areas.push_back(region.DetectedTreeNode->GaussArea());
  EXPECT_THAT(areas, testing::ElementsAre(7, 5, -2));
}

TEST(TTreeNodeComparer_Area, AnswersMinusOneOneAndZero) {
  TEntityTree tree("Regions");
  EXPECT_EQ(Compare(AddRegion(tree, 2), AddRegion(tree, 1)), -1);
  EXPECT_EQ(Compare(AddRegion(tree, 1), AddRegion(tree, 2)), 1);
  EXPECT_EQ(Compare(AddRegion(tree, 2), AddRegion(tree, 2)), 0);
}

TEST(TTreeNodeComparer_Area, KnowsNoTolerance) {
  TEntityTree tree("Regions");
  EXPECT_EQ(Compare(AddRegion(tree, 1 + 1e-9), AddRegion(tree, 1)), -1);
}

TEST(TTreeNodeComparer_Area, AreasWithoutADifferenceCompareEqual) {
  TEntityTree tree("Regions");
  EXPECT_EQ(Compare(AddRegion(tree, std::numeric_limits<double>::quiet_NaN()), AddRegion(tree, 1)), 0);
}

TEST(TTreeNodeComparer_Area, TakesARecordWithoutANodeAsAreaZero) {
  TEntityTree tree("Regions");
  EXPECT_EQ(Compare({}, {}), 0);
  EXPECT_EQ(Compare({}, AddRegion(tree, -1)), -1);
}

TEST(TDetectedRegion_Toroid, StartsUnused) {
  EXPECT_FALSE(TDetectedRegion_Toroid{}.UsedInToroid);
}
