#include <algorithm>
#include <cmath>

#include "xsec/BoxIndex.h"
#include "xsec/RegionDetection.h"
#include "xsec/Report.h"
#include "xsec/check/Findings.h"
#include "xsec/prepare/Curves.h"

namespace xsec {

namespace {

constexpr std::size_t kMostMisses = 5;  // near misses whose tolerances are tried
constexpr double kJustAbove = 1.001;    // of the tolerance that has to be exceeded
constexpr double kSameArea = 1e-3;      // of the larger area, or a few tolerances along the outline
constexpr double kSteps[] = {0.1, 10, 100};

/// How far the centroid of the same region may be.
double Reach(const Region& region, double tolerance) {
  return kSameArea * Diagonal(Bounds(region.outline)) + 2 * tolerance;
}

bool IsSameRegion(const Region& a, const Region& b, double tolerance) {
  const double slack = kSameArea * a.netArea + 2 * tolerance * Length(a.outline);
  return std::abs(a.netArea - b.netArea) <= slack && Distance(a.centroid, b.centroid) <= Reach(a, tolerance);
}

std::vector<double> NewAreas(const Detection& found, const Detection& before, double tolerance) {
  std::vector<Extents> boxes;
  for (const Region& region : found.regions) {
    const auto& [x, y] = region.centroid;
    boxes.push_back(Widened({x, y, x, y}, Reach(region, tolerance)));
  }
  const BoxIndex index(boxes);
  std::vector<bool> isOld(found.regions.size());
  for (const Region& old : before.regions) {
    for (const std::size_t i : index.Find(old.centroid)) {
      isOld[i] = isOld[i] || IsSameRegion(found.regions[i], old, tolerance);
    }
  }
  std::vector<double> areas;
  for (std::size_t i = 0; i < isOld.size(); ++i) {
    if (!isOld[i]) areas.push_back(found.regions[i].netArea);
  }
  return areas;
}

std::vector<double> TolerancesToTry(double own, const std::vector<NearMiss>& misses) {
  std::vector<double> tolerances;
  for (const double step : kSteps) tolerances.push_back(step * own);
  for (std::size_t i = 0; i < std::min(misses.size(), kMostMisses); ++i) {
    tolerances.push_back(kJustAbove * misses[i].tolerance);
  }
  std::sort(tolerances.begin(), tolerances.end());
  const auto isNearlySame = [](double a, double b) { return b < kJustAbove * a; };
  tolerances.erase(std::unique(tolerances.begin(), tolerances.end(), isNearlySame), tolerances.end());
  return tolerances;
}

/// Whether the entity still ends openly where it did, give or take what the tolerance moves.
bool IsOpenStill(const NearMiss& miss, const std::vector<OpenEnd>& ends, double tolerance) {
  return std::any_of(ends.begin(), ends.end(), [&](const OpenEnd& end) {
    return end.entity == miss.entity && Distance(end.place, miss.end) <= 2 * tolerance;
  });
}

/// Each miss is judged by the first tolerance above its own; they are tried in ascending order.
void NoteWhatCloses(const Detection& detection, double tolerance, std::vector<NearMiss>& misses) {
  const std::vector<OpenEnd> ends = OpenEndsOf(detection.diagnostics);
  for (NearMiss& miss : misses) {
    if (!miss.closes && tolerance > miss.tolerance) miss.closes = !IsOpenStill(miss, ends, tolerance);
  }
}

Rung RungOf(const Detection& detection, double tolerance) {
  return {tolerance, detection.regions.size(), CountLooseEnds(detection), TotalArea(detection), {}};
}

}  // namespace

void ClimbLadder(const Drawing& aDrawing, const SettingsRequest& aRequest, const Detection& aDetection,
                 Findings& aFindings) {
  const Settings own = ApplySettings(aRequest, aDrawing);
  aFindings.ladder.push_back(RungOf(aDetection, own.tolerance));
  for (const double tolerance : TolerancesToTry(own.tolerance, aFindings.nearMisses)) {
    SettingsRequest request = aRequest;
    std::erase_if(request.fields, [](const FieldValue& field) { return field.field == kLinearToleranceField; });
    request.tolerance = tolerance;
    const Detection detection = DetectRegions(aDrawing, ApplySettings(request, aDrawing));
    aFindings.ladder.push_back(RungOf(detection, tolerance));
    aFindings.ladder.back().newAreas = NewAreas(detection, aDetection, tolerance);
    NoteWhatCloses(detection, tolerance, aFindings.nearMisses);
  }
  std::sort(aFindings.ladder.begin(), aFindings.ladder.end(),
            [](const Rung& a, const Rung& b) { return a.tolerance < b.tolerance; });
  ApplySettings(aRequest, aDrawing);
}

}  // namespace xsec
