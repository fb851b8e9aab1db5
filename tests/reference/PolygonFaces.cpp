#include "tests/reference/PolygonFaces.h"

#include <geos_c.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <numbers>
#include <stdexcept>

namespace GeometryEngine::reference {

namespace {

struct Kernel {
  GEOSContextHandle_t handle = GEOS_init_r();
  Kernel() = default;
  Kernel(const Kernel&) = delete;
  Kernel& operator=(const Kernel&) = delete;
  ~Kernel() { GEOS_finish_r(handle); }
};

struct Destroy {
  GEOSContextHandle_t handle;
  void operator()(GEOSGeometry* aGeometry) const { GEOSGeom_destroy_r(handle, aGeometry); }
};
using Geometry = std::unique_ptr<GEOSGeometry, Destroy>;

Geometry Own(const Kernel& aKernel, GEOSGeometry* aGeometry) {
  if (aGeometry == nullptr) throw std::runtime_error("the polygon kernel gave no geometry");
  return Geometry(aGeometry, Destroy{aKernel.handle});
}

/// The chords of an entity: its own end points, and points on the circle between them.
TCoordinateArray Chords(const TDXFEntity& aEntity, double aChordError) {
  TCoordinateArray points{aEntity.StartCoords};
  if (aEntity.EntityType == DXFArc) {
    const double start = aEntity.startAngle * std::numbers::pi / 180;
    double sweep = std::fmod(aEntity.endAngle - aEntity.startAngle, 360.0);
    if (sweep < 0) sweep += 360;
    sweep *= std::numbers::pi / 180;
    const double step = 2 * std::acos(std::max(0.0, 1 - aChordError / aEntity.radius));
    const int count = std::max(2, static_cast<int>(std::ceil(sweep / step)));
    for (int i = 1; i < count; ++i) {
      const double angle = start + sweep * i / count;
      points.push_back({aEntity.CentreCoords.x + aEntity.radius * std::cos(angle),
                        aEntity.CentreCoords.y + aEntity.radius * std::sin(angle)});
    }
  }
  points.push_back(aEntity.EndCoords);
  return points;
}

GEOSGeometry* LineString(const Kernel& aKernel, const TCoordinateArray& aPoints) {
  GEOSCoordSequence* sequence = GEOSCoordSeq_create_r(aKernel.handle, static_cast<unsigned>(aPoints.size()), 2);
  for (unsigned i = 0; i < aPoints.size(); ++i) {
    GEOSCoordSeq_setXY_r(aKernel.handle, sequence, i, aPoints[i].x, aPoints[i].y);
  }
  return GEOSGeom_createLineString_r(aKernel.handle, sequence);
}

TCoordinateArray Ring(const Kernel& aKernel, const GEOSGeometry* aRing) {
  const GEOSCoordSequence* sequence = GEOSGeom_getCoordSeq_r(aKernel.handle, aRing);
  unsigned size = 0;
  GEOSCoordSeq_getSize_r(aKernel.handle, sequence, &size);
  TCoordinateArray points(size);
  for (unsigned i = 0; i < size; ++i) {
    GEOSCoordSeq_getXY_r(aKernel.handle, sequence, i, &points[i].x, &points[i].y);
  }
  return points;
}

double EnclosedArea(const TCoordinateArray& aRing) {
  double twice = 0;
  for (std::size_t i = 0; i + 1 < aRing.size(); ++i) {
    twice += aRing[i].x * aRing[i + 1].y - aRing[i + 1].x * aRing[i].y;
  }
  return std::abs(twice) / 2;
}

double Length(const TCoordinateArray& aRing) {
  double length = 0;
  for (std::size_t i = 0; i + 1 < aRing.size(); ++i) {
    length += std::hypot(aRing[i + 1].x - aRing[i].x, aRing[i + 1].y - aRing[i].y);
  }
  return length;
}

/// Crossing count of a ray to the right.
bool InRing(const TCoordinateArray& aRing, const TEntityCoordinate& aPoint) {
  bool inside = false;
  for (std::size_t i = 0; i + 1 < aRing.size(); ++i) {
    const TEntityCoordinate& a = aRing[i];
    const TEntityCoordinate& b = aRing[i + 1];
    if ((a.y > aPoint.y) == (b.y > aPoint.y)) continue;
    if (aPoint.x < a.x + (b.x - a.x) * (aPoint.y - a.y) / (b.y - a.y)) inside = !inside;
  }
  return inside;
}

bool InFace(const PolygonFace& aFace, const TEntityCoordinate& aPoint) {
  return InRing(aFace.outer, aPoint) &&
         std::none_of(aFace.holes.begin(), aFace.holes.end(), [&](const auto& aHole) { return InRing(aHole, aPoint); });
}

PolygonFace Face(const Kernel& aKernel, const GEOSGeometry* aPolygon) {
  PolygonFace face;
  face.outer = Ring(aKernel, GEOSGetExteriorRing_r(aKernel.handle, aPolygon));
  face.netArea = EnclosedArea(face.outer);
  face.perimeter = Length(face.outer);
  const int holes = GEOSGetNumInteriorRings_r(aKernel.handle, aPolygon);
  for (int i = 0; i < holes; ++i) {
    face.holes.push_back(Ring(aKernel, GEOSGetInteriorRingN_r(aKernel.handle, aPolygon, i)));
    face.netArea -= EnclosedArea(face.holes.back());
    face.perimeter += Length(face.holes.back());
  }
  return face;
}

/// A point of the kernel's own choosing in a face, to tell in whose hole the face lies.
TEntityCoordinate PointIn(const Kernel& aKernel, const GEOSGeometry* aPolygon) {
  const Geometry point = Own(aKernel, GEOSPointOnSurface_r(aKernel.handle, aPolygon));
  TEntityCoordinate coordinate;
  GEOSGeomGetX_r(aKernel.handle, point.get(), &coordinate.x);
  GEOSGeomGetY_r(aKernel.handle, point.get(), &coordinate.y);
  return coordinate;
}

/// A hole that touches the outer ring parts no group of faces from it: they hang together at a vertex.
bool Touches(const TCoordinateArray& aHole, const TCoordinateArray& aOuter) {
  return std::any_of(aHole.begin(), aHole.end(), [&](const TEntityCoordinate& a) {
    return std::any_of(aOuter.begin(), aOuter.end(), [&](const auto& b) { return a.x == b.x && a.y == b.y; });
  });
}

std::optional<std::size_t> ParentOf(const std::vector<PolygonFace>& aFaces, const TEntityCoordinate& aPoint) {
  std::optional<std::size_t> parent;
  double smallest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < aFaces.size(); ++i) {
    for (const TCoordinateArray& hole : aFaces[i].holes) {
      if (!InRing(hole, aPoint) || EnclosedArea(hole) >= smallest || Touches(hole, aFaces[i].outer)) continue;
      smallest = EnclosedArea(hole);
      parent = i;
    }
  }
  return parent;
}

}  // namespace

std::vector<PolygonFace> PolygonFaces(const TEntityArray& aEntities, double aChordError) {
  const Kernel kernel;
  std::vector<GEOSGeometry*> lines;
  for (const TDXFEntity& entity : aEntities) lines.push_back(LineString(kernel, Chords(entity, aChordError)));
  const Geometry drawing = Own(kernel, GEOSGeom_createCollection_r(kernel.handle, GEOS_MULTILINESTRING, lines.data(),
                                                                   static_cast<unsigned>(lines.size())));
  const Geometry noded = Own(kernel, GEOSUnaryUnion_r(kernel.handle, drawing.get()));
  const GEOSGeometry* parts[] = {noded.get()};
  const Geometry polygons = Own(kernel, GEOSPolygonize_r(kernel.handle, parts, 1));

  std::vector<PolygonFace> faces;
  std::vector<TEntityCoordinate> inner;
  const int count = GEOSGetNumGeometries_r(kernel.handle, polygons.get());
  for (int i = 0; i < count; ++i) {
    const GEOSGeometry* polygon = GEOSGetGeometryN_r(kernel.handle, polygons.get(), i);
    faces.push_back(Face(kernel, polygon));
    inner.push_back(PointIn(kernel, polygon));
  }
  for (std::size_t i = 0; i < faces.size(); ++i) faces[i].parent = ParentOf(faces, inner[i]);
  return faces;
}

std::optional<std::size_t> FaceAt(const std::vector<PolygonFace>& aFaces, const TEntityCoordinate& aPoint) {
  for (std::size_t i = 0; i < aFaces.size(); ++i) {
    if (InFace(aFaces[i], aPoint)) return i;
  }
  return std::nullopt;
}

}  // namespace GeometryEngine::reference
