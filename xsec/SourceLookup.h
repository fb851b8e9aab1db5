#pragma once

// Which entity of the drawing a piece was cut from. The library's pieces are new records that bear no mark of their
// origin, so it is found again by place: the piece's middle lies on its source.

#include <cstddef>
#include <vector>

#include "xsec/CellGrid.h"
#include "xsec/TravelledPiece.h"

namespace xsec {

class SourceLookup {
 public:
  explicit SourceLookup(std::vector<TravelledPiece> aSources);

  /// The source of the piece's kind that passes closest to its middle, of several equally close the first; kNone when
  /// none comes near.
  std::size_t Find(const TravelledPiece& aPiece, double aTolerance) const;

 private:
  std::vector<TravelledPiece> fSources;
  CellGrid fGrid;
};

}  // namespace xsec
