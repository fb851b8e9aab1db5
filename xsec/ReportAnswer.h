#pragma once

// What the commands that write regions have in common: the option for their outputs, and what they say at the end.

#include <vector>

#include "xsec/Errors.h"
#include "xsec/Report.h"
#include "xsec/output/OutputFiles.h"

namespace CLI {
class App;
}

namespace xsec {

void AddOutputOption(CLI::App& aCommand, std::vector<Output>& aOutputs);

/// Tells the diagnostics and what was written, prints the table, and answers whether there are regions.
ExitCode TellReport(const Report& aReport, const std::vector<Output>& aOutputs);

}  // namespace xsec
