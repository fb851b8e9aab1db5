#include "GeometryEngine/DXF_EntityStorage/detail/ClosedLoops.h"

#include <cstddef>
#include <utility>

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TPointIndex.h"

namespace GeometryEngine::detail {

namespace {

/// Pieces that are taken one after another.
class TPieces {
 public:
  explicit TPieces(TEntityArray aPieces) : fPieces(std::move(aPieces)), fIsTaken(fPieces.size()) {
    fEnds.Reserve(2 * fPieces.size());
    for (const TDXFEntity& piece : fPieces) {
      fEnds.Add(piece.StartCoords);
      fEnds.Add(piece.EndCoords);
    }
  }

  bool AreLeft() {
    while (fFirst < fPieces.size() && fIsTaken[fFirst]) ++fFirst;
    return fFirst < fPieces.size();
  }

  /// One loop, from the first piece that is left; empty when it doesn't close. REQUIRES: some are left.
  TEntityArray TakeClosedLoop() {
    TEntityArray loop{Take(fFirst)};
    const TEntityCoordinate start = loop.front().StartCoords;
    TEntityCoordinate vertex = loop.front().EndCoords;
    while (vertex != start) {
      const TIndex end = fEnds.FindFirstIf(vertex, [this](TIndex i) { return !fIsTaken[PieceOf(i)]; });
      if (end == kNotFound) return {};
      loop.push_back(Take(PieceOf(end)));
      vertex = GetEntityEndCoordinate(vertex, loop.back());
    }
    return loop;
  }

 private:
  static std::size_t PieceOf(TIndex aEnd) { return static_cast<std::size_t>(aEnd) / 2; }

  TDXFEntity Take(std::size_t aPiece) {
    fIsTaken[aPiece] = true;
    return std::move(fPieces[aPiece]);
  }

  TEntityArray fPieces;
  std::vector<bool> fIsTaken;
  TPointIndex fEnds;       ///< two a piece
  std::size_t fFirst = 0;  ///< none before it is left
};

}  // namespace

std::vector<TEntityArray> OrderIntoClosedLoops(TEntityArray aPieces) {
  std::vector<TEntityArray> loops;
  for (TPieces pieces(std::move(aPieces)); pieces.AreLeft();) {
    loops.push_back(pieces.TakeClosedLoop());
    if (loops.back().empty()) return {};
  }
  return loops;
}

}  // namespace GeometryEngine::detail
