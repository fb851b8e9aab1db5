#include "tests/xsec/Drawings.h"

#include <cmath>

#include <gtest/gtest.h>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"
#include "xsec/RegionDetection.h"
#include "xsec/Settings.h"

namespace xsec {

Drawing DrawingOf(const std::vector<LayerText>& aLayers) {
  Drawing drawing;
  drawing.path = "made-up.dxf";
  drawing.units = {"mm", 1, "file"};
  drawing.extents = EmptyExtents();
  for (const auto& [layer, text] : aLayers) {
    for (const auto& entity : GeometryEngine::support::ParseEntities(text)) {
      const bool isArc = entity.EntityType == GeometryEngine::DXFArc;
      drawing.entities.push_back({entity, layer, isArc ? "ARC" : "LINE", "", "", 0, 256});
      Widen(drawing.extents, Bounds(Travel(entity, true)));
    }
  }
  if (drawing.entities.empty()) drawing.extents = {};
  return drawing;
}

Drawing DrawingOf(std::string_view aEntities) {
  return DrawingOf({{"0", std::string(aEntities)}});
}

std::string Rectangle(double aLeft, double aBottom, double aRight, double aTop) {
  const auto corner = [](double x, double y) {
    return GeometryEngine::support::ToText(GeometryEngine::TEntityCoordinate{x, y});
  };
  const std::string a = corner(aLeft, aBottom), b = corner(aRight, aBottom), c = corner(aRight, aTop),
                    d = corner(aLeft, aTop);
  return "L " + a + " " + b + "; L " + b + " " + c + "; L " + c + " " + d + "; L " + d + " " + a + "; ";
}

std::string Circle(double aX, double aY, double aRadius) {
  const std::string circle = "A c " + GeometryEngine::support::ToText(GeometryEngine::TEntityCoordinate{aX, aY}) +
                             " r " + GeometryEngine::support::ToText(aRadius);
  return circle + " 0..180; " + circle + " 180..360; ";
}

Detection Detect(const Drawing& aDrawing) {
  const GeometryEngine::support::TSettingsGuard guard;
  return DetectRegions(aDrawing, ApplySettings({}, aDrawing));
}

Detection Detect(std::string_view aEntities) {
  return Detect(DrawingOf(aEntities));
}

const Region& RegionOfArea(const Detection& aDetection, double aArea) {
  static const Region missing;
  const Region* found = nullptr;
  for (const Region& region : aDetection.regions) {
    if (!(std::abs(region.baseArea - aArea) < 1e-6)) continue;
    if (found != nullptr) ADD_FAILURE() << "two regions of area " << aArea;
    found = &region;
  }
  if (found == nullptr) ADD_FAILURE() << "no region of area " << aArea;
  return found == nullptr ? missing : *found;
}

}  // namespace xsec
