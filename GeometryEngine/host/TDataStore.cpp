#include "GeometryEngine/host/TDataStore.h"

#include "GeometryEngine/host/StartingValues.h"

namespace Kelvaralinks {

TDataStore::TDataStore() : fValues{} {
  Reset();
}

void TDataStore::Reset() noexcept {
  fValues.fill(0);
  for (const auto& [field, value] : kStartingValues) SetValue(field, value);
}

TDataStore dataStore;

}  // namespace Kelvaralinks
