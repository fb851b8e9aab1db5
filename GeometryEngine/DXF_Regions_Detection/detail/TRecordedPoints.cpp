#include "GeometryEngine/DXF_Regions_Detection/detail/TRecordedPoints.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace GeometryEngine::detail {

namespace {

/// Of one sign too where they are 0.
bool HaveSameBits(const TEntityCoordinate& aPoint, const TEntityCoordinate& aOther) {
  return std::bit_cast<std::uint64_t>(aPoint.x) == std::bit_cast<std::uint64_t>(aOther.x) &&
         std::bit_cast<std::uint64_t>(aPoint.y) == std::bit_cast<std::uint64_t>(aOther.y);
}

}  // namespace

TRecordedPoints::TRecordedPoints(std::span<const TDXFEntity> aEntities)
    : fEntities(aEntities), fRepeats(aEntities), fNodeOf(aEntities.size(), kNotFound) {
  fNodes.reserve(aEntities.size());
}

void TRecordedPoints::Add(TIndex aEntity, const TEntityCoordinate& aPoint) {
  const TIndex index = FindNode(aEntity);
  TNode& node = NodeAt(index);
  // An end comes again with every neighbour, and its row would drop it: it holds the point, or one that is the same.
  const std::uint8_t ends = GetEndsAt(node, aPoint);
  if ((ends & node.fEnds) != 0) return;
  node.fEnds |= ends;
  const TIndex turn = fTurns++;
  if (TIndex* endTurn = FindEndTurn(node, aEntity, aPoint, ends)) {
    *endTurn = turn;
    return;
  }
  ++node.fRecords;
  fRecords.push_back({aPoint, aEntity, index, turn});
}

/// Where the turn of a point is kept that is an end of the node's own entity; null for other points.
TIndex* TRecordedPoints::FindEndTurn(TNode& aNode, TIndex aEntity, const TEntityCoordinate& aPoint,
                                     std::uint8_t aEnds) const {
  if (aEnds == 0 || aEntity != aNode.fEntity) return nullptr;
  if (HaveSameBits(aPoint, EntityAt(aEntity).StartCoords)) return &aNode.fStartTurn;
  return HaveSameBits(aPoint, EntityAt(aEntity).EndCoords) ? &aNode.fEndTurn : nullptr;
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
  for (const TNode& node : fNodes) starts.push_back(std::exchange(start, start + node.fRecords));
  std::vector<TIndex> records(fRecords.size());
  for (std::size_t i = 0; i < fRecords.size(); ++i) {
    TIndex& place = starts[static_cast<std::size_t>(fRecords[i].fNode)];
    records[static_cast<std::size_t>(place++)] = ToIndex(i);
  }
  return records;
}

/// The points of a node in the order in which they came.
void TRecordedPoints::GetTurns(const TNode& aNode, std::span<const TIndex> aRecords, std::vector<TTurn>& aTurns) const {
  aTurns.clear();
  const TDXFEntity& own = EntityAt(aNode.fEntity);
  if (aNode.fStartTurn != kNotFound) aTurns.push_back({aNode.fStartTurn, {own.StartCoords, &own}});
  if (aNode.fEndTurn != kNotFound) aTurns.push_back({aNode.fEndTurn, {own.EndCoords, &own}});
  for (const TIndex index : aRecords) {
    const TRecord& record = RecordAt(index);
    aTurns.push_back({record.fTurn, {record.fPoint, &EntityAt(record.fEntity)}});
  }
  std::ranges::sort(aTurns, {}, &TTurn::fTurn);
}

std::unique_ptr<TInterceptRows> TRecordedPoints::GetRows() const {
  auto rows = std::make_unique<TInterceptRows>(fNodes.size(), static_cast<std::size_t>(fTurns), fTurns);
  const std::vector<TIndex> records = GetRecordsByNode();
  std::vector<TTurn> turns;
  std::vector<TRowPoint> points;
  TPointRow row;
  auto first = records.begin();
  for (const TNode& node : fNodes) {
    GetTurns(node, {first, first + node.fRecords}, turns);
    points.clear();
    for (const TTurn& turn : turns) points.push_back(turn.fPoint);
    rows->AddRow(node.fEntity);
    for (const std::size_t position : row.Arrange(points)) {
      rows->AddPoint({turns[position].fPoint.fPoint, turns[position].fTurn});
    }
    first += node.fRecords;
  }
  return rows;
}

}  // namespace GeometryEngine::detail
