#include <algorithm>

#include "GeometryEngine/DXF_Regions_Utilities/RegionPoints.h"
#include "GeometryEngine/host/Numerics.h"
#include "tests/reference/plain/Detection.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

namespace {

bool AreBothAt(double aAngle, double aFrom, double aTo) {
  return ValuesSame_DXFAngle(aFrom, aAngle) && ValuesSame_DXFAngle(aTo, aAngle);
}

}  // namespace

std::int32_t CalculateWindingNumber(const TEntityTree& aTree, const TTreeNode* aRegion,
                                    const TEntityCoordinate& aPoint) {
  TEntityCoordinate from = aRegion->Coordinates();
  std::uint32_t total = 0;
  for (const TTreeNode* child : aRegion->Children()) {
    const TDXFEntity& entity = aTree.GetNodeEntity(*child);
    const TEntityCoordinate to = Plain::GetEntityEndCoordinate(from, entity);
    total += static_cast<std::uint32_t>(Plain::GetWindingNumber_Entity_Addition(entity, from, to, aPoint));
    from = to;
  }
  return static_cast<std::int32_t>(total);
}

bool RegionContains_SubRegion(const TEntityTree& aTree, const TTreeNode* aRegion_A, const TTreeNode* aRegion_B) {
  const auto isInside = [&](const TTreeNode* child) {
    return Plain::CalculateWindingNumber(aTree, aRegion_B, aTree.GetNodeEntity(*child).StartCoords) >= 1;
  };
  return aRegion_A->Count() > 0 && std::ranges::all_of(aRegion_A->Children(), isInside);
}

TTreeNode* IdentifyRegionFromCoordinate(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree,
                                        const TEntityCoordinate& aPoint, TIndex& aRegionIndex) {
  TTreeNode* found = nullptr;
  for (TTreeNode* region : aRegionTree.RootNode()->Children()) {
    if (region->TravelDirection() != Travel_AntiClockwise) continue;
    if (Plain::CalculateWindingNumber(aCoordinateTree, region, aPoint) <= 0) continue;
    const auto startsInside = [&](const TTreeNode* child) {
      return Plain::CalculateWindingNumber(aCoordinateTree, found, aCoordinateTree.GetNodeEntity(*child).StartCoords) >
             0;
    };
    if (found != nullptr && std::ranges::none_of(region->Children(), startsInside)) continue;
    found = region;
    aRegionIndex = region->RelativeIndex();
  }
  return found;
}

void DetermineClockwiseSubRegions(TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree,
                                  const TTreeNode* aRegion, TIndex aRegionIndex) {
  for (TTreeNode* outline : aRegionTree.RootNode()->Children()) {
    if (outline->TravelDirection() != Travel_Clockwise) continue;
    if (!Plain::RegionContains_SubRegion(aCoordinateTree, outline, aRegion)) continue;
    if (aRegion->CheckSubRegionIdentified(outline->RelativeIndex())) continue;
    aRegionTree.RootNode()->GetNode(aRegionIndex)->fSubRegions.push_back(outline->RelativeIndex());
  }
}

bool GenerateRegionPoint(const TEntityTree& aTree, const TTreeNode* aRegion_R, const TTreeNode* aRegion_T,
                         double aRadius_Min, double aRadius_Max, double aAngle_1, double aAngle_2) {
  const auto hitsBeside = [&](const TEntityCoordinate& a, const TEntityCoordinate& b) {
    const TEntityCoordinate probe = GetRegionPoint(a, b, aRegion_R->RegionCentroid());
    return Plain::CalculateWindingNumber(aTree, aRegion_T, probe) > 0;
  };
  TEntityCoordinate from = aRegion_R->Coordinates();
  for (const TTreeNode* child : aRegion_R->Children()) {
    const auto [radius, angle] = XY_To_RT(from.x, from.y);
    if (aRadius_Min > radius || radius > aRadius_Max) return false;
    const TDXFEntity& entity = aTree.GetNodeEntity(*child);
    const TEntityCoordinate to = Plain::GetEntityEndCoordinate(from, entity);
    if (entity.EntityType == DXFLine) {
      const double angleTo = XY_To_RT(to.x, to.y).angle;
      const bool isOnRay = AreBothAt(aAngle_1, angle, angleTo) || AreBothAt(aAngle_2, angle, angleTo);
      if (!isOnRay && hitsBeside(from, to)) return true;
    }
    if (entity.EntityType == DXFArc) {
      const TArcWalk walk = Plain::WalkArc_Step(entity, from).Limited();
      for (std::int32_t i = 0; i < walk.fCount; ++i) {
        if (hitsBeside(walk.Point(i), walk.Point(i + 1))) return true;
      }
    }
    from = to;
  }
  return false;
}

}  // namespace GeometryEngine::Plain
