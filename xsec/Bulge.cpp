#include "xsec/Bulge.h"

#include <cmath>

namespace xsec {

Point CentreOf(const Point& aFrom, const Point& aTo, double aBulge) {
  const double share = (1 - aBulge * aBulge) / (4 * aBulge);
  return {(aFrom.x + aTo.x) / 2 - share * (aTo.y - aFrom.y), (aFrom.y + aTo.y) / 2 + share * (aTo.x - aFrom.x)};
}

Point ApexOf(const Point& aFrom, const Point& aTo, double aBulge) {
  return {(aFrom.x + aTo.x) / 2 + aBulge / 2 * (aTo.y - aFrom.y),
          (aFrom.y + aTo.y) / 2 - aBulge / 2 * (aTo.x - aFrom.x)};
}

// The two chords from a point of the arc to its ends turn by half of its sweep.
double BulgeThrough(const Point& aFrom, const Point& aBetween, const Point& aTo) {
  const Point in{aBetween.x - aFrom.x, aBetween.y - aFrom.y};
  const Point out{aTo.x - aBetween.x, aTo.y - aBetween.y};
  const double cross = in.x * out.y - in.y * out.x;
  const double dot = in.x * out.x + in.y * out.y;
  return cross / (std::hypot(cross, dot) + dot);
}

}  // namespace xsec
