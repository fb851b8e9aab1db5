#pragma once

// Where and how large a name can be written into a region without touching the region's boundary.

#include <cstddef>
#include <optional>
#include <string_view>

#include "xsec/InnerPoint.h"
#include "xsec/Regions.h"

namespace xsec {

struct LabelFit {
  Point at;              ///< the text's middle
  double size = 0;       ///< font size
  bool upright = false;  ///< written from bottom to top, because that leaves more room
};

/// The largest font size, up to aMost, at which a text of aCharacters, centred at aLabel, stays clear of every loop.
LabelFit FitLabel(const RegionSpace& aSpace, const Point& aLabel, std::size_t aCharacters, double aMost);

/// The font size that can still be read, and the one that is large enough.
struct FontSizes {
  double least = 0;
  double most = 0;
};

/// At the region's label point, or elsewhere when that stands close to the boundary and a much larger text fits there.
/// Nothing when the text can't be read.
std::optional<LabelFit> FitName(const Region& aRegion, std::size_t aCharacters, const FontSizes& aSizes);

/// The width that a text takes in multiples of its font size, roughly, whatever the font.
double TextWidth(std::size_t aCharacters);

/// Number of characters of UTF-8 text.
std::size_t CountCharacters(std::string_view aText);

}  // namespace xsec
