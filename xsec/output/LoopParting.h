#pragma once

// Loops as they were traced, made into simple ones.

#include <vector>

#include "xsec/output/CurveLoops.h"

namespace xsec {

/// Takes out the curves that the loops of one region travel both ways, parts every loop where it comes back to a point,
/// and says which of what remains is the outline: the anticlockwise loop round the largest area.
RegionLoops PartLoops(const std::vector<CurveLoop>& aLoops, const std::vector<Curve>& aCurves);

/// Positive when the loop is travelled anticlockwise.
double SignedArea(const CurveLoop& aLoop, const std::vector<Curve>& aCurves);

}  // namespace xsec
