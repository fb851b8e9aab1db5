#include "xsec/DxfReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "GeometryEngine/host/TDataStore.h"
#include "xsec/BlockPlacement.h"
#include "xsec/CurvePiece.h"
#include "xsec/DrawingExtents.h"
#include "xsec/DxfText.h"
#include "xsec/EntityMaker.h"
#include "xsec/SourceDrawing.h"
#include "xsec/Units.h"

namespace xsec {

namespace {

using Maindataenum::TInputFields;

constexpr double kNoSnapping = 2;  // a snapping mode that is neither of the two that change coordinates

// The arcs of a drawing are made before its tolerance is known, so no tolerance may move them: the end of an arc would
// be snapped to zero and the line that meets it there would not.
class SnappingOff {
 public:
  SnappingOff() : fMode(Kelvaralinks::dataStore.GetValue(TInputFields::ifSnappingMode)) {
    Kelvaralinks::dataStore.SetValue(TInputFields::ifSnappingMode, kNoSnapping);
  }
  ~SnappingOff() { Kelvaralinks::dataStore.SetValue(TInputFields::ifSnappingMode, fMode); }
  SnappingOff(const SnappingOff&) = delete;
  SnappingOff& operator=(const SnappingOff&) = delete;

 private:
  double fMode;
};

// A drawing that is empty although its file is not: everything stands in blocks that are not in use.
std::string WarnOfUnplacedBlocks(const SourceDrawing& source) {
  const auto count = std::count_if(source.blocks.begin(), source.blocks.end(),
                                   [](const auto& item) { return !item.second.entities.empty(); });
  return count == 0 ? ""
                    : fmt::format("the drawing itself is empty; blocks that are defined but not placed: {}", count);
}

std::string WarnOfUnknownUnit(const SourceDrawing& source) {
  const std::int32_t number = source.insUnits.value_or(0);
  return number == 0 ? "" : fmt::format("$INSUNITS is {}, which stands for no unit; taken as millimetres", number);
}

std::string WarnOfInterpolated(const Tally& splines) {
  return splines.count == 0 ? ""
                            : fmt::format(
                                  "splines given by nothing but points to pass through: {}, first on line {}; taken "
                                  "as cubic splines with knots as far apart as the points, other programs may differ",
                                  splines.count, splines.line);
}

std::string WarnOfCoarse(const Tally& curves, double coarseness) {
  if (curves.count == 0) return "";
  const std::string how = std::isfinite(coarseness) ? fmt::format("within {:.3g} mm", coarseness)
                                                    : std::string("by chords, since their numbers overflow");
  return fmt::format(
      "curves that would take more than {} lines and arcs: {}, first on line {}; followed {} instead, a larger "
      "--flatten takes fewer",
      kMostArcsOfCurve, curves.count, curves.line, how);
}

DrawingUnits UnitsOf(const SourceDrawing& source, const ReadOptions& options) {
  if (options.units) {
    DrawingUnits units = *options.units;
    units.source = units.source.empty() ? "--units" : units.source;
    return units;
  }
  auto units = FindUnit(source.insUnits.value_or(0));
  if (!units) {
    return {"mm", 1, "assumed"};
  }
  units->source = "file";
  return *units;
}

// What the reader of a drawing should know of its size and of what became of it.
void AddWarnings(const SourceDrawing& source, Drawing& drawing) {
  const auto warn = [&](std::string text) {
    if (!text.empty()) {
      drawing.warnings.push_back(std::move(text));
    }
  };
  if (drawing.entities.empty()) {
    return warn(WarnOfUnplacedBlocks(source));
  }
  warn(WarnOfInterpolated(drawing.interpolated));
  warn(WarnOfCoarse(drawing.coarse, drawing.coarseness));
  if (drawing.units.source == "assumed") {
    warn(WarnOfUnknownUnit(source));
    warn(WarnOfAssumedUnit(drawing.extents));
  }
}

}  // namespace

Drawing ReadDrawingText(std::string_view aText, const std::string& aPath, const ReadOptions& aOptions) {
  CheckDxfText(aText, aPath);
  const SourceDrawing source = ParseDxf(aText, aPath);
  CheckBlocks(source, aPath, aOptions.mostEntities);
  Drawing drawing;
  drawing.path = aPath;
  drawing.units = UnitsOf(source, aOptions);
  drawing.layerColours = source.layerColours;
  drawing.warnings = source.warnings;
  const SnappingOff guard;
  EntityMaker maker(drawing, aOptions.flattenTolerance, aOptions.mostEntities);
  PlaceAll(source,
           Affine::Shift(-aOptions.originX, -aOptions.originY) *
               Affine::Stretch(drawing.units.millimetres, drawing.units.millimetres),
           maker);
  drawing.extents = ExtentsOf(drawing.entities);
  AddWarnings(source, drawing);
  return drawing;
}

Drawing ReadDrawing(const std::string& aPath, const ReadOptions& aOptions) {
  return ReadDrawingText(LoadFile(aPath, aOptions.largestFile), aPath, aOptions);
}

}  // namespace xsec
