// Shapes on which a careless algorithm takes for ever.

#include <cmath>
#include <numbers>

#include "benchmarks/drawings/Pen.h"

namespace drawings {

Drawing OpenPolyline(std::size_t aEntities) {
  Drawing drawing;
  drawing.reserve(aEntities);
  const auto vertex = [](std::size_t k) { return Point{static_cast<double>(k), k % 2 == 0 ? 0.0 : 3.0}; };
  for (std::size_t k = 0; k < aEntities; ++k) Line(drawing, vertex(k), vertex(k + 1));
  return drawing;
}

Drawing Comb(std::size_t aEntities) {
  Drawing drawing;
  drawing.reserve(aEntities);
  Dice dice(21);
  const auto length = static_cast<double>(aEntities);
  Line(drawing, {0, 0}, {length, 0});
  for (double k = 0.5; drawing.size() < aEntities; ++k) Line(drawing, {k, 0}, {k, dice.Between(1, 100)});
  return drawing;
}

Drawing HorizontalLines(std::size_t aEntities) {
  Drawing drawing;
  drawing.reserve(aEntities);
  Dice dice(22);
  const double length = 1000;
  for (std::size_t k = 0; k < aEntities; ++k) {
    const auto height = static_cast<double>(k);
    Line(drawing, {dice.Between(0, 1), height}, {length + dice.Between(0, 1), height});
  }
  return drawing;
}

Drawing Polygon(std::size_t aEntities) {
  Drawing drawing;
  drawing.reserve(aEntities);
  const auto count = static_cast<double>(aEntities);
  const double radius = count / (2 * std::numbers::pi);
  const auto vertex = [&](std::size_t k) {
    return Frame({0, 0}, 360 * static_cast<double>(k % aEntities) / count)(radius + (k % 4 < 2 ? 0 : 0.4), 0);
  };
  for (std::size_t k = 0; k < aEntities; ++k) {
    const Point from = vertex(k);
    const Point to = vertex(k + 1);
    if (k % 2 == 1) {
      Line(drawing, from, to);
    } else {
      const Point centre{(from.x + to.x) / 2 * 0.999, (from.y + to.y) / 2 * 0.999};
      Arc(drawing, centre, std::hypot(from.x - centre.x, from.y - centre.y), from, to);
    }
  }
  return drawing;
}

}  // namespace drawings
