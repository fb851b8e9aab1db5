// A drawing through the whole detection while the settings change between every two calls.

#include "tests/fuzz/DetectionRun.h"
#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  constexpr std::size_t kMostEntities = 12;
  constexpr std::size_t kBytesOfSettings = 48;
  const fuzz::StartingSettings settings;
  const std::span<const std::uint8_t> all(aData, aSize);
  fuzz::Bytes changes(all.first(std::min(aSize, kBytesOfSettings)));
  fuzz::Bytes bytes(all.subspan(std::min(aSize, kBytesOfSettings)));
  const auto change = [&changes] {
    if (!changes.IsAtEnd()) fuzz::ChangeSetting(changes);
  };
  change();
  fuzz::RunDetection(bytes.Entities(kMostEntities), 0, false, change);
  return 0;
}
