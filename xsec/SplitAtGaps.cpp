#include "xsec/SplitAtGaps.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace xsec {

namespace {

constexpr std::size_t kMostDepth = 32;  // cuts through cuts; drawings need three or four

struct Range {
  double min;
  double max;
};

class Splitter {
 public:
  Splitter(const std::vector<Extents>& boxes, double gap) : fBoxes(boxes), fGap(gap) {}

  /// `isWhole`: in the other direction it can't be cut.
  void Split(BoxGroup group, bool byX, bool isWhole, std::size_t depth) {
    std::vector<BoxGroup> parts = Cut(group, byX);
    if (parts.size() == 1 && !isWhole && depth < kMostDepth) return Split(std::move(group), !byX, true, depth + 1);
    for (BoxGroup& part : parts) {
      if (parts.size() == 1 || depth == kMostDepth) {
        std::sort(part.begin(), part.end());
        fGroups.push_back(std::move(part));
      } else {
        Split(std::move(part), !byX, true, depth + 1);
      }
    }
  }

  std::vector<BoxGroup> Result() && { return std::move(fGroups); }

 private:
  Range RangeOf(std::size_t box, bool byX) const {
    const Extents& b = fBoxes[box];
    return byX ? Range{b.minX, b.maxX} : Range{b.minY, b.maxY};
  }

  std::vector<BoxGroup> Cut(BoxGroup group, bool byX) const {
    std::sort(group.begin(), group.end(), [&](std::size_t a, std::size_t b) {
      return std::pair(RangeOf(a, byX).min, a) < std::pair(RangeOf(b, byX).min, b);
    });
    std::vector<BoxGroup> parts;
    double end = -std::numeric_limits<double>::infinity();
    for (const std::size_t box : group) {
      const Range range = RangeOf(box, byX);
      if (parts.empty() || range.min > end + fGap) parts.emplace_back();
      parts.back().push_back(box);
      end = std::max(end, range.max);
    }
    return parts;
  }

  const std::vector<Extents>& fBoxes;
  double fGap;
  std::vector<BoxGroup> fGroups;
};

}  // namespace

Extents BoxOf(const BoxGroup& aGroup, const std::vector<Extents>& aBoxes) {
  Extents box = EmptyExtents();
  for (const std::size_t member : aGroup) Widen(box, aBoxes[member]);
  return box;
}

std::vector<BoxGroup> SplitAtGaps(const std::vector<Extents>& aBoxes, double aGap) {
  BoxGroup all(aBoxes.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  return SplitAtGaps(aBoxes, all, aGap);
}

std::vector<BoxGroup> SplitAtGaps(const std::vector<Extents>& aBoxes, const BoxGroup& aMembers, double aGap) {
  if (aMembers.empty()) return {};
  Splitter splitter(aBoxes, aGap);
  splitter.Split(aMembers, true, false, 0);
  return std::move(splitter).Result();
}

}  // namespace xsec
