#include "xsec/DrawingOptions.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>
#include <vector>

#include "xsec/DrawingExtents.h"
#include "xsec/DxfText.h"
#include "xsec/Errors.h"
#include "xsec/Isolation.h"
#include "xsec/SourceText.h"
#include "xsec/Units.h"
#include "xsec/naming/Rules.h"

namespace xsec {

namespace {

constexpr std::uint64_t kMebibyte = 1024 * 1024;             // bytes
constexpr std::uint64_t kMostMebibytes = 1024 * 1024;        // a tebibyte
constexpr std::uint64_t kMostEntitiesAsked = 1'000'000'000;  // far more than any memory holds
constexpr std::uint64_t kMostSeconds = 31'536'000;           // a year

DrawingUnits UnitsOf(const std::string& name) {
  auto units = FindUnit(name);
  if (!units) throw UsageError(fmt::format("--units {}: unknown unit; known are {}", name, UnitNames()));
  units->source = "--units";
  return *units;
}

std::uint8_t CheckedMachineType(int type) {
  if (0 <= type && type <= 255) return static_cast<std::uint8_t>(type);
  throw UsageError(fmt::format("--machine-type {}: expected a number from 0 to 255", type));
}

void AddSettingsOptions(const Command& command, SettingsRequest& settings) {
  command.Add<double>("--tol", "MM",
                      "Linear tolerance: ends closer than this meet. Without it a millionth of the diagonal of the "
                      "drawing's largest part",
                      [&](double value) { settings.tolerance = CheckedLength("--tol", value); });
  const auto keepFields = [&settings](const std::vector<std::string>& texts) {
    for (const std::string& text : texts) settings.fields.push_back(ParseFieldValue(text));
  };
  command.Add<std::vector<std::string>>("--setting", "FIELD=VALUE",
                                        "Set a numbered input field of the library. May be repeated", keepFields);
  command.Add<int>("--machine-type", "N", "The machine-type selector, 0 to 255",
                   [&](int type) { settings.machineType = CheckedMachineType(type); });
  command.Add<double>(
      "--sliver-area", "MM2",
      "Regions smaller than this are slivers. Without it a square of the tolerance; regions thinner than the "
      "tolerance always are",
      [&](double area) { settings.sliverArea = CheckedArea("--sliver-area", area); });
  command.AddFlag("--drop-slivers", "Make slivers part of the neighbour they share most with", settings.dropsSlivers);
  command.AddFlag("--no-prepare", "Hand the drawing to the library as it is, whatever way it lies", settings.prepares,
                  false);
}

void AddLayerOptions(const Command& command, DrawingOptions& options) {
  command.Add("--layer", "PATTERN", "Read the layers that fit, nothing else; * and ? stand for any. May be repeated",
              options.layers);
  command.Add("--exclude-layer", "PATTERN", "Do not read the layers that fit. May be repeated", options.excludedLayers);
}

/// An option that takes a number from 1 to `most` and hands it to `keep`.
void AddLimitOption(const Command& command, const std::string& name, const char* unit, const std::string& meaning,
                    std::uint64_t most, const std::function<void(std::uint64_t)>& keep) {
  command.Add<std::int64_t>(name, unit, meaning, [name, most, keep](std::int64_t value) {
    if (value < 1 || static_cast<std::uint64_t>(value) > most) {
      throw UsageError(fmt::format("{} {}: expected a number from 1 to {}", name, value, most));
    }
    keep(static_cast<std::uint64_t>(value));
  });
}

void AddLimitOptions(const Command& command, DrawingOptions& options) {
  AddLimitOption(command, "--max-entities", "N",
                 fmt::format("Refuse drawings of more lines and arcs. Without it {}", options.reading.mostEntities),
                 kMostEntitiesAsked, [&](std::uint64_t count) { options.reading.mostEntities = count; });
  AddLimitOption(command, "--max-file", "MIB",
                 fmt::format("Refuse larger files. Without it {} MiB", options.reading.largestFile / kMebibyte),
                 kMostMebibytes, [&](std::uint64_t size) { options.reading.largestFile = size * kMebibyte; });
  AddLimitOption(command, "--max-memory", "MIB", "Give up when more memory is needed", kMostMebibytes,
                 [&](std::uint64_t size) { options.limits.memory = size * kMebibyte; });
  AddLimitOption(command, "--max-seconds", "S", "Give up when more processor time is needed", kMostSeconds,
                 [&](std::uint64_t seconds) { options.limits.seconds = seconds; });
  command.AddFlag("--isolate",
                  "Work in a process apart: where that one crashes or is killed, say so, with an exit code of its own",
                  options.isIsolated);
}

bool FitsAny(const std::string& layer, const std::vector<std::string>& patterns) {
  return std::any_of(patterns.begin(), patterns.end(),
                     [&](const std::string& pattern) { return FitsPattern(layer, pattern); });
}

std::string Layers(const Drawing& drawing) {
  std::set<std::string> layers;
  for (const DrawingEntity& entity : drawing.entities) layers.insert(entity.layer);
  return fmt::format("{}", fmt::join(layers, ", "));
}

/// A pattern that fits nothing is rather a slip than a wish.
void CheckPatterns(const char* option, const std::vector<std::string>& patterns, const Drawing& drawing) {
  for (const std::string& pattern : patterns) {
    const bool isUsed = std::any_of(drawing.entities.begin(), drawing.entities.end(),
                                    [&](const DrawingEntity& entity) { return FitsPattern(entity.layer, pattern); });
    if (isUsed) continue;
    throw InputError(drawing.path, 0, fmt::format("no lines or arcs on a layer that fits {} {}", option, pattern),
                     "its layers are " + Layers(drawing));
  }
}

void TakeLayers(const DrawingOptions& options, Drawing& drawing) {
  if (options.layers.empty() && options.excludedLayers.empty()) return;
  CheckPatterns("--layer", options.layers, drawing);
  CheckPatterns("--exclude-layer", options.excludedLayers, drawing);
  const auto isUnwanted = [&](const std::string& layer) {
    return (!options.layers.empty() && !FitsAny(layer, options.layers)) || FitsAny(layer, options.excludedLayers);
  };
  std::erase_if(drawing.entities, [&](const DrawingEntity& entity) { return isUnwanted(entity.layer); });
  std::erase_if(drawing.texts, [&](const DrawingText& text) { return isUnwanted(text.layer); });
  std::erase_if(drawing.skipped, [&](const auto& item) { return isUnwanted(item.first.layer); });
  drawing.extents = ExtentsOf(drawing.entities);
}

void RefuseSkipped(const Drawing& drawing) {
  if (drawing.skipped.empty()) return;
  std::string kinds;
  for (const auto& [kind, tally] : drawing.skipped) {
    kinds += fmt::format("{}{}", kinds.empty() ? "" : ", ", SkippedText(kind, tally));
  }
  throw InputError(drawing.path, 0, "not everything is read: " + kinds,
                   "leave out --strict to go on without, or the layers with --exclude-layer");
}

}  // namespace

void AddDrawingOptions(const Command& aCommand, DrawingOptions& aOptions) {
  aCommand.AddRequired("DRAWING", "The drawing, a DXF file in ASCII", aOptions.path);
  aCommand.Add<std::string>("--units", "U", "The unit the drawing is drawn in, whatever it says itself: " + UnitNames(),
                            [&](const std::string& name) { aOptions.reading.units = UnitsOf(name); });
  AddLayerOptions(aCommand, aOptions);
  const auto keepOrigin = [&aOptions](const std::string& text) {
    std::tie(aOptions.reading.originX, aOptions.reading.originY) = PairOf("--origin", text);
  };
  aCommand.Add<std::string>("--origin", "X,Y",
                            "The point that becomes the origin, the axis of the machine, in millimetres", keepOrigin);
  aCommand.Add<double>(
      "--flatten", "MM",
      "The furthest that an ellipse or a spline may lie from the lines and arcs it is made into. Without it "
      "0.01 mm or a thousandth of the curve's size, whichever is less",
      [&](double value) { aOptions.reading.flattenTolerance = CheckedLength("--flatten", value); });
  aCommand.AddFlag("--strict", "Whatever of the drawing is not read is an error", aOptions.strict);
  AddSettingsOptions(aCommand, aOptions.settings);
  AddLimitOptions(aCommand.InGroup("Limits"), aOptions);
  aCommand.Check([&aOptions] { CheckSettings(aOptions.settings); });
}

ExitCode RunAsAsked(const DrawingOptions& aOptions, const std::vector<Output>& aOutputs,
                    const std::function<ExitCode()>& aWork) {
  return aOptions.isIsolated ? RunApart(aOutputs, aWork) : aWork();
}

double CheckedLength(const char* aOption, double aLength) {
  if (aLength > 0 && std::isfinite(aLength)) return aLength;
  throw UsageError(fmt::format("{} {}: expected a length in millimetres above 0", aOption, aLength));
}

double CheckedArea(const char* aOption, double aArea) {
  if (aArea >= 0 && std::isfinite(aArea)) return aArea;
  throw UsageError(fmt::format("{} {}: expected an area in mm2, 0 or more", aOption, aArea));
}

std::pair<double, double> PairOf(const std::string& aOption, const std::string& aText) {
  const std::size_t comma = aText.find(',');
  if (comma != std::string::npos) {
    const auto x = ParseNumber(std::string_view(aText).substr(0, comma));
    const auto y = ParseNumber(std::string_view(aText).substr(comma + 1));
    if (x && y) return {*x, *y};
  }
  throw UsageError(
      fmt::format("{} {}: expected two numbers with a comma between, for example {} 10,-2.5", aOption, aText, aOption));
}

Drawing LoadDrawing(const DrawingOptions& aOptions) {
  LimitProcess(aOptions.limits);
  Drawing drawing = ReadDrawing(aOptions.path, aOptions.reading);
  TakeLayers(aOptions, drawing);
  if (aOptions.strict) RefuseSkipped(drawing);
  return drawing;
}

}  // namespace xsec
