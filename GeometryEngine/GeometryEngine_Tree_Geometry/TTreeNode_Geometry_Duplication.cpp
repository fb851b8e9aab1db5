// Copies of a region about or along the axis, kept beside one another or joined into one outline.

#include <algorithm>
#include <utility>

#include "GeometryEngine/DXF_EntityStorage/detail/ClosedLoops.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"

namespace GeometryEngine {

namespace {

/// The chain as the closed loop, anticlockwise.
void SetLoop(TEntityStorage& aChain, const TEntityArray& aLoop) {
  aChain.FreeEntities();
  aChain.AddEntities(aLoop);
  if (aChain.GetClosedArea() < 0) aChain.ReverseEntities();
  aChain.StartCoordinate(aChain.GetStartCoordinate());
}

/// Puts the two loops of a ring into this order: outer, inner. False when neither lies inside the other.
bool SortRing(std::vector<TEntityArray>& aLoops) {
  for (const bool swapped : {false, true}) {
    if (swapped) std::swap(aLoops[0], aLoops[1]);
    TEntityStorage outer;
    SetLoop(outer, aLoops[0]);
    if (outer.PointInsideEntities(aLoops[1].front().StartCoords, false)) return true;
  }
  return false;
}

}  // namespace

/// Area, centroid and label points of copies that lie apart; `aPlaceCopy` gives a point's place in copy k.
template <typename TPlaceCopy>
void TTreeNode_Geometry::SpreadOutputs(std::int32_t aCopies, const TPlaceCopy& aPlaceCopy) {
  const TEntityCoordinate label = GetRegionCoordinate_Single();
  TEntityCoordinate sum;
  TCoordinateArray labels;
  labels.reserve(static_cast<std::size_t>(aCopies));  // all at once, so that too many fail before they fill the memory
  for (std::int32_t k = 0; k < aCopies; ++k) {
    sum = sum + aPlaceCopy(fCentroid, k);
    labels.push_back(aPlaceCopy(label, k));
  }
  fRegionArea_Base *= aCopies;
  fCentroid = sum / aCopies;
  fRegionCoordinates = std::move(labels);
  fEntities.StartCoordinate(fEntities.GetStartCoordinate());
  fEntities_Internal.StartCoordinate(fEntities_Internal.GetStartCoordinate());
}

void TTreeNode_Geometry::PlaceAroundAxis(std::int32_t aCopies, std::int32_t aCopies_Full) {
  fEntities.DuplicateAroundAxis(aCopies, aCopies_Full, fDuplicationAngle, fSingularRegion);
  fEntities_Internal.DuplicateAroundAxis(aCopies, aCopies_Full, fDuplicationAngle, fSingularRegion);
}

void TTreeNode_Geometry::SpreadAroundAxis(std::int32_t aCopies) {
  SpreadOutputs(aCopies, [this](const TEntityCoordinate& aPoint, std::int32_t k) {
    return RotateByAngle(k * fDuplicationAngle, aPoint.x, aPoint.y);
  });
}

/// Puts the outline's pieces in order as one loop, or as the two loops of a ring; false when they make neither.
bool TTreeNode_Geometry::UniteOutline() {
  std::vector<TEntityArray> loops = detail::OrderIntoClosedLoops(fEntities.EntityArray());
  const bool ring = loops.size() == 2 && fEntities_Internal.GetCount() == 0 && SortRing(loops);
  if (loops.size() != 1 && !ring) return false;
  if (ring) SetLoop(fEntities_Internal, loops[1]);
  SetLoop(fEntities, loops[0]);
  return true;
}

void TTreeNode_Geometry::Duplicate() {
  const std::int32_t copies = fNumDuplications;
  if (copies < 1) return;
  PlaceAroundAxis(copies, copies);
  SpreadAroundAxis(copies);
  UpdateRegionDuplicationValues(1);
}

void TTreeNode_Geometry::DuplicateAndUnite(std::int32_t aNumberDuplications, TGeometryPlane aDirection) {
  const std::int32_t all = fNumDuplications;
  const bool radial = aDirection == gpRadial;
  if (aNumberDuplications < 2 || (radial && aNumberDuplications > all)) return;
  const double width = GetWidth();
  if (radial) {
    PlaceAroundAxis(aNumberDuplications, all);
  } else {
    fEntities.DuplicateAlongAxis(aNumberDuplications, width);
    fEntities_Internal.DuplicateAlongAxis(aNumberDuplications, width);
  }
  if (UniteOutline()) {
    UpdateGeometry_Outputs();
  } else if (radial) {
    SpreadAroundAxis(aNumberDuplications);
  } else {
    SpreadOutputs(aNumberDuplications, [width](const TEntityCoordinate& aPoint, std::int32_t k) {
      return aPoint + TEntityCoordinate::New(k * width, 0);
    });
  }
  UpdateRegionDuplicationValues(std::max(all / aNumberDuplications, 1));
}

}  // namespace GeometryEngine
