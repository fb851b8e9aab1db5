#include <algorithm>

#include "xsec/prepare/PointGroups.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

constexpr double kBlurredReach = 1.5;     // tolerances; from 1.42 on two points differ in every direction
constexpr double kBlurredSpread = 0.501;  // tolerances off their mean; below, points are the same in every direction

}  // namespace

void FindBlurs(Preparation& aWork) {
  const PointGroups groups(aWork, kBlurredReach * aWork.tolerance);
  const auto isBlurred = [&](const Point& point) { return groups.SpreadAt(point) > kBlurredSpread * aWork.tolerance; };
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) {
    const Part& part = aWork.parts[i];
    if (std::any_of(part.meetings.begin(), part.meetings.end(), isBlurred)) aWork.blurred.push_back(i);
  }
}

}  // namespace xsec
