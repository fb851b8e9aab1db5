#include "xsec/prepare/CollectPieces.h"

#include "xsec/prepare/Curves.h"
#include "xsec/prepare/PointCells.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

/// Pieces that lie on an earlier one all along are one too many, and so are all those of doubles.
class PieceCollector {
 public:
  explicit PieceCollector(Preparation& work)
      : fWork(work), fMiddles(kReachInTolerances * work.tolerance, work.parts.size()) {}

  void TakeAll() {
    auto twin = fWork.doubles.begin();
    for (const Part& part : fWork.parts) {
      for (; twin != fWork.doubles.end() && twin->source < part.source; ++twin) LeaveOut(*twin);
      for (const TDXFEntity& piece : PiecesAt(part.geometry, part.cuts)) Add(piece, part.source);
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
    const Part& part = fWork.parts[twin.part];
    for (const TDXFEntity& piece : PiecesAt(part.geometry, part.cuts)) LeaveOut(piece, twin.source);
  }

  void LeaveOut(const TDXFEntity& piece, std::size_t source) {
    fWork.cures.push_back({CureKind::Duplicate, MidPoint(Travel(piece, true)), source, kNone, LengthOf(piece)});
  }

  bool LieOnEachOther(const TDXFEntity& a, const TDXFEntity& b, const Point& middle) const {
    const bool areEndsSame = (a.StartCoords == b.StartCoords && a.EndCoords == b.EndCoords) ||
                             (a.StartCoords == b.EndCoords && a.EndCoords == b.StartCoords);
    return areEndsSame && Distance(MidPoint(Travel(a, true)), middle) < fWork.tolerance;
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
