#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"

#include <memory>

#include <gmock/gmock.h>

#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using ::testing::ElementsAre;

class TTree_CorePropertiesTest : public ::testing::Test {
 protected:
  TTreeNode_CoreProperties& Add(TGeometryRegionType aType, std::string_view aName = "") {
    TTreeNode_CoreProperties& node = support::AddNode(fTree);
    node.RegionType(aType);
    node.RegionName(aName);
    return node;
  }

  support::TSettingsGuard fSettings;
  TTree_CoreProperties fTree;
};

TEST_F(TTree_CorePropertiesTest, CreatesNodesOfItsOwnClassFromTheRootOn) {
  EXPECT_NE(fTree.GetNodeFromIndex(0), nullptr);
  EXPECT_NE(TTreeNode_CoreProperties::TypeCast(fTree.CreateTreeNode().get()), nullptr);
}

TEST_F(TTree_CorePropertiesTest, GetNodeFromIndexIsNilOutsideTheIndexAndForOtherNodes) {
  TTreeNode_CoreProperties& node = Add(rtWedge);
  std::unique_ptr<TTreeNode_Base> other = std::make_unique<TTreeNode_Base>(&fTree);
  fTree.AddNewTreeNode(other);
  EXPECT_EQ(fTree.GetNodeFromIndex(1), &node);
  EXPECT_EQ(fTree.GetNodeFromIndex(2), nullptr);
  EXPECT_EQ(fTree.GetNodeFromIndex(3), nullptr);
  EXPECT_EQ(fTree.GetNodeFromIndex(-1), nullptr);
}

TEST_F(TTree_CorePropertiesTest, GetRegionsFromTypeSetAppendsInIndexOrderTheRootIncluded) {
  TTreeNode_CoreProperties& wedge = Add(rtWedge);
  Add(rtLiner);
  TTreeNode_CoreProperties& composite = Add(rtComposite);
  composite.RegionType_Mapped(rtWedge);
  fTree.GetNodeFromIndex(0)->RegionType(rtWedge);
  TTreeNodeArray_CoreProperties regions = {&wedge};
  fTree.GetRegionsFromTypeSet({rtWedge}, regions);
  EXPECT_THAT(regions, ElementsAre(&wedge, fTree.GetNodeFromIndex(0), &wedge, &composite));
}

TEST_F(TTree_CorePropertiesTest, GetConductorRegionFromNameTellsCaseApartAndTakesTheFirst) {
  Add(rtWedge, "Bar");
  Add(rtConductor, "bar");
  TTreeNode_CoreProperties& first = Add(rtConductor, "Bar");
  Add(rtConductor, "Bar");
  EXPECT_EQ(fTree.GetConductorRegionFromName("Bar"), &first);
  EXPECT_EQ(fTree.GetConductorRegionFromName("BAR"), nullptr);
  EXPECT_EQ(fTree.GetConductorRegionFromName("Bar_1"), nullptr) << "unique names play no part";
}

TEST_F(TTree_CorePropertiesTest, GetConductorRegionFromNameTakesACompositeMappedToConductor) {
  TTreeNode_CoreProperties& composite = Add(rtComposite, "Bar");
  EXPECT_EQ(fTree.GetConductorRegionFromName("Bar"), nullptr);
  composite.RegionType_Mapped(rtConductor);
  EXPECT_EQ(fTree.GetConductorRegionFromName("Bar"), &composite);
}

TEST_F(TTree_CorePropertiesTest, SearchesPassOverNodesOfOtherClasses) {
  std::unique_ptr<TTreeNode_Base> other = std::make_unique<TTreeNode_Base>(&fTree);
  fTree.AddNewTreeNode(other);
  TTreeNode_CoreProperties& bar = Add(rtConductor, "Bar");
  EXPECT_EQ(bar.UniqueName(), "Bar");
  EXPECT_EQ(fTree.GetConductorRegionFromName("Bar"), &bar);
  TTreeNodeArray_CoreProperties regions;
  fTree.GetRegionsFromTypeSet({rtConductor}, regions);
  EXPECT_THAT(regions, ElementsAre(&bar));
}

}  // namespace
}  // namespace GeometryEngine
