#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTreeNode_CoreProperties.h"

#include <memory>

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"
#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TTreeNode_CorePropertiesTest : public ::testing::Test {
 protected:
  TTreeNode_CoreProperties& Add(TGeometryRegionType aType, TTreeNode_Base* aParent = nullptr) {
    TTreeNode_CoreProperties& node = support::AddNode(fTree, aParent);
    node.RegionType(aType);
    return node;
  }
  TTreeNode_CoreProperties& AddComposite(TGeometryRegionType aType, TGeometryRegionType aMapped) {
    TTreeNode_CoreProperties& node = Add(aType);
    node.RegionType_Mapped(aMapped);
    return node;
  }
  const TTreeNode_CoreProperties& Root() const { return *fTree.GetNodeFromIndex(0); }

  support::TSettingsGuard fSettings;
  TTree_CoreProperties fTree;
};

TEST_F(TTreeNode_CorePropertiesTest, StartsWithoutColourTypeAndNames) {
  const TTreeNode_CoreProperties& node = support::AddNode(fTree);
  EXPECT_EQ(node.Colour(), 0U);
  EXPECT_EQ(node.RegionType(), rtUndefined);
  EXPECT_EQ(static_cast<int>(node.RegionType()), 60);
  EXPECT_EQ(node.RegionType_Mapped(), rtUndefined);
  EXPECT_EQ(node.RegionName(), "");
  EXPECT_EQ(node.UniqueName(), "");
}

TEST_F(TTreeNode_CorePropertiesTest, PropertiesReadWhatWasWritten) {
  TTreeNode_CoreProperties& node = support::AddNode(fTree);
  node.Colour(0xFF8800U);
  node.RegionType(rtWedge);
  node.RegionType_Mapped(rtLiner);
  node.RegionName("Wedge");
  EXPECT_EQ(node.Colour(), 0xFF8800U);
  EXPECT_EQ(node.RegionType(), rtWedge);
  EXPECT_EQ(node.RegionType_Mapped(), rtLiner);
  EXPECT_EQ(node.RegionName(), "Wedge");
}

TEST_F(TTreeNode_CorePropertiesTest, GetTreeIsNilUnlessTheTreeHoldsCoreProperties) {
  EXPECT_EQ(support::AddNode(fTree).GetTree(), &fTree);
  EXPECT_EQ(TTreeNode_CoreProperties(nullptr).GetTree(), nullptr);
  TTree_Base base;
  EXPECT_EQ(TTreeNode_CoreProperties(&base).GetTree(), nullptr);
}

TEST_F(TTreeNode_CorePropertiesTest, TypeCastGivesNilForNilAndForOtherNodes) {
  TTreeNode_Base other(&fTree);
  const TTreeNode_Base* const nothing = nullptr;
  TTreeNode_Base* const node = &support::AddNode(fTree);
  EXPECT_EQ(TTreeNode_CoreProperties::TypeCast(node), node);
  EXPECT_EQ(TTreeNode_CoreProperties::TypeCast(static_cast<const TTreeNode_Base*>(node)), node);
  EXPECT_EQ(TTreeNode_CoreProperties::TypeCast(&other), nullptr);
  EXPECT_EQ(TTreeNode_CoreProperties::TypeCast(nothing), nullptr);
}

using IsOfType = TTreeNode_CorePropertiesTest;

TEST_F(IsOfType, PlainRegionAnswersToItsOwnTypeOnly) {
  TTreeNode_CoreProperties& node = AddComposite(rtWedge, rtConductor);
  EXPECT_TRUE(node.IsOfType(rtWedge));
  EXPECT_FALSE(node.IsOfType(rtConductor)) << "the mapped type counts in composite regions only";
  EXPECT_EQ(node.GetStandardRegionType(), rtWedge);
}

TEST_F(IsOfType, CompositeRegionMappedToConductorAnswersToBoth) {
  for (const TGeometryRegionType composite : {rtComposite, rtCompositeEmpty}) {
    TTreeNode_CoreProperties& node = AddComposite(composite, rtConductor);
    EXPECT_TRUE(node.IsOfType(composite));
    EXPECT_TRUE(node.IsOfType(rtConductor));
    EXPECT_FALSE(node.IsOfType(rtWedge));
    EXPECT_EQ(static_cast<int>(node.GetStandardRegionType()), 9);
  }
  EXPECT_EQ(static_cast<int>(rtComposite), 57);
  EXPECT_EQ(static_cast<int>(rtCompositeEmpty), 58);
}

TEST_F(IsOfType, IsFalseForAMissingNode) {
  EXPECT_FALSE(TTreeNode_CoreProperties::IsOfType(nullptr, rtUndefined));
  EXPECT_TRUE(TTreeNode_CoreProperties::IsOfType(&Add(rtWedge), rtWedge));
}

TEST_F(IsOfType, OfASetNeedsOneMemberAndTheEmptySetHasNone) {
  TTreeNode_CoreProperties& node = AddComposite(rtComposite, rtConductor);
  EXPECT_TRUE(node.IsOfType_WithinSet({rtWedge, rtConductor}));
  EXPECT_TRUE(node.IsOfType_WithinSet({rtComposite}));
  EXPECT_TRUE(node.IsOfType_WithinSet(TGeometryRegionTypesSet::All()));
  EXPECT_FALSE(node.IsOfType_WithinSet({rtWedge, rtLiner}));
  EXPECT_FALSE(node.IsOfType_WithinSet({}));
}

using GetChildren_OfTypes = TTreeNode_CorePropertiesTest;

TEST_F(GetChildren_OfTypes, ListsChildrenGroupedByTypeLowerOrdinalFirst) {
  TTreeNode_CoreProperties& conductor = Add(rtConductor);
  TTreeNode_CoreProperties& wedge = Add(rtWedge);
  TTreeNode_CoreProperties& bar = Add(rtRotorBar);
  TTreeNode_CoreProperties& wedge2 = Add(rtWedge);
  TTreeNode_CoreProperties& conductor2 = Add(rtConductor);
  EXPECT_THAT(Root().GetChildren(), ElementsAre(&conductor, &wedge, &bar, &wedge2, &conductor2));
  EXPECT_THAT(Root().GetChildren_OfType(rtConductor), ElementsAre(&conductor, &conductor2));
  EXPECT_THAT(Root().GetChildren_OfTypes({rtConductor, rtWedge}),
              ElementsAre(&wedge, &wedge2, &conductor, &conductor2));
  EXPECT_THAT(Root().GetChildren_OfTypes({}), IsEmpty());
}

TEST_F(GetChildren_OfTypes, ListsACompositeOfTwoTypesOfTheSetTwice) {
  TTreeNode_CoreProperties& composite = AddComposite(rtComposite, rtConductor);
  TTreeNode_CoreProperties& conductor = Add(rtConductor);
  EXPECT_THAT(Root().GetChildren_OfTypes({rtComposite, rtConductor}), ElementsAre(&composite, &conductor, &composite));
}

TEST_F(GetChildren_OfTypes, LeavesOutGrandchildrenAndNodesOfOtherClasses) {
  TTreeNode_CoreProperties& wedge = Add(rtWedge);
  Add(rtWedge, &wedge);
  std::unique_ptr<TTreeNode_Base> other = std::make_unique<TTreeNode_Base>(&fTree);
  fTree.AddNewTreeNode(other);
  EXPECT_THAT(Root().GetChildren(), ElementsAre(&wedge));
  EXPECT_THAT(Root().GetChildren_OfTypes({rtWedge}), ElementsAre(&wedge));
}

}  // namespace
}  // namespace GeometryEngine
