#include "xsec/Json.h"

#include <gmock/gmock.h>

namespace xsec {
namespace {

/// A text that holds what the place of the elements is found by.
constexpr const char* kMisleading = "a\n \"items\": [ b";

TEST(Dumped, ElementByElementIsWhatItIsAsAWhole) {
  const Json elements = {{{"name", kMisleading}, {"list", {1, 0.1}}}, Json::array(), {{"items", {1}}}, 5, "\xff"};
  Json json = {{"before", kMisleading}, {"nested", {{"items", {7}}}}, {"items", elements}, {"after", {1, 2}}};
  const std::string whole = Dumped(json);
  json["items"] = Json::array();
  EXPECT_EQ(Dumped(json, "items", elements.size(), [&](std::size_t i) { return elements[i]; }), whole);
}

TEST(Dumped, WithoutElementsIsTheEmptyArray) {
  const Json json = {{"items", Json::array()}};
  EXPECT_EQ(Dumped(json, "items", 0, [](std::size_t) { return Json(); }), "{\n \"items\": []\n}\n");
}

}  // namespace
}  // namespace xsec
