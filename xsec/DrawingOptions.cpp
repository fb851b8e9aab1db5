#include "xsec/DrawingOptions.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cmath>
#include <vector>

#include "xsec/DxfReader.h"
#include "xsec/Errors.h"
#include "xsec/Units.h"

namespace xsec {

namespace {

DrawingUnits UnitsOf(const std::string& name) {
  auto units = FindUnit(name);
  if (!units) throw UsageError(fmt::format("--units {}: unknown unit; known are {}", name, UnitNames()));
  units->source = "--units";
  return *units;
}

double CheckedTolerance(double tolerance) {
  if (tolerance > 0 && std::isfinite(tolerance)) return tolerance;
  throw UsageError(fmt::format("--tol {}: expected a length in millimetres above 0", tolerance));
}

std::uint8_t CheckedMachineType(int type) {
  if (0 <= type && type <= 255) return static_cast<std::uint8_t>(type);
  throw UsageError(fmt::format("--machine-type {}: expected a number from 0 to 255", type));
}

void AddSettingsOptions(CLI::App& command, SettingsRequest& settings) {
  command
      .add_option_function<double>(
          "--tol", [&](double value) { settings.tolerance = CheckedTolerance(value); },
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
}

}  // namespace

void AddDrawingOptions(CLI::App& aCommand, DrawingOptions& aOptions) {
  aCommand.add_option("DRAWING", aOptions.path, "The drawing, a DXF file in ASCII")->required()->type_name("");
  aCommand
      .add_option_function<std::string>(
          "--units", [&](const std::string& name) { aOptions.units = UnitsOf(name); },
          "The unit the drawing is drawn in, whatever it says itself: " + UnitNames())
      ->type_name("U");
  AddSettingsOptions(aCommand, aOptions.settings);
}

Drawing LoadDrawing(const DrawingOptions& aOptions) {
  return ReadDrawing(aOptions.path, {aOptions.units, std::nullopt});
}

}  // namespace xsec
