// Whole random drawings against an independent polygon computation: every region found, matched by its label point,
// with the net area and the parent that the polygons have.

#include <gtest/gtest.h>

#include <cstdint>
#include <map>

#include "tests/properties/RandomDrawings.h"
#include "tests/reference/PolygonFaces.h"
#include "tests/support/DetectedRegions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine::properties {
namespace {

using reference::PolygonFace;
using support::DetectedRegion;

constexpr double kChordError = 1e-4;  // of the polygons that stand for arcs
constexpr double kLeastArea = 1.0;    // regions below it may exist on one side only, where an arc all but touches

/// The label search stops at a precision of 1; in a region much thinner than that it may answer a point outside.
constexpr double kLeastThickness = 0.5;

bool IsThin(double aArea, double aPerimeter) {
  return 2 * aArea < kLeastThickness * aPerimeter;
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

class RandomDrawing : public testing::TestWithParam<std::tuple<Kind, std::uint32_t>> {};

TEST_P(RandomDrawing, HasTheNetAreasAndParentsOfThePolygons) {
  const support::TSettingsGuard settings;
  const auto& [kind, seed] = GetParam();
  Random random(seed);
  TEntityArray entities = kind.draw(random);
  Shuffle(entities, random);
  ExpectSameRegions(entities);
}

INSTANTIATE_TEST_SUITE_P(Drawings, RandomDrawing, testing::Combine(testing::ValuesIn(kKinds), testing::Range(1U, 101U)),
                         [](const auto& aInfo) {
                           return std::string(std::get<0>(aInfo.param).name) + "Seed" +
                                  std::to_string(std::get<1>(aInfo.param));
                         });

}  // namespace
}  // namespace GeometryEngine::properties
