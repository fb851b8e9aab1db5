#pragma once

#include <functional>
#include <ostream>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"

namespace GeometryEngine::support {

/// A drawing and a driver that has found its interceptions.
struct TDetection {
  /// The text is of the form of Geometry.h.
  explicit TDetection(std::string_view aDrawing);
  explicit TDetection(const TEntityArray& aDrawing);

  TEntityStorage drawing;
  TEntityBaseClass driver;
};

/// Every pass of a driver over a drawing, open chains and regions, with `aBetween` called between each two of them, to
/// region nodes with label points and names. The regions stay in the driver's region tree.
void RunEveryPass(
    TEntityBaseClass& aDriver, const TEntityArray& aDrawing, const std::function<void()>& aBetween = [] {});

/// What tells one traced loop or chain from another, however the drawing was ordered.
struct TLoop {
  TIndex count = 0;  ///< entities
  double area = 0;   ///< signed
  double length = 0;
  TEntityCoordinate low;
  TEntityCoordinate high;
  TEntityCoordinate centroid;
};

void PrintTo(const TLoop& aLoop, std::ostream* aOut);

/// The regions of the driver's region tree, in ascending order of their areas.
std::vector<TLoop> GetLoops(const TEntityBaseClass& aDriver);

/// The loops that `DetermineRegions` finds in a drawing.
std::vector<TLoop> DetectLoops(const TEntityArray& aDrawing, std::int32_t aRegionType);
std::vector<TLoop> DetectLoops(std::string_view aDrawing, std::int32_t aRegionType);

/// The chains that `DetectOrphanEntities` finds in a drawing.
std::vector<TLoop> DetectChains(std::string_view aDrawing);

/// A loop of so many entities and that signed area, within 1e-9 of its size.
testing::Matcher<const TLoop&> IsLoop(TIndex aCount, double aArea);

/// The same fingerprint, every number within `aEps`.
bool IsSameLoop(const TLoop& aLeft, const TLoop& aRight, double aEps);

/// As a matcher of whole lists: the same fingerprints in the same order.
MATCHER_P2(AreSameLoops, aExpected, aEps, "has the loops " + testing::PrintToString(aExpected)) {
  return std::equal(arg.begin(), arg.end(), aExpected.begin(), aExpected.end(),
                    [this](const TLoop& left, const TLoop& right) { return IsSameLoop(left, right, aEps); });
}

}  // namespace GeometryEngine::support
