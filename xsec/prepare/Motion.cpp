#include "xsec/prepare/Motion.h"

#include <cmath>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/prepare/Curves.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;

constexpr double kNoPart = 1e-15;  // of a radius, by rounding

double AngleTurned(double angle, double degrees) {
  return degrees == 0 ? angle : GeometryEngine::GetAngleInRange(angle + degrees, 0, kFullTurn);
}

/// A sine or cosine, of a quarter turn without what rounding leaves.
double Exact(double value) {
  return std::abs(value) < kNoPart ? 0 : 1 - std::abs(value) < kNoPart ? std::round(value) : value;
}

}  // namespace

Motion::Motion(const Point& aOrigin, double aDegrees) : Motion(aOrigin, aDegrees, {}) {}

Motion::Motion(const Point& aBefore, double aDegrees, const Point& aAfter)
    : fBefore(aBefore),
      fAfter(aAfter),
      fDegrees(aDegrees),
      fCosine(Exact(std::cos(aDegrees * GeometryEngine::kRadiansPerDegree))),
      fSine(Exact(std::sin(aDegrees * GeometryEngine::kRadiansPerDegree))) {}

Motion Motion::Back() const {
  return Motion(fAfter, -fDegrees, fBefore);
}

// A coordinate that is not moved keeps its bits, the sign of its zero included.
Point Motion::operator()(const Point& aPoint) const {
  const auto sum = [](double a, double b) { return b == 0 ? a : a + b; };
  const Point moved = {sum(aPoint.x, -fBefore.x), sum(aPoint.y, -fBefore.y)};
  const Point turned =
      fDegrees == 0 ? moved : Point{fCosine * moved.x - fSine * moved.y, fSine * moved.x + fCosine * moved.y};
  return {sum(turned.x, fAfter.x), sum(turned.y, fAfter.y)};
}

GeometryEngine::TDXFEntity Motion::operator()(GeometryEngine::TDXFEntity aEntity) const {
  aEntity.StartCoords = (*this)(aEntity.StartCoords);
  aEntity.EndCoords = (*this)(aEntity.EndCoords);
  if (IsArc(aEntity)) MoveArc(aEntity.CentreCoords, aEntity.startAngle, aEntity.endAngle);
  return aEntity;
}

TravelledPiece Motion::operator()(TravelledPiece aPiece) const {
  aPiece.from = (*this)(aPiece.from);
  aPiece.to = (*this)(aPiece.to);
  if (aPiece.isArc) MoveArc(aPiece.centre, aPiece.startAngle, aPiece.endAngle);
  return aPiece;
}

// What a line has in the place of these stays: two lines with the same ends are the same to the last bit.
void Motion::MoveArc(Point& aCentre, double& aStartAngle, double& aEndAngle) const {
  aCentre = (*this)(aCentre);
  aStartAngle = AngleTurned(aStartAngle, fDegrees);
  aEndAngle = AngleTurned(aEndAngle, fDegrees);
}

void Motion::ApplyToLoops(Region& aRegion) const {
  for (TravelledPiece& piece : aRegion.outline) piece = (*this)(piece);
  for (Loop& hole : aRegion.holes) {
    for (TravelledPiece& piece : hole) piece = (*this)(piece);
  }
}

void Motion::ApplyToPoints(Region& aRegion) const {
  aRegion.centroid = (*this)(aRegion.centroid);
  aRegion.label = (*this)(aRegion.label);
}

void Motion::ApplyToDiagnostics(Diagnostics& aDiagnostics) const {
  for (OpenPiece& open : aDiagnostics.openPieces) open.piece = (*this)(open.piece);
  for (TravelledPiece& lost : aDiagnostics.lostSides) lost = (*this)(lost);
  for (Cure& cure : aDiagnostics.cures) cure.place = (*this)(cure.place);
  for (Correction& correction : aDiagnostics.corrections) correction.labelledAt = (*this)(correction.labelledAt);
}

}  // namespace xsec
