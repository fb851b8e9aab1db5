#pragma once

// Reads the entities of a traced region, whatever they are kept in. Private.

#include <cstddef>
#include <span>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

namespace GeometryEngine::detail {

/// For passes over region after region: the entities of so many regions on are asked for, as memory takes that long to
/// answer.
inline constexpr std::size_t kRegionsAhead = 6;

/// The entities of a region in the order of travel, from its nodes or from what these are to be made of. An index
/// outside of the storage stands for an empty entity.
///
/// REQUIRES: tree, storage and region stay as they are meanwhile.
class TRegionEntities {
 public:
  /// Of a node of a region tree, taken from the storage of `aTree`.
  TRegionEntities(const TEntityTree& aTree, const TTreeNode& aRegion);

  std::size_t size() const { return fIndexes.size() + fChildren.size(); }
  bool empty() const { return size() == 0; }
  const TDXFEntity& operator[](std::size_t aPlace) const {
    const TIndex index = fChildren.empty() ? fIndexes[aPlace] : fChildren[aPlace]->EntityIndex();
    return IsIndexWithin(index, fEntities.size()) ? fEntities[static_cast<std::size_t>(index)] : Empty();
  }

  /// Asks for the geometry of all of them, without waiting for it: they lie scattered in memory.
  void FetchAhead() const;

 private:
  static const TDXFEntity& Empty();

  std::span<const TDXFEntity> fEntities;  // of the storage
  std::span<TTreeNode* const> fChildren;  // of the region,
  std::span<const TIndex> fIndexes;       // or what they would refer to
};

}  // namespace GeometryEngine::detail
