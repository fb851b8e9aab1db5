#pragma once

// Where the offsets of two pieces that meet in a vertex meet again.

#include <optional>

#include "xsec/TravelledPiece.h"

namespace xsec {

/// The radius of an arc's offset: not above 0 when nothing of the arc is left.
double OffsetRadius(const TravelledPiece& aArc, double aDistance);

/// The meeting point of the offset lines and circles that lies closest to aNear. Pieces that go on in one direction
/// meet beside their vertex. The library's own point is aNear: it lies on the tangents, and off the circles by what
/// those leave them. DEGENERATE: aNear for two lines and for arcs of which nothing is left; nothing when the offsets do
/// not meet.
std::optional<Point> OffsetCorner(const TravelledPiece& aBefore, const TravelledPiece& aAfter, double aDistance,
                                  const Point& aNear);

}  // namespace xsec
