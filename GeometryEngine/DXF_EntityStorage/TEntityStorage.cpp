#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "GeometryEngine/GeometryEngine_Arrays/EntityArrays.h"
#include "GeometryEngine/GeometryEngine_Arrays/detail/EntityRemovals.h"
#include "GeometryEngine/GeometryEngine_Arrays/detail/RingOrder.h"

namespace GeometryEngine {

TEntityStorage::TEntityStorage() = default;
TEntityStorage::~TEntityStorage() = default;

TIndex TEntityStorage::GetCount() const {
  return ToIndex(fEntityArray.size());
}
TIndex TEntityStorage::Count() const {
  return GetCount();
}

bool TEntityStorage::GetIsIndexValid(TIndex aIndex) const {
  return IsIndexWithin(aIndex, fEntityArray.size());
}

TDXFEntity TEntityStorage::GetEntityFromIndex(TIndex aIndex) const {
  return detail::GetElementOrEmpty(std::span(fEntityArray), aIndex);
}

TDXFEntity TEntityStorage::Entities(TIndex aIndex) const {
  return GetEntityFromIndex(aIndex);
}
void TEntityStorage::Entities(TIndex aIndex, const TDXFEntity& aEntity) {
  SetEntityFromIndex(aIndex, aEntity);
}

PtrDXFEntity TEntityStorage::GetEntityFromIndex_Pointer(TIndex aIndex) {
  return GetIsIndexValid(aIndex) ? &fEntityArray[static_cast<std::size_t>(aIndex)] : nullptr;
}

const TDXFEntity* TEntityStorage::GetEntityFromIndex_Pointer(TIndex aIndex) const {
  return GetIsIndexValid(aIndex) ? &fEntityArray[static_cast<std::size_t>(aIndex)] : nullptr;
}

PtrDXFEntity TEntityStorage::Entities_P(TIndex aIndex) {
  return GetEntityFromIndex_Pointer(aIndex);
}
const TDXFEntity* TEntityStorage::Entities_P(TIndex aIndex) const {
  return GetEntityFromIndex_Pointer(aIndex);
}

TEntityArray& TEntityStorage::EntityArray() {
  return fEntityArray;
}
const TEntityArray& TEntityStorage::EntityArray() const {
  return fEntityArray;
}

void TEntityStorage::SetEntityFromIndex(TIndex aIndex, const TDXFEntity& aEntity) {
  const PtrDXFEntity entity = GetEntityFromIndex_Pointer(aIndex);
  if (entity == nullptr) return;
  TDXFEntity copy = aEntity;  // made first: a copy that fails leaves the entity whole
  *entity = std::move(copy);
}

TIndex TEntityStorage::AddEntity(const TDXFEntity& aEntity) {
  TEntityArray_Helper::AddEntity(fEntityArray, aEntity);
  return GetCount();
}

TIndex TEntityStorage::AddEntity_AtIndex(const TDXFEntity& aEntity, TIndex aIndex) {
  InsertEntity(fEntityArray, aEntity, aIndex);
  return GetCount();
}

void TEntityStorage::AddEntities(const TEntityArray& aEntityArray) {
  if (&aEntityArray == &fEntityArray) return AddEntities(TEntityArray(aEntityArray));
  const std::size_t count = fEntityArray.size() + aEntityArray.size();
  if (count > fEntityArray.capacity()) fEntityArray.reserve(std::max(count, 2 * fEntityArray.size()));
  fEntityArray.insert(fEntityArray.end(), aEntityArray.begin(), aEntityArray.end());
}

void TEntityStorage::RemoveEntityFromArray(TIndex aIndex) {
  if (aIndex < 0 || fEntityArray.empty()) return;
  // KEPT: an index at or past the end still takes one off, the last entity: every call with an index of 0 or more
  // shortens a non-empty storage by exactly one.
  RemoveEntity(fEntityArray, std::min(aIndex, GetCount() - 1));
}

void TEntityStorage::RemoveEntityFromArray(const TDXFEntity& aDXFEntity) {
  RemoveEntity(fEntityArray, aDXFEntity);
}

void TEntityStorage::RemoveEntities(const TEntityArray& aEntityArray) {
  const TEntityArray removed = aEntityArray;  // aEntityArray may be this storage's own array
  detail::TEntityRemovals removals(fEntityArray);
  for (const TDXFEntity& entity : removed) removals.RemoveFirst(entity);
  removals.Finish();
}

bool TEntityStorage::CheckEntityExists(const TDXFEntity& aEntity) const {
  return IndexOf(aEntity) != kNotFound;
}

TIndex TEntityStorage::IndexOf(const TDXFEntity& aEntity) const {
  return IndexOfEntity(fEntityArray, aEntity);
}

void TEntityStorage::SetEntityColour(TIndex aIndex, std::string_view aColour) {
  if (const PtrDXFEntity entity = GetEntityFromIndex_Pointer(aIndex)) entity->Colour = aColour;
}

void TEntityStorage::SetEntitySourceDXF(TIndex aIndex, void* aSourceDXF) {
  if (const PtrDXFEntity entity = GetEntityFromIndex_Pointer(aIndex)) entity->SourceDXF = aSourceDXF;
}

void TEntityStorage::FreeEntities() {
  fEntityArray.clear();
}

void TEntityStorage::CopyGeometry(const TEntityStorage& apEntityClass) {
  fEntityArray = apEntityClass.fEntityArray;
}

void TEntityStorage::CopyNewGeometry(TEntityStorage& apEntityClass) {
  if (&apEntityClass == this) return;
  fEntityArray = std::move(apEntityClass.fEntityArray);
  apEntityClass.FreeEntities();
}

bool TEntityStorage::IsEqual(const TEntityStorage& aEntityStorage) const {
  return std::equal(fEntityArray.begin(), fEntityArray.end(), aEntityStorage.fEntityArray.begin(),
                    aEntityStorage.fEntityArray.end());
}

const TEntityCoordinate& TEntityStorage::StartCoordinate() const {
  return fStartCoordinate;
}
void TEntityStorage::StartCoordinate(const TEntityCoordinate& aStartCoordinate) {
  fStartCoordinate = aStartCoordinate;
}

double TEntityStorage::Min_X() const {
  return fMin_X;
}
double TEntityStorage::Max_X() const {
  return fMax_X;
}
double TEntityStorage::Min_Y() const {
  return fMin_Y;
}
double TEntityStorage::Max_Y() const {
  return fMax_Y;
}
double TEntityStorage::Min_R() const {
  return fMin_R;
}
double TEntityStorage::Max_R() const {
  return fMax_R;
}
double TEntityStorage::Min_T() const {
  return fMin_T;
}
double TEntityStorage::Max_T() const {
  return fMax_T;
}

}  // namespace GeometryEngine
