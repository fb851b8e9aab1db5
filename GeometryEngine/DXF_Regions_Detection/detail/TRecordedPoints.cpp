#include "GeometryEngine/DXF_Regions_Detection/detail/TRecordedPoints.h"

#include <numeric>

#include "GeometryEngine/DXF_Regions_Detection/detail/TPointRow.h"

namespace GeometryEngine::detail {

namespace {

constexpr std::size_t kPointsPerEntity = 6;  // of a drawing whose entities meet at their ends

}  // namespace

TRecordedPoints::TRecordedPoints(std::span<const TDXFEntity> aEntities)
    : fEntities(aEntities), fRepeats(aEntities), fNodeOf(aEntities.size(), kNotFound) {
  fRecords.reserve(kPointsPerEntity * aEntities.size());
}

void TRecordedPoints::Add(TIndex aEntity, const TEntityCoordinate& aPoint) {
  fRecords.push_back({aPoint, aEntity, FindNode(aEntity)});
}

// The node that was found once stays the first: nodes made later stand behind it.
TIndex TRecordedPoints::FindNode(TIndex aEntity) {
  TIndex& known = fNodeOf[static_cast<std::size_t>(aEntity)];
  if (known != kNotFound) return known;
  if (fRepeats.MayRepeat(aEntity)) known = FindNodeOfEqual(aEntity);
  if (known != kNotFound) return known;
  const TIndex added = AddNode(aEntity);
  const TDXFEntity& entity = EntityAt(aEntity);
  if (entity == entity) known = added;  // what equals nothing gets a node for each of its points
  return added;
}

TIndex TRecordedPoints::FindNodeOfEqual(TIndex aEntity) const {
  const auto nodeAt = [this](TIndex i) { return fIndexedNodes[static_cast<std::size_t>(i)]; };
  const auto entityAt = [&](TIndex i) -> const TDXFEntity& {
    return EntityAt(fNodeEntities[static_cast<std::size_t>(nodeAt(i))]);
  };
  const TIndex first = fIndex.FindFirst(EntityAt(aEntity), entityAt);
  return first == kNotFound ? kNotFound : nodeAt(first);
}

TIndex TRecordedPoints::AddNode(TIndex aEntity) {
  const TIndex node = ToIndex(fNodeEntities.size());
  fNodeEntities.push_back(aEntity);
  if (fRepeats.MayRepeat(aEntity)) {
    fIndex.Add(EntityAt(aEntity));
    fIndexedNodes.push_back(node);
  }
  return node;
}

/// Where each node's records begin once they stand node by node; with the end of the last.
std::vector<std::size_t> TRecordedPoints::GetStarts() const {
  std::vector<std::size_t> starts(fNodeEntities.size() + 1);
  for (const TRecord& record : fRecords) ++starts[static_cast<std::size_t>(record.fNode) + 1];
  std::partial_sum(starts.begin(), starts.end(), starts.begin());
  return starts;
}

std::unique_ptr<TInterceptRows> TRecordedPoints::GetRows() const {
  const std::vector<std::size_t> starts = GetStarts();
  std::vector<std::size_t> ends(starts.begin(), starts.end() - 1);
  std::vector<TRowPoint> points(fRecords.size());
  std::vector<TIndex> turns(fRecords.size());
  for (std::size_t i = 0; i < fRecords.size(); ++i) {
    const std::size_t slot = ends[static_cast<std::size_t>(fRecords[i].fNode)]++;
    points[slot] = {fRecords[i].fPoint, &EntityAt(fRecords[i].fEntity)};
    turns[slot] = ToIndex(i);
  }
  auto rows = std::make_unique<TInterceptRows>(fNodeEntities.size(), fRecords.size(), ToIndex(fRecords.size()));
  TPointRow row;
  for (std::size_t node = 0; node < fNodeEntities.size(); ++node) {
    const std::size_t start = starts[node];
    rows->AddRow(fNodeEntities[node]);
    for (const std::size_t position : row.Arrange(std::span(points).subspan(start, starts[node + 1] - start))) {
      rows->AddPoint({points[start + position].fPoint, turns[start + position]});
    }
  }
  return rows;
}

}  // namespace GeometryEngine::detail
