#pragma once

#include "tests/fuzz/Bytes.h"

namespace fuzz {

/// Gives every setting that the library reads its starting value, for as long as the object lives and at its end.
class StartingSettings {
 public:
  StartingSettings();
  ~StartingSettings();
  StartingSettings(const StartingSettings&) = delete;
  StartingSettings& operator=(const StartingSettings&) = delete;
};

/// Sets one of the settings to a sensible or a senseless value.
void ChangeSetting(Bytes& aBytes);

}  // namespace fuzz
