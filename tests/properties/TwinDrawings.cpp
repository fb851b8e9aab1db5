#include "tests/properties/TwinDrawings.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/properties/TwinKinds.h"
#include "tests/support/Geometry.h"

namespace GeometryEngine::properties {

using enum Maindataenum::TInputFields;

namespace {

constexpr std::size_t kFewest = 5;
constexpr std::size_t kMost = 60;
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

const Kind& AnyKind(Random& aRandom, std::span<const Kind> aKinds) {
  return aKinds[static_cast<std::size_t>(Whole(aRandom, 0, static_cast<int>(aKinds.size()) - 1))];
}

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
  if (radius > kTwinSize) {
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

/// Another place and size. Arcs stay small: a large one has very many chords.
void Place(TEntityArray& aEntities, Random& aRandom) {
  const bool hasArcs = std::ranges::any_of(aEntities, [](const TDXFEntity& e) { return e.EntityType == DXFArc; });
  const double size = hasArcs ? OneOf(aRandom, {1.0, 1.0, 1e-6, 1e-3, 0.1, 30.0})
                              : OneOf(aRandom, {1.0, 1.0, 1e-6, 1e-3, 30.0, 1e3, 1e6, 1e12, 1e75, 1e160});
  const TEntityCoordinate to{OneOf(aRandom, {0.0, -50.0, -1e4, 1e6, 3e9}), OneOf(aRandom, {0.0, -50.0, 1e5, -1e9})};
  for (TDXFEntity& entity : aEntities) {
    for (TEntityCoordinate* point : {&entity.StartCoords, &entity.EndCoords, &entity.CentreCoords})
      *point = size * *point;
    entity.radius *= size;
    Move(entity, to);
  }
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
  if (aRandom.Chance(0.05)) Place(aEntities, aRandom);
  if (aRandom.Chance(0.05))
    aEntities.push_back(CreateEntity_Line(kTwinSize / 2, kTwinSize / 2, kTwinSize / 2, kTwinSize / 2));
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
  const Kind& kind = AnyKind(random, TwinKinds());
  TwinDrawing drawing{aSeed, kind.name, AnySettings(random), kind.draw(random)};
  const double tolerance = drawing.settings.linearTolerance;
  Spoil(drawing.entities, random, std::abs(tolerance) <= 5 ? tolerance : 0.001);
  while (drawing.entities.size() < kFewest)
    drawing.entities.push_back(CreateEntity_Line(AnyPoint(random), AnyPoint(random)));
  Shuffle(drawing.entities, random);
  if (drawing.entities.size() >= kMost) drawing.entities.resize(kMost - 1);
  if (random.Chance(0.7)) drawing.entities.push_back(CreateEntity_Line(3 * kTwinSize, 0, 3 * kTwinSize + 1, 0));
  return drawing;
}

TwinDrawing MakeTwinChain(std::uint32_t aSeed) {
  Random random(aSeed);
  const Kind& kind = AnyKind(random, TwinChains());
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
