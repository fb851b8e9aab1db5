#pragma once

// What the preparation hands to the library in one run.

#include <cstddef>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/Drawing.h"
#include "xsec/prepare/Cures.h"
#include "xsec/prepare/Motion.h"

namespace xsec {

/// A line or arc to detect regions among, and the entity of the drawing that it is a part of.
struct PreparedPiece {
  GeometryEngine::TDXFEntity geometry;
  std::size_t source = 0;
};

struct PreparedGroup {
  std::vector<PreparedPiece> pieces;
  std::vector<Point> places;  ///< where they end and meet; none when nothing was prepared
  std::vector<Cure> cures;
  Motion motion;         ///< from the drawing to these
  double tolerance = 0;  ///< that the library is to compare them with
};

}  // namespace xsec
