#include "GeometryEngine/Pole_Inaccessibility/PoleInaccessibility.h"

namespace GeometryEngine {

TEntityCoordinate GetPoleInaccessibility(TTreeNode_Geometry* aRegion, double aPrecision, double aMinimumDistance) {
  if (aRegion == nullptr) return {};
  return FindPoleInaccessibility(aRegion->PoleRegion(), aPrecision, aMinimumDistance);
}

}  // namespace GeometryEngine
