#include "tests/everything/Scenarios.h"

#include <bit>
#include <charconv>
#include <cmath>

namespace everything {

namespace {

template <typename... TFormat>
void AppendNumber(std::string& aText, TFormat... aArguments) {
  char buffer[64];
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, aArguments...);
  aText.append(buffer, end);
  aText += '\n';
}

}  // namespace

void THash::AddByte(unsigned char aByte) {
  fHash = (fHash ^ aByte) * 1099511628211U;
}

void THash::Add(double aNumber) {
  Add(std::isnan(aNumber) ? std::int64_t{-1} : std::bit_cast<std::int64_t>(aNumber));
}

void THash::Add(std::int64_t aNumber) {
  const auto bits = static_cast<std::uint64_t>(aNumber);
  for (unsigned shift = 0; shift < 64; shift += 8) AddByte(static_cast<unsigned char>(bits >> shift & 0xFFU));
}

void THash::Add(std::string_view aText) {
  for (const char c : aText) AddByte(static_cast<unsigned char>(c));
  AddByte(0);
}

void TText::Add(double aNumber) {
  if (std::isnan(aNumber)) return Add(std::string_view("not a number"));
  AppendNumber(fText, aNumber, std::chars_format::hex);
}

void TText::Add(std::int64_t aNumber) {
  AppendNumber(fText, aNumber);
}

void TText::Add(std::string_view aText) {
  fText.append(aText).append("\n");
}

std::vector<TScenario> Scenarios() {
  std::vector<TScenario> all;
  for (const auto& list : {ChainScenarios(), DetectionScenarios(), RegionScenarios()}) {
    all.insert(all.end(), list.begin(), list.end());
  }
  return all;
}

void Run(const TScenario& aScenario, TFingerprint& aFingerprint) {
  const std::unique_ptr<TSubject> subject = aScenario.make();
  subject->Operate();
  subject->Observe(aFingerprint);
}

}  // namespace everything
