#pragma once

// The settings store of a host that isn't the library's own: values are held as a real host holds them (numbers, text,
// or nothing), readings are counted, and reading can fail. The other headers of the host package are the library's.

#include <cstddef>
#include <map>
#include <stdexcept>
#include <string>
#include <variant>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TInputFields.h"

namespace Kelvaralinks {

/// What reading a failing field throws.
class GEOMETRYENGINE_API TStoreFailure : public std::runtime_error {
 public:
  TStoreFailure();
  ~TStoreFailure() override;
};

class GEOMETRYENGINE_API TDataStore {
 public:
  using TValue = std::variant<std::monostate, double, std::string>;

  TDataStore();

  /// The value as a number: text is read whatever the locale is, text that is no number gives not-a-number, and nothing
  /// gives 0. Counts the reading, also one that throws.
  double GetValue(Maindataenum::TInputFields aField) const;
  void SetValue(Maindataenum::TInputFields aField, TValue aValue);
  /// Readings of the field throw once it has been read `aReadings` more times.
  void FailAfter(Maindataenum::TInputFields aField, std::size_t aReadings);
  /// Starting values, no failing field, no readings counted.
  void Reset();

  std::size_t Reads(Maindataenum::TInputFields aField) const;
  /// Every field that was read, with the number of its readings.
  const std::map<Maindataenum::TInputFields, std::size_t>& AllReads() const;
  void ForgetReads();

 private:
  std::map<Maindataenum::TInputFields, TValue> fValues;
  mutable std::map<Maindataenum::TInputFields, std::size_t> fReadingsLeft;
  mutable std::map<Maindataenum::TInputFields, std::size_t> fReads;
};

GEOMETRYENGINE_API extern TDataStore dataStore;

}  // namespace Kelvaralinks
