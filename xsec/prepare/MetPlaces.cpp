#include "xsec/prepare/MetPlaces.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <tuple>

#include "xsec/prepare/Curves.h"

namespace xsec {

namespace {

bool LiesBefore(const MetPlace& a, const MetPlace& b) {
  return std::tie(a.position, a.number) < std::tie(b.position, b.number);
}

MetPlace PlaceOf(const Part& part, std::size_t number) {
  return {PositionOf(part.geometry, part.meetings[number]), number, part.meetings[number]};
}

/// The nearest of places that come ever further away from a position.
template <typename Iterator>
const MetPlace* Nearest(Iterator from, Iterator to, double position, const Point& point, double most) {
  const MetPlace* nearest = nullptr;
  for (; from != to; ++from) {
    const double way = std::abs(from->position - position);
    if (nearest ? way > most : !(way < most)) break;
    if (from->point == point || (nearest && nearest->number < from->number)) continue;
    nearest = &*from;
    most = way;
  }
  return nearest;
}

}  // namespace

MetPlaces::MetPlaces(const Part& aPart) {
  for (std::size_t i = 0; i < aPart.meetings.size(); ++i) fPlaces.push_back(PlaceOf(aPart, i));
  std::sort(fPlaces.begin(), fPlaces.end(), LiesBefore);
}

void MetPlaces::AddLatest(const Part& aPart) {
  const MetPlace place = PlaceOf(aPart, aPart.meetings.size() - 1);
  fPlaces.insert(std::upper_bound(fPlaces.begin(), fPlaces.end(), place, LiesBefore), place);
}

const MetPlace* MetPlaces::NextFrom(double aPosition, const Point& aPoint, bool aForward, double aMost) const {
  const auto [first, last] = std::equal_range(fPlaces.begin(), fPlaces.end(), MetPlace{aPosition, 0, {}},
                                              [](const auto& a, const auto& b) { return a.position < b.position; });
  return aForward ? Nearest(last, fPlaces.end(), aPosition, aPoint, aMost)
                  : Nearest(std::reverse_iterator(first), fPlaces.rend(), aPosition, aPoint, aMost);
}

}  // namespace xsec
