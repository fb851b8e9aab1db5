#pragma once

// The commands of the program, a source each. A command adds itself to the command line; when the arguments ask for it,
// it leaves there what is to be run.

#include <functional>

#include "xsec/Errors.h"

namespace CLI {
class App;
}

namespace xsec {

using Action = std::function<ExitCode()>;

/// Each adds its subcommand and sets aAction when the arguments name it. Nothing is read or written before the action
/// runs; arguments that make no sense are a UsageError while they are parsed.
void AddRegionsCommand(CLI::App& aApp, Action& aAction);
void AddCheckCommand(CLI::App& aApp, Action& aAction);
void AddInfoCommand(CLI::App& aApp, Action& aAction);
void AddTransformCommand(CLI::App& aApp, Action& aAction);
void AddDiffCommand(CLI::App& aApp, Action& aAction);
void AddSchemaCommand(CLI::App& aApp, Action& aAction);

}  // namespace xsec
