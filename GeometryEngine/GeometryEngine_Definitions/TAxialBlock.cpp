#include "GeometryEngine/GeometryEngine_Definitions/TAxialBlock.h"

#include <algorithm>

namespace GeometryEngine {

void TAxialBlock::MoveAlongAxis_Axial(double aAxialDistance) {
  AxPos_Start += aAxialDistance;
  AxPos_End += aAxialDistance;
}

bool TAxialBlock::PositionWithinBlock(double aPosition) const {
  return AxPos_Start <= aPosition && aPosition <= AxPos_End;
}

bool operator==(const TAxialBlock& aBlock_A, const TAxialBlock& aBlock_B) {
  return aBlock_A.AxPos_Start == aBlock_B.AxPos_Start && aBlock_A.AxPos_End == aBlock_B.AxPos_End;
}

bool operator!=(const TAxialBlock& aBlock_A, const TAxialBlock& aBlock_B) {
  return !(aBlock_A == aBlock_B);
}

inline namespace TAxialBlockArray_Helper {

bool ElementsEqual(std::span<const TAxialBlock> aBlocks, std::span<const TAxialBlock> aArray) {
  // KEPT: two empty arrays are not equal; a machine without blocks matches no other machine.
  return !aBlocks.empty() && std::ranges::equal(aBlocks, aArray);
}

bool PositionWithinBlock(std::span<const TAxialBlock> aBlocks, double aPosition) {
  return std::ranges::any_of(aBlocks, [&](const TAxialBlock& aBlock) { return aBlock.PositionWithinBlock(aPosition); });
}

}  // namespace TAxialBlockArray_Helper

}  // namespace GeometryEngine
