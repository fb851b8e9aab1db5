#include "xsec/CommandLine.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cmath>

#include "xsec/Errors.h"
#include "xsec/Units.h"

namespace xsec {

namespace {

constexpr const char* kDescription = "xsec finds the regions of a machine's cross-section in a drawing.";

constexpr const char* kExamples =
    "Examples:\n"
    "  xsec regions stator.dxf                        a table of all regions\n"
    "  xsec regions stator.dxf -o stator.svg          and a picture of them\n"
    "  xsec regions pole.dxf --units m -o pole.json   a drawing in metres, for the next program\n"
    "  xsec regions rotor.dxf --tol 0.01              ends less than 0.01 mm apart meet\n"
    "\n"
    "Exit codes: 0 fine, 2 wrong usage, 3 drawing unreadable, 4 output not written, 5 no closed region found.";

/// What the parser fills in before it is checked.
struct RawArguments {
  std::string drawing;
  std::vector<std::string> outputs;
  std::string units;
  double tolerance = 0;
  std::vector<std::string> fields;
  int machineType = 0;
};

/// Adds the command to the program and binds its options to where they are kept.
void AddRegions(CLI::App& app, RawArguments& raw) {
  CLI::App& regions = *app.add_subcommand("regions", "Find, name, nest and measure the closed regions of a drawing");
  regions.add_option("DRAWING", raw.drawing, "The drawing, a DXF file in ASCII")->required()->type_name("");
  regions
      .add_option("-o,--output", raw.outputs,
                  "Write the regions to a file; its suffix says how: .svg a picture, .json everything. May be repeated")
      ->type_name("FILE")
      ->allow_extra_args(false);
  regions.add_option("--units", raw.units, "The unit the drawing is drawn in, whatever it says itself: " + UnitNames())
      ->type_name("U");
  regions
      .add_option("--tol", raw.tolerance,
                  "Linear tolerance: ends closer than this meet. Without it a millionth of the drawing's diagonal")
      ->type_name("MM");
  regions.add_option("--setting", raw.fields, "Set a numbered input field of the library. May be repeated")
      ->type_name("FIELD=VALUE")
      ->allow_extra_args(false);
  regions.add_option("--machine-type", raw.machineType, "The machine-type selector, 0 to 255")->type_name("N");
  regions.footer(kExamples);
}

std::optional<DrawingUnits> UnitsOf(const std::string& name) {
  if (name.empty()) return std::nullopt;
  auto units = FindUnit(name);
  if (!units) throw UsageError(fmt::format("--units {}: unknown unit; known are {}", name, UnitNames()));
  units->source = "--units";
  return units;
}

SettingsRequest SettingsOf(const RawArguments& raw, bool hasTolerance) {
  SettingsRequest request;
  if (hasTolerance) {
    if (!(raw.tolerance > 0 && std::isfinite(raw.tolerance))) {
      throw UsageError(fmt::format("--tol {}: expected a length in millimetres above 0", raw.tolerance));
    }
    request.tolerance = raw.tolerance;
  }
  for (const std::string& field : raw.fields) request.fields.push_back(ParseFieldValue(field));
  if (raw.machineType < 0 || raw.machineType > 255) {
    throw UsageError(fmt::format("--machine-type {}: expected a number from 0 to 255", raw.machineType));
  }
  request.machineType = static_cast<std::uint8_t>(raw.machineType);
  return request;
}

}  // namespace

std::optional<RegionsCommand> ParseCommandLine(int aCount, const char* const* aArguments) {
  RawArguments raw;
  CLI::App app(kDescription, "xsec");
  app.set_version_flag("--version", "xsec " XSEC_VERSION);
  app.footer(kExamples);
  app.require_subcommand(1);
  AddRegions(app, raw);
  try {
    app.parse(aCount, aArguments);
  } catch (const CLI::Success& success) {
    app.exit(success);
    return std::nullopt;
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  const bool hasTolerance = app.get_subcommand("regions")->count("--tol") > 0;
  return RegionsCommand{raw.drawing, FindOutputs(raw.outputs), UnitsOf(raw.units), SettingsOf(raw, hasTolerance)};
}

}  // namespace xsec
