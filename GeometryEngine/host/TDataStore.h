#pragma once

// The host's settings. The library reads them afresh at every use and never writes one, so a host may change them
// between calls, though not during one.

#include <array>
#include <cstddef>
#include <cstdint>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TInputFields.h"

namespace Kelvaralinks {

/// The numbered settings store: one real number for each input field, whether the field has a name or not.
///
/// A new store holds the values of StartingValues.h, and 0 in every other field.
class GEOMETRYENGINE_API TDataStore {
 public:
  TDataStore();

  /// The value of an input field. COST: one plain load; it stands in the innermost loops.
  double GetValue(Maindataenum::TInputFields aField) const noexcept {
    return fValues[static_cast<std::uint16_t>(aField)];
  }
  void SetValue(Maindataenum::TInputFields aField, double aValue) noexcept {
    fValues[static_cast<std::uint16_t>(aField)] = aValue;
  }
  /// Puts every field back to its starting value.
  void Reset() noexcept;

 private:
  static constexpr std::size_t kFields = 65536;  // one for every value that TInputFields can have

  std::array<double, kFields> fValues;
};

/// The one store of the process.
GEOMETRYENGINE_API extern TDataStore dataStore;

}  // namespace Kelvaralinks
