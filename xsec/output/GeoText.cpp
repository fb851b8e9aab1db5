#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <map>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/Report.h"
#include "xsec/Utf8.h"
#include "xsec/output/FormattedText.h"
#include "xsec/output/LoopParting.h"
#include "xsec/output/RegionGroups.h"
#include "xsec/output/Topology.h"

namespace xsec {

namespace {

constexpr double kLongestArc = 90;        // degrees; the mesher takes the shorter way between two points
constexpr double kSizesPerDiagonal = 40;  // the largest elements are this part of the drawing's diagonal
constexpr double kDegreesPerElement = 10;
constexpr const char* kOuterBoundary = "Outer boundary";

class GeoWriter : private FormattedText {
 public:
  explicit GeoWriter(const Report& report)
      : fReport(report), fTopology(BuildTopology(report.detection.regions, report.settings.tolerance, kLongestArc)) {}

  std::string Text() {
    Head();
    Points();
    Curves();
    Surfaces();
    Groups();
    Boundary();
    return fText;
  }

 private:
  void Head() {
    Add("// {}, by xsec " XSEC_VERSION "; lengths in mm\n",
        ToUtf8(std::filesystem::path(fReport.drawing.path).filename().string()));
    Add("// mesh sizes follow the curves; gmsh -clscale 0.5 halves them all\n");
  }

  /// For each point how large the elements there may be: no larger than the shortest curve that ends there, and small
  /// enough to follow the arcs.
  std::vector<double> MeshSizes() const {
    std::vector<double> sizes(fTopology.points.size(), Diagonal(fReport.drawing.extents) / kSizesPerDiagonal);
    for (const Curve& curve : fTopology.curves) {
      double size = Length(curve.piece);
      if (curve.piece.isArc) {
        size = std::min(size, curve.piece.radius * kDegreesPerElement * GeometryEngine::kRadiansPerDegree);
      }
      for (const std::size_t point : {curve.from, curve.to}) sizes[point] = std::min(sizes[point], size);
    }
    return sizes;
  }

  void Points() {
    const std::vector<double> sizes = MeshSizes();
    for (std::size_t i = 0; i < fTopology.points.size(); ++i) {
      Add("Point({}) = {{{}, {}, 0, {:.4g}}};\n", i + 1, fTopology.points[i].x, fTopology.points[i].y, sizes[i]);
    }
  }

  /// Points that arcs turn about stand apart from the others, each once.
  std::size_t CentreOf(const Point& centre) {
    const std::size_t next = fTopology.points.size() + fCentres.size() + 1;
    const auto [place, isNew] = fCentres.try_emplace({centre.x, centre.y}, next);
    if (isNew) Add("Point({}) = {{{}, {}, 0}};\n", next, centre.x, centre.y);
    return place->second;
  }

  void Curves() {
    for (std::size_t i = 0; i < fTopology.curves.size(); ++i) {
      const auto& [from, to, piece] = fTopology.curves[i];
      if (piece.isArc) {
        const std::size_t centre = CentreOf(piece.centre);
        Add("Circle({}) = {{{}, {}, {}}};\n", i + 1, from + 1, centre, to + 1);
      } else {
        Add("Line({}) = {{{}, {}}};\n", i + 1, from + 1, to + 1);
      }
    }
  }

  std::size_t AddLoop(const CurveLoop& loop) {
    Add("Curve Loop({}) = {{", ++fLoops);
    for (std::size_t i = 0; i < loop.size(); ++i) {
      Add("{}{}{}", i == 0 ? "" : ", ", loop[i].forward ? "" : "-", loop[i].curve + 1);
    }
    Add("}};\n");
    return fLoops;
  }

  void Surfaces() {
    for (std::size_t i = 0; i < fTopology.regions.size(); ++i) {
      std::string loops = fmt::format("{}", AddLoop(fTopology.regions[i].outline));
      for (const CurveLoop& hole : fTopology.regions[i].holes) loops += fmt::format(", {}", AddLoop(hole));
      Add("Plane Surface({}) = {{{}}};  // {}\n", RegionId(i), loops, fReport.detection.regions[i].uniqueName);
    }
  }

  void Groups() {
    std::size_t number = 0;
    for (const RegionGroup& group : GroupByName(fReport.detection.regions)) {
      Add("Physical Surface({}, {}) = {{", Quoted(group.name), ++number);
      for (std::size_t i = 0; i < group.regions.size(); ++i) {
        Add("{}{}", i == 0 ? "" : ", ", RegionId(group.regions[i]));
      }
      Add("}};\n");
    }
  }

  /// Curves with a region on one side only.
  void Boundary() {
    std::vector<int> sides(fTopology.curves.size(), 0);
    const auto count = [&](const CurveLoop& loop) {
      for (const CurveUse& use : loop) ++sides[use.curve];
    };
    for (const RegionLoops& region : fTopology.regions) {
      count(region.outline);
      for (const CurveLoop& hole : region.holes) count(hole);
    }
    std::string curves;
    for (std::size_t i = 0; i < sides.size(); ++i) {
      if (sides[i] == 1) curves += fmt::format("{}{}", curves.empty() ? "" : ", ", i + 1);
    }
    if (!curves.empty()) Add("Physical Curve({}) = {{{}}};\n", Quoted(kOuterBoundary), curves);
  }

  const Report& fReport;
  Topology fTopology;
  std::map<std::pair<double, double>, std::size_t> fCentres;
  std::size_t fLoops = 0;
};

}  // namespace

std::string GeoText(const Report& aReport) {
  return GeoWriter(aReport).Text();
}

}  // namespace xsec
