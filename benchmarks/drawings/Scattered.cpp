// Loops within loops, and entities that cross one another.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "benchmarks/drawings/Pen.h"

namespace drawings {

namespace {

constexpr double kCellPitch = 100;  // of the sheet on which the outermost loops stand
constexpr double kOutermost = 48;   // radius of the circle round an outermost loop
constexpr double kInnermost = 1.5;  // no loop is smaller
constexpr double kEntitiesPerOutermost = 230;

// A loop of circumscribed radius `aRadius`; the radius of a circle inside it.
double AddLoop(Drawing& aDrawing, const Frame& aFrame, double aRadius, std::size_t aShape) {
  const double half = aRadius / std::numbers::sqrt2;
  if (aShape == 0) {
    Circle(aDrawing, aFrame, aRadius);
    return aRadius;
  }
  if (aShape == 1) {
    Rectangle(aDrawing, aFrame, half, half);
  } else {
    RoundedRectangle(aDrawing, aFrame, half, half, half / 4);
  }
  return half;
}

struct Nest {
  Frame frame;
  double radius;
};

// A loop, and within it one or four others, as long as there is room and the drawing is to grow.
void AddNest(Drawing& aDrawing, const Nest& aOutermost, Dice& aDice, std::size_t aEntities) {
  std::vector<Nest> pending{aOutermost};
  for (std::size_t k = 0; k < pending.size() && aDrawing.size() < aEntities; ++k) {
    const Nest nest = pending[k];
    const double room = AddLoop(aDrawing, nest.frame, nest.radius, aDice.Below(3));
    const bool single = aDice.Below(2) == 0;
    const double radius = room * (single ? 0.85 : 0.36);
    if (radius < kInnermost) continue;
    for (int child = 0; child < (single ? 1 : 4); ++child) {
      const Frame turned = nest.frame.At(0, 0, 90 * child + aDice.Between(0, 9));
      pending.push_back({turned.At(single ? 0 : 0.55 * room, 0, aDice.Between(0, 90)), radius});
    }
  }
}

}  // namespace

Drawing Nested(std::size_t aEntities) {
  Drawing drawing;
  drawing.reserve(aEntities + 8);
  Dice dice(2);
  const double cells = static_cast<double>(aEntities) / kEntitiesPerOutermost;
  const auto columns = static_cast<std::size_t>(std::ceil(std::sqrt(cells)));
  for (std::size_t k = 0; drawing.size() < aEntities; ++k) {
    const Point centre{kCellPitch * static_cast<double>(k % columns), kCellPitch * static_cast<double>(k / columns)};
    AddNest(drawing, {Frame(centre, dice.Between(0, 90)), kOutermost}, dice, aEntities);
  }
  return drawing;
}

Drawing Random(std::size_t aEntities) {
  constexpr double kSpacing = 3.895;  // of the entities on average
  Drawing drawing;
  drawing.reserve(aEntities + 1);
  Dice dice(3);
  const double side = kSpacing * std::sqrt(static_cast<double>(aEntities));
  while (drawing.size() < aEntities) {
    const Point centre{dice.Between(0, side), dice.Between(0, side)};
    const double direction = dice.Between(0, 360);
    if (dice.Below(2) == 0) {
      const double half = dice.Between(2, 9);
      const Frame frame(centre, direction);
      Line(drawing, frame(-half, 0), frame(half, 0));
    } else {
      ArcByAngles(drawing, centre, dice.Between(1.5, 6), direction, dice.Between(20, 350));
    }
  }
  return drawing;
}

Drawing Crossing(std::size_t aEntities) {
  Drawing drawing;
  drawing.reserve(aEntities + 1);
  Dice dice(4);
  const auto count = static_cast<double>(aEntities / 2);
  const Frame sheet({3, 5}, 11);
  for (double k = 0; k < count; ++k) {  // lines of one family keep their distance along their whole length
    const auto askew = [&] { return k + dice.Between(-0.3, 0.3); };
    Line(drawing, sheet(-1, askew()), sheet(count, askew()));
    Line(drawing, sheet(askew(), -1), sheet(askew(), count));
  }
  return drawing;
}

Drawing CirclesAndRays(std::size_t aEntities) {
  Drawing drawing;
  drawing.reserve(aEntities + 4);
  Dice dice(5);
  const std::size_t circles = aEntities / 4;
  const std::size_t rays = aEntities - 2 * circles;
  const Frame sheet({3, 5}, 11);
  for (std::size_t k = 1; k <= circles; ++k)
    Circle(drawing, sheet.At(0, 0, dice.Between(0, 360)), 10.0 + static_cast<double>(k));
  for (std::size_t k = 0; k < rays; ++k) {
    const double step = 360.0 / static_cast<double>(rays);
    const Frame ray = sheet.At(0, 0, step * (static_cast<double>(k) + dice.Between(-0.3, 0.3)));
    Line(drawing, ray(9, 0), ray(12.0 + static_cast<double>(circles), 0));
  }
  return drawing;
}

}  // namespace drawings
