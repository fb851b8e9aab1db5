// Text taken for a drawing, through the reader and, when it makes a small drawing, through the detection to every
// output.

#include <cmath>
#include <string_view>

#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"
#include "xsec/DxfReader.h"
#include "xsec/Errors.h"
#include "xsec/Json.h"
#include "xsec/RegionDetection.h"
#include "xsec/Report.h"
#include "xsec/Settings.h"

using fuzz::Require;

namespace {

constexpr std::size_t kMostDetected = 60;  // entities; larger drawings are only read

void CheckEntities(const xsec::Drawing& aDrawing) {
  for (const xsec::DrawingEntity& entity : aDrawing.entities) {
    const auto& shape = entity.geometry;
    Require(std::isfinite(shape.StartCoords.x) && std::isfinite(shape.StartCoords.y) &&
                std::isfinite(shape.EndCoords.x) && std::isfinite(shape.EndCoords.y) && std::isfinite(shape.radius),
            "what has been read is finite");
  }
}

void WriteFem(const xsec::Report& aReport) {
  try {
    xsec::FemText(aReport);
  } catch (const xsec::OutputError&) {  // a region without a point inside
  }
}

void Detect(const xsec::Drawing& aDrawing) {
  const xsec::Settings settings = xsec::ApplySettings({}, aDrawing);
  const xsec::Detection detection = xsec::DetectRegions(aDrawing, settings);
  for (const xsec::Region& region : detection.regions) {
    Require(region.parent == xsec::kNone || region.parent < detection.regions.size(), "a parent is a region");
  }
  const xsec::Report report{aDrawing, settings, detection};
  xsec::TableText(report);
  xsec::DiagnosticLines(report);
  xsec::SvgText(report);
  xsec::CsvText(report);
  xsec::DxfOutputText(report);
  xsec::GeoText(report);
  WriteFem(report);
  xsec::ParsedJson(xsec::JsonText(report));  // throws what ends the run when the output is no JSON
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  const fuzz::StartingSettings settings;
  try {
    const std::string_view text(reinterpret_cast<const char*>(aData), aSize);
    const xsec::Drawing drawing = xsec::ReadDrawingText(text, "drawing.dxf");
    CheckEntities(drawing);
    if (drawing.entities.size() <= kMostDetected) Detect(drawing);
  } catch (const xsec::InputError&) {  // the one answer there is to text that is no drawing
  }
  return 0;
}
