#include "xsec/prepare/Prepare.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "xsec/DrawingExtents.h"
#include "xsec/prepare/Curves.h"
#include "xsec/prepare/EntityGrid.h"
#include "xsec/prepare/Motion.h"
#include "xsec/prepare/PointCells.h"
#include "xsec/prepare/Preparation.h"
#include "xsec/prepare/VertexPlaces.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

/// Tried one after the other when the drawing as it lies won't do; no two lie a round angle apart.
constexpr std::array kTurns = {7.31, 23.17, 41.73, 66.91, 103.57, 137.51, 158.83};

/// Where a drawing's middle is in one direction, in whole millimetres, when it lies farther from the origin than it is
/// long; else the origin. So near by, what is taken off changes no digit of a coordinate.
double PlaceOf(double min, double max) {
  const double middle = min + (max - min) / 2;
  return std::abs(middle) > max - min ? std::round(middle) : 0;
}

/// Squares of coordinates are what the library finds meetings by: far from the origin they have too few digits for
/// that.
Point PlaceOf(const Drawing& drawing) {
  const Extents box = ExtentsOf(drawing.entities);
  return {PlaceOf(box.minX, box.maxX), PlaceOf(box.minY, box.maxY)};
}

Preparation WorkOn(const Drawing& drawing, double tolerance, const Motion& motion) {
  Preparation work;
  work.tolerance = tolerance;
  for (std::size_t i = 0; i < drawing.entities.size(); ++i) {
    const TDXFEntity entity = motion(drawing.entities[i].geometry);
    if (entity.StartCoords != entity.EndCoords) work.parts.push_back({entity, i, {}, {}});
  }
  return work;
}

/// The pieces of a part between its cuts.
std::vector<TDXFEntity> PiecesOf(const Part& part) {
  const TDXFEntity& whole = part.geometry;
  if (part.cuts.empty()) return {whole};
  std::vector<Point> cuts = part.cuts;
  SortAlong(whole, cuts);
  cuts.push_back(whole.EndCoords);
  std::vector<TDXFEntity> pieces;
  Point from = whole.StartCoords;
  for (const Point& to : cuts) {
    if (to == from) continue;
    pieces.push_back(PieceBetween(whole, from, to));
    from = to;
  }
  if (!pieces.empty() && from != whole.EndCoords) return {whole};
  return pieces;
}

/// Pieces that lie on an earlier one all along are one too many, and so are all those of doubles.
class PieceCollector {
 public:
  explicit PieceCollector(Preparation& work) : fWork(work), fMiddles(kReachInTolerances * work.tolerance) {}

  void TakeAll() {
    auto twin = fWork.doubles.begin();
    for (const Part& part : fWork.parts) {
      for (; twin != fWork.doubles.end() && twin->source < part.source; ++twin) LeaveOut(*twin);
      for (const TDXFEntity& piece : PiecesOf(part)) Add(piece, part.source);
    }
    for (; twin != fWork.doubles.end(); ++twin) LeaveOut(*twin);
  }

  std::vector<PreparedPiece> Result() && { return std::move(fPieces); }

 private:
  void Add(const TDXFEntity& piece, std::size_t source) {
    const Point middle = MidPoint(Travel(piece, true));
    const auto isSame = [&](std::size_t i) { return LieOnEachOther(fPieces[i].geometry, piece, middle); };
    if (fMiddles.Visit(middle, isSame)) return LeaveOut(piece, source);
    fMiddles.Add(middle, fPieces.size());
    fPieces.push_back({piece, source});
  }

  void LeaveOut(const Double& twin) {
    for (const TDXFEntity& piece : PiecesOf(fWork.parts[twin.part])) LeaveOut(piece, twin.source);
  }

  void LeaveOut(const TDXFEntity& piece, std::size_t source) {
    fWork.cures.push_back({CureKind::Duplicate, MidPoint(Travel(piece, true)), source, kNone, LengthOf(piece)});
  }

  bool LieOnEachOther(const TDXFEntity& a, const TDXFEntity& b, const Point& middle) const {
    const bool areEndsSame = (a.StartCoords == b.StartCoords && a.EndCoords == b.EndCoords) ||
                             (a.StartCoords == b.EndCoords && a.EndCoords == b.StartCoords);
    return areEndsSame && DistanceOf(MidPoint(Travel(a, true)), middle) < fWork.tolerance;
  }

  Preparation& fWork;
  PointCells fMiddles;
  std::vector<PreparedPiece> fPieces;
};

}  // namespace

void Preparation::Report(CureKind aKind, const Point& aPlace, std::size_t aPart, std::size_t aOther, double aAmount) {
  const std::size_t other = aOther == kNone ? kNone : parts[aOther].source;
  cures.push_back({aKind, aPlace, parts[aPart].source, other, aAmount});
}

PreparedDrawing AsDrawn(const Drawing& aDrawing) {
  PreparedDrawing prepared;
  for (std::size_t i = 0; i < aDrawing.entities.size(); ++i) {
    prepared.pieces.push_back({aDrawing.entities[i].geometry, i});
  }
  return prepared;
}

namespace {

/// A drawing, moved and turned, on its way through the preparation.
struct Attempt {
  Motion motion;
  Preparation work;
};

/// The steps up to the one that tells which lines run too steeply: what follows is for the best attempt alone.
Attempt Begin(const Drawing& drawing, double tolerance, const Motion& motion) {
  Attempt attempt{motion, WorkOn(drawing, tolerance, motion)};
  Preparation& work = attempt.work;
  SetDoublesApart(work);
  UnifyCircles(work);
  work.pairs = NearPairs(work.parts, kReachInTolerances * tolerance);
  TurnSeams(work);
  FindMeetings(work);
  CutSteepLines(work);
  return attempt;
}

PreparedDrawing Finish(Attempt attempt) {
  Preparation& work = attempt.work;
  SettleTurnOrder(work);
  PieceCollector collector(work);
  collector.TakeAll();
  PreparedDrawing prepared;
  prepared.pieces = std::move(collector).Result();
  for (const MeetingPlace& place : FindPlaces(work)) prepared.places.push_back(place.point);
  prepared.cures = std::move(work.cures);
  prepared.motion = attempt.motion;
  return prepared;
}

std::vector<Cure> SteepLinesOf(const Attempt& attempt) {
  std::vector<Cure> steep;
  std::copy_if(attempt.work.cures.begin(), attempt.work.cures.end(), std::back_inserter(steep),
               [](const Cure& cure) { return cure.kind == CureKind::SteepLine; });
  return steep;
}

/// What the library may see otherwise than it was drawn.
std::size_t CountDoubtful(const Attempt& attempt) {
  return SteepLinesOf(attempt).size() + attempt.work.uncured;
}

void MoveBack(const Motion& motion, std::vector<Cure>& cures) {
  const Motion back = motion.Back();
  for (Cure& cure : cures) cure.place = back(cure.place);
}

}  // namespace

PreparedDrawing Prepare(const Drawing& aDrawing, double aTolerance) {
  const Point place = PlaceOf(aDrawing);
  Attempt best = Begin(aDrawing, aTolerance, Motion(place));
  std::vector<Cure> steepAsDrawn = SteepLinesOf(best);
  MoveBack(best.motion, steepAsDrawn);
  for (std::size_t i = 0; i < kTurns.size() && CountDoubtful(best) > 0; ++i) {
    Attempt turned = Begin(aDrawing, aTolerance, Motion(place, kTurns[i]));
    if (CountDoubtful(turned) < CountDoubtful(best)) best = std::move(turned);
  }
  const bool isAnySteep = !SteepLinesOf(best).empty();
  PreparedDrawing prepared = Finish(std::move(best));
  MoveBack(prepared.motion, prepared.cures);
  if (!isAnySteep) prepared.cures.insert(prepared.cures.end(), steepAsDrawn.begin(), steepAsDrawn.end());
  return prepared;
}

}  // namespace xsec
