// A drawing through the whole detection, under the settings that a host starts with or with another tolerance.

#include "tests/fuzz/DetectionRun.h"
#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  constexpr std::size_t kMostEntities = 24;
  const fuzz::StartingSettings settings;
  fuzz::Bytes bytes({aData, aSize});
  const std::uint8_t choice = bytes.Byte();
  if (choice >= 200) fuzz::ChangeSetting(bytes);
  fuzz::RunDetection(bytes.Entities(kMostEntities), choice % 3, true, [] {});
  return 0;
}
