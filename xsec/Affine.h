#pragma once

#include <optional>

#include "xsec/Point.h"

namespace xsec {

/// A map of the plane that keeps lines straight: p -> (xx p.x + xy p.y + x, yx p.x + yy p.y + y).
struct Affine {
  double xx = 1;
  double xy = 0;
  double yx = 0;
  double yy = 1;
  double x = 0;
  double y = 0;

  static Affine Shift(double aX, double aY);
  static Affine Stretch(double aX, double aY);
  /// Anticlockwise, degrees. Multiples of a quarter turn are exact.
  static Affine Turn(double aDegrees);

  Point Apply(const Point& aPoint) const;
  /// The map without its shift.
  Point ApplyToVector(const Point& aVector) const;
};

/// First aInner, then aOuter.
Affine operator*(const Affine& aOuter, const Affine& aInner);

/// A map that keeps circles round: mirrored about the x axis or not, then scaled, then turned.
struct Similarity {
  double scale = 1;
  double turn = 0;  ///< degrees
  bool isMirrored = false;
};

/// The turn, scale and mirroring that a map consists of; nothing when it makes circles into ellipses.
std::optional<Similarity> AsSimilarity(const Affine& aMap);

/// Direction of a vector in degrees, over -180 up to 180; exact along the axes.
double DirectionOf(const Point& aVector);

}  // namespace xsec
