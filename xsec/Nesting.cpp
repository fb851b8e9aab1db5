#include "xsec/Nesting.h"

#include <algorithm>
#include <cmath>
#include <numeric>

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

bool Holds(const TracedLoop& face, const Point& point) {
  return Contains(face.box, point) && IsInside(face.pieces, point);
}

const TravelledPiece& LongestPiece(const TracedLoop& loop) {
  return *std::max_element(loop.pieces.begin(), loop.pieces.end(),
                           [](const TravelledPiece& a, const TravelledPiece& b) { return Length(a) < Length(b); });
}

/// Faces that share a piece lie beside each other. That is asked too because the inner point of a sliver may have to be
/// the middle of its first piece.
std::size_t FindParent(std::span<const TracedLoop> faces, std::span<const std::size_t> larger, const TracedLoop& face) {
  const auto parent = std::find_if(larger.begin(), larger.end(), [&](std::size_t f) {
    return Holds(faces[f], face.inner) && !HasPiece(faces[f], face.pieces.front().index);
  });
  return parent == larger.end() ? kNone : *parent;
}

std::size_t FindHoleOwner(std::span<const TracedLoop> faces, std::span<const std::size_t> byArea,
                          const TracedLoop& boundary) {
  const TravelledPiece& longest = LongestPiece(boundary);
  const Point middle = MidPoint(longest);
  const auto owner = std::find_if(byArea.begin(), byArea.end(), [&](std::size_t f) {
    return faces[f].area > -boundary.area && Holds(faces[f], middle) && !HasPiece(faces[f], longest.index);
  });
  return owner == byArea.end() ? kNone : *owner;
}

}  // namespace

Nesting DetermineNesting(std::span<const TracedLoop> aFaces, std::span<const TracedLoop> aOuterBoundaries) {
  const std::vector<std::size_t> byArea = ByArea(aFaces);
  Nesting nesting;
  nesting.parents.assign(aFaces.size(), kNone);
  for (std::size_t i = 0; i < byArea.size(); ++i) {
    const std::size_t face = byArea[i];
    nesting.parents[face] = FindParent(aFaces, std::span(byArea).subspan(i + 1), aFaces[face]);
  }
  for (const TracedLoop& boundary : aOuterBoundaries) {
    nesting.holeOwners.push_back(FindHoleOwner(aFaces, byArea, boundary));
  }
  return nesting;
}

}  // namespace xsec
