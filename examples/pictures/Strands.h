#pragma once

// Points along an entity as a walk passes it, or beside it: what the pictures draw of pieces and half-edges.

#include <algorithm>
#include <vector>

#include "GeometryEngine/GeometryEngine.h"

namespace pictures {

using namespace GeometryEngine;

/// An entity walked from one of its ends to the other.
class TStrand {
 public:
  TStrand(const TDXFEntity& aEntity, const TEntityCoordinate& aFrom)
      : fEntity(aEntity), fFrom(aFrom), fTo(GetEntityEndCoordinate(aFrom, aEntity)) {
    fStartAngle = GetEntityStartAngle_Arc(aFrom, aEntity);
    fSense = GetArcTravelDirection(fStartAngle, aEntity) == Travel_AntiClockwise ? 1 : -1;
  }

  /// The point so far along the way, and so far to the left of it. UNITS: drawing units.
  TEntityCoordinate GetPoint(double aWay, double aLeft) const {
    if (fEntity.EntityType == DXFArc) {
      const double angle = fStartAngle + fSense * aWay / fEntity.radius * kDegreesPerRadian;
      return fEntity.CentreCoords + RT_To_XY_Coordinate(fEntity.radius - fSense * aLeft, angle);
    }
    const TEntityCoordinate ahead = (fTo - fFrom) / fEntity.EntityLength();
    return fFrom + aWay * ahead + aLeft * TEntityCoordinate{-ahead.y, ahead.x};
  }

  TEntityCoordinate GetMiddle(double aLeft) const { return GetPoint(fEntity.EntityLength() / 2, aLeft); }

  /// The way to the left, without so much of it at either end; of a short entity the middle part.
  TCoordinateArray GetPoints(double aTrim, double aLeft) const {
    const double trim = std::min(aTrim, fEntity.EntityLength() / 4);
    return GetPart(trim, fEntity.EntityLength() - trim, aLeft);
  }

  /// The first part of the way, as a half-edge leaves its vertex.
  TCoordinateArray GetBeginning(double aTrim, double aLength, double aLeft) const {
    const double length = fEntity.EntityLength();
    return GetPart(std::min(aTrim, length / 6), std::min(aTrim + aLength, 0.46 * length), aLeft);
  }

  /// The way between two places on it.
  TCoordinateArray GetPart(double aFromWay, double aToWay, double aLeft) const {
    const int chords = fEntity.EntityType == DXFArc ? 24 : 1;
    TCoordinateArray points;
    for (int i = 0; i <= chords; ++i) points.push_back(GetPoint(aFromWay + (aToWay - aFromWay) * i / chords, aLeft));
    return points;
  }

 private:
  const TDXFEntity& fEntity;
  TEntityCoordinate fFrom;
  TEntityCoordinate fTo;
  double fStartAngle = 0;
  double fSense = 1;
};

/// The pieces of a region of the region tree as the trace walked them.
inline std::vector<TStrand> GetStrands(const TEntityTree& aRegions, const TTreeNode& aRegion) {
  std::vector<TStrand> strands;
  TEntityCoordinate from = aRegion.Coordinates();
  for (const TTreeNode* child : aRegion.Children()) {
    const TDXFEntity& piece = aRegions.GetNodeEntity(*child);
    strands.emplace_back(piece, from);
    from = GetEntityEndCoordinate(from, piece);
  }
  return strands;
}

inline TCoordinateArray GetOutline(const TEntityTree& aRegions, const TTreeNode& aRegion) {
  TCoordinateArray outline;
  for (const TStrand& strand : GetStrands(aRegions, aRegion)) {
    const TCoordinateArray points = strand.GetPoints(0, 0);
    outline.insert(outline.end(), points.begin(), points.end() - 1);
  }
  return outline;
}

}  // namespace pictures
