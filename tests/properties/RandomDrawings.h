#pragma once

// Random drawings: the entities of many regions at once, in no order.

#include <cstdint>
#include <ostream>
#include <random>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::properties {

/// Numbers that are the same on every machine (the distributions of the standard library are not).
class Random {
 public:
  explicit Random(std::uint32_t aSeed) : fEngine(aSeed) {}
  double Between(double aLow, double aHigh) {
    return aLow + (aHigh - aLow) * (static_cast<double>(fEngine()) / 4294967296.0);
  }
  bool Chance(double aProbability) { return Between(0, 1) < aProbability; }

 private:
  std::mt19937 fEngine;
};

/// A kind of drawing. Drawings fill a square of side 1000, their arcs span at most half a circle.
struct Kind {
  const char* name;
  TEntityArray (*draw)(Random&);
};

void PrintTo(const Kind& aKind, std::ostream* aStream);

TEntityArray CrossingLines(Random& aRandom);
TEntityArray CrossingLinesAndArcs(Random& aRandom);

/// Loops within loops, some of them cut in two by a line, laid out on a grid so that only nesting relates them.
TEntityArray NestedLoops(Random& aRandom);

inline constexpr Kind kKinds[] = {
    {"Lines", CrossingLines}, {"LinesAndArcs", CrossingLinesAndArcs}, {"NestedLoops", NestedLoops}};

/// Puts the entities into another order.
void Shuffle(TEntityArray& aEntities, Random& aRandom);

}  // namespace GeometryEngine::properties
