#pragma once

// The space that a region takes up, as loops to look into.

#include "xsec/InnerPoint.h"
#include "xsec/Regions.h"

namespace xsec {

/// Within the outline and outside the holes. Refers to the region's loops.
RegionSpace SpaceOf(const Region& aRegion);

/// The area over the boundary: half the width of a long region, half the radius of a round one. UNITS: millimetres
double HalfWidth(const Region& aRegion);

}  // namespace xsec
