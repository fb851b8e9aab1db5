#include "xsec/output/LoopParting.h"

#include <algorithm>
#include <map>
#include <utility>

namespace xsec {

namespace {

/// Rings of curve uses, linked both ways.
class Rings {
 public:
  explicit Rings(const std::vector<CurveLoop>& loops) {
    for (const CurveLoop& loop : loops) {
      const std::size_t first = fUses.size();
      for (std::size_t i = 0; i < loop.size(); ++i) {
        fUses.push_back(loop[i]);
        fNext.push_back(first + (i + 1) % loop.size());
        fBefore.push_back(first + (i + loop.size() - 1) % loop.size());
      }
    }
    fIsOut.assign(fUses.size(), false);
  }

  /// A curve travelled there and back is taken out: what came before the one way is followed by what comes after the
  /// other. So a ring falls into two, or two rings become one.
  void TakeOutBothWays() {
    std::map<std::size_t, std::size_t> seen;
    for (std::size_t i = 0; i < fUses.size(); ++i) {
      const auto [place, isNew] = seen.try_emplace(fUses[i].curve, i);
      if (isNew) continue;
      TakeOut(place->second, i);
      seen.erase(place);
    }
  }

  std::vector<CurveLoop> Loops() const {
    std::vector<CurveLoop> loops;
    std::vector<bool> isDone = fIsOut;
    for (std::size_t start = 0; start < fUses.size(); ++start) {
      if (isDone[start]) continue;
      CurveLoop& loop = loops.emplace_back();
      for (std::size_t i = start; !isDone[i]; i = fNext[i]) {
        isDone[i] = true;
        loop.push_back(fUses[i]);
      }
    }
    return loops;
  }

 private:
  void Link(std::size_t before, std::size_t after) {
    fNext[before] = after;
    fBefore[after] = before;
  }

  void TakeOut(std::size_t there, std::size_t back) {
    const std::size_t beforeThere = fBefore[there], afterThere = fNext[there];
    const std::size_t beforeBack = fBefore[back], afterBack = fNext[back];
    Link(beforeThere, afterBack);
    Link(beforeBack, afterThere);
    fIsOut[there] = fIsOut[back] = true;
  }

  std::vector<CurveUse> fUses;
  std::vector<std::size_t> fNext;
  std::vector<std::size_t> fBefore;
  std::vector<bool> fIsOut;
};

std::size_t StartOf(const CurveUse& use, const std::vector<Curve>& curves) {
  return use.forward ? curves[use.curve].from : curves[use.curve].to;
}

/// Walks the loop and cuts off what lies between two visits of one point, each time it comes back to one.
void AddSimpleLoops(const CurveLoop& loop, const std::vector<Curve>& curves, std::vector<CurveLoop>& simple) {
  CurveLoop path;
  std::map<std::size_t, std::size_t> placeOfPoint;  // where on the path the walk stood at each point
  for (const CurveUse& use : loop) {
    const std::size_t point = StartOf(use, curves);
    if (const auto place = placeOfPoint.find(point); place != placeOfPoint.end()) {
      const auto from = path.begin() + static_cast<std::ptrdiff_t>(place->second);
      simple.emplace_back(from, path.end());
      for (auto cut = from; cut != path.end(); ++cut) placeOfPoint.erase(StartOf(*cut, curves));
      path.erase(from, path.end());
    }
    placeOfPoint[point] = path.size();
    path.push_back(use);
  }
  if (!path.empty()) simple.push_back(std::move(path));
}

}  // namespace

double SignedArea(const CurveLoop& aLoop, const std::vector<Curve>& aCurves) {
  Loop pieces;
  for (const CurveUse& use : aLoop) {
    const TravelledPiece& piece = aCurves[use.curve].piece;
    pieces.push_back(use.forward ? piece : Reversed(piece));
  }
  return SignedArea(pieces);
}

RegionLoops PartLoops(const std::vector<CurveLoop>& aLoops, const std::vector<Curve>& aCurves) {
  Rings rings(aLoops);
  rings.TakeOutBothWays();
  std::vector<CurveLoop> simple;
  for (const CurveLoop& loop : rings.Loops()) AddSimpleLoops(loop, aCurves, simple);
  RegionLoops parted;
  const auto outline = std::max_element(simple.begin(), simple.end(), [&](const CurveLoop& a, const CurveLoop& b) {
    return SignedArea(a, aCurves) < SignedArea(b, aCurves);
  });
  if (outline == simple.end()) return parted;
  std::iter_swap(simple.begin(), outline);
  parted.outline = std::move(simple.front());
  parted.holes.assign(std::make_move_iterator(simple.begin() + 1), std::make_move_iterator(simple.end()));
  return parted;
}

}  // namespace xsec
