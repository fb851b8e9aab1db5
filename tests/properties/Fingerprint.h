#pragma once

// What tells one region from another, taken from the traced loops without the library's extremes and bounds.

#include <functional>
#include <ostream>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::properties {

struct Fingerprint {
  std::size_t entities = 0;
  double area = 0;  ///< signed
  double length = 0;
  TEntityCoordinate low;  ///< of the box of the true arcs
  TEntityCoordinate high;
  TEntityCoordinate centroid;
  /// Area between the arcs and the chords that stand for them in the centroid's sum: what the centroid may be off by
  /// when the drawing is moved, as a part of the region's area times the way it is moved.
  double chordArea = 0;
};

void PrintTo(const Fingerprint& aFingerprint, std::ostream* aOut);

/// The loops that a drawing holds. Types: 0 all, 1 anticlockwise, 2 clockwise.
std::vector<Fingerprint> Fingerprints(const TEntityArray& aDrawing, std::int32_t aRegionType);

/// A motion that keeps boxes boxes: quarter turns, moves, mirrors about upright and level lines.
struct Motion {
  std::function<TDXFEntity(const TDXFEntity&)> entity;
  std::function<TEntityCoordinate(const TEntityCoordinate&)> point;
};

Motion TurnedBy(double aAngle, const TEntityCoordinate& aPivot);
Motion MovedBy(double dx, double dy);
Motion MirroredAbout(const TDXFEntity& aLine);

TEntityArray Moved(TEntityArray aDrawing, const Motion& aMotion);
std::vector<Fingerprint> Moved(std::vector<Fingerprint> aFingerprints, const Motion& aMotion);

/// Adds a failure for every fingerprint of one list that the other lacks, all numbers within rounding.
void ExpectSame(const std::vector<Fingerprint>& aActual, const std::vector<Fingerprint>& aExpected);

}  // namespace GeometryEngine::properties
