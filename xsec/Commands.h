#pragma once

// The commands of the program, a source each. A command adds itself to the command line, and what is to be run when the
// arguments ask for it.

#include "xsec/CommandLine.h"

namespace xsec {

/// Each adds its command. Nothing is read or written before the action runs; arguments that make no sense are a
/// UsageError before that.
void AddRegionsCommand(CommandLine& aLine);
void AddCheckCommand(CommandLine& aLine);
void AddInfoCommand(CommandLine& aLine);
void AddTransformCommand(CommandLine& aLine);
void AddDiffCommand(CommandLine& aLine);
void AddSchemaCommand(CommandLine& aLine);

/// What the arguments ask of these to be run, as CommandLine::Parse.
Action ParseArguments(int aCount, const char* const* aArguments);

}  // namespace xsec
