#include "tests/properties/Fingerprint.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"

namespace GeometryEngine::properties {

namespace {

constexpr double kRounding = 1e-6;  // drawing units; for areas, per unit of the outline's length
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kReach = 4000;  // no drawing lies farther from the origin, moved or not

double Distance(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  return std::hypot(aTo.x - aFrom.x, aTo.y - aFrom.y);
}

double Direction(const TDXFEntity& aArc, const TEntityCoordinate& aPoint) {
  return std::atan2(aPoint.y - aArc.CentreCoords.y, aPoint.x - aArc.CentreCoords.x);
}

/// How far the second direction lies beyond the first, anticlockwise, in 0 to a turn.
double Beyond(double aFrom, double aTo) {
  const double angle = aTo - aFrom;
  return angle < 0 ? angle + kTurn : angle;
}

double Sweep(const TDXFEntity& aArc) {
  return Beyond(Direction(aArc, aArc.StartCoords), Direction(aArc, aArc.EndCoords));
}

void TakeIn(const TEntityCoordinate& aPoint, Fingerprint& aFingerprint) {
  aFingerprint.low = {std::min(aFingerprint.low.x, aPoint.x), std::min(aFingerprint.low.y, aPoint.y)};
  aFingerprint.high = {std::max(aFingerprint.high.x, aPoint.x), std::max(aFingerprint.high.y, aPoint.y)};
}

void TakeInArc(const TDXFEntity& aArc, Fingerprint& aFingerprint) {
  const double sweep = Sweep(aArc);
  const double start = Direction(aArc, aArc.StartCoords);
  for (const double axis : {-kTurn / 4, 0.0, kTurn / 4, kTurn / 2}) {
    if (Beyond(start, axis) > sweep) continue;
    TakeIn(aArc.CentreCoords + TEntityCoordinate{aArc.radius * std::cos(axis), aArc.radius * std::sin(axis)},
           aFingerprint);
  }
  const double chord = kTurn / 36 / Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifArcResolution);
  aFingerprint.length += aArc.radius * sweep;
  aFingerprint.chordArea += aArc.radius * aArc.radius * sweep * chord * chord / 12;
}

void TakeInEntity(const TDXFEntity& aEntity, Fingerprint& aFingerprint) {
  ++aFingerprint.entities;
  TakeIn(aEntity.StartCoords, aFingerprint);
  TakeIn(aEntity.EndCoords, aFingerprint);
  if (aEntity.EntityType == DXFArc) {
    TakeInArc(aEntity, aFingerprint);
  } else {
    aFingerprint.length += Distance(aEntity.StartCoords, aEntity.EndCoords);
  }
}

Fingerprint Take(const TEntityTree& aTree, const TTreeNode& aRegion) {
  Fingerprint fingerprint;
  fingerprint.low = {kInfinity, kInfinity};
  fingerprint.high = {-kInfinity, -kInfinity};
  fingerprint.area = aRegion.GaussArea();
  fingerprint.centroid = aRegion.RegionCentroid();
  for (const TTreeNode* child : aRegion.Children()) TakeInEntity(aTree.GetNodeEntity(*child), fingerprint);
  return fingerprint;
}

bool IsNear(const TEntityCoordinate& aLeft, const TEntityCoordinate& aRight, double aEps) {
  return Distance(aLeft, aRight) <= aEps;
}

bool IsSame(const Fingerprint& aLeft, const Fingerprint& aRight) {
  // A strip's centroid hangs on its small area: what is lost in the sums, about the squared reach, is divided by it.
  const double centroidEps =
      kRounding + (kReach * kRounding * aLeft.length + kReach * 2 * aLeft.chordArea) / std::abs(aLeft.area);
  return aLeft.entities == aRight.entities && std::abs(aLeft.area - aRight.area) <= kRounding * aLeft.length &&
         std::abs(aLeft.length - aRight.length) <= kRounding * static_cast<double>(aLeft.entities) &&
         IsNear(aLeft.low, aRight.low, kRounding) && IsNear(aLeft.high, aRight.high, kRounding) &&
         IsNear(aLeft.centroid, aRight.centroid, centroidEps);
}

}  // namespace

void PrintTo(const Fingerprint& aFingerprint, std::ostream* aOut) {
  *aOut << aFingerprint.entities << " entities, area " << support::ToText(aFingerprint.area) << ", length "
        << support::ToText(aFingerprint.length) << ", box " << support::ToText(aFingerprint.low) << " to "
        << support::ToText(aFingerprint.high) << ", centroid " << support::ToText(aFingerprint.centroid);
}

std::vector<Fingerprint> Fingerprints(const TEntityArray& aDrawing, std::int32_t aRegionType) {
  support::TDetection detection(aDrawing);
  detection.driver.DetermineRegions(detection.driver.CoordinateTree(), aRegionType);
  const TEntityTree& tree = detection.driver.RegionTree();
  std::vector<Fingerprint> fingerprints;
  for (const TTreeNode* region : tree.RootNode()->Children()) fingerprints.push_back(Take(tree, *region));
  return fingerprints;
}

Motion TurnedBy(double aAngle, const TEntityCoordinate& aPivot) {
  const TRotationMatrix matrix = GetRotationMatrix(aAngle);
  return {[=](const TDXFEntity& aEntity) { return RotateEntity_AroundPoint(aEntity, matrix, aPivot); },
          [=](const TEntityCoordinate& aPoint) { return RotateByAngle_AboutPoint_Matrix(matrix, aPivot, aPoint); }};
}

Motion MovedBy(double dx, double dy) {
  return {[=](const TDXFEntity& aEntity) { return TranslateEntity(aEntity, dx, dy); },
          [=](const TEntityCoordinate& aPoint) {
            return aPoint + TEntityCoordinate{dx, dy};
          }};
}

Motion MirroredAbout(const TDXFEntity& aLine) {
  return {[=](const TDXFEntity& aEntity) { return MirrorEntity_AboutLine(aEntity, aLine); },
          [=](const TEntityCoordinate& aPoint) { return MirrorPoint_AboutLine(aPoint, aLine); }};
}

TEntityArray Moved(TEntityArray aDrawing, const Motion& aMotion) {
  for (TDXFEntity& entity : aDrawing) entity = aMotion.entity(entity);
  return aDrawing;
}

std::vector<Fingerprint> Moved(std::vector<Fingerprint> aFingerprints, const Motion& aMotion) {
  for (Fingerprint& fingerprint : aFingerprints) {
    const TEntityCoordinate a = aMotion.point(fingerprint.low);
    const TEntityCoordinate b = aMotion.point(fingerprint.high);
    fingerprint.low = {std::min(a.x, b.x), std::min(a.y, b.y)};
    fingerprint.high = {std::max(a.x, b.x), std::max(a.y, b.y)};
    fingerprint.centroid = aMotion.point(fingerprint.centroid);
  }
  return aFingerprints;
}

void ExpectSame(const std::vector<Fingerprint>& aActual, const std::vector<Fingerprint>& aExpected) {
  std::vector<Fingerprint> unmatched = aActual;
  for (const Fingerprint& expected : aExpected) {
    const auto match =
        std::ranges::find_if(unmatched, [&](const Fingerprint& actual) { return IsSame(expected, actual); });
    if (match == unmatched.end()) {
      ADD_FAILURE() << "missing: " << testing::PrintToString(expected);
    } else {
      unmatched.erase(match);
    }
  }
  for (const Fingerprint& actual : unmatched) ADD_FAILURE() << "surplus: " << testing::PrintToString(actual);
}

}  // namespace GeometryEngine::properties
