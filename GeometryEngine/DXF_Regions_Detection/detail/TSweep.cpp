#include "GeometryEngine/DXF_Regions_Detection/detail/TSweep.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/CircleTouching.h"

namespace GeometryEngine::detail {

namespace {

bool IsLeftBehind(double aRight, double aLeft) {
  return aLeft > aRight && !ValuesSame_DXFTolerance(aRight, aLeft);
}

bool IsLineOrArc(const TDXFEntity& aEntity) {
  return aEntity.EntityType == DXFLine || aEntity.EntityType == DXFArc;
}

std::vector<std::optional<THeights>> GetAllHeights(std::span<const TDXFEntity> aEntities, const TSweepHeights& aReach) {
  std::vector<std::optional<THeights>> heights;
  heights.reserve(aEntities.size());
  for (const TDXFEntity& entity : aEntities) {
    heights.push_back(IsLineOrArc(entity) ? aReach.GetHeights(entity) : std::nullopt);
  }
  return heights;
}

THeights GetWholeRange(std::span<const std::optional<THeights>> aHeights) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  THeights range{kInfinity, -kInfinity};
  for (const std::optional<THeights>& heights : aHeights) {
    if (!heights) continue;
    range.fLow = std::min(range.fLow, heights->fLow);
    range.fHigh = std::max(range.fHigh, heights->fHigh);
  }
  return range;
}

}  // namespace

TSweep::TSweep(std::span<const TDXFEntity> aEntities, TRecordedPoints& aRecords)
    : fEntities(aEntities),
      fRecords(aRecords),
      fAnyMeets(GetLinearTolerance() > 0),
      fReach(aEntities),
      fHeights(GetAllHeights(aEntities, fReach)),
      fActive(GetWholeRange(fHeights), aEntities.size()),
      fActiveCircles(GetWholeRange(fHeights), aEntities.size()) {}

void TSweep::Run() {
  for (TIndex i = 0; i < ToIndex(fEntities.size()); ++i) Enter(i);
}

void TSweep::Enter(TIndex aIndex) {
  LeaveBehind(GetLeftMostCoordinate(EntityAt(aIndex)).x);
  FindCandidates(aIndex);
  RecordMeetings(aIndex);
  Activate(aIndex);
}

void TSweep::LeaveBehind(double aLeft) {
  fLeftBehind.clear();
  while (!fRightEnds.IsEmpty() && IsLeftBehind(fRightEnds.Least(), aLeft)) {
    fLeftBehind.push_back(fRightEnds.TakeLeast());
    Deactivate(fLeftBehind.back());
  }
}

void TSweep::FindCandidates(TIndex aIndex) {
  fCandidates.clear();
  if (!CanMeet(aIndex)) return;
  const auto add = [this](TIndex active) { fCandidates.push_back(active); };
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::optional<THeights>& heights = HeightsAt(aIndex);
  fActive.ForEachMeeting(heights.value_or(THeights{-kInfinity, kInfinity}), add);
  std::ranges::for_each(fUnbounded, add);
  if (heights && EntityAt(aIndex).EntityType == DXFArc) FindTouchingArcs(aIndex);
}

void TSweep::FindTouchingArcs(TIndex aIndex) {
  const TDXFEntity& arc = EntityAt(aIndex);
  fActiveCircles.ForEachMeeting(fReach.GetHeights_Circle(arc), [&](TIndex active) {
    if (HeightsAt(active)->Meets(*HeightsAt(aIndex))) return;  // found already
    if (AreCirclesTouching(arc, EntityAt(active))) fCandidates.push_back(active);
  });
}

// Both lists in descending order of entry, as if one list of all that is active were walked backwards.
void TSweep::RecordMeetings(TIndex aIndex) {
  std::ranges::sort(fLeftBehind, std::greater<>());
  if (!std::ranges::is_sorted(fCandidates, std::greater<>())) std::ranges::sort(fCandidates, std::greater<>());
  auto leaving = fLeftBehind.begin();
  for (const TIndex candidate : fCandidates) {
    for (; leaving != fLeftBehind.end() && *leaving > candidate; ++leaving) RecordEnds(*leaving);
    RecordPair(aIndex, candidate);
  }
  for (; leaving != fLeftBehind.end(); ++leaving) RecordEnds(*leaving);
}

void TSweep::RecordEnds(TIndex aIndex) {
  fRecords.Add(aIndex, EntityAt(aIndex).StartCoords);
  fRecords.Add(aIndex, EntityAt(aIndex).EndCoords);
}

void TSweep::RecordPair(TIndex aEntering, TIndex aActive) {
  fPoints.Clear();
  if (!CheckIntercepts(EntityAt(aEntering), EntityAt(aActive), fPoints)) return;
  for (const TEntityCoordinate& point : fPoints.Points()) {
    fRecords.Add(aEntering, point);
    fRecords.Add(aActive, point);
  }
}

void TSweep::Activate(TIndex aIndex) {
  const double right = GetRightMostCoordinate(EntityAt(aIndex)).x;
  if (!std::isnan(right)) fRightEnds.Add(right, aIndex);  // else it is never left behind
  if (!CanMeet(aIndex)) return;
  const std::optional<THeights>& heights = HeightsAt(aIndex);
  if (!heights) return fUnbounded.push_back(aIndex);
  fActive.Add(aIndex, *heights);
  if (EntityAt(aIndex).EntityType == DXFArc) fActiveCircles.Add(aIndex, fReach.GetHeights_Circle(EntityAt(aIndex)));
}

void TSweep::Deactivate(TIndex aIndex) {
  if (!CanMeet(aIndex)) return;
  if (!HeightsAt(aIndex)) {
    std::erase(fUnbounded, aIndex);
    return;
  }
  fActive.Remove(aIndex);
  if (EntityAt(aIndex).EntityType == DXFArc) fActiveCircles.Remove(aIndex);
}

bool TSweep::CanMeet(TIndex aIndex) const {
  return fAnyMeets && IsLineOrArc(EntityAt(aIndex));
}

}  // namespace GeometryEngine::detail
