#pragma once

// Pieces and loops in travel order, as plain values that outlive the library's trees, and the exact measures of true
// arcs that xsec checks the library's answers with: area, length, box, distance, crossings of a scan line.

#include <cstddef>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/Extents.h"
#include "xsec/Point.h"

namespace xsec {

inline constexpr std::size_t kNone = static_cast<std::size_t>(-1);

/// One line or arc as a loop travels it.
struct TravelledPiece {
  bool isArc = false;
  Point from;
  Point to;
  Point centre;  ///< arcs only, as the next four
  double radius = 0;
  double startAngle = 0;       ///< degrees, the direction of `from` about the centre
  double endAngle = 0;         ///< degrees, the direction of `to`
  double sweep = 0;            ///< degrees from start to end, negative when travelled clockwise
  std::size_t index = kNone;   ///< of the piece in the vertex graph
  std::size_t source = kNone;  ///< of the entity of the drawing that it is a part of
};

using Loop = std::vector<TravelledPiece>;

/// The entity travelled from its start to its end, or the other way.
TravelledPiece Travel(const GeometryEngine::TDXFEntity& aEntity, bool aForward);

/// The same piece, travelled the other way.
TravelledPiece Reversed(const TravelledPiece& aPiece);

Point MidPoint(const TravelledPiece& aPiece);
/// The point at this part, 0 to 1, of the way along the piece.
Point PointAlong(const TravelledPiece& aPiece, double aPart);
/// The piece from one part of its way to another, 0 to 1.
TravelledPiece PartOf(const TravelledPiece& aPiece, double aFrom, double aTo);
double Length(const TravelledPiece& aPiece);
double Distance(const TravelledPiece& aPiece, const Point& aPoint);
Extents Bounds(const TravelledPiece& aPiece);
/// Appends the x of every crossing with the horizontal line through aY. A piece that only touches the line is crossed
/// an even number of times, so that the crossings of a closed loop can always be taken in pairs.
void AddCrossings(const TravelledPiece& aPiece, double aY, std::vector<double>& aCrossings);

/// Positive when the loop is travelled anticlockwise.
double SignedArea(const Loop& aLoop);
/// Of the area within the loop; never outside the loop's box. DEGENERATE: the box's middle when the area is 0, the
/// origin of an empty loop.
Point Centroid(const Loop& aLoop);
double Length(const Loop& aLoop);
double Distance(const Loop& aLoop, const Point& aPoint);
Extents Bounds(const Loop& aLoop);
/// Whether the loop winds round the point; on the loop itself the answer is either.
bool IsInside(const Loop& aLoop, const Point& aPoint);
/// The same from where the loop crosses the horizontal line through the point, as AddCrossings gives it.
bool IsInside(const std::vector<double>& aCrossings, const Point& aPoint);

}  // namespace xsec
