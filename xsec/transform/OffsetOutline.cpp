#include "xsec/transform/OffsetOutline.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/host/Numerics.h"
#include "xsec/DrawingExtents.h"
#include "xsec/RegionDetection.h"
#include "xsec/output/Topology.h"
#include "xsec/transform/OffsetCorner.h"

namespace xsec {

namespace {

using GeometryEngine::kHalfTurn;
using GeometryEngine::TDXFEntity;

constexpr double kLongestArc = 90;      // degrees
constexpr std::size_t kFewest = 3;      // pieces of a chain; two could be walked either way
constexpr double kSameDistance = 1e-5;  // of the distance: what the library's chords and single precision leave

double Cross(const Point& a, const Point& b) {
  return a.x * b.y - a.y * b.x;
}

/// The outline in pieces that the library's offset takes: short arcs, and enough of them to tell which way it runs.
Loop ShortPieces(const Loop& outline) {
  Loop pieces;
  for (const TravelledPiece& piece : outline) {
    const double arcs = piece.isArc ? std::ceil(std::abs(piece.sweep) / kLongestArc - 1e-9) : 1;
    const double count = std::max(arcs, outline.size() < kFewest ? 2.0 : 1.0);
    for (double i = 0; i < count; ++i) pieces.push_back(PartOf(piece, i / count, (i + 1) / count));
  }
  for (std::size_t i = 0; i < pieces.size(); ++i) pieces[(i + 1) % pieces.size()].from = pieces[i].to;
  return pieces;
}

/// The arc about a centre, anticlockwise or clockwise.
TravelledPiece ArcBetween(const Point& centre, const Point& from, const Point& to, bool forward) {
  const Point& start = forward ? from : to;
  const Point& end = forward ? to : from;
  TravelledPiece arc =
      Travel(GeometryEngine::CreateEntity_Arc_StartEnd(centre.x, centre.y, start.x, start.y, end.x, end.y), forward);
  arc.from = from;
  arc.to = to;
  return arc;
}

/// A piece of the offset outline: about the same centre and in the same sense as the piece that it comes from. Ends
/// that have passed each other turn the sense round. An arc that has shrunk to nothing is a line between its ends.
TravelledPiece MovedPiece(const TravelledPiece& piece, const Point& from, const Point& to, double distance) {
  if (!piece.isArc || !(OffsetRadius(piece, distance) > 0)) return Travel(TDXFEntity::Line(from, to), true);
  const bool forward = piece.sweep > 0;
  const TravelledPiece arc = ArcBetween(piece.centre, from, to, forward);
  const bool havePassed = std::abs(arc.sweep) > std::abs(piece.sweep) + kHalfTurn;
  return havePassed ? ArcBetween(piece.centre, from, to, !forward) : arc;
}

/// Where the library puts the vertex at which each piece begins.
std::vector<Point> MovedVertices(const Loop& outline, double distance) {
  GeometryEngine::TEntityStorage chain;
  for (const TravelledPiece& piece : outline) chain.AddEntity(EntityOf(piece));
  chain.Offset(distance);
  std::vector<Point> vertices;
  for (const TDXFEntity& entity : chain.EntityArray()) vertices.push_back(entity.StartCoords);
  vertices.resize(outline.size());
  return vertices;
}

/// What stands beside the end of a piece, at the distance.
Point BesideEnd(const TravelledPiece& piece, const Point& end, double distance) {
  const double share = OffsetRadius(piece, distance) / piece.radius;
  return {piece.centre.x + share * (end.x - piece.centre.x), piece.centre.y + share * (end.y - piece.centre.y)};
}

/// What the library makes of the outline, with its arcs put right: they keep their sense and centre, and their ends lie
/// where their circles meet the neighbours. Where they do not meet any more, a line links them.
Loop Moved(const Loop& outline, double distance) {
  const std::vector<Point> vertices = MovedVertices(outline, distance);
  const std::size_t count = outline.size();
  std::vector<Point> begins = vertices;
  std::vector<Point> ends(count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t next = (i + 1) % count;
    const auto corner = OffsetCorner(outline[i], outline[next], distance, vertices[next]);
    const auto beside = [&](const TravelledPiece& piece) {
      return piece.isArc ? BesideEnd(piece, outline[i].to, distance) : vertices[next];
    };
    ends[i] = corner ? *corner : beside(outline[i]);
    begins[next] = corner ? *corner : beside(outline[next]);
  }
  Loop pieces;
  for (std::size_t i = 0; i < count; ++i) {
    pieces.push_back(MovedPiece(outline[i], begins[i], ends[i], distance));
    const Point& next = begins[(i + 1) % count];
    if (ends[i].x != next.x || ends[i].y != next.y) pieces.push_back(Travel(TDXFEntity::Line(ends[i], next), true));
  }
  return pieces;
}

Drawing DrawingOf(const Loop& pieces) {
  Drawing drawing;
  for (const TravelledPiece& piece : pieces) {
    DrawingEntity entity;
    entity.geometry = EntityOf(piece);
    drawing.entities.push_back(entity);
  }
  drawing.extents = ExtentsOf(drawing.entities);
  return drawing;
}

/// Whether a face of the moved outline is a part of the result: it is wound round in the outline's own sense, and an
/// inner one keeps its distance.
bool IsWanted(const Region& face, const Loop& moved, const Loop& outline, double distance, double slack) {
  if (WindingNumber(moved, face.label) < 1) return false;
  return distance > 0 || (IsInside(outline, face.label) && Distance(outline, face.label) >= -distance - slack);
}

/// The curves that part what is wanted from what is not.
Loop BoundaryOf(const std::vector<Region>& wanted, double tolerance) {
  const Topology topology = BuildTopology(wanted, tolerance, kHalfTurn);
  std::vector<int> sides(topology.curves.size(), 0);
  for (const RegionLoops& region : topology.regions) {
    for (const CurveUse& use : region.outline) ++sides[use.curve];
    for (const CurveLoop& hole : region.holes) {
      for (const CurveUse& use : hole) ++sides[use.curve];
    }
  }
  Loop boundary;
  for (std::size_t i = 0; i < sides.size(); ++i) {
    if (sides[i] == 1) boundary.push_back(topology.curves[i].piece);
  }
  return boundary;
}

void CheckDistance(const Loop& boundary, const Loop& outline, double distance, double slack) {
  for (const TravelledPiece& piece : boundary) {
    for (const Point& point : {piece.from, MidPoint(piece)}) {
      const double found = Distance(outline, point);
      if (found >= std::abs(distance) - slack) continue;
      throw OffsetError(
          fmt::format("at ({:.6g}, {:.6g}) the offset outline comes to {:.6g} mm of the outline instead of "
                      "{:.6g} mm",
                      point.x, point.y, found, std::abs(distance)));
    }
  }
}

}  // namespace

GeometryEngine::TDXFEntity EntityOf(const TravelledPiece& aPiece) {
  if (!aPiece.isArc) return TDXFEntity::Line(aPiece.from, aPiece.to);
  const Point& start = aPiece.sweep < 0 ? aPiece.to : aPiece.from;
  const Point& end = aPiece.sweep < 0 ? aPiece.from : aPiece.to;
  return GeometryEngine::CreateEntity_Arc_StartEnd(aPiece.centre.x, aPiece.centre.y, start.x, start.y, end.x, end.y);
}

/// The winding of the chords, and one more or less for each arc with the point between it and its chord.
int WindingNumber(const Loop& aLoop, const Point& aPoint) {
  int winding = 0;
  for (const TravelledPiece& piece : aLoop) {
    const double side = Cross(piece.to - piece.from, aPoint - piece.from);
    if (piece.from.y <= aPoint.y && aPoint.y < piece.to.y && side > 0) ++winding;
    if (piece.to.y <= aPoint.y && aPoint.y < piece.from.y && side < 0) --winding;
    if (!piece.isArc || Distance(aPoint, piece.centre) >= piece.radius) continue;
    if (piece.sweep > 0 && side < 0) ++winding;
    if (piece.sweep < 0 && side > 0) --winding;
  }
  return winding;
}

Loop OffsetOutline(const Loop& aOutline, double aDistance, const Settings& aSettings) {
  const double slack = aSettings.tolerance + kSameDistance * std::abs(aDistance);
  const Loop outline = ShortPieces(aOutline);
  const Loop moved = Moved(outline, aDistance);
  std::vector<Region> wanted;
  for (Region& face : DetectRegions(DrawingOf(moved), aSettings).regions) {
    if (IsWanted(face, moved, outline, aDistance, slack)) wanted.push_back(std::move(face));
  }
  const Loop boundary = BoundaryOf(wanted, aSettings.tolerance);
  CheckDistance(boundary, outline, aDistance, slack);
  return boundary;
}

}  // namespace xsec
