#include "xsec/prepare/Slivers.h"

#include <algorithm>
#include <map>

namespace xsec {

namespace {

using RegionsOfPieces = std::map<std::size_t, std::vector<std::size_t>>;

RegionsOfPieces FindRegionsOfPieces(const std::vector<Region>& regions) {
  RegionsOfPieces sides;
  for (std::size_t i = 0; i < regions.size(); ++i) {
    for (const TravelledPiece& piece : regions[i].outline) sides[piece.index].push_back(i);
  }
  return sides;
}

/// The smallest first.
std::vector<std::size_t> SliversInOrder(const std::vector<Region>& regions) {
  std::vector<std::size_t> slivers;
  for (std::size_t i = 0; i < regions.size(); ++i) {
    if (regions[i].sliver) slivers.push_back(i);
  }
  std::sort(slivers.begin(), slivers.end(),
            [&](std::size_t a, std::size_t b) { return regions[a].baseArea < regions[b].baseArea; });
  return slivers;
}

struct Neighbour {
  std::size_t region = kNone;
  double shared = 0;  ///< length of the common outline
};

Neighbour LongestNeighbour(std::size_t sliver, const std::vector<Region>& regions, const RegionsOfPieces& sides) {
  std::map<std::size_t, double> lengths;
  for (const TravelledPiece& piece : regions[sliver].outline) {
    for (const std::size_t region : sides.at(piece.index)) {
      if (region != sliver) lengths[region] += Length(piece);
    }
  }
  const auto longest = std::max_element(lengths.begin(), lengths.end(),
                                        [](const auto& a, const auto& b) { return a.second < b.second; });
  return longest == lengths.end() ? Neighbour{} : Neighbour{longest->first, longest->second};
}

}  // namespace

bool IsSliver(const Region& aRegion, double aArea, double aTolerance) {
  return aRegion.baseArea < aArea || 2 * aRegion.baseArea < aTolerance * Length(aRegion.outline);
}

std::vector<std::size_t> PiecesRoundSlivers(const std::vector<Region>& aRegions, std::vector<Cure>& aCures) {
  const RegionsOfPieces sides = FindRegionsOfPieces(aRegions);
  std::vector<bool> isTaken(aRegions.size(), false);
  std::vector<std::size_t> pieces;
  for (const std::size_t sliver : SliversInOrder(aRegions)) {
    const Neighbour neighbour = LongestNeighbour(sliver, aRegions, sides);
    if (neighbour.region == kNone || isTaken[sliver] || isTaken[neighbour.region]) continue;
    isTaken[sliver] = isTaken[neighbour.region] = true;
    for (const TravelledPiece& piece : aRegions[sliver].outline) {
      const auto& regions = sides.at(piece.index);
      if (std::find(regions.begin(), regions.end(), neighbour.region) != regions.end()) pieces.push_back(piece.index);
    }
    const TravelledPiece& first = aRegions[sliver].outline.front();
    aCures.push_back({CureKind::Sliver, aRegions[sliver].label, first.source, kNone, aRegions[sliver].baseArea});
  }
  return pieces;
}

}  // namespace xsec
