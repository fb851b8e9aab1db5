#pragma once

// Stretches of the machine's axial length. Rotation and building of blocks is in GeometryFuncts/AxialBlocks.h.

#include <span>
#include <vector>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// A stretch of the axial length, with the angle by which it is turned against the others. UNITS: drawing length,
/// degrees.
struct GEOMETRYENGINE_API TAxialBlock {
  double AxPos_Start = 0;
  double AxPos_End = 0;
  double AngleShift = 0;

  /// Adds the distance to both ends.
  void MoveAlongAxis_Axial(double aAxialDistance);
  /// AxPos_Start <= aPosition <= AxPos_End, without tolerance; nothing lies within a block whose end is before its
  /// start.
  bool PositionWithinBlock(double aPosition) const;
};

/// Exact equality of both ends. The angle takes no part: blocks are the same stretch however they are turned.
GEOMETRYENGINE_API bool operator==(const TAxialBlock& aBlock_A, const TAxialBlock& aBlock_B);
GEOMETRYENGINE_API bool operator!=(const TAxialBlock& aBlock_A, const TAxialBlock& aBlock_B);

using TAxialBlockArray = std::vector<TAxialBlock>;

inline namespace TAxialBlockArray_Helper {

/// True when both arrays have the same length and pairwise equal blocks in order; false when both are empty.
GEOMETRYENGINE_API bool ElementsEqual(std::span<const TAxialBlock> aBlocks, std::span<const TAxialBlock> aArray);

/// True when some block contains the position.
GEOMETRYENGINE_API bool PositionWithinBlock(std::span<const TAxialBlock> aBlocks, double aPosition);

}  // namespace TAxialBlockArray_Helper

}  // namespace GeometryEngine
