#pragma once

#include "tests/support/Settings.h"

namespace GeometryEngine::properties {

/// Settings under which nothing is rounded on purpose: no snapping to 0, and arcs in chords of a twentieth of a degree.
class ExactSettings {
 public:
  ExactSettings() {
    fSettings.With(Maindataenum::TInputFields::ifSnappingMode, 2);
    fSettings.With(Maindataenum::TInputFields::ifArcResolution, 200);
  }

 private:
  support::TSettingsGuard fSettings;
};

}  // namespace GeometryEngine::properties
