#include "xsec/naming/Rules.h"

#include <gmock/gmock.h>

#include "tests/xsec/Drawings.h"
#include "xsec/Errors.h"
#include "xsec/PlainText.h"
#include "xsec/naming/RegionNaming.h"

namespace xsec {

namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;
using ::testing::StartsWith;

/// What reading the rules is refused with, empty when they are taken.
std::string RefusalOfRules(std::string_view text) {
  try {
    ParseRules(text, "r.json");
  } catch (const InputError& error) {
    return error.what();
  }
  return "";
}

TEST(ParseRules, ReadsConditionsAndWhatIsSet) {
  const auto rules = ParseRules(R"({"rules": [
    {"when": {"layer": "MAG*", "radius": [10, 20.5], "colour": 3}, "set": {"name": "Magnet", "type": "magnet"}},
    {"set": {"material": "Steel", "colour": "#AABBCC", "type": 49}}]})",
                                "r.json");
  ASSERT_THAT(rules, SizeIs(2));
  EXPECT_EQ(rules[0].when.layer, "MAG*");
  EXPECT_EQ(rules[0].when.radius->outer, 20.5);
  EXPECT_EQ(rules[0].when.colour, 3);
  EXPECT_EQ(rules[0].set.type, GeometryEngine::rtMagnet);
  EXPECT_FALSE(rules[1].when.layer);
  EXPECT_EQ(rules[1].set.material, "Steel");
  EXPECT_EQ(rules[1].set.colour, "#aabbcc");
  EXPECT_EQ(rules[1].set.type, GeometryEngine::rtShaft);
}

TEST(ParseRules, SaysWhereTheFaultIs) {
  EXPECT_THAT(RefusalOfRules("{\"rules\": [\n  {\"set\": }\n]}"), StartsWith("r.json:2: this is no JSON"));
  EXPECT_THAT(RefusalOfRules("{\"rules\": [\n{\"when\":\n{\"radius\": [1, 1e999]}}]}"),
              StartsWith("r.json:3: 1e999 is too large a number"));
  EXPECT_THAT(RefusalOfRules("[]"), StartsWith("r.json: expected an object"));
  EXPECT_THAT(RefusalOfRules("{}"), StartsWith("r.json: there are no rules"));
  EXPECT_THAT(RefusalOfRules(R"({"rules": [{"set": {}}]})"), StartsWith("r.json: rules[0].set: nothing is set"));
  EXPECT_THAT(RefusalOfRules(R"({"rules": [{"when": {}}]})"), StartsWith("r.json: rules[0]: nothing is set"));
  EXPECT_THAT(RefusalOfRules(R"({"rules": [{"set": {"name": ""}}]})"),
              StartsWith("r.json: rules[0].set.name: expected a text"));
  EXPECT_THAT(RefusalOfRules(R"({"rules": [{"set": {"colour": "red"}}]})"),
              StartsWith("r.json: rules[0].set.colour: \"red\" is no colour"));
  EXPECT_THAT(RefusalOfRules(R"({"rules": [{"set": {"name": "a"}}, {"set": {"type": "Magnets"}}]})"),
              StartsWith("r.json: rules[1].set.type: \"Magnets\" is no type of region; known are 0 to 60"));
  EXPECT_THAT(RefusalOfRules(R"({"rules": [{"when": {"radius": [5, 4]}, "set": {"name": "a"}}]})"),
              StartsWith("r.json: rules[0].when.radius: expected two radii"));
  EXPECT_THAT(RefusalOfRules(R"({"rules": [{"when": {"colour": 256}, "set": {"name": "a"}}]})"),
              StartsWith("r.json: rules[0].when.colour: expected a colour index"));
  EXPECT_THAT(
      RefusalOfRules(R"({"rules": [{"when": {"layers": "x"}, "set": {"name": "a"}}]})"),
      StartsWith("r.json: rules[0].when: unknown key \"layers\"; known are layer, block, text, colour, radius"));
}

TEST(FitsPattern, KnowsStarsAndQuestionMarksAndNoCase) {
  EXPECT_TRUE(FitsPattern("Magnet_12", "magnet*"));
  EXPECT_TRUE(FitsPattern("abcabd", "*ab?"));
  EXPECT_TRUE(FitsPattern("", "*"));
  EXPECT_TRUE(FitsPattern("a", "a**"));
  EXPECT_FALSE(FitsPattern("ab", "a"));
  EXPECT_FALSE(FitsPattern("", "?"));
  EXPECT_FALSE(FitsPattern("abc", "*b"));
}

TEST(PlainMText, LeavesTheWordsAlone) {
  EXPECT_EQ(PlainMText("{\\fArial|b0;\\H2.5;Magnet}\\PN42\\~SH"), "Magnet N42 SH");
  EXPECT_EQ(PlainMText("a\\S1^2; \\{b\\} \\\\"), "a1/2 {b} \\");
  EXPECT_EQ(PlainText(" 10%%d %%c5 %%uline%%u "), "10° ⌀5 line");
  EXPECT_EQ(PlainMText("\\"), "\\");
  EXPECT_EQ(PlainMText("\\f"), "");
}

/// A plate with two discs, words in the plate and in the left disc.
Drawing Discs() {
  Drawing drawing = DrawingOf({{"Plate", Rectangle(-20, -5, 20, 5)}, {"Disc", Circle(-10, 0, 2) + Circle(10, 0, 3)}});
  drawing.texts = {{0, 0, "steel", "Words", 1}, {-10, 1, "Copper 7", "Words", 2}, {50, 50, "nowhere", "Words", 3}};
  drawing.entities[4].colour = drawing.entities[5].colour = 3;
  drawing.layerColours["Disc"] = 5;
  for (std::size_t i = 4; i < 8; ++i) drawing.entities[i].block = i < 6 ? "left" : "";
  return drawing;
}

std::vector<Region> Named(const NamingRequest& request, std::vector<std::string>* warnings = nullptr) {
  const Drawing drawing = Discs();
  Detection detection = Detect(drawing);
  std::vector<std::string> ignored;
  NameRegions(detection.regions, drawing, request, warnings == nullptr ? ignored : *warnings);
  std::sort(detection.regions.begin(), detection.regions.end(),
            [](const Region& a, const Region& b) { return a.baseArea < b.baseArea; });
  return detection.regions;
}

std::vector<std::string> NamesOf(const std::vector<Region>& regions) {
  std::vector<std::string> names;
  for (const Region& region : regions) names.push_back(region.name);
  return names;
}

TEST(NameRegions, ByLayerTextOrBlockWithTheLayerForWhatHasNone) {
  using ::testing::ElementsAre;
  EXPECT_THAT(NamesOf(Named({NameSource::Layer, {}})), ElementsAre("Disc", "Disc", "Plate"));
  EXPECT_THAT(NamesOf(Named({NameSource::Text, {}})), ElementsAre("Copper 7", "Disc", "steel"));
  EXPECT_THAT(NamesOf(Named({NameSource::Block, {}})), ElementsAre("left", "Disc", "Plate"));
}

TEST(NameRegions, EachPropertyIsSetByTheFirstRuleThatFitsAndHasIt) {
  const auto rules = ParseRules(R"({"rules": [
    {"when": {"text": "copper*"}, "set": {"name": "Bar"}},
    {"when": {"layer": "disc", "colour": 5}, "set": {"name": "Hole", "material": "Air"}},
    {"when": {"layer": "disc"}, "set": {"name": "unused", "material": "Copper", "type": 22}},
    {"when": {"radius": [0, 9]}, "set": {"colour": "#112233"}},
    {"when": {"block": "right"}, "set": {"name": "never"}}]})",
                                "r.json");
  std::vector<std::string> warnings;
  const auto regions = Named({NameSource::Layer, rules}, &warnings);
  EXPECT_EQ(regions[0].name, "Bar");
  EXPECT_EQ(regions[0].material, "Copper");
  EXPECT_EQ(regions[0].type, GeometryEngine::rtRotorBar);
  EXPECT_EQ(regions[1].name, "Hole");
  EXPECT_EQ(regions[1].material, "Air");
  EXPECT_EQ(regions[1].colour, "");
  EXPECT_EQ(regions[2].colour, "#112233");
  EXPECT_EQ(regions[2].name, "Plate");
  EXPECT_THAT(warnings, ::testing::ElementsAre("rules[4] fits no region"));
}

}  // namespace

}  // namespace xsec
