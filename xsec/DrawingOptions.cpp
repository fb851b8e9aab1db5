#include "xsec/DrawingOptions.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
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

double CheckedLength(const char* option, double length) {
  if (length > 0 && std::isfinite(length)) return length;
  throw UsageError(fmt::format("{} {}: expected a length in millimetres above 0", option, length));
}

double CheckedArea(double area) {
  if (area >= 0 && std::isfinite(area)) return area;
  throw UsageError(fmt::format("--sliver-area {}: expected an area in square millimetres", area));
}

std::uint8_t CheckedMachineType(int type) {
  if (0 <= type && type <= 255) return static_cast<std::uint8_t>(type);
  throw UsageError(fmt::format("--machine-type {}: expected a number from 0 to 255", type));
}

void AddSettingsOptions(CLI::App& command, SettingsRequest& settings) {
  command
      .add_option_function<double>(
          "--tol", [&](double value) { settings.tolerance = CheckedLength("--tol", value); },
          "Linear tolerance: ends closer than this meet. Without it a millionth of the drawing's diagonal")
      ->type_name("MM");
  command
      .add_option_function<std::vector<std::string>>(
          "--setting",
          [&](const std::vector<std::string>& fields) {
            for (const std::string& field : fields) settings.fields.push_back(ParseFieldValue(field));
          },
          "Set a numbered input field of the library. May be repeated")
      ->type_name("FIELD=VALUE")
      ->allow_extra_args(false);
  command
      .add_option_function<int>(
          "--machine-type", [&](int type) { settings.machineType = CheckedMachineType(type); },
          "The machine-type selector, 0 to 255")
      ->type_name("N");
  command
      .add_option_function<double>(
          "--sliver-area", [&](double area) { settings.sliverArea = CheckedArea(area); },
          "Regions smaller than this are slivers. Without it a square of the tolerance; regions thinner than the "
          "tolerance always are")
      ->type_name("MM2");
  command.add_flag("--drop-slivers", settings.dropsSlivers, "Make slivers part of the neighbour they share most with");
  command.add_flag_callback(
      "--no-prepare", [&] { settings.prepares = false; },
      "Hand the drawing to the library as it is, whatever way it lies");
}

void AddLayerOptions(CLI::App& command, DrawingOptions& options) {
  command
      .add_option("--layer", options.layers,
                  "Read the layers that fit, nothing else; * and ? stand for any. May be repeated")
      ->type_name("PATTERN")
      ->allow_extra_args(false);
  command.add_option("--exclude-layer", options.excludedLayers, "Do not read the layers that fit. May be repeated")
      ->type_name("PATTERN")
      ->allow_extra_args(false);
}

/// An option that takes a number from 1 to `most` and hands it to `keep`.
template <typename Keep>
void AddLimitOption(CLI::App& command, const std::string& name, const char* unit, const std::string& description,
                    std::uint64_t most, Keep keep) {
  const auto check = [name, most, keep](std::int64_t value) {
    if (value < 1 || static_cast<std::uint64_t>(value) > most) {
      throw UsageError(fmt::format("{} {}: expected a number from 1 to {}", name, value, most));
    }
    keep(static_cast<std::uint64_t>(value));
  };
  command.add_option_function<std::int64_t>(name, check, description)->type_name(unit)->group("Limits");
}

void AddLimitOptions(CLI::App& command, DrawingOptions& options) {
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
  command
      .add_flag("--isolate", options.isIsolated,
                "Work in a process apart: where that one crashes or is killed, say so, with an exit code of its own")
      ->group("Limits");
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

void AddDrawingOptions(CLI::App& aCommand, DrawingOptions& aOptions) {
  aCommand.add_option("DRAWING", aOptions.path, "The drawing, a DXF file in ASCII")->required()->type_name("");
  aCommand
      .add_option_function<std::string>(
          "--units", [&](const std::string& name) { aOptions.reading.units = UnitsOf(name); },
          "The unit the drawing is drawn in, whatever it says itself: " + UnitNames())
      ->type_name("U");
  AddLayerOptions(aCommand, aOptions);
  aCommand
      .add_option_function<std::string>(
          "--origin",
          [&](const std::string& text) {
            std::tie(aOptions.reading.originX, aOptions.reading.originY) = PairOf("--origin", text);
          },
          "The point that becomes the origin, the axis of the machine, in millimetres")
      ->type_name("X,Y");
  aCommand
      .add_option_function<double>(
          "--flatten", [&](double value) { aOptions.reading.flattenTolerance = CheckedLength("--flatten", value); },
          "The furthest that an ellipse or a spline may lie from the lines and arcs it is made into. Without it "
          "0.01 mm or a thousandth of the curve's size, whichever is less")
      ->type_name("MM");
  aCommand.add_flag("--strict", aOptions.strict, "Whatever of the drawing is not read is an error");
  AddSettingsOptions(aCommand, aOptions.settings);
  AddLimitOptions(aCommand, aOptions);
  aCommand.parse_complete_callback([&aOptions] { CheckSettings(aOptions.settings); });
}

ExitCode RunAsAsked(const DrawingOptions& aOptions, const std::vector<Output>& aOutputs,
                    const std::function<ExitCode()>& aWork) {
  return aOptions.isIsolated ? RunApart(aOutputs, aWork) : aWork();
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
