#include <fmt/format.h>

#include <cmath>
#include <memory>
#include <optional>

#include "xsec/Commands.h"
#include "xsec/DrawingOptions.h"
#include "xsec/DxfText.h"
#include "xsec/Report.h"
#include "xsec/ReportAnswer.h"
#include "xsec/SearchOptions.h"
#include "xsec/Terminal.h"
#include "xsec/output/OutputFiles.h"
#include "xsec/transform/OffsetOutline.h"
#include "xsec/transform/TransformDrawing.h"

namespace xsec {

namespace {

constexpr const char* kExamples =
    "Examples:\n"
    "  xsec transform slot.dxf --offset -0.3 -o liner.dxf       the slot, 0.3 mm smaller all round\n"
    "  xsec transform pole.dxf --mirror 0,0,1,0 -o other.dxf    about the x axis\n"
    "  xsec transform pole.dxf --rotate 45 -o next.dxf          anticlockwise about the origin\n"
    "  xsec transform pole.dxf --copies 8 -o rotor.dxf -o rotor.svg\n"
    "                                                           the whole machine from an eighth\n"
    "\n"
    "Corners of offset outlines are drawn out to their points. The drawing that is written holds the outlines of the\n"
    "regions that are found in the result.\n"
    "\n"
    "Exit codes: 0 fine, 2 wrong usage, 3 drawing unreadable, 4 output not written, 5 no closed region found,\n"
    "6 an outline that cannot be offset, 7 a limit is reached, 8 a crash, with --isolate.";

struct TransformOptions {
  DrawingOptions drawing;
  SearchOptions search;
  std::vector<Output> outputs;
  std::optional<double> offset;
  std::optional<std::pair<Point, Point>> mirror;
  std::optional<double> rotate;
  std::size_t copies = 0;
};

std::pair<Point, Point> MirrorLine(const std::string& text) {
  std::vector<double> numbers;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t comma = std::min(text.find(',', at), text.size());
    if (const auto number = ParseNumber(std::string_view(text).substr(at, comma - at))) numbers.push_back(*number);
    at = comma + 1;
  }
  if (numbers.size() != 4 || (numbers[0] == numbers[2] && numbers[1] == numbers[3])) {
    throw UsageError(fmt::format("--mirror {}: expected X1,Y1,X2,Y2, two different points of the line", text));
  }
  return {{numbers[0], numbers[1]}, {numbers[2], numbers[3]}};
}

/// Far more than the drawing's size leaves the result too few digits for what was drawn. Nothing drawn has no size.
double CheckedOffset(double offset, const Settings& settings, const Drawing& drawing) {
  constexpr double kLeastTolerances = 4;
  constexpr double kMostSizes = 1000;
  const double most = kMostSizes * Diagonal(drawing.extents);
  if (!drawing.entities.empty() && std::abs(offset) > most) {
    throw UsageError(
        fmt::format("--offset {}: more than {} times the size of the drawing; give a distance of at most {:.6g} mm",
                    offset, kMostSizes, most));
  }
  if (std::abs(offset) >= kLeastTolerances * settings.tolerance) return offset;
  throw UsageError(
      fmt::format("--offset {}: too close to the tolerance of {:.6g} mm; give a distance of at least {:.6g} mm, or "
                  "a smaller --tol",
                  offset, settings.tolerance, kLeastTolerances * settings.tolerance));
}

void CheckRange(const Drawing& drawing) {
  for (const DrawingEntity& entity : drawing.entities) {
    const auto& shape = entity.geometry;
    if (IsInRange(shape.StartCoords) && IsInRange(shape.EndCoords) && IsInRange(shape.CentreCoords)) continue;
    throw UsageError(
        fmt::format("transform: the result reaches farther than {} mm from the origin", kLargestCoordinate));
  }
}

void CheckOneIsAsked(const TransformOptions& options) {
  const int asked = static_cast<int>(options.offset.has_value()) + static_cast<int>(options.mirror.has_value()) +
                    static_cast<int>(options.rotate.has_value()) + static_cast<int>(options.copies > 0);
  if (asked != 1) throw UsageError("transform: expected one of --offset, --mirror, --rotate, --copies");
}

Drawing Transformed(const TransformOptions& options, const SearchRequest& request, const Drawing& drawing) {
  if (options.mirror) return Mirrored(drawing, options.mirror->first, options.mirror->second);
  if (options.rotate) return Turned(drawing, *options.rotate);
  if (options.copies > 0) return CopiedRound(drawing, options.copies);
  const Settings settings = ApplySettings(options.drawing.settings, drawing);
  const double distance = CheckedOffset(*options.offset, settings, drawing);
  return Offset(drawing, FindRegions(drawing, settings, request).regions, distance, settings);
}

ExitCode RunTransform(const TransformOptions& options) {
  CheckOutputs(options.outputs, {options.drawing.path, options.search.rules});
  const SearchRequest request = LoadRequest(options.search);
  const Progress progress;
  progress.Show("reading " + options.drawing.path);
  const Drawing source = LoadDrawing(options.drawing);
  progress.Show("transforming");
  const Drawing drawing = Transformed(options, request, source);
  CheckRange(drawing);
  const Settings settings = ApplySettings(options.drawing.settings, drawing);
  progress.Show("finding the regions of the result");
  const Detection detection = FindRegions(drawing, settings, request);
  const Report report{drawing, settings, detection};
  WriteOutputs(options.outputs, report);
  progress.Clear();
  return TellReport(report, options.outputs);
}

ExitCode RunOrRefuse(const TransformOptions& options) {
  try {
    return RunTransform(options);
  } catch (const OffsetError& error) {
    Tell(std::string(error.what()) + "; a smaller distance may do");
    return ExitCode::CannotBeOffset;
  }
}

}  // namespace

void AddTransformCommand(CommandLine& aLine) {
  const auto options = std::make_shared<TransformOptions>();
  const Command command =
      aLine.AddCommand("transform", "Offset, mirror, turn or copy the outlines of a drawing", kExamples);
  AddDrawingOptions(command, options->drawing);
  AddSearchOptions(command, options->search, options->drawing.settings);
  AddOutputOption(command, options->outputs);
  command.Add("--offset", "MM", "Move every outline outwards, or inwards by a negative distance", options->offset);
  command.Add<std::string>("--mirror", "X1,Y1,X2,Y2", "Mirror about the line through two points",
                           [options](const std::string& text) { options->mirror = MirrorLine(text); });
  command.Add("--rotate", "DEG", "Turn anticlockwise about the origin", options->rotate);
  AddCopiesOption(command, options->copies, "Copy round the origin, at equal angles");
  command.Run([options] {
    CheckOneIsAsked(*options);
    return RunAsAsked(options->drawing, options->outputs, [&] { return RunOrRefuse(*options); });
  });
}

}  // namespace xsec
