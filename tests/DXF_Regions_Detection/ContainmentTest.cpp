#include "GeometryEngine/DXF_Regions_Detection/Containment.h"

#include <limits>

#include <gmock/gmock.h>

#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// A coordinate tree that carries the pieces, and a region tree filled by hand.
class TRegionsTest : public testing::Test {
 protected:
  TRegionsTest() {
    fCoordinateTree.pEntityStorage(&fPieces);
    fRegionTree.pEntityStorage(&fPieces);
  }

  /// A region that walks the pieces of the text in their order.
  TTreeNode* Add(std::string_view aPieces, const TEntityCoordinate& aStart,
                 TTravelDirection aDirection = Travel_AntiClockwise) {
    TTreeNode* region = fRegionTree.AddTreeNode_ToRoot();
    region->Coordinates(aStart);
    region->TravelDirection(aDirection);
    TIndex index = fPieces.Count();
    support::AddText(fPieces, aPieces);
    for (; index < fPieces.Count(); ++index) fRegionTree.AddTreeNode(region)->EntityIndex(index);
    return region;
  }
  TTreeNode* AddSquare(double aLow, double aHigh) {
    const std::string low = support::ToText(aLow);
    const std::string high = support::ToText(aHigh);
    TTreeNode* square =
        Add("L " + low + "," + low + " " + high + "," + low + "; L " + high + "," + low + " " + high + "," + high +
                "; L " + high + "," + high + " " + low + "," + high + "; L " + low + "," + high + " " + low + "," + low,
            {aLow, aLow});
    square->RegionCentroid({(aLow + aHigh) / 2, (aLow + aHigh) / 2});
    return square;
  }
  TTreeNode* AddSquare_Clockwise(double aLow, double aHigh) {
    TTreeNode* square = AddSquare(aLow, aHigh);
    square->TravelDirection(Travel_Clockwise);
    return square;
  }
  std::int32_t Winding(const TTreeNode* aRegion, const TEntityCoordinate& aPoint) const {
    return CalculateWindingNumber(fCoordinateTree, aRegion, aPoint);
  }
  TTreeNode* Identify(const TEntityCoordinate& aPoint) {
    return IdentifyRegionFromCoordinate(fRegionTree, fCoordinateTree, aPoint, fIndex);
  }
  bool Generate(const TTreeNode* aWalked, const TTreeNode* aTested, double aRadius_Min = 0,
                double aRadius_Max = kInfinity) const {
    return GenerateRegionPoint(fCoordinateTree, aWalked, aTested, aRadius_Min, aRadius_Max, 0, 90);
  }

  support::TSettingsGuard fSettings;
  TEntityStorage fPieces;
  TEntityTree fCoordinateTree{"Coordinates_SlotPole"};
  TEntityTree fRegionTree{"Regions"};
  TIndex fIndex = 77;
};

using CalculateWindingNumberTest = TRegionsTest;
using RegionContains_SubRegionTest = TRegionsTest;
using IdentifyRegionFromCoordinateTest = TRegionsTest;
using DetermineClockwiseSubRegionsTest = TRegionsTest;
using GenerateRegionPointTest = TRegionsTest;

}  // namespace

TEST_F(CalculateWindingNumberTest, IsOneInsideAnAnticlockwiseLoopAndZeroOutside) {
  const TTreeNode* square = AddSquare(0, 4);
  EXPECT_EQ(Winding(square, {2, 1}), 1);
  EXPECT_EQ(Winding(square, {5, 1}), 0);
  EXPECT_EQ(Winding(square, {-1, 1}), 0);
}

TEST_F(CalculateWindingNumberTest, IsMinusOneInsideAClockwiseLoop) {
  const TTreeNode* square = Add("L 0,0 0,4; L 0,4 4,4; L 4,4 4,0; L 4,0 0,0", {0, 0});
  EXPECT_EQ(Winding(square, {2, 1}), -1);
}

TEST_F(CalculateWindingNumberTest, DirectionOfTheRecordsIsFree) {
  const TTreeNode* square = Add("L 4,0 0,0; L 4,0 4,4; L 0,4 4,4; L 0,4 0,0", {0, 0});
  EXPECT_EQ(Winding(square, {2, 1}), 1);
}

TEST_F(CalculateWindingNumberTest, FollowsArcs) {
  const TTreeNode* circle = Add("A c 0,0 r 5 0..180 from 5,0 to -5,0; A c 0,0 r 5 180..360 from -5,0 to 5,0", {5, 0});
  EXPECT_EQ(Winding(circle, {0, 4.9}), 1);
  EXPECT_EQ(Winding(circle, {4, 4}), 0);
}

TEST_F(CalculateWindingNumberTest, LoopWalkedTwiceCountsTwice) {
  const TTreeNode* twice =
      Add("L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0", {0, 0});
  EXPECT_EQ(Winding(twice, {2, 1}), 2);
}

TEST_F(CalculateWindingNumberTest, OfNilOrOfARegionWithoutEntitiesIsZero) {
  EXPECT_EQ(Winding(nullptr, {0, 0}), 0);
  EXPECT_EQ(Winding(Add("", {0, 0}), {0, 0}), 0);
}

TEST_F(CalculateWindingNumberTest, IsZeroWithoutAStorage) {
  const TTreeNode* square = AddSquare(0, 4);
  fCoordinateTree.pEntityStorage(nullptr);
  EXPECT_EQ(Winding(square, {2, 1}), 0);
}

TEST_F(RegionContains_SubRegionTest, HoldsForALoopInsideAnother) {
  const TTreeNode* outer = AddSquare(0, 10);
  const TTreeNode* inner = AddSquare(2, 4);
  EXPECT_TRUE(RegionContains_SubRegion(fCoordinateTree, inner, outer));
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, outer, inner));
}

TEST_F(RegionContains_SubRegionTest, FailsWhenOneStartPointLiesOutside) {
  const TTreeNode* outer = AddSquare(0, 10);
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, AddSquare(8, 12), outer));
}

TEST_F(RegionContains_SubRegionTest, LooksAtStoredStartPointsOnly) {
  const TTreeNode* outer = AddSquare(0, 10);
  EXPECT_TRUE(RegionContains_SubRegion(fCoordinateTree, Add("L 5,5 50,50; L 6,6 50,50", {5, 5}), outer));
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, Add("L 5,5 50,50; L 50,50 6,6", {5, 5}), outer));
}

TEST_F(RegionContains_SubRegionTest, FacesThatShareAnEdgeHoldEachOtherNot) {
  const TTreeNode* left = AddSquare(0, 4);
  const TTreeNode* right = Add("L 4,0 8,0; L 8,0 8,4; L 8,4 4,4; L 4,4 4,0", {4, 0});
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, left, right));
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, right, left));
}

// The winding count takes a point on the lower side as inside and one on any other side as outside.
TEST_F(RegionContains_SubRegionTest, LoopThatTouchesFromInsideIsHeldOnTheLowerSideOnly) {
  const TTreeNode* outer = AddSquare(0, 10);
  const TTreeNode* low = Add("L 2,0 4,0; L 4,0 4,2; L 4,2 2,2; L 2,2 2,0", {2, 0});
  const TTreeNode* high = Add("L 2,8 4,8; L 4,8 4,10; L 4,10 2,10; L 2,10 2,8", {2, 8});
  const TTreeNode* left = Add("L 0,2 2,2; L 2,2 2,4; L 2,4 0,4; L 0,4 0,2", {0, 2});
  const TTreeNode* right = Add("L 8,2 10,2; L 10,2 10,4; L 10,4 8,4; L 8,4 8,2", {8, 2});
  EXPECT_TRUE(RegionContains_SubRegion(fCoordinateTree, low, outer));
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, high, outer));
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, left, outer));
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, right, outer));
}

TEST_F(RegionContains_SubRegionTest, RegionWithoutEntitiesOrNilLiesInsideNothing) {
  const TTreeNode* outer = AddSquare(0, 10);
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, Add("", {5, 5}), outer));
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, nullptr, outer));
  EXPECT_FALSE(RegionContains_SubRegion(fCoordinateTree, outer, nullptr));
}

TEST_F(IdentifyRegionFromCoordinateTest, AnswersTheInnermostRegion) {
  for (const bool innerFirst : {true, false}) {
    fRegionTree.Clear();
    const TTreeNode* first = innerFirst ? AddSquare(2, 6) : AddSquare(0, 10);
    const TTreeNode* second = innerFirst ? AddSquare(0, 10) : AddSquare(2, 6);
    EXPECT_EQ(Identify({3, 3}), innerFirst ? first : second);
    EXPECT_EQ(fIndex, innerFirst ? 0 : 1);
    EXPECT_EQ(Identify({1, 1}), innerFirst ? second : first);
    EXPECT_EQ(fIndex, innerFirst ? 1 : 0);
  }
}

TEST_F(IdentifyRegionFromCoordinateTest, AnswersTheInnermostOfThree) {
  AddSquare(0, 10);
  const TTreeNode* innermost = AddSquare(4, 6);
  AddSquare(2, 8);
  EXPECT_EQ(Identify({5, 5}), innermost);
  EXPECT_EQ(fIndex, 1);
}

TEST_F(IdentifyRegionFromCoordinateTest, PointOutsideEveryFaceIsNilAndLeavesTheIndex) {
  AddSquare(0, 10);
  EXPECT_EQ(Identify({11, 5}), nullptr);
  EXPECT_EQ(fIndex, 77);
}

TEST_F(IdentifyRegionFromCoordinateTest, ClockwiseRegionsTakeNoPart) {
  AddSquare_Clockwise(0, 10);
  EXPECT_EQ(Identify({5, 5}), nullptr);
  EXPECT_EQ(fIndex, 77);
}

TEST_F(DetermineClockwiseSubRegionsTest, ListsTheClockwiseLoopsInside) {
  TTreeNode* outer = AddSquare(0, 10);
  AddSquare(2, 4);
  AddSquare_Clockwise(2, 4);
  AddSquare_Clockwise(5, 6);
  AddSquare_Clockwise(20, 30);
  DetermineClockwiseSubRegions(fRegionTree, fCoordinateTree, outer, 0);
  EXPECT_THAT(outer->SubRegions(), testing::ElementsAre(2, 3));
}

TEST_F(DetermineClockwiseSubRegionsTest, ListsTheFirstRegionOfTheTreeToo) {
  AddSquare_Clockwise(2, 4);
  TTreeNode* outer = AddSquare(0, 10);
  DetermineClockwiseSubRegions(fRegionTree, fCoordinateTree, outer, 1);
  EXPECT_THAT(outer->SubRegions(), testing::ElementsAre(0));
}

TEST_F(DetermineClockwiseSubRegionsTest, KnownSubRegionsAreNotListedTwice) {
  TTreeNode* outer = AddSquare(0, 10);
  AddSquare_Clockwise(2, 4);
  DetermineClockwiseSubRegions(fRegionTree, fCoordinateTree, outer, 0);
  DetermineClockwiseSubRegions(fRegionTree, fCoordinateTree, outer, 0);
  EXPECT_THAT(outer->SubRegions(), testing::ElementsAre(1));
}

TEST_F(DetermineClockwiseSubRegionsTest, LooksInOneNodeAndAddsToTheOtherKept) {
  TTreeNode* outer = AddSquare(0, 10);
  TTreeNode* other = AddSquare(20, 30);
  AddSquare_Clockwise(2, 4);
  other->AddSubRegion(2);
  DetermineClockwiseSubRegions(fRegionTree, fCoordinateTree, outer, 1);
  EXPECT_THAT(outer->SubRegions(), testing::IsEmpty());
  EXPECT_THAT(other->SubRegions(), testing::ElementsAre(2, 2));
}

TEST_F(DetermineClockwiseSubRegionsTest, IndexOutsideTheTreeOrNilAddsNothing) {
  TTreeNode* outer = AddSquare(0, 10);
  AddSquare_Clockwise(2, 4);
  DetermineClockwiseSubRegions(fRegionTree, fCoordinateTree, outer, -1);
  DetermineClockwiseSubRegions(fRegionTree, fCoordinateTree, outer, 2);
  DetermineClockwiseSubRegions(fRegionTree, fCoordinateTree, nullptr, 0);
  EXPECT_EQ(outer->NumSubRegions(), 0);
}

TEST_F(GenerateRegionPointTest, FindsAPointOfARegionBesideItsOwnEdges) {
  const TTreeNode* square = AddSquare(2, 6);
  EXPECT_TRUE(Generate(square, square));
}

TEST_F(GenerateRegionPointTest, FindsAPointBesideTheEdgesOfARegionInside) {
  const TTreeNode* outer = AddSquare(0, 10);
  const TTreeNode* inner = AddSquare(2, 6);
  EXPECT_TRUE(Generate(inner, outer));
  EXPECT_FALSE(Generate(outer, inner));
}

TEST_F(GenerateRegionPointTest, RadialBandThatLeavesTheStartOutFailsAtOnce) {
  const TTreeNode* square = AddSquare(2, 6);
  EXPECT_FALSE(Generate(square, square, 3)) << "the start vertex has radius 2.83, all others more";
  EXPECT_TRUE(Generate(square, square, 2.8));
  EXPECT_FALSE(Generate(square, square, 0, 2.8));
}

TEST_F(GenerateRegionPointTest, SearchEndsAtTheFirstEntityThatStartsOutsideTheBand) {
  // The first edge lies beside nothing of the tested square; the walk leaves the band before it reaches the others.
  TTreeNode* walked = Add("L 1,2 10,2; L 10,2 10,3; L 10,3 1,3; L 1,3 1,2", {1, 2});
  walked->RegionCentroid({5, 2.5});
  const TTreeNode* tested = Add("L 9,2.2 10,2.2; L 10,2.2 10,2.8; L 10,2.8 9,2.8; L 9,2.8 9,2.2", {9, 2.2});
  EXPECT_TRUE(Generate(walked, tested, 0, 11));
  EXPECT_FALSE(Generate(walked, tested, 0, 10));
}

TEST_F(GenerateRegionPointTest, LinesOnABoundaryRayAreNotUsed) {
  TTreeNode* walked = Add("L 2,0 4,0; L 4,0 0,4; L 0,4 0,2; L 0,2 2,0", {2, 0});
  walked->RegionCentroid({1.5, 1.5});
  const TTreeNode* besideRay = Add("L 2.9,-0.1 3.1,-0.1; L 3.1,-0.1 3,0.2; L 3,0.2 2.9,-0.1", {2.9, -0.1});
  EXPECT_FALSE(GenerateRegionPoint(fCoordinateTree, walked, besideRay, 0, 10, 0, 90));
  EXPECT_FALSE(GenerateRegionPoint(fCoordinateTree, walked, besideRay, 0, 10, 90, 0));
  EXPECT_TRUE(GenerateRegionPoint(fCoordinateTree, walked, besideRay, 0, 10, 45, 90));
}

TEST_F(GenerateRegionPointTest, LinesThatLeaveABoundaryRayAreUsed) {
  TTreeNode* fromFirst = Add("L 2,0 4,4; L 4,4 0.5,4; L 0.5,4 2,0", {2, 0});
  fromFirst->RegionCentroid({2.2, 2.7});
  const TTreeNode* beside =
      Add("L 2.8,1.8 3.2,1.8; L 3.2,1.8 3.2,2.2; L 3.2,2.2 2.8,2.2; L 2.8,2.2 2.8,1.8", {2.8, 1.8});
  EXPECT_TRUE(GenerateRegionPoint(fCoordinateTree, fromFirst, beside, 0, 10, 0, 90));
  EXPECT_TRUE(GenerateRegionPoint(fCoordinateTree, fromFirst, beside, 0, 10, 90, 0));
}

TEST_F(GenerateRegionPointTest, LooksBesideEveryChordOfAnArc) {
  TTreeNode* walked = Add("A c 0,0 r 5 0..180 from 5,0 to -5,0; L -5,0 5,0", {5, 0});
  walked->RegionCentroid({0, 2});
  const TTreeNode* besideArc = Add("L -5,1 -4,1; L -4,1 -4,3; L -4,3 -5,3; L -5,3 -5,1", {-5, 1});
  EXPECT_TRUE(Generate(walked, besideArc));
  // Three chords lie at 30, 90 and 150 degrees, the middle of the last one at (-3.75, 2.17).
  fSettings.With(Maindataenum::TInputFields::ifArcResolution, 0);
  EXPECT_FALSE(Generate(walked, besideArc));
}

TEST_F(GenerateRegionPointTest, NilWalksOrTestsNothing) {
  const TTreeNode* square = AddSquare(2, 6);
  EXPECT_FALSE(Generate(nullptr, square));
  EXPECT_FALSE(Generate(square, nullptr));
}

TEST_F(GenerateRegionPointTest, RadiusThatIsNotANumberExcludesNothing) {
  const TTreeNode* square = AddSquare(2, 6);
  const double notANumber = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(Generate(square, square, notANumber, notANumber));
}
