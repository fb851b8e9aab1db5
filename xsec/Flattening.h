#pragma once

#include <string>
#include <vector>

#include "xsec/CurvePiece.h"
#include "xsec/SourceDrawing.h"

/// Curves that are neither lines nor circular arcs, as lines and arcs.
namespace xsec {

/// A path along an ellipse, both ends included, as FollowByArcs says. A full turn ends in the very point that it begins
/// with.
FlatCurve FlattenEllipse(const SourceEllipse& aEllipse, double aTolerance);

/// What keeps a spline from being flattened, empty when nothing does: it needs control points, as many knots as they
/// and the degree ask for, in order, positive weights, and a degree of 1 to 24.
std::string WhySplineCannotBeFlattened(const SourceSpline& aSpline);

/// A path along a spline, rational or not, both ends included, as FollowByArcs says.
/// REQUIRES: WhySplineCannotBeFlattened gives nothing.
FlatCurve FlattenSpline(const SourceSpline& aSpline, double aTolerance);

/// The cubic spline through points, with continuous curvature, its knots as far apart as the points. It leaves the ends
/// along the tangents that are given, without bending where none is; a closed one goes on smoothly from its end.
/// DEGENERATE: without control points when fewer than two of the points are different from the one before.
SourceSpline SplineThrough(const SourceFit& aFit);

}  // namespace xsec
