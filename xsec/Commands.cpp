#include "xsec/Commands.h"

namespace xsec {

namespace {

constexpr const char* kDescription = "xsec finds the regions of a machine's cross-section in a drawing.";

constexpr const char* kExamples =
    "Examples:\n"
    "  xsec regions stator.dxf                        a table of all regions\n"
    "  xsec regions stator.dxf -o stator.svg          and a picture of them\n"
    "  xsec check stator.dxf                          what is open or doubled, and where\n"
    "  xsec info stator.dxf                           what the file holds\n"
    "  xsec transform pole.dxf --copies 8 -o all.dxf  the whole machine from an eighth\n"
    "  xsec diff old.json new.json                    what has changed between two drawings\n"
    "\n"
    "xsec COMMAND --help has the options and more examples.\n"
    "\n"
    "Exit codes: 0 fine, 1 findings or differences, 2 wrong usage, 3 drawing unreadable, 4 output not written,\n"
    "5 no closed region found, 6 an outline that cannot be offset, 7 a limit is reached, 8 a crash, with --isolate.";

}  // namespace

Action ParseArguments(int aCount, const char* const* aArguments) {
  CommandLine line(kDescription, kExamples);
  AddRegionsCommand(line);
  AddCheckCommand(line);
  AddInfoCommand(line);
  AddTransformCommand(line);
  AddDiffCommand(line);
  AddSchemaCommand(line);
  return line.Parse(aCount, aArguments);
}

}  // namespace xsec
