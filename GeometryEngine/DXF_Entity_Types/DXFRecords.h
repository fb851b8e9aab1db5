#pragma once

// Plain records as a drawing file holds them, without operations. The geometry works on TDXFEntity.

#include <cstdint>

namespace GeometryEngine {

struct TDXFPoint {
  double x = 0;
  double y = 0;
};

/// A line between two numbered points.
struct TDXFLine {
  std::int32_t point1 = 0;
  std::int32_t point2 = 0;
};

/// UNITS: angles in degrees.
struct TDXFArc {
  TDXFPoint centre;
  double startAngle = 0;
  double endAngle = 0;
  double radius = 0;
  TDXFPoint startPoint;
  TDXFPoint endPoint;
};

}  // namespace GeometryEngine
