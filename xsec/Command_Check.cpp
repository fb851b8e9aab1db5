#include <memory>

#include "xsec/Commands.h"
#include "xsec/DrawingOptions.h"
#include "xsec/RegionDetection.h"
#include "xsec/Report.h"
#include "xsec/ReportAnswer.h"
#include "xsec/Terminal.h"
#include "xsec/check/CheckText.h"
#include "xsec/check/Findings.h"
#include "xsec/output/OutputFiles.h"

namespace xsec {

namespace {

constexpr const char* kExamples =
    "Examples:\n"
    "  xsec check stator.dxf                 open ends, near misses, doubles, slivers, and a ladder of tolerances\n"
    "  xsec check stator.dxf -o faults.svg   and a picture with a mark at each\n"
    "  xsec check stator.dxf --json          the same for the next program\n"
    "  xsec check stator.dxf --tol 0.004     what is left at a tolerance that the ladder shows\n"
    "\n"
    "Exit codes: 0 nothing found, 1 findings, 2 wrong usage, 3 drawing unreadable, 4 output not written,\n"
    "7 a limit is reached, 8 a crash, with --isolate.";

struct CheckOptions {
  DrawingOptions drawing;
  std::vector<Output> outputs;
  bool asJson = false;
};

ExitCode RunCheck(const CheckOptions& options) {
  CheckOutputs(options.outputs, {options.drawing.path});
  const Progress progress;
  progress.Show("reading " + options.drawing.path);
  const Drawing drawing = LoadDrawing(options.drawing);
  const Settings settings = ApplySettings(options.drawing.settings, drawing);
  progress.Show("finding regions");
  const Detection detection = DetectRegions(drawing, settings);
  Findings findings = FindFaults(drawing, settings, detection);
  progress.Show("trying other tolerances");
  ClimbLadder(drawing, options.drawing.settings, detection, findings);
  Report report{drawing, settings, detection};
  report.marks = MarksOf(report, findings);
  WriteOutputs(options.outputs, report);
  progress.Clear();
  for (const Output& output : options.outputs) Tell("wrote " + output.path);
  PrintToStandardOutput(options.asJson ? CheckJson(report, findings) : CheckText(report, findings));
  return findings.AreNone() ? ExitCode::Fine : ExitCode::Findings;
}

}  // namespace

void AddCheckCommand(CommandLine& aLine) {
  const auto options = std::make_shared<CheckOptions>();
  const Command command =
      aLine.AddCommand("check", "Say what is open, doubled or close to it, where, and what helps", kExamples);
  AddDrawingOptions(command, options->drawing);
  command.AddFlag("--json", "Print everything as JSON", options->asJson);
  AddOutputOption(command, options->outputs,
                  "Write the regions to a file as well; a .svg has a mark at every finding. May be repeated");
  command.Run([options] { return RunAsAsked(options->drawing, options->outputs, [&] { return RunCheck(*options); }); });
}

}  // namespace xsec
