#pragma once

// Which of many boxes lie within a given one. Private.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <limits>
#include <span>
#include <vector>

#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// An upright rectangle with its sides; one that holds nothing until it is told of a point.
struct TBox {
  double fLeft = std::numeric_limits<double>::infinity();
  double fRight = -std::numeric_limits<double>::infinity();
  double fBottom = std::numeric_limits<double>::infinity();
  double fTop = -std::numeric_limits<double>::infinity();

  void Include(double aX, double aY) {
    fLeft = std::min(fLeft, aX);
    fRight = std::max(fRight, aX);
    fBottom = std::min(fBottom, aY);
    fTop = std::max(fTop, aY);
  }
  bool IsWithin(const TBox& aOther) const {
    return fLeft >= aOther.fLeft && fRight <= aOther.fRight && fBottom >= aOther.fBottom && fTop <= aOther.fTop;
  }
};

/// Boxes 0, 1, 2, ..., cut in halves by their left sides, those by their bottoms, and so on in turn.
/// COST: n log n to make; a search takes the root of n steps and one for each box found, or few more.
class TBoxIndex {
 public:
  explicit TBoxIndex(std::span<const TBox> aBoxes) {
    fItems.reserve(aBoxes.size());
    for (const TBox& box : aBoxes) fItems.push_back({box, ToIndex(fItems.size())});
    Arrange();
  }

  /// Calls `aVisit(index)` for each box within this one.
  template <class TVisit>
  void ForEachWithin(const TBox& aBox, const TVisit& aVisit) const {
    TPending pending;
    if (!fItems.empty()) pending.Push({0, fItems.size(), 0});
    while (!pending.IsEmpty()) {
      const TPart part = pending.Pop();
      if (!MayHoldAnyWithin(fBounds[part.fNode], aBox)) continue;
      if (part.IsLeaf()) {
        for (std::size_t i = part.fBegin; i < part.fEnd; ++i) {
          if (fItems[i].fBox.IsWithin(aBox)) aVisit(fItems[i].fIndex);
        }
        continue;
      }
      pending.Push(part.Upper());
      pending.Push(part.Lower());
    }
  }

 private:
  static constexpr std::size_t kLeafItems = 8;

  struct TItem {
    TBox fBox;
    TIndex fIndex;
  };
  /// The greatest and the least of what the sides of some boxes are.
  struct TBounds {
    double fGreatestLeft = -std::numeric_limits<double>::infinity();
    double fLeastRight = std::numeric_limits<double>::infinity();
    double fGreatestBottom = -std::numeric_limits<double>::infinity();
    double fLeastTop = std::numeric_limits<double>::infinity();
  };
  /// Some items in a row, and the node that stands for them; those below node n are 2 n + 1 and 2 n + 2.
  struct TPart {
    std::size_t fBegin;
    std::size_t fEnd;
    std::size_t fNode;
    bool IsLeaf() const { return fEnd - fBegin <= kLeafItems; }
    std::size_t Middle() const { return fBegin + (fEnd - fBegin) / 2; }
    TPart Lower() const { return {fBegin, Middle(), 2 * fNode + 1}; }
    TPart Upper() const { return {Middle(), fEnd, 2 * fNode + 2}; }
  };
  /// Parts that wait for their turn: one for each time that the items can be halved, and one more.
  class TPending {
   public:
    bool IsEmpty() const { return fCount == 0; }
    void Push(const TPart& aPart) { fParts[fCount++] = aPart; }
    TPart Pop() { return fParts[--fCount]; }

   private:
    std::array<TPart, std::numeric_limits<std::size_t>::digits + 1> fParts;
    std::size_t fCount = 0;
  };

  static bool MayHoldAnyWithin(const TBounds& aBounds, const TBox& aBox) {
    return aBounds.fGreatestLeft >= aBox.fLeft && aBounds.fLeastRight <= aBox.fRight &&
           aBounds.fGreatestBottom >= aBox.fBottom && aBounds.fLeastTop <= aBox.fTop;
  }

  void Arrange() {
    TPending pending;
    if (!fItems.empty()) pending.Push({0, fItems.size(), 0});
    while (!pending.IsEmpty()) {
      const TPart part = pending.Pop();
      if (part.fNode >= fBounds.size()) fBounds.resize(2 * part.fNode + 1);
      fBounds[part.fNode] = BoundsOf(part);
      if (part.IsLeaf()) continue;
      Halve(part);
      pending.Push(part.Upper());
      pending.Push(part.Lower());
    }
  }

  TBounds BoundsOf(const TPart& aPart) const {
    TBounds bounds;
    for (std::size_t i = aPart.fBegin; i < aPart.fEnd; ++i) {
      const TBox& box = fItems[i].fBox;
      bounds.fGreatestLeft = std::max(bounds.fGreatestLeft, box.fLeft);
      bounds.fLeastRight = std::min(bounds.fLeastRight, box.fRight);
      bounds.fGreatestBottom = std::max(bounds.fGreatestBottom, box.fBottom);
      bounds.fLeastTop = std::min(bounds.fLeastTop, box.fTop);
    }
    return bounds;
  }

  void Halve(const TPart& aPart) {
    const auto at = [this](std::size_t i) { return fItems.begin() + static_cast<std::ptrdiff_t>(i); };
    const bool byLeft = std::bit_width(aPart.fNode + 1) % 2 == 1;
    std::nth_element(at(aPart.fBegin), at(aPart.Middle()), at(aPart.fEnd),
                     [byLeft](const TItem& aLeft, const TItem& aRight) {
                       return byLeft ? aLeft.fBox.fLeft < aRight.fBox.fLeft : aLeft.fBox.fBottom < aRight.fBox.fBottom;
                     });
  }

  std::vector<TItem> fItems;
  std::vector<TBounds> fBounds;  // by node
};

}  // namespace GeometryEngine::detail
