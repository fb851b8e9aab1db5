#include "xsec/prepare/Prepare.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <utility>

#include "xsec/Settings.h"
#include "xsec/SplitAtGaps.h"
#include "xsec/prepare/CollectPieces.h"
#include "xsec/prepare/EntityGrid.h"
#include "xsec/prepare/Motion.h"
#include "xsec/prepare/Preparation.h"
#include "xsec/prepare/VertexPlaces.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

constexpr std::size_t kMostTurns = 7;         // tried one after the other when a group as it lies won't do
constexpr std::size_t kMostTurnsRefined = 2;  // after them hardly anything is gained
constexpr double kFiner = 0.1;                // of the tolerance, once what it takes for one point is one point
constexpr double kFinestRefined = 2e-9;  // of the diagonal; the library has no digits for tenths of finer tolerances

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
  const std::vector<MeetingPlace> places = FindPlaces(work);
  PreparedGroup prepared;
  prepared.places = SettleTurnOrder(work, places);
  for (const MeetingPlace& place : places) prepared.places.push_back(place.point);
  prepared.pieces = CollectPieces(work);
  prepared.cures = std::move(work.cures);
  prepared.motion = attempt.motion;
  prepared.tolerance = work.tolerance;
  MoveBack(prepared.motion, prepared.cures);
  return prepared;
}

/// How groups are prepared: a drawing's own, and what refining made of them.
struct Manner {
  double tolerance;
  std::size_t mostTurns;
  bool mayRefine;  ///< what remains in doubt is cut wherever it meets and goes on under a finer tolerance
};

/// Prepares groups of entities. Groups hold indexes of entities, ascending.
class GroupPreparer {
 public:
  GroupPreparer(const std::vector<PreparedPiece>& entities, const Manner& manner)
      : fEntities(entities), fManner(manner) {
    for (const PreparedPiece& entity : entities) fBoxes.push_back(Bounds(Travel(entity.geometry, true)));
  }

  /// In one group if they do as they lie; else those that stand alone are looked at one by one.
  std::vector<PreparedGroup> Run() && {
    BoxGroup all(fEntities.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    Take(all);
    return std::move(fGroups);
  }

 private:
  void Take(const BoxGroup& group) {
    Attempt asDrawn = Begin(group, Motion(PlaceOf(group)));
    if (fManner.mayRefine) FindBlurs(asDrawn.work);
    const bool isBlurred = !asDrawn.work.blurred.empty();
    if (!isBlurred) FinishMeetings(asDrawn.work);
    if (IsClear(asDrawn)) return fGroups.push_back(Finished(std::move(asDrawn)));
    const std::vector<BoxGroup> parts = SplitAtGaps(fBoxes, group, kReachInTolerances * fManner.tolerance);
    if (parts.size() == 1) return isBlurred ? TakeRefined(std::move(asDrawn)) : TakeInDoubt(group, std::move(asDrawn));
    if (isBlurred) FinishMeetings(asDrawn.work);
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

  static bool IsClear(const Attempt& attempt) { return attempt.work.doubtful.empty() && attempt.work.blurred.empty(); }

  void TakeInDoubt(const BoxGroup& group, Attempt asDrawn) {
    std::vector<Cure> steepAsDrawn = CuresOf(SteepLinesOf(asDrawn));
    MoveBack(asDrawn.motion, steepAsDrawn);
    Attempt best = BestTurned(group, std::move(asDrawn));
    if (fManner.mayRefine && !IsClear(best)) return TakeRefined(std::move(best));
    const bool isAnySteep = !SteepLinesOf(best).empty();
    PreparedGroup prepared = Finished(std::move(best));
    if (!isAnySteep) prepared.cures.insert(prepared.cures.end(), steepAsDrawn.begin(), steepAsDrawn.end());
    fGroups.push_back(std::move(prepared));
  }

  /// The way of lying that leaves the least in doubt.
  Attempt BestTurned(const BoxGroup& group, Attempt best) const {
    const Point place = PlaceOf(group);
    for (const double turn : TurnsWithFewSteepLines(best.work, fManner.mostTurns)) {
      if (best.work.doubtful.empty()) break;
      Attempt turned = Begin(group, Motion(place, turn));
      FinishMeetings(turned.work);
      if (turned.work.doubtful.size() < best.work.doubtful.size()) best = std::move(turned);
    }
    return best;
  }

  /// What the tolerance can't settle a finer one does, once all that meets under the tolerance meets to the last bit.
  void TakeRefined(Attempt attempt) {
    const Manner finer{kFiner * fManner.tolerance, kMostTurnsRefined, false};
    const ToleranceScope scope(finer.tolerance);
    Preparation& work = attempt.work;
    MeetInOnePoint(work);
    const Motion back = attempt.motion.Back();
    std::vector<PreparedPiece> pieces = CollectPieces(work);
    for (PreparedPiece& piece : pieces) piece = {back(piece.geometry), fEntities[piece.source].source};
    std::vector<Cure> cures = CuresOf(std::move(work.cures));
    MoveBack(attempt.motion, cures);
    for (PreparedGroup& group : GroupPreparer(pieces, finer).Run()) {
      group.cures.insert(group.cures.begin(), cures.begin(), cures.end());
      cures.clear();
      fGroups.push_back(std::move(group));
    }
  }

  /// Squares of coordinates are what the library finds meetings by: far from the origin they have too few digits for
  /// that.
  Point PlaceOf(const BoxGroup& group) const {
    if (group.empty()) return {};
    const Extents box = BoxOf(group, fBoxes);
    return {xsec::PlaceOf(box.minX, box.maxX), xsec::PlaceOf(box.minY, box.maxY)};
  }

  Preparation WorkOn(const BoxGroup& group, const Motion& motion) const {
    Preparation work;
    work.tolerance = fManner.tolerance;
    for (const std::size_t i : group) {
      const TDXFEntity entity = motion(fEntities[i].geometry);
      if (entity.StartCoords != entity.EndCoords) work.parts.push_back({entity, i, {}, {}});
    }
    return work;
  }

  /// The steps that find all meetings.
  Attempt Begin(const BoxGroup& group, const Motion& motion) const {
    Attempt attempt{motion, WorkOn(group, motion)};
    Preparation& work = attempt.work;
    SetDoublesApart(work);
    UnifyCircles(work);
    work.pairs = NearPairs(work.parts, kReachInTolerances * fManner.tolerance);
    TurnSeams(work);
    FindMeetings(work);
    return attempt;
  }

  /// The steps up to the one that tells which lines run too steeply: what follows is for the best attempt alone.
  static void FinishMeetings(Preparation& work) {
    SettleMeetings(work);
    CutSteepLines(work);
  }

  PreparedGroup Finished(Attempt attempt) const {
    PreparedGroup prepared = Finish(std::move(attempt));
    for (PreparedPiece& piece : prepared.pieces) piece.source = fEntities[piece.source].source;
    prepared.cures = CuresOf(std::move(prepared.cures));
    return prepared;
  }

  /// Of what the entities were taken from.
  std::vector<Cure> CuresOf(std::vector<Cure> cures) const {
    for (Cure& cure : cures) {
      cure.entity = fEntities[cure.entity].source;
      if (cure.other != kNone) cure.other = fEntities[cure.other].source;
    }
    return cures;
  }

  std::vector<bool> DoubtfulEntities(const Attempt& attempt) const {
    std::vector<bool> isDoubtful(fEntities.size());
    for (const auto* parts : {&attempt.work.doubtful, &attempt.work.blurred}) {
      for (const std::size_t part : *parts) isDoubtful[attempt.work.parts[part].source] = true;
    }
    return isDoubtful;
  }

  static bool HoldsAny(const BoxGroup& group, const std::vector<bool>& marked) {
    return std::any_of(group.begin(), group.end(), [&](std::size_t i) { return marked[i]; });
  }

  const std::vector<PreparedPiece>& fEntities;
  Manner fManner;
  std::vector<Extents> fBoxes;  ///< of the entities
  std::vector<PreparedGroup> fGroups;
};

}  // namespace

void Preparation::Report(CureKind aKind, const Point& aPlace, std::size_t aPart, std::size_t aOther, double aAmount) {
  const std::size_t other = aOther == kNone ? kNone : parts[aOther].source;
  cures.push_back({aKind, aPlace, parts[aPart].source, other, aAmount});
}

PreparedGroup AsDrawn(const Drawing& aDrawing, double aTolerance) {
  PreparedGroup prepared;
  prepared.tolerance = aTolerance;
  for (std::size_t i = 0; i < aDrawing.entities.size(); ++i) {
    prepared.pieces.push_back({aDrawing.entities[i].geometry, i});
  }
  return prepared;
}

std::vector<PreparedGroup> Prepare(const Drawing& aDrawing, double aTolerance) {
  const PreparedGroup all = AsDrawn(aDrawing, aTolerance);
  const bool mayRefine = aTolerance >= kFinestRefined * Diagonal(aDrawing.extents);
  return GroupPreparer(all.pieces, {aTolerance, kMostTurns, mayRefine}).Run();
}

}  // namespace xsec
