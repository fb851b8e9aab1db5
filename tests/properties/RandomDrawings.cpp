#include "tests/properties/RandomDrawings.h"

#include <cmath>
#include <utility>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"

namespace GeometryEngine::properties {

namespace {

constexpr double kSize = 1000;  // side of the square that a drawing fills

TDXFEntity RandomLine(Random& aRandom, double aLength) {
  const double x = aRandom.Between(0, kSize);
  const double y = aRandom.Between(0, kSize);
  const double angle = aRandom.Between(0, 2 * M_PI);
  return CreateEntity_Line(x, y, x + aLength * std::cos(angle), y + aLength * std::sin(angle));
}

TDXFEntity RandomArc(Random& aRandom, double aRadius) {
  // One after the other: compilers differ in which argument of a call they compute first.
  const double start = aRandom.Between(0, 360);
  const double sweep = aRandom.Between(30, 180);
  const double radius = aRadius * aRandom.Between(0.3, 1);
  const double y = aRandom.Between(0, kSize);
  const double x = aRandom.Between(0, kSize);
  return CreateEntity_Arc(x, y, radius, start, start + sweep);
}

/// A corner of a regular polygon; the same bits whenever it is asked for, so that loops close for the polygons too.
TEntityCoordinate Corner(const TEntityCoordinate& aCentre, double aRadius, double aTurn, int aCorner, int aSides) {
  const double angle = (aTurn + 360.0 * (aCorner % aSides) / aSides) * M_PI / 180;
  return {aCentre.x + aRadius * std::cos(angle), aCentre.y + aRadius * std::sin(angle)};
}

void AddCircle(TEntityArray& aEntities, const TEntityCoordinate& aCentre, double aRadius, double aTurn) {
  const TEntityCoordinate a = Corner(aCentre, aRadius, aTurn, 0, 2);
  const TEntityCoordinate b = Corner(aCentre, aRadius, aTurn, 1, 2);
  aEntities.push_back(CreateEntity_Arc_StartEnd(aCentre.x, aCentre.y, a.x, a.y, b.x, b.y));
  aEntities.push_back(CreateEntity_Arc_StartEnd(aCentre.x, aCentre.y, b.x, b.y, a.x, a.y));
}

void AddPolygon(TEntityArray& aEntities, const TEntityCoordinate& aCentre, double aRadius, double aTurn, int aSides) {
  for (int i = 0; i < aSides; ++i) {
    aEntities.push_back(
        CreateEntity_Line(Corner(aCentre, aRadius, aTurn, i, aSides), Corner(aCentre, aRadius, aTurn, i + 1, aSides)));
  }
}

void AddSquareInTwoHalves(TEntityArray& aEntities, const TEntityCoordinate& aCentre, double aRadius, double aTurn) {
  AddPolygon(aEntities, aCentre, aRadius, aTurn, 4);
  aEntities.push_back(CreateEntity_Line(Corner(aCentre, aRadius, aTurn, 0, 4), Corner(aCentre, aRadius, aTurn, 2, 4)));
}

}  // namespace

void PrintTo(const Kind& aKind, std::ostream* aStream) {
  *aStream << aKind.name;
}

TEntityArray CrossingLines(Random& aRandom) {
  TEntityArray entities;
  for (int i = 0; i < 40; ++i) entities.push_back(RandomLine(aRandom, aRandom.Between(300, 900)));
  return entities;
}

TEntityArray CrossingLinesAndArcs(Random& aRandom) {
  TEntityArray entities;
  for (int i = 0; i < 40; ++i) {
    entities.push_back(aRandom.Chance(0.5) ? RandomLine(aRandom, aRandom.Between(200, 700)) : RandomArc(aRandom, 250));
  }
  return entities;
}

TEntityArray NestedLoops(Random& aRandom) {
  TEntityArray entities;
  for (int cell = 0; cell < 9; ++cell) {
    const TEntityCoordinate centre{kSize * (0.5 + cell % 3) / 3 + aRandom.Between(-5, 5),
                                   kSize * (0.5 + cell / 3) / 3 + aRandom.Between(-5, 5)};
    double radius = kSize / 6.5;
    while (radius > 12) {
      const double turn = aRandom.Between(0, 360);
      if (aRandom.Chance(0.5)) {
        AddCircle(entities, centre, radius, turn);
      } else {
        AddPolygon(entities, centre, radius, turn, 3 + static_cast<int>(aRandom.Between(0, 5)));
        radius *= 0.5;
      }
      if (aRandom.Chance(0.3)) {
        AddSquareInTwoHalves(entities, centre, radius * 0.8, turn);
        radius = 0;
      }
      radius *= aRandom.Between(0.5, 0.9);
    }
  }
  return entities;
}

void Shuffle(TEntityArray& aEntities, Random& aRandom) {
  for (std::size_t i = aEntities.size(); i > 1; --i) {
    std::swap(aEntities[i - 1], aEntities[static_cast<std::size_t>(aRandom.Between(0, static_cast<double>(i)))]);
  }
}

}  // namespace GeometryEngine::properties
