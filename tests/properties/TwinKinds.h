#pragma once

// The kinds of drawings and chains that TwinDrawings.h spoils and places.

#include <cmath>
#include <cstddef>
#include <span>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "tests/properties/RandomDrawings.h"

namespace GeometryEngine::properties {

constexpr double kTwinSize = 100;  // side of the square that most of these drawings fill

/// A whole number between the bounds, both counted in.
inline int Whole(Random& aRandom, int aLow, int aHigh) {
  return static_cast<int>(std::floor(aRandom.Between(aLow, aHigh + 1)));
}

template <typename TValue, std::size_t N>
TValue OneOf(Random& aRandom, const TValue (&aValues)[N]) {
  return aValues[static_cast<std::size_t>(Whole(aRandom, 0, static_cast<int>(N) - 1))];
}

TEntityCoordinate AnyPoint(Random& aRandom);
TEntityCoordinate OnCircle(const TEntityCoordinate& aCentre, double aRadius, double aAngle);
TDXFEntity Arc(const TEntityCoordinate& aCentre, double aRadius, double aStart, double aEnd);

std::span<const Kind> TwinKinds();
std::span<const Kind> TwinChains();

}  // namespace GeometryEngine::properties
