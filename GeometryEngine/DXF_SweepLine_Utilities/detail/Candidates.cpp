#include "GeometryEngine/DXF_SweepLine_Utilities/detail/Candidates.h"

#include "GeometryEngine/DXF_EntityStorage/detail/IsEntityEnd.h"
#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"

namespace GeometryEngine::detail {

namespace {

bool AddEndsOn(const TDXFEntity& aEnds, const TDXFEntity& aOther, TPointTest aIsOn, TInterceptionPoints& aPoints) {
  const bool isStartOn = AddIfAccepted(aIsOn(aOther, aEnds.StartCoords), aEnds.StartCoords, aPoints);
  const bool isEndOn = AddIfAccepted(aIsOn(aOther, aEnds.EndCoords), aEnds.EndCoords, aPoints);
  return isStartOn || isEndOn;
}

/// Whether an end of one is an end of the other. Most pairs share none, which one branch for all four ends foresees.
bool HaveSharedEnd(const TDXFEntity& A, const TDXFEntity& B) {
  const double tolerance = ReadLinearTolerance();
  const auto isSame = [tolerance](const TEntityCoordinate& a, const TEntityCoordinate& b) {
    return static_cast<int>(AreSame(a.x, b.x, tolerance)) & static_cast<int>(AreSame(a.y, b.y, tolerance));
  };
  return (isSame(A.StartCoords, B.StartCoords) | isSame(A.StartCoords, B.EndCoords) |
          isSame(A.EndCoords, B.StartCoords) | isSame(A.EndCoords, B.EndCoords)) != 0;
}

}  // namespace

bool AddIfAccepted(bool aIsAccepted, const TEntityCoordinate& aPoint, TInterceptionPoints& aPoints) {
  if (aIsAccepted) aPoints.AddUnique(aPoint);
  return aIsAccepted;
}

bool AddSharedEnds(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TInterceptionPoints& aPoints) {
  return HaveSharedEnd(aEntity_A, aEntity_B) && AddEndsOn(aEntity_A, aEntity_B, IsEntityEnd, aPoints);
}

bool AddOverlapEnds(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TPointTest aIsOn,
                    TInterceptionPoints& aPoints) {
  const bool areEndsOfB = AddEndsOn(aEntity_B, aEntity_A, aIsOn, aPoints);
  const bool areEndsOfA = AddEndsOn(aEntity_A, aEntity_B, aIsOn, aPoints);
  return areEndsOfB || areEndsOfA;
}

}  // namespace GeometryEngine::detail
