#include "xsec/ReportAnswer.h"

#include "xsec/Terminal.h"

namespace xsec {

void AddOutputOption(const Command& aCommand, std::vector<Output>& aOutputs, const char* aMeaning) {
  aCommand.Add<std::vector<std::string>>(
      "-o,--output", "FILE", aMeaning,
      [&aOutputs](const std::vector<std::string>& paths) { aOutputs = FindOutputs(paths); });
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
