#pragma once

#include <cstddef>
#include <functional>
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

/// Lines and arcs that stand for a curve.
struct FlatCurve {
  ArcPath path;
  double tolerance = 0;  ///< no point of the curve is further from the path; infinite where that could not be said
};

/// The most lines and arcs that stand for a curve, where it has no more pieces than that.
inline constexpr std::size_t kMostArcsOfCurve = 10'000;

/// A path from the beginning of a curve's first piece to the very end of its last, each of them beginning where the one
/// before ends. No point of the curve is further than aTolerance from it; vertices lie on the curve, no arc exceeds a
/// right angle, and none has a radius of more than a thousand chords: chords do there. Where that would take more than
/// kMostArcsOfCurve, the tolerance is eight times as large, and so on; a curve whose numbers overflow gets a chord for
/// each piece in the end.
/// REQUIRES: at least one piece.
/// COST: arcs grow with the third root of 1 / aTolerance, each tried with the square of the number of control points.
FlatCurve FollowByArcs(std::size_t aPieces, const std::function<CurvePiece(std::size_t)>& aPieceAt, double aTolerance);

}  // namespace xsec
