// The outputs that are read by other programs: CSV, DXF, .geo.

#include <cmath>
#include <numbers>

#include <gmock/gmock.h>

#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/DxfReader.h"
#include "xsec/Json.h"
#include "xsec/Report.h"
#include "xsec/Schema.h"
#include "xsec/Settings.h"
#include "xsec/output/DxfWriter.h"

namespace xsec {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

std::string TextOf(const Drawing& drawing, std::string (*render)(const Report&), std::size_t copies = 1) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Settings settings = ApplySettings({}, drawing);
  const Detection detection = Detect(drawing);
  return render({drawing, settings, detection, copies});
}

TEST(CsvText, QuotesNamesAndCountsCopies) {
  const std::string csv = TextOf(DrawingOf({{"Plate, \"A\"", Rectangle(0, 0, 4, 2.5)}}), &CsvText, 8);
  EXPECT_THAT(csv, StartsWith("id,unique_name,name,type,material,parent,depth,net_area_mm2,"));
  EXPECT_THAT(
      csv, HasSubstr("\n1,\"Plate, \"\"A\"\"\",\"Plate, \"\"A\"\"\",Undefined,,,0,10,10,0,8,80,2,1.25,2,1.25,4,0\n"));
}

TEST(DxfOutputText, GivesTheSameOutlinesWhenItIsRead) {
  const Drawing drawing = DrawingOf({{"Plate ä", Rectangle(0, 0, 10, 6)}, {"Disc", Circle(4, 3, 2)}});
  const std::string text = TextOf(drawing, &DxfOutputText);
  const Drawing again = ReadDrawingText(text, "again.dxf");
  EXPECT_EQ(again.units.source, "file");
  EXPECT_EQ(again.units.name, "mm");
  EXPECT_THAT(again.skipped, SizeIs(0));
  ASSERT_THAT(again.entities, SizeIs(6));
  const Detection detection = Detect(again);
  EXPECT_EQ(RegionOfArea(detection, 60).name, "Plate ä");
  EXPECT_EQ(RegionOfArea(detection, std::numbers::pi * 4).name, "Disc");
}

TEST(DxfTextOf, SpellsWhatLayersMayNotHold) {
  const Loop loop = {Travel(GeometryEngine::TDXFEntity::Line({0, 0}, {1, 0}), true),
                     Travel(GeometryEngine::TDXFEntity::Line({1, 0}, {0, 1}), true),
                     Travel(GeometryEngine::TDXFEntity::Line({0, 1}, {0, 0}), true)};
  const std::string text = DxfTextOf({{loop, "a/b:c*Ω", 3}});
  EXPECT_THAT(text, HasSubstr("\na_b_c_\\U+03A9\n"));
  EXPECT_THAT(text, HasSubstr("\n 62\n3\n"));
}

TEST(GeoText, NamesEachGroupOnceAndTheOuterBoundary) {
  const std::string geo =
      TextOf(DrawingOf({{"Plate", Rectangle(0, 0, 20, 10)}, {"Disc", Circle(5, 5, 2) + Circle(15, 5, 2)}}), &GeoText);
  const std::size_t disc = geo.find("Physical Surface(\"Disc\"");
  ASSERT_NE(disc, std::string::npos);
  EXPECT_EQ(geo.find("Physical Surface(\"Disc\"", disc + 1), std::string::npos);
  EXPECT_THAT(geo, HasSubstr("Physical Surface(\"Plate\""));
  EXPECT_THAT(geo, HasSubstr("Physical Curve(\"Outer boundary\""));
  EXPECT_THAT(geo, Not(HasSubstr("nan")));
}

// A name with all that ends a name in some format.
TEST(OutputTexts, HoldNamesThatEndNothing) {
  const std::string name = "../A\", \"B\" <c> & {d}; \\";
  const Drawing drawing = DrawingOf({{name, Rectangle(0, 0, 4, 2.5)}});
  EXPECT_EQ(ParsedJson(TextOf(drawing, &JsonText))["regions"][0]["name"], name);
  EXPECT_THAT(TextOf(drawing, &CsvText), HasSubstr("\"../A\"\", \"\"B\"\" <c> & {d}; \\\""));
  EXPECT_THAT(TextOf(drawing, &GeoText), HasSubstr("(\"../A', 'B' <c> & {d}; \\\", 1)"));
  EXPECT_THAT(TextOf(drawing, &FemText), HasSubstr("\"../A', 'B' <c> & {d}; \\\"\n"));
  EXPECT_THAT(TextOf(drawing, &SvgText), HasSubstr(">../A&quot;, &quot;B&quot; &lt;c&gt; &amp; {d}; \\</text>"));
  EXPECT_THAT(TextOf(drawing, &DxfOutputText), HasSubstr("\n.._A_, _B_ _c_ & {d}_ _\n"));
}

TEST(RegionsSchema, IsTheFileInTheSources) {
  EXPECT_THAT(std::string(RegionsSchema()), HasSubstr("\"$schema\""));
}

}  // namespace

}  // namespace xsec
