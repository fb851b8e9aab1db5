#include "GeometryEngine/DXF_Regions_Detection/detail/RegionReach.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "GeometryEngine/DXF_EntityStorage/detail/OtherEnd.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TRegionEntities.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ArcAngles.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kLargest = 1e100;      // products of three such numbers stay finite
constexpr double kLargestRadius = 1e9;  // drawing length units; of arcs whose chords are as fine as they should be
constexpr double kLargestAngle = 1e4;   // degrees; beyond, rounding of an angle is not small
constexpr double kRounding = 1e-12;     // no unit: far above what rounding does to a point or a product of two
constexpr double kFlat = 1e-3;          // slope below which an edge reaches far to the side for one tolerance in height
constexpr double kFlatAngle = 0.06;     // degrees; the same slope, and more
constexpr double kAngleSlack = 1e-6;    // degrees; above the rounding of angles
constexpr double kMostSagitta = 0.02;   // drawing length units; twice as far as chords stay from their arc, and more

bool IsTame(const TEntityCoordinate& aPoint) {
  return std::abs(aPoint.x) < kLargest && std::abs(aPoint.y) < kLargest;
}

bool IsTameArc(const TDXFEntity& aArc) {
  return IsTame(aArc.CentreCoords) && aArc.radius > 0 && aArc.radius < kLargestRadius &&
         std::abs(aArc.startAngle) < kLargestAngle && std::abs(aArc.endAngle) < kLargestAngle;
}

void Include(TStartPoints& aPoints, const TEntityCoordinate& aPoint) {
  aPoints.fLieNowhere = aPoints.fLieNowhere || std::isnan(aPoint.x) || std::isnan(aPoint.y);
  aPoints.fAreTame = aPoints.fAreTame && IsTame(aPoint);
  if (aPoint.x < aPoints.fBox.fLeft) aPoints.fHeight_LeftMost = aPoint.y;
  if (aPoint.x > aPoints.fBox.fRight) aPoints.fHeight_RightMost = aPoint.y;
  aPoints.fBox.Include(aPoint.x, aPoint.y);
}

TStartPoints GetStartPoints(std::span<const TEntityCoordinate> aPoints) {
  TStartPoints points;
  points.fLieNowhere = aPoints.empty();
  for (const TEntityCoordinate& point : aPoints) Include(points, point);
  return points;
}

// An end of an edge as winding numbers see it, and how far rounding may put it off.
struct TEdgeEnd {
  double fHeight = 0;
  double fSlack = 0;
};

// An arc's directions. UNITS: degrees.
struct TDirections {
  double fStart = 0;
  double fSweep = 0;
};

// Whether an arc runs through the direction, or passes it by no more than the slack.
bool RunsThrough(const TDirections& aArc, double aDirection, double aSlack) {
  const double turn = aDirection - aArc.fStart;
  const double sweep = aArc.fSweep + aSlack;
  return (turn >= -aSlack && turn <= sweep) || turn + kFullTurn <= sweep;
}

// Walks along a region and gathers where it may count.
class TReachOfRegion {
 public:
  TReachOfRegion(TIndex aRegion, double aTolerance, TRegionReaches& aReaches)
      : fRegion(aRegion),
        fTolerance(aTolerance),
        fReaches(aReaches),
        fHeightsBefore_Left(aReaches.fOpenToTheLeft.size()),
        fHeightsBefore_Right(aReaches.fOpenToTheRight.size()) {}

  TBox Get(const TRegionEntities& aEntities, const TEntityCoordinate& aStart) {
    TEntityCoordinate from = aStart;
    for (std::size_t i = 0; i < aEntities.size(); ++i) {
      const TDXFEntity& entity = aEntities[i];
      const TEntityCoordinate farEnd = GetOtherEnd(from, entity, fTolerance);
      if (entity.EntityType == DXFLine) AddLine(from, farEnd);
      if (entity.EntityType == DXFArc) AddArc(entity, from);
      from = farEnd;
    }
    if (fHasEdge) Join(fLast, fFirst);
    if (!fIsTame) ForgetHeights();
    return WithMargins();
  }

 private:
  void AddLine(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
    fIsTame = fIsTame && IsTame(aFrom) && IsTame(aTo);
    AddEdge({aFrom.y, 0}, {aTo.y, 0});
    fBox.Include(aFrom.x, aFrom.y);
    fBox.Include(aTo.x, aTo.y);
    if (aFrom.y != aTo.y) AddSlope(aFrom, aTo);
  }

  // Going up, an edge may reach to the right below its lower end, and going down, to the left.
  void AddSlope(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
    const double dx = std::abs(aTo.x - aFrom.x);
    const double dy = std::abs(aTo.y - aFrom.y);
    const bool upwards = aTo.y > aFrom.y;
    if (dy < kFlat * dx) {
      const auto [low, high] = std::minmax(aFrom.y, aTo.y);
      return Open(low, high, 0, upwards ? fReaches.fOpenToTheRight : fReaches.fOpenToTheLeft);
    }
    const double reach = fTolerance * dx / dy;
    if (upwards) {
      fBox.fRight = std::max(fBox.fRight, std::max(aFrom.x, aTo.x) + reach);
    } else {
      fBox.fLeft = std::min(fBox.fLeft, std::min(aFrom.x, aTo.x) - reach);
    }
  }

  void AddArc(const TDXFEntity& aArc, const TEntityCoordinate& aFrom) {
    const bool entersAtStart = AreSame(aFrom, aArc.StartCoords, fTolerance);
    if (!IsTameArc(aArc) || (!entersAtStart && !AreSame(aFrom, aArc.EndCoords, fTolerance))) {
      fIsTame = false;
      return;
    }
    const TEntityCoordinate start = GetCirclePoint(aArc.CentreCoords, aArc.radius, aArc.startAngle);
    const TEntityCoordinate end = GetCirclePoint(aArc.CentreCoords, aArc.radius, aArc.endAngle);
    const double slack = kRounding * (std::abs(aArc.CentreCoords.y) + aArc.radius);
    if (entersAtStart) {
      AddEdge({start.y, slack}, {end.y, slack});
    } else {
      AddEdge({end.y, slack}, {start.y, slack});
    }
    AddBulge(aArc, start, end);
  }

  void AddBulge(const TDXFEntity& aArc, const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd) {
    const auto& [x, y] = aArc.CentreCoords;
    const double radius = aArc.radius;
    const double margin = kRounding * (std::abs(x) + std::abs(y) + radius) + fTolerance / kFlat;
    TBox box;
    box.Include(aStart.x, aStart.y);
    box.Include(aEnd.x, aEnd.y);
    const TDirections directions{GetArcAngles(aArc).start, aArc.ArcSweep()};
    if (RunsThrough(directions, 0, kAngleSlack)) box.Include(x + radius, y);
    if (RunsThrough(directions, 180, kAngleSlack)) box.Include(x - radius, y);
    if (RunsThrough(directions, 90, kFlatAngle)) AddCrown(y + radius, radius, -1, box);
    if (RunsThrough(directions, 270, kFlatAngle)) AddCrown(y - radius, radius, 1, box);
    fBox.Include(box.fLeft - margin, box.fBottom - margin);
    fBox.Include(box.fRight + margin, box.fTop + margin);
  }

  // The top or the bottom of an arc, where chords are flat.
  void AddCrown(double aHeight, double aRadius, double aInwards, TBox& aBox) {
    const double other = aHeight + aInwards * (kMostSagitta + 2 * kFlat * kFlat * aRadius);
    const auto [low, high] = std::minmax(aHeight, other);
    const double slack = kRounding * (std::abs(aHeight) + aRadius);
    Open(low, high, slack, fReaches.fOpenToTheLeft);
    Open(low, high, slack, fReaches.fOpenToTheRight);
    aBox.Include(aBox.fLeft, aHeight);
  }

  void AddEdge(const TEdgeEnd& aFrom, const TEdgeEnd& aTo) {
    if (fHasEdge) {
      Join(fLast, aFrom);
    } else {
      fFirst = aFrom;
    }
    fHasEdge = true;
    fLast = aTo;
  }

  // Where an edge ends higher than the next one begins, heights in between are passed upwards once too often.
  void Join(const TEdgeEnd& aEnd, const TEdgeEnd& aBegin) {
    const double slack = aEnd.fSlack + aBegin.fSlack;
    if (aEnd.fHeight + slack <= aBegin.fHeight && slack == 0) return;
    if (aEnd.fHeight + slack < aBegin.fHeight) return;
    Open(aBegin.fHeight, aEnd.fHeight, slack, fReaches.fOpenToTheLeft);
  }

  // Points are open to that side that are one tolerance below these heights.
  void Open(double aLow, double aHigh, double aSlack, std::vector<TOpenHeights>& aHeights) const {
    const double slack = aSlack + kRounding * (std::abs(aLow) + std::abs(aHigh) + fTolerance);
    aHeights.push_back({{std::min(aLow, aHigh) - fTolerance - slack, aHigh - fTolerance + slack}, fRegion});
  }

  // A region that is looked at everywhere needs no heights, and its own may be no numbers.
  void ForgetHeights() {
    fReaches.fOpenToTheLeft.resize(fHeightsBefore_Left);
    fReaches.fOpenToTheRight.resize(fHeightsBefore_Right);
  }

  TBox WithMargins() const {
    if (!fIsTame) return {-kInfinite, kInfinite, -kInfinite, kInfinite};
    if (!fHasEdge) return fBox;
    const double margin = kRounding * std::max({std::abs(fBox.fLeft), std::abs(fBox.fRight), std::abs(fBox.fBottom),
                                                std::abs(fBox.fTop), fTolerance});
    return {fBox.fLeft - margin, fBox.fRight + margin, fBox.fBottom - fTolerance - margin, fBox.fTop + margin};
  }

  TIndex fRegion;
  double fTolerance;
  TRegionReaches& fReaches;
  std::size_t fHeightsBefore_Left;
  std::size_t fHeightsBefore_Right;
  TBox fBox;
  bool fIsTame = true;
  bool fHasEdge = false;
  TEdgeEnd fFirst;
  TEdgeEnd fLast;
};

}  // namespace

TRegionReaches GetRegionReaches(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree) {
  const std::span<TTreeNode* const> regions = aRegionTree.RootNode()->Children();
  const double tolerance = ReadLinearTolerance();
  TRegionReaches reaches;
  std::size_t points = 0;
  for (const TTreeNode* region : regions) points += TRegionEntities(aCoordinateTree, *region).size();
  reaches.fPoints.reserve(points);
  reaches.fFirstPoints.reserve(regions.size() + 1);
  reaches.fStartPoints.reserve(regions.size());
  reaches.fBoxes.assign(regions.size(), {-kInfinite, kInfinite, -kInfinite, kInfinite});
  const bool isTame = tolerance > 0 && tolerance < kLargest;
  for (std::size_t i = 0; i < regions.size(); ++i) {
    if (i + kRegionsAhead < regions.size()) TRegionEntities(aCoordinateTree, *regions[i + kRegionsAhead]).FetchAhead();
    const TRegionEntities entities(aCoordinateTree, *regions[i]);
    const std::size_t firstPoint = reaches.fPoints.size();
    reaches.fFirstPoints.push_back(firstPoint);
    for (std::size_t k = 0; k < entities.size(); ++k) reaches.fPoints.push_back(entities[k].StartCoords);
    reaches.fStartPoints.push_back(GetStartPoints(std::span(reaches.fPoints).subspan(firstPoint)));
    if (isTame) {
      reaches.fBoxes[i] = TReachOfRegion(ToIndex(i), tolerance, reaches).Get(entities, regions[i]->Coordinates());
    }
  }
  reaches.fFirstPoints.push_back(reaches.fPoints.size());
  return reaches;
}

}  // namespace GeometryEngine::detail
