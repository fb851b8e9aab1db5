#include <fmt/format.h>

#include <algorithm>
#include <filesystem>

#include "xsec/Errors.h"
#include "xsec/InnerPoint.h"
#include "xsec/RegionSpaces.h"
#include "xsec/Report.h"
#include "xsec/Utf8.h"
#include "xsec/output/FormattedText.h"
#include "xsec/output/RegionGroups.h"
#include "xsec/output/Topology.h"

namespace xsec {

namespace {

constexpr double kLongestArc = 180;  // degrees; the format knows no longer ones
constexpr double kLongestChord = 5;  // degrees of an arc that the mesher takes as one straight side

std::string MaterialOf(const Region& region) {
  return region.material.empty() ? region.name : region.material;
}

class FemWriter : private FormattedText {
 public:
  explicit FemWriter(const Report& report)
      : fReport(report), fTopology(BuildTopology(report.detection.regions, report.settings.tolerance, kLongestArc)) {
    for (const Region& region : report.detection.regions) {
      const std::string material = MaterialOf(region);
      if (std::find(fMaterials.begin(), fMaterials.end(), material) == fMaterials.end()) fMaterials.push_back(material);
    }
  }

  std::string Text() {
    Head();
    Materials();
    Add("[CircuitProps] = 0\n");
    Points();
    Curves();
    Labels();
    return fText;
  }

 private:
  void Head() {
    const std::string file = ToUtf8(std::filesystem::path(fReport.drawing.path).filename().string());
    Add("[Format] = 4.0\n[Frequency] = 0\n[Precision] = 1e-8\n[MinAngle] = 30\n[DoSmartMesh] = 1\n[Depth] = 1\n"
        "[LengthUnits] = millimeters\n[ProblemType] = planar\n[Coordinates] = cartesian\n[ACSolver] = 0\n"
        "[PrevType] = 0\n[PrevSoln] = \"\"\n[Comment] = {}\n[PointProps] = 0\n[BdryProps] = 0\n",
        Quoted(file + ", by xsec " XSEC_VERSION "; all materials have the permeability 1 until they are given theirs"));
  }

  void Materials() {
    Add("[BlockProps] = {}\n", fMaterials.size());
    for (const std::string& material : fMaterials) {
      Add("  <BeginBlock>\n    <BlockName> = {}\n    <Mu_x> = 1\n    <Mu_y> = 1\n    <H_c> = 0\n    <H_cAngle> = 0\n"
          "    <J_re> = 0\n    <J_im> = 0\n    <Sigma> = 0\n    <d_lam> = 0\n    <Phi_h> = 0\n    <Phi_hx> = 0\n"
          "    <Phi_hy> = 0\n    <LamType> = 0\n    <LamFill> = 1\n    <NStrands> = 0\n    <WireD> = 0\n"
          "    <BHPoints> = 0\n  <EndBlock>\n",
          Quoted(material));
    }
  }

  void Points() {
    Add("[NumPoints] = {}\n", fTopology.points.size());
    for (const Point& point : fTopology.points) Add("{}\t{}\t0\t0\n", point.x, point.y);
  }

  void Curves() {
    const auto isArc = [](const Curve& curve) { return curve.piece.isArc; };
    const auto arcs = std::count_if(fTopology.curves.begin(), fTopology.curves.end(), isArc);
    Add("[NumSegments] = {}\n", static_cast<std::ptrdiff_t>(fTopology.curves.size()) - arcs);
    for (const Curve& curve : fTopology.curves) {
      if (!isArc(curve)) Add("{}\t{}\t-1\t0\t0\t0\n", curve.from, curve.to);
    }
    Add("[NumArcSegments] = {}\n", arcs);
    for (const Curve& curve : fTopology.curves) {
      if (isArc(curve)) Add("{}\t{}\t{}\t{}\t0\t0\t0\n", curve.from, curve.to, curve.piece.sweep, kLongestChord);
    }
  }

  void Labels() {
    const std::vector<Region>& regions = fReport.detection.regions;
    std::vector<std::size_t> groupOf(regions.size());
    const std::vector<RegionGroup> groups = GroupByName(regions);
    for (std::size_t group = 0; group < groups.size(); ++group) {
      for (const std::size_t region : groups[group].regions) groupOf[region] = group + 1;
    }
    Add("[NumHoles] = {}\n", fReport.detection.leftOut.size());
    for (const Point& hole : fReport.detection.leftOut) Add("{}\t{}\t0\n", hole.x, hole.y);
    Add("[NumBlockLabels] = {}\n", regions.size());
    for (std::size_t i = 0; i < regions.size(); ++i) {
      const auto material = std::find(fMaterials.begin(), fMaterials.end(), MaterialOf(regions[i]));
      const Point label = LabelOf(i);
      Add("{}\t{}\t{}\t-1\t0\t0\t{}\t1\t0\n", label.x, label.y, material - fMaterials.begin() + 1, groupOf[i]);
    }
  }

  /// A label outside its region would give the material to another one.
  Point LabelOf(std::size_t index) const {
    const Region& region = fReport.detection.regions[index];
    if (IsInside(SpaceOf(region), region.label)) return region.label;
    throw OutputError(
        "the .fem file",
        fmt::format("region {} ({}) has no point inside that could bear its label; leave slivers out with "
                    "--min-area, for example --min-area {:.2g}",
                    RegionId(index), region.uniqueName, 2 * region.netArea));
  }

  const Report& fReport;
  Topology fTopology;
  std::vector<std::string> fMaterials;  // without repeats; a label refers to them by number from 1
};

}  // namespace

std::string FemText(const Report& aReport) {
  return FemWriter(aReport).Text();
}

}  // namespace xsec
