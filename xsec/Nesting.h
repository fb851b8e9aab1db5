#pragma once

// Which region lies inside which. A detection gives two kinds of loops: the anticlockwise outlines of bounded faces,
// and the clockwise outer boundaries of groups of touching faces. A group that stands inside a face is one hole of it,
// and the faces of the group are its children.

#include <cstddef>
#include <span>
#include <vector>

#include "xsec/TravelledPiece.h"

namespace xsec {

/// A loop as the detection traced it.
struct TracedLoop {
  std::size_t index = 0;  ///< position in the detection's region tree
  Loop pieces;
  double area = 0;  ///< signed
  Extents box;
  Point inner;  ///< of a face: inside its outline; of a sliver the middle of its first piece
};

struct Nesting {
  std::vector<std::size_t> parents;     ///< for each face the smallest face round it, or kNone
  std::vector<std::size_t> holeOwners;  ///< for each outer boundary the face that it is a hole of, or kNone
};

/// A face lies inside the smallest larger face that holds its inner point. An outer boundary lies directly inside the
/// smallest larger face that holds the middle of its longest piece without that piece being a part of its own outline;
/// as pieces meet at their ends only, the middle of a piece never stands on another face's outline.
/// COST: near-linear, but for faces in each other's boxes: each loop looks at the boxes round its point.
Nesting DetermineNesting(std::span<const TracedLoop> aFaces, std::span<const TracedLoop> aOuterBoundaries);

}  // namespace xsec
