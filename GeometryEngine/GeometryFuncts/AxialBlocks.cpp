#include "GeometryEngine/GeometryFuncts/AxialBlocks.h"

#include <cstddef>

namespace GeometryEngine {

TAxialBlockArray GetAxialBlocks(double aStart, double aLength, std::int32_t aCount, double aGap) {
  if (!(aLength > aCount * aGap && aCount > 0)) return {{aStart, aStart + aLength, 0}};
  const double blockLength = (aLength - aCount * aGap) / (aCount + 1.0);
  TAxialBlockArray blocks(static_cast<std::size_t>(aCount) + 1);
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    blocks[i].AxPos_Start = aStart + (blockLength + aGap) * static_cast<double>(i);
    blocks[i].AxPos_End = blocks[i].AxPos_Start + blockLength;
  }
  return blocks;
}

}  // namespace GeometryEngine
