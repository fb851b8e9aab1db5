#include "benchmarks/drawings/Pen.h"

#include <cmath>
#include <numbers>

namespace drawings {

namespace {

constexpr double kRadians = std::numbers::pi / 180;  // per degree

double AngleOf(const Point& aCentre, const Point& aPoint) {
  const double degrees = std::atan2(aPoint.y - aCentre.y, aPoint.x - aCentre.x) / kRadians;
  return degrees < 0 ? degrees + 360 : degrees;
}

Point OnCircle(const Point& aCentre, double aRadius, double aDegrees) {
  return {aCentre.x + aRadius * std::cos(aDegrees * kRadians), aCentre.y + aRadius * std::sin(aDegrees * kRadians)};
}

}  // namespace

Frame::Frame(const Point& aOrigin, double aDegrees)
    : fOrigin(aOrigin),
      fDegrees(aDegrees),
      fCosine(std::cos(aDegrees * kRadians)),
      fSine(std::sin(aDegrees * kRadians)) {}

Point Frame::operator()(double aX, double aY) const {
  return {fOrigin.x + (aX * fCosine - aY * fSine), fOrigin.y + (aX * fSine + aY * fCosine)};
}

Frame Frame::At(double aX, double aY, double aDegrees) const {
  return {(*this)(aX, aY), fDegrees + aDegrees};
}

double Dice::Between(double aLow, double aHigh) {
  constexpr double kStep = 0x1p-53;
  return aLow + (aHigh - aLow) * (static_cast<double>(fEngine() >> 11) * kStep);
}

std::size_t Dice::Below(std::size_t aCount) {
  return fEngine() % aCount;
}

void Line(Drawing& aDrawing, const Point& aStart, const Point& aEnd) {
  aDrawing.push_back({false, aStart, aEnd, {}, 0, 0, 0});
}

void Arc(Drawing& aDrawing, const Point& aCentre, double aRadius, const Point& aStart, const Point& aEnd) {
  aDrawing.push_back({true, aStart, aEnd, aCentre, aRadius, AngleOf(aCentre, aStart), AngleOf(aCentre, aEnd)});
}

void ArcByAngles(Drawing& aDrawing, const Point& aCentre, double aRadius, double aFrom, double aSweep) {
  const int pieces = aSweep > 180 ? 2 : 1;
  Point start = OnCircle(aCentre, aRadius, aFrom);
  for (int k = 1; k <= pieces; ++k) {
    const Point end = OnCircle(aCentre, aRadius, aFrom + aSweep * k / pieces);
    Arc(aDrawing, aCentre, aRadius, start, end);
    start = end;
  }
}

void Circle(Drawing& aDrawing, const Frame& aFrame, double aRadius) {
  const Point centre = aFrame(0, 0);
  const Point right = aFrame(aRadius, 0);
  const Point left = aFrame(-aRadius, 0);
  Arc(aDrawing, centre, aRadius, right, left);
  Arc(aDrawing, centre, aRadius, left, right);
}

void Rectangle(Drawing& aDrawing, const Frame& aFrame, double aHalfWidth, double aHalfHeight) {
  const Point corners[] = {aFrame(-aHalfWidth, -aHalfHeight), aFrame(aHalfWidth, -aHalfHeight),
                           aFrame(aHalfWidth, aHalfHeight), aFrame(-aHalfWidth, aHalfHeight)};
  for (std::size_t k = 0; k < 4; ++k) Line(aDrawing, corners[k], corners[(k + 1) % 4]);
}

void RoundedRectangle(Drawing& aDrawing, const Frame& aFrame, double aHalfWidth, double aHalfHeight, double aCorner) {
  for (int k = 0; k < 4; ++k) {  // a corner, and the side after it, each quarter turn with the sides in turn
    const double w = k % 2 == 0 ? aHalfWidth : aHalfHeight;
    const double h = k % 2 == 0 ? aHalfHeight : aHalfWidth;
    const auto at = [&](double aX, double aY) {
      const double x[] = {aX, -aY, -aX, aY};
      const double y[] = {aY, aX, -aY, -aX};
      return aFrame(x[k], y[k]);
    };
    Arc(aDrawing, at(w - aCorner, h - aCorner), aCorner, at(w, h - aCorner), at(w - aCorner, h));
    Line(aDrawing, at(w - aCorner, h), at(aCorner - w, h));
  }
}

}  // namespace drawings
