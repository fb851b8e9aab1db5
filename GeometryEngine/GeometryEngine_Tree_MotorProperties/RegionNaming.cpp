// The names of a region: given, made unique within its tree, and as the exports want them. All that a node asks of its
// tree stands here, so that TTreeNode_CoreProperties.cpp needs no tree: trees know nodes, and not the other way round.

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTreeNode_CoreProperties.h"
#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"
#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/detail/TNameTable.h"
#include "GeometryEngine/host/TDataStore.h"
#include "GeometryEngine/host/TInputData.h"

namespace GeometryEngine {

namespace {

constexpr double kUniqueNamesOn = 1;                   // value of the switch, no unit
constexpr std::int32_t kLargestNameCounter = 1000000;  // attempts before the last candidate is taken as it stands

constexpr std::array<std::uint8_t, 3> kMachineTypes_SharedBarNames = {1, 6, 8};  // selector values, no unit
constexpr std::array<std::uint8_t, 2> kMachineTypes_Bars = {1, 8};               // selector values, no unit

constexpr TGeometryRegionTypesSet kTypes_WithoutUniqueName = {rtAirGap, rtSurrounding};
constexpr TGeometryRegionTypesSet kTypes_PlainName_FEA = {rtWedge,       rtImpregnation, rtLiner,      rtCoilDivider,
                                                          rtSlotOpening, rtMagnetPocket, rtCoolingDuct};
constexpr TGeometryRegionTypesSet kTypes_Lamination = {rtLaminationStator, rtLaminationRotor};

template <std::size_t N>
bool IsMachineTypeAmong(const std::array<std::uint8_t, N>& aTypes) {
  return std::find(aTypes.begin(), aTypes.end(), Kelvaralinks::InputData.MachineType) != aTypes.end();
}

}  // namespace

TTree_CoreProperties* TTreeNode_CoreProperties::GetTree() const {
  return dynamic_cast<TTree_CoreProperties*>(TTreeNode_Base::GetTree());
}

void TTreeNode_CoreProperties::NoteRenaming() {
  if (TTree_CoreProperties* tree = GetTree()) tree->Names().NoteRenaming(GetTreeIndex());
}

void TTreeNode_CoreProperties::SetRegionName(std::string_view aName) {
  NoteRenaming();
  fRegionName = aName;
  fUniqueName.clear();
  SetRegionName_Unique();
}

const std::string& TTreeNode_CoreProperties::GetRegionName_Unique() const {
  return fUniqueName.empty() ? fRegionName : fUniqueName;
}

void TTreeNode_CoreProperties::SetRegionName_Unique() {
  if (GetTree() == nullptr) return;
  const double uniqueNames = Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifUniqueRegionNames);
  if (uniqueNames == kUniqueNamesOn && CheckApply_UniqueRegionName()) {
    std::string name = GenerateUniqueRegionName();
    NoteRenaming();
    fUniqueName = std::move(name);
  } else {
    NoteRenaming();
    fUniqueName.clear();
  }
}

bool TTreeNode_CoreProperties::CheckApply_UniqueRegionName() const {
  if (fRegionName.empty() || IsOfType_WithinSet(kTypes_WithoutUniqueName)) return false;
  return !(IsMachineTypeAmong(kMachineTypes_SharedBarNames) && IsOfType(rtRotorBar));
}

std::string TTreeNode_CoreProperties::GenerateUniqueRegionName() const {
  TTree_CoreProperties* tree = GetTree();
  if (tree == nullptr) return GetRegionName_Unique();
  detail::TNameTable& names = tree->Names();
  names.Update(tree->GetChangeCount(), tree->GetCount(), [tree](TIndex aIndex) -> const std::string* {
    // The root is compared with nobody.
    const TTreeNode_CoreProperties* node = aIndex == 0 ? nullptr : tree->GetNodeFromIndex(aIndex);
    return node == nullptr ? nullptr : &node->GetRegionName_Unique();
  });
  if (!names.IsTakenByOther(GetRegionName_Unique(), GetTreeIndex())) return GetRegionName_Unique();
  return detail::TNameTable::NumberedName(fRegionName, names.GetLeastFreeNumber(fRegionName, kLargestNameCounter));
}

const std::string& TTreeNode_CoreProperties::GetRegionName_FEA() const {
  return fUniqueName.empty() || IsOfType_WithinSet(kTypes_PlainName_FEA) ? fRegionName : fUniqueName;
}

std::string_view TTreeNode_CoreProperties::GetComponentName_3D() const {
  if (IsOfType_WithinSet(kTypes_Lamination)) return "Lamination";
  if (IsOfType(rtRotorBar) && IsMachineTypeAmong(kMachineTypes_Bars)) return "Bars";
  return GetRegionTypeString(fRegionType);
}

void TTreeNode_CoreProperties::CopyRegionParameters(const TTreeNode_CoreProperties& aRegion, bool aApplyUniqueName) {
  NoteRenaming();
  fColour = aRegion.fColour;
  fRegionType = aRegion.fRegionType;
  fRegionType_Mapped = aRegion.fRegionType_Mapped;
  fRegionName = aRegion.fRegionName;
  if (aApplyUniqueName) {
    SetRegionName_Unique();
  } else {
    fUniqueName = aRegion.fUniqueName;
  }
}

}  // namespace GeometryEngine
