#include <fmt/format.h>

#include <memory>

#include "xsec/Commands.h"
#include "xsec/DrawingOptions.h"
#include "xsec/RegionSearch.h"
#include "xsec/Report.h"
#include "xsec/ReportAnswer.h"
#include "xsec/SearchOptions.h"
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
    "  xsec regions pole.dxf --copies 8 -o pole.csv   an eighth, with the areas of the whole machine\n"
    "  xsec regions pole.dxf --rules pole.json -o pole.geo -o pole.fem\n"
    "                                                 names and materials by rules, for gmsh and FEMM\n"
    "\n"
    "Exit codes: 0 fine, 2 wrong usage, 3 drawing unreadable, 4 output not written, 5 no closed region found,\n"
    "7 a limit is reached, 8 a crash, with --isolate.";

struct RegionsOptions {
  DrawingOptions drawing;
  SearchOptions search;
  std::vector<Output> outputs;
};

ExitCode RunRegions(const RegionsOptions& options) {
  CheckOutputs(options.outputs, {options.drawing.path, options.search.rules});
  const SearchRequest request = LoadRequest(options.search);
  const Progress progress;
  progress.Show("reading " + options.drawing.path);
  const Drawing drawing = LoadDrawing(options.drawing);
  const Settings settings = ApplySettings(options.drawing.settings, drawing);
  progress.Show(fmt::format("finding regions among {} entities", drawing.entities.size()));
  const Detection detection = FindRegions(drawing, settings, request);
  const Report report{drawing, settings, detection, request.copies};
  progress.Show("writing");
  WriteOutputs(options.outputs, report);
  progress.Clear();
  return TellReport(report, options.outputs);
}

}  // namespace

void AddRegionsCommand(CommandLine& aLine) {
  const auto options = std::make_shared<RegionsOptions>();
  const Command command =
      aLine.AddCommand("regions", "Find, name, nest and measure the closed regions of a drawing", kExamples);
  AddDrawingOptions(command, options->drawing);
  AddSearchOptions(command, options->search, options->drawing.settings);
  AddCopiesOption(command, options->search.request.copies,
                  "How often the machine holds what is drawn, for areas of the whole; 8 for an eighth");
  AddOutputOption(command, options->outputs);
  command.Run(
      [options] { return RunAsAsked(options->drawing, options->outputs, [&] { return RunRegions(*options); }); });
}

}  // namespace xsec
