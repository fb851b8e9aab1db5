#include "xsec/Nesting.h"

#include <algorithm>
#include <functional>
#include <numeric>

#include "xsec/BoxIndex.h"

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

bool HasPiece(const TracedLoop& loop, std::size_t piece) {
  return std::any_of(loop.pieces.begin(), loop.pieces.end(),
                     [&](const TravelledPiece& own) { return own.index == piece; });
}

const TravelledPiece& LongestPiece(const TracedLoop& loop) {
  return *std::max_element(loop.pieces.begin(), loop.pieces.end(),
                           [](const TravelledPiece& a, const TravelledPiece& b) { return Length(a) < Length(b); });
}

/// Faces by their places in the order of areas, and which of them hold a point.
class Faces {
 public:
  explicit Faces(std::span<const TracedLoop> faces)
      : fFaces(faces), fByArea(ByArea(faces)), fIndex(BoxesOf(faces, fByArea)) {}

  const std::vector<std::size_t>& InOrder() const { return fByArea; }

  /// The first face in the order, from a place on, that holds the point and `fits`.
  template <typename Fits>
  std::size_t FindFirst(const Point& point, std::size_t from, Fits&& fits) const {
    std::vector<std::size_t> places = fIndex.Find(point);
    std::erase_if(places, [&](std::size_t place) { return place < from; });
    std::make_heap(places.begin(), places.end(), std::greater<>());
    while (!places.empty()) {
      std::pop_heap(places.begin(), places.end(), std::greater<>());
      const std::size_t face = fByArea[places.back()];
      if (fits(fFaces[face]) && IsInside(fFaces[face].pieces, point)) return face;
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

  std::span<const TracedLoop> fFaces;
  std::vector<std::size_t> fByArea;
  BoxIndex fIndex;
};

/// Faces that share a piece lie beside each other. That is asked too because the inner point of a sliver may have to be
/// the middle of its first piece.
std::size_t FindParent(const Faces& faces, std::size_t place, const TracedLoop& face) {
  return faces.FindFirst(face.inner, place + 1,
                         [&](const TracedLoop& round) { return !HasPiece(round, face.pieces.front().index); });
}

std::size_t FindHoleOwner(const Faces& faces, const TracedLoop& boundary) {
  const TravelledPiece& longest = LongestPiece(boundary);
  return faces.FindFirst(MidPoint(longest), 0, [&](const TracedLoop& round) {
    return round.area > -boundary.area && !HasPiece(round, longest.index);
  });
}

}  // namespace

Nesting DetermineNesting(std::span<const TracedLoop> aFaces, std::span<const TracedLoop> aOuterBoundaries) {
  const Faces faces(aFaces);
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
