#include "xsec/prepare/PointGroups.h"

#include <algorithm>

#include "xsec/prepare/Curves.h"

namespace xsec {

namespace {

constexpr double kGrainsInReach = 16;

bool IsMetAt(const Part& part, const Point& end, double tolerance) {
  return std::any_of(part.meetings.begin(), part.meetings.end(),
                     [&](const Point& meeting) { return Distance(meeting, end) < tolerance; });
}

/// The points of a group, counted up.
struct Spread {
  double count = 0;
  Point sum;
  double toMiddle = 0;  ///< from the mean

  double FromMean(const Point& point) const { return Distance(1 / count * sum, point); }
};

}  // namespace

PointGroups::PointGroups(const Preparation& aWork, double aReach)
    : fGrain(aReach / kGrainsInReach),
      fStep(aReach + 2 * fGrain),
      fGrains(fGrain, aWork.parts.size()),
      fSteps(fStep, aWork.parts.size()) {
  for (const Part& part : aWork.parts) {
    for (const Point& end : {part.geometry.StartCoords, part.geometry.EndCoords}) {
      if (IsMetAt(part, end, aWork.tolerance)) Add(end);
    }
    for (const Point& meeting : part.meetings) Add(meeting);
  }
  FindMiddles();
}

double PointGroups::SpreadAt(const Point& aPoint) const {
  const std::size_t place = PlaceOf(aPoint);
  return place == kNone ? 0 : fSpreads[fFirsts[place]];
}

Point PointGroups::MiddleFor(const Point& aPoint) const {
  const std::size_t place = PlaceOf(aPoint);
  return place == kNone ? aPoint : fPlaces[fMiddles[fFirsts[place]]];
}

void PointGroups::Add(const Point& aPoint) {
  if (PlaceOf(aPoint) != kNone) return;
  const std::size_t added = fPlaces.size();
  fPlaces.push_back(aPoint);
  fFirsts.push_back(added);
  fSteps.Visit(aPoint, [&](std::size_t place) {
    if (Distance(fPlaces[place], aPoint) < fStep) Join(place, added);
    return false;
  });
  fGrains.Add(aPoint, added);
  fSteps.Add(aPoint, added);
}

void PointGroups::Join(std::size_t aPlace, std::size_t aOther) {
  const std::size_t first = FirstOf(aPlace);
  const std::size_t other = FirstOf(aOther);
  fFirsts[std::max(first, other)] = std::min(first, other);
}

std::size_t PointGroups::PlaceOf(const Point& aPoint) const {
  std::size_t found = kNone;
  fGrains.Visit(aPoint, [&](std::size_t place) {
    if (Distance(fPlaces[place], aPoint) < fGrain) found = place;
    return found != kNone;
  });
  return found;
}

std::size_t PointGroups::FirstOf(std::size_t aPlace) {
  while (fFirsts[aPlace] != aPlace) aPlace = fFirsts[aPlace] = fFirsts[fFirsts[aPlace]];
  return aPlace;
}

void PointGroups::FindMiddles() {
  std::vector<Spread> spreads(fPlaces.size());
  for (std::size_t place = 0; place < fPlaces.size(); ++place) {
    fFirsts[place] = FirstOf(place);
    Spread& spread = spreads[fFirsts[place]];
    spread.count += 1;
    spread.sum = spread.sum + fPlaces[place];
  }
  fMiddles.assign(fPlaces.size(), kNone);
  fSpreads.assign(fPlaces.size(), 0);
  for (std::size_t place = 0; place < fPlaces.size(); ++place) {
    Spread& spread = spreads[fFirsts[place]];
    std::size_t& middle = fMiddles[fFirsts[place]];
    const double off = spread.FromMean(fPlaces[place]);
    fSpreads[fFirsts[place]] = std::max(fSpreads[fFirsts[place]], off);
    if (middle != kNone && off >= spread.toMiddle) continue;
    middle = place;
    spread.toMiddle = off;
  }
}

}  // namespace xsec
