#include "GeometryEngine/DXF_Regions_Detection/Containment.h"

#include <algorithm>

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/DXF_EntityStorage/detail/OtherEnd.h"
#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"
#include "GeometryEngine/DXF_Regions_Utilities/RegionPoints.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/LimitedSegments.h"
#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine {

namespace {

// Looks for a point of one region just beside the edges of another.
class TRegionPointSearch {
 public:
  TRegionPointSearch(const TEntityTree& aTree, const TTreeNode& aWalked, const TTreeNode* aTested, double aAngle_1,
                     double aAngle_2)
      : fTree(aTree), fWalked(aWalked), fTested(aTested), fAngle_1(aAngle_1), fAngle_2(aAngle_2) {}

  bool HitsBesideEntity(const TDXFEntity& aEntity, const TEntityCoordinate& aFrom,
                        const TEntityCoordinate& aFarEnd) const {
    if (aEntity.EntityType == DXFArc) return HitsBesideArc(aEntity, aFrom);
    return aEntity.EntityType == DXFLine && !IsOnBoundaryRay(aFrom, aFarEnd) && HitsBesideEdge(aFrom, aFarEnd);
  }

 private:
  bool HitsBesideEdge(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) const {
    return CalculateWindingNumber(fTree, fTested, GetRegionPoint(aFrom, aTo, fWalked.RegionCentroid())) > 0;
  }

  bool HitsBesideArc(const TDXFEntity& aArc, const TEntityCoordinate& aFrom) const {
    const double startAngle = GetEntityStartAngle_Arc(aFrom, aArc);
    const TTravelDirection direction = GetArcTravelDirection(startAngle, aArc);
    const double resolution = Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifArcResolution);
    const auto [count, step] = detail::GetLimitedSegments(GetArcSegmentPoints_Step(aArc, resolution));
    for (std::int32_t i = 0; i < count; ++i) {
      if (HitsBesideEdge(GetArc_LineSegmentCoord(aArc, i, direction, startAngle, step),
                         GetArc_LineSegmentCoord(aArc, i + 1, direction, startAngle, step))) {
        return true;
      }
    }
    return false;
  }

  // Lines along a ray that bounds the machine sector are never used.
  bool IsOnBoundaryRay(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) const {
    const double from = XY_To_RT(aFrom.x, aFrom.y).angle;
    const double to = XY_To_RT(aTo.x, aTo.y).angle;
    return (ValuesSame_DXFAngle(from, fAngle_1) && ValuesSame_DXFAngle(to, fAngle_1)) ||
           (ValuesSame_DXFAngle(from, fAngle_2) && ValuesSame_DXFAngle(to, fAngle_2));
  }

  const TEntityTree& fTree;
  const TTreeNode& fWalked;
  const TTreeNode* fTested;
  double fAngle_1;
  double fAngle_2;
};

bool IsFaceAround(const TEntityTree& aCoordinateTree, const TTreeNode& aRegion, const TEntityCoordinate& aPoint) {
  return aRegion.TravelDirection() == Travel_AntiClockwise &&
         CalculateWindingNumber(aCoordinateTree, &aRegion, aPoint) > 0;
}

// True when some entity of the region starts inside the other one.
bool StartsInside(const TEntityTree& aCoordinateTree, const TTreeNode& aRegion, const TTreeNode* aOther) {
  return std::ranges::any_of(aRegion.Children(), [&](const TTreeNode* child) {
    return CalculateWindingNumber(aCoordinateTree, aOther, aCoordinateTree.GetNodeEntity(*child).StartCoords) > 0;
  });
}

}  // namespace

std::int32_t CalculateWindingNumber(const TEntityTree& aTree, const TTreeNode* aRegion,
                                    const TEntityCoordinate& aPoint) {
  if (aRegion == nullptr) return 0;
  const double tolerance = detail::ReadLinearTolerance();
  TEntityCoordinate from = aRegion->Coordinates();
  std::uint32_t total = 0;  // unsigned: wraps round instead of overflowing
  for (const TTreeNode* child : aRegion->Children()) {
    const TDXFEntity& entity = aTree.GetNodeEntity(*child);
    const TEntityCoordinate farEnd = detail::GetOtherEnd(from, entity, tolerance);
    total += static_cast<std::uint32_t>(GetWindingNumber_Entity_Addition(entity, from, farEnd, aPoint));
    from = farEnd;
  }
  return static_cast<std::int32_t>(total);
}

bool RegionContains_SubRegion(const TEntityTree& aTree, const TTreeNode* aRegion_A, const TTreeNode* aRegion_B) {
  if (aRegion_A == nullptr || aRegion_A->Children().empty()) return false;
  return std::ranges::all_of(aRegion_A->Children(), [&](const TTreeNode* child) {
    return CalculateWindingNumber(aTree, aRegion_B, aTree.GetNodeEntity(*child).StartCoords) >= 1;
  });
}

TTreeNode* IdentifyRegionFromCoordinate(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree,
                                        const TEntityCoordinate& aPoint, TIndex& aRegionIndex) {
  TTreeNode* found = nullptr;
  for (TIndex r = 0; r < aRegionTree.RootNode()->Count(); ++r) {
    TTreeNode* region = aRegionTree.RootNode()->GetNode(r);
    if (!IsFaceAround(aCoordinateTree, *region, aPoint)) continue;
    if (found != nullptr && !StartsInside(aCoordinateTree, *region, found)) continue;
    found = region;
    aRegionIndex = r;
  }
  return found;
}

void DetermineClockwiseSubRegions(TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree,
                                  const TTreeNode* aRegion, TIndex aRegionIndex) {
  TTreeNode* container = aRegionTree.RootNode()->GetNode(aRegionIndex);
  if (container == nullptr) return;
  for (TIndex n = 0; n < aRegionTree.RootNode()->Count(); ++n) {
    const TTreeNode* outline = aRegionTree.RootNode()->GetNode(n);
    if (outline->TravelDirection() != Travel_Clockwise) continue;
    if (!RegionContains_SubRegion(aCoordinateTree, outline, aRegion)) continue;
    // KEPT: looked up in the region handed in, added to the region at the index; callers pass one region both ways.
    if (!aRegion->CheckSubRegionIdentified(n)) container->AddSubRegion(n);
  }
}

bool GenerateRegionPoint(const TEntityTree& aTree, const TTreeNode* aRegion_R, const TTreeNode* aRegion_T,
                         double aRadius_Min, double aRadius_Max, double aAngle_1, double aAngle_2) {
  if (aRegion_R == nullptr) return false;
  const TRegionPointSearch search(aTree, *aRegion_R, aRegion_T, aAngle_1, aAngle_2);
  TEntityCoordinate from = aRegion_R->Coordinates();
  for (const TTreeNode* child : aRegion_R->Children()) {
    const double radius = XY_To_RT(from.x, from.y).r;
    if (aRadius_Min > radius || radius > aRadius_Max) return false;
    const TDXFEntity& entity = aTree.GetNodeEntity(*child);
    const TEntityCoordinate farEnd = GetEntityEndCoordinate(from, entity);
    if (search.HitsBesideEntity(entity, from, farEnd)) return true;
    from = farEnd;
  }
  return false;
}

}  // namespace GeometryEngine
