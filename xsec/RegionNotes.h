#pragma once

// What is said about single regions: what looks wrong with them and what was put right.

#include <string>
#include <vector>

#include "xsec/Regions.h"

namespace xsec {

/// All warnings of a detection, each doubt with the number of its region.
std::vector<std::string> WarningTexts(const Diagnostics& aDiagnostics);

/// What was put right, with the numbers of the regions. REQUIRES: the correction is one of the detection's.
std::string CorrectionText(const Correction& aCorrection, const Detection& aDetection);

}  // namespace xsec
