#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Kelvaralinks::dataStore;
using support::AddNode;
using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

struct TNamingCountedTest : ::testing::Test {
  TSettingsGuard settings;
  TTree_CoreProperties tree;
  TTreeNode_CoreProperties& first = AddNode(tree);
  TTreeNode_CoreProperties& second = AddNode(tree);
};

TEST_F(TNamingCountedTest, TheSwitchIsReadOncePerName) {
  first.SetRegionName("Magnet");
  EXPECT_EQ(dataStore.Reads(ifUniqueRegionNames), 1U);
  EXPECT_EQ(dataStore.AllReads().size(), 1U);
  first.SetRegionName_Unique();
  EXPECT_EQ(dataStore.Reads(ifUniqueRegionNames), 2U);
}

TEST_F(TNamingCountedTest, TheSwitchMayBeText) {
  first.SetRegionName("Magnet");
  dataStore.SetValue(ifUniqueRegionNames, "1");
  second.SetRegionName("Magnet");
  EXPECT_EQ(second.UniqueName(), "Magnet_1");
  dataStore.SetValue(ifUniqueRegionNames, "yes");
  second.SetRegionName("Magnet");
  EXPECT_EQ(second.UniqueName(), "");
}

TEST_F(TNamingCountedTest, AFailureLeavesANodeThatCanBeNamedAgain) {
  first.SetRegionName("Magnet");
  dataStore.FailAfter(ifUniqueRegionNames, 0);
  EXPECT_THROW(second.SetRegionName("Magnet"), Kelvaralinks::TStoreFailure);
  EXPECT_EQ(second.RegionName(), "Magnet");
  EXPECT_EQ(second.UniqueName(), "");
  dataStore.Reset();
  second.SetRegionName_Unique();
  EXPECT_EQ(second.UniqueName(), "Magnet_1");
}

}  // namespace
}  // namespace GeometryEngine
