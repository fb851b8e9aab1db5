// Pole searches of regions in which next to no point lies deep enough: these are given up early where nothing can be
// found.

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/Pole_Inaccessibility/PoleSearch.h"
#include "tests/reference/plain/TTreeNode_Geometry.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::ToText;
using enum Maindataenum::TInputFields;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kMinimumDistance = 0.001;
constexpr TEntityCoordinate kCentroid = {-77, 77};  // far outside, so that it is told from a point that was found

struct TSliver {
  TEntityArray fOutline;
  TEntityArray fInternal;
  TEntityArray fChild;
};

template <typename TStorage>
void Fill(TStorage& aStorage, const TEntityArray& aChain) {
  aStorage.AddEntities(aChain);
  aStorage.StartCoordinate(aStorage.GetStartCoordinate());
}

TEntityCoordinate Find(const TSliver& aSliver, double aMinimumDistance, double aPrecision = 1) {
  TEntityStorage outline;
  TEntityStorage internal;
  TEntityStorage child;
  Fill(outline, aSliver.fOutline);
  Fill(internal, aSliver.fInternal);
  Fill(child, aSliver.fChild);
  return FindPoleInaccessibility({&outline, &internal, {&child}, kCentroid, true}, aPrecision, aMinimumDistance);
}

TEntityCoordinate FindPlainly(const TSliver& aSliver, double aMinimumDistance, double aPrecision = 1) {
  Plain::TTreeNode_Geometry region(nullptr);
  Plain::TTreeNode_Geometry child(nullptr);
  Fill(region.fEntities, aSliver.fOutline);
  Fill(region.fEntities_Internal, aSliver.fInternal);
  Fill(child.fEntities, aSliver.fChild);
  region.fChildren = {&child};
  region.fCentroid = kCentroid;
  return Plain::FindPoleInaccessibility(region, true, aPrecision, aMinimumDistance);
}

// Chains of lines and arcs between three or four points, of sizes at which a minimum distance of 0.001 is found, just
// found, just not found and far from being found.
class TRandomSlivers {
 public:
  explicit TRandomSlivers(double aReach = 1000, double aScale = 1) : fReach(aReach), fScale(aScale) {}

  TSliver operator()() {
    const TEntityCoordinate centre{Between(-fReach, fReach), Between(-fReach, fReach)};
    const double size = std::pow(10, Between(-2.7, -0.8)) * fScale;
    TSliver sliver{Chain(centre, size), {}, {}};
    if (Between(0, 1) < 0.1) sliver.fInternal = Chain(centre, size / 3);
    if (Between(0, 1) < 0.1) sliver.fChild = Chain(centre, size / 3);
    return sliver;
  }

 private:
  double Between(double aLow, double aHigh) {
    return aLow + (aHigh - aLow) * static_cast<double>(fRandom()) / std::mt19937::max();
  }

  TEntityArray Chain(const TEntityCoordinate& aCentre, double aSize) {
    const int count = Between(0, 1) < 0.8 ? 3 : 4;
    const double flatness = std::pow(10, Between(-2, 0));
    const double turned = Between(0, 2 * M_PI);
    TCoordinateArray vertices;
    for (int k = 0; k < count; ++k) {
      const double angle = (k + Between(-0.3, 0.3)) * 2 * M_PI / count;
      const double x = aSize * std::cos(angle);
      const double y = aSize * std::sin(angle) * flatness;
      vertices.push_back({aCentre.x + x * std::cos(turned) - y * std::sin(turned),
                          aCentre.y + x * std::sin(turned) + y * std::cos(turned)});
    }
    TEntityArray chain;
    for (std::size_t k = 0; k < vertices.size(); ++k) {
      chain.push_back(Piece(Shaken(vertices[k]), Shaken(vertices[(k + 1) % vertices.size()])));
    }
    return chain;
  }

  // Mostly as it is, else within the tolerance of it, as ends are that a detection has joined.
  TEntityCoordinate Shaken(const TEntityCoordinate& aPoint) {
    const double reach = Between(0, 1) < 0.8 ? 0 : 2e-5 * fScale;
    return {aPoint.x + Between(-reach, reach), aPoint.y + Between(-reach, reach)};
  }

  TDXFEntity Piece(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd) {
    if (Between(0, 1) < 0.4) return TDXFEntity::Line(aStart, aEnd);
    const double chord = std::hypot(aEnd.x - aStart.x, aEnd.y - aStart.y);
    const double radius = chord * std::pow(10, Between(-0.25, 2));
    return CreateEntity_Arc_StartEnd_Radius(aStart, aEnd, Between(0, 1) < 0.5 ? radius : -radius);
  }

  double fReach;
  double fScale;
  std::mt19937 fRandom{20};
};

TEntityArray Polygon(const std::string& aVertices) {
  return support::MakeChain(support::PolygonText(aVertices))->EntityArray();
}

double GetInradius(const TEntityArray& aTriangle) {
  double perimeter = 0;
  double doubleArea = 0;  // about a point near by
  for (const TDXFEntity& side : aTriangle) {
    perimeter += side.EntityLength();
    const TEntityCoordinate start = side.StartCoords - aTriangle[0].StartCoords;
    const TEntityCoordinate end = side.EndCoords - aTriangle[0].StartCoords;
    doubleArea += start.x * end.y - end.x * start.y;
  }
  return doubleArea / perimeter;
}

}  // namespace

TEST(FindPole_Slivers, AreThePlainSearchsToTheBit) {
  const support::TSettingsGuard settings;
  TRandomSlivers random;
  int found = 0;
  constexpr int kRounds = 600;
  for (int round = 0; round < kRounds; ++round) {
    const TSliver sliver = random();
    const TEntityCoordinate expected = FindPlainly(sliver, kMinimumDistance);
    ASSERT_THAT(Find(sliver, kMinimumDistance), IsBits(expected)) << ToText(sliver.fOutline);
    if (expected != kCentroid) ++found;
  }
  EXPECT_GT(found, kRounds / 5);
  EXPECT_LT(found, kRounds * 4 / 5);
}

TEST(FindPole_Slivers, AreThePlainSearchsWhateverTheTolerance) {
  support::TSettingsGuard settings;
  for (const double tolerance : {0.0, -1.0, 1e-12, 0.002, kInfinity, kNotANumber}) {
    settings.With(ifLinearTolerance, tolerance);
    TRandomSlivers random;
    for (int round = 0; round < 12; ++round) {
      const TSliver sliver = random();
      ASSERT_THAT(Find(sliver, kMinimumDistance), IsBits(FindPlainly(sliver, kMinimumDistance)))
          << "tolerance " << tolerance << ": " << ToText(sliver.fOutline);
    }
  }
}

TEST(FindPole_Slivers, AreThePlainSearchsWhateverIsAskedFor) {
  const support::TSettingsGuard settings;
  TRandomSlivers random;
  for (int round = 0; round < 10; ++round) {
    const TSliver sliver = random();
    for (const double minimumDistance : {kInfinity, -kInfinity, kNotANumber, 0.0, -0.001, 1e-7, 0.003, 0.1, 1e9}) {
      for (const double precision : {-1.0, kNotANumber, 0.0}) {
        ASSERT_THAT(Find(sliver, minimumDistance, precision), IsBits(FindPlainly(sliver, minimumDistance, precision)))
            << minimumDistance << ", precision " << precision << ": " << ToText(sliver.fOutline);
      }
    }
  }
}

TEST(FindPole_Slivers, AreFoundJustBelowTheirInradiusAndNotJustAboveIt) {
  const support::TSettingsGuard settings;
  for (const char* vertices : {"3,4 3.012,4.001 3.003,4.008", "-9000,5000 -8999.988,5000.001 -8999.997,5000.008"}) {
    const TSliver triangle{Polygon(vertices), {}, {}};
    const double inradius = GetInradius(triangle.fOutline);
    ASSERT_GT(inradius, 0.002);
    for (const double margin : {1e-5, 1e-8, 2e-9, 1e-9, 5e-10, 2e-10, 1e-10}) {
      const double below = inradius - margin;
      EXPECT_NE(Find(triangle, below), kCentroid) << vertices << " at " << margin;
      EXPECT_THAT(Find(triangle, below), IsBits(FindPlainly(triangle, below)));
      EXPECT_THAT(Find(triangle, inradius + margin), IsBits(kCentroid));
    }
  }
}

// Squares of such lengths overflow, and distances are no numbers or infinite.
TEST(FindPole_Slivers, AreThePlainSearchsWhereSquaresOverflow) {
  support::TSettingsGuard settings;
  for (const double scale : {1e154, 1e156}) {
    settings.With(ifLinearTolerance, scale * 1e-4);
    TRandomSlivers random(0.1 * scale, scale);
    for (int round = 0; round < 150; ++round) {
      const TSliver sliver = random();
      ASSERT_THAT(Find(sliver, 0.003 * scale), IsBits(FindPlainly(sliver, 0.003 * scale))) << ToText(sliver.fOutline);
    }
  }
}

}  // namespace GeometryEngine
