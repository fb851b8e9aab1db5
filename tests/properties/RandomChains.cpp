#include "tests/properties/RandomChains.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"

namespace GeometryEngine::properties {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;

bool Flip() {
  return *rc::gen::arbitrary<bool>();
}

TDXFEntity StoredEitherWay(TDXFEntity aLine) {
  if (Flip()) std::swap(aLine.StartCoords, aLine.EndCoords);
  return aLine;
}

double Distance(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  return std::hypot(aTo.x - aFrom.x, aTo.y - aFrom.y);
}

/// Vertices at ascending angles, none nearer to the next than half of an even share.
TCoordinateArray StarVertices(double aLeastRadius, double aLargestRadius) {
  const int count = *rc::gen::inRange(3, 13);
  const double offset = *Between(0, kTurn);
  TCoordinateArray vertices;
  for (int i = 0; i < count; ++i) {
    const double angle = offset + (i + *Between(0, 0.5)) * kTurn / count;
    const double radius = *Between(aLeastRadius, aLargestRadius);
    vertices.push_back({radius * std::cos(angle), radius * std::sin(angle)});
  }
  return vertices;
}

template <typename TEdge>
TEntityArray Close(const TCoordinateArray& aVertices, const TEdge& aEdge) {
  TEntityArray chain;
  for (std::size_t i = 0; i < aVertices.size(); ++i) {
    chain.push_back(aEdge(aVertices[i], aVertices[(i + 1) % aVertices.size()]));
  }
  return chain;
}

TEntityCoordinate OtherEnd(const TEntityCoordinate& aVertex, const TDXFEntity& aEntity) {
  const double toStart = Distance(aVertex, aEntity.StartCoords);
  return toStart < Distance(aVertex, aEntity.EndCoords) ? aEntity.EndCoords : aEntity.StartCoords;
}

/// The end of the first entity that the second one does not share.
TEntityCoordinate FirstVertex(const TEntityArray& aChain) {
  const TDXFEntity& second = aChain[1];
  const auto gap = [&](const TEntityCoordinate& aPoint) {
    return std::min(Distance(aPoint, second.StartCoords), Distance(aPoint, second.EndCoords));
  };
  const TDXFEntity& first = aChain[0];
  return gap(first.StartCoords) < gap(first.EndCoords) ? first.EndCoords : first.StartCoords;
}

/// Points from one end of an arc to the other without the last one.
TCoordinateArray ArcPoints(const TDXFEntity& aArc, const TEntityCoordinate& aFrom, int aChords) {
  const TEntityCoordinate& c = aArc.CentreCoords;
  double start = std::atan2(aArc.StartCoords.y - c.y, aArc.StartCoords.x - c.x);
  double end = std::atan2(aArc.EndCoords.y - c.y, aArc.EndCoords.x - c.x);
  if (end < start) end += kTurn;
  if (Distance(aFrom, aArc.StartCoords) > Distance(aFrom, aArc.EndCoords)) std::swap(start, end);
  TCoordinateArray points;
  for (int i = 0; i < aChords; ++i) {
    const double angle = start + (end - start) * i / aChords;
    points.push_back({c.x + aArc.radius * std::cos(angle), c.y + aArc.radius * std::sin(angle)});
  }
  return points;
}

}  // namespace

rc::Gen<double> Between(double aLow, double aHigh) {
  return rc::gen::map(rc::gen::inRange(0, 1000001),
                      [=](int aStep) { return aLow + (aHigh - aLow) * (static_cast<double>(aStep) / 1e6); });
}

rc::Gen<TEntityArray> StarChain() {
  return rc::gen::exec([] {
    return Close(StarVertices(20, 30), [](const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
      if (Flip()) return StoredEitherWay(CreateEntity_Line(aFrom, aTo));
      const double radius = Distance(aFrom, aTo) * *Between(1.5, 5);
      return CreateEntity_Arc_StartEnd_Radius(aFrom, aTo, Flip() ? radius : -radius);
    });
  });
}

rc::Gen<TEntityArray> ConvexChain() {
  return rc::gen::exec([] {
    return Close(StarVertices(30, 30), [](const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
      if (Flip()) return StoredEitherWay(CreateEntity_Line(aFrom, aTo));
      return CreateEntity_Arc_StartEnd_Radius(aFrom, aTo, *Between(35, 90));
    });
  });
}

TCoordinateArray Vertices(const TEntityArray& aChain) {
  TCoordinateArray vertices{FirstVertex(aChain)};
  for (std::size_t i = 0; i + 1 < aChain.size(); ++i) vertices.push_back(OtherEnd(vertices.back(), aChain[i]));
  return vertices;
}

TEntityArray Reversed(const TEntityArray& aChain) {
  return {aChain.rbegin(), aChain.rend()};
}

TCoordinateArray Polyline(const TEntityArray& aChain, int aChords) {
  const TCoordinateArray vertices = Vertices(aChain);
  TCoordinateArray points;
  for (std::size_t i = 0; i < aChain.size(); ++i) {
    const TCoordinateArray own =
        aChain[i].EntityType == DXFArc ? ArcPoints(aChain[i], vertices[i], aChords) : TCoordinateArray{vertices[i]};
    points.insert(points.end(), own.begin(), own.end());
  }
  return points;
}

}  // namespace GeometryEngine::properties
