#pragma once

// The points of a drawing's entities as the sweep reports them, on the way to the intercept tree. Private.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TEntityIndex.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TEntityRepeats.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TPointRow.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TInterceptRows.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// Takes points in the order of AddInterception and gives the rows of which the nodes are made that its calls, one by
/// one, would have made: the same nodes with the same indexes, in the same order.
///
/// Most points of a drawing are ends of the very entity that they are recorded with. Of such a point only its turn is
/// kept, with the node.
///
/// COST: n log n for the points of an entity, as long as no long row of them stands within the tolerance of each other.
class TRecordedPoints {
 public:
  /// REQUIRES: entities and settings that stay as they are while this lives.
  explicit TRecordedPoints(std::span<const TDXFEntity> aEntities);

  /// Takes a point of an entity.
  void Add(TIndex aEntity, const TEntityCoordinate& aPoint);
  std::unique_ptr<TInterceptRows> GetRows() const;

 private:
  struct TRecord {
    TEntityCoordinate fPoint;
    TIndex fEntity;
    TIndex fNode;
    TIndex fTurn;
  };
  /// Of level 1.
  struct TNode {
    TIndex fEntity;
    TIndex fStartTurn = kNotFound;  ///< in which the entity's start was recorded; none, or a record, otherwise
    TIndex fEndTurn = kNotFound;
    TIndex fRecords = 0;     ///< how many
    std::uint8_t fEnds = 0;  ///< of the entity's ends, those of which it has the point: `kStart`, `kEnd`
  };
  /// A point of a row in the making.
  struct TTurn {
    TIndex fTurn;
    TRowPoint fPoint;
  };

  static constexpr std::uint8_t kStart = 1;
  static constexpr std::uint8_t kEnd = 2;

  std::uint8_t GetEndsAt(const TNode& aNode, const TEntityCoordinate& aPoint) const;
  TIndex* FindEndTurn(TNode& aNode, TIndex aEntity, const TEntityCoordinate& aPoint, std::uint8_t aEnds) const;
  TIndex FindNode(TIndex aEntity);
  TIndex FindNodeOfEqual(TIndex aEntity) const;
  TIndex AddNode(TIndex aEntity);
  std::vector<TIndex> GetRecordsByNode() const;
  void GetTurns(const TNode& aNode, std::span<const TIndex> aRecords, std::vector<TTurn>& aTurns) const;
  TNode& NodeAt(TIndex aIndex) { return fNodes[static_cast<std::size_t>(aIndex)]; }
  const TNode& NodeAt(TIndex aIndex) const { return fNodes[static_cast<std::size_t>(aIndex)]; }
  const TRecord& RecordAt(TIndex aIndex) const { return fRecords[static_cast<std::size_t>(aIndex)]; }
  const TDXFEntity& EntityAt(TIndex aIndex) const { return fEntities[static_cast<std::size_t>(aIndex)]; }

  std::span<const TDXFEntity> fEntities;
  TEntityRepeats fRepeats;
  TEntityIndex fIndex;                ///< the entities of those nodes whose entities may repeat
  std::vector<TIndex> fIndexedNodes;  ///< those nodes
  std::vector<TIndex> fNodeOf;        ///< by entity, once it is certain which node takes its points
  std::vector<TNode> fNodes;
  std::vector<TRecord> fRecords;
  TIndex fTurns = 0;  ///< so far
};

}  // namespace GeometryEngine::detail
