#include "xsec/Json.h"

namespace xsec {

nlohmann::json ParsedJson(std::string_view aText) {
  return nlohmann::json::parse(aText);
}

std::string LineOfJson(const nlohmann::json& aJson) {
  return Json(aJson).dump();  // so that one kind of value is enough to be written
}

std::string Dumped(const Json& aJson) {
  return aJson.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace xsec
