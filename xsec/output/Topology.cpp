#include "xsec/output/Topology.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/output/LoopParting.h"
#include "xsec/output/PointGrid.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;

constexpr double kWholeParts =
    1e-9;  // an arc that exceeds so many parts by less than this share of one is not cut more

/// The part of a piece between two points on it.
TravelledPiece PartBetween(const TravelledPiece& piece, const Point& from, double fromShare, const Point& to,
                           double toShare) {
  TravelledPiece part = PartOf(piece, fromShare, toShare);
  part.from = from;
  part.to = to;
  return part;
}

/// How far along a piece a point on it lies, 0 to 1.
double ShareOf(const TravelledPiece& piece, const Point& point) {
  if (!piece.isArc) {
    const Point way = piece.to - piece.from;
    const Point arm = point - piece.from;
    return (arm.x * way.x + arm.y * way.y) / (way.x * way.x + way.y * way.y);
  }
  const double angle =
      std::atan2(point.y - piece.centre.y, point.x - piece.centre.x) * GeometryEngine::kDegreesPerRadian;
  const double turned = piece.sweep < 0 ? piece.startAngle - angle : angle - piece.startAngle;
  return GeometryEngine::GetAngleInRange(turned, 0, kFullTurn) / std::abs(piece.sweep);
}

class TopologyBuilder {
 public:
  TopologyBuilder(const std::vector<Region>& regions, double tolerance, double longestArc)
      : fRegions(regions), fTolerance(tolerance), fLongestArc(longestArc) {}

  Topology Build() {
    ForEachLoop([&](const Loop& loop) {
      for (const TravelledPiece& piece : loop) fNumbers.Number(piece.from);
    });
    fVertices = fNumbers.Points();
    const PointGrid grid(fVertices);
    fGrid = &grid;
    Topology topology;
    for (const Region& region : fRegions) topology.regions.push_back(LoopsOf(region));
    topology.points = fNumbers.Points();
    topology.curves = std::move(fCurves);
    return topology;
  }

 private:
  template <typename Visit>
  void ForEachLoop(Visit&& visit) const {
    for (const Region& region : fRegions) {
      visit(region.outline);
      for (const Loop& hole : region.holes) visit(hole);
    }
  }

  RegionLoops LoopsOf(const Region& region) {
    std::vector<CurveLoop> loops;
    loops.push_back(UsesOf(region.outline));
    for (const Loop& hole : region.holes) loops.push_back(UsesOf(hole));
    return PartLoops(loops, fCurves);
  }

  CurveLoop UsesOf(const Loop& loop) {
    CurveLoop uses;
    for (const TravelledPiece& piece : loop) AddPiece(piece, uses);
    return uses;
  }

  /// Everything is cut as it runs forward, so that both sides of a piece are cut at the very same points.
  void AddPiece(const TravelledPiece& piece, CurveLoop& uses) {
    const bool forward =
        piece.isArc ? piece.sweep > 0 : std::pair(piece.from.x, piece.from.y) < std::pair(piece.to.x, piece.to.y);
    CurveLoop parts;
    AddForward(forward ? piece : Reversed(piece), parts);
    if (!forward) std::reverse(parts.begin(), parts.end());
    for (const CurveUse& part : parts) uses.push_back({part.curve, forward});
  }

  void AddForward(const TravelledPiece& piece, CurveLoop& parts) {
    const std::vector<std::pair<double, std::size_t>> cuts = CutsOf(piece);
    Point from = piece.from;
    double share = 0;
    for (const auto& [cutShare, vertex] : cuts) {
      AddShort(PartBetween(piece, from, share, fVertices[vertex], cutShare), parts);
      from = fVertices[vertex];
      share = cutShare;
    }
    AddShort(PartBetween(piece, from, share, piece.to, 1), parts);
  }

  /// The vertices along a piece, in its order.
  std::vector<std::pair<double, std::size_t>> CutsOf(const TravelledPiece& piece) const {
    std::vector<std::pair<double, std::size_t>> cuts;
    for (const std::size_t vertex : fGrid->FindAlong(piece, fTolerance)) {
      const Point& point = fVertices[vertex];
      if (!IsAt(point, piece.from) && !IsAt(point, piece.to)) cuts.emplace_back(ShareOf(piece, point), vertex);
    }
    std::sort(cuts.begin(), cuts.end());
    return cuts;
  }

  bool IsAt(const Point& a, const Point& b) const { return Distance(a, b) <= fTolerance; }

  /// Adds the curves of a piece that no vertex cuts any more.
  void AddShort(const TravelledPiece& piece, CurveLoop& parts) {
    const double count = piece.isArc ? std::max(1.0, std::ceil(piece.sweep / fLongestArc - kWholeParts)) : 1;
    Point from = piece.from;
    for (double i = 0; i < count; ++i) {
      const Point to = i + 1 == count ? piece.to : PointAlong(piece, (i + 1) / count);
      parts.push_back({CurveOf(PartBetween(piece, from, i / count, to, (i + 1) / count)), true});
      from = to;
    }
  }

  std::size_t CurveOf(const TravelledPiece& piece) {
    const std::size_t from = fNumbers.Number(piece.from);
    const std::size_t to = fNumbers.Number(piece.to);
    std::vector<std::size_t>& known = fCurvesBetween[std::minmax({from, to})];
    const auto place = std::find_if(known.begin(), known.end(), [&](std::size_t curve) {
      return fCurves[curve].piece.isArc == piece.isArc && fCurves[curve].from == from &&
             IsAt(MidPoint(fCurves[curve].piece), MidPoint(piece));
    });
    if (place != known.end()) return *place;
    known.push_back(fCurves.size());
    fCurves.push_back({from, to, piece});
    return known.back();
  }

  const std::vector<Region>& fRegions;
  double fTolerance;
  double fLongestArc;
  PointNumbers fNumbers;
  std::vector<Point> fVertices;      // where pieces meet; what cutting long arcs adds is not among them
  const PointGrid* fGrid = nullptr;  // of the vertices
  std::vector<Curve> fCurves;
  std::map<std::pair<std::size_t, std::size_t>, std::vector<std::size_t>> fCurvesBetween;
};

}  // namespace

Topology BuildTopology(const std::vector<Region>& aRegions, double aTolerance, double aLongestArc) {
  return TopologyBuilder(aRegions, aTolerance, aLongestArc).Build();
}

}  // namespace xsec
