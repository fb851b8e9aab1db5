#include "GeometryEngine/DXF_Regions_Detection/detail/TRecordedPoints.h"

#include <utility>

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
  const TIndex index = FindNode(aEntity);
  TNode& node = NodeAt(index);
  // An end comes again with every neighbour, and its row would drop it: it holds the point, or one that is the same.
  const std::uint8_t ends = GetEndsAt(node, aPoint);
  if ((ends & node.fEnds) != 0) return;
  node.fEnds |= ends;
  ++node.fCount;
  fRecords.push_back({aPoint, aEntity, index});
}

/// The ends of a node's entity that have the numbers of the point.
std::uint8_t TRecordedPoints::GetEndsAt(const TNode& aNode, const TEntityCoordinate& aPoint) const {
  const TDXFEntity& entity = EntityAt(aNode.fEntity);
  // No branches, half of which would be foreseen wrongly.
  const auto isAt = [&](const TEntityCoordinate& end) {
    return static_cast<unsigned int>(aPoint.x == end.x) & static_cast<unsigned int>(aPoint.y == end.y);
  };
  return static_cast<std::uint8_t>(isAt(entity.StartCoords) * kStart | isAt(entity.EndCoords) * kEnd);
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
  const auto entityAt = [&](TIndex i) -> const TDXFEntity& { return EntityAt(NodeAt(nodeAt(i)).fEntity); };
  const TIndex first = fIndex.FindFirst(EntityAt(aEntity), entityAt);
  return first == kNotFound ? kNotFound : nodeAt(first);
}

TIndex TRecordedPoints::AddNode(TIndex aEntity) {
  const TIndex node = ToIndex(fNodes.size());
  fNodes.push_back({aEntity});
  if (fRepeats.MayRepeat(aEntity)) {
    fIndex.Add(EntityAt(aEntity));
    fIndexedNodes.push_back(node);
  }
  return node;
}

/// The records of the first node, those of the second, and so on, of each node in the order in which they came.
std::vector<TIndex> TRecordedPoints::GetRecordsByNode() const {
  std::vector<TIndex> starts;
  starts.reserve(fNodes.size());
  TIndex start = 0;
  for (const TNode& node : fNodes) starts.push_back(std::exchange(start, start + node.fCount));
  std::vector<TIndex> records(fRecords.size());
  for (std::size_t i = 0; i < fRecords.size(); ++i) {
    TIndex& place = starts[static_cast<std::size_t>(fRecords[i].fNode)];
    records[static_cast<std::size_t>(place++)] = ToIndex(i);
  }
  return records;
}

std::unique_ptr<TInterceptRows> TRecordedPoints::GetRows() const {
  auto rows = std::make_unique<TInterceptRows>(fNodes.size(), fRecords.size(), ToIndex(fRecords.size()));
  const std::vector<TIndex> records = GetRecordsByNode();
  std::vector<TRowPoint> points;
  TPointRow row;
  auto first = records.begin();
  for (const TNode& node : fNodes) {
    const std::span turns(first, first + node.fCount);
    points.clear();
    for (const TIndex turn : turns) points.push_back({RecordAt(turn).fPoint, &EntityAt(RecordAt(turn).fEntity)});
    rows->AddRow(node.fEntity);
    for (const std::size_t position : row.Arrange(points)) {
      rows->AddPoint({points[position].fPoint, turns[position]});
    }
    first += node.fCount;
  }
  return rows;
}

}  // namespace GeometryEngine::detail
