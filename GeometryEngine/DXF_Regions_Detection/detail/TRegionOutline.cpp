#include "GeometryEngine/DXF_Regions_Detection/detail/TRegionOutline.h"

#include "GeometryEngine/DXF_EntityStorage/detail/OtherEnd.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TRegionEntities.h"

namespace GeometryEngine::detail {

TRegionOutline::TRegionOutline(const TEntityTree& aTree, const TTreeNode& aRegion)
    : fTolerance(ReadLinearTolerance()), fEntities(GetEntities(aTree, aRegion)), fTree(GetHeights()) {}

std::vector<TWalkedEntity> TRegionOutline::GetEntities(const TEntityTree& aTree, const TTreeNode& aRegion) const {
  const TRegionEntities walked(aTree, aRegion);
  std::vector<TWalkedEntity> entities;
  entities.reserve(walked.size());
  TEntityCoordinate from = aRegion.Coordinates();
  for (std::size_t i = 0; i < walked.size(); ++i) {
    const TDXFEntity& entity = walked[i];
    const TEntityCoordinate farEnd = GetOtherEnd(from, entity, fTolerance);
    if (entity.EntityType == DXFLine || entity.EntityType == DXFArc) {
      entities.emplace_back(entity, from, farEnd, fTolerance);
    }
    from = farEnd;
  }
  return entities;
}

std::vector<THeightRange> TRegionOutline::GetHeights() const {
  std::vector<THeightRange> heights;
  heights.reserve(TBlockTree<THeightRange>::GetRoom(fEntities.size()));
  for (const TWalkedEntity& entity : fEntities) heights.push_back(entity.Heights());
  return heights;
}

std::int32_t TRegionOutline::GetWindingNumber(const TEntityCoordinate& aPoint) {
  std::uint32_t total = 0;  // unsigned: wraps round instead of overflowing
  fTree.ForEach([&](const THeightRange& aHeights) { return aHeights.Holds(aPoint.y); },
                [&](std::size_t aPlace) {
                  total += static_cast<std::uint32_t>(fEntities[aPlace].GetWinding(aPoint, fTolerance));
                });
  return static_cast<std::int32_t>(total);
}

}  // namespace GeometryEngine::detail
