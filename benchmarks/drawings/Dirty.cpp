// Drawings with the faults that drawings have.

#include <cmath>

#include "benchmarks/drawings/Pen.h"

namespace drawings {

namespace {

// As many instances of a shape as it takes, each turned and sized at random in a cell of its own.
template <typename TAddInstance>
Drawing Instances(std::size_t aEntities, std::uint64_t aSeed, const TAddInstance& aAddInstance) {
  constexpr double kCellPitch = 100;
  constexpr double kColumns = 10;
  Drawing drawing;
  Dice dice(aSeed);
  for (double k = 0; drawing.size() < aEntities; ++k) {
    const Point centre{kCellPitch * std::fmod(k, kColumns) + dice.Between(0, 1),
                       kCellPitch * std::floor(k / kColumns) + dice.Between(0, 1)};
    aAddInstance(drawing, Frame(centre, dice.Between(0, 360)), dice.Between(10, 20), dice);
  }
  return drawing;
}

}  // namespace

Drawing Doubled(std::size_t aEntities) {
  return Instances(aEntities, 11, [](Drawing& drawing, const Frame& frame, double size, Dice&) {
    RoundedRectangle(drawing, frame, size, size / 2, size / 5);
    const std::size_t count = 8;
    for (std::size_t k = 0; k < count; ++k) drawing.push_back(drawing[drawing.size() - count]);
  });
}

Drawing LineBetweenArcs(std::size_t aEntities) {
  return Instances(aEntities, 12, [](Drawing& drawing, const Frame& frame, double size, Dice& dice) {
    Circle(drawing, frame, size);
    const Point left = frame.At(0, 0, 90 + dice.Between(-50, 50))(size, 0);
    const Point right = frame.At(0, 0, 270 + dice.Between(-50, 50))(size, 0);
    Line(drawing, left, right);
  });
}

Drawing OverlappingEdges(std::size_t aEntities) {
  return Instances(aEntities, 13, [](Drawing& drawing, const Frame& frame, double size, Dice& dice) {
    Rectangle(drawing, frame.At(-size / 2, 0, 0), size / 2, size);
    Rectangle(drawing, frame.At(size / 2, dice.Between(size / 4, size), 0), size / 2, size);
  });
}

Drawing OverlappingArcs(std::size_t aEntities) {
  return Instances(aEntities, 14, [](Drawing& drawing, const Frame& frame, double size, Dice& dice) {
    const double overlap = dice.Between(10, 60);
    const double start = dice.Between(0, 360);
    ArcByAngles(drawing, frame(0, 0), size, start, 180 + overlap);
    ArcByAngles(drawing, frame(0, 0), size, start + 180, 180 + overlap);
  });
}

Drawing CircleInSquare(std::size_t aEntities) {
  return Instances(aEntities, 15, [](Drawing& drawing, const Frame& frame, double size, Dice& dice) {
    Rectangle(drawing, frame, size, size);
    Circle(drawing, frame.At(0, 0, dice.Between(10, 80)), size);
  });
}

Drawing Gaps(std::size_t aEntities) {
  constexpr double kGap = 1e-5;
  return Instances(aEntities, 16, [](Drawing& drawing, const Frame& frame, double size, Dice&) {
    const std::size_t first = drawing.size();
    Rectangle(drawing, frame, size, size);
    for (std::size_t k = first; k < drawing.size(); ++k) {
      Entity& side = drawing[k];
      const double share = kGap / std::hypot(side.end.x - side.start.x, side.end.y - side.start.y);
      side.end.x += share * (side.start.x - side.end.x);
      side.end.y += share * (side.start.y - side.end.y);
    }
  });
}

}  // namespace drawings
