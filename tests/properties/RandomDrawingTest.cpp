// Whole random drawings against an independent polygon computation: every region found, matched by its label point,
// with the net area and the parent that the polygons have.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <random>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "tests/reference/PolygonFaces.h"
#include "tests/support/DetectedRegions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using reference::PolygonFace;
using support::DetectedRegion;

constexpr double kSize = 1000;        // side of the square that a drawing fills
constexpr double kChordError = 1e-4;  // of the polygons that stand for arcs
constexpr double kLeastArea = 1.0;    // regions below it may exist on one side only, where an arc all but touches

/// The label search stops at a precision of 1; in a region much thinner than that it may answer a point outside.
constexpr double kLeastThickness = 0.5;

bool IsThin(double aArea, double aPerimeter) {
  return 2 * aArea < kLeastThickness * aPerimeter;
}

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

TDXFEntity RandomLine(Random& aRandom, double aLength) {
  const double x = aRandom.Between(0, kSize);
  const double y = aRandom.Between(0, kSize);
  const double angle = aRandom.Between(0, 2 * M_PI);
  return CreateEntity_Line(x, y, x + aLength * std::cos(angle), y + aLength * std::sin(angle));
}

TDXFEntity RandomArc(Random& aRandom, double aRadius) {
  const double start = aRandom.Between(0, 360);
  return CreateEntity_Arc(aRandom.Between(0, kSize), aRandom.Between(0, kSize), aRadius * aRandom.Between(0.3, 1),
                          start, start + aRandom.Between(30, 180));
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

/// Loops within loops, some of them cut in two by a line, laid out on a grid so that only nesting relates them.
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

/// Region of the library -> face of the polygons, by label point; a label outside every face is a failure of its own.
std::map<std::size_t, std::size_t> MatchByLabel(const std::vector<DetectedRegion>& aRegions,
                                                const std::vector<PolygonFace>& aFaces) {
  std::map<std::size_t, std::size_t> faceOf;
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    if (aRegions[i].netArea < kLeastArea) continue;
    const auto face = reference::FaceAt(aFaces, aRegions[i].label);
    if (!face && IsThin(aRegions[i].baseArea, aRegions[i].perimeter)) continue;
    EXPECT_TRUE(face.has_value()) << "region " << i << " of area " << aRegions[i].netArea << ": label ("
                                  << aRegions[i].label.x << ", " << aRegions[i].label.y << ") lies in no face";
    if (face) faceOf[i] = *face;
  }
  return faceOf;
}

void ExpectSameRegions(const TEntityArray& aEntities) {
  const std::vector<DetectedRegion> regions = support::DetectRegions(aEntities);
  const std::vector<PolygonFace> faces = reference::PolygonFaces(aEntities, kChordError);
  const auto faceOf = MatchByLabel(regions, faces);

  std::vector<int> found(faces.size(), 0);
  for (const auto& [region, face] : faceOf) {
    ++found[face];
    EXPECT_NEAR(regions[region].netArea, faces[face].netArea, faces[face].perimeter * kChordError + 1e-6)
        << "region " << region << " at (" << regions[region].label.x << ", " << regions[region].label.y << ")";
    const auto parent = regions[region].parent;
    const auto parentFace = parent && faceOf.contains(*parent) ? std::optional(faceOf.at(*parent)) : std::nullopt;
    EXPECT_EQ(parentFace, faces[face].parent) << "parent of region " << region;
  }
  for (std::size_t face = 0; face < faces.size(); ++face) {
    if (faces[face].netArea < kLeastArea || IsThin(faces[face].netArea, faces[face].perimeter)) continue;
    EXPECT_EQ(found[face], 1) << "face of area " << faces[face].netArea;
  }
}

struct Kind {
  const char* name;
  TEntityArray (*draw)(Random&);
};

void PrintTo(const Kind& aKind, std::ostream* aStream) {
  *aStream << aKind.name;
}

class RandomDrawing : public testing::TestWithParam<std::tuple<Kind, std::uint32_t>> {};

TEST_P(RandomDrawing, HasTheNetAreasAndParentsOfThePolygons) {
  const support::TSettingsGuard settings;
  const auto& [kind, seed] = GetParam();
  Random random(seed);
  TEntityArray entities = kind.draw(random);
  Shuffle(entities, random);
  ExpectSameRegions(entities);
}

INSTANTIATE_TEST_SUITE_P(Drawings, RandomDrawing,
                         testing::Combine(testing::Values(Kind{"Lines", CrossingLines},
                                                          Kind{"LinesAndArcs", CrossingLinesAndArcs},
                                                          Kind{"NestedLoops", NestedLoops}),
                                          testing::Range(1U, 101U)),
                         [](const auto& aInfo) {
                           return std::string(std::get<0>(aInfo.param).name) + "Seed" +
                                  std::to_string(std::get<1>(aInfo.param));
                         });

}  // namespace
}  // namespace GeometryEngine
