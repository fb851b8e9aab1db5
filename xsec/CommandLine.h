#pragma once

#include "xsec/Commands.h"

namespace xsec {

/// What the arguments ask to be run; empty when they asked for help or the version, which have then been printed.
/// Throws UsageError.
Action ParseCommandLine(int aCount, const char* const* aArguments);

}  // namespace xsec
