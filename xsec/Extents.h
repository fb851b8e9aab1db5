#pragma once

#include "xsec/Point.h"

namespace xsec {

/// A box along the axes. UNITS: millimetres.
struct Extents {
  double minX = 0;
  double minY = 0;
  double maxX = 0;
  double maxY = 0;
};

/// A box that holds nothing: infinite the wrong way round.
Extents EmptyExtents();
/// The box of a single point.
Extents BoxAt(const Point& aPoint);

bool Contains(const Extents& aBox, const Point& aPoint);
void Widen(Extents& aBox, const Extents& aOther);
void Widen(Extents& aBox, const Point& aPoint);
/// The box with so much more on every side.
Extents Widened(const Extents& aBox, double aMargin);
double Diagonal(const Extents& aBox);

}  // namespace xsec
