#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"
#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Maindataenum::TInputFields;
using TMachineTypes = std::vector<std::uint8_t>;

class RegionNamingTest : public ::testing::Test {
 protected:
  TTreeNode_CoreProperties& Add(std::string_view aName, TGeometryRegionType aType = rtUndefined) {
    TTreeNode_CoreProperties& node = support::AddNode(fTree);
    node.RegionType(aType);
    node.RegionName(aName);
    return node;
  }
  void SwitchUniqueNames(double aSwitch) { fSettings.With(TInputFields::ifUniqueRegionNames, aSwitch); }

  support::TSettingsGuard fSettings;
  TTree_CoreProperties fTree;
};

using SetRegionName = RegionNamingTest;

TEST_F(SetRegionName, SecondMagnetBecomesMagnet_1AndThirdMagnet_2) {
  EXPECT_EQ(Add("Magnet").UniqueName(), "Magnet");
  EXPECT_EQ(Add("Magnet").UniqueName(), "Magnet_1");
  EXPECT_EQ(Add("Magnet").UniqueName(), "Magnet_2");
}

TEST_F(SetRegionName, NamesThatDifferOnlyInCaseClash) {
  Add("Magnet");
  EXPECT_EQ(Add("magnet").UniqueName(), "magnet_1");
  EXPECT_EQ(Add("MAGNET").UniqueName(), "MAGNET_2");
}

TEST_F(SetRegionName, OnlyTheLettersAToZAreFolded) {
  Add("[Q\xC3\xBC@");
  EXPECT_EQ(Add("{Q\xC3\xBC`").UniqueName(), "{Q\xC3\xBC`");
  EXPECT_EQ(Add("[Q\xC3\x9C@").UniqueName(), "[Q\xC3\x9C@");
  EXPECT_EQ(Add("[q\xC3\xBC@").UniqueName(), "[q\xC3\xBC@_1");
}

TEST_F(SetRegionName, TheWholeAlphabetIsFolded) {
  Add("abcdefghijklmnopqrstuvwxyz");
  EXPECT_EQ(Add("ABCDEFGHIJKLMNOPQRSTUVWXYZ").UniqueName(), "ABCDEFGHIJKLMNOPQRSTUVWXYZ_1");
}

TEST_F(SetRegionName, ABeginningOfAnotherNameIsNoClash) {
  Add("Magnet");
  EXPECT_EQ(Add("Mag").UniqueName(), "Mag");
  EXPECT_EQ(Add("Magnets").UniqueName(), "Magnets");
}

TEST_F(SetRegionName, TheRootIsNotCompared) {
  fTree.GetNodeFromIndex(0)->RegionName("Rotor");
  EXPECT_EQ(Add("Rotor").UniqueName(), "Rotor");
}

TEST_F(SetRegionName, GivingTheSameNameAgainKeepsIt) {
  Add("Rotor");
  TTreeNode_CoreProperties& second = Add("Rotor");
  second.RegionName("Rotor");
  EXPECT_EQ(second.UniqueName(), "Rotor_1");
}

TEST_F(SetRegionName, ForgetsTheFormerUniqueName) {
  Add("Rotor");
  TTreeNode_CoreProperties& second = Add("Rotor");
  second.SetRegionName("Shaft");
  EXPECT_EQ(second.RegionName(), "Shaft");
  EXPECT_EQ(second.UniqueName(), "Shaft");
  second.SetRegionName("");
  EXPECT_EQ(second.UniqueName(), "");
  EXPECT_EQ(second.GetRegionName_Unique(), "");
}

TEST_F(SetRegionName, TakesAViewOfTheNodesOwnNames) {
  Add("Rotor");
  TTreeNode_CoreProperties& second = Add("Rotor");
  second.SetRegionName(std::string_view(second.UniqueName()).substr(0, 7));
  EXPECT_EQ(second.RegionName(), "Rotor_1");
  second.SetRegionName(std::string_view(second.RegionName()).substr(2));
  EXPECT_EQ(second.RegionName(), "tor_1");
}

TEST_F(SetRegionName, WithoutACorePropertiesTreeThereIsNoUniqueName) {
  TTreeNode_CoreProperties alone(nullptr);
  alone.SetRegionName("Rotor");
  EXPECT_EQ(alone.RegionName(), "Rotor");
  EXPECT_EQ(alone.UniqueName(), "");
  EXPECT_EQ(alone.GenerateUniqueRegionName(), "Rotor");
}

TEST_F(SetRegionName, ANodeThatIsNotEnteredYetIsComparedWithEveryOther) {
  Add("Rotor");
  TTreeNode_CoreProperties waiting(&fTree);
  waiting.SetRegionName("Rotor");
  EXPECT_EQ(waiting.UniqueName(), "Rotor_1");
}

using GenerateUniqueRegionName = RegionNamingTest;

TEST_F(GenerateUniqueRegionName, CandidatesAreBuiltFromTheGivenNameEachTime) {
  Add("Rotor");
  Add("rotor_1");
  Add("Rotor_2");
  EXPECT_EQ(Add("Rotor").UniqueName(), "Rotor_3");
}

TEST_F(GenerateUniqueRegionName, AFreedNameIsTakenAgain) {
  TTreeNode_CoreProperties& first = Add("Rotor");
  Add("Rotor");
  first.RegionName("Shaft");
  EXPECT_EQ(Add("Rotor").UniqueName(), "Rotor");
}

TEST_F(GenerateUniqueRegionName, AnotherNodesGivenNameCountsOnlyWhereItHasNoUniqueOne) {
  Add("Rotor");
  Add("Rotor");  // answers to Rotor_1
  fTree.GetNodeFromIndex(1)->RegionName("Shaft");
  SwitchUniqueNames(0);
  Add("Plain");
  SwitchUniqueNames(1);
  EXPECT_EQ(Add("Rotor").UniqueName(), "Rotor");
  EXPECT_EQ(Add("Plain").UniqueName(), "Plain_1");
}

TEST_F(GenerateUniqueRegionName, CountsOnPastNine) {
  for (int i = 0; i < 12; ++i) Add("Bar");
  EXPECT_EQ(Add("Bar").UniqueName(), "Bar_12");
}

using SetRegionName_Unique = RegionNamingTest;

TEST_F(SetRegionName_Unique, WithTheSwitchOffEveryUniqueNameIsEmpty) {
  TTreeNode_CoreProperties& before = Add("Magnet");
  SwitchUniqueNames(0);
  TTreeNode_CoreProperties& after = Add("Magnet");
  EXPECT_EQ(after.UniqueName(), "");
  EXPECT_EQ(after.GetRegionName_FEA(), "Magnet");
  EXPECT_EQ(after.GetRegionName_Unique(), "Magnet");
  before.SetRegionName_Unique();
  EXPECT_EQ(before.UniqueName(), "");
}

TEST_F(SetRegionName_Unique, OnlyTheValue1SwitchesOn) {
  for (const double value :
       {-1.0, 0.5, 2.0, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    SwitchUniqueNames(value);
    EXPECT_EQ(Add("Magnet").UniqueName(), "") << value;
  }
}

using CheckApply_UniqueRegionName = RegionNamingTest;

TEST_F(CheckApply_UniqueRegionName, RegionsOfType2Or35NeverGetAUniqueName) {
  for (const int ordinal : {2, 35}) {
    const auto type = static_cast<TGeometryRegionType>(ordinal);
    for (const std::uint8_t machine : TMachineTypes{0, 1, 4, 6, 8}) {
      fSettings.WithMachineType(machine);
      EXPECT_EQ(Add("Air", type).UniqueName(), "");
      EXPECT_FALSE(Add("Air", type).CheckApply_UniqueRegionName());
    }
  }
}

TEST_F(CheckApply_UniqueRegionName, ACompositeMappedToType2GetsNone) {
  TTreeNode_CoreProperties& node = Add("", rtComposite);
  node.RegionType_Mapped(rtAirGap);
  node.RegionName("Air");
  EXPECT_EQ(node.UniqueName(), "");
}

TEST_F(CheckApply_UniqueRegionName, BarsOfMachineTypes1And6And8ShareTheirName) {
  for (const std::uint8_t machine : TMachineTypes{1, 6, 8}) {
    fSettings.WithMachineType(machine);
    EXPECT_FALSE(Add("Bar", rtRotorBar).CheckApply_UniqueRegionName()) << int{machine};
    EXPECT_TRUE(Add("Bar", rtConductor).CheckApply_UniqueRegionName()) << int{machine};
  }
  for (const std::uint8_t machine : TMachineTypes{0, 2, 4, 7, 255}) {
    fSettings.WithMachineType(machine);
    EXPECT_TRUE(Add("Bar", rtRotorBar).CheckApply_UniqueRegionName()) << int{machine};
  }
}

TEST_F(CheckApply_UniqueRegionName, AnEmptyNameIsNotMadeUnique) {
  EXPECT_FALSE(Add("").CheckApply_UniqueRegionName());
  EXPECT_TRUE(Add("A").CheckApply_UniqueRegionName());
}

using GetRegionName_FEA = RegionNamingTest;

TEST_F(GetRegionName_FEA, IsTheUniqueNameButForTypesKnownByTheirCommonName) {
  for (int ordinal = 0; ordinal <= 60; ++ordinal) {
    if (ordinal == 2 || ordinal == 35) continue;  // never have a unique name
    const std::string name = "Region" + std::to_string(ordinal);
    Add(name);
    const TTreeNode_CoreProperties& second = Add(name, static_cast<TGeometryRegionType>(ordinal));
    const bool common = ordinal == 6 || (ordinal >= 16 && ordinal <= 19) || ordinal == 33 || ordinal == 45;
    EXPECT_EQ(second.UniqueName(), name + "_1");
    EXPECT_EQ(second.GetRegionName_FEA(), common ? name : name + "_1");
  }
}

TEST_F(GetRegionName_FEA, FollowsTheMappedTypeOfAComposite) {
  Add("Liner");
  TTreeNode_CoreProperties& second = Add("Liner", rtComposite);
  EXPECT_EQ(second.GetRegionName_FEA(), "Liner_1");
  second.RegionType_Mapped(rtLiner);
  EXPECT_EQ(second.GetRegionName_FEA(), "Liner");
}

using GetComponentName_3D = RegionNamingTest;

TEST_F(GetComponentName_3D, BothLaminationsAreLamination) {
  EXPECT_EQ(Add("A", static_cast<TGeometryRegionType>(0)).GetComponentName_3D(), "Lamination");
  EXPECT_EQ(Add("A", static_cast<TGeometryRegionType>(20)).GetComponentName_3D(), "Lamination");
}

TEST_F(GetComponentName_3D, BarsAreBarsInMachineTypes1And8Only) {
  const TTreeNode_CoreProperties& bar = Add("A", static_cast<TGeometryRegionType>(22));
  for (const std::uint8_t machine : TMachineTypes{1, 8}) {
    fSettings.WithMachineType(machine);
    EXPECT_EQ(bar.GetComponentName_3D(), "Bars");
  }
  for (const std::uint8_t machine : TMachineTypes{0, 4, 6}) {
    fSettings.WithMachineType(machine);
    EXPECT_EQ(bar.GetComponentName_3D(), GetRegionTypeString(rtRotorBar));
  }
}

TEST_F(GetComponentName_3D, AnyOtherRegionHasTheDisplayNameOfItsOwnType) {
  EXPECT_EQ(Add("A", rtConductor).GetComponentName_3D(), GetRegionTypeString(rtConductor));
  TTreeNode_CoreProperties& composite = Add("A", rtComposite);
  composite.RegionType_Mapped(rtConductor);
  EXPECT_EQ(composite.GetComponentName_3D(), GetRegionTypeString(rtComposite));
  composite.RegionType_Mapped(rtLaminationRotor);
  EXPECT_EQ(composite.GetComponentName_3D(), "Lamination");
}

class CopyRegionParameters : public RegionNamingTest {
 protected:
  TTreeNode_CoreProperties& AddSource() {
    TTreeNode_CoreProperties& source = Add("Magnet", rtComposite);
    source.Colour(7);
    source.RegionType_Mapped(rtMagnetPocket);
    return source;
  }
};

TEST_F(CopyRegionParameters, WithoutUniqueNamesTakesOverBothNamesAsTheyAre) {
  TTreeNode_CoreProperties& copy = Add("Copy");
  copy.CopyRegionParameters(AddSource(), false);
  EXPECT_EQ(copy.Colour(), 7U);
  EXPECT_EQ(copy.RegionType(), rtComposite);
  EXPECT_EQ(copy.RegionType_Mapped(), rtMagnetPocket);
  EXPECT_EQ(copy.RegionName(), "Magnet");
  EXPECT_EQ(copy.UniqueName(), "Magnet");
}

TEST_F(CopyRegionParameters, WithUniqueNamesNamesANewNodeAfresh) {
  TTreeNode_CoreProperties& copy = support::AddNode(fTree);
  copy.CopyRegionParameters(AddSource(), true);
  EXPECT_EQ(copy.RegionName(), "Magnet");
  EXPECT_EQ(copy.UniqueName(), "Magnet_1");
}

TEST_F(CopyRegionParameters, ANodeThatHasAUniqueNameKeepsItWhileItIsFree) {
  TTreeNode_CoreProperties& copy = Add("Copy");
  copy.CopyRegionParameters(AddSource(), true);
  EXPECT_EQ(copy.RegionName(), "Magnet");
  EXPECT_EQ(copy.UniqueName(), "Copy");
}

TEST_F(CopyRegionParameters, FromItselfChangesNothing) {
  TTreeNode_CoreProperties& source = AddSource();
  source.CopyRegionParameters(source, true);
  EXPECT_EQ(source.RegionName(), "Magnet");
  EXPECT_EQ(source.UniqueName(), "Magnet");
}

}  // namespace
}  // namespace GeometryEngine
