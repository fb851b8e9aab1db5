#pragma once

#include <optional>
#include <string>
#include <vector>

#include "xsec/Affine.h"
#include "xsec/SourceDrawing.h"

/// Curves that are neither lines nor circular arcs, as chords.
namespace xsec {

/// Points along an ellipse, both ends included; no point of the curve is further than aTolerance from its chord.
/// A full turn ends in the very point that it begins with. At most 100,000 chords, whatever the tolerance.
std::vector<Point> FlattenEllipse(const SourceEllipse& aEllipse, double aTolerance);

/// What keeps a spline from being flattened, empty when nothing does: it needs control points, as many knots as they
/// and the degree ask for, in order, positive weights, and a degree of 1 to 24.
std::string WhySplineCannotBeFlattened(const SourceSpline& aSpline);

/// Points along a spline, rational or not, both ends included; no point of the curve is further than aTolerance from
/// its chord. After 100,000 points, whatever the tolerance, the rest of the spline gets few chords: numbers that
/// overflow on the way come to no end otherwise. REQUIRES: WhySplineCannotBeFlattened gives nothing.
std::vector<Point> FlattenSpline(const SourceSpline& aSpline, double aTolerance);

}  // namespace xsec
