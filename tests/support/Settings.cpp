#include "tests/support/Settings.h"

#include "GeometryEngine/host/TDataStore.h"
#include "GeometryEngine/host/TInputData.h"

namespace GeometryEngine::support {

namespace {

void ResetSettings() {
  Kelvaralinks::dataStore.Reset();
  Kelvaralinks::InputData = {};
}

}  // namespace

TSettingsGuard::TSettingsGuard() {
  ResetSettings();
}

TSettingsGuard::~TSettingsGuard() {
  ResetSettings();
}

TSettingsGuard& TSettingsGuard::With(Maindataenum::TInputFields aField, double aValue) {
  Kelvaralinks::dataStore.SetValue(aField, aValue);
  return *this;
}

TSettingsGuard& TSettingsGuard::WithMachineType(std::uint8_t aMachineType) {
  Kelvaralinks::InputData.MachineType = aMachineType;
  return *this;
}

}  // namespace GeometryEngine::support
