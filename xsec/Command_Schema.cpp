#include <string>

#include "xsec/Commands.h"
#include "xsec/Schema.h"
#include "xsec/Terminal.h"

namespace xsec {

namespace {

constexpr const char* kExample =
    "Example:\n"
    "  xsec schema > regions.schema.json && jsonschema -i stator.json regions.schema.json";

}  // namespace

void AddSchemaCommand(CommandLine& aLine) {
  aLine.AddCommand("schema", "Print the JSON schema of what -o FILE.json holds", kExample).Run([] {
    PrintToStandardOutput(std::string(RegionsSchema()));
    return ExitCode::Fine;
  });
}

}  // namespace xsec
