#include "xsec/naming/Rules.h"

#include <fmt/format.h>

#include <algorithm>

#include "xsec/DxfText.h"
#include "xsec/Errors.h"
#include "xsec/Json.h"
#include "xsec/LetterCase.h"

namespace xsec {

namespace {

using GeometryEngine::TGeometryRegionType;

constexpr std::int32_t kLastColour = 255;

/// One value of the file with the way to it, for messages: "rules[2].when.radius".
struct Place {
  const nlohmann::json& value;
  std::string way;
  const std::string& file;

  [[noreturn]] void Fail(const std::string& problem, const std::string& advice) const {
    throw InputError(file, 0, way.empty() ? problem : fmt::format("{}: {}", way, problem), advice);
  }
  Place At(const std::string& key) const { return {value.at(key), way.empty() ? key : way + "." + key, file}; }
  Place At(std::size_t index) const { return {value.at(index), fmt::format("{}[{}]", way, index), file}; }
  bool Has(const char* key) const { return value.contains(key); }

  void ExpectObject(std::initializer_list<std::string_view> keys) const {
    const std::string known = fmt::format("{}", fmt::join(keys, ", "));
    if (!value.is_object()) Fail("expected an object in braces", "its keys may be " + known);
    for (const auto& [key, unused] : value.items()) {
      if (std::find(keys.begin(), keys.end(), key) == keys.end()) {
        Fail(fmt::format("unknown key \"{}\"", key), "known are " + known);
      }
    }
  }

  std::string Text() const {
    if (!value.is_string() || value.get<std::string>().empty()) Fail("expected a text", "write it in quotes");
    return value.get<std::string>();
  }
};

std::optional<std::string> TextAt(const Place& place, const char* key) {
  return place.Has(key) ? std::optional(place.At(key).Text()) : std::nullopt;
}

std::int32_t ColourIndex(const Place& place) {
  if (!place.value.is_number_integer() || place.value < 1 || place.value > kLastColour) {
    place.Fail("expected a colour index", "a whole number from 1 to 255, as the drawing numbers its colours");
  }
  return place.value.get<std::int32_t>();
}

RadiusBand Band(const Place& place) {
  const nlohmann::json& value = place.value;
  const bool isPair = value.is_array() && value.size() == 2 && value[0].is_number() && value[1].is_number();
  if (!isPair || !(0 <= value[0].get<double>() && value[0].get<double>() <= value[1].get<double>())) {
    place.Fail("expected two radii", "write [INNER, OUTER] in millimetres from the origin, the smaller one first");
  }
  return {value[0].get<double>(), value[1].get<double>()};
}

std::string FillColour(const Place& place) {
  std::string colour = place.Text();
  std::transform(colour.begin(), colour.end(), colour.begin(), Lower);
  if (colour.size() != 7 || colour[0] != '#' || colour.find_first_not_of("0123456789abcdef", 1) != std::string::npos) {
    place.Fail(fmt::format("\"{}\" is no colour", colour), "write it as \"#rrggbb\" in hexadecimal digits");
  }
  return colour;
}

TGeometryRegionType RegionType(const Place& place) {
  std::string names;
  for (int i = 0; i <= GeometryEngine::kLastRegionType; ++i) {
    const auto type = static_cast<TGeometryRegionType>(i);
    const std::string_view name = GeometryEngine::GetRegionTypeString(type);
    const bool isNumber = place.value.is_number_integer() && place.value == i;
    if (isNumber || (place.value.is_string() && IsSameName(place.value.get<std::string>(), name))) return type;
    names += fmt::format("{}{}", i == 0 ? "" : ", ", name);
  }
  place.Fail(fmt::format("{} is no type of region", LineOfJson(place.value)), "known are 0 to 60, or by name " + names);
}

RuleCondition Condition(const Place& place) {
  place.ExpectObject({"layer", "block", "text", "colour", "radius"});
  RuleCondition when;
  when.layer = TextAt(place, "layer");
  when.block = TextAt(place, "block");
  when.text = TextAt(place, "text");
  if (place.Has("colour")) when.colour = ColourIndex(place.At("colour"));
  if (place.Has("radius")) when.radius = Band(place.At("radius"));
  return when;
}

RuleResult Result(const Place& place) {
  place.ExpectObject({"name", "type", "colour", "material"});
  if (place.value.empty()) place.Fail("nothing is set", "give name, type, colour or material");
  RuleResult set;
  set.name = TextAt(place, "name");
  set.material = TextAt(place, "material");
  if (place.Has("type")) set.type = RegionType(place.At("type"));
  if (place.Has("colour")) set.colour = FillColour(place.At("colour"));
  return set;
}

Rule RuleOf(const Place& place) {
  place.ExpectObject({"when", "set"});
  if (!place.Has("set")) place.Fail("nothing is set", "add \"set\" with name, type, colour or material");
  return {place.Has("when") ? Condition(place.At("when")) : RuleCondition{}, Result(place.At("set"))};
}

std::size_t LineAt(std::string_view text, std::size_t byte) {
  const std::string_view before = text.substr(0, byte);
  return static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1;
}

/// The number that a message of the JSON library has between quotes.
std::string_view QuotedIn(std::string_view message) {
  const std::size_t first = message.find('\'') + 1;
  return message.substr(first, message.rfind('\'') - first);
}

nlohmann::json Parsed(std::string_view text, const std::string& path) {
  try {
    return ParsedJson(text);
  } catch (const nlohmann::json::parse_error& error) {
    throw InputError(path, LineAt(text, error.byte), "this is no JSON",
                     "see whether a comma, a quote or a bracket is missing here or before");
  } catch (const nlohmann::json::out_of_range& error) {
    const std::string_view number = QuotedIn(error.what());
    throw InputError(path, LineAt(text, text.find(number)), fmt::format("{} is too large a number", number),
                     "numbers go up to 1.7e308");
  }
}

}  // namespace

std::vector<Rule> ParseRules(std::string_view aText, const std::string& aPath) {
  const nlohmann::json json = Parsed(aText, aPath);
  const Place root{json, "", aPath};
  root.ExpectObject({"rules"});
  if (!root.Has("rules") || !json["rules"].is_array()) {
    root.Fail("there are no rules", "write {\"rules\": [ {\"when\": {...}, \"set\": {...}}, ... ]}");
  }
  const Place list = root.At("rules");
  std::vector<Rule> rules;
  for (std::size_t i = 0; i < list.value.size(); ++i) rules.push_back(RuleOf(list.At(i)));
  return rules;
}

std::vector<Rule> LoadRules(const std::string& aPath) {
  return ParseRules(LoadFile(aPath), aPath);
}

bool FitsPattern(std::string_view aText, std::string_view aPattern) {
  // Where to go on when what follows the latest star does not fit: one character further.
  std::size_t text = 0, pattern = 0, star = std::string_view::npos, resume = 0;
  while (text < aText.size()) {
    if (pattern < aPattern.size() && aPattern[pattern] == '*') {
      star = pattern++;
      resume = text;
    } else if (pattern < aPattern.size() &&
               (aPattern[pattern] == '?' || Lower(aPattern[pattern]) == Lower(aText[text]))) {
      ++pattern;
      ++text;
    } else if (star != std::string_view::npos) {
      pattern = star + 1;
      text = ++resume;
    } else {
      return false;
    }
  }
  return aPattern.find_first_not_of('*', pattern) == std::string_view::npos;
}

}  // namespace xsec
