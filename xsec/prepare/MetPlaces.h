#pragma once

// Where a part is met next on the way from one of its points, found without looking at all its meetings.

#include <cstddef>
#include <vector>

#include "xsec/prepare/Preparation.h"

namespace xsec {

/// A point where a part is met.
struct MetPlace {
  double position = 0;     ///< along the part. UNITS: millimetres
  std::size_t number = 0;  ///< among the part's meetings
  Point point;
};

/// The points where a part is met, in order along it.
class MetPlaces {
 public:
  /// COST: n log n
  explicit MetPlaces(const Part& aPart);

  /// The part's latest meeting.
  void AddLatest(const Part& aPart);

  /// The place that is met next, forward or back, on the way from a point of the part at a position, less than so far
  /// away; the first of the part's meetings where several are. A place that is the same as the point under the
  /// tolerance is passed over. nullptr where nothing is met.
  /// COST: logarithmic
  const MetPlace* NextFrom(double aPosition, const Point& aPoint, bool aForward, double aMost) const;

 private:
  std::vector<MetPlace> fPlaces;
};

}  // namespace xsec
