#pragma once

// What is asked of a single entity: ends, points on it, extremes, chords, and its terms of areas, centroids, directions
// and winding numbers.

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/host/TVector_Single.h"

namespace GeometryEngine::Plain {

// Ends
bool IsEntityEnd(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint);
TEntityCoordinate GetEntityEndCoordinate(const TEntityCoordinate& aCoordinate, const TDXFEntity& aEntity);

// Extremes
TEntityCoordinate GetLeftMostCoordinate(const TDXFEntity& aEntity);
TEntityCoordinate GetRightMostCoordinate(const TDXFEntity& aEntity);
TEntityCoordinate GetUpperMostCoordinate(const TDXFEntity& aEntity);
TEntityCoordinate GetLowerMostCoordinate(const TDXFEntity& aEntity);

// Points
double IsPointLeft_Line(const TEntityCoordinate& aPoint, const TEntityCoordinate& aLineStart,
                        const TEntityCoordinate& aLineEnd);
bool PointOnLine(const TDXFEntity& aLine, const TEntityCoordinate& aPoint);
bool PointTouchingArc(const TDXFEntity& aArc, const TEntityCoordinate& aPoint);
double PointToSegmentDistance(const TEntityCoordinate& aPoint, const TEntityCoordinate& aSegStart,
                              const TEntityCoordinate& aSegEnd);

/// An arc as a walk takes it in chords, from the end at which it enters.
struct TArcWalk {
  const TDXFEntity& fArc;
  double fStartAngle = 0;
  TTravelDirection fDirection = Travel_AntiClockwise;
  std::int32_t fCount = 0;
  double fStep = 0;  ///< degrees

  TEntityCoordinate Point(std::int32_t aIndex) const;
  TArcWalk Limited() const;  ///< at most a million chords
};

double GetEntityStartAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aArc);
double GetEntityEndAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aArc);
/// Chords within 0.01 of the arc.
TArcWalk WalkArc_Surf(const TDXFEntity& aArc, const TEntityCoordinate& aFrom);
/// Chords as fine as the arc resolution.
TArcWalk WalkArc_Step(const TDXFEntity& aArc, const TEntityCoordinate& aFrom);

// Terms
double GetSignedArea_Entity(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo, const TDXFEntity& aEntity);
TEntityCoordinate GetCentroidComponent_Entity(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                                              const TDXFEntity& aEntity);
TVector_Single GetEntityVector(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo, const TDXFEntity& aEntity,
                               std::int32_t aMode);
double GetAngleBetweenVectors(const TVector_Single& aVector_1, const TVector_Single& aVector_2);
std::int32_t GetWindingNumber_Entity_Addition(const TDXFEntity& aEntity, const TEntityCoordinate& aStart,
                                              const TEntityCoordinate& aEnd, const TEntityCoordinate& aPoint);

}  // namespace GeometryEngine::Plain
