#include "xsec/RegionSearch.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/DrawingExtents.h"
#include "xsec/RegionDetection.h"
#include "xsec/Sector.h"

namespace xsec {

namespace {

constexpr double kFullTurn = 360;
constexpr double kNoPart = 1e-15;  // of a radius, by rounding

/// A turn about the origin.
class Turning {
 public:
  explicit Turning(double degrees)
      : fDegrees(degrees), fCosine(Exact(std::cos(Radians(degrees)))), fSine(Exact(std::sin(Radians(degrees)))) {}

  void Apply(Point& point) const { point = {fCosine * point.x - fSine * point.y, fSine * point.x + fCosine * point.y}; }

  void Apply(GeometryEngine::TDXFEntity& entity) const {
    for (Point* point : {&entity.StartCoords, &entity.EndCoords, &entity.CentreCoords}) Apply(*point);
    if (entity.EntityType != GeometryEngine::DXFArc) return;
    entity.startAngle = GeometryEngine::GetAngleInRange(entity.startAngle + fDegrees, 0, kFullTurn);
    entity.endAngle = GeometryEngine::GetAngleInRange(entity.endAngle + fDegrees, 0, kFullTurn);
  }

  void Apply(TravelledPiece& piece) const {
    for (Point* point : {&piece.from, &piece.to, &piece.centre}) Apply(*point);
    piece.startAngle = GeometryEngine::GetAngleInRange(piece.startAngle + fDegrees, 0, kFullTurn);
    piece.endAngle = GeometryEngine::GetAngleInRange(piece.endAngle + fDegrees, 0, kFullTurn);
  }

  void Apply(Loop& loop) const {
    for (TravelledPiece& piece : loop) Apply(piece);
  }

  void Apply(Detection& detection) const {
    for (Region& region : detection.regions) {
      Apply(region.outline);
      for (Loop& hole : region.holes) Apply(hole);
      Apply(region.centroid);
      Apply(region.label);
    }
    for (OpenPiece& open : detection.diagnostics.openPieces) Apply(open.piece);
    for (TravelledPiece& lost : detection.diagnostics.lostSides) Apply(lost);
    for (Cure& cure : detection.diagnostics.cures) Apply(cure.place);
  }

 private:
  static double Radians(double degrees) {
    return GeometryEngine::GetAngleInRange(degrees, 0, kFullTurn) * GeometryEngine::kRadiansPerDegree;
  }
  /// Quarter turns change coordinates for each other and nothing else.
  static double Exact(double value) {
    return std::abs(value) < kNoPart ? 0 : 1 - std::abs(value) < kNoPart ? std::round(value) : value;
  }

  double fDegrees;
  double fCosine;
  double fSine;
};

/// The nearest region round this one that stays.
std::size_t KeptParent(const std::vector<Region>& regions, const std::vector<std::size_t>& places, std::size_t index) {
  std::size_t parent = regions[index].parent;
  while (parent != kNone && places[parent] == kNone) parent = regions[parent].parent;
  return parent == kNone ? kNone : places[parent];
}

void LeaveOutCorrections(const std::vector<std::size_t>& places, Diagnostics& diagnostics) {
  std::erase_if(diagnostics.corrections, [&](const Correction& c) { return places[c.region] == kNone; });
  for (Correction& correction : diagnostics.corrections) correction.region = places[correction.region];
}

}  // namespace

Drawing Turned(const Drawing& aDrawing, double aDegrees) {
  Drawing turned = aDrawing;
  const Turning turning(aDegrees);
  for (DrawingEntity& entity : turned.entities) turning.Apply(entity.geometry);
  for (DrawingText& text : turned.texts) {
    Point place{text.x, text.y};
    turning.Apply(place);
    text.x = place.x;
    text.y = place.y;
  }
  turned.extents = ExtentsOf(turned.entities);
  return turned;
}

void LeaveOutSmall(Detection& aDetection, double aMinimumArea) {
  std::vector<Region>& regions = aDetection.regions;
  std::vector<std::size_t> places(regions.size(), kNone);
  std::vector<Region> kept;
  double area = 0;
  for (std::size_t i = 0; i < regions.size(); ++i) {
    if (regions[i].netArea < aMinimumArea) {
      area += regions[i].netArea;
      if (regions[i].clearance > 0) aDetection.leftOut.push_back(regions[i].label);
    } else {
      places[i] = kept.size();
      kept.push_back(regions[i]);
    }
  }
  if (kept.size() == regions.size()) return;
  aDetection.diagnostics.warnings.push_back(fmt::format("regions below {:.6g} mm2 left out: {}, together {:.6g} mm2",
                                                        aMinimumArea, regions.size() - kept.size(), area));
  for (Region& region : kept) region.children.clear();
  for (std::size_t i = 0; i < regions.size(); ++i) {
    if (places[i] == kNone) continue;
    Region& region = kept[places[i]];
    region.parent = KeptParent(regions, places, i);
    if (region.parent != kNone) kept[region.parent].children.push_back(places[i]);
  }
  for (Region& region : kept) {
    region.depth = 0;
    for (std::size_t p = region.parent; p != kNone; p = kept[p].parent) ++region.depth;
  }
  LeaveOutCorrections(places, aDetection.diagnostics);
  regions = std::move(kept);
}

Detection FindRegions(const Drawing& aDrawing, const Settings& aSettings, const SearchRequest& aRequest) {
  Detection detection;
  if (aRequest.turn == 0) {
    detection = DetectRegions(aDrawing, aSettings, aRequest.naming);
  } else {
    detection = DetectRegions(Turned(aDrawing, aRequest.turn), aSettings, aRequest.naming);
    Turning(-aRequest.turn).Apply(detection);
  }
  if (std::string text = WarnOfCopies(aDrawing, aRequest.copies); !text.empty()) {
    detection.diagnostics.warnings.push_back(std::move(text));
  }
  if (aRequest.minimumArea > 0) LeaveOutSmall(detection, aRequest.minimumArea);
  return detection;
}

}  // namespace xsec
