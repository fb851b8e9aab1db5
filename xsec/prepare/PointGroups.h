#pragma once

// Points where parts meet, in groups of those that lie close together.

#include <cstddef>
#include <vector>

#include "xsec/prepare/PointCells.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

/// The meetings of all parts and the ends that they are met at, grouped: those that can be reached from one another by
/// steps below the reach are in one group. Points closer together than a sixteenth of the reach are taken for one
/// place, so that many lines through one point cost no pairs; steps may be an eighth longer for it.
///
/// COST: linear in the meetings, times some hundreds where places fill a disc as wide as the reach.
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
  void Join(std::size_t aPlace, std::size_t aOther);
  void FindMiddles();

  double fGrain;       ///< within which points are one place
  double fStep;        ///< from place to place of a group, at most
  PointCells fGrains;  ///< the places, for points that are one place,
  PointCells fSteps;   ///< and for those of one group
  std::vector<Point> fPlaces;
  std::vector<std::size_t> fFirsts;   ///< towards the first place of the same group, in the end that one itself
  std::vector<std::size_t> fMiddles;  ///< for the first place of a group its middle
  std::vector<double> fSpreads;       ///< for the first place of a group
};

}  // namespace xsec
