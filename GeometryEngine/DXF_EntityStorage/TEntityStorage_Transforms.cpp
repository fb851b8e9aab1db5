// Transforms of a storage's chain as a whole, and its duplication around and along an axis.

#include <utility>

#include "GeometryEngine/DXF_EntityStorage/AngularDuplication.h"
#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GeometryEngine_Arrays/EntityArrays.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"

namespace GeometryEngine {

namespace {

template <typename TTransform>
void ReplaceEach(TEntityArray& aEntities, const TTransform& aTransform) {
  for (TDXFEntity& entity : aEntities) entity = aTransform(entity);
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
  ReplaceEach(fEntityArray,
              [&](const TDXFEntity& aEntity) { return TranslateEntity(aEntity, aXDistance, aYDistance); });
  fStartCoordinate = GetStartCoordinate();
}

void TEntityStorage::Mirror(const TDXFEntity& aMirrorLine) {
  // The line is taken by value: it may be an entity of this storage.
  ReplaceEach(fEntityArray,
              [aMirrorLine](const TDXFEntity& aEntity) { return MirrorEntity_AboutLine(aEntity, aMirrorLine); });
  // KEPT: the start vertex is taken before the reversal. Chains of three or more entities have the same one after it; a
  // loop of two has the other, and whoever asks it for points inside stores GetStartCoordinate() first.
  fStartCoordinate = GetStartCoordinate();
  // A mirror image runs the other way round; in reverse order it keeps the chain's sense of travel.
  ReverseEntities();
}

void TEntityStorage::DuplicateAroundAxis(std::int32_t aDuplications, std::int32_t aDuplications_Full, double aAngle,
                                         bool aSingular) {
  const TEntityArray original = std::exchange(fEntityArray, {});
  if (original.empty()) return;
  for (std::int32_t k = 0; k < aDuplications; ++k) {
    const double copy_angle = aAngle * k;
    const TRotationMatrix matrix = GetRotationMatrix(copy_angle);
    for (const TDXFEntity& entity : original) {
      const TDXFEntity copy = RotateEntity_AroundAxis(entity, matrix);
      const bool included =
          aSingular || IncludeDuplicatedEntity(aDuplications, aDuplications_Full, k, copy_angle, aAngle, copy);
      if (included) AddEntity(copy);
    }
  }
}

void TEntityStorage::DuplicateAlongAxis(std::int32_t aDuplications, double aDuplicationDistance) {
  const TEntityArray original = fEntityArray;
  if (original.empty()) return;
  TEntityArray previous = original;
  for (std::int32_t k = 1; k < aDuplications; ++k) {
    TEntityArray current;
    for (const TDXFEntity& entity : original) {
      const TDXFEntity copy = TranslateEntity(entity, k * aDuplicationDistance, 0);
      if (ContainsEntity(previous, copy)) {
        RemoveEntityFromArray(copy);
      } else {
        TEntityArray_Helper::AddEntity(current, copy);
      }
    }
    AddEntities(current);
    previous = std::move(current);
  }
}

}  // namespace GeometryEngine
