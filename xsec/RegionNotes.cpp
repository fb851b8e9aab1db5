#include "xsec/RegionNotes.h"

#include <fmt/format.h>

namespace xsec {

namespace {

std::string NameOfPlace(std::size_t region) {
  return region == kNone ? "no other region" : fmt::format("region {}", RegionId(region));
}

std::string Coordinates(const Point& point) {
  return fmt::format("({:.6g}, {:.6g})", point.x, point.y);
}

}  // namespace

std::vector<std::string> WarningTexts(const Diagnostics& aDiagnostics) {
  std::vector<std::string> texts = aDiagnostics.warnings;
  for (const Doubt& doubt : aDiagnostics.doubts) {
    texts.push_back(fmt::format("region {}: {}", RegionId(doubt.region), doubt.text));
  }
  return texts;
}

std::string CorrectionText(const Correction& aCorrection, const Detection& aDetection) {
  const Region& region = aDetection.regions[aCorrection.region];
  if (aCorrection.kind == Correction::Kind::Nesting) {
    return fmt::format("region {} was listed inside {}; a point of it lies inside {}", RegionId(aCorrection.region),
                       NameOfPlace(aCorrection.listedIn), NameOfPlace(region.parent));
  }
  return fmt::format("label of region {} moved from {}, {}, to {}", RegionId(aCorrection.region),
                     Coordinates(aCorrection.labelledAt),
                     aCorrection.wasInside ? "close to its boundary" : "outside it", Coordinates(region.label));
}

}  // namespace xsec
