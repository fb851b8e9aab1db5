#include "GeometryEngine/DXF_Entity_Types/detail/TEntityIndex.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "tests/support/Geometry.h"
#include "tests/support/Repetitions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::TEntityIndex;
using support::ParseEntities;
using support::ParseEntity;
using enum Maindataenum::TInputFields;

namespace {

TIndex FindFirst(const TEntityIndex& aIndex, const TEntityArray& aEntities, const TDXFEntity& aEntity) {
  return aIndex.FindFirst(aEntity, [&](TIndex i) { return aEntities[static_cast<std::size_t>(i)]; });
}

TIndex FindFirst_Plain(const TEntityArray& aEntities, const TDXFEntity& aEntity) {
  for (std::size_t i = 0; i < aEntities.size(); ++i) {
    if (aEntities[i] == aEntity) return ToIndex(i);
  }
  return kNotFound;
}

TEntityIndex IndexOf(const TEntityArray& aEntities) {
  TEntityIndex index;
  for (const TDXFEntity& entity : aEntities) index.Add(entity);
  return index;
}

// Lines and arcs between points of a lattice with a step of half a tolerance.
TDXFEntity RandomEntity(std::mt19937& aRandom, double aTolerance) {
  std::uniform_int_distribution<int> place(-3, 3);
  const auto at = [&] { return 17 + place(aRandom) * aTolerance / 2; };
  if (place(aRandom) < 1) return TDXFEntity::Line({at(), at()}, {at(), at()});
  return TDXFEntity::Arc({at(), at()}, {at(), at()}, {at(), 0}, 1, 0, 90);
}

}  // namespace

TEST(TEntityIndex, AnswersWhatALinearSearchAnswers) {
  support::TSettingsGuard settings;
  int hits = 0;
  for (const double tolerance : {1e-3, 0.5, 1e-9}) {
    settings.With(ifLinearTolerance, tolerance);
    for (int seed = support::Repetitions(30); seed > 0; --seed) {
      std::mt19937 random(static_cast<std::uint32_t>(seed));
      TEntityArray entities;
      TEntityIndex index;
      for (int i = 0; i < 150; ++i) {
        const TDXFEntity entity = RandomEntity(random, tolerance);
        const TIndex expected = FindFirst_Plain(entities, entity);
        ASSERT_EQ(FindFirst(index, entities, entity), expected) << support::ToText(entity) << " seed " << seed;
        hits += expected != kNotFound ? 1 : 0;
        entities.push_back(entity);
        index.Add(entity);
      }
    }
  }
  EXPECT_GT(hits, 300);
}

TEST(TEntityIndex, FindsALineByItsReverseAndAnArcOnlyAsItRuns) {
  support::TSettingsGuard settings;
  const TEntityArray entities = ParseEntities("L 0,0 4,0; A c 0,0 r 4 0..90");
  const TEntityIndex index = IndexOf(entities);
  EXPECT_EQ(FindFirst(index, entities, ParseEntity("L 4,0 0,0")), 0);
  EXPECT_EQ(FindFirst(index, entities, ParseEntity("A c 0,0 r 4 0..90")), 1);
  EXPECT_EQ(FindFirst(index, entities, ParseEntity("A c 0,0 r 4 0..90 from 0,4 to 4,0")), kNotFound);
}

TEST(TEntityIndex, ProposesBothOfTwoEntitiesBetweenTheSamePoints) {
  support::TSettingsGuard settings;
  const TEntityIndex index = IndexOf(ParseEntities("L 0,0 4,0; L 9,9 8,8; A c 2,0 r 2 0..180 from 4,0 to 0,0"));
  std::set<TIndex> near;
  index.ForEachNear(ParseEntity("L 4,0 0,0"), [&](TIndex i) { near.insert(i); });
  EXPECT_TRUE(near.contains(0));
  EXPECT_TRUE(near.contains(2));
}

TEST(TEntityIndex, CountsEntitiesWithoutGeometryWithoutFindingThem) {
  support::TSettingsGuard settings;
  const TEntityArray entities = ParseEntities("N; L 0,0 nan,0; L 0,0 1,0");
  const TEntityIndex index = IndexOf(entities);
  EXPECT_EQ(index.Count(), 3);
  EXPECT_EQ(FindFirst(index, entities, entities[0]), kNotFound);
  EXPECT_EQ(FindFirst(index, entities, entities[1]), kNotFound);
  EXPECT_EQ(FindFirst(index, entities, entities[2]), 2);
}

TEST(TEntityIndex, IsNotCurrentUnderAnotherTolerance) {
  support::TSettingsGuard settings;
  const TEntityIndex index;
  EXPECT_TRUE(index.IsCurrent());
  settings.With(ifLinearTolerance, 0.25);
  EXPECT_FALSE(index.IsCurrent());
}

}  // namespace GeometryEngine
