#pragma once

// Drawings made from drawings: mirrored, turned, copied round the axis, with all outlines offset.

#include <cstddef>
#include <string>
#include <vector>

#include "xsec/Drawing.h"
#include "xsec/Regions.h"
#include "xsec/Settings.h"

namespace xsec {

/// About the line through two points.
Drawing Mirrored(const Drawing& aDrawing, const Point& aFrom, const Point& aTo);

/// The drawing and its copies at equal angles round the origin. What copies share along their seams is there twice.
Drawing CopiedRound(const Drawing& aDrawing, std::size_t aCopies);

/// A drawing of the outlines of all regions, each offset by itself: outwards or, with a negative distance, inwards. The
/// outlines bear the names of their regions as layers. Says in the drawing's warnings which regions vanish.
/// Throws OffsetError with region and place when an outline cannot be offset.
/// REQUIRES: settings as DetectRegions.
Drawing Offset(const Drawing& aDrawing, const std::vector<Region>& aRegions, double aDistance,
               const Settings& aSettings);

}  // namespace xsec
