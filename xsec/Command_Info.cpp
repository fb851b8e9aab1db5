#include <fmt/format.h>

#include <functional>
#include <iterator>
#include <map>
#include <memory>

#include "xsec/Commands.h"
#include "xsec/DrawingOptions.h"
#include "xsec/Report.h"
#include "xsec/Sector.h"
#include "xsec/Settings.h"
#include "xsec/SourceText.h"
#include "xsec/Terminal.h"

namespace xsec {

namespace {

constexpr const char* kExamples =
    "Examples:\n"
    "  xsec info stator.dxf              unit, extents, what it holds, and what would be skipped\n"
    "  xsec info pole.dxf --units m      the same when it is drawn in metres\n"
    "\n"
    "Exit codes: 0 fine, 2 wrong usage, 3 drawing unreadable, 7 a limit is reached, 8 a crash, with --isolate.";

using Key = std::function<std::string(const DrawingEntity&)>;

/// One entity of the file may stand for several lines and arcs, which share its line in the file.
void AddCounts(const Drawing& drawing, std::string_view title, const Key& key, std::string& text) {
  std::map<std::string, std::size_t> counts;
  for (const DrawingEntity& entity : drawing.entities) ++counts[key(entity)];
  text += fmt::format("{}\n", title);
  for (const auto& [name, count] : counts) text += fmt::format("  {:<24} {:>8}\n", name, count);
}

/// A drawing of a part of the machine says how many of it make a whole.
std::string SectorText(const Drawing& drawing) {
  const double across = AngleAcross(drawing);
  const std::size_t copies = CopiesOfSector(across);
  return copies == 0
             ? ""
             : fmt::format("sector: {} degrees about the origin, --copies {} make a whole\n", Plain(across, 6), copies);
}

std::string InfoText(const Drawing& drawing, const Settings& settings) {
  const Extents& box = drawing.extents;
  std::string text = fmt::format("{}\nunit: {}, {} mm ({})\n", drawing.path, drawing.units.name,
                                 Plain(drawing.units.millimetres, 6), drawing.units.source);
  text +=
      fmt::format("extents: x {} to {}, y {} to {}; {} x {} mm\n", Plain(box.minX, 9), Plain(box.maxX, 9),
                  Plain(box.minY, 9), Plain(box.maxY, 9), Plain(box.maxX - box.minX, 9), Plain(box.maxY - box.minY, 9));
  text += SectorText(drawing);
  text += fmt::format("tolerance: {} mm{}\n", Plain(settings.tolerance, 6), ToleranceOrigin(settings, drawing));
  text += fmt::format("lines and arcs, blocks placed: {}\n", drawing.entities.size());
  AddCounts(
      drawing, "by type in the file:", [](const DrawingEntity& e) { return e.type; }, text);
  AddCounts(
      drawing, "by layer:", [](const DrawingEntity& e) { return e.layer; }, text);
  AddCounts(
      drawing, "by block:", [](const DrawingEntity& e) { return e.block.empty() ? "(none)" : e.block; }, text);
  for (const auto& [type, count] : drawing.flattened) {
    text += fmt::format("turned into lines and arcs: {} {}\n", count, type);
  }
  for (const auto& [kind, tally] : drawing.skipped) {
    text += fmt::format("skipped: {}\n", SkippedText(kind, tally));
  }
  for (const std::string& warning : drawing.warnings) text += fmt::format("warning: {}\n", warning);
  return text;
}

ExitCode RunInfo(const DrawingOptions& options) {
  const Drawing drawing = LoadDrawing(options);
  PrintToStandardOutput(InfoText(drawing, ApplySettings(options.settings, drawing)));
  return ExitCode::Fine;
}

}  // namespace

void AddInfoCommand(CommandLine& aLine) {
  const auto options = std::make_shared<DrawingOptions>();
  const Command command =
      aLine.AddCommand("info", "Say what a drawing holds, in which unit, and what would be skipped", kExamples);
  AddDrawingOptions(command, *options);
  command.Run([options] { return RunAsAsked(*options, {}, [&] { return RunInfo(*options); }); });
}

}  // namespace xsec
