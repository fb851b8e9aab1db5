#pragma once

// One entity of a walk, prepared for the winding numbers of many points. Private; for a single point see
// GetWindingNumber_Entity_Addition, which is the same number.

#include <cstdint>
#include <memory>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TBlockTree.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/THeightRange.h"

namespace GeometryEngine::detail {

/// A line or an arc with the two ends between which a walk passes it. The chords of an arc are listed when the first
/// point comes that lies at its height: most arcs never see one.
///
/// REQUIRES: entity and settings stay as they are; a line or an arc.
class TWalkedEntity {
 public:
  TWalkedEntity(const TDXFEntity& aEntity, const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                double aTolerance);

  const TDXFEntity& Entity() const { return *fEntity; }
  /// At other heights it turns round no point.
  const THeightRange& Heights() const { return fHeights; }
  /// What the entity adds to the winding number of the point.
  std::int32_t GetWinding(const TEntityCoordinate& aPoint, double aTolerance);

 private:
  struct TChords {
    TCoordinateArray fEnds;
    TBlockTree<THeightRange> fBlocks;  ///< the heights of eight chords at a time
  };

  THeightRange GetHeights() const;
  void ListChords(double aTolerance);

  const TDXFEntity* fEntity;
  TEntityCoordinate fFrom;
  TEntityCoordinate fTo;
  THeightRange fHeights;
  std::unique_ptr<TChords> fChords;  ///< of an arc that a point has met, unless there are very many
};

}  // namespace GeometryEngine::detail
