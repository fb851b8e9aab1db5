#include <cmath>
#include <numbers>

#include "xsec/Flattening.h"

namespace xsec {

namespace {

constexpr double kMostPerPiece = std::numbers::pi / 2;  // radians
constexpr double kRounding = 1e-9;                      // of a piece: what a whole number of them may exceed it by

Point At(const SourceEllipse& ellipse, double parameter, double reach = 1) {
  const double cosine = reach * std::cos(parameter);
  const double sine = reach * std::sin(parameter);
  return {ellipse.centre.x + cosine * ellipse.major.x + sine * ellipse.minor.x,
          ellipse.centre.y + cosine * ellipse.major.y + sine * ellipse.minor.y};
}

// An arc of the unit circle is a rational quadratic piece, with the crossing of its end tangents in between; its image
// under the map that makes the ellipse of the circle is the piece with the images of those points.
CurvePiece PieceOf(const SourceEllipse& ellipse, const Point& from, double middle, double half, const Point& to) {
  return {Lifted(from, 1), Lifted(At(ellipse, middle, 1 / std::cos(half)), std::cos(half)), Lifted(to, 1)};
}

}  // namespace

FlatCurve FlattenEllipse(const SourceEllipse& aEllipse, double aTolerance) {
  const int count = std::max(1, static_cast<int>(std::ceil(std::abs(aEllipse.sweep) / kMostPerPiece - kRounding)));
  const double half = aEllipse.sweep / (2 * count);
  const auto endOf = [&](int i) {
    const bool isClosing = i == count && aEllipse.sweep >= 2 * std::numbers::pi;
    return At(aEllipse, isClosing ? aEllipse.start : aEllipse.start + 2 * i * half);
  };
  const auto pieceAt = [&](std::size_t number) {
    const int i = static_cast<int>(number);
    return PieceOf(aEllipse, endOf(i), aEllipse.start + (2 * i + 1) * half, half, endOf(i + 1));
  };
  return FollowByArcs(static_cast<std::size_t>(count), pieceAt, aTolerance);
}

}  // namespace xsec
