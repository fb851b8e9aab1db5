#include <CLI/CLI.hpp>
#include <string>

#include "xsec/Commands.h"
#include "xsec/Schema.h"
#include "xsec/Terminal.h"

namespace xsec {

void AddSchemaCommand(CLI::App& aApp, Action& aAction) {
  CLI::App& command = *aApp.add_subcommand("schema", "Print the JSON schema of what -o FILE.json holds");
  command.footer(
      "Example:\n"
      "  xsec schema > regions.schema.json && jsonschema -i stator.json regions.schema.json");
  command.callback([&aAction] {
    aAction = [] {
      PrintToStandardOutput(std::string(RegionsSchema()));
      return ExitCode::Fine;
    };
  });
}

}  // namespace xsec
