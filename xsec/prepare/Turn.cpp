#include "xsec/prepare/Turn.h"

#include <cmath>

#include "GeometryEngine/host/Numerics.h"

namespace xsec {

Turn::Turn(double aDegrees)
    : fDegrees(aDegrees),
      fCosine(std::cos(aDegrees * GeometryEngine::kRadiansPerDegree)),
      fSine(std::sin(aDegrees * GeometryEngine::kRadiansPerDegree)) {}

Point Turn::operator()(const Point& aPoint) const {
  if (fDegrees == 0) return aPoint;
  return {fCosine * aPoint.x - fSine * aPoint.y, fSine * aPoint.x + fCosine * aPoint.y};
}

GeometryEngine::TDXFEntity Turn::operator()(GeometryEngine::TDXFEntity aEntity) const {
  if (fDegrees == 0) return aEntity;
  aEntity.StartCoords = (*this)(aEntity.StartCoords);
  aEntity.EndCoords = (*this)(aEntity.EndCoords);
  aEntity.CentreCoords = (*this)(aEntity.CentreCoords);
  aEntity.startAngle = GeometryEngine::GetAngleInRange(aEntity.startAngle + fDegrees, 0, 360);
  aEntity.endAngle = GeometryEngine::GetAngleInRange(aEntity.endAngle + fDegrees, 0, 360);
  return aEntity;
}

TravelledPiece Turn::operator()(TravelledPiece aPiece) const {
  if (fDegrees == 0) return aPiece;
  aPiece.from = (*this)(aPiece.from);
  aPiece.to = (*this)(aPiece.to);
  aPiece.centre = (*this)(aPiece.centre);
  aPiece.startAngle = GeometryEngine::GetAngleInRange(aPiece.startAngle + fDegrees, 0, 360);
  aPiece.endAngle = GeometryEngine::GetAngleInRange(aPiece.endAngle + fDegrees, 0, 360);
  return aPiece;
}

void Turn::ApplyToLoops(Region& aRegion) const {
  for (TravelledPiece& piece : aRegion.outline) piece = (*this)(piece);
  for (Loop& hole : aRegion.holes) {
    for (TravelledPiece& piece : hole) piece = (*this)(piece);
  }
}

void Turn::ApplyToPoints(Region& aRegion) const {
  aRegion.centroid = (*this)(aRegion.centroid);
  aRegion.label = (*this)(aRegion.label);
}

}  // namespace xsec
