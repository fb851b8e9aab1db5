#pragma once

// From the loose lines and arcs of a drawing to named, nested, labelled regions. The library finds the loops; this file
// calls it in the right order, decides the nesting by points inside the regions, and checks what comes back.

#include "xsec/Drawing.h"
#include "xsec/Regions.h"
#include "xsec/Settings.h"

namespace xsec {

/// The name of a region whose outline comes from no named layer.
inline constexpr const char* kNamelessRegion = "Region";

/// REQUIRES: the settings have been applied to the library (ApplySettings) and stay as they are during the call.
Detection DetectRegions(const Drawing& aDrawing, const Settings& aSettings);

}  // namespace xsec
