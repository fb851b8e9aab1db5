#pragma once

// What the JSON texts have in common.

#include <nlohmann/json.hpp>
#include <string>

#include "xsec/Point.h"

namespace xsec {

using Json = nlohmann::ordered_json;

inline Json OfPoint(const Point& aPoint) {
  return Json::array({aPoint.x, aPoint.y});
}

/// As it goes into a file: indented, numbers to the last bit, bytes that are no UTF-8 replaced.
inline std::string Dumped(const Json& aJson) {
  return aJson.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace xsec
