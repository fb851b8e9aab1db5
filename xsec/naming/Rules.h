#pragma once

// Rules that give regions their names, types, colours and materials, read from a JSON file:
//
//   {"rules": [{"when": {"layer": "MAG*", "radius": [40, 80]}, "set": {"name": "Magnet", "material": "N42"}}]}

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "GeometryEngine/host/TGeometryRegionType.h"

namespace xsec {

/// UNITS: millimetres from the origin; both ends belong to it.
struct RadiusBand {
  double inner = 0;
  double outer = 0;
};

/// What is stated has to hold, what is not stated holds always. Patterns know * and ?, and no case of letters.
struct RuleCondition {
  std::optional<std::string> layer;    ///< most of the outline comes from it
  std::optional<std::string> block;    ///< most of the outline comes from it
  std::optional<std::string> text;     ///< stands in the region itself, not in one inside it
  std::optional<std::int32_t> colour;  ///< index; most of the outline has it
  std::optional<RadiusBand> radius;    ///< a point well inside the region lies in it
};

struct RuleResult {
  std::optional<std::string> name;
  std::optional<GeometryEngine::TGeometryRegionType> type;
  std::optional<std::string> colour;  ///< "#rrggbb"
  std::optional<std::string> material;
};

struct Rule {
  RuleCondition when;
  RuleResult set;
};

/// Throws InputError that says where in the file what is wrong.
std::vector<Rule> ParseRules(std::string_view aText, const std::string& aPath);
std::vector<Rule> LoadRules(const std::string& aPath);

/// Whether the whole text fits the pattern.
bool FitsPattern(std::string_view aText, std::string_view aPattern);

}  // namespace xsec
