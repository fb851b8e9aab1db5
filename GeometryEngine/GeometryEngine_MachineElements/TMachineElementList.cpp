#include "GeometryEngine/GeometryEngine_MachineElements/TMachineElementList.h"

#include <utility>

#include "GeometryEngine/GeometryEngine_Arrays/EntityArrays.h"

namespace GeometryEngine {

TMachineElementList::TMachineElementList() = default;
TMachineElementList::~TMachineElementList() = default;

TIndex TMachineElementList::GetCount() const {
  return ToIndex(fElements.size());
}
TIndex TMachineElementList::Count() const {
  return GetCount();
}

TMachineElement* TMachineElementList::Item(TIndex aIndex) const {
  return IsIndexWithin(aIndex, fElements.size()) ? fElements[static_cast<std::size_t>(aIndex)].get() : nullptr;
}

TIndex TMachineElementList::Add(std::unique_ptr<TMachineElement>& aElement) {
  if (aElement == nullptr) return kNotFound;
  fElements.emplace_back();  // first, so that a failed allocation leaves the element with the caller
  fElements.back() = std::move(aElement);
  return GetCount() - 1;
}

void TMachineElementList::Remove(TIndex aIndex) {
  if (IsIndexWithin(aIndex, fElements.size())) fElements.erase(fElements.begin() + aIndex);
}

void TMachineElementList::Clear() {
  fElements.clear();
}

void TMachineElementList::Assign(const TMachineElementList& aSource) {
  std::vector<std::unique_ptr<TMachineElement>> copies;
  for (const auto& element : aSource.fElements) {
    copies.push_back(std::make_unique<TMachineElement>());
    copies.back()->Assign(*element);
  }
  fElements = std::move(copies);
}

TVirtualBoundaryArray TMachineElementList::GetAllBoundaries() const {
  TVirtualBoundaryArray boundaries;
  for (const auto& element : fElements) {
    boundaries.push_back(element->innerBoundary());
    boundaries.push_back(element->outerBoundary());
  }
  return boundaries;
}

TEntityArray TMachineElementList::GetBoundaryEntities() const {
  TEntityArray entities;
  for (const TVirtualBoundary& boundary : GetAllBoundaries()) {
    if (boundary.Enabled && !ContainsEntity(entities, boundary.BoundaryEntity))
      AddEntity(entities, boundary.BoundaryEntity);
  }
  return entities;
}

}  // namespace GeometryEngine
