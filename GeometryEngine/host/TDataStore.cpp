#include "GeometryEngine/host/TDataStore.h"

#include <utility>

namespace Kelvaralinks {

namespace {
using enum Maindataenum::TInputFields;

// Sensible for drawings in millimetres.
constexpr std::pair<Maindataenum::TInputFields, double> kStartingValues[] = {
    {ifSlotDuplications, 1},   {ifPoleDuplications, 1}, {ifBarDuplications, 1},
    {ifLinearTolerance, 1e-4}, {ifSnappingMode, 1},     {ifAngleTolerance, 1e-4},
    {ifMinimumLabelArea, 0},   {ifArcResolution, 5},    {ifUniqueRegionNames, 1},
};
}  // namespace

TDataStore::TDataStore() : fValues{} {
  Reset();
}

void TDataStore::Reset() noexcept {
  fValues.fill(0);
  for (const auto& [field, value] : kStartingValues) SetValue(field, value);
}

TDataStore dataStore;

}  // namespace Kelvaralinks
