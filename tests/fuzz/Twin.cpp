// A drawing through everything that a driver and a region tree do, by the library and by its plain twin: the same bits.

#include <algorithm>
#include <cstdio>

#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/properties/TwinDetection.h"

using namespace GeometryEngine::properties;

namespace {

constexpr std::size_t kMostEntities = 16;  // the twin compares all with all
constexpr double kFinestResolution = 50;   // the twin winds round every chord of every arc from each of their points

double Sensible(fuzz::Bytes& aBytes, double aUsual) {
  constexpr double kOthers[] = {1e-6, 0.01, 0.3, 0};
  const std::uint8_t choice = aBytes.Byte();
  if (choice < 200) return aUsual;
  return choice < 248 ? kOthers[choice % 4] : aBytes.Number();
}

TwinDrawing DrawingOf(fuzz::Bytes& aBytes) {
  TwinDrawing drawing;
  drawing.kind = "fuzzed";
  drawing.seed = aBytes.Byte();
  drawing.settings.linearTolerance = Sensible(aBytes, 1e-4);
  drawing.settings.angleTolerance = Sensible(aBytes, 1e-4);
  drawing.settings.snappingMode = Sensible(aBytes, 1);
  drawing.settings.arcResolution = std::min(Sensible(aBytes, 5), kFinestResolution);  // not-a-number stays
  drawing.settings.minimumLabelArea = Sensible(aBytes, 0);
  drawing.settings.tracingTolerance = aBytes.Byte() < 240 ? drawing.settings.linearTolerance : aBytes.Number();
  Apply(drawing.settings);
  drawing.entities = aBytes.Entities(kMostEntities);
  return drawing;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  const fuzz::StartingSettings settings;
  fuzz::Bytes bytes({aData, aSize});
  const TwinDrawing drawing = DrawingOf(bytes);
  const TwinRecord answer = TwinDetection<TLibrary>(drawing).Run();
  const std::string difference = answer.FirstDifference(TwinDetection<TPlain>(drawing).Run());
  if (!difference.empty()) std::fprintf(stderr, "%s\n%s\n", difference.c_str(), ToText(drawing).c_str());
  fuzz::Require(difference.empty(), "the library answers as its plain twin does");
  return 0;
}
