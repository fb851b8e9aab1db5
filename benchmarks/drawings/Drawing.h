#pragma once

// Drawings made by rule and in any size, for the benchmarks and for the programs that other systems are measured with.
// Nothing here knows the library: every program reads the same numbers.

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace drawings {

struct Point {
  double x = 0;  ///< millimetres
  double y = 0;
};

/// A line, or an arc that runs anticlockwise from its start to its end, by at most half a circle. Where a drawing joins
/// two entities they share the end to the last bit, unless its subject is that they don't.
struct Entity {
  bool isArc = false;
  Point start;
  Point end;
  Point centre;           ///< arcs only, as are the three below
  double radius = 0;      ///< within rounding of the distance of both ends from the centre
  double startAngle = 0;  ///< degrees, 0 to 360
  double endAngle = 0;
};

using Drawing = std::vector<Entity>;

/// A kind of drawing that can be made in any size.
struct Kind {
  std::string_view name;
  std::string_view about;
  Drawing (*make)(std::size_t aEntities);  ///< about as many entities; what a kind allows comes nearest
};

/// The kinds in the order of the tables.
std::span<const Kind> Kinds();

/// The kind of this name; null when there is none.
const Kind* FindKind(std::string_view aName);

// The kinds, one function each
// -----------------------------------------------------------------------------------------

/// Machines of 36 to 72 slots side by side, a face for every eight entities: stators with hairpins in open slots,
/// rotors with pairs of magnets and flux barriers.
Drawing Machines(std::size_t aEntities);
/// One machine with as many slots as it takes: few very long outlines.
Drawing OneMachine(std::size_t aEntities);
/// Circles, turned squares and squares with round corners, nested in one another up to 20 deep.
Drawing Nested(std::size_t aEntities);
/// Short lines and arcs in random places that cross about four others each, about as many faces as entities.
Drawing Random(std::size_t aEntities);
/// Long lines, half of them across the others, all a little askew.
Drawing Crossing(std::size_t aEntities);
/// Concentric circles of two arcs each, and as many rays as circles' arcs across all of them.
Drawing CirclesAndRays(std::size_t aEntities);

// Dirty drawings. Instances stand apart from one another, each turned and sized at random; the faces that a draughtsman
// sees are so many an instance.

Drawing Doubled(std::size_t aEntities);           ///< every entity drawn twice; 1 face
Drawing LineBetweenArcs(std::size_t aEntities);   ///< a line that ends in the middle of two arcs; 2 faces
Drawing OverlappingEdges(std::size_t aEntities);  ///< two outlines whose edges overlap in part; 2 faces
Drawing OverlappingArcs(std::size_t aEntities);   ///< a circle as two arcs that overlap; 1 face
Drawing CircleInSquare(std::size_t aEntities);    ///< a circle that touches the sides of a turned square; 5 faces
Drawing Gaps(std::size_t aEntities);              ///< ends that miss each other by 1e-5; 1 face

// Shapes on which a careless algorithm takes for ever
// --------------------------------------------------------------------

Drawing OpenPolyline(std::size_t aEntities);     ///< a zigzag from left to right that closes nowhere
Drawing Comb(std::size_t aEntities);             ///< a line with teeth standing on it that close nowhere
Drawing HorizontalLines(std::size_t aEntities);  ///< long lines above one another that don't meet
Drawing Polygon(std::size_t aEntities);          ///< one closed outline of lines and arcs by turns

}  // namespace drawings
