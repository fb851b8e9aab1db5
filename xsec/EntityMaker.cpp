#include "xsec/EntityMaker.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/host/Numerics.h"
#include "xsec/Bulge.h"
#include "xsec/Errors.h"
#include "xsec/Flattening.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;
using GeometryEngine::kHalfTurn;

constexpr double kStraightBulge = 1e-9;     // the arc leaves its chord by no more than half of this share of the chord
constexpr double kFlattenTolerance = 0.01;  // millimetres
constexpr double kFlattenShare = 1e-3;      // of the curve's size, when that is less
constexpr double kFinestFlattenShare = 1e-9;  // of the curve's size: bounds the number of chords
constexpr double kRoundness = 1e-9;           // relative difference of half axes that still make a circle

constexpr const char* kNoLength = "its length is 0";
constexpr const char* kNoRadius = "its radius is not above 0";
constexpr const char* kTooFar = "its coordinates are out of range";
constexpr const char* kTooFewVertices = "it has fewer than two different vertices";

double Normalised(double degrees) {
  return GeometryEngine::GetAngleInRange(degrees, 0, kFullTurn);
}

double Length(const Point& vector) {
  return std::hypot(vector.x, vector.y);
}

SourceEllipse Placed(const SourceEllipse& ellipse, const Affine& map) {
  return {map.Apply(ellipse.centre), map.ApplyToVector(ellipse.major), map.ApplyToVector(ellipse.minor), ellipse.start,
          ellipse.sweep};
}

SourceEllipse EllipseOf(const SourceArc& arc) {
  return {arc.centre,
          {arc.radius, 0},
          {0, arc.radius},
          arc.start * GeometryEngine::kRadiansPerDegree,
          arc.sweep >= kFullTurn ? 2 * std::numbers::pi : arc.sweep * GeometryEngine::kRadiansPerDegree};
}

SourceArc ArcOfBulge(const Point& from, const Point& to, double bulge) {
  const Point centre = CentreOf(from, to, bulge);
  const Point& start = bulge > 0 ? from : to;
  const Point arm{start.x - centre.x, start.y - centre.y};
  return {centre, Length(arm), DirectionOf(arm), 4 * std::atan(std::abs(bulge)) * GeometryEngine::kDegreesPerRadian};
}

// The arc that an ellipse of equal half axes is; nothing for any other ellipse.
std::optional<SourceArc> ArcOfEllipse(const SourceEllipse& ellipse) {
  const double radius = Length(ellipse.major);
  const double product = ellipse.major.x * ellipse.minor.x + ellipse.major.y * ellipse.minor.y;
  if (!(std::abs(radius - Length(ellipse.minor)) <= kRoundness * radius) ||
      !(std::abs(product) <= kRoundness * radius * radius)) {
    return std::nullopt;
  }
  const double sweep =
      ellipse.sweep >= 2 * std::numbers::pi ? kFullTurn : ellipse.sweep * GeometryEngine::kDegreesPerRadian;
  const double start = ellipse.start * GeometryEngine::kDegreesPerRadian;
  const bool isClockwise = ellipse.major.x * ellipse.minor.y < ellipse.major.y * ellipse.minor.x;
  const double direction = DirectionOf(ellipse.major);
  return SourceArc{ellipse.centre, radius, isClockwise ? direction - start - sweep : direction + start, sweep};
}

// The longer side of the box round some points.
template <typename Points, typename PointOf>
double SizeOf(const Points& points, PointOf pointOf) {
  const Point first = pointOf(points.front());
  Point low = first;
  Point high = first;
  for (const auto& item : points) {
    const Point point = pointOf(item);
    low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y)};
  }
  return std::max(high.x - low.x, high.y - low.y);
}

}  // namespace

std::string PlacedLayer(const SourceEntity& aEntity, const Placement& aPlacement) {
  return aEntity.layer == "0" && !aPlacement.block.empty() ? aPlacement.layer : aEntity.layer;
}

std::int32_t PlacedColour(const SourceEntity& aEntity, const Placement& aPlacement) {
  return aEntity.colour == 0 && !aPlacement.block.empty() ? aPlacement.colour : aEntity.colour;
}

EntityMaker::EntityMaker(Drawing& aDrawing, std::optional<double> aTolerance, std::uint64_t aMostEntities)
    : fDrawing(aDrawing), fTolerance(aTolerance), fMostEntities(aMostEntities) {}

void EntityMaker::Make(const SourceEntity& aEntity, const Placement& aPlacement) {
  fTemplate = DrawingEntity{};
  fTemplate.layer = PlacedLayer(aEntity, aPlacement);
  fTemplate.type = aEntity.type;
  fTemplate.block = aPlacement.block;
  fTemplate.handle = aEntity.handle;
  fTemplate.line = aEntity.line;
  fTemplate.colour = PlacedColour(aEntity, aPlacement);
  fIsFlattened = false;
  const Affine map = aEntity.isFlipped ? aPlacement.map * Affine::Stretch(-1, 1) : aPlacement.map;
  std::visit([&](const auto& shape) { MakeShape(shape, map); }, aEntity.shape);
  if (fIsFlattened) {
    ++fDrawing.flattened[aEntity.type];
  }
}

void EntityMaker::Skip(const SourceEntity& aEntity, const Placement& aPlacement, const std::string& aReason) {
  fDrawing.skipped[{aEntity.type, PlacedLayer(aEntity, aPlacement), aReason}].Add(aEntity.line);
}

void EntityMaker::SkipThis(const std::string& aReason) {
  fDrawing.skipped[{fTemplate.type, fTemplate.layer, aReason}].Add(fTemplate.line);
}

void EntityMaker::MakeShape(const SourceSkipped& aShape, const Affine& /*aMap*/) {
  SkipThis(aShape.reason);
}

// Placing blocks is not the maker's work.
void EntityMaker::MakeShape(const SourceInsert& /*aShape*/, const Affine& /*aMap*/) {}

void EntityMaker::MakeShape(const SourceText& aShape, const Affine& aMap) {
  const Point place = aMap.Apply(aShape.place);
  if (!IsInRange(place)) return SkipThis(kTooFar);
  fDrawing.texts.push_back({place.x, place.y, aShape.text, fTemplate.layer, fTemplate.line});
}

void EntityMaker::MakeShape(const SourceLine& aShape, const Affine& aMap) {
  AddLine(aMap.Apply(aShape.start), aMap.Apply(aShape.end));
}

void EntityMaker::MakeShape(const SourceArc& aShape, const Affine& aMap) {
  if (!(aShape.radius > 0)) {
    return SkipThis(kNoRadius);
  }
  const auto similarity = AsSimilarity(aMap);
  if (!similarity) {
    return MakeShape(EllipseOf(aShape), aMap);
  }
  const auto [scale, turn, isMirrored] = *similarity;
  const double start = isMirrored ? turn - aShape.start - aShape.sweep : turn + aShape.start;
  AddArc(aMap.Apply(aShape.centre), scale * aShape.radius, start, aShape.sweep);
}

void EntityMaker::MakeShape(const SourcePolyline& aShape, const Affine& aMap) {
  std::vector<SourceVertex> vertices;
  for (const SourceVertex& vertex : aShape.vertices) {
    if (!vertices.empty() && IsSameBits(vertices.back().point, vertex.point)) {
      vertices.back().bulge = vertex.bulge;  // a repeated vertex; the second one leads on
    } else {
      vertices.push_back(vertex);
    }
  }
  if (aShape.isClosed && vertices.size() > 1 && IsSameBits(vertices.front().point, vertices.back().point)) {
    vertices.pop_back();
  }
  if (vertices.size() < 2) {
    return SkipThis(kTooFewVertices);
  }
  for (std::size_t i = 0; i + 1 < vertices.size(); ++i) {
    AddSegment(vertices[i], vertices[i + 1], aMap);
  }
  if (aShape.isClosed) {
    AddSegment(vertices.back(), vertices.front(), aMap);
  }
}

void EntityMaker::AddSegment(const SourceVertex& aFrom, const SourceVertex& aTo, const Affine& aMap) {
  const Point from = aMap.Apply(aFrom.point);
  const Point to = aMap.Apply(aTo.point);
  if (const auto similarity = AsSimilarity(aMap)) {
    return AddStretch({from, similarity->isMirrored ? -aFrom.bulge : aFrom.bulge}, to);
  }
  if (std::abs(aFrom.bulge) < kStraightBulge) {
    return AddLine(from, to);
  }
  const SourceEllipse curve = Placed(EllipseOf(ArcOfBulge(aFrom.point, aTo.point, aFrom.bulge)), aMap);
  const double tolerance = ToleranceFor(Length(curve.major) + Length(curve.minor));
  FlatCurve flat = FlattenEllipse(curve, tolerance);
  flat.path.front().point = aFrom.bulge > 0 ? from : to;
  flat.path.back().point = aFrom.bulge > 0 ? to : from;
  AddCurve(flat, tolerance);
}

// Arcs run anticlockwise, so a clockwise one is given from its end.
void EntityMaker::AddBulge(const Point& aFrom, const Point& aTo, double aBulge) {
  if (aBulge < 0) {
    return AddBulge(aTo, aFrom, -aBulge);
  }
  const Point centre = CentreOf(aFrom, aTo, aBulge);
  const auto addPart = [&](const Point& start, const Point& end) {
    Add(GeometryEngine::CreateEntity_Arc_StartEnd(centre.x, centre.y, start.x, start.y, end.x, end.y));
  };
  if (!IsInRange(centre)) {
    SkipThis(kTooFar);
  } else if (aBulge <= 1) {
    addPart(aFrom, aTo);
  } else {
    const Point apex = ApexOf(aFrom, aTo, aBulge);
    addPart(aFrom, apex);
    addPart(apex, aTo);
  }
}

void EntityMaker::AddArc(const Point& aCentre, double aRadius, double aStart, double aSweep) {
  if (!IsInRange(aCentre) || !(aRadius <= kLargestCoordinate)) {
    return SkipThis(kTooFar);
  }
  const bool isFull = aSweep >= kFullTurn;
  const double start = isFull ? 0 : Normalised(aStart);  // a circle begins nowhere: cut all of them at the same places
  const double end = isFull ? 0 : Normalised(aStart + aSweep);
  const auto addPart = [&](double from, double to) {
    Add(GeometryEngine::CreateEntity_Arc(aCentre.x, aCentre.y, aRadius, from, to));
  };
  if (aSweep <= kHalfTurn) {
    return addPart(start, end);
  }
  const double middle = Normalised(start + aSweep / 2);
  addPart(start, middle);
  addPart(middle, end);
}

void EntityMaker::MakeShape(const SourceEllipse& aShape, const Affine& aMap) {
  const SourceEllipse placed = Placed(aShape, aMap);
  if (!IsInRange(placed.centre) || !IsInRange(placed.major) || !IsInRange(placed.minor) ||
      !std::isfinite(placed.sweep)) {
    return SkipThis(kTooFar);
  }
  if (!(Length(placed.major) > 0)) {
    return SkipThis(kNoRadius);
  }
  if (const auto arc = ArcOfEllipse(placed)) {
    return AddArc(arc->centre, arc->radius, arc->start, arc->sweep);
  }
  const double tolerance = ToleranceFor(2 * std::max(Length(placed.major), Length(placed.minor)));
  AddCurve(FlattenEllipse(placed, tolerance), tolerance);
}

void EntityMaker::MakeShape(const SourceSpline& aShape, const Affine& aMap) {
  const SourceSpline spline = aShape.points.empty() ? SplineThrough(aShape.fit) : aShape;
  if (const std::string reason = WhySplineCannotBeFlattened(spline); !reason.empty()) {
    return SkipThis(reason);
  }
  if (aShape.points.empty() && !aShape.fit.points.empty()) fDrawing.interpolated.Add(fTemplate.line);
  SourceSpline placed = spline;
  for (SourceControlPoint& point : placed.points) {
    point.point = aMap.Apply(point.point);
  }
  const double tolerance =
      ToleranceFor(SizeOf(placed.points, [](const SourceControlPoint& point) { return point.point; }));
  AddCurve(FlattenSpline(placed, tolerance), tolerance);
}

void EntityMaker::AddCurve(const FlatCurve& aCurve, double aTolerance) {
  fIsFlattened = true;
  if (aCurve.tolerance > aTolerance) {
    fDrawing.coarse.Add(fTemplate.line);
    fDrawing.coarseness = std::max(fDrawing.coarseness, aCurve.tolerance);
  }
  const ArcPath& path = aCurve.path;
  for (std::size_t i = 0; i + 1 < path.size(); ++i) {
    if (!IsSameBits(path[i].point, path[i + 1].point)) {
      AddStretch(path[i], path[i + 1].point);
    }
  }
}

void EntityMaker::AddStretch(const SourceVertex& aFrom, const Point& aTo) {
  if (std::abs(aFrom.bulge) < kStraightBulge) {
    AddLine(aFrom.point, aTo);
  } else {
    AddBulge(aFrom.point, aTo, aFrom.bulge);
  }
}

void EntityMaker::AddLine(const Point& aFrom, const Point& aTo) {
  if (!IsInRange(aFrom) || !IsInRange(aTo)) {
    SkipThis(kTooFar);
  } else if (IsSameBits(aFrom, aTo)) {
    SkipThis(kNoLength);
  } else {
    Add(GeometryEngine::CreateEntity_Line(aFrom.x, aFrom.y, aTo.x, aTo.y));
  }
}

void EntityMaker::Add(const GeometryEngine::TDXFEntity& aGeometry) {
  const bool isArc = aGeometry.EntityType == GeometryEngine::DXFArc;
  if (!IsInRange(aGeometry.StartCoords) || !IsInRange(aGeometry.EndCoords) ||
      !(aGeometry.radius <= kLargestCoordinate)) {
    return SkipThis(kTooFar);
  }
  if (isArc && !(aGeometry.radius > 0)) {
    return SkipThis(kNoRadius);
  }
  if (fDrawing.entities.size() >= fMostEntities) {
    throw InputError(
        fDrawing.path, fTemplate.line,
        fmt::format("the drawing has more than {} lines and arcs once its blocks are placed", fMostEntities),
        "leave out what does not belong to the cross-section, or allow more with --max-entities");
  }
  fTemplate.geometry = aGeometry;
  fDrawing.entities.push_back(fTemplate);
}

double EntityMaker::ToleranceFor(double aSize) const {
  const double tolerance = fTolerance.value_or(std::min(kFlattenTolerance, kFlattenShare * aSize));
  return std::max(tolerance, kFinestFlattenShare * aSize);
}

}  // namespace xsec
