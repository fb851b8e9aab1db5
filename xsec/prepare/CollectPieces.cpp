#include "xsec/prepare/CollectPieces.h"

#include "xsec/prepare/Curves.h"
#include "xsec/prepare/PointCells.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

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

std::vector<PreparedPiece> CollectPieces(Preparation& aWork) {
  PieceCollector collector(aWork);
  collector.TakeAll();
  return std::move(collector).Result();
}

}  // namespace xsec
