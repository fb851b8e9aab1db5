#include "tests/fuzz/FuzzSettings.h"

#include "GeometryEngine/host/StartingValues.h"
#include "GeometryEngine/host/TDataStore.h"
#include "GeometryEngine/host/TInputData.h"

namespace fuzz {

namespace {

using enum Maindataenum::TInputFields;

constexpr Maindataenum::TInputFields kFields[] = {ifLinearTolerance,  ifSnappingMode,     ifAngleTolerance,
                                                  ifMinimumLabelArea, ifArcResolution,    ifUniqueRegionNames,
                                                  ifSlotDuplications, ifPoleDuplications, ifBarDuplications};

// Only the fields that are ever set: clearing the whole store would take longer than what is fuzzed.
void Reset() {
  for (const auto& [field, value] : Kelvaralinks::kStartingValues) Kelvaralinks::dataStore.SetValue(field, value);
  Kelvaralinks::InputData = {};
}

}  // namespace

StartingSettings::StartingSettings() {
  Reset();
}

StartingSettings::~StartingSettings() {
  Reset();
}

void ChangeSetting(Bytes& aBytes) {
  constexpr double kSensible[] = {1e-4, 1e-6, 0.01, 0, 1, 5};
  const std::uint32_t field = aBytes.Below(std::size(kFields) + 1);
  if (field == std::size(kFields)) {
    Kelvaralinks::InputData.MachineType = aBytes.Byte();
    return;
  }
  const std::uint32_t choice = aBytes.Below(12);
  const double value = choice < std::size(kSensible) ? kSensible[choice] : aBytes.Number();
  Kelvaralinks::dataStore.SetValue(kFields[field], value);
}

}  // namespace fuzz
