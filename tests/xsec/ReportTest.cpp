#include "xsec/Report.h"

#include <algorithm>
#include <iterator>
#include <numbers>
#include <sstream>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/Json.h"
#include "xsec/RegionDetection.h"

namespace xsec {
namespace {

using nlohmann::json;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

/// A drawing carried through to its outputs.
struct Carried {
  explicit Carried(Drawing aDrawing, const SettingsRequest& aRequest = {}) : drawing(std::move(aDrawing)) {
    const GeometryEngine::support::TSettingsGuard guard;
    settings = ApplySettings(aRequest, drawing);
    detection = DetectRegions(drawing, settings);
  }
  Report report() const { return {drawing, settings, detection}; }
  json AsJson() const { return ParsedJson(JsonText(report())); }

  Drawing drawing;
  Settings settings;
  Detection detection;
};

/// A plate with a disc in it, a spur, and words that need escaping.
Drawing PlateWithDisc() {
  Drawing drawing =
      DrawingOf({{"Plate \"A\" & <B>", Rectangle(0, 0, 10, 6) + "L 10,6 12,8"}, {"Disc", Circle(4, 3, 2)}});
  drawing.path = "folder/plate & disc.dxf";
  drawing.skipped[{"TEXT", "Notes", "not read"}] = {3, 41};
  drawing.flattened["SPLINE"] = 2;
  drawing.warnings.push_back("odd size");
  return drawing;
}

std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++count;
  return count;
}

/// What stands in `text` after `begin`, up to `end`.
std::string Between(const std::string& text, const std::string& begin, const std::string& end) {
  const std::size_t from = text.find(begin);
  const std::size_t to = from == text.npos ? text.npos : text.find(end, from + begin.size());
  if (to == text.npos) {
    ADD_FAILURE() << "nothing between " << begin << " and " << end;
    return "";
  }
  return text.substr(from + begin.size(), to - from - begin.size());
}

std::string PathOf(const std::string& svg, std::size_t id) {
  return Between(Between(svg, "<path id=\"region-" + std::to_string(id) + "\"", "</path>"), " d=\"", "\"");
}

/// The numbers that a text parts by blanks.
std::vector<double> NumbersOf(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<double>(stream), {}};
}

TEST(JsonText, BearsItsFormatTheDrawingAndTheSettings) {
  const json all = Carried(PlateWithDisc(), {0.001, {{6529, 7}}, 4}).AsJson();
  EXPECT_EQ(all["xsec"]["format"], 1);
  EXPECT_EQ(all["drawing"]["file"], "folder/plate & disc.dxf");
  EXPECT_EQ(all["drawing"]["units"], json({{"name", "mm"}, {"millimetres", 1.0}, {"source", "file"}}));
  EXPECT_EQ(all["drawing"]["extents"], json({{"minX", 0}, {"minY", 0}, {"maxX", 12}, {"maxY", 8}}));
  EXPECT_EQ(all["drawing"]["entities"], 7);
  EXPECT_EQ(all["settings"]["tolerance"], 0.001);
  EXPECT_EQ(all["settings"]["toleranceGiven"], true);
  EXPECT_EQ(all["settings"]["machineType"], 4);
  EXPECT_EQ(all["settings"]["fields"]["6529"], 7);
  EXPECT_EQ(all["settings"]["fields"]["6525"], 0.001);
}

TEST(JsonText, NumbersOfEveryRegionComeBackToTheBit) {
  const Carried carried(
      DrawingOf({{"A", Rectangle(0.1, 0.2, 100.0 / 3, 700.0 / 3) + Circle(100.7, 1e-3 / 7, 1.0 / 7)}}));
  const json regions = carried.AsJson()["regions"];
  ASSERT_EQ(regions.size(), carried.detection.regions.size());
  ASSERT_THAT(carried.detection.regions, SizeIs(2));
  for (std::size_t i = 0; i < regions.size(); ++i) {
    const Region& region = carried.detection.regions[i];
    EXPECT_EQ(regions[i]["baseArea"].get<double>(), region.baseArea);
    EXPECT_EQ(regions[i]["netArea"].get<double>(), region.netArea);
    EXPECT_EQ(regions[i]["clearance"].get<double>(), region.clearance);
    EXPECT_THAT((Point{regions[i]["centroid"][0], regions[i]["centroid"][1]}),
                GeometryEngine::support::IsBits(region.centroid));
    EXPECT_THAT((Point{regions[i]["label"][0], regions[i]["label"][1]}), GeometryEngine::support::IsBits(region.label));
    ASSERT_EQ(regions[i]["outline"].size(), region.outline.size());
    for (std::size_t p = 0; p < region.outline.size(); ++p) {
      const json& piece = regions[i]["outline"][p];
      EXPECT_EQ(piece["start"][0].get<double>(), region.outline[p].from.x);
      EXPECT_EQ(piece["end"][1].get<double>(), region.outline[p].to.y);
      if (!region.outline[p].isArc) continue;
      EXPECT_EQ(piece["centre"][0].get<double>(), region.outline[p].centre.x);
      EXPECT_EQ(piece["radius"].get<double>(), region.outline[p].radius);
      EXPECT_EQ(piece["startAngle"].get<double>(), region.outline[p].startAngle);
      EXPECT_EQ(piece["endAngle"].get<double>(), region.outline[p].endAngle);
    }
  }
}

TEST(JsonText, TellsNestingOutlineAndHoles) {
  const Carried carried(PlateWithDisc());
  const json regions = carried.AsJson()["regions"];
  ASSERT_EQ(regions.size(), 2U);
  const bool plateFirst = regions[0]["name"] != "Disc";
  const json& plate = regions[plateFirst ? 0 : 1];
  const json& disc = regions[plateFirst ? 1 : 0];
  EXPECT_EQ(plate["uniqueName"], "Plate \"A\" & <B>");
  EXPECT_EQ(plate["type"],
            json({{"ordinal", 60}, {"name", GeometryEngine::GetRegionTypeString(GeometryEngine::rtUndefined)}}));
  EXPECT_TRUE(plate["parent"].is_null());
  EXPECT_EQ(plate["children"], json({disc["id"]}));
  EXPECT_EQ(disc["parent"], plate["id"]);
  EXPECT_EQ(disc["depth"], 1);
  EXPECT_NEAR(plate["netArea"].get<double>(), 60 - disc["baseArea"].get<double>(), 1e-9);
  ASSERT_EQ(plate["holes"].size(), 1U);
  ASSERT_EQ(plate["holes"][0].size(), 2U);
  for (const json& piece : plate["holes"][0]) EXPECT_EQ(piece["direction"], "clockwise");
  ASSERT_EQ(disc["outline"].size(), 2U);
  for (const json& piece : disc["outline"]) {
    EXPECT_EQ(piece["type"], "arc");
    EXPECT_EQ(piece["direction"], "anticlockwise");
    EXPECT_EQ(piece["layer"], "Disc");
  }
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(plate["outline"][i]["type"], "line");
    EXPECT_EQ(plate["outline"][i]["end"], plate["outline"][(i + 1) % 4]["start"]);
  }
}

TEST(JsonText, TellsWhatWasLeftOutAndWhatIsOpen) {
  const json diagnostics = Carried(PlateWithDisc()).AsJson()["diagnostics"];
  EXPECT_EQ(diagnostics["warnings"], json({"odd size"}));
  EXPECT_EQ(
      diagnostics["skipped"],
      json::array({{{"type", "TEXT"}, {"layer", "Notes"}, {"reason", "not read"}, {"count", 3}, {"firstLine", 41}}}));
  EXPECT_EQ(diagnostics["flattened"], json({{"SPLINE", 2}}));
  ASSERT_EQ(diagnostics["openPieces"].size(), 1U);
  const json& spur = diagnostics["openPieces"][0];
  EXPECT_NE(spur["startLoose"], spur["endLoose"]);
  EXPECT_EQ(spur["startLoose"] == true ? spur["start"] : spur["end"], json({12.0, 8.0}));
  EXPECT_EQ(spur["layer"], "Plate \"A\" & <B>");
  EXPECT_EQ(spur["source"]["type"], "LINE");
}

TEST(SvgText, FillsEachRegionWithItsOutlineAndHolesAsTrueArcs) {
  const Carried carried(PlateWithDisc());
  const std::string svg = SvgText(carried.report());
  EXPECT_THAT(svg, HasSubstr("fill-rule=\"evenodd\""));
  const std::size_t plate = carried.detection.regions[0].name == "Disc" ? 1 : 0;
  const std::string path = PathOf(svg, RegionId(plate));
  EXPECT_EQ(Count(path, "M"), 2U);
  EXPECT_EQ(Count(path, "Z"), 2U);
  EXPECT_EQ(Count(path, "L"), 4U);
  // The hole is travelled clockwise, which in a picture is the direction of the sweep flag.
  EXPECT_EQ(Count(path, "A2 2 0 0 1 "), 2U);
  EXPECT_EQ(Count(PathOf(svg, RegionId(1 - plate)), "A2 2 0 0 0 "), 2U);
}

TEST(SvgText, RunsYUpwards) {
  const std::string svg = SvgText(Carried(DrawingOf(Rectangle(0, 5, 1, 6))).report());
  EXPECT_THAT(PathOf(svg, 1), HasSubstr("1 -6"));
  EXPECT_THAT(PathOf(svg, 1), Not(HasSubstr("1 6")));
}

TEST(SvgText, ViewHoldsTheWholeDrawing) {
  const std::string svg = SvgText(Carried(DrawingOf(Rectangle(1000, -20, 1300, 80))).report());
  const std::vector<double> view = NumbersOf(Between(svg, "viewBox=\"", "\""));
  ASSERT_THAT(view, SizeIs(4));
  EXPECT_LT(view[0], 1000);
  EXPECT_GT(view[0] + view[2], 1300);
  EXPECT_LT(view[1], -80);
  EXPECT_GT(view[1] + view[3], 20);
}

TEST(SvgText, WritesNamesAtTheLabelPointsAndEscapesThem) {
  const Carried carried(PlateWithDisc());
  const std::string svg = SvgText(carried.report());
  EXPECT_THAT(svg, HasSubstr(">Plate &quot;A&quot; &amp; &lt;B&gt;</text>"));
  EXPECT_THAT(svg, HasSubstr(">plate &amp; disc.dxf</text>"));
  EXPECT_THAT(svg, Not(HasSubstr("<B>")));
  const Region& disc = RegionOfArea(carried.detection, 4 * std::numbers::pi);
  const std::string before = svg.substr(0, svg.find(">Disc</text>"));
  const std::vector<double> place = NumbersOf(Between(before.substr(before.rfind("<text")), "translate(", ")"));
  ASSERT_THAT(place, SizeIs(2));
  EXPECT_NEAR(place[0], disc.label.x, 1e-6);
  EXPECT_NEAR(place[1], -disc.label.y, 1e-6);
}

TEST(SvgText, MarksOpenPiecesInRedAndLooseEndsWithACircle) {
  const std::string open = SvgText(Carried(PlateWithDisc()).report());
  EXPECT_THAT(open, HasSubstr("<g id=\"open\" fill=\"none\" stroke=\"#d81818\""));
  EXPECT_EQ(Count(open, "<circle"), 1U);
  EXPECT_THAT(open, HasSubstr("<circle cx=\"12\" cy=\"-8\""));
  EXPECT_THAT(open, HasSubstr("1 open pieces, 1 loose ends"));
  const std::string closed = SvgText(Carried(DrawingOf(Rectangle(0, 0, 1, 1))).report());
  EXPECT_THAT(closed, Not(HasSubstr("d81818")));
}

TEST(SvgText, OfNothingIsStillAPicture) {
  EXPECT_THAT(SvgText(Carried(DrawingOf("")).report()),
              AllOf(HasSubstr("<svg "), HasSubstr("</svg>"), Not(HasSubstr("nan")), Not(HasSubstr("inf"))));
}

TEST(TableText, HasARowForEachRegionAndATotal) {
  const Carried carried(PlateWithDisc());
  std::istringstream text(TableText(carried.report()));
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  ASSERT_THAT(lines, SizeIs(7));
  EXPECT_THAT(lines[0], HasSubstr("net area mm2"));
  const std::string& disc =
      *std::find_if(lines.begin(), lines.end(), [](const auto& l) { return l.find("Disc") != l.npos; });
  EXPECT_THAT(disc, HasSubstr("12.5664"));
  EXPECT_EQ(lines[4], "name Plate \"A\" & <B>: 1 region, 47.4336 mm2");
  EXPECT_EQ(lines[5], "name Disc: 1 region, 12.5664 mm2");
  EXPECT_EQ(lines[6], "2 regions, net area 60 mm2, 1 open pieces with 1 loose ends");
  for (std::size_t i = 1; i < 3; ++i) EXPECT_EQ(lines[i].size(), lines[0].size());
}

TEST(TableText, NeverShowsAMinusBeforeZero) {
  EXPECT_THAT(TableText(Carried(DrawingOf(Circle(0, 0, 1))).report()), Not(HasSubstr("-0.000")));
}

TEST(DiagnosticLines, TellUnitToleranceAndEverythingLeftOut) {
  std::string all;
  for (const std::string& line : DiagnosticLines(Carried(PlateWithDisc()).report())) all += line + "\n";
  EXPECT_THAT(all, HasSubstr("drawing in mm (file)"));
  EXPECT_THAT(all, HasSubstr("linear tolerance 1.44222e-05 mm, a millionth of the drawing's diagonal"));
  EXPECT_THAT(all, HasSubstr("skipped 3 TEXT on layer \"Notes\": not read"));
  EXPECT_THAT(all, HasSubstr("2 SPLINE turned into lines and arcs"));
  EXPECT_THAT(all, HasSubstr("warning: odd size"));
  EXPECT_THAT(all, HasSubstr("(12, 8) loose"));
}

TEST(DiagnosticLines, TellWhereALoopIsMissing) {
  Carried carried{PlateWithDisc()};
  const TravelledPiece& below = carried.detection.regions[0].outline[0];
  carried.detection.diagnostics.lostSides = {below, below};
  const auto lines = DiagnosticLines(carried.report());
  const Point middle = MidPoint(below);
  const std::string place = fmt::format("found: 2, first at ({:.6g}, {:.6g}), LINE on", middle.x, middle.y);
  EXPECT_THAT(lines, Contains(AllOf(HasSubstr(place), HasSubstr("regions may be missing: try"))));
  EXPECT_THAT(lines, Contains(EndsWith("--tol 1.4e-06")));
  EXPECT_EQ(carried.AsJson()["diagnostics"]["lostSides"], 2);
}

TEST(DiagnosticLines, CutLongListsShort) {
  std::string spurs = Rectangle(0, 0, 100, 1);
  for (int i = 1; i < 60; ++i) {
    const std::string x = std::to_string(i);
    spurs += "L " + x + ",0 " + x + ",-1; ";
  }
  const Carried carried{DrawingOf(spurs)};
  EXPECT_THAT(carried.detection.diagnostics.openPieces, SizeIs(59));
  const auto lines = DiagnosticLines(carried.report());
  EXPECT_LT(lines.size(), 15U);
  EXPECT_THAT(lines.back(), HasSubstr("and 51 more"));
  EXPECT_EQ(carried.AsJson()["diagnostics"]["openPieces"].size(), 59U);
}

TEST(Plain, WritesNumbersForPeople) {
  EXPECT_EQ(Plain(3.14159265, 5), "3.1416");
  EXPECT_EQ(Plain(3932500000.0, 5), "3932500000");
  EXPECT_EQ(Plain(123456.7, 6), "123457");
  EXPECT_EQ(Plain(0, 5), "0");
}

}  // namespace
}  // namespace xsec
