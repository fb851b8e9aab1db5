#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <memory>

#include "xsec/Commands.h"
#include "xsec/DrawingOptions.h"
#include "xsec/RegionDetection.h"
#include "xsec/Report.h"
#include "xsec/Terminal.h"
#include "xsec/output/OutputFiles.h"

namespace xsec {

namespace {

constexpr const char* kExamples =
    "Examples:\n"
    "  xsec regions stator.dxf                        a table of all regions\n"
    "  xsec regions stator.dxf -o stator.svg          and a picture of them\n"
    "  xsec regions pole.dxf --units m -o pole.json   a drawing in metres, for the next program\n"
    "  xsec regions rotor.dxf --tol 0.01              ends less than 0.01 mm apart meet\n"
    "\n"
    "Exit codes: 0 fine, 2 wrong usage, 3 drawing unreadable, 4 output not written, 5 no closed region found.";

struct RegionsOptions {
  DrawingOptions drawing;
  std::vector<Output> outputs;
};

ExitCode RunRegions(const RegionsOptions& options) {
  CheckOutputs(options.outputs);
  const Progress progress;
  progress.Show("reading " + options.drawing.path);
  const Drawing drawing = LoadDrawing(options.drawing);
  const Settings settings = ApplySettings(options.drawing.settings, drawing.extents);
  progress.Show(fmt::format("finding regions among {} entities", drawing.entities.size()));
  const Detection detection = DetectRegions(drawing, settings);
  const Report report{drawing, settings, detection};
  progress.Show("writing");
  WriteOutputs(options.outputs, report);
  progress.Clear();

  for (const std::string& line : DiagnosticLines(report)) Tell(line);
  for (const Output& output : options.outputs) Tell("wrote " + output.path);
  PrintToStandardOutput(TableText(report));
  if (!detection.regions.empty()) return ExitCode::Fine;
  Tell("no closed region found");
  return ExitCode::NoClosedRegion;
}

}  // namespace

void AddRegionsCommand(CLI::App& aApp, Action& aAction) {
  const auto options = std::make_shared<RegionsOptions>();
  CLI::App& command = *aApp.add_subcommand("regions", "Find, name, nest and measure the closed regions of a drawing");
  AddDrawingOptions(command, options->drawing);
  command
      .add_option_function<std::vector<std::string>>(
          "-o,--output", [options](const std::vector<std::string>& paths) { options->outputs = FindOutputs(paths); },
          "Write the regions to a file; its suffix says how: .svg a picture, .json everything, .csv a table, .dxf "
          "closed polylines, .geo for gmsh, .fem for FEMM. May be repeated")
      ->type_name("FILE")
      ->allow_extra_args(false);
  command.footer(kExamples);
  command.callback([&aAction, options] { aAction = [options] { return RunRegions(*options); }; });
}

}  // namespace xsec
