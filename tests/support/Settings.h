#pragma once

#include <cstdint>

#include "GeometryEngine/host/TInputFields.h"

namespace GeometryEngine::support {

/// Gives a test the starting settings and puts them back when it ends, however it ends:
///
///   TSettingsGuard settings;
///   settings.With(Maindataenum::TInputFields::ifLinearTolerance, 1e-6);
class TSettingsGuard {
 public:
  TSettingsGuard();
  ~TSettingsGuard();
  TSettingsGuard(const TSettingsGuard&) = delete;
  TSettingsGuard& operator=(const TSettingsGuard&) = delete;

  TSettingsGuard& With(Maindataenum::TInputFields aField, double aValue);
  TSettingsGuard& WithMachineType(std::uint8_t aMachineType);
};

}  // namespace GeometryEngine::support
