#pragma once

#include "xsec/Errors.h"

namespace xsec {

/// The whole program: arguments in, files and standard output out, diagnostics to standard error. Throws nothing.
ExitCode Run(int aCount, const char* const* aArguments);

}  // namespace xsec
