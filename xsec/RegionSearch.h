#pragma once

// The regions of a drawing as a user asks for them: in a turned drawing, named by rules, small ones left out.

#include "xsec/Drawing.h"
#include "xsec/Regions.h"
#include "xsec/Settings.h"
#include "xsec/naming/RegionNaming.h"

namespace xsec {

struct SearchRequest {
  NamingRequest naming;
  double turn = 0;         ///< UNITS: degrees, anticlockwise about the origin
  double minimumArea = 0;  ///< UNITS: mm2 of net area; regions below are left out
  std::size_t copies = 1;  ///< how often the machine holds what is drawn
};

/// Detects in the turned drawing and turns what was found back.
/// REQUIRES: as DetectRegions.
Detection FindRegions(const Drawing& aDrawing, const Settings& aSettings, const SearchRequest& aRequest);

/// Turned anticlockwise about the origin; multiples of a quarter turn are exact.
Drawing Turned(const Drawing& aDrawing, double aDegrees);

/// Without the regions below the net area. What lay in them lies in the region round them; their space stays a hole.
void LeaveOutSmall(Detection& aDetection, double aMinimumArea);

}  // namespace xsec
