#pragma once

// Geometry as text, and matchers that compare it. operator== of coordinates and entities is the tolerance test, so
// tests never use EXPECT_EQ on them but
//
//   EXPECT_THAT(storage.EntityArray(), IsBits("L 0,0 4,0; A c 0,0 r 4 0..90"));
//   EXPECT_THAT(entity.StartCoords, IsNear(4, 0, 1e-12));
//
// A failure prints both sides in the text form, ready to be pasted into a test or a corpus file.
//
// The text form. Coordinates, parted by blanks: "0,0 4,0". Entities, parted by semicolons or line ends:
//
//   L 0,0 4,0                                a line from start to end
//   A c 0,0 r 4 0..90                        an arc; its ends follow from centre, radius and angles (degrees)
//   A c 0,0 r 4 0..90 from 4,0 to 0,4        an arc with ends of its own
//   N   R                                    an entity without geometry, a region marker
//
// Behind each may stand tags: `col 1 row 2 side 3 colour "red" name "Magnet 1"`. Numbers are printed so that reading
// them gives the same bits; "inf", "-inf", "nan" and "-0" are numbers too.

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

namespace GeometryEngine {

namespace support {

// Each of these throws std::invalid_argument on text that is not of the form.
TEntityArray ParseEntities(std::string_view aText);
TDXFEntity ParseEntity(std::string_view aText);
TCoordinateArray ParseCoordinates(std::string_view aText);

std::string ToText(double aNumber);
std::string ToText(const TEntityCoordinate& aCoordinate);
std::string ToText(const TDXFEntity& aEntity);
std::string ToText(const TCoordinateArray& aCoordinates);
std::string ToText(const TEntityArray& aEntities);

/// What a matcher compares: coordinates or entities, one or many. One stands for an array of one.
struct TGeometry {
  TCoordinateArray coordinates;
  TEntityArray entities;

  TGeometry(const TEntityCoordinate& aCoordinate) : coordinates{aCoordinate} {}
  TGeometry(const TDXFEntity& aEntity) : entities{aEntity} {}
  TGeometry(const TCoordinateArray& aCoordinates) : coordinates(aCoordinates) {}
  TGeometry(const TEntityArray& aEntities) : entities(aEntities) {}
  /// Text of either kind.
  TGeometry(std::string_view aText);
  TGeometry(const char* aText) : TGeometry(std::string_view(aText)) {}
  TGeometry(const std::string& aText) : TGeometry(std::string_view(aText)) {}
};

std::string ToText(const TGeometry& aGeometry);

class TGeometryMatcher {
 public:
  using is_gtest_matcher = void;

  /// Without `aEps` every bit has to agree.
  explicit TGeometryMatcher(TGeometry aExpected, std::optional<double> aEps = std::nullopt);
  bool MatchAndExplain(const TGeometry& aActual, std::ostream* aExplanation) const;
  void DescribeTo(std::ostream* aOut) const;
  void DescribeNegationTo(std::ostream* aOut) const;

 private:
  TGeometry fExpected;
  std::optional<double> fEps;
};

/// Same kind, same order, and the same bits in every field that the kind uses, tags included. All not-a-numbers are
/// alike; 0 and -0 are not.
TGeometryMatcher IsBits(TGeometry aExpected);
TGeometryMatcher IsBits(double aX, double aY);

/// Same kind, same order, and every number of the geometry (angles too, as plain numbers) within `aEps`, inclusive.
/// Equal infinities are near, a not-a-number is near nothing. Tags are not looked at.
TGeometryMatcher IsNear(TGeometry aExpected, double aEps);
TGeometryMatcher IsNear(double aX, double aY, double aEps);

}  // namespace support

void PrintTo(const TEntityCoordinate& aCoordinate, std::ostream* aOut);
void PrintTo(const TDXFEntity& aEntity, std::ostream* aOut);

}  // namespace GeometryEngine
