#pragma once

#include <cstddef>
#include <vector>

#include "xsec/Affine.h"
#include "xsec/SourceDrawing.h"

/// A piece of a smooth curve, polynomial or rational, by its control points; and the arcs that stand for it.
namespace xsec {

/// A control point in homogeneous coordinates: (x w, y w, w).
struct Weighted {
  double x = 0;
  double y = 0;
  double w = 0;
};

/// The control points of one piece, which begins in the first and ends in the last. The weights are positive, so that
/// the piece stays inside the hull of its points.
using CurvePiece = std::vector<Weighted>;

Weighted Lifted(const Point& aPoint, double aWeight);
Point Projected(const Weighted& aPoint);
Weighted Mix(const Weighted& aFirst, const Weighted& aSecond, double aShare);

/// A way of straight and circular segments, each given by the vertex that it begins in and its bulge.
using ArcPath = std::vector<SourceVertex>;

/// Goes on along a piece from where the path ends, which is where the piece begins, to the very end of the piece. No
/// point of the piece is further than aTolerance from the path; vertices lie on the curve, no arc exceeds a right
/// angle, and none has a radius of more than a thousand chords: chords do there. Once the path has 100,000 vertices,
/// whatever is left gets a chord: numbers that overflow on the way come to no end otherwise.
/// COST: arcs grow with the third root of 1 / aTolerance, each tried with the square of the number of control points.
void FollowByArcs(CurvePiece aPiece, double aTolerance, ArcPath& aPath);

}  // namespace xsec
