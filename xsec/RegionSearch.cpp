#include "xsec/RegionSearch.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "xsec/DrawingExtents.h"
#include "xsec/RegionDetection.h"
#include "xsec/Sector.h"
#include "xsec/prepare/Motion.h"

namespace xsec {

namespace {

/// The nearest region round this one that stays.
std::size_t KeptParent(const std::vector<Region>& regions, const std::vector<std::size_t>& places, std::size_t index) {
  std::size_t parent = regions[index].parent;
  while (parent != kNone && places[parent] == kNone) parent = regions[parent].parent;
  return parent == kNone ? kNone : places[parent];
}

/// Those about regions that stay, with the regions' new indexes.
template <typename Note>
void KeepNotes(const std::vector<std::size_t>& places, std::vector<Note>& notes) {
  std::erase_if(notes, [&](const Note& note) { return places[note.region] == kNone; });
  for (Note& note : notes) note.region = places[note.region];
}

void KeepNotes(const std::vector<std::size_t>& places, Diagnostics& diagnostics) {
  KeepNotes(places, diagnostics.doubts);
  KeepNotes(places, diagnostics.corrections);
  for (Correction& correction : diagnostics.corrections) {
    if (correction.listedIn != kNone) correction.listedIn = places[correction.listedIn];
  }
}

}  // namespace

Drawing Turned(const Drawing& aDrawing, double aDegrees) {
  Drawing turned = aDrawing;
  const Motion turn({}, aDegrees);
  for (DrawingEntity& entity : turned.entities) entity.geometry = turn(entity.geometry);
  for (DrawingText& text : turned.texts) {
    const Point place = turn(Point{text.x, text.y});
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
  KeepNotes(places, aDetection.diagnostics);
  regions = std::move(kept);
}

Detection FindRegions(const Drawing& aDrawing, const Settings& aSettings, const SearchRequest& aRequest) {
  Detection detection;
  if (aRequest.turn == 0) {
    detection = DetectRegions(aDrawing, aSettings, aRequest.naming);
  } else {
    detection = DetectRegions(Turned(aDrawing, aRequest.turn), aSettings, aRequest.naming);
    const Motion back({}, -aRequest.turn);
    for (Region& region : detection.regions) {
      back.ApplyToLoops(region);
      back.ApplyToPoints(region);
    }
    back.ApplyToDiagnostics(detection.diagnostics);
  }
  std::vector<std::string>& warnings = detection.diagnostics.warnings;
  if (const std::string text = WarnOfFineTolerance(aSettings, aDrawing); !text.empty()) {
    warnings.push_back(text + ": " + AdviceOnFineTolerance(aDrawing));
  }
  if (std::string text = WarnOfCopies(aDrawing, aRequest.copies); !text.empty()) warnings.push_back(std::move(text));
  if (aRequest.minimumArea > 0) LeaveOutSmall(detection, aRequest.minimumArea);
  return detection;
}

}  // namespace xsec
