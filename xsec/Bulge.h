#pragma once

#include "xsec/Affine.h"

/// An arc by its two ends and its bulge: the tangent of a quarter of its sweep, positive when it runs anticlockwise.
namespace xsec {

/// The centre of the circle. DEGENERATE: infinite coordinates for a bulge of 0.
Point CentreOf(const Point& aFrom, const Point& aTo, double aBulge);

/// The middle of the arc.
Point ApexOf(const Point& aFrom, const Point& aTo, double aBulge);

/// The bulge of the arc that passes through a third point on its way. DEGENERATE: 0 when the three lie on a line in
/// this order; not a number, or infinite, when the way turns back on itself.
double BulgeThrough(const Point& aFrom, const Point& aBetween, const Point& aTo);

}  // namespace xsec
