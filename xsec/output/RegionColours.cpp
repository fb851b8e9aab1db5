#include "xsec/output/RegionColours.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace xsec {

namespace {

struct Colour {
  double red;
  double green;
  double blue;
};

// Light enough for dark text, and told apart by hue.
constexpr std::array<Colour, 12> kPalette = {{{150, 187, 224},
                                              {245, 190, 130},
                                              {165, 212, 160},
                                              {232, 160, 165},
                                              {196, 178, 228},
                                              {240, 224, 135},
                                              {150, 210, 212},
                                              {218, 178, 150},
                                              {188, 202, 140},
                                              {232, 172, 216},
                                              {168, 180, 210},
                                              {255, 210, 180}}};
constexpr double kDarkerByDepth = 0.93;
constexpr double kDarkerByRound = 0.86;  // once round the palette
constexpr double kSameArea = 1e-3;       // of the larger of two areas
constexpr std::size_t kDeepest = 5;      // deeper regions grow no darker

bool BelongsTo(const RegionKind& kind, const Region& region) {
  return kind.name == region.name && std::abs(kind.netArea - region.netArea) <= kSameArea * std::abs(kind.netArea);
}

}  // namespace

std::vector<RegionKind> GroupRegions(const std::vector<Region>& aRegions) {
  std::vector<std::size_t> order(aRegions.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    if (aRegions[a].name != aRegions[b].name) return aRegions[a].name < aRegions[b].name;
    return aRegions[a].netArea > aRegions[b].netArea;
  });
  std::vector<RegionKind> kinds;
  for (const std::size_t i : order) {
    if (kinds.empty() || !BelongsTo(kinds.back(), aRegions[i]))
      kinds.push_back({aRegions[i].name, aRegions[i].netArea, {}});
    kinds.back().regions.push_back(i);
  }
  return kinds;
}

std::string FillColour(std::size_t aKind, std::size_t aDepth) {
  const Colour& colour = kPalette[aKind % kPalette.size()];
  const double rounds = static_cast<double>((aKind / kPalette.size()) % 3);
  const double light =
      std::pow(kDarkerByDepth, static_cast<double>(std::min(aDepth, kDeepest))) * std::pow(kDarkerByRound, rounds);
  const auto channel = [&](double value) { return static_cast<int>(std::lround(value * light)); };
  return fmt::format("#{:02x}{:02x}{:02x}", channel(colour.red), channel(colour.green), channel(colour.blue));
}

}  // namespace xsec
