// The .fem file through a parser that takes nothing but what the format allows.

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <sstream>

#include <gmock/gmock.h>

#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/Errors.h"
#include "xsec/Report.h"
#include "xsec/Settings.h"

namespace xsec {

namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

struct FemSegment {
  std::size_t from, to;
  double sweep = 0;  // degrees; 0 for a straight one
};

struct FemLabel {
  Point point;
  std::size_t material, group;
};

struct FemFile {
  std::map<std::string, std::string> head;
  std::vector<std::string> materials;
  std::vector<Point> points;
  std::vector<FemSegment> segments;
  std::vector<FemLabel> labels;
};

/// Reads the sections in the order of the format; every line has to be as it says, and the file has to end with the
/// labels.
class FemParser {
 public:
  explicit FemParser(const std::string& text) : fStream(text) {}

  FemFile Parse() {
    for (const char* key : {"Format", "Frequency", "Precision", "MinAngle", "DoSmartMesh", "Depth", "LengthUnits",
                            "ProblemType", "Coordinates", "ACSolver", "PrevType", "PrevSoln", "Comment"}) {
      fFile.head[key] = Value(key);
    }
    EXPECT_EQ(Count("PointProps"), 0U);
    EXPECT_EQ(Count("BdryProps"), 0U);
    Materials();
    EXPECT_EQ(Count("CircuitProps"), 0U);
    for (std::size_t n = Count("NumPoints"); n > 0; --n) {
      const auto row = Row(4);
      EXPECT_THAT((std::vector{row[2], row[3]}), ElementsAre(0, 0));
      fFile.points.push_back({row[0], row[1]});
    }
    Segments();
    EXPECT_EQ(Count("NumHoles"), 0U);
    Labels();
    std::string rest;
    EXPECT_FALSE(std::getline(fStream, rest)) << rest;
    return fFile;
  }

 private:
  std::string Line() {
    std::string line;
    EXPECT_TRUE(std::getline(fStream, line)) << "the file ends too early";
    return line;
  }

  std::string Value(const std::string& key) {
    const std::string line = Line();
    const std::string begin = "[" + key + "] = ";
    EXPECT_EQ(line.substr(0, begin.size()), begin);
    return line.size() > begin.size() ? line.substr(begin.size()) : "";
  }

  std::size_t Count(const std::string& key) { return std::stoul(Value(key)); }

  /// So many numbers and nothing else.
  std::vector<double> Row(std::size_t columns) {
    std::istringstream line(Line());
    std::vector<double> row;
    std::string cell;
    while (std::getline(line, cell, '\t')) {
      std::size_t used = 0;
      row.push_back(std::stod(cell, &used));
      EXPECT_EQ(used, cell.size()) << cell;
    }
    EXPECT_THAT(row, SizeIs(columns));
    row.resize(columns);
    return row;
  }

  void Materials() {
    for (std::size_t n = Count("BlockProps"); n > 0; --n) {
      EXPECT_EQ(Line(), "  <BeginBlock>");
      const std::string name = Line(), begin = "    <BlockName> = \"";
      EXPECT_EQ(name.substr(0, begin.size()), begin);
      fFile.materials.push_back(name.substr(begin.size(), name.size() - begin.size() - 1));
      EXPECT_EQ(std::count(name.begin(), name.end(), '"'), 2);
      for (const char* key : {"Mu_x", "Mu_y", "H_c", "H_cAngle", "J_re", "J_im", "Sigma", "d_lam", "Phi_h", "Phi_hx",
                              "Phi_hy", "LamType", "LamFill", "NStrands", "WireD", "BHPoints"}) {
        EXPECT_EQ(Line().find(std::string("    <") + key + "> = "), 0U) << key;
      }
      EXPECT_EQ(Line(), "  <EndBlock>");
    }
  }

  std::size_t PointNumber(double number) {
    EXPECT_TRUE(number >= 0 && number < static_cast<double>(fFile.points.size()) && number == std::floor(number));
    return static_cast<std::size_t>(number);
  }

  void Segments() {
    for (std::size_t n = Count("NumSegments"); n > 0; --n) {
      const auto row = Row(6);
      EXPECT_THAT((std::vector(row.begin() + 2, row.end())), ElementsAre(-1, 0, 0, 0));
      fFile.segments.push_back({PointNumber(row[0]), PointNumber(row[1])});
    }
    for (std::size_t n = Count("NumArcSegments"); n > 0; --n) {
      const auto row = Row(7);
      EXPECT_TRUE(row[2] > 0 && row[2] <= 180) << row[2];
      EXPECT_TRUE(row[3] >= 0.01 && row[3] <= 10) << row[3];
      EXPECT_THAT((std::vector(row.begin() + 4, row.end())), ElementsAre(0, 0, 0));
      fFile.segments.push_back({PointNumber(row[0]), PointNumber(row[1]), row[2]});
    }
  }

  void Labels() {
    for (std::size_t n = Count("NumBlockLabels"); n > 0; --n) {
      const auto row = Row(9);
      EXPECT_TRUE(row[2] >= 1 && row[2] <= static_cast<double>(fFile.materials.size())) << row[2];
      EXPECT_THAT((std::vector{row[3], row[4], row[5], row[7], row[8]}), ElementsAre(-1, 0, 0, 1, 0));
      EXPECT_GE(row[6], 1);
      fFile.labels.push_back({{row[0], row[1]}, static_cast<std::size_t>(row[2]), static_cast<std::size_t>(row[6])});
    }
  }

  std::istringstream fStream;
  FemFile fFile;
};

std::string FemOf(const Drawing& drawing, const Detection& detection) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Settings settings = ApplySettings({}, drawing);
  return FemText({drawing, settings, detection});
}

FemFile Parsed(const Drawing& drawing) {
  return FemParser(FemOf(drawing, Detect(drawing))).Parse();
}

TEST(FemText, SaysWhatItIsIn) {
  const FemFile file = Parsed(DrawingOf(Rectangle(0, 0, 4, 2)));
  EXPECT_EQ(file.head.at("LengthUnits"), "millimeters");
  EXPECT_EQ(file.head.at("ProblemType"), "planar");
  EXPECT_EQ(file.head.at("Format"), "4.0");
}

TEST(FemText, HasOneLabelInEachRegionWithMaterialAndGroup) {
  const Drawing drawing = DrawingOf({{"Plate", Rectangle(0, 0, 20, 10)}, {"Disc", Circle(5, 5, 2) + Circle(15, 5, 2)}});
  Detection detection = Detect(drawing);
  for (Region& region : detection.regions) {
    if (region.name == "Disc") region.material = "N42 \"hot\"";
  }
  const FemFile file = FemParser(FemOf(drawing, detection)).Parse();
  EXPECT_THAT(file.materials, ::testing::UnorderedElementsAre("Plate", "N42 'hot'"));
  ASSERT_THAT(file.labels, SizeIs(3));
  std::map<std::string, std::vector<std::size_t>> groups;
  for (std::size_t i = 0; i < 3; ++i) {
    const Region& region = detection.regions[i];
    EXPECT_EQ(file.materials[file.labels[i].material - 1], region.name == "Disc" ? "N42 'hot'" : "Plate");
    groups[region.name].push_back(file.labels[i].group);
    const double toDisc = std::min(std::hypot(file.labels[i].point.x - 5, file.labels[i].point.y - 5),
                                   std::hypot(file.labels[i].point.x - 15, file.labels[i].point.y - 5));
    EXPECT_EQ(toDisc < 2, region.name == "Disc");
  }
  EXPECT_EQ(groups["Disc"][0], groups["Disc"][1]);
  EXPECT_NE(groups["Disc"][0], groups["Plate"][0]);
}

TEST(FemText, ArcsHaveTheirSweepAndNoSegmentStandsTwice) {
  const FemFile file = Parsed(DrawingOf(Circle(0, 0, 2) + "A c 0,0 r 4 350..100; L 0,0 6,0; A c 0,0 r 5 0..180; "
                                                          "A c 0,0 r 5 180..360"));
  std::vector<std::tuple<std::size_t, std::size_t, long>> seen;
  for (const FemSegment& segment : file.segments) {
    const Point a = file.points[segment.from], b = file.points[segment.to];
    const bool isArc = segment.sweep != 0;  // from the one end to the other is another arc than the way back
    const auto [low, high] = std::minmax(segment.from, segment.to);
    seen.emplace_back(isArc ? segment.from : low, isArc ? segment.to : high, std::lround(segment.sweep * 1e6));
    if (!isArc) continue;
    const double radius = std::hypot(b.x - a.x, b.y - a.y) / 2 / std::sin(segment.sweep / 2 * std::numbers::pi / 180);
    EXPECT_NEAR(radius, std::hypot(a.x, a.y), 1e-9);
    const double turned = std::atan2(a.x * b.y - a.y * b.x, a.x * b.x + a.y * b.y) * 180 / std::numbers::pi;
    EXPECT_NEAR(std::abs(turned), segment.sweep, 1e-6);
  }
  std::sort(seen.begin(), seen.end());
  EXPECT_EQ(std::adjacent_find(seen.begin(), seen.end()), seen.end());
}

TEST(FemText, RegionWithoutAPlaceForItsLabelIsRefused) {
  const Drawing drawing = DrawingOf(Rectangle(0, 0, 20, 10));
  Detection detection = Detect(drawing);
  detection.regions[0].label = {30, 30};
  try {
    FemOf(drawing, detection);
    FAIL() << "the label outside was taken";
  } catch (const OutputError& error) {
    EXPECT_THAT(error.what(), ::testing::HasSubstr("region 1 "));
    EXPECT_THAT(error.what(), ::testing::HasSubstr("--min-area"));
  }
}

}  // namespace

}  // namespace xsec
