#include <fmt/format.h>

#include "xsec/Units.h"
#include "xsec/check/Findings.h"
#include "xsec/prepare/Curves.h"

namespace xsec {

namespace {

/// The library takes arcs by chords that leave them by up to this, where it sees on which side a piece leaves a point
/// and whether a point lies inside. UNITS: mm
constexpr double kChordTolerance = 0.01;
/// Arcs that chords of that fineness show as little more than a triangle.
constexpr double kSmallestRadius = 10 * kChordTolerance;
/// Drawings whose tolerance is above this share of a small feature lose it.
constexpr double kFeaturesPerTolerance = 10;

struct Smallest {
  std::size_t entity = kNone;
  std::size_t count = 0;
};

/// How many entities the test takes, and the first of them.
template <typename Test>
Smallest FindAll(const Drawing& drawing, Test&& test) {
  Smallest found;
  for (std::size_t i = 0; i < drawing.entities.size(); ++i) {
    if (!test(drawing.entities[i].geometry)) continue;
    if (found.count++ == 0) found.entity = i;
  }
  return found;
}

void Add(const Drawing& drawing, const Smallest& found, std::string text, std::string cure,
         std::vector<Limit>& limits) {
  if (found.count == 0) return;
  const Point place = MidPoint(Travel(drawing.entities[found.entity].geometry, true));
  limits.push_back({place, found.entity, std::move(text), std::move(cure)});
}

}  // namespace

std::vector<Limit> FindLimits(const Drawing& aDrawing, const Settings& aSettings) {
  std::vector<Limit> limits;
  const Extents& box = aDrawing.extents;
  const Point middle{(box.minX + box.maxX) / 2, (box.minY + box.maxY) / 2};
  if (const std::string text = WarnOfFineTolerance(aSettings, aDrawing); !text.empty()) {
    limits.push_back({middle, kNone, text, AdviceOnFineTolerance(aDrawing)});
  }
  if (const std::string text = WarnOfUnlikelyUnit(aDrawing); !text.empty()) {
    limits.push_back({middle, kNone, text, "give the unit it was meant in, for example --units mm"});
  }
  const Smallest arcs =
      FindAll(aDrawing, [](const auto& entity) { return IsArc(entity) && entity.radius < kSmallestRadius; });
  Add(aDrawing, arcs,
      fmt::format("arcs with a radius below {} mm: {}; chords within {} mm stand for them where pieces part",  //
                  kSmallestRadius, arcs.count, kChordTolerance),
      aDrawing.units.source == "file" ? "look at what is found there, or draw it larger"
                                      : "if the drawing is in another unit, name it: --units m",
      limits);
  const double shortest = kFeaturesPerTolerance * aSettings.tolerance;
  const Smallest entities = FindAll(aDrawing, [&](const auto& entity) { return LengthOf(entity) < shortest; });
  Add(aDrawing, entities,
      fmt::format("entities shorter than ten times the tolerance ({:.3g} mm): {}", shortest, entities.count),
      "a smaller --tol keeps their ends apart", limits);
  return limits;
}

}  // namespace xsec
