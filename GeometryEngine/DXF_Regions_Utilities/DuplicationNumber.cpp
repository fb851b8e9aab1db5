#include "GeometryEngine/DXF_Regions_Utilities/DuplicationNumber.h"

#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"
#include "GeometryEngine/host/TInputData.h"

namespace GeometryEngine {

namespace {

using Maindataenum::TInputFields;

constexpr std::uint8_t kMachineType_Swapped = 4;  // values of the machine-type selector
constexpr std::uint8_t kMachineType_Bars_A = 1;
constexpr std::uint8_t kMachineType_Bars_B = 8;

std::int32_t ReadInteger(TInputFields aField) {
  return ToInteger_Saturated(Kelvaralinks::dataStore.GetValue(aField));
}

// KEPT: for machine type 4 the two locations read each other's field; hosts fill the fields of that type accordingly.
TInputFields GetField_Armature(std::uint8_t aMachineType) {
  switch (aMachineType) {
    case kMachineType_Swapped:
      return TInputFields::ifPoleDuplications;
    case kMachineType_Bars_A:
    case kMachineType_Bars_B:
      return TInputFields::ifBarDuplications;
    default:
      return TInputFields::ifSlotDuplications;
  }
}

TInputFields GetField_Field(std::uint8_t aMachineType) {
  return aMachineType == kMachineType_Swapped ? TInputFields::ifSlotDuplications : TInputFields::ifPoleDuplications;
}

}  // namespace

std::int32_t GetDuplicationNumber_Regions(TMachineLocation aLocation) {
  const std::uint8_t machineType = Kelvaralinks::InputData.MachineType;
  if (aLocation == mlField) return ReadInteger(GetField_Field(machineType));
  if (aLocation == mlArmature) return ReadInteger(GetField_Armature(machineType));
  return 1;
}

}  // namespace GeometryEngine
