#pragma once

// From the loose lines and arcs of a drawing to named, nested, labelled regions. The library finds the loops; this file
// calls it in the right order, decides the nesting by points inside the regions, and checks what comes back.

#include "xsec/Drawing.h"
#include "xsec/Regions.h"
#include "xsec/Settings.h"
#include "xsec/naming/RegionNaming.h"

namespace xsec {

/// REQUIRES: the settings have been applied to the library (ApplySettings) and stay as they are during the call.
Detection DetectRegions(const Drawing& aDrawing, const Settings& aSettings, const NamingRequest& aNaming = {});

}  // namespace xsec
