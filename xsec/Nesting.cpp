#include "xsec/Nesting.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <numeric>
#include <optional>
#include <unordered_map>

#include "xsec/BoxIndex.h"
#include "xsec/OutlineIndex.h"

namespace xsec {

namespace {

/// Positions of the faces, smallest area first.
std::vector<std::size_t> ByArea(std::span<const TracedLoop> faces) {
  std::vector<std::size_t> order(faces.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return faces[a].area < faces[b].area; });
  return order;
}

const TravelledPiece& LongestPiece(const TracedLoop& loop) {
  return *std::max_element(loop.pieces.begin(), loop.pieces.end(),
                           [](const TravelledPiece& a, const TravelledPiece& b) { return Length(a) < Length(b); });
}

/// Faces by their places in the order of areas, and which of them hold a point.
class Faces {
 public:
  explicit Faces(std::span<const TracedLoop> faces)
      : fFaces(faces), fByArea(ByArea(faces)), fIndex(BoxesOf(faces, fByArea)), fOutlines(faces.size()) {
    for (std::size_t face = 0; face < faces.size(); ++face) {
      for (const TravelledPiece& piece : faces[face].pieces) fSides.emplace(piece.index, face);
    }
  }

  const std::vector<std::size_t>& InOrder() const { return fByArea; }

  /// The smallest face, from a place in the order on, that holds the point and has no part in the piece; its area is
  /// above the least.
  std::size_t FindRound(const Point& point, std::size_t from, std::size_t piece, double leastArea) {
    std::vector<std::size_t> places = fIndex.Find(point);
    std::erase_if(places, [&](std::size_t place) { return place < from; });
    std::make_heap(places.begin(), places.end(), std::greater<>());
    while (!places.empty()) {
      std::pop_heap(places.begin(), places.end(), std::greater<>());
      const std::size_t face = fByArea[places.back()];
      if (fFaces[face].area > leastArea && !HasPiece(face, piece) && IsInside(face, point)) return face;
      places.pop_back();
    }
    return kNone;
  }

 private:
  static std::vector<Extents> BoxesOf(std::span<const TracedLoop> faces, const std::vector<std::size_t>& order) {
    std::vector<Extents> boxes;
    for (const std::size_t face : order) boxes.push_back(faces[face].box);
    return boxes;
  }

  bool HasPiece(std::size_t face, std::size_t piece) const {
    const auto [begin, end] = fSides.equal_range(piece);
    return std::any_of(begin, end, [&](const auto& side) { return side.second == face; });
  }

  bool IsInside(std::size_t face, const Point& point) {
    if (!fOutlines[face]) fOutlines[face].emplace(fFaces[face].pieces);
    return fOutlines[face]->IsInside(point);
  }

  std::span<const TracedLoop> fFaces;
  std::vector<std::size_t> fByArea;
  BoxIndex fIndex;
  std::unordered_multimap<std::size_t, std::size_t> fSides;  ///< from each piece to the faces along it
  std::vector<std::optional<OutlineIndex>> fOutlines;        ///< of the faces that were asked
};

/// Faces that share a piece lie beside each other. That is asked too because the inner point of a sliver may have to be
/// the middle of its first piece.
std::size_t FindParent(Faces& faces, std::size_t place, const TracedLoop& face) {
  return faces.FindRound(face.inner, place + 1, face.pieces.front().index, -std::numeric_limits<double>::infinity());
}

std::size_t FindHoleOwner(Faces& faces, const TracedLoop& boundary) {
  const TravelledPiece& longest = LongestPiece(boundary);
  return faces.FindRound(MidPoint(longest), 0, longest.index, -boundary.area);
}

}  // namespace

Nesting DetermineNesting(std::span<const TracedLoop> aFaces, std::span<const TracedLoop> aOuterBoundaries) {
  Faces faces(aFaces);
  Nesting nesting;
  nesting.parents.assign(aFaces.size(), kNone);
  for (std::size_t place = 0; place < aFaces.size(); ++place) {
    const std::size_t face = faces.InOrder()[place];
    nesting.parents[face] = FindParent(faces, place, aFaces[face]);
  }
  for (const TracedLoop& boundary : aOuterBoundaries) nesting.holeOwners.push_back(FindHoleOwner(faces, boundary));
  return nesting;
}

}  // namespace xsec
