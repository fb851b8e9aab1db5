#include "xsec/output/LabelFit.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/RegionSpaces.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;

constexpr double kCharacterWidth = 0.6;  // of the font size
constexpr double kTextHeight = 1.0;      // of the font size, with what reaches above and below
constexpr double kRoom = 0.85;           // of what would touch the boundary
constexpr double kUprightGain = 1.3;     // as much larger a text has to become to be turned
constexpr double kElsewhereGain = 1.3;   // as much larger to stand elsewhere than at the label point
constexpr std::size_t kHeightsForName = 15;
constexpr double kChord = 6;  // degrees of an arc that are taken as straight here

/// The half sides of a text of font size 1.
struct HalfSides {
  double x;
  double y;
};

/// The font size at which the text's box reaches a point that lies this far from the label.
double SizeToReach(const Point& offset, const HalfSides& half) {
  return std::max(std::abs(offset.x) / half.x, std::abs(offset.y) / half.y);
}

/// The font size at which the text's box touches the line between two offsets. The size along the line is a polygon
/// that opens upwards; its lowest corner is at an end, on an axis, or on a diagonal of the box.
double SizeToTouch(const Point& a, const Point& b, const HalfSides& half) {
  const Point d = b - a;
  double size = std::min(SizeToReach(a, half), SizeToReach(b, half));
  const auto look = [&](double numerator, double denominator) {
    const double part = numerator / denominator;
    if (part > 0 && part < 1) size = std::min(size, SizeToReach({a.x + part * d.x, a.y + part * d.y}, half));
  };
  look(-a.x, d.x);
  look(-a.y, d.y);
  look(a.y / half.y - a.x / half.x, d.x / half.x - d.y / half.y);
  look(-a.y / half.y - a.x / half.x, d.x / half.x + d.y / half.y);
  return size;
}

double SizeToTouch(const Loop& loop, const Point& label, const HalfSides& half) {
  double size = std::numeric_limits<double>::infinity();
  for (const TravelledPiece& piece : loop) {
    const int chords = std::max(1, static_cast<int>(std::min(std::abs(piece.sweep), kFullTurn) / kChord));
    Point from = piece.from - label;
    for (int i = 1; i <= chords; ++i) {
      const Point to = (i == chords ? piece.to : PointAlong(piece, static_cast<double>(i) / chords)) - label;
      size = std::min(size, SizeToTouch(from, to, half));
      from = to;
    }
  }
  return size;
}

double LargestSize(const RegionSpace& space, const Point& label, const HalfSides& half) {
  double size = SizeToTouch(*space.outline, label, half);
  for (const Loop* hole : space.holes) size = std::min(size, SizeToTouch(*hole, label, half));
  return kRoom * size;
}

}  // namespace

LabelFit FitLabel(const RegionSpace& aSpace, const Point& aLabel, std::size_t aCharacters, double aMost) {
  const double width = TextWidth(std::max<std::size_t>(aCharacters, 1));
  const double level = std::min(aMost, LargestSize(aSpace, aLabel, {width / 2, kTextHeight / 2}));
  const double upright = std::min(aMost, LargestSize(aSpace, aLabel, {kTextHeight / 2, width / 2}));
  if (upright > kUprightGain * level) return {aLabel, upright, true};
  return {aLabel, level, false};
}

namespace {

LabelFit RoomiestFit(const Region& region, std::size_t characters, double most) {
  const RegionSpace space = SpaceOf(region);
  const LabelFit atLabel = FitLabel(space, region.label, characters, most);
  if (atLabel.size >= most || region.clearance >= HalfWidth(region)) return atLabel;
  Point roomiest = region.label;
  double largest = 0;
  for (const Point& point : FindInnerPoints(space, kHeightsForName)) {
    const double size = FitLabel(space, point, characters, std::numeric_limits<double>::infinity()).size;
    if (size > largest) roomiest = point;
    largest = std::max(largest, size);
  }
  const LabelFit elsewhere = FitLabel(space, roomiest, characters, most);
  return elsewhere.size > kElsewhereGain * atLabel.size ? elsewhere : atLabel;
}

}  // namespace

std::optional<LabelFit> FitName(const Region& aRegion, std::size_t aCharacters, const FontSizes& aSizes) {
  const double leastArea = aSizes.least * aSizes.least * TextWidth(aCharacters) * kTextHeight;
  if (aRegion.netArea < leastArea) return std::nullopt;
  const LabelFit fit = RoomiestFit(aRegion, aCharacters, aSizes.most);
  return fit.size >= aSizes.least ? std::optional(fit) : std::nullopt;
}

double TextWidth(std::size_t aCharacters) {
  return kCharacterWidth * static_cast<double>(aCharacters);
}

std::size_t CountCharacters(std::string_view aText) {
  return static_cast<std::size_t>(std::count_if(
      aText.begin(), aText.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace xsec
