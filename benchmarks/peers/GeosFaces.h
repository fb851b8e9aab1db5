#pragma once

// Faces by GEOS: arcs as chords, then noding, then polygons from what has been noded.

#include <geos_c.h>

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <numbers>
#include <vector>

#include "benchmarks/drawings/Drawing.h"

namespace peers {

inline constexpr double kChordTolerance = 1e-3;  // millimetres that a chord stays away from its arc at most

inline void Print(const char* aFormat, ...) {
  std::va_list arguments;
  va_start(arguments, aFormat);
  std::vfprintf(stderr, aFormat, arguments);
  va_end(arguments);
}

inline double SweepOf(const drawings::Entity& aArc) {  // radians
  const double degrees = aArc.endAngle - aArc.startAngle + (aArc.endAngle < aArc.startAngle ? 360 : 0);
  return degrees * std::numbers::pi / 180;
}

inline std::vector<drawings::Point> ChordsOf(const drawings::Entity& aEntity) {
  std::vector<drawings::Point> points{aEntity.start};
  if (aEntity.isArc) {
    const double sweep = SweepOf(aEntity);
    const double step = 2 * std::acos(1 - std::min(1.0, kChordTolerance / aEntity.radius));
    const double count = std::ceil(sweep / step);
    for (double k = 1; k < count; ++k) {
      const double angle = aEntity.startAngle * std::numbers::pi / 180 + sweep * k / count;
      points.push_back(
          {aEntity.centre.x + aEntity.radius * std::cos(angle), aEntity.centre.y + aEntity.radius * std::sin(angle)});
    }
  }
  points.push_back(aEntity.end);
  return points;
}

class TGeosFaces {
 public:
  explicit TGeosFaces(const drawings::Drawing& aDrawing) {
    initGEOS(Print, Print);
    std::vector<GEOSGeometry*> lines;
    for (const drawings::Entity& entity : aDrawing) lines.push_back(LineString(ChordsOf(entity)));
    fLines = GEOSGeom_createCollection(GEOS_MULTILINESTRING, lines.data(), static_cast<unsigned>(lines.size()));
  }

  /// The polygons as a collection, nothing where GEOS gives up.
  const GEOSGeometry* Find() const {
    const GEOSGeometry* noded = GEOSNode(fLines);
    return noded == nullptr ? nullptr : GEOSPolygonize(&noded, 1);
  }

  static int Count(const GEOSGeometry* aPolygons) { return aPolygons == nullptr ? 0 : GEOSGetNumGeometries(aPolygons); }

 private:
  static GEOSGeometry* LineString(const std::vector<drawings::Point>& aPoints) {
    GEOSCoordSequence* sequence = GEOSCoordSeq_create(static_cast<unsigned>(aPoints.size()), 2);
    for (unsigned k = 0; k < aPoints.size(); ++k) GEOSCoordSeq_setXY(sequence, k, aPoints[k].x, aPoints[k].y);
    return GEOSGeom_createLineString(sequence);
  }

  GEOSGeometry* fLines = nullptr;
};

}  // namespace peers
