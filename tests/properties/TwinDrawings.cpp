#include "tests/properties/TwinDrawings.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Geometry.h"

namespace GeometryEngine::properties {

using enum Maindataenum::TInputFields;

namespace {

constexpr double kSize = 100;  // side of the square that most drawings fill
constexpr std::size_t kFewest = 5;
constexpr std::size_t kMost = 60;
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

int Whole(Random& aRandom, int aLow, int aHigh) {
  return static_cast<int>(std::floor(aRandom.Between(aLow, aHigh + 1)));
}

template <typename TValue, std::size_t N>
TValue OneOf(Random& aRandom, const TValue (&aValues)[N]) {
  return aValues[static_cast<std::size_t>(Whole(aRandom, 0, static_cast<int>(N) - 1))];
}

TEntityCoordinate AnyPoint(Random& aRandom) {
  return {aRandom.Between(0, kSize), aRandom.Between(0, kSize)};
}

/// A corner of a grid of so many cells.
TEntityCoordinate GridPoint(Random& aRandom, int aCells) {
  const double cell = kSize / aCells;
  return {cell * Whole(aRandom, 0, aCells), cell * Whole(aRandom, 0, aCells)};
}

TEntityCoordinate OnCircle(const TEntityCoordinate& aCentre, double aRadius, double aAngle) {
  const double radians = aAngle * M_PI / 180;
  return {aCentre.x + aRadius * std::cos(radians), aCentre.y + aRadius * std::sin(radians)};
}

TDXFEntity Arc(const TEntityCoordinate& aCentre, double aRadius, double aStart, double aEnd) {
  return CreateEntity_Arc(aCentre.x, aCentre.y, aRadius, aStart, aEnd);
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
    const TEntityCoordinate centre{kSize * (0.5 + cell % cells) / cells, kSize * (0.5 + cell / cells) / cells};
    for (double radius = kSize / cells / 2; radius > 4 && entities.size() < 40; radius *= aRandom.Between(0.4, 0.9)) {
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
  const double width = kSize / (rings + 1);
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
  const double cell = kSize / cells;
  for (int i = 0; i <= cells; ++i) {
    const double from = aRandom.Chance(0.8) ? 0 : cell * Whole(aRandom, 0, cells - 1);
    entities.push_back(CreateEntity_Line(from, i * cell, kSize, i * cell));
    entities.push_back(CreateEntity_Line(i * cell, 0, i * cell, aRandom.Chance(0.8) ? kSize : cell * (i + 1) / 2));
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
    entities.push_back(Arc(GridPoint(aRandom, cells), kSize / cells / 4 * Whole(aRandom, 1, 4), start,
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

constexpr Kind kTwinChains[] = {{"star", StarChain},
                                {"star", StarChain},
                                {"sector chain", SectorChain},
                                {"rectangle", RectangleChain},
                                {"lines on a grid", GridLines},
                                {"arcs on a grid", GridArcs}};

// What spoils a drawing ----------------------------------------------------------------------------------------------

TDXFEntity& AnyEntity(TEntityArray& aEntities, Random& aRandom) {
  return aEntities[static_cast<std::size_t>(Whole(aRandom, 0, static_cast<int>(aEntities.size()) - 1))];
}

void Move(TDXFEntity& aEntity, const TEntityCoordinate& aBy) {
  for (TEntityCoordinate* point : {&aEntity.StartCoords, &aEntity.EndCoords, &aEntity.CentreCoords})
    *point = *point + aBy;
}

void Repeat(TEntityArray& aEntities, Random& aRandom) {
  TDXFEntity copy = AnyEntity(aEntities, aRandom);
  if (copy.EntityType == DXFLine && aRandom.Chance(0.5)) std::swap(copy.StartCoords, copy.EndCoords);
  aEntities.push_back(copy);
}

/// Copies of one entity, each as far from the one before as a chain of sameness may reach.
void RepeatNearby(TEntityArray& aEntities, Random& aRandom, double aTolerance) {
  const TDXFEntity original = AnyEntity(aEntities, aRandom);
  const double step = OneOf(aRandom, {0.0, 0.5, 0.9, 1.0, 1.8}) * aTolerance;
  const double direction = 45 * Whole(aRandom, 0, 7);
  for (int i = 1; i <= Whole(aRandom, 1, 3); ++i) {
    aEntities.push_back(original);
    Move(aEntities.back(), OnCircle({}, step * i, direction));
  }
}

/// Moves ends by about the tolerance, without regard to what else an arc's numbers say.
void MoveEnds(TEntityArray& aEntities, Random& aRandom, double aTolerance) {
  for (TDXFEntity& entity : aEntities) {
    if (!aRandom.Chance(0.3)) continue;
    TEntityCoordinate& end = aRandom.Chance(0.5) ? entity.StartCoords : entity.EndCoords;
    end = end + TEntityCoordinate{OneOf(aRandom, {0.0, -0.9, 0.6, 1.0, 1.8}) * aTolerance,
                                  OneOf(aRandom, {0.0, 0.9, -0.6, -1.0, -1.8}) * aTolerance};
  }
}

void AddOverlap(TEntityArray& aEntities, Random& aRandom) {
  const TDXFEntity whole = AnyEntity(aEntities, aRandom);
  const double from = aRandom.Between(-0.5, 0.9);
  const double to = aRandom.Between(from, 1.5);
  if (whole.EntityType == DXFLine) {
    const TEntityCoordinate along = whole.EndCoords - whole.StartCoords;
    aEntities.push_back(CreateEntity_Line(whole.StartCoords + from * along, whole.StartCoords + to * along));
  } else if (whole.EntityType == DXFArc) {
    const double sweep = whole.ArcSweep();
    aEntities.push_back(
        Arc(whole.CentreCoords, whole.radius, whole.startAngle + from * sweep, whole.startAngle + to * sweep));
  }
}

void AddOddArc(TEntityArray& aEntities, Random& aRandom) {
  const TEntityCoordinate from = AnyPoint(aRandom);
  const TEntityCoordinate to = AnyPoint(aRandom);
  const double radius = OneOf(aRandom, {1e-9, 1e-4, 5e-4, 0.004, 0.02, 1e3, 1e4, 1e6, 1e8});
  if (radius > kSize) {
    aEntities.push_back(CreateEntity_Arc_StartEnd_Radius(from, to, aRandom.Chance(0.5) ? radius : -radius));
  } else {
    const TEntityCoordinate centre = aRandom.Chance(0.5) ? AnyEntity(aEntities, aRandom).StartCoords : from;
    aEntities.push_back(Arc(centre, radius, 90 * Whole(aRandom, 0, 4), 90 * Whole(aRandom, 0, 4)));
  }
}

void SpoilNumber(TEntityArray& aEntities, Random& aRandom) {
  TDXFEntity& entity = AnyEntity(aEntities, aRandom);
  double* const numbers[] = {&entity.StartCoords.x, &entity.StartCoords.y,  &entity.EndCoords.x,
                             &entity.EndCoords.y,   &entity.CentreCoords.x, &entity.CentreCoords.y,
                             &entity.radius,        &entity.startAngle,     &entity.endAngle};
  *OneOf(aRandom, numbers) = OneOf(aRandom, {kNotANumber, kNotANumber, kInfinity, -kInfinity, 0.0, -1.0});
}

void AddTags(TEntityArray& aEntities, Random& aRandom) {
  TDXFEntity& entity = AnyEntity(aEntities, aRandom);
  entity.Colour = "red";
  entity.RegionName = "a name longer than any short string " + std::to_string(Whole(aRandom, 0, 9));
  entity.ConductorCol = Whole(aRandom, 0, 3);
  entity.SlotSide = LeftSide;
}

void Spoil(TEntityArray& aEntities, Random& aRandom, double aTolerance) {
  if (aRandom.Chance(0.25)) Repeat(aEntities, aRandom);
  if (aRandom.Chance(0.25)) RepeatNearby(aEntities, aRandom, aTolerance);
  if (aRandom.Chance(0.2)) AddOverlap(aEntities, aRandom);
  if (aRandom.Chance(0.1)) MoveEnds(aEntities, aRandom, aTolerance);
  if (aRandom.Chance(0.1)) AddOddArc(aEntities, aRandom);
  if (aRandom.Chance(0.1)) AddTags(aEntities, aRandom);
  if (aRandom.Chance(0.06)) SpoilNumber(aEntities, aRandom);
  if (aRandom.Chance(0.06)) aEntities.emplace_back().EntityType = aRandom.Chance(0.5) ? DXFNoLineType : DXFRegion;
  if (aRandom.Chance(0.05)) aEntities.push_back(CreateEntity_Line(kSize / 2, kSize / 2, kSize / 2, kSize / 2));
}

// Settings -----------------------------------------------------------------------------------------------------------

double AnyTolerance(Random& aRandom) {
  return aRandom.Chance(0.75) ? OneOf(aRandom, {1e-3, 1e-3, 1e-3, 1e-4})
                              : OneOf(aRandom, {0.5, 0.5, 0.05, 5.0, 1e-9, 1e-12, 0.0, -1.0, kNotANumber, kInfinity});
}

TwinSettings AnySettings(Random& aRandom) {
  TwinSettings settings;
  settings.linearTolerance = AnyTolerance(aRandom);
  settings.tracingTolerance = aRandom.Chance(0.05) ? AnyTolerance(aRandom) : settings.linearTolerance;
  settings.angleTolerance = aRandom.Chance(0.8) ? 1e-4 : OneOf(aRandom, {1e-9, 0.1, 1.0, 0.0, -1.0, kNotANumber});
  settings.snappingMode = OneOf(aRandom, {1.0, 1.0, 0.0, 2.0});
  settings.arcResolution = aRandom.Chance(0.8) ? 5 : OneOf(aRandom, {0.0, 1.0, 50.0, -1.0, kNotANumber});
  settings.minimumLabelArea = aRandom.Chance(0.8) ? 0 : OneOf(aRandom, {5.0, 1e3, -1.0, kInfinity, kNotANumber});
  return settings;
}

}  // namespace

TwinDrawing MakeTwinDrawing(std::uint32_t aSeed) {
  Random random(aSeed);
  const Kind& kind = kTwinKinds[static_cast<std::size_t>(Whole(random, 0, std::size(kTwinKinds) - 1))];
  TwinDrawing drawing{aSeed, kind.name, AnySettings(random), kind.draw(random)};
  const double tolerance = drawing.settings.linearTolerance;
  Spoil(drawing.entities, random, std::abs(tolerance) <= 5 ? tolerance : 0.001);
  while (drawing.entities.size() < kFewest)
    drawing.entities.push_back(CreateEntity_Line(AnyPoint(random), AnyPoint(random)));
  Shuffle(drawing.entities, random);
  if (drawing.entities.size() >= kMost) drawing.entities.resize(kMost - 1);
  if (random.Chance(0.7)) drawing.entities.push_back(CreateEntity_Line(3 * kSize, 0, 3 * kSize + 1, 0));
  return drawing;
}

TwinDrawing MakeTwinChain(std::uint32_t aSeed) {
  Random random(aSeed);
  const Kind kind = OneOf(random, kTwinChains);
  TwinDrawing drawing{aSeed, kind.name, AnySettings(random), kind.draw(random)};
  const double tolerance = drawing.settings.linearTolerance;
  if (random.Chance(0.3)) Spoil(drawing.entities, random, std::abs(tolerance) <= 5 ? tolerance : 0.001);
  return drawing;
}

std::string ToText(const TwinDrawing& aDrawing) {
  const TwinSettings& s = aDrawing.settings;
  return "seed " + std::to_string(aDrawing.seed) + " (" + aDrawing.kind + "); linear tolerance " +
         support::ToText(s.linearTolerance) + ", from tracing on " + support::ToText(s.tracingTolerance) +
         ", angle tolerance " + support::ToText(s.angleTolerance) + ", snapping mode " +
         support::ToText(s.snappingMode) + ", arc resolution " + support::ToText(s.arcResolution) +
         ", minimum label area " + support::ToText(s.minimumLabelArea) + "\n" + support::ToText(aDrawing.entities);
}

void Apply(const TwinSettings& aSettings) {
  Kelvaralinks::dataStore.SetValue(ifLinearTolerance, aSettings.linearTolerance);
  Kelvaralinks::dataStore.SetValue(ifAngleTolerance, aSettings.angleTolerance);
  Kelvaralinks::dataStore.SetValue(ifSnappingMode, aSettings.snappingMode);
  Kelvaralinks::dataStore.SetValue(ifArcResolution, aSettings.arcResolution);
  Kelvaralinks::dataStore.SetValue(ifMinimumLabelArea, aSettings.minimumLabelArea);
}

void ApplyForTracing(const TwinSettings& aSettings) {
  Kelvaralinks::dataStore.SetValue(ifLinearTolerance, aSettings.tracingTolerance);
}

}  // namespace GeometryEngine::properties
