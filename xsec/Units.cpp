#include "xsec/Units.h"
#include "xsec/LetterCase.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace xsec {

namespace {

struct Unit {
  std::int32_t number;  // of $INSUNITS
  std::string_view name;
  std::string_view longName;
  double millimetres;
};

constexpr double kSurveyFoot = 1200.0 / 3937.0 * 1000.0;  // millimetres

constexpr std::array kUnits = {
    Unit{4, "mm", "millimetres", 1},
    Unit{5, "cm", "centimetres", 10},
    Unit{14, "dm", "decimetres", 100},
    Unit{6, "m", "metres", 1000},
    Unit{7, "km", "kilometres", 1e6},
    Unit{13, "um", "micrometres", 1e-3},
    Unit{12, "nm", "nanometres", 1e-6},
    Unit{1, "in", "inches", 25.4},
    Unit{2, "ft", "feet", 304.8},
    Unit{10, "yd", "yards", 914.4},
    Unit{3, "mi", "miles", 1609344},
    Unit{9, "mil", "mils", 0.0254},
    Unit{8, "uin", "microinches", 2.54e-5},
    Unit{11, "angstrom", "angstroms", 1e-7},
    Unit{15, "dam", "decametres", 1e4},
    Unit{16, "hm", "hectometres", 1e5},
    Unit{17, "Gm", "gigametres", 1e12},
    Unit{18, "au", "astronomical units", 149597870700e3},
    Unit{19, "ly", "light years", 9460730472580800e3},
    Unit{20, "pc", "parsecs", 3.0856775814913673e19},
    Unit{21, "us-ft", "US survey feet", kSurveyFoot},
    Unit{22, "us-in", "US survey inches", kSurveyFoot / 12},
    Unit{23, "us-yd", "US survey yards", kSurveyFoot * 3},
    Unit{24, "us-mi", "US survey miles", kSurveyFoot * 5280},
};

constexpr double kSmallestMachine = 2;     // millimetres across; below, the numbers are rather metres
constexpr double kLargestMachine = 20000;  // millimetres across; above, the numbers are rather micrometres

DrawingUnits AsDrawingUnits(const Unit& unit) {
  return {std::string(unit.name), unit.millimetres, ""};
}

}  // namespace

std::optional<DrawingUnits> FindUnit(std::string_view aName) {
  const auto place = std::find_if(kUnits.begin(), kUnits.end(), [&](const Unit& unit) {
    return IsSameName(unit.name, aName) || IsSameName(unit.longName, aName);
  });
  return place == kUnits.end() ? std::nullopt : std::optional(AsDrawingUnits(*place));
}

std::optional<DrawingUnits> FindUnit(std::int32_t aInsUnits) {
  const auto place =
      std::find_if(kUnits.begin(), kUnits.end(), [&](const Unit& unit) { return unit.number == aInsUnits; });
  return place == kUnits.end() ? std::nullopt : std::optional(AsDrawingUnits(*place));
}

std::string UnitNames() {
  std::string names;
  for (const Unit& unit : kUnits) {
    names += fmt::format("{}{}", names.empty() ? "" : ", ", unit.name);
  }
  return names;
}

std::string WarnOfAssumedUnit(const Extents& aExtents) {
  const double size = std::max(aExtents.maxX - aExtents.minX, aExtents.maxY - aExtents.minY);
  const std::string_view other = size < kSmallestMachine ? "m" : size > kLargestMachine ? "um" : "";
  if (other.empty()) {
    return "";
  }
  return fmt::format(
      "the file names no unit; taken as millimetres the drawing is {:.4g} mm across, so it is probably drawn in "
      "another "
      "unit: give it with --units, for example --units {}",
      size, other);
}

std::string WarnOfUnlikelyUnit(const Drawing& aDrawing) {
  const Extents& box = aDrawing.extents;
  const double size = std::max(box.maxX - box.minX, box.maxY - box.minY);
  const bool isLikely = kSmallestMachine <= size && size <= kLargestMachine;
  if (isLikely || aDrawing.entities.empty() || aDrawing.units.source == "assumed") return "";
  return fmt::format("drawn in {} ({}) the drawing is {:.4g} mm across", aDrawing.units.name, aDrawing.units.source,
                     size);
}

}  // namespace xsec
