#include "xsec/prepare/Prepare.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <utility>

#include "xsec/SplitAtGaps.h"
#include "xsec/prepare/CollectPieces.h"
#include "xsec/prepare/EntityGrid.h"
#include "xsec/prepare/Motion.h"
#include "xsec/prepare/Preparation.h"
#include "xsec/prepare/VertexPlaces.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

constexpr std::size_t kMostTurns = 7;  // that are tried one after the other when a group as it lies won't do

/// Where a group's middle is in one direction, in whole millimetres, when it lies farther from the origin than it is
/// long; else the origin. So near by, what is taken off changes no digit of a coordinate.
double PlaceOf(double min, double max) {
  const double middle = min + (max - min) / 2;
  return std::abs(middle) > max - min ? std::round(middle) : 0;
}

/// A group of entities, moved and turned, on its way through the preparation.
struct Attempt {
  Motion motion;
  Preparation work;
};

std::vector<Cure> SteepLinesOf(const Attempt& attempt) {
  std::vector<Cure> steep;
  std::copy_if(attempt.work.cures.begin(), attempt.work.cures.end(), std::back_inserter(steep),
               [](const Cure& cure) { return cure.kind == CureKind::SteepLine; });
  return steep;
}

void MoveBack(const Motion& motion, std::vector<Cure>& cures) {
  const Motion back = motion.Back();
  for (Cure& cure : cures) cure.place = back(cure.place);
}

PreparedGroup Finish(Attempt attempt) {
  Preparation& work = attempt.work;
  SettleTurnOrder(work);
  PreparedGroup prepared;
  prepared.pieces = CollectPieces(work);
  for (const MeetingPlace& place : FindPlaces(work)) prepared.places.push_back(place.point);
  prepared.cures = std::move(work.cures);
  prepared.motion = attempt.motion;
  MoveBack(prepared.motion, prepared.cures);
  return prepared;
}

/// Prepares groups of a drawing's entities. Groups hold indexes of entities, ascending.
class GroupPreparer {
 public:
  GroupPreparer(const Drawing& drawing, double tolerance) : fDrawing(drawing), fTolerance(tolerance) {
    for (const DrawingEntity& entity : drawing.entities) fBoxes.push_back(Bounds(Travel(entity.geometry, true)));
  }

  /// In one piece if it does as it lies. Otherwise the parts of it that stand alone are looked at one by one.
  void Take(const BoxGroup& group) {
    Attempt asDrawn = Begin(group, Motion(PlaceOf(group)));
    if (asDrawn.work.doubtful.empty()) return fGroups.push_back(Finish(std::move(asDrawn)));
    const std::vector<BoxGroup> parts = SplitAtGaps(fBoxes, group, kReachInTolerances * fTolerance);
    if (parts.size() == 1) return fGroups.push_back(Turned(group, std::move(asDrawn)));
    const std::vector<bool> isDoubtful = DoubtfulEntities(asDrawn);
    asDrawn = {};
    BoxGroup clear;
    for (const BoxGroup& part : parts) {
      if (!HoldsAny(part, isDoubtful)) clear.insert(clear.end(), part.begin(), part.end());
    }
    std::sort(clear.begin(), clear.end());
    if (!clear.empty()) Take(clear);
    for (const BoxGroup& part : parts) {
      if (HoldsAny(part, isDoubtful)) Take(part);
    }
  }

  std::vector<PreparedGroup> Result() && { return std::move(fGroups); }

 private:
  /// Squares of coordinates are what the library finds meetings by: far from the origin they have too few digits for
  /// that.
  Point PlaceOf(const BoxGroup& group) const {
    if (group.empty()) return {};
    Extents box = EmptyExtents();
    for (const std::size_t entity : group) Widen(box, fBoxes[entity]);
    return {xsec::PlaceOf(box.minX, box.maxX), xsec::PlaceOf(box.minY, box.maxY)};
  }

  Preparation WorkOn(const BoxGroup& group, const Motion& motion) const {
    Preparation work;
    work.tolerance = fTolerance;
    for (const std::size_t i : group) {
      const TDXFEntity entity = motion(fDrawing.entities[i].geometry);
      if (entity.StartCoords != entity.EndCoords) work.parts.push_back({entity, i, {}, {}});
    }
    return work;
  }

  /// The steps up to the one that tells which lines run too steeply: what follows is for the best attempt alone.
  Attempt Begin(const BoxGroup& group, const Motion& motion) const {
    Attempt attempt{motion, WorkOn(group, motion)};
    Preparation& work = attempt.work;
    SetDoublesApart(work);
    UnifyCircles(work);
    work.pairs = NearPairs(work.parts, kReachInTolerances * fTolerance);
    TurnSeams(work);
    FindMeetings(work);
    CutSteepLines(work);
    return attempt;
  }

  /// The way of lying that leaves the least in doubt.
  PreparedGroup Turned(const BoxGroup& group, Attempt best) const {
    std::vector<Cure> steepAsDrawn = SteepLinesOf(best);
    MoveBack(best.motion, steepAsDrawn);
    const Point place = PlaceOf(group);
    for (const double turn : TurnsWithFewSteepLines(best.work, kMostTurns)) {
      if (best.work.doubtful.empty()) break;
      Attempt turned = Begin(group, Motion(place, turn));
      if (turned.work.doubtful.size() < best.work.doubtful.size()) best = std::move(turned);
    }
    const bool isAnySteep = !SteepLinesOf(best).empty();
    PreparedGroup prepared = Finish(std::move(best));
    if (!isAnySteep) prepared.cures.insert(prepared.cures.end(), steepAsDrawn.begin(), steepAsDrawn.end());
    return prepared;
  }

  std::vector<bool> DoubtfulEntities(const Attempt& attempt) const {
    std::vector<bool> isDoubtful(fDrawing.entities.size());
    for (const std::size_t part : attempt.work.doubtful) isDoubtful[attempt.work.parts[part].source] = true;
    return isDoubtful;
  }

  static bool HoldsAny(const BoxGroup& group, const std::vector<bool>& marked) {
    return std::any_of(group.begin(), group.end(), [&](std::size_t i) { return marked[i]; });
  }

  const Drawing& fDrawing;
  double fTolerance;
  std::vector<Extents> fBoxes;  ///< of the entities
  std::vector<PreparedGroup> fGroups;
};

}  // namespace

void Preparation::Report(CureKind aKind, const Point& aPlace, std::size_t aPart, std::size_t aOther, double aAmount) {
  const std::size_t other = aOther == kNone ? kNone : parts[aOther].source;
  cures.push_back({aKind, aPlace, parts[aPart].source, other, aAmount});
}

PreparedGroup AsDrawn(const Drawing& aDrawing) {
  PreparedGroup prepared;
  for (std::size_t i = 0; i < aDrawing.entities.size(); ++i) {
    prepared.pieces.push_back({aDrawing.entities[i].geometry, i});
  }
  return prepared;
}

std::vector<PreparedGroup> Prepare(const Drawing& aDrawing, double aTolerance) {
  BoxGroup all(aDrawing.entities.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  GroupPreparer preparer(aDrawing, aTolerance);
  preparer.Take(all);
  return std::move(preparer).Result();
}

}  // namespace xsec
