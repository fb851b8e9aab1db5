#include "benchmarks/floor/BarePipeline.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numbers>
#include <numeric>

namespace benchmarks {

using drawings::Entity;
using drawings::Point;

namespace {

constexpr double kEnd = 1e-9;     // share of an entity that counts as its end
constexpr double kNoArea = 1e-9;  // square millimetres: what rounding leaves of a walk there and back
constexpr std::uint32_t kNone = ~0U;

double Cross(const Point& a, const Point& b) {
  return a.x * b.y - a.y * b.x;
}

double Dot(const Point& a, const Point& b) {
  return a.x * b.x + a.y * b.y;
}

Point Minus(const Point& a, const Point& b) {
  return {a.x - b.x, a.y - b.y};
}

// Grows with the angle of a vector, from 0 to 4.
double Turn(const Point& v) {
  const double share = v.y / (std::abs(v.x) + std::abs(v.y));
  if (v.x < 0) return 2 - share;
  return v.y < 0 ? 4 + share : share;
}

// How far round the circle from the arc's start, as a turn.
double TurnFromStart(const Entity& arc, const Point& point) {
  const Point from = Minus(arc.start, arc.centre);
  const Point to = Minus(point, arc.centre);
  return Turn({Dot(from, to), Cross(from, to)});
}

double Place(const Entity& entity, const Point& point) {
  if (entity.isArc) return TurnFromStart(entity, point) / TurnFromStart(entity, entity.end);
  const Point along = Minus(entity.end, entity.start);
  return Dot(Minus(point, entity.start), along) / Dot(along, along);
}

bool IsInside(double place) {
  return place > kEnd && place < 1 - kEnd;
}

struct Crossings {
  std::array<Point, 2> points;
  std::size_t count = 0;
  void Add(const Point& point) { points[count++] = point; }
};

Crossings LineLine(const Entity& a, const Entity& b) {
  const Point u = Minus(a.end, a.start);
  const Point v = Minus(b.end, b.start);
  const double s = Cross(Minus(b.start, a.start), v) / Cross(u, v);
  Crossings found;
  if (s > 0 && s < 1) found.Add({a.start.x + s * u.x, a.start.y + s * u.y});
  return found;
}

Crossings LineArc(const Entity& line, const Entity& arc) {
  const Point u = Minus(line.end, line.start);
  const Point w = Minus(line.start, arc.centre);
  const double a = Dot(u, u);
  const double b = Dot(u, w);
  const double d = b * b - a * (Dot(w, w) - arc.radius * arc.radius);
  Crossings found;
  if (!(d > 0)) return found;
  for (const double root : {-std::sqrt(d), std::sqrt(d)}) {
    const double s = (root - b) / a;
    if (s > 0 && s < 1) found.Add({line.start.x + s * u.x, line.start.y + s * u.y});
  }
  return found;
}

Crossings ArcArc(const Entity& a, const Entity& b) {
  const Point between = Minus(b.centre, a.centre);
  const double square = Dot(between, between);
  const double along = (square + a.radius * a.radius - b.radius * b.radius) / (2 * square);
  const double across = a.radius * a.radius / square - along * along;
  Crossings found;
  if (!(across > 0)) return found;
  for (const double side : {-std::sqrt(across), std::sqrt(across)}) {
    found.Add({a.centre.x + along * between.x - side * between.y, a.centre.y + along * between.y + side * between.x});
  }
  return found;
}

Crossings FindCrossings(const Entity& a, const Entity& b) {
  if (a.isArc) return b.isArc ? ArcArc(a, b) : LineArc(b, a);
  return b.isArc ? LineArc(a, b) : LineLine(a, b);
}

std::size_t Hash(const Point& point) {
  const std::uint64_t mixed = std::bit_cast<std::uint64_t>(point.x) * 0x9E3779B97F4A7C15U ^
                              std::bit_cast<std::uint64_t>(point.y) * 0xC2B2AE3D27D4EB4FU;
  return (mixed ^ (mixed >> 29)) * 0x165667B1U >> 7;
}

bool IsSame(const Point& a, const Point& b) {
  return a.x == b.x && a.y == b.y;
}

}  // namespace

std::size_t TBarePipeline::operator()() {
  MakeBoxes();
  FindCuts();
  Split();
  LinkHalfEdges();
  return TraceLoops();
}

void TBarePipeline::MakeBoxes() {
  fBoxes.reserve(fDrawing.size());
  for (const Entity& e : fDrawing) {
    Box box{std::min(e.start.x, e.end.x), std::max(e.start.x, e.end.x), std::min(e.start.y, e.end.y),
            std::max(e.start.y, e.end.y), 0};
    if (e.isArc) {
      const auto passes = [&e](double degrees) {
        const double sweep = e.endAngle - e.startAngle + (e.endAngle < e.startAngle ? 360 : 0);
        const double way = degrees - e.startAngle + (degrees < e.startAngle ? 360 : 0);
        return way < sweep;
      };
      if (passes(0)) box.right = e.centre.x + e.radius;
      if (passes(90)) box.high = e.centre.y + e.radius;
      if (passes(180)) box.left = e.centre.x - e.radius;
      if (passes(270)) box.low = e.centre.y - e.radius;
    }
    fBoxes.push_back(box);
  }
}

// Pairs whose boxes overlap, by strips of equal height that are each swept from left to right.
void TBarePipeline::FindCuts() {
  if (fBoxes.empty()) return;
  const double low = std::ranges::min(fBoxes, {}, &Box::low).low;
  const double high = std::ranges::max(fBoxes, {}, &Box::high).high;
  const auto count = static_cast<std::uint32_t>(1 + std::sqrt(static_cast<double>(fBoxes.size())) / 2);
  const double height = (high - low) / count;
  const auto stripOf = [&](double y) { return std::min(count - 1, static_cast<std::uint32_t>((y - low) / height)); };
  for (Box& box : fBoxes) box.strip = stripOf(box.low);
  std::vector<std::uint32_t> order(fBoxes.size());
  std::iota(order.begin(), order.end(), 0U);
  std::ranges::sort(order, {}, [this](std::uint32_t k) { return fBoxes[k].left; });
  std::vector<std::vector<std::uint32_t>> strips(count);
  for (const std::uint32_t k : order) {
    for (std::uint32_t s = fBoxes[k].strip; s <= stripOf(fBoxes[k].high); ++s) strips[s].push_back(k);
  }
  for (std::uint32_t s = 0; s < count; ++s) SweepStrip(s, strips[s]);
}

// A pair belongs to the strip in which the overlap of its boxes begins.
void TBarePipeline::SweepStrip(std::uint32_t aStrip, const std::vector<std::uint32_t>& aEntities) {
  for (std::size_t i = 0; i < aEntities.size(); ++i) {
    const Box& a = fBoxes[aEntities[i]];
    for (std::size_t j = i + 1; j < aEntities.size(); ++j) {
      const Box& b = fBoxes[aEntities[j]];
      if (b.left > a.right) break;
      if (a.low > b.high || b.low > a.high || std::max(a.strip, b.strip) != aStrip) continue;
      CutPair(aEntities[i], aEntities[j]);
    }
  }
}

void TBarePipeline::CutPair(std::uint32_t aFirst, std::uint32_t aSecond) {
  const Entity& a = fDrawing[aFirst];
  const Entity& b = fDrawing[aSecond];
  const Crossings found = FindCrossings(a, b);
  for (std::size_t k = 0; k < found.count; ++k) {
    const double placeOnA = Place(a, found.points[k]);
    const double placeOnB = Place(b, found.points[k]);
    if (!IsInside(placeOnA) || !IsInside(placeOnB)) continue;
    fCuts.push_back({aFirst, placeOnA, found.points[k]});
    fCuts.push_back({aSecond, placeOnB, found.points[k]});
  }
}

void TBarePipeline::Split() {
  std::ranges::sort(
      fCuts, [](const Cut& a, const Cut& b) { return a.entity != b.entity ? a.entity < b.entity : a.place < b.place; });
  const std::size_t pieces = fDrawing.size() + fCuts.size();
  fVertices.reserve(pieces);
  fHalfEdges.reserve(2 * pieces);
  fTable.assign(std::bit_ceil(2 * pieces + 2), kNone);
  auto cut = fCuts.begin();
  for (std::uint32_t k = 0; k < fDrawing.size(); ++k) {
    Point start = fDrawing[k].start;
    for (; cut != fCuts.end() && cut->entity == k; ++cut) {
      AddPiece(fDrawing[k], start, cut->point);
      start = cut->point;
    }
    AddPiece(fDrawing[k], start, fDrawing[k].end);
  }
}

void TBarePipeline::AddPiece(const Entity& aEntity, const Point& aStart, const Point& aEnd) {
  Point leaving = Minus(aEnd, aStart);
  Point returning = Minus(aStart, aEnd);
  double curvature = 0;
  double term = Cross(aStart, aEnd);
  if (aEntity.isArc) {
    const Point from = Minus(aStart, aEntity.centre);
    const Point to = Minus(aEnd, aEntity.centre);
    leaving = {-from.y, from.x};
    returning = {to.y, -to.x};
    curvature = 1 / aEntity.radius;
    double sweep = std::atan2(Cross(from, to), Dot(from, to));
    if (sweep < 0) sweep += 2 * std::numbers::pi;
    term += aEntity.radius * aEntity.radius * (sweep - std::sin(sweep));
  }
  fHalfEdges.push_back({VertexAt(aStart), Turn(leaving), curvature, term});
  fHalfEdges.push_back({VertexAt(aEnd), Turn(returning), -curvature, -term});
}

std::uint32_t TBarePipeline::VertexAt(const Point& aPoint) {
  std::size_t place = Hash(aPoint) & (fTable.size() - 1);
  while (fTable[place] != kNone && !IsSame(fVertices[fTable[place]], aPoint)) place = (place + 1) & (fTable.size() - 1);
  if (fTable[place] == kNone) {
    fTable[place] = static_cast<std::uint32_t>(fVertices.size());
    fVertices.push_back(aPoint);
  }
  return fTable[place];
}

// The half-edges of a vertex in their order round it; who arrives leaves again by the next one to the right.
void TBarePipeline::LinkHalfEdges() {
  std::vector<std::uint32_t> first(fVertices.size() + 1, 0);
  for (const HalfEdge& edge : fHalfEdges) ++first[edge.origin + 1];
  std::partial_sum(first.begin(), first.end(), first.begin());
  std::vector<std::uint32_t> round(fHalfEdges.size());
  std::vector<std::uint32_t> end(first.begin(), first.end() - 1);
  for (std::uint32_t k = 0; k < fHalfEdges.size(); ++k) round[end[fHalfEdges[k].origin]++] = k;
  fNext.resize(fHalfEdges.size());
  for (std::size_t v = 0; v < fVertices.size(); ++v) {
    const auto begin = round.begin() + first[v];
    const std::size_t count = first[v + 1] - first[v];
    std::sort(begin, begin + static_cast<std::ptrdiff_t>(count), [this](std::uint32_t a, std::uint32_t b) {
      const HalfEdge& left = fHalfEdges[a];
      const HalfEdge& right = fHalfEdges[b];
      return left.direction != right.direction ? left.direction < right.direction : left.curvature < right.curvature;
    });
    for (std::size_t k = 0; k < count; ++k) {
      fNext[begin[static_cast<std::ptrdiff_t>((k + 1) % count)] ^ 1U] = begin[static_cast<std::ptrdiff_t>(k)];
    }
  }
}

std::size_t TBarePipeline::TraceLoops() {
  std::vector<char> seen(fHalfEdges.size(), 0);
  std::size_t faces = 0;
  for (std::uint32_t k = 0; k < fHalfEdges.size(); ++k) {
    double doubleArea = 0;
    for (std::uint32_t edge = k; !seen[edge]; edge = fNext[edge]) {
      seen[edge] = 1;
      doubleArea += fHalfEdges[edge].term;
    }
    if (doubleArea > kNoArea) {
      ++faces;
      fTotalArea += doubleArea / 2;
    }
  }
  return faces;
}

}  // namespace benchmarks
