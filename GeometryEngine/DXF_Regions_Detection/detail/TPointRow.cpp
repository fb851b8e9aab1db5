#include "GeometryEngine/DXF_Regions_Detection/detail/TPointRow.h"

#include <algorithm>
#include <numeric>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Entity_Types/detail/PointSameness.h"

namespace GeometryEngine::detail {

namespace {

constexpr std::size_t kFewPoints = 12;

/// Arcs that give the same angle to every point.
bool HaveSameOrder(const TDXFEntity& aArc_A, const TDXFEntity& aArc_B) {
  return AreEqual(aArc_A.StartCoords, aArc_B.StartCoords) && AreEqual(aArc_A.EndCoords, aArc_B.EndCoords) &&
         AreEqual(aArc_A.CentreCoords, aArc_B.CentreCoords) && aArc_A.startAngle == aArc_B.startAngle &&
         aArc_A.endAngle == aArc_B.endAngle;
}

/// Sorts positions by a value, greatest first, and calls `aVisit(run)` for each longest run of neighbours that are the
/// same. Values of different runs are never the same: rounding keeps the order of differences.
template <class TValue, class TVisit>
void ForEachRun(std::span<std::size_t> aPositions, const TValue& aValue, const TVisit& aVisit) {
  std::ranges::sort(aPositions, [&](std::size_t a, std::size_t b) { return aValue(a) > aValue(b); });
  for (std::size_t first = 0; first < aPositions.size();) {
    std::size_t past = first + 1;
    while (past < aPositions.size() && ValuesSame_DXFTolerance(aValue(aPositions[past - 1]), aValue(aPositions[past])))
      ++past;
    aVisit(aPositions.subspan(first, past - first));
    first = past;
  }
}

/// Few points are taken in the order in which they came, with nothing to sort.
void SortUnlessInOrder(std::span<std::size_t> aPositions) {
  if (!std::ranges::is_sorted(aPositions)) std::ranges::sort(aPositions);
}

}  // namespace

std::span<const std::size_t> TPointRow::Arrange(std::span<const TRowPoint> aPoints) {
  fPoints = aPoints;
  fTolerance = ReadLinearTolerance();
  fRow.clear();
  fSorted.resize(aPoints.size());
  std::iota(fSorted.begin(), fSorted.end(), std::size_t{0});
  if (aPoints.empty()) return fRow;
  if (aPoints.front().fEntity->EntityType == DXFLine) {
    ArrangeLine();
  } else if (AreOfOneEntity()) {
    ArrangeArc();
  } else {
    AddOneByOne_Arcs();
  }
  return fRow;
}

bool TPointRow::AreOfOneEntity() const {
  const TDXFEntity& first = *fPoints.front().fEntity;
  return std::ranges::all_of(
      fPoints, [&](const TRowPoint& point) { return point.fEntity == &first || HaveSameOrder(first, *point.fEntity); });
}

void TPointRow::ArrangeLine() {
  if (fPoints.size() <= kFewPoints) return AddOneByOne_Line(fSorted);
  const auto x = [this](std::size_t i) { return PointAt(i).x; };
  ForEachRun(fSorted, x, [this](std::span<std::size_t> run) { AddRun_Line(run); });
}

// A run of one x under the tolerance. Where all its points share it, not only neighbours, y alone decides.
void TPointRow::AddRun_Line(std::span<std::size_t> aRun) {
  const bool isOneX = ValuesSame_DXFTolerance(PointAt(aRun.front()).x, PointAt(aRun.back()).x);
  if (aRun.size() <= kFewPoints || !isOneX) return AddOneByOne_Line(aRun);
  const auto y = [this](std::size_t i) { return PointAt(i).y; };
  ForEachRun(aRun, y, [this](std::span<std::size_t> run) { AddOneByOne_Line(run); });
}

void TPointRow::AddOneByOne_Line(std::span<std::size_t> aRun) {
  SortUnlessInOrder(aRun);
  const std::size_t first = fRow.size();
  for (const std::size_t position : aRun) {
    const TEntityCoordinate& point = PointAt(position);
    if (IsInRowFrom(first, point)) continue;
    const auto place = std::find_if(fRow.begin() + static_cast<std::ptrdiff_t>(first), fRow.end(),
                                    [&](std::size_t listed) { return ComesBefore_Line(point, PointAt(listed)); });
    fRow.insert(place, position);
  }
}

void TPointRow::ArrangeArc() {
  const TArcOrder order(*fPoints.front().fEntity);
  fAngles.clear();
  for (const TRowPoint& point : fPoints) fAngles.push_back(order.GetAngle(point.fPoint));
  if (fPoints.size() <= kFewPoints) {
    AddRun_Repeats(fSorted);
  } else {
    const auto x = [this](std::size_t i) { return PointAt(i).x; };
    const auto y = [this](std::size_t i) { return PointAt(i).y; };
    ForEachRun(fSorted, x, [&](std::span<std::size_t> column) {
      ForEachRun(column, y, [this](std::span<std::size_t> run) { AddRun_Repeats(run); });
    });
  }
  // Angles are compared exactly: a point stands behind those of the same angle that came before it.
  std::ranges::sort(fRow, [this](std::size_t a, std::size_t b) {
    return fAngles[a] < fAngles[b] || (fAngles[a] == fAngles[b] && a < b);
  });
}

// Adds the points of a run of which none before is the same.
void TPointRow::AddRun_Repeats(std::span<std::size_t> aRun) {
  SortUnlessInOrder(aRun);
  const std::size_t first = fRow.size();
  for (const std::size_t position : aRun) {
    if (!IsInRowFrom(first, PointAt(position))) fRow.push_back(position);
  }
}

// Equal arcs may give a point different angles; each point is placed by the arc that it was recorded with.
void TPointRow::AddOneByOne_Arcs() {
  for (const std::size_t position : fSorted) {
    const TEntityCoordinate& point = PointAt(position);
    if (IsInRowFrom(0, point)) continue;
    const TArcOrder order(*fPoints[position].fEntity);
    const double angle = order.GetAngle(point);
    const auto place =
        std::ranges::find_if(fRow, [&](std::size_t listed) { return order.GetAngle(PointAt(listed)) > angle; });
    fRow.insert(place, position);
  }
}

bool TPointRow::IsInRowFrom(std::size_t aFirst, const TEntityCoordinate& aPoint) const {
  return std::any_of(fRow.begin() + static_cast<std::ptrdiff_t>(aFirst), fRow.end(),
                     [&](std::size_t listed) { return AreSame(PointAt(listed), aPoint, fTolerance); });
}

}  // namespace GeometryEngine::detail
