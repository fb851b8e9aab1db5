#include <algorithm>
#include <cmath>

#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "xsec/prepare/Curves.h"
#include "xsec/prepare/PointCells.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

bool IsSameCircle(const TDXFEntity& a, const TDXFEntity& b, double tolerance) {
  return Distance(a.CentreCoords, b.CentreCoords) < tolerance && std::abs(a.radius - b.radius) < tolerance;
}

double Difference(const TDXFEntity& a, const TDXFEntity& b) {
  return std::max(Distance(a.CentreCoords, b.CentreCoords), std::abs(a.radius - b.radius));
}

/// The first arc whose circle is the same, kNone when there is none yet.
std::size_t FindModel(const Preparation& work, const PointCells& models, const TDXFEntity& arc) {
  std::size_t model = kNone;
  models.Visit(arc.CentreCoords, [&](std::size_t i) {
    if (IsSameCircle(work.parts[i].geometry, arc, work.tolerance)) model = std::min(model, i);
    return false;
  });
  return model;
}

}  // namespace

void UnifyCircles(Preparation& aWork) {
  PointCells models(aWork.tolerance);
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) {
    TDXFEntity& arc = aWork.parts[i].geometry;
    if (!IsArc(arc)) continue;
    const std::size_t model = FindModel(aWork, models, arc);
    if (model == kNone) {
      models.Add(arc.CentreCoords, i);
      continue;
    }
    const TDXFEntity& circle = aWork.parts[model].geometry;
    const double moved = Difference(arc, circle);
    if (!(moved > 0)) continue;
    arc = ArcBetween(arc.StartCoords, arc.EndCoords, circle.CentreCoords, circle.radius);
    if (moved > kToldMove * aWork.tolerance) aWork.Report(CureKind::OneCircle, GetEntityMidPoint(arc), i, model, moved);
  }
}

}  // namespace xsec
