#include "tests/support/Chains.h"

#include "tests/support/Geometry.h"

namespace GeometryEngine::support {

void AddText(TEntityStorage& aStorage, std::string_view aText) {
  for (const TDXFEntity& entity : ParseEntities(aText)) aStorage.AddEntity(entity);
}

void AddChain(TEntityStorage& aStorage, std::string_view aText) {
  AddText(aStorage, aText);
  aStorage.StartCoordinate(aStorage.GetStartCoordinate());
}

std::unique_ptr<TEntityStorage> MakeStorage(std::string_view aText) {
  auto storage = std::make_unique<TEntityStorage>();
  AddText(*storage, aText);
  return storage;
}

std::unique_ptr<TEntityStorage> MakeChain(std::string_view aText) {
  auto storage = std::make_unique<TEntityStorage>();
  AddChain(*storage, aText);
  return storage;
}

}  // namespace GeometryEngine::support
