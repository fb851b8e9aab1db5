#pragma once

#include <cstdint>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API std::int32_t CalculateWindingNumber(const TEntityTree& aTree, const TTreeNode* aRegion,
                                                       const TEntityCoordinate& aPoint);
/// True when `aRegion_A` lies inside `aRegion_B`.
GEOMETRYENGINE_API bool RegionContains_SubRegion(const TEntityTree& aTree, const TTreeNode* aRegion_A,
                                                 const TTreeNode* aRegion_B);
/// `aRegionIndex` is left as it was when nothing is found; the answer is then nil.
GEOMETRYENGINE_API TTreeNode* IdentifyRegionFromCoordinate(const TEntityTree& aRegionTree,
                                                           const TEntityTree& aCoordinateTree,
                                                           const TEntityCoordinate& aPoint, TIndex& aRegionIndex);
GEOMETRYENGINE_API void DetermineClockwiseSubRegions(TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree,
                                                     const TTreeNode* aRegion, TIndex aRegionIndex);
GEOMETRYENGINE_API bool GenerateRegionPoint(const TEntityTree& aTree, const TTreeNode* aRegion_R,
                                            const TTreeNode* aRegion_T, double aRadius_Min, double aRadius_Max,
                                            double aAngle_1, double aAngle_2);

}  // namespace GeometryEngine
