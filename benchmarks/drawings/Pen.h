#pragma once

// What the kinds of drawings are drawn with: a frame that places local coordinates on the sheet, and strokes.

#include <cstdint>
#include <random>

#include "benchmarks/drawings/Drawing.h"

namespace drawings {

/// Local coordinates on the sheet. The same local point gives the same bits, which is how entities share their ends.
class Frame {
 public:
  Frame() = default;
  Frame(const Point& aOrigin, double aDegrees);

  Point operator()(double aX, double aY) const;
  /// A frame at a local point of this one, turned further.
  Frame At(double aX, double aY, double aDegrees) const;

 private:
  Point fOrigin;
  double fDegrees = 0;
  double fCosine = 1;
  double fSine = 0;
};

/// Numbers that are the same on every system.
class Dice {
 public:
  explicit Dice(std::uint64_t aSeed) : fEngine(aSeed) {}

  double Between(double aLow, double aHigh);
  std::size_t Below(std::size_t aCount);

 private:
  std::mt19937_64 fEngine;
};

void Line(Drawing& aDrawing, const Point& aStart, const Point& aEnd);
/// Anticlockwise from start to end. REQUIRES: at most half a circle.
void Arc(Drawing& aDrawing, const Point& aCentre, double aRadius, const Point& aStart, const Point& aEnd);
/// By angles; an arc over half a circle is drawn in two pieces.
void ArcByAngles(Drawing& aDrawing, const Point& aCentre, double aRadius, double aFrom, double aSweep);
/// Two half arcs.
void Circle(Drawing& aDrawing, const Frame& aFrame, double aRadius);
/// Four lines round the frame's origin.
void Rectangle(Drawing& aDrawing, const Frame& aFrame, double aHalfWidth, double aHalfHeight);
/// Four lines and four arcs round the frame's origin.
void RoundedRectangle(Drawing& aDrawing, const Frame& aFrame, double aHalfWidth, double aHalfHeight, double aCorner);

}  // namespace drawings
