#pragma once

#include <random>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TBoxIndex.h"

namespace GeometryEngine::support {

inline std::vector<TIndex> WithinOneByOne(const std::vector<detail::TBox>& aBoxes, const detail::TBox& aBox) {
  std::vector<TIndex> found;
  for (std::size_t i = 0; i < aBoxes.size(); ++i) {
    if (aBoxes[i].IsWithin(aBox)) found.push_back(ToIndex(i));
  }
  return found;
}

/// Boxes of whole numbers, most of them small, so that many touch or coincide.
class TRandomBoxes {
 public:
  detail::TBox Next() {
    const double left = Below(30);
    const double bottom = Below(30);
    const double right = left + Extent();
    return {left, right, bottom, bottom + Extent()};
  }

  std::vector<detail::TBox> Next(int aCount) {
    std::vector<detail::TBox> boxes;
    for (int i = 0; i < aCount; ++i) boxes.push_back(Next());
    return boxes;
  }

 private:
  int Below(int aEnd) { return static_cast<int>(fRandom() % static_cast<unsigned>(aEnd)); }
  int Extent() { return Below(Below(5) == 0 ? 30 : 3); }

  std::mt19937 fRandom{1};
};

}  // namespace GeometryEngine::support
