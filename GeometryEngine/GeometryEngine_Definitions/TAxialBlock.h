#pragma once

#include <span>
#include <vector>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

struct GEOMETRYENGINE_API TAxialBlock {
  double AxPos_Start = 0;
  double AxPos_End = 0;
  double AngleShift = 0;  ///< degrees

  void MoveAlongAxis_Axial(double aAxialDistance);
  bool PositionWithinBlock(double aPosition) const;
};

GEOMETRYENGINE_API bool operator==(const TAxialBlock& aBlock_A, const TAxialBlock& aBlock_B);
GEOMETRYENGINE_API bool operator!=(const TAxialBlock& aBlock_A, const TAxialBlock& aBlock_B);

using TAxialBlockArray = std::vector<TAxialBlock>;

inline namespace TAxialBlockArray_Helper {
GEOMETRYENGINE_API bool ElementsEqual(std::span<const TAxialBlock> aBlocks, std::span<const TAxialBlock> aArray);
GEOMETRYENGINE_API bool PositionWithinBlock(std::span<const TAxialBlock> aBlocks, double aPosition);
}  // namespace TAxialBlockArray_Helper

}  // namespace GeometryEngine
