#pragma once

// Which of many entities equal no other one, found in one go. Private.

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TCellChains.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TToleranceCells.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// Tells most entities of a drawing that equal no other from those that may. Each entity has a key of two numbers;
/// counted are the entities in each cell of the keys, cells of one hash together. An entity that is alone in the cells
/// around its key equals no other.
///
/// The key of a line is the sum of its ends, which is the same for its reverse; that of an arc is made of one number of
/// each end, so that the halves of concentric circles don't share it. The ends of equal entities, paired as they are
/// the same, differ by less than the tolerance t, so their keys differ by less than 2 t, and the rounding of sums that
/// are no more than `kMostTolerances` t stays far below the hundredth of t that is added. Entities beyond that may
/// repeat.
///
/// REQUIRES: entities and tolerance that stay as they are.
/// COST: constant for an entity. A search in an index takes several times as long, since it waits for memory at every
/// step; the steps here don't wait for each other.
class TEntityRepeats {
 public:
  explicit TEntityRepeats(std::span<const TDXFEntity> aEntities)
      : fCounts(std::bit_ceil(kSlotsPerEntity * aEntities.size() / kSlotsPerWord + 1)), fMayRepeat(aEntities.size()) {
    for (const TDXFEntity& entity : aEntities) {
      if (CanMatch(entity)) Count(GetHash(entity, fCells.GetCell(KeyOf(entity).x), fCells.GetCell(KeyOf(entity).y)));
    }
    std::transform(aEntities.begin(), aEntities.end(), fMayRepeat.begin(),
                   [this](const TDXFEntity& entity) { return CanMatch(entity) && !IsAlone(entity); });
  }

  /// False when no other entity equals this one.
  bool MayRepeat(TIndex aEntity) const { return fMayRepeat[static_cast<std::size_t>(aEntity)]; }

 private:
  static constexpr std::size_t kSlotsPerEntity = 32;
  static constexpr std::size_t kSlotsPerWord = 32;
  static constexpr std::uint64_t kSeveral = 2;

  static constexpr double kReach = 2.01;  // tolerances
  static constexpr double kMostTolerances = 1e13;

  static TEntityCoordinate KeyOf(const TDXFEntity& aEntity) {
    const bool isArc = aEntity.EntityType == DXFArc;
    return {aEntity.StartCoords.x + (isArc ? 0 : aEntity.EndCoords.x),
            aEntity.EndCoords.y + (isArc ? 0 : aEntity.StartCoords.y)};
  }

  /// Equal entities are of one type.
  static std::uint64_t GetHash(const TDXFEntity& aEntity, std::int64_t aColumn, std::int64_t aRow) {
    return MixCell(MixCell(static_cast<std::uint64_t>(aEntity.EntityType), aColumn), aRow);
  }

  bool CanMatch(const TEntityCoordinate& aPoint) const {
    return fCells.CanMatch(aPoint.x) && fCells.CanMatch(aPoint.y);
  }

  /// False for what equals nothing.
  bool CanMatch(const TDXFEntity& aEntity) const {
    return (aEntity.EntityType == DXFLine || aEntity.EntityType == DXFArc) && CanMatch(aEntity.StartCoords) &&
           CanMatch(aEntity.EndCoords);
  }

  bool IsExactEnough(double aSum) const { return std::abs(aSum) <= fFarthest; }

  std::size_t WordOf(std::uint64_t aHash) const { return aHash / kSlotsPerWord & (fCounts.size() - 1); }
  static std::uint64_t GetShift(std::uint64_t aHash) { return 2 * (aHash % kSlotsPerWord); }

  std::uint64_t CountOf(std::uint64_t aHash) const { return fCounts[WordOf(aHash)] >> GetShift(aHash) & 3U; }

  /// One more, up to several: the upper bit of the two stays once it is set.
  void Count(std::uint64_t aHash) {
    std::uint64_t& word = fCounts[WordOf(aHash)];
    const std::uint64_t shift = GetShift(aHash);
    const std::uint64_t count = word >> shift & 3U;
    word += (count ^ kSeveral) >> 1 << shift;
  }

  bool IsAlone(const TDXFEntity& aEntity) const {
    const TEntityCoordinate key = KeyOf(aEntity);
    if (!IsExactEnough(key.x) || !IsExactEnough(key.y)) return false;
    const TCellRange columns = fCells.GetCellsAround(key.x);
    const TCellRange rows = fCells.GetCellsAround(key.y);
    std::uint64_t around = 0;
    for (std::int64_t column = columns.fFirst; column <= columns.fLast; ++column) {
      for (std::int64_t row = rows.fFirst; row <= rows.fLast; ++row) around += CountOf(GetHash(aEntity, column, row));
    }
    return around == 1;
  }

  TToleranceCells fCells{kReach * GetLinearTolerance()};
  double fFarthest = kMostTolerances * GetLinearTolerance();
  std::vector<std::uint64_t> fCounts;  ///< two bits for a hash: 0, 1, or `kSeveral` for more
  std::vector<bool> fMayRepeat;
};

}  // namespace GeometryEngine::detail
