#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "xsec/Drawing.h"
#include "xsec/Regions.h"

namespace xsec {

/// A layer's name and the entities on it, in the text form of tests/support/Geometry.h.
using LayerText = std::pair<std::string, std::string>;

/// A drawing in millimetres with its true extents.
Drawing DrawingOf(const std::vector<LayerText>& aLayers);
Drawing DrawingOf(std::string_view aEntities);

/// The text of a closed rectangle of four lines, and of a circle of two half arcs.
std::string Rectangle(double aLeft, double aBottom, double aRight, double aTop);
std::string Circle(double aX, double aY, double aRadius);

/// Detects with default settings, and with the settings back at their starting values afterwards.
Detection Detect(const Drawing& aDrawing);
Detection Detect(std::string_view aEntities);

/// The region whose base area is within 1e-6 mm2 of this; fails the test when it isn't there exactly once.
const Region& RegionOfArea(const Detection& aDetection, double aArea);

}  // namespace xsec
