#include "tests/properties/TwinRecord.h"

#include <algorithm>

#include "tests/support/Geometry.h"

namespace GeometryEngine::properties {

void TwinRecord::Add(const char* aName, std::string_view aText) {
  Add(aName, aText.size());
  for (const char letter : aText) Add(aName, static_cast<unsigned char>(letter));
}

void TwinRecord::Add(const char* aName, const TEntityCoordinate& aPoint) {
  Add(aName, aPoint.x);
  Add(aName, aPoint.y);
}

void TwinRecord::Add(const char* aName, const TDXFEntity& aEntity) {
  Add(aName, static_cast<int>(aEntity.EntityType));
  Add(aName, aEntity.StartCoords);
  Add(aName, aEntity.EndCoords);
  Add(aName, aEntity.CentreCoords);
  for (const double number : {aEntity.radius, aEntity.startAngle, aEntity.endAngle}) Add(aName, number);
  Add(aName, aEntity.ConductorCol);
  Add(aName, aEntity.ConductorRow);
  Add(aName, static_cast<int>(aEntity.SlotSide));
  Add(aName, std::string_view(aEntity.Colour));
  Add(aName, std::string_view(aEntity.RegionName));
  Add(aName, std::bit_cast<std::uintptr_t>(aEntity.SourceDXF));
}

std::string TwinRecord::Place(std::size_t aAnswer) const {
  if (aAnswer >= fAnswers.size()) return "the end";
  const auto beyond =
      std::ranges::find_if(fSections, [&](const TSection& section) { return section.fFirst > aAnswer; });
  std::string place = fAnswers[aAnswer].fName;
  if (beyond == fSections.begin()) return place;
  const TSection& section = *(beyond - 1);
  const std::string index = section.fIndex == kNotFound ? "" : " " + std::to_string(section.fIndex);
  return section.fName + index + ": " + place + " (answer " + std::to_string(aAnswer - section.fFirst) + " of it)";
}

std::string TwinRecord::Value(std::size_t aAnswer) const {
  if (aAnswer >= fAnswers.size()) return "nothing";
  const auto& [name, bits, isReal] = fAnswers[aAnswer];
  return isReal ? support::ToText(std::bit_cast<double>(bits)) : std::to_string(static_cast<std::int64_t>(bits));
}

std::string TwinRecord::FirstDifference(const TwinRecord& aOther) const {
  const auto [here, there] = std::ranges::mismatch(fAnswers, aOther.fAnswers, {}, &TAnswer::fBits, &TAnswer::fBits);
  if (here == fAnswers.end() && there == aOther.fAnswers.end()) return {};
  const auto answer = static_cast<std::size_t>(here - fAnswers.begin());
  return Place(answer) + " is " + Value(answer) + ", against " + aOther.Place(answer) + " is " + aOther.Value(answer);
}

}  // namespace GeometryEngine::properties
