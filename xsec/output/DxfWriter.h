#pragma once

// Writes drawings as DXF of the year 2000: layers, lines, arcs and closed polylines with bulges, in millimetres.

#include <cstdint>
#include <string>
#include <vector>

#include "xsec/TravelledPiece.h"

namespace xsec {

/// A closed outline on a layer.
struct DxfOutline {
  Loop loop;
  std::string layer;
  std::int32_t colour = 256;  ///< colour index; 256 = by layer
};

/// An arc longer than a half circle is written as two pieces, because its bulge would lose digits.
std::string DxfTextOf(const std::vector<DxfOutline>& aOutlines);

}  // namespace xsec
