#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ArcAngles.h"

#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

TArcAngles GetArcAngles(const TDXFEntity& aArc) {
  return {GetAngleInRange(aArc.startAngle, 0, kFullTurn), GetAngleInRange(aArc.endAngle, 0, kFullTurn)};
}

}  // namespace GeometryEngine::detail
