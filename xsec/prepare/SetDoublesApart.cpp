#include <array>
#include <cstddef>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "xsec/prepare/Curves.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

/// All that tells one entity from another, whichever way a line runs: its kind, its ends, and an arc's circle and
/// angles.
using Shape = std::array<double, 10>;

Shape ShapeOf(const TDXFEntity& entity, bool isHalf) {
  const Point& a = entity.StartCoords;
  const Point& b = entity.EndCoords;
  if (!IsArc(entity)) {
    const auto& [first, last] = std::tie(b.x, b.y) < std::tie(a.x, a.y) ? std::tie(b, a) : std::tie(a, b);
    return {0, first.x, first.y, last.x, last.y, 0, 0, 0, 0, 0};
  }
  const Point& centre = entity.CentreCoords;
  // A circle's half is no double of an arc that is none: it would be left without its other half.
  return {isHalf ? 1. : 2., a.x, a.y, b.x, b.y, centre.x, centre.y, entity.radius, entity.startAngle, entity.endAngle};
}

/// For each part whether it is one of the two halves of a circle.
std::vector<bool> FindHalves(const std::vector<Part>& parts) {
  std::vector<bool> areHalves(parts.size(), false);
  for (std::size_t i = 0; i + 1 < parts.size(); ++i) {
    if (!areHalves[i] && AreHalves(parts[i].geometry, parts[i + 1].geometry)) areHalves[i] = areHalves[i + 1] = true;
  }
  return areHalves;
}

}  // namespace

void SetDoublesApart(Preparation& aWork) {
  const std::vector<bool> areHalves = FindHalves(aWork.parts);
  std::map<Shape, std::size_t> known;
  std::vector<Part> kept;
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) {
    Part& part = aWork.parts[i];
    const auto [model, isNew] = known.try_emplace(ShapeOf(part.geometry, areHalves[i]), kept.size());
    if (isNew) {
      kept.push_back(std::move(part));
      continue;
    }
    const TDXFEntity& twin = part.geometry;
    aWork.doubles.push_back({part.source, model->second});
    aWork.cures.push_back({CureKind::Overlap, twin.StartCoords, kept[model->second].source, part.source,
                           Distance(twin.StartCoords, twin.EndCoords)});
  }
  aWork.parts = std::move(kept);
}

}  // namespace xsec
