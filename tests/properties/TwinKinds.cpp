#include "tests/properties/TwinKinds.h"

#include <algorithm>
#include <utility>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"

namespace GeometryEngine::properties {

TEntityCoordinate AnyPoint(Random& aRandom) {
  return {aRandom.Between(0, kTwinSize), aRandom.Between(0, kTwinSize)};
}

TEntityCoordinate OnCircle(const TEntityCoordinate& aCentre, double aRadius, double aAngle) {
  const double radians = aAngle * M_PI / 180;
  return {aCentre.x + aRadius * std::cos(radians), aCentre.y + aRadius * std::sin(radians)};
}

TDXFEntity Arc(const TEntityCoordinate& aCentre, double aRadius, double aStart, double aEnd) {
  return CreateEntity_Arc(aCentre.x, aCentre.y, aRadius, aStart, aEnd);
}

namespace {

/// A corner of a grid of so many cells.
TEntityCoordinate GridPoint(Random& aRandom, int aCells) {
  const double cell = kTwinSize / aCells;
  return {cell * Whole(aRandom, 0, aCells), cell * Whole(aRandom, 0, aCells)};
}

void AddCircle(TEntityArray& aEntities, const TEntityCoordinate& aCentre, double aRadius, double aTurn) {
  aEntities.push_back(Arc(aCentre, aRadius, aTurn, aTurn + 180));
  aEntities.push_back(Arc(aCentre, aRadius, aTurn + 180, aTurn + 360));
}

void AddPolygon(TEntityArray& aEntities, const TEntityCoordinate& aCentre, double aRadius, double aTurn, int aSides) {
  for (int i = 0; i < aSides; ++i) {
    aEntities.push_back(CreateEntity_Line(OnCircle(aCentre, aRadius, aTurn + i * 360.0 / aSides),
                                          OnCircle(aCentre, aRadius, aTurn + (i + 1) % aSides * 360.0 / aSides)));
  }
}

// Kinds --------------------------------------------------------------------------------------------------------------

TEntityArray Lines(Random& aRandom) {
  TEntityArray entities;
  const int count = Whole(aRandom, 6, 16);
  for (int i = 0; i < count; ++i) entities.push_back(CreateEntity_Line(AnyPoint(aRandom), AnyPoint(aRandom)));
  return entities;
}

TEntityArray LinesAndArcs(Random& aRandom) {
  TEntityArray entities = Lines(aRandom);
  const int count = Whole(aRandom, 2, 10);
  for (int i = 0; i < count; ++i) {
    const double start = aRandom.Between(-360, 720);
    entities.push_back(Arc(AnyPoint(aRandom), aRandom.Between(3, 40), start, start + aRandom.Between(0, 360)));
  }
  return entities;
}

TEntityArray LoopsInLoops(Random& aRandom) {
  TEntityArray entities;
  const int cells = Whole(aRandom, 1, 2);
  for (int cell = 0; cell < cells * cells; ++cell) {
    const TEntityCoordinate centre{kTwinSize * (0.5 + cell % cells) / cells, kTwinSize * (0.5 + cell / cells) / cells};
    for (double radius = kTwinSize / cells / 2; radius > 4 && entities.size() < 40;
         radius *= aRandom.Between(0.4, 0.9)) {
      if (aRandom.Chance(0.4)) {
        AddCircle(entities, centre, radius, 15 * Whole(aRandom, 0, 23));
      } else {
        AddPolygon(entities, centre, radius, aRandom.Between(0, 360), Whole(aRandom, 3, 6));
      }
    }
  }
  return entities;
}

/// A sector of rings and spokes about the origin, as of a machine; some of the spokes stop at T-junctions.
TEntityArray Sector(Random& aRandom) {
  TEntityArray entities;
  const double from = 15 * Whole(aRandom, -4, 12);
  const int spokes = Whole(aRandom, 1, 5);
  const double step = OneOf(aRandom, {10.0, 15.0, 22.5, 30.0, 36.0});
  const int rings = Whole(aRandom, 1, 4);
  const double width = kTwinSize / (rings + 1);
  for (int ring = 0; ring <= rings; ++ring) {
    entities.push_back(Arc({0, 0}, width * (ring + 1), from, from + spokes * step));
    for (int spoke = 0; spoke <= spokes && ring < rings; ++spoke) {
      const double angle = from + spoke * step;
      const double reach = aRandom.Chance(0.85) ? ring + 2 : ring + 1.5;
      entities.push_back(
          CreateEntity_Line(OnCircle({0, 0}, width * (ring + 1), angle), OnCircle({0, 0}, width * reach, angle)));
      if (aRandom.Chance(0.2))
        AddCircle(entities, OnCircle({0, 0}, width * (ring + 1.5), angle + step / 2), width / 6, 0);
    }
  }
  return entities;
}

TEntityArray Grid(Random& aRandom) {
  TEntityArray entities;
  const int cells = Whole(aRandom, 2, 5);
  const double cell = kTwinSize / cells;
  for (int i = 0; i <= cells; ++i) {
    const double from = aRandom.Chance(0.8) ? 0 : cell * Whole(aRandom, 0, cells - 1);
    entities.push_back(CreateEntity_Line(from, i * cell, kTwinSize, i * cell));
    entities.push_back(CreateEntity_Line(i * cell, 0, i * cell, aRandom.Chance(0.8) ? kTwinSize : cell * (i + 1) / 2));
  }
  for (int i = Whole(aRandom, 0, 5); i > 0; --i) {
    entities.push_back(CreateEntity_Line(GridPoint(aRandom, cells), GridPoint(aRandom, 2 * cells)));
  }
  return entities;
}

/// Lines between corners of a small grid: overlaps, upright ones, repeated ones.
TEntityArray GridLines(Random& aRandom) {
  TEntityArray entities;
  const int cells = Whole(aRandom, 2, 4);
  for (int i = Whole(aRandom, 8, 22); i > 0; --i) {
    entities.push_back(CreateEntity_Line(GridPoint(aRandom, cells), GridPoint(aRandom, cells)));
  }
  return entities;
}

/// Arcs about corners of a small grid, angles and radii in steps: one circle's arcs that overlap, centres at one
/// height, centres that are the same, circles that touch, sweeps of 0, sweeps through 0 and 180 degrees.
TEntityArray GridArcs(Random& aRandom) {
  TEntityArray entities;
  const double step = OneOf(aRandom, {30.0, 45.0, 90.0});
  const int cells = Whole(aRandom, 1, 4);
  const int steps = static_cast<int>(360 / step);
  for (int i = Whole(aRandom, 5, 16); i > 0; --i) {
    const double start = step * Whole(aRandom, -steps, 2 * steps);
    entities.push_back(Arc(GridPoint(aRandom, cells), kTwinSize / cells / 4 * Whole(aRandom, 1, 4), start,
                           start + step * Whole(aRandom, 0, steps)));
  }
  for (int i = Whole(aRandom, 0, 8); i > 0; --i) {
    entities.push_back(CreateEntity_Line(GridPoint(aRandom, 4 * cells), GridPoint(aRandom, 4 * cells)));
  }
  return entities;
}

TEntityArray CirclesAndRays(Random& aRandom) {
  TEntityArray entities;
  const TEntityCoordinate centre = aRandom.Chance(0.5) ? TEntityCoordinate{} : AnyPoint(aRandom);
  for (int i = Whole(aRandom, 1, 5); i > 0; --i) AddCircle(entities, centre, 10.0 * i, 30 * Whole(aRandom, 0, 11));
  for (int i = Whole(aRandom, 1, 8); i > 0; --i) {
    entities.push_back(
        CreateEntity_Line(centre, OnCircle(centre, aRandom.Between(5, 60), 22.5 * Whole(aRandom, 0, 15))));
  }
  return entities;
}

/// Long upright lines, exactly so and nearly, crossed by level and sloped ones.
TEntityArray Uprights(Random& aRandom) {
  TEntityArray entities;
  const double t = OneOf(aRandom, {0.001, 0.5});
  for (int i = Whole(aRandom, 3, 8); i > 0; --i) {
    const double x = 10.0 * Whole(aRandom, 0, 10);
    const double lean = OneOf(aRandom, {0.0, 0.0, 0.4, 0.9, 1.0, 1.1, 1.8, 30.0}) * t;
    entities.push_back(CreateEntity_Line(x, -10, x + lean, 10.0 * Whole(aRandom, 1, 12)));
  }
  for (int i = Whole(aRandom, 3, 8); i > 0; --i) {
    const double y = 10.0 * Whole(aRandom, 0, 10);
    entities.push_back(CreateEntity_Line(10.0 * Whole(aRandom, -1, 5), y, 10.0 * Whole(aRandom, 5, 11),
                                         y + OneOf(aRandom, {0.0, 0.0, 1.0, -7.0}) * aRandom.Between(0, 3)));
  }
  return entities;
}

/// Steep lines that fall, crossed by pairs of lines so close to each other that both points of a pair have one x within
/// the tolerance, in a mesh of others: such points come in the wrong order, and walks go astray between them.
TEntityArray FallingLines(Random& aRandom) {
  TEntityArray entities;
  const double t = OneOf(aRandom, {0.001, 0.5});
  const double lean = OneOf(aRandom, {10.0, 50.0}) * t;
  for (int i = Whole(aRandom, 1, 3); i > 0; --i) {
    const double x = aRandom.Between(20, 80);
    entities.push_back(CreateEntity_Line(x + lean, -10, x - lean, 110));
    const TEntityCoordinate crossing{x, aRandom.Between(30, 70)};
    for (const double gap : {0.0, aRandom.Between(0.1, 0.9) * 60 * t / lean}) {
      const TEntityCoordinate foot{crossing.x, crossing.y + gap};
      const double direction = aRandom.Between(-45, 45);
      entities.push_back(CreateEntity_Line(OnCircle(foot, -90, direction), OnCircle(foot, 90, direction)));
    }
  }
  for (int i = Whole(aRandom, 2, 7); i > 0; --i) {
    const TEntityCoordinate from = AnyPoint(aRandom);
    const double direction = aRandom.Between(0, 180);
    entities.push_back(CreateEntity_Line(OnCircle(from, -70, direction), OnCircle(from, 70, direction)));
  }
  return entities;
}

/// One line or arc that very many others meet, some of them at the same place within the tolerance.
TEntityArray Comb(Random& aRandom) {
  const double t = OneOf(aRandom, {0.001, 0.001, 0.5});
  const double turn = OneOf(aRandom, {0.0, 0.0, 90.0, 180.0, 30.0, 90.001});
  const double radius = OneOf(aRandom, {0.0, 0.0, 30.0, 55.0});
  const double start = 45 * Whole(aRandom, -2, 7);
  const TEntityCoordinate centre{50, 50};
  TEntityArray entities;
  if (radius > 0) {
    entities.push_back(Arc(centre, radius, start, start + OneOf(aRandom, {90.0, 180.0, 270.0, 359.0})));
  } else {
    entities.push_back(CreateEntity_Line(OnCircle(centre, 60, turn), OnCircle(centre, 60, turn + 180)));
  }
  double along = aRandom.Between(0, 10);
  for (int i = Whole(aRandom, 12, 45); i > 0; --i) {
    along += aRandom.Chance(0.5) ? OneOf(aRandom, {0.0, 0.5, 0.9, 1.0, 1.8}) * t : aRandom.Between(0, 6);
    const double reach = aRandom.Chance(0.2) ? 0 : aRandom.Between(0.001, 15);
    const double at = radius > 0 ? 0 : along - 60;
    const TEntityCoordinate foot =
        radius > 0 ? OnCircle(centre, radius, start + 3 * along) : OnCircle(centre, at, turn);
    const double direction = radius > 0 ? start + 3 * along : turn + OneOf(aRandom, {90.0, 90.0, 60.0});
    entities.push_back(CreateEntity_Line(OnCircle(foot, -reach, direction), OnCircle(foot, 10, direction)));
  }
  if (aRandom.Chance(0.3)) entities.push_back(entities.front());
  if (aRandom.Chance(0.6)) AddPolygon(entities, centre, OneOf(aRandom, {62.0, 35.0}), turn, Whole(aRandom, 3, 6));
  return entities;
}

/// Trees of lines with loops at some of their joints: ends that dangle, bridges between loops and inside them.
TEntityArray LoopsOnTrees(Random& aRandom) {
  TEntityArray entities;
  TCoordinateArray joints{AnyPoint(aRandom)};
  for (int i = Whole(aRandom, 8, 40); i > 0; --i) {
    const TEntityCoordinate joint =
        joints[static_cast<std::size_t>(Whole(aRandom, 0, static_cast<int>(joints.size()) - 1))];
    const double reach = aRandom.Between(3, 15);
    const double angle = aRandom.Chance(0.5) ? 45 * Whole(aRandom, 0, 7) : aRandom.Between(0, 360);
    if (aRandom.Chance(0.15)) {
      AddPolygon(entities, OnCircle(joint, reach, angle), reach, angle + 180, Whole(aRandom, 3, 5));
      continue;
    }
    joints.push_back(OnCircle(joint, reach, angle));
    entities.push_back(CreateEntity_Arc_StartEnd_Radius(joint, joints.back(), OneOf(aRandom, {0.0, 0.0, 40.0, -40.0})));
  }
  return entities;
}

/// Pairs that all but touch: arcs and lines beside an arc, some tolerances from its circle, and arcs that end there.
TEntityArray Touchings(Random& aRandom) {
  const double t = OneOf(aRandom, {0.001, 0.001, 0.5});
  TEntityArray entities;
  for (int i = Whole(aRandom, 2, 7); i > 0; --i) {
    const TEntityCoordinate centre = AnyPoint(aRandom);
    const double radius = aRandom.Between(4, 20);
    const double at = aRandom.Chance(0.5) ? 90 * Whole(aRandom, 0, 3) : aRandom.Between(0, 360);
    const double gap = OneOf(aRandom, {0.0, 0.5, -0.5, 0.9, -0.9, 1.0, 1.8, -1.8, 2.5, 4.0, 12.0, -12.0}) * t;
    const TEntityCoordinate place = OnCircle(centre, radius + gap, at);
    entities.push_back(Arc(centre, radius, at - aRandom.Between(0, 170), at + aRandom.Between(0, 170)));
    const double other = aRandom.Between(2, 20);
    switch (Whole(aRandom, 0, 3)) {
      case 0:
        entities.push_back(Arc(OnCircle(place, other, at), other, at + 100, at + 260));
        break;
      case 1:
        entities.push_back(Arc(OnCircle(place, -other, at), other, at - 80, at + 80));
        break;
      case 2:
        entities.push_back(CreateEntity_Line(OnCircle(place, other, at + 90), OnCircle(place, other, at - 90)));
        break;
      default:
        entities.push_back(CreateEntity_Arc_StartEnd_Radius(place, OnCircle(place, other, at + 30), 2 * other));
    }
  }
  return entities;
}

constexpr Kind kTwinKinds[] = {
    {"lines", Lines},
    {"lines and arcs", LinesAndArcs},
    {"loops in loops", LoopsInLoops},
    {"sector", Sector},
    {"grid", Grid},
    {"lines on a grid", GridLines},
    {"arcs on a grid", GridArcs},
    {"circles and rays", CirclesAndRays},
    {"uprights", Uprights},
    {"falling lines", FallingLines},
    {"comb", Comb},
    {"loops on trees", LoopsOnTrees},
    {"touchings", Touchings},
};

// Chains -------------------------------------------------------------------------------------------------------------

/// Vertices at ascending angles about a centre, joined by lines and by arcs that bulge either way.
TEntityArray StarChain(Random& aRandom) {
  const TEntityCoordinate centre = aRandom.Chance(0.5) ? TEntityCoordinate{} : AnyPoint(aRandom);
  const int corners = Whole(aRandom, 2, aRandom.Chance(0.2) ? 20 : 7);
  const bool isRegular = aRandom.Chance(0.3);
  TCoordinateArray vertices;
  for (int i = 0; i < corners; ++i) {
    const double angle = (i + (isRegular ? 0 : aRandom.Between(0, 0.6))) * 360 / corners;
    vertices.push_back(OnCircle(centre, isRegular ? 40 : aRandom.Between(20, 50), angle));
  }
  TEntityArray chain;
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const TEntityCoordinate from = vertices[i];
    const TEntityCoordinate to = vertices[(i + 1) % vertices.size()];
    const double bulge = OneOf(aRandom, {0.0, 0.0, 200.0, -200.0, 60.0, -60.0});
    chain.push_back(CreateEntity_Arc_StartEnd_Radius(from, to, bulge));
    if (bulge == 0 && aRandom.Chance(0.5)) std::swap(chain.back().StartCoords, chain.back().EndCoords);
  }
  if (aRandom.Chance(0.3)) std::reverse(chain.begin(), chain.end());
  return chain;
}

/// The outline of a sector, as it occurs so many times round the origin.
TEntityArray SectorChain(Random& aRandom) {
  const double sweep = OneOf(aRandom, {10.0, 30.0, 45.0, 60.0, 90.0, 180.0});
  const double from = sweep * Whole(aRandom, 0, 3);
  const double inner = aRandom.Chance(0.3) ? 0 : 20;
  const auto corner = [&](double r, double angle) { return OnCircle({}, r, angle); };
  TEntityArray chain{CreateEntity_Line(corner(inner, from), corner(50, from)), Arc({}, 50, from, from + sweep),
                     CreateEntity_Line(corner(50, from + sweep), corner(inner, from + sweep))};
  if (inner > 0) chain.push_back(Arc({}, inner, from, from + sweep));
  return chain;
}

TEntityArray RectangleChain(Random& aRandom) {
  const TEntityCoordinate low = AnyPoint(aRandom);
  const TEntityCoordinate high = low + TEntityCoordinate{aRandom.Between(0.001, 60), aRandom.Between(0.001, 60)};
  return {CreateEntity_Line(low, {high.x, low.y}), CreateEntity_Line({high.x, low.y}, high),
          CreateEntity_Line(high, {low.x, high.y}), CreateEntity_Line({low.x, high.y}, low)};
}

TEntityArray PolygonChain(const TCoordinateArray& aVertices) {
  TEntityArray chain;
  for (std::size_t i = 0; i < aVertices.size(); ++i) {
    chain.push_back(CreateEntity_Line(aVertices[i], aVertices[(i + 1) % aVertices.size()]));
  }
  return chain;
}

/// Teeth of many depths below a bar: the label lies in one of many narrow places.
TEntityArray TeethChain(Random& aRandom) {
  const int teeth = Whole(aRandom, 1, 10);
  TCoordinateArray vertices;
  for (int i = 0; i < teeth; ++i) {
    vertices.push_back({i * 1.0, 0});
    vertices.push_back({i + 0.5, aRandom.Between(-5, 0)});
  }
  vertices.push_back({teeth * 1.0, aRandom.Between(0.01, 3)});
  vertices.push_back({0, aRandom.Between(0.01, 3)});
  return PolygonChain(vertices);
}

/// About as thin as what still gets a label.
TEntityArray SliverChain(Random& aRandom) {
  const int corners = Whole(aRandom, 3, 12);
  const double height = OneOf(aRandom, {1e-9, 1e-4, 3e-4, 1e-3, 1.5e-3, 2e-3, 4e-3});
  const double angle = OneOf(aRandom, {0.0, 0.0, 0.01, 0.8});
  TCoordinateArray vertices;
  for (int i = 0; i < corners; ++i) {
    const bool isBelow = i < corners / 2;
    const double x = 0.1 * (isBelow ? i : corners - i) / corners;
    const double y = aRandom.Chance(0.5) ? (isBelow ? 0 : height) : aRandom.Between(0, height);
    vertices.push_back({x * std::cos(angle) - y * std::sin(angle), x * std::sin(angle) + y * std::cos(angle)});
  }
  return PolygonChain(vertices);
}

constexpr Kind kTwinChains[] = {{"star", StarChain},
                                {"star", StarChain},
                                {"teeth", TeethChain},
                                {"sliver", SliverChain},
                                {"sector chain", SectorChain},
                                {"rectangle", RectangleChain},
                                {"lines on a grid", GridLines},
                                {"arcs on a grid", GridArcs}};

}  // namespace

std::span<const Kind> TwinKinds() {
  return kTwinKinds;
}

std::span<const Kind> TwinChains() {
  return kTwinChains;
}

}  // namespace GeometryEngine::properties
