#pragma once

// JSON between text and values. Only the source of this header reads and writes texts with the library whose values
// these are, which takes long to compile.

#include <cstddef>
#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace xsec {

/// What is written: its keys stay as they are put in. What has been read is nlohmann::json, its keys sorted.
using Json = nlohmann::ordered_json;

/// Throws nlohmann::json::parse_error, and out_of_range for a number that no double holds.
nlohmann::json ParsedJson(std::string_view aText);

/// In one line.
std::string LineOfJson(const nlohmann::json& aJson);

/// As it goes into a file: indented, numbers to the last bit, bytes that are no UTF-8 replaced.
std::string Dumped(const Json& aJson);

/// The same of an object, one of whose arrays is given element by element: as values they take much more memory than as
/// text, and there is but one of them at a time.
/// REQUIRES: an empty array under the key.
std::string Dumped(const Json& aJson, std::string_view aKey, std::size_t aCount,
                   const std::function<Json(std::size_t)>& aElement);

}  // namespace xsec
