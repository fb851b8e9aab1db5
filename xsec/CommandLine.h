#pragma once

#include <optional>
#include <string>
#include <vector>

#include "xsec/Drawing.h"
#include "xsec/OutputFiles.h"
#include "xsec/Settings.h"

namespace xsec {

/// What `xsec regions` is asked for.
struct RegionsCommand {
  std::string drawing;
  std::vector<Output> outputs;
  std::optional<DrawingUnits> units;
  SettingsRequest settings;
};

/// The command that the arguments spell; nothing when they asked for help or the version, which have then been printed.
/// Throws UsageError.
std::optional<RegionsCommand> ParseCommandLine(int aCount, const char* const* aArguments);

}  // namespace xsec
