#include "xsec/Json.h"

#include <utility>

namespace xsec {

namespace {

std::string Indented(const Json& json) {
  return json.dump(1, ' ', false, Json::error_handler_t::replace);
}

/// As it stands in an array in an object, without what is round it.
std::string IndentedElement(Json element) {
  constexpr std::string_view kBefore = "[\n [\n";
  constexpr std::string_view kAfter = "\n ]\n]";
  const std::string text = Indented(Json::array({Json::array({std::move(element)})}));
  return text.substr(kBefore.size(), text.size() - kBefore.size() - kAfter.size());
}

}  // namespace

nlohmann::json ParsedJson(std::string_view aText) {
  return nlohmann::json::parse(aText);
}

std::string LineOfJson(const nlohmann::json& aJson) {
  return Json(aJson).dump();  // so that one kind of value is enough to be written
}

std::string Dumped(const Json& aJson) {
  return Indented(aJson) + "\n";
}

std::string Dumped(const Json& aJson, std::string_view aKey, std::size_t aCount,
                   const std::function<Json(std::size_t)>& aElement) {
  const std::string whole = Dumped(aJson);
  if (aCount == 0) return whole;
  // No other line begins like this: within a text, a new line would be written as \n.
  const std::string line = "\n " + Json(aKey).dump() + ": [";
  const std::size_t place = whole.find(line) + line.size();
  std::string text = whole.substr(0, place);
  for (std::size_t i = 0; i < aCount; ++i) {
    text += i == 0 ? "\n" : ",\n";
    text += IndentedElement(aElement(i));
  }
  return text + "\n " + whole.substr(place);
}

}  // namespace xsec
