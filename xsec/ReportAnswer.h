#pragma once

// What the commands that write regions have in common: the option for their outputs, and what they say at the end.

#include <vector>

#include "xsec/CommandLine.h"
#include "xsec/Errors.h"
#include "xsec/Report.h"
#include "xsec/output/OutputFiles.h"

namespace xsec {

inline constexpr const char* kOutputMeaning =
    "Write the regions to a file; its suffix says how: .svg a picture, .json everything, .csv a table, .dxf "
    "closed polylines, .geo for gmsh, .fem for FEMM. May be repeated";

/// As AddDrawingOptions.
void AddOutputOption(const Command& aCommand, std::vector<Output>& aOutputs, const char* aMeaning = kOutputMeaning);

/// Tells the diagnostics and what was written, prints the table, and answers whether there are regions.
ExitCode TellReport(const Report& aReport, const std::vector<Output>& aOutputs);

}  // namespace xsec
