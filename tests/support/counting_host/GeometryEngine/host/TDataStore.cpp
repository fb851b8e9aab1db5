#include "GeometryEngine/host/TDataStore.h"

#include <charconv>
#include <limits>
#include <system_error>
#include <utility>

#include "GeometryEngine/host/StartingValues.h"

namespace Kelvaralinks {

namespace {

struct TAsNumber {
  double operator()(std::monostate) const { return 0; }
  double operator()(double aNumber) const { return aNumber; }
  double operator()(const std::string& aText) const {
    double number = 0;
    const char* const textEnd = aText.data() + aText.size();
    const auto [end, error] = std::from_chars(aText.data(), textEnd, number);
    return error == std::errc{} && end == textEnd ? number : std::numeric_limits<double>::quiet_NaN();
  }
};

}  // namespace

TStoreFailure::TStoreFailure() : std::runtime_error("the settings store can't be read") {}

TStoreFailure::~TStoreFailure() = default;

TDataStore::TDataStore() {
  Reset();
}

double TDataStore::GetValue(Maindataenum::TInputFields aField) const {
  ++fReads[aField];
  const auto left = fReadingsLeft.find(aField);
  if (left != fReadingsLeft.end()) {
    if (left->second == 0) throw TStoreFailure();
    --left->second;
  }
  const auto found = fValues.find(aField);
  return found == fValues.end() ? 0 : std::visit(TAsNumber{}, found->second);
}

void TDataStore::SetValue(Maindataenum::TInputFields aField, TValue aValue) {
  fValues[aField] = std::move(aValue);
}

void TDataStore::FailAfter(Maindataenum::TInputFields aField, std::size_t aReadings) {
  fReadingsLeft[aField] = aReadings;
}

void TDataStore::Reset() {
  fValues.clear();
  fReadingsLeft.clear();
  fReads.clear();
  for (const auto& [field, value] : kStartingValues) SetValue(field, value);
}

std::size_t TDataStore::Reads(Maindataenum::TInputFields aField) const {
  const auto found = fReads.find(aField);
  return found == fReads.end() ? 0 : found->second;
}

const std::map<Maindataenum::TInputFields, std::size_t>& TDataStore::AllReads() const {
  return fReads;
}

void TDataStore::ForgetReads() {
  fReads.clear();
}

TDataStore dataStore;

}  // namespace Kelvaralinks
