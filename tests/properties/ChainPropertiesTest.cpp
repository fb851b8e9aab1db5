// What the measures and transforms of a closed chain promise, for random chains, each from every start vertex and in
// both directions.

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "tests/properties/ExactSettings.h"
#include "tests/properties/RandomChains.h"
#include "tests/support/DetectedRegions.h"

namespace GeometryEngine::properties {
namespace {

constexpr double kSize = 30;               // of the random chains
constexpr double kEps = 1e-9;              // rounding, in lengths
constexpr double kAreaEps = kEps * kSize;  // rounding, in areas
constexpr double kFromBoundary = 0.02;     // beyond the chords of the library's arcs

class Chain {
 public:
  explicit Chain(const TEntityArray& aEntities) {
    fStorage.AddEntities(aEntities);
    fStorage.StartCoordinate(fStorage.GetStartCoordinate());
  }
  TEntityStorage* operator->() { return &fStorage; }
  TEntityStorage& operator*() { return fStorage; }

 private:
  TEntityStorage fStorage;
};

/// Calls the check with the chain from each of its vertices, in both directions.
template <typename TCheck>
void ForEveryStartAndDirection(const TEntityArray& aChain, const TCheck& aCheck) {
  for (const bool anticlockwise : {true, false}) {
    const TEntityArray walked = anticlockwise ? aChain : Reversed(aChain);
    for (const TEntityCoordinate& start : Vertices(walked)) {
      Chain chain(walked);
      chain->ReOrderEntities(start);
      chain->StartCoordinate(chain->GetStartCoordinate());
      aCheck(*chain, anticlockwise);
    }
  }
}

void AssertNear(double aLeft, double aRight, double aEps) {
  if (!(std::abs(aLeft - aRight) <= aEps)) RC_LOG() << aLeft << " against " << aRight << std::endl;
  RC_ASSERT(std::abs(aLeft - aRight) <= aEps);
}

void AssertNear(const TEntityCoordinate& aLeft, const TEntityCoordinate& aRight, double aEps) {
  AssertNear(aLeft.x, aRight.x, aEps);
  AssertNear(aLeft.y, aRight.y, aEps);
}

void AssertNear(const TEntityArray& aLeft, const TEntityArray& aRight, double aEps) {
  RC_ASSERT(aLeft.size() == aRight.size());
  for (std::size_t i = 0; i < aLeft.size(); ++i) {
    RC_ASSERT(aLeft[i].EntityType == aRight[i].EntityType);
    AssertNear(aLeft[i].StartCoords, aRight[i].StartCoords, aEps);
    AssertNear(aLeft[i].EndCoords, aRight[i].EndCoords, aEps);
    AssertNear(aLeft[i].CentreCoords, aRight[i].CentreCoords, aEps * 100);
    AssertNear(aLeft[i].radius, aRight[i].radius, aEps * 100);
  }
}

/// Crossings of a ray to the right with a finely chorded outline.
bool IsInside(const TCoordinateArray& aOutline, const TEntityCoordinate& aPoint) {
  bool inside = false;
  for (std::size_t i = 0; i < aOutline.size(); ++i) {
    const TEntityCoordinate& a = aOutline[i];
    const TEntityCoordinate& b = aOutline[(i + 1) % aOutline.size()];
    if ((a.y > aPoint.y) == (b.y > aPoint.y)) continue;
    if (aPoint.x < a.x + (b.x - a.x) * (aPoint.y - a.y) / (b.y - a.y)) inside = !inside;
  }
  return inside;
}

double DistanceToOutline(const TCoordinateArray& aOutline, const TEntityCoordinate& aPoint) {
  double least = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < aOutline.size(); ++i) {
    const TEntityCoordinate& a = aOutline[i];
    const TEntityCoordinate& b = aOutline[(i + 1) % aOutline.size()];
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    const double along = ((aPoint.x - a.x) * (b.x - a.x) + (aPoint.y - a.y) * (b.y - a.y)) / (length * length);
    const double t = std::min(1.0, std::max(0.0, along));
    least = std::min(least, std::hypot(aPoint.x - a.x - t * (b.x - a.x), aPoint.y - a.y - t * (b.y - a.y)));
  }
  return least;
}

/// The squared sine of half the corner that a vertex makes with its neighbours.
double SquaredSineOfHalfCorner(const TCoordinateArray& aVertices, std::size_t aIndex) {
  const std::size_t n = aVertices.size();
  const TEntityCoordinate back = aVertices[(aIndex + n - 1) % n] - aVertices[aIndex];
  const TEntityCoordinate ahead = aVertices[(aIndex + 1) % n] - aVertices[aIndex];
  const double cosine =
      (back.x * ahead.x + back.y * ahead.y) / (std::hypot(back.x, back.y) * std::hypot(ahead.x, ahead.y));
  return (1 - cosine) / 2;
}

RC_GTEST_PROP(ClosedChain, AreaNegatesUnderReversalAndKeepsUnderReordering, ()) {
  const ExactSettings settings;
  const TEntityArray entities = *StarChain();
  const double area = Chain(entities)->GetClosedArea();
  RC_ASSERT(area > 0);
  ForEveryStartAndDirection(entities, [&](TEntityStorage& aChain, bool aAnticlockwise) {
    AssertNear(aChain.GetClosedArea(), aAnticlockwise ? area : -area, kAreaEps);
  });
}

RC_GTEST_PROP(ClosedChain, TranslationKeepsTheAreaAndMovesTheCentroid, ()) {
  const ExactSettings settings;
  const TEntityArray entities = *StarChain();
  const double dx = *Between(-50, 50);
  const double dy = *Between(-50, 50);
  ForEveryStartAndDirection(entities, [&](TEntityStorage& aChain, bool) {
    const double area = aChain.GetClosedArea();
    const TEntityCoordinate centroid = aChain.GetCentroid();
    aChain.Translate(dx, dy);
    AssertNear(aChain.GetClosedArea(), area, 10 * kAreaEps);
    // The centroid sum takes arcs as chords, the divisor has their exact area: what the chords leave out draws the
    // centroid towards the origin.
    AssertNear(aChain.GetCentroid(), centroid + TEntityCoordinate{dx, dy}, 1e-3);
  });
}

RC_GTEST_PROP(ClosedChain, TranslationMovesTheCentroidOfLinesExactly, ()) {
  const ExactSettings settings;
  TEntityArray entities;
  const TCoordinateArray vertices = Vertices(*StarChain());
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    entities.push_back(CreateEntity_Line(vertices[i], vertices[(i + 1) % vertices.size()]));
  }
  const TEntityCoordinate by{*Between(-50, 50), *Between(-50, 50)};
  ForEveryStartAndDirection(entities, [&](TEntityStorage& aChain, bool) {
    const TEntityCoordinate centroid = aChain.GetCentroid();
    aChain.Translate(by.x, by.y);
    AssertNear(aChain.GetCentroid(), centroid + by, 1e-7);
  });
}

RC_GTEST_PROP(ClosedChain, RotationKeepsTheAreaAndTurnsTheCentroid, ()) {
  const ExactSettings settings;
  const TEntityArray entities = *StarChain();
  const TRotationMatrix matrix = GetRotationMatrix(*Between(-360, 360));
  ForEveryStartAndDirection(entities, [&](TEntityStorage& aChain, bool) {
    const double area = aChain.GetClosedArea();
    const TEntityCoordinate centroid = aChain.GetCentroid();
    aChain.RotateEntities(matrix);
    AssertNear(aChain.GetClosedArea(), area, 10 * kAreaEps);
    AssertNear(aChain.GetCentroid(), RotateByAngle_Matrix(matrix, centroid), 1e-7);
  });
}

RC_GTEST_PROP(ClosedChain, MirroringTwiceRestores, ()) {
  const ExactSettings settings;
  const TEntityArray entities = *StarChain();
  const TDXFEntity mirror = CreateEntity_Line(*Between(-50, 0), *Between(-50, 50), *Between(1, 50), *Between(-50, 50));
  ForEveryStartAndDirection(entities, [&](TEntityStorage& aChain, bool) {
    const TEntityArray before = aChain.EntityArray();
    const double area = aChain.GetClosedArea();
    aChain.Mirror(mirror);
    AssertNear(aChain.GetClosedArea(), area, 1e-6);
    aChain.Mirror(mirror);
    AssertNear(aChain.EntityArray(), before, 1e-7);
  });
}

RC_GTEST_PROP(ClosedChain, InsideTestAgreesWithCrossingsAndIsOneSided, ()) {
  const ExactSettings settings;
  const TEntityArray entities = *StarChain();
  const TCoordinateArray outline = Polyline(entities, 200);
  TCoordinateArray points{{0, 0}};
  for (int i = 0; i < 20; ++i) points.push_back({*Between(-35, 35), *Between(-35, 35)});
  ForEveryStartAndDirection(entities, [&](TEntityStorage& aChain, bool aAnticlockwise) {
    for (const TEntityCoordinate& point : points) {
      if (DistanceToOutline(outline, point) < kFromBoundary) continue;
      RC_ASSERT(aChain.PointInsideEntities(point, true) == (aAnticlockwise && IsInside(outline, point)));
    }
  });
}

RC_GTEST_PROP(ClosedChain, CopiesAboutTheAxisAreDetectedWithTheirAreas, ()) {
  const ExactSettings settings;
  const int copies = *rc::gen::inRange(2, 7);
  Chain chain(*StarChain());
  const double area = chain->GetClosedArea();
  chain->Translate(150, *Between(-5, 5));
  chain->DuplicateAroundAxis(copies, copies, 360.0 / copies, false);
  const auto regions = support::DetectRegions(chain->EntityArray());
  RC_ASSERT(regions.size() == static_cast<std::size_t>(copies));
  double sum = 0;
  for (const auto& region : regions) sum += region.netArea;
  AssertNear(sum, copies * area, copies * area * 1e-6);
}

struct Sector {
  int full = *rc::gen::inRange(2, 13);          // sectors in a whole ring
  int copies = *rc::gen::inRange(1, full + 1);  // of them
  double inner = *Between(5, 50);
  double outer = inner + *Between(1, 50);
  double start = 0;  // seams are known by their angles, from 0 on
  double angle = 360.0 / full;
  double area = std::numbers::pi * (outer * outer - inner * inner) / full;

  TEntityCoordinate At(double aRadius, double aAngle) const { return RotateByAngle(aAngle, aRadius, 0); }
  TEntityArray Entities() const {
    const double end = start + angle;
    return {CreateEntity_Line(At(inner, start), At(outer, start)), CreateEntity_Arc(0, 0, outer, start, end),
            CreateEntity_Line(At(outer, end), At(inner, end)), CreateEntity_Arc(0, 0, inner, start, end)};
  }
  bool IsRing() const { return copies == full; }
};

/// The areas of the regions detected in copies of a sector about the axis, nested ones taken off, in ascending order.
/// In a whole ring the hole in the middle is a region like any other.
std::vector<double> AreasOfCopies(const Sector& aSector, bool aSingular) {
  Chain chain(aSector.Entities());
  chain->DuplicateAroundAxis(aSector.copies, aSector.full, aSector.angle, aSingular);
  std::vector<double> areas;
  for (const auto& region : support::DetectRegions(chain->EntityArray())) areas.push_back(region.netArea);
  std::ranges::sort(areas);
  return areas;
}

/// The hole of a whole ring, taken out of the areas.
void RemoveHole(const Sector& aSector, std::vector<double>& aAreas) {
  if (!aSector.IsRing()) return;
  const double hole = std::numbers::pi * aSector.inner * aSector.inner;
  const auto found = std::ranges::find_if(aAreas, [&](double aArea) { return std::abs(aArea - hole) <= hole * 1e-6; });
  RC_ASSERT(found != aAreas.end());
  aAreas.erase(found);
}

RC_GTEST_PROP(Sector, CopiesWithoutTheirSeamsAreOneRegionOfTheirTotalArea, ()) {
  const ExactSettings settings;
  const Sector sector;
  std::vector<double> areas = AreasOfCopies(sector, false);
  RemoveHole(sector, areas);
  RC_ASSERT(areas.size() == 1U);
  AssertNear(areas[0], sector.copies * sector.area, sector.copies * sector.area * 1e-6);
}

RC_GTEST_PROP(Sector, CopiesWithTheirSeamsAreARegionEach, ()) {
  const ExactSettings settings;
  Sector sector;
  sector.start = *Between(0, 360);
  std::vector<double> areas = AreasOfCopies(sector, true);
  RemoveHole(sector, areas);
  RC_ASSERT(areas.size() == static_cast<std::size_t>(sector.copies));
  for (const double area : areas) AssertNear(area, sector.area, sector.area * 1e-6);
}

RC_GTEST_PROP(ConvexChain, OffsetThereAndBackReturnsWithinTheMitreRule, ()) {
  const ExactSettings settings;
  const TEntityArray entities = *ConvexChain();
  const double distance = *Between(0.1, 5);
  ForEveryStartAndDirection(entities, [&](TEntityStorage& aChain, bool aAnticlockwise) {
    if (!aAnticlockwise) return;  // a clockwise chain turns its arcs into their complements
    const TCoordinateArray before = aChain.GetVertices();
    aChain.Offset(distance);
    aChain.Offset(-distance);
    const TCoordinateArray after = aChain.GetVertices();
    RC_ASSERT(after.size() == before.size());
    // Corners are mitred on the end chords of the arcs, which turn from the arcs' own directions by up to 0.024 here,
    // and differently so on the way back. A corner of half angle a moves by that turn times distance / (2 sin(a)^2) for
    // each of its two entities and each of the two offsets.
    for (std::size_t i = 0; i < before.size(); ++i) {
      AssertNear(after[i], before[i], 2 * 0.024 * distance / SquaredSineOfHalfCorner(before, i));
    }
  });
}

}  // namespace
}  // namespace GeometryEngine::properties
