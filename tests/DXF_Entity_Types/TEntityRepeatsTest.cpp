#include "GeometryEngine/DXF_Entity_Types/detail/TEntityRepeats.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::TEntityRepeats;
using enum Maindataenum::TInputFields;

namespace {

/// Lines, either way round, and arcs between points of a lattice with a step of half a tolerance.
TEntityArray RandomEntities(double aTolerance, double aMiddle, std::uint32_t aSeed) {
  std::mt19937 random(aSeed);
  const auto at = [&] { return aMiddle + (static_cast<int>(random() % 41U) - 20) * aTolerance / 2; };
  TEntityArray entities;
  for (int i = 0; i < 100; ++i) {
    const TEntityCoordinate start{at(), 3};
    const TEntityCoordinate end{at(), at()};
    if (random() % 3 == 0) {
      entities.push_back(TDXFEntity::Arc(start, end, {0, 0}, 1, 0, 90));
    } else {
      entities.push_back(random() % 2 == 0 ? TDXFEntity::Line(start, end) : TDXFEntity::Line(end, start));
    }
  }
  return entities;
}

bool HasEqual(const TEntityArray& aEntities, std::size_t aPlace) {
  for (std::size_t i = 0; i < aEntities.size(); ++i) {
    if (i != aPlace && aEntities[i] == aEntities[aPlace]) return true;
  }
  return false;
}

}  // namespace

TEST(TEntityRepeats, MissesNoEntityThatEqualsAnother) {
  support::TSettingsGuard settings;
  int repeats = 0;
  const auto compare = [&](const TEntityArray& entities) {
    const TEntityRepeats found(entities);
    for (std::size_t i = 0; i < entities.size(); ++i) {
      if (!HasEqual(entities, i)) continue;
      ++repeats;
      ASSERT_TRUE(found.MayRepeat(ToIndex(i))) << support::ToText(entities[i]);
    }
  };
  for (const double tolerance : {1e-3, 0.5, 1e-9}) {
    settings.With(ifLinearTolerance, tolerance);
    // The others: next to where sums are no longer exact enough, and beyond.
    for (const double middle : {17.0, 5e12 * tolerance, 1e15 * tolerance}) {
      for (std::uint32_t seed = 0; seed < 50; ++seed) compare(RandomEntities(tolerance, middle, seed));
    }
  }
  EXPECT_GT(repeats, 1000);
}

TEST(TEntityRepeats, TakesNoHalvesOfConcentricCirclesForRepeats) {
  TEntityArray entities;
  for (int i = 1; i <= 100; ++i) {
    const double r = i;
    entities.push_back(TDXFEntity::Arc({r, 0}, {-r, 0}, {0, 0}, r, 0, 180));
    entities.push_back(TDXFEntity::Arc({-r, 0}, {r, 0}, {0, 0}, r, 180, 0));
  }
  const TEntityRepeats found(entities);
  int taken = 0;
  for (TIndex i = 0; i < 200; ++i) taken += found.MayRepeat(i) ? 1 : 0;
  EXPECT_LT(taken, 60);
}

TEST(TEntityRepeats, TakesFewEntitiesForRepeatsThatAreNone) {
  TEntityArray entities;
  for (int i = 0; i < 1000; ++i) entities.push_back(TDXFEntity::Line({i * 1.0, 0}, {i * 1.0, 7.5}));
  const TEntityRepeats found(entities);
  int taken = 0;
  for (TIndex i = 0; i < 1000; ++i) taken += found.MayRepeat(i) ? 1 : 0;
  EXPECT_LT(taken, 250) << "though all of them end on two levels";
}

TEST(TEntityRepeats, WhatEqualsNothingRepeatsNothing) {
  support::TSettingsGuard settings;
  const TEntityArray others{TDXFEntity(), TDXFEntity()};
  EXPECT_FALSE(TEntityRepeats(others).MayRepeat(0));
  settings.With(ifLinearTolerance, 0);
  const TEntityArray lines(2, TDXFEntity::Line({0, 0}, {1, 0}));
  EXPECT_FALSE(TEntityRepeats(lines).MayRepeat(1));
}

}  // namespace GeometryEngine
