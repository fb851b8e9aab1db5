// Over GEOS: arcs as chords, then noding, then polygons from what has been noded.

#include <geos_c.h>

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <numbers>

#include "benchmarks/support/Program.h"

namespace {

constexpr double kChordTolerance = 1e-3;  // millimetres that a chord stays away from its arc at most

void Print(const char* aFormat, ...) {
  std::va_list arguments;
  va_start(arguments, aFormat);
  std::vfprintf(stderr, aFormat, arguments);
  va_end(arguments);
}

double SweepOf(const drawings::Entity& aArc) {  // radians
  const double degrees = aArc.endAngle - aArc.startAngle + (aArc.endAngle < aArc.startAngle ? 360 : 0);
  return degrees * std::numbers::pi / 180;
}

std::vector<drawings::Point> ChordsOf(const drawings::Entity& aEntity) {
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

class TNodeAndPolygonize {
 public:
  explicit TNodeAndPolygonize(const drawings::Drawing& aDrawing) {
    initGEOS(Print, Print);
    std::vector<GEOSGeometry*> lines;
    for (const drawings::Entity& entity : aDrawing) lines.push_back(LineString(ChordsOf(entity)));
    fLines = GEOSGeom_createCollection(GEOS_MULTILINESTRING, lines.data(), static_cast<unsigned>(lines.size()));
  }

  std::size_t operator()() {
    const GEOSGeometry* noded = GEOSNode(fLines);
    if (noded == nullptr) return 0;
    const GEOSGeometry* polygons = GEOSPolygonize(&noded, 1);
    return polygons == nullptr ? 0 : static_cast<std::size_t>(GEOSGetNumGeometries(polygons));
  }

 private:
  static GEOSGeometry* LineString(const std::vector<drawings::Point>& aPoints) {
    GEOSCoordSequence* sequence = GEOSCoordSeq_create(static_cast<unsigned>(aPoints.size()), 2);
    for (unsigned k = 0; k < aPoints.size(); ++k) GEOSCoordSeq_setXY(sequence, k, aPoints[k].x, aPoints[k].y);
    return GEOSGeom_createLineString(sequence);
  }

  GEOSGeometry* fLines = nullptr;
};

}  // namespace

int main(int aCount, char** aArguments) {
  return benchmarks::RunProgram<TNodeAndPolygonize>(aCount, aArguments);
}
