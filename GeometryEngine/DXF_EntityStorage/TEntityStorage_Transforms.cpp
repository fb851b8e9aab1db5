// Transforms of a storage's chain as a whole, and its duplication around and along an axis.

#include <algorithm>
#include <cstddef>
#include <utility>

#include "GeometryEngine/DXF_EntityStorage/AngularDuplication.h"
#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GeometryEngine_Arrays/detail/EntityRemovals.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"

namespace GeometryEngine {

namespace {

// Every image is made before the first record is overwritten, so that memory that runs out, or a store that fails,
// leaves all as it was; the records stay in their places.
template <typename TTransform>
TEntityArray GetImages(const TEntityArray& aEntities, const TTransform& aTransform) {
  TEntityArray images;
  images.reserve(aEntities.size());
  for (const TDXFEntity& entity : aEntities) images.push_back(aTransform(entity));
  return images;
}

template <typename TTransform>
void ReplaceEach(TEntityArray& aEntities, const TTransform& aTransform) {
  std::ranges::move(GetImages(aEntities, aTransform), aEntities.begin());
}

/// Answers the start vertex of the images.
template <typename TTransform>
TEntityCoordinate ReplaceChain(TEntityArray& aEntities, const TTransform& aTransform) {
  TEntityStorage chain;
  chain.EntityArray() = GetImages(aEntities, aTransform);
  const TEntityCoordinate start = chain.GetStartCoordinate();
  std::ranges::move(chain.EntityArray(), aEntities.begin());
  return start;
}

/// As many entities as that many copies have at most; asked for before any is made, so that too many fail at once.
std::size_t GetCopiedCount(const TEntityArray& aEntities, std::int32_t aCopies) {
  return aEntities.size() * static_cast<std::size_t>(std::max(aCopies, 1));
}

}  // namespace

// KEPT: unlike Translate and Mirror, rotations leave the stored start vertex alone; whoever turns a chain to and fro
// finds the vertex that was stored.
void TEntityStorage::RotateEntities(const TRotationMatrix& aMatrix) {
  ReplaceEach(fEntityArray, [&](const TDXFEntity& aEntity) { return RotateEntity_AroundAxis(aEntity, aMatrix); });
}

void TEntityStorage::RotateEntities_AroundPoint(const TRotationMatrix& aMatrix, const TEntityCoordinate& aCentre) {
  // The centre may be a coordinate of this storage: it turns about itself and stays where it is.
  ReplaceEach(fEntityArray,
              [&](const TDXFEntity& aEntity) { return RotateEntity_AroundPoint(aEntity, aMatrix, aCentre); });
}

void TEntityStorage::Translate(double aXDistance, double aYDistance) {
  fStartCoordinate = ReplaceChain(
      fEntityArray, [&](const TDXFEntity& aEntity) { return TranslateEntity(aEntity, aXDistance, aYDistance); });
}

void TEntityStorage::Mirror(const TDXFEntity& aMirrorLine) {
  // KEPT: the start vertex is taken before the reversal. Chains of three or more entities have the same one after it; a
  // loop of two has the other, and whoever asks it for points inside stores GetStartCoordinate() first.
  fStartCoordinate = ReplaceChain(
      fEntityArray, [&](const TDXFEntity& aEntity) { return MirrorEntity_AboutLine(aEntity, aMirrorLine); });
  // A mirror image runs the other way round; in reverse order it keeps the chain's sense of travel.
  ReverseEntities();
}

void TEntityStorage::DuplicateAroundAxis(std::int32_t aDuplications, std::int32_t aDuplications_Full, double aAngle,
                                         bool aSingular) {
  TEntityArray ring;
  ring.reserve(GetCopiedCount(fEntityArray, aDuplications));
  for (std::int32_t k = 0; k < aDuplications && !fEntityArray.empty(); ++k) {
    const double copy_angle = aAngle * k;
    const TRotationMatrix matrix = GetRotationMatrix(copy_angle);
    for (const TDXFEntity& entity : fEntityArray) {
      TDXFEntity copy = RotateEntity_AroundAxis(entity, matrix);
      const bool included =
          aSingular || IncludeDuplicatedEntity(aDuplications, aDuplications_Full, k, copy_angle, aAngle, copy);
      if (included) ring.push_back(std::move(copy));
    }
  }
  fEntityArray = std::move(ring);
}

void TEntityStorage::DuplicateAlongAxis(std::int32_t aDuplications, double aDuplicationDistance) {
  if (fEntityArray.empty() || aDuplications < 2) return;
  TEntityArray row = fEntityArray;
  row.reserve(GetCopiedCount(fEntityArray, aDuplications));
  detail::TEntityRemovals removals(row);
  std::size_t previous = 0;  // where the entities of the copy before begin; seams may have been marked removed there
  for (std::int32_t k = 1; k < aDuplications; ++k) {
    const std::size_t current = row.size();
    const detail::TEntityRange before{ToIndex(previous), ToIndex(current)};
    TEntityArray added;
    for (const TDXFEntity& entity : fEntityArray) {
      TDXFEntity copy = TranslateEntity(entity, k * aDuplicationDistance, 0);
      if (removals.HoldsWithin(before, copy)) {
        removals.RemoveFirst(copy);
      } else {
        added.push_back(std::move(copy));
      }
    }
    removals.Append(std::move(added));
    previous = current;
  }
  removals.Finish();
  fEntityArray = std::move(row);
}

}  // namespace GeometryEngine
