#pragma once

// Points where parts meet, in groups of those that lie close together.

#include <cstddef>
#include <vector>

#include "xsec/prepare/PointCells.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

/// The meetings of all parts and the ends that they are met at, each once to the last bit, grouped: those that can be
/// reached from one another by steps below the reach are in one group.
///
/// COST: linear in the meetings, as long as few lie within the reach of each other.
class PointGroups {
 public:
  PointGroups(const Preparation& aWork, double aReach);

  /// How far points of the point's group lie off their mean, at most; 0 when it is in no group.
  double SpreadAt(const Point& aPoint) const;
  /// The point of the group that is closest to the group's mean; the point itself when it is in no group.
  Point MiddleFor(const Point& aPoint) const;

 private:
  void Add(const Point& aPoint);
  std::size_t PlaceOf(const Point& aPoint) const;
  std::size_t FirstOf(std::size_t aPlace);
  void FindMiddles();

  double fReach;
  PointCells fCells;
  std::vector<Point> fPlaces;
  std::vector<std::size_t> fFirsts;   ///< towards the first place of the same group, in the end that one itself
  std::vector<std::size_t> fMiddles;  ///< for the first place of a group its middle
  std::vector<double> fSpreads;       ///< for the first place of a group
};

}  // namespace xsec
