// Arcs whose radii are all powers of ten that there are, from denormals to near infinity, and whose sweeps go from
// nothing to nearly a full turn: what is computed of them ends, and is what the plain twin finds where that ends too.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_EntityStorage/detail/SurfaceSegments.h"
#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"
#include "GeometryEngine/host/Numerics.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/support/Repetitions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine::properties {
namespace {

constexpr int kLeastExponent = -320;
constexpr int kGreatestExponent = 308;
constexpr double kSweeps[] = {0, 1e-12, 1, 180, 359.999};  // degrees
constexpr std::int32_t kMostChords = 1'000'000;

/// Calls `aVisit(arc, exponent)` for each radius and sweep.
template <typename TVisit>
void ForEachArc(const TVisit& aVisit) {
  for (int exponent = kLeastExponent; exponent <= kGreatestExponent; ++exponent) {
    const double radius = std::strtod(("1e" + std::to_string(exponent)).c_str(), nullptr);
    for (const double sweep : kSweeps) {
      SCOPED_TRACE(testing::Message() << "radius " << radius << ", sweep " << sweep);
      const auto at = [&](double angle) {
        return TEntityCoordinate{radius * std::cos(angle * kRadiansPerDegree),
                                 radius * std::sin(angle * kRadiansPerDegree)};
      };
      aVisit(TDXFEntity::Arc(at(-90), at(sweep - 90), {}, radius, -90, sweep - 90), exponent);
    }
  }
}

bool AreSameBits(double aLeft, double aRight) {
  return std::bit_cast<std::uint64_t>(aLeft) == std::bit_cast<std::uint64_t>(aRight) ||
         (std::isnan(aLeft) && std::isnan(aRight));
}

bool AreSameBits(const TEntityCoordinate& aLeft, const TEntityCoordinate& aRight) {
  return AreSameBits(aLeft.x, aRight.x) && AreSameBits(aLeft.y, aRight.y);
}

TEntityCoordinate ToDouble(const TVector_Single& aVector) {
  return {static_cast<double>(aVector.x), static_cast<double>(aVector.y)};
}

/// Points at many heights: level with the centre and with the ends, at the top of the circle and above.
TCoordinateArray PointsAbout(const TDXFEntity& aArc) {
  TCoordinateArray points = {aArc.CentreCoords, aArc.StartCoords, aArc.EndCoords};
  for (const double height : {-1.0, -0.999999, -0.3, 0.1, 0.7, 0.999999, 1.0, 1.1}) {
    points.push_back({-0.5 * aArc.radius, height * aArc.radius});
    points.push_back({0.99 * aArc.radius, height * aArc.radius});
  }
  return points;
}

}  // namespace

TEST(ArcsOfEveryRadius, HaveTheWindingNumbersOfThePlainTwin) {
  const support::TSettingsGuard settings;
  const int longest = support::Repetitions(1) > 1 ? 9 : 5;  // exponent up to which the twin goes through all chords
  int counted = 0;
  ForEachArc([&](const TDXFEntity& aArc, int aExponent) {
    const bool twinEnds = aExponent <= longest || aExponent > 14;
    for (const auto& [from, to] : {std::pair{aArc.StartCoords, aArc.EndCoords}, {aArc.EndCoords, aArc.StartCoords}}) {
      for (const TEntityCoordinate& point : PointsAbout(aArc)) {
        const std::int32_t winding = GetWindingNumber_Entity_Addition(aArc, from, to, point);
        if (twinEnds) {
          ASSERT_EQ(winding, Plain::GetWindingNumber_Entity_Addition(aArc, from, to, point))
              << point.x << ' ' << point.y;
        }
        counted += std::abs(winding);
        ASSERT_LE(std::abs(winding), 2);
      }
    }
  });
  EXPECT_GT(counted, 5000);
}

TEST(ArcsOfEveryRadius, AreListedInAMillionChordsAtMost) {
  const support::TSettingsGuard settings;
  ForEachArc([](const TDXFEntity& aArc, int) {
    const std::int32_t chords = detail::GetSurfaceSegments(aArc).aCount;
    ASSERT_GE(chords, 3);
    ASSERT_LE(chords, kMostChords);
    if (chords > support::Repetitions(10'000)) return;
    TEntityStorage chain;
    chain.AddEntity(aArc);
    ASSERT_EQ(chain.GetVertices_Surf(false).size(), static_cast<std::size_t>(chords));
  });
}

TEST(ArcsOfEveryRadius, HaveTheTermsOfThePlainTwin) {
  const support::TSettingsGuard settings;
  ForEachArc([](const TDXFEntity& aArc, int) {
    for (const auto& [from, to] : {std::pair{aArc.StartCoords, aArc.EndCoords}, {aArc.EndCoords, aArc.StartCoords}}) {
      for (const std::int32_t mode : {0, 1}) {
        ASSERT_TRUE(AreSameBits(ToDouble(GetEntityVector(from, to, aArc, mode)),
                                ToDouble(Plain::GetEntityVector(from, to, aArc, mode))))
            << mode;
      }
      ASSERT_TRUE(AreSameBits(GetSignedArea_Entity(from, to, aArc), Plain::GetSignedArea_Entity(from, to, aArc)));
      ASSERT_TRUE(
          AreSameBits(GetCentroidComponent_Entity(from, to, aArc), Plain::GetCentroidComponent_Entity(from, to, aArc)));
    }
  });
}

}  // namespace GeometryEngine::properties
