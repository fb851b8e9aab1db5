#include "xsec/Extents.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace xsec {

Extents EmptyExtents() {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  return {kInfinity, kInfinity, -kInfinity, -kInfinity};
}

Extents BoxAt(const Point& aPoint) {
  return {aPoint.x, aPoint.y, aPoint.x, aPoint.y};
}

bool Contains(const Extents& aBox, const Point& aPoint) {
  return aBox.minX <= aPoint.x && aPoint.x <= aBox.maxX && aBox.minY <= aPoint.y && aPoint.y <= aBox.maxY;
}

void Widen(Extents& aBox, const Extents& aOther) {
  aBox.minX = std::min(aBox.minX, aOther.minX);
  aBox.minY = std::min(aBox.minY, aOther.minY);
  aBox.maxX = std::max(aBox.maxX, aOther.maxX);
  aBox.maxY = std::max(aBox.maxY, aOther.maxY);
}

void Widen(Extents& aBox, const Point& aPoint) {
  Widen(aBox, BoxAt(aPoint));
}

Extents Widened(const Extents& aBox, double aMargin) {
  return {aBox.minX - aMargin, aBox.minY - aMargin, aBox.maxX + aMargin, aBox.maxY + aMargin};
}

double Diagonal(const Extents& aBox) {
  return std::hypot(aBox.maxX - aBox.minX, aBox.maxY - aBox.minY);
}

}  // namespace xsec
