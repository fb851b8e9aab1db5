#include "GeometryEngine/DXF_Regions_Detection/detail/TRecordedPoints.h"

#include <numeric>

#include "GeometryEngine/DXF_Regions_Detection/detail/TPointRow.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeBatch.h"

namespace GeometryEngine::detail {

namespace {

constexpr std::size_t kPointsPerEntity = 6;  // of a drawing whose entities meet at their ends

}  // namespace

TRecordedPoints::TRecordedPoints(std::span<const TDXFEntity> aEntities)
    : fEntities(aEntities), fNodeOf(aEntities.size(), kNotFound) {
  fIndex.Reserve(aEntities.size());
  fRecords.reserve(kPointsPerEntity * aEntities.size());
}

void TRecordedPoints::Add(TIndex aEntity, const TEntityCoordinate& aPoint) {
  fRecords.push_back({aPoint, aEntity, FindNode(aEntity)});
}

// The node that was found once stays the first: nodes made later stand behind it.
TIndex TRecordedPoints::FindNode(TIndex aEntity) {
  TIndex& known = fNodeOf[static_cast<std::size_t>(aEntity)];
  if (known != kNotFound) return known;
  const TDXFEntity& entity = EntityAt(aEntity);
  const TIndex node = fIndex.FindFirst(
      entity, [this](TIndex i) -> const TDXFEntity& { return EntityAt(fNodeEntities[static_cast<std::size_t>(i)]); });
  if (node != kNotFound) return known = node;
  const TIndex added = AddNode(aEntity);
  if (entity == entity) known = added;  // what equals nothing gets a node for each of its points
  return added;
}

TIndex TRecordedPoints::AddNode(TIndex aEntity) {
  fIndex.Add(EntityAt(aEntity));
  fNodeEntities.push_back(aEntity);
  return ToIndex(fNodeEntities.size() - 1);
}

/// Where each node's records begin once they stand node by node; with the end of the last.
std::vector<std::size_t> TRecordedPoints::GetStarts() const {
  std::vector<std::size_t> starts(fNodeEntities.size() + 1);
  for (const TRecord& record : fRecords) ++starts[static_cast<std::size_t>(record.fNode) + 1];
  std::partial_sum(starts.begin(), starts.end(), starts.begin());
  return starts;
}

/// The place of each record among the children of its node; kNotFound for a point that is known already.
std::vector<TIndex> TRecordedPoints::GetPlaces() const {
  const std::vector<std::size_t> starts = GetStarts();
  std::vector<std::size_t> ends(starts.begin(), starts.end() - 1);
  std::vector<TRowPoint> points(fRecords.size());
  std::vector<std::size_t> recordOf(fRecords.size());
  for (std::size_t i = 0; i < fRecords.size(); ++i) {
    const TRecord& record = fRecords[i];
    const std::size_t slot = ends[static_cast<std::size_t>(record.fNode)]++;
    points[slot] = {record.fPoint, &EntityAt(record.fEntity)};
    recordOf[slot] = i;
  }
  std::vector<TIndex> places(fRecords.size(), kNotFound);
  TPointRow row;
  for (std::size_t node = 0; node + 1 < starts.size(); ++node) {
    TIndex place = 0;
    const std::span<const TRowPoint> own(points.begin() + static_cast<std::ptrdiff_t>(starts[node]),
                                         starts[node + 1] - starts[node]);
    for (const std::size_t position : row.Arrange(own)) places[recordOf[starts[node] + position]] = place++;
  }
  return places;
}

void TRecordedPoints::FillTree(TEntityTree& aTree) const {
  const std::vector<TIndex> places = GetPlaces();
  TNodeBatch nodes(aTree, fRecords.size() + fNodeEntities.size());
  std::vector<TTreeNode*> entityNodes(fNodeEntities.size(), nullptr);
  TIndex count = 0;
  for (std::size_t i = 0; i < fRecords.size(); ++i) {
    const std::size_t entity = static_cast<std::size_t>(fRecords[i].fNode);
    TTreeNode*& node = entityNodes[entity];
    if (node == nullptr) {
      node = &nodes.AddToRoot(count++);
      node->EntityIndex(fNodeEntities[entity]);
    }
    if (places[i] != kNotFound) nodes.Add(*node, places[i]).Coordinates(fRecords[i].fPoint);
  }
  nodes.Finish();
}

}  // namespace GeometryEngine::detail
