#pragma once

// The stage between reading a drawing and detecting its regions. The library answers some questions by the directions
// of the axes or by fixed lengths: circles of one height do not cross, steep lines sort their points by x, arcs turn by
// their first chord. The drawing is put so that none of these answers matters, and every change is reported.

#include <vector>

#include "xsec/Drawing.h"
#include "xsec/prepare/PreparedGroup.h"

namespace xsec {

/// The drawing's entities as they are.
PreparedGroup AsDrawn(const Drawing& aDrawing, double aTolerance);

/// The drawing's entities put so that their regions do not depend on how the drawing lies, in one group or more. What
/// lies far from the origin is moved there. What has lines so steep that their points would get into the wrong order,
/// or ends that the library would take for meetings of another kind, is turned, to where there are none or the fewest:
/// where parts of the drawing lie side by side, each of these parts as it needs, in a group of its own. Where that
/// settles not all, the group is cut wherever its entities meet, and is to be compared with a tenth of the tolerance.
/// No group lies within another or meets it. REQUIRES: the settings have been applied to the library.
///
/// COST: near-linear in the entities and their meetings, once for the drawing, once more for what need not be turned,
/// and for the rest once for each angle tried, and up to three times more with all pieces when that settles not all;
/// entities that crowd into one place cost pairs there.
std::vector<PreparedGroup> Prepare(const Drawing& aDrawing, double aTolerance);

}  // namespace xsec
