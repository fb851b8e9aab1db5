#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <memory>
#include <string>

#include <gmock/gmock.h>

#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Regions.h"
#include "tests/support/RunWithStack.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::AddRegion;
using support::IsBits;
using support::IsNear;
using support::ParseEntity;
using support::RectangleText;
using ::testing::IsEmpty;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr TGeometryRegionTypesSet kAllTypes = TGeometryRegionTypesSet::All();
constexpr int kDepth = 100000;                   // levels below the root
constexpr std::size_t kSmallStack = 256 * 1024;  // bytes

class TTree_GeometryTest : public ::testing::Test {
 protected:
  // A region of this type with a rectangle of side 1 whose lower left corner is (aPlace, 0).
  TTreeNode_Geometry& Add(double aPlace, TGeometryRegionType aType, TTreeNode_Base* aParent = nullptr) {
    TTreeNode_Geometry& region = AddRegion(fTree, Cell(aPlace), aParent);
    region.RegionType(aType);
    region.UpdateGeometry_Outputs();
    return region;
  }
  static std::string Cell(double aPlace) { return RectangleText(aPlace, 0, aPlace + 1, 1); }
  // A node of another class, entered by a host.
  void AddStranger() {
    std::unique_ptr<TTreeNode_Base> other = std::make_unique<TTreeNode_CoreProperties>(&fTree);
    fTree.AddNewTreeNode(other);
  }

  support::TSettingsGuard fSettings;
  TTree_Geometry fTree;
};

TEST_F(TTree_GeometryTest, HasAGeometryRootAndNoScriptToBeginWith) {
  EXPECT_EQ(fTree.GetCount(), 1);
  EXPECT_NE(fTree.GetRootNode(), nullptr);
  EXPECT_EQ(fTree.RootNode(), fTree.Item(0));
  EXPECT_FALSE(fTree.GeometryFromScripting());
  fTree.GeometryFromScripting(true);
  EXPECT_TRUE(fTree.GeometryFromScripting());
}

TEST_F(TTree_GeometryTest, NodesAreFoundByIndexAndNilElsewhere) {
  TTreeNode_Geometry& region = Add(0, rtWedge);
  AddStranger();
  EXPECT_EQ(fTree.GetNodeFromIndex(1), &region);
  EXPECT_EQ(fTree.Item(1), &region);
  EXPECT_EQ(fTree.Item(2), nullptr) << "not a geometry node";
  EXPECT_EQ(fTree.Item(3), nullptr);
  EXPECT_EQ(fTree.Item(-1), nullptr);
}

TEST_F(TTree_GeometryTest, ARootOfAnotherClassIsAbsorbed) {
  Add(0, rtWedge);
  std::unique_ptr<TTreeNode_Base> other = std::make_unique<TTreeNode_CoreProperties>(&fTree);
  fTree.SetRootNode(other);
  EXPECT_EQ(fTree.GetRootNode(), nullptr);
  EXPECT_THAT(fTree.GetEntities_NoDuplicates(kAllTypes), IsEmpty());
  EXPECT_EQ(fTree.GetEntities_NoDuplicates().size(), 4U);
  EXPECT_EQ(fTree.GetRadius_Maximum(kAllTypes), std::sqrt(2.0));
}

using GetRadius_Minimum = TTree_GeometryTest;

TEST_F(GetRadius_Minimum, AndMaximumSpanTheSelectedOutlines) {
  Add(3, rtWedge);
  Add(7, rtWedge);
  Add(50, rtLiner);
  AddStranger();
  EXPECT_EQ(fTree.GetRadius_Minimum({rtWedge}), 3);
  EXPECT_EQ(fTree.GetRadius_Maximum({rtWedge}), std::sqrt(65.0));
}

TEST_F(GetRadius_Minimum, IsFarOutsideWhenNothingIsSelected) {
  Add(3, rtWedge);
  EXPECT_EQ(fTree.GetRadius_Minimum({rtLiner}), 1e9);
  EXPECT_EQ(fTree.GetRadius_Maximum({rtLiner}), -1e9);
  EXPECT_EQ(fTree.GetRadius_Minimum({}), 1e9);
  EXPECT_EQ(fTree.GetRadius_Maximum({}), -1e9);
}

TEST_F(GetRadius_Minimum, AndMaximumTakeInTheRootKept) {
  Add(3, rtUndefined);
  EXPECT_EQ(fTree.GetRadius_Minimum({rtUndefined}), 0) << "of the root, which has no entities";
  support::AddChain(fTree.RootNode()->Entities(), Cell(20));
  EXPECT_EQ(fTree.GetRadius_Minimum({rtUndefined}), 3);
  EXPECT_EQ(fTree.GetRadius_Maximum({rtUndefined}), std::sqrt(442.0));
}

using UpdateMinMaxValues = TTree_GeometryTest;

TEST_F(UpdateMinMaxValues, SetsTheBoxOfTheSelectedOutlines) {
  Add(3, rtWedge);
  TTreeNode_Geometry& arc = AddRegion(fTree, "A c 8,2 r 1 0..180; A c 8,2 r 1 180..360");
  arc.RegionType(rtWedge);
  Add(50, rtLiner);
  AddStranger();
  fTree.UpdateMinMaxValues({rtWedge});
  EXPECT_EQ(fTree.Min_X(), 3);
  EXPECT_EQ(fTree.Max_X(), 9);
  EXPECT_EQ(fTree.Min_Y(), 0);
  EXPECT_EQ(fTree.Max_Y(), 3);
  EXPECT_EQ(fTree.GetWidth(), 6);
  EXPECT_EQ(fTree.Width(), 6);
  EXPECT_EQ(fTree.GetHeight(), 3);
  EXPECT_EQ(fTree.Height(), 3);
  EXPECT_THAT(fTree.GetCentre(), IsBits(6, 1.5));
  EXPECT_THAT(fTree.Centre(), IsBits(6, 1.5));
}

TEST_F(UpdateMinMaxValues, EmptyTypeSetLeavesTheBoxAtTheInfinities) {
  Add(3, rtWedge);
  fTree.UpdateMinMaxValues({});
  EXPECT_EQ(fTree.Min_X(), kInfinity);
  EXPECT_EQ(fTree.Max_X(), -kInfinity);
  EXPECT_EQ(fTree.Min_Y(), kInfinity);
  EXPECT_EQ(fTree.Max_Y(), -kInfinity);
  EXPECT_EQ(fTree.GetWidth(), -kInfinity);
  EXPECT_EQ(fTree.GetHeight(), -kInfinity);
  EXPECT_TRUE(std::isnan(fTree.GetCentre().x));
}

TEST_F(UpdateMinMaxValues, LeavesTheRootAside) {
  support::AddChain(fTree.RootNode()->Entities(), Cell(-100));
  Add(3, rtWedge);
  fTree.UpdateMinMaxValues(kAllTypes);
  EXPECT_EQ(fTree.Min_X(), 3);
}

TEST_F(UpdateMinMaxValues, FindsTheBoundsOfEachOutlineAfresh) {
  TTreeNode_Geometry& region = Add(3, rtWedge);
  fTree.UpdateMinMaxValues(kAllTypes);
  region.Translate(2, 0);
  fTree.UpdateMinMaxValues(kAllTypes);
  EXPECT_EQ(fTree.Min_X(), 5);
  EXPECT_EQ(fTree.Max_X(), 6);
}

using MirrorTree = TTree_GeometryTest;

TEST_F(MirrorTree, MirrorsEveryRegionButTheRoot) {
  support::AddChain(fTree.RootNode()->Entities(), Cell(3));
  TTreeNode_Geometry& region = Add(3, rtWedge);
  TTreeNode_Geometry& child = Add(5, rtLiner, &region);
  AddStranger();
  fTree.Mirror(ParseEntity("L 0,0 0,1"));
  EXPECT_THAT(fTree.RootNode()->Entities().EntityArray(), IsBits(Cell(3)));
  EXPECT_THAT(region.Centroid(), IsNear(-3.5, 0.5, 1e-12));
  EXPECT_THAT(child.Centroid(), IsNear(-5.5, 0.5, 1e-12));
  EXPECT_THAT(child.RegionCoordinate(), IsNear(-5.5, 0.5, 1e-12));
}

TEST_F(MirrorTree, ALineOfTheTreesOwnChainsIsTakenAsItWas) {
  TTreeNode_Geometry& first = Add(3, rtWedge);
  TTreeNode_Geometry& second = Add(5, rtWedge);
  fTree.Mirror(*first.Entities().Entities_P(1));  // at x = 4
  EXPECT_THAT(first.Centroid(), IsNear(4.5, 0.5, 1e-12));
  EXPECT_THAT(second.Centroid(), IsNear(2.5, 0.5, 1e-12));
}

using GetEntities_NoDuplicates = TTree_GeometryTest;

TEST_F(GetEntities_NoDuplicates, ListsASharedEdgeOnceAndLeavesTheRootOut) {
  support::AddChain(fTree.RootNode()->Entities(), Cell(20));
  Add(3, rtWedge);
  Add(4, rtWedge);
  const char* const expected = "L 3,0 4,0; L 4,0 4,1; L 4,1 3,1; L 3,1 3,0; L 4,0 5,0; L 5,0 5,1; L 5,1 4,1";
  EXPECT_THAT(fTree.GetEntities_NoDuplicates(), IsBits(expected));
  EXPECT_THAT(fTree.GetEntities_NoDuplicates(kAllTypes), IsBits(expected));
}

TEST_F(GetEntities_NoDuplicates, ListsTheOutlineBeforeTheInternalChain) {
  TTreeNode_Geometry& region = AddRegion(fTree, RectangleText(0, 0, 9, 9));
  support::AddChain(region.Entities_Internal(), RectangleText(4, 4, 5, 5));
  region.UpdateGeometry_Outputs();
  const std::string expected = RectangleText(0, 0, 9, 9) + "; " + RectangleText(4, 4, 5, 5);
  EXPECT_THAT(fTree.GetEntities_NoDuplicates(), IsBits(expected));
  EXPECT_THAT(fTree.GetEntities_NoDuplicates(kAllTypes), IsBits(expected));
}

TEST_F(GetEntities_NoDuplicates, WithoutTypesFollowsTheIndexAndTakesInvalidRegionsToo) {
  TTreeNode_Geometry& first = Add(0, rtWedge);
  TTreeNode_Geometry& second = Add(2, rtWedge);
  Add(4, rtWedge, &first);
  second.RegionPolyType(ptPoint);
  AddStranger();
  EXPECT_THAT(fTree.GetEntities_NoDuplicates(), IsBits(Cell(0) + "; " + Cell(2) + "; " + Cell(4)));
}

TEST_F(GetEntities_NoDuplicates, OfTypesWalksARegionThenItsChildrenThenItsSibling) {
  TTreeNode_Geometry& first = Add(0, rtWedge);
  Add(2, rtWedge);
  TTreeNode_Geometry& child = Add(4, rtWedge, &first);
  Add(6, rtWedge, &child);
  Add(8, rtWedge, &first);
  EXPECT_THAT(fTree.GetEntities_NoDuplicates({rtWedge}),
              IsBits(Cell(0) + "; " + Cell(4) + "; " + Cell(6) + "; " + Cell(8) + "; " + Cell(2)));
}

TEST_F(GetEntities_NoDuplicates, OfTypesWalksBelowRegionsThatAreNotSelected) {
  TTreeNode_Geometry& liner = Add(0, rtLiner);
  liner.RegionArea_Base(0);
  Add(2, rtWedge, &liner);
  EXPECT_THAT(fTree.GetEntities_NoDuplicates({rtWedge}), IsBits(Cell(2)));
  EXPECT_THAT(fTree.GetEntities_NoDuplicates({}), IsEmpty());
}

TEST_F(GetEntities_NoDuplicates, OfTypesPassesOverSelectedPointsAndInvalidRegionsWithAllBelow) {
  TTreeNode_Geometry& point = Add(0, rtWedge);
  Add(2, rtWedge, &point);
  point.RegionPolyType(ptPoint);
  TTreeNode_Geometry& invalid = Add(4, rtWedge);
  Add(6, rtWedge, &invalid);
  invalid.RegionArea_Base(0);
  TTreeNode_Geometry& polyline = Add(8, rtWedge);
  Add(10, rtWedge, &polyline);
  polyline.RegionPolyType(ptPolyLine);
  EXPECT_THAT(fTree.GetEntities_NoDuplicates({rtWedge}), IsBits(Cell(8) + "; " + Cell(10)));
}

// Each new node takes the chain built so far below it, so that the deepest region ends at the bottom.
TTreeNode_Geometry& BuildChainOfNodes(TTree_Geometry& aTree) {
  TTreeNode_Geometry& deepest = AddRegion(aTree, RectangleText(0, 0, 1, 1));
  deepest.RegionType(rtConductor);
  deepest.UpdateGeometry_Outputs();
  TTreeNode_Base* top = &deepest;
  for (int depth = 1; depth < kDepth; ++depth) {
    TTreeNode_Base& node = support::AddNode(aTree);
    aTree.MoveTreeNode_Recursive(top, &node);
    top = &node;
  }
  return deepest;
}

int DepthOf(const TTreeNode_Base& aNode) {
  int depth = 0;
  for (const TTreeNode_Base* node = aNode.GetParent(); node != nullptr; node = node->GetParent()) ++depth;
  return depth;
}

TEST_F(TTree_GeometryTest, ATreeOf100000LevelsIsBuiltWalkedAndDestroyedOnASmallStack) {
  support::RunWithStack(kSmallStack, [] {
    TTree_Geometry tree;
    const TTreeNode_Geometry& deepest = BuildChainOfNodes(tree);
    EXPECT_EQ(DepthOf(deepest), kDepth);
    EXPECT_THAT(tree.GetEntities_NoDuplicates({rtConductor}), IsBits(Cell(0)));
    EXPECT_EQ(tree.GetEntities_NoDuplicates().size(), 4U);
    tree.UpdateMinMaxValues({rtConductor});
    EXPECT_EQ(tree.Width(), 1);
    tree.Mirror(ParseEntity("L 0,0 0,1"));
    EXPECT_THAT(deepest.Centroid(), IsNear(-0.5, 0.5, 1e-12));
  });
}

}  // namespace
}  // namespace GeometryEngine
