#pragma once

#include <array>
#include <cstdint>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TInputFields.h"

namespace Kelvaralinks {

/// The numbered settings store of the host.
class GEOMETRYENGINE_API TDataStore {
 public:
  TDataStore();

  /// The value of an input field. COST: one plain load.
  double GetValue(Maindataenum::TInputFields aField) const noexcept {
    return fValues[static_cast<std::uint16_t>(aField)];
  }
  void SetValue(Maindataenum::TInputFields aField, double aValue) noexcept {
    fValues[static_cast<std::uint16_t>(aField)] = aValue;
  }
  /// Puts every field back to its starting value.
  void Reset() noexcept;

 private:
  std::array<double, 65536> fValues;
};

GEOMETRYENGINE_API extern TDataStore dataStore;

}  // namespace Kelvaralinks
