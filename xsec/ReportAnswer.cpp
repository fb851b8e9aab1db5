#include "xsec/ReportAnswer.h"

#include <CLI/CLI.hpp>

#include "xsec/Terminal.h"

namespace xsec {

void AddOutputOption(CLI::App& aCommand, std::vector<Output>& aOutputs) {
  aCommand
      .add_option_function<std::vector<std::string>>(
          "-o,--output", [&](const std::vector<std::string>& paths) { aOutputs = FindOutputs(paths); },
          "Write the regions to a file; its suffix says how: .svg a picture, .json everything, .csv a table, .dxf "
          "closed polylines, .geo for gmsh, .fem for FEMM. May be repeated")
      ->type_name("FILE")
      ->allow_extra_args(false);
}

ExitCode TellReport(const Report& aReport, const std::vector<Output>& aOutputs) {
  for (const std::string& line : DiagnosticLines(aReport)) Tell(line);
  for (const Output& output : aOutputs) Tell("wrote " + output.path);
  PrintToStandardOutput(TableText(aReport));
  if (!aReport.detection.regions.empty()) return ExitCode::Fine;
  Tell("no closed region found");
  return ExitCode::NoClosedRegion;
}

}  // namespace xsec
