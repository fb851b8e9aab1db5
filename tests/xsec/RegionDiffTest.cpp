#include "xsec/diff/RegionDiff.h"

#include <gmock/gmock.h>

#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/Errors.h"
#include "xsec/Report.h"
#include "xsec/Settings.h"

namespace xsec {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

FoundRegions Of(const std::vector<LayerText>& layers) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Drawing drawing = DrawingOf(layers);
  const Settings settings = ApplySettings({}, drawing);
  const Detection detection = Detect(drawing);
  return ParseRegions(JsonText({drawing, settings, detection}), "a.json");
}

std::vector<std::string> Differences(const std::vector<LayerText>& before, const std::vector<LayerText>& after) {
  std::vector<std::string> lines;
  for (const RegionChange& change : CompareRegions(Of(before), Of(after), 1e-4)) lines.push_back(LineOf(change, 1e-4));
  return lines;
}

const std::string kPlate = Rectangle(0, 0, 20, 10);

TEST(CompareRegions, SameDrawingHasNoDifferences) {
  const std::vector<LayerText> drawing = {{"Plate", kPlate}, {"Disc", Circle(5, 5, 2) + Circle(15, 5, 2)}};
  const std::vector<LayerText> shuffled = {{"Disc", Circle(15, 5, 2) + Circle(5, 5, 2)}, {"Plate", kPlate}};
  EXPECT_THAT(Differences(drawing, drawing), IsEmpty());
  EXPECT_THAT(Differences(drawing, shuffled), IsEmpty());
}

TEST(CompareRegions, RegionThatGrewIsChangedAndSoIsTheOneRoundIt) {
  EXPECT_THAT(Differences({{"Plate", kPlate}, {"Slot", Rectangle(2, 2, 6, 4)}},
                          {{"Plate", kPlate}, {"Slot", Rectangle(2, 2, 6, 5)}}),
              ::testing::UnorderedElementsAre(
                  AllOf(StartsWith("changed Plate"), HasSubstr("net area 192 mm2"), HasSubstr("now 188 mm2 (-4)")),
                  AllOf(StartsWith("changed Slot"), HasSubstr("now 12 mm2 (+4), moved by 0.5 mm to (4, 3.5)"))));
}

TEST(CompareRegions, MovedAddedAndRemovedAreTold) {
  EXPECT_THAT(Differences({{"Disc", Circle(0, 0, 2)}}, {{"Disc", Circle(30, 0, 2)}}),
              ElementsAre(AllOf(StartsWith("changed Disc"), HasSubstr("moved by "))));
  EXPECT_THAT(Differences({{"Disc", Circle(0, 0, 2)}}, {{"Hole", Circle(0, 0, 2)}}),
              ElementsAre(StartsWith("removed Disc"), StartsWith("added   Hole")));
}

TEST(ParseRegions, RefusesWhatIsNoJsonOfRegions) {
  const auto refusal = [](std::string_view text) -> std::string {
    try {
      ParseRegions(text, "a.json");
    } catch (const InputError& error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(refusal("{"), "a.json: this is no JSON of regions; write it with xsec regions -o FILE.json");
  EXPECT_THAT(refusal("{\"xsec\": {\"format\": 1}}"), StartsWith("a.json: this is no JSON of regions"));
  EXPECT_THAT(refusal("{\"xsec\": {\"format\": 9}}"), StartsWith("a.json: its format is 9, this program reads 1"));
}

}  // namespace

}  // namespace xsec
