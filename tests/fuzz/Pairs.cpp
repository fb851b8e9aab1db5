// Two entities: everything that is asked of one or of a pair.

#include <cmath>

#include "GeometryEngine/GeometryEngine.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/Pairs.h"

using namespace GeometryEngine;
using fuzz::Bytes;
using fuzz::IsSameBits;
using fuzz::Require;

namespace {

// A line and an arc meet in two points at most, and each shared end adds one.
constexpr TIndex kMostPoints = 4;
constexpr double kChordError = 0.01;
constexpr std::int32_t kMostChords = 100'000;  // the twin walks along all of them

bool IsFinite(const TEntityCoordinate& aPoint) {
  return std::isfinite(aPoint.x) && std::isfinite(aPoint.y);
}

void CheckPoints(const TInterceptionPoints& aPoints) {
  Require(aPoints.GetCount() <= kMostPoints, "a pair has four points at most");
  for (TIndex i = 0; i < aPoints.GetCount(); ++i) {
    for (TIndex j = 0; j < i; ++j) {
      Require(!(aPoints.GetPoint(i) == aPoints.GetPoint(j)), "the points of a pair differ");
    }
  }
}

void CheckPair(const TDXFEntity& aLeft, const TDXFEntity& aRight) {
  TInterceptionPoints points;
  const bool meet = CheckIntercepts(aLeft, aRight, points);
  Require(meet || points.IsEmpty(), "entities that do not meet have no point");
  CheckPoints(points);
  TCoordinateArray plain;
  Require(Plain::CheckIntercepts(aLeft, aRight, plain) == meet && ToIndex(plain.size()) == points.GetCount(),
          "a pair meets as the plain twin says");
  for (TIndex i = 0; i < points.GetCount(); ++i) {
    Require(IsSameBits(points.GetPoint(i), plain[static_cast<std::size_t>(i)]), "a point is the plain twin's");
  }
  Require((aLeft == aRight) == (aRight == aLeft), "sameness does not depend on the order");
  GetCommonCoordinate(aLeft, aRight);
  MirrorEntity_AboutLine(aLeft, aRight);
}

void CheckOne(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint, double aAngle) {
  const double sweep = aEntity.ArcSweep();
  Require(std::isnan(sweep) || (sweep >= 0 && sweep <= 360), "a sweep is within a full turn");
  for (const auto extreme :
       {GetLeftMostCoordinate, GetRightMostCoordinate, GetUpperMostCoordinate, GetLowerMostCoordinate}) {
    extreme(aEntity);
  }
  const std::int32_t winding =
      GetWindingNumber_Entity_Addition(aEntity, aEntity.StartCoords, aEntity.EndCoords, aPoint);
  const std::int32_t back = GetWindingNumber_Entity_Addition(aEntity, aEntity.EndCoords, aEntity.StartCoords, aPoint);
  const bool isQuick = GetArcSegmentPoints_Surf(aEntity, kChordError).aCount <= kMostChords;
  Require(!isQuick || winding == Plain::GetWindingNumber_Entity_Addition(aEntity, aEntity.StartCoords,
                                                                         aEntity.EndCoords, aPoint),
          "a winding number is the plain twin's");
  Require(std::abs(winding) <= 2 && std::abs(back) <= 2, "an entity goes round a point once at most");
  if (aEntity.EntityType == DXFLine && IsFinite(aPoint)) {
    Require(winding == 0 || back == 0 || winding == -back, "a line counts the other way on the way back");
  }
  GetSignedArea_Entity(aEntity.StartCoords, aEntity.EndCoords, aEntity);
  GetCentroidComponent_Entity(aEntity.StartCoords, aEntity.EndCoords, aEntity);
  for (const std::int32_t mode : {0, 1, 2}) GetEntityVector(aEntity.StartCoords, aEntity.EndCoords, aEntity, mode);
  PointOnLine(aEntity, aPoint);
  PointTouchingArc(aEntity, aPoint);
  IsPointInside_Arc(aPoint, aEntity);
  PointWithinArcSweep(aPoint, aEntity);
  AngleWithinArcSweep(aAngle, aEntity);
  GetEntityMidPoint(aEntity);
  GetEntityEndCoordinate(aPoint, aEntity);
  GetIfVerticalLine(aEntity);
  GetArc_EndPoints(aEntity, aAngle);
  TranslateEntity(aEntity, aPoint.x, aPoint.y);
  RotateEntity_AroundPoint(aEntity, GetRotationMatrix(aAngle), aPoint);
  const TArcSegments surface = GetArcSegmentPoints_Surf(aEntity, aAngle);
  Require(surface.aCount >= 3, "an arc has three chords at least");
  Require(GetArcSegmentPoints_Step(aEntity, aAngle).aCount >= 3, "an arc has three chords at least");
  GetArc_LineSegmentCoord(aEntity, surface.aCount, Travel_Clockwise, aAngle, surface.aStep);
  const double inRange = GetAngleInRange(aAngle, 0, 360);
  Require(std::isnan(inRange) || (inRange >= 0 && inRange < 360), "an angle comes into range");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  const fuzz::StartingSettings settings;
  Bytes bytes({aData, aSize});
  const TDXFEntity left = bytes.Entity();
  const TDXFEntity right = bytes.Entity();
  CheckPair(left, right);
  CheckPair(right, left);
  CheckPair(left, left);
  const TEntityCoordinate point = bytes.Coordinate();
  const double angle = bytes.Angle();
  CheckOne(left, point, angle);
  CheckOne(right, point, angle);
  return 0;
}
