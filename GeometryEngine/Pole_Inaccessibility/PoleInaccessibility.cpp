#include "GeometryEngine/Pole_Inaccessibility/PoleInaccessibility.h"

#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"

namespace GeometryEngine {

TEntityCoordinate GetPoleInaccessibility(TTreeNode_Geometry* aRegion, double aPrecision, double aMinimumDistance) {
  if (aRegion == nullptr) return {};
  const TFloatEnvironment environment;
  return FindPoleInaccessibility(aRegion->PoleRegion(), aPrecision, aMinimumDistance);
}

}  // namespace GeometryEngine
