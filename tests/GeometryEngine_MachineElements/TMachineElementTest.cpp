#include "GeometryEngine/GeometryEngine_MachineElements/TMachineElement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Maindataenum::TInputFields;
using support::IsBits;
using support::ParseEntity;

constexpr TInputFields kField{4711};

TEST(TMachineElement, IsCreatedEmptyWithBothBoundariesDisabled) {
  const TMachineElement element;
  EXPECT_FALSE(element.innerBoundary().Enabled);
  EXPECT_FALSE(element.outerBoundary().Enabled);
  EXPECT_EQ(element.WeightField(), TInputFields{});
  EXPECT_EQ(element.ElementArea(), 0);
  EXPECT_EQ(element.ElementVolume(), 0);
  EXPECT_EQ(element.ElementWeight(), 0);
  EXPECT_EQ(element.MaterialsWeightsComponent().Density, 0);
}

TEST(TMachineElement_WithinBoundaries, ContainsEveryPointWithoutBoundaries) {
  const support::TSettingsGuard settings;
  const TMachineElement element;
  EXPECT_TRUE(element.WithinBoundaries({0, 0}));
  EXPECT_TRUE(element.WithinBoundaries({1e9, -1e9}));
}

TEST(TMachineElement_WithinBoundaries, LiesBetweenTwoCircles) {
  const support::TSettingsGuard settings;
  TMachineElement element;
  element.Add(kField, ParseEntity("A c 0,0 r 10 0..360"), blInnerBoundary, {});
  element.Add(kField, ParseEntity("A c 0,0 r 20 0..360"), blOuterBoundary, {});
  EXPECT_TRUE(element.WithinBoundaries({15, 0}));
  EXPECT_FALSE(element.WithinBoundaries({5, 0}));
  EXPECT_FALSE(element.WithinBoundaries({25, 0}));
}

TEST(TMachineElement_WithinBoundaries, LinesBoundAtTheHeightOfTheirStartsKept) {
  const support::TSettingsGuard settings;
  TMachineElement element;
  element.Add(kField, ParseEntity("L 0,2 5,100"), blInnerBoundary, {});
  EXPECT_TRUE(element.WithinBoundaries({0, 2}));
  EXPECT_FALSE(element.WithinBoundaries({0, 1.9}));
  element.Add(kField, ParseEntity("L 0,4 5,-100"), blOuterBoundary, {});
  EXPECT_TRUE(element.WithinBoundaries({0, 4}));
  EXPECT_FALSE(element.WithinBoundaries({0, 4.1}));
}

TEST(TMachineElement_WithinBoundaries, OtherKindsBoundNothing) {
  const support::TSettingsGuard settings;
  TMachineElement element;
  element.Add(kField, ParseEntity("R"), blInnerBoundary, {});
  element.Add(kField, ParseEntity("N"), blOuterBoundary, {});
  EXPECT_TRUE(element.WithinBoundaries({3, 3}));
}

TEST(TMachineElement_Add, SetsOneBoundaryAndLeavesTheOther) {
  TMachineElement element;
  element.Add(kField, ParseEntity("L 0,1 1,1"), blInnerBoundary, {.Density = 7650});
  EXPECT_EQ(element.WeightField(), kField);
  EXPECT_EQ(element.MaterialsWeightsComponent().Density, 7650);
  EXPECT_TRUE(element.innerBoundary().Enabled);
  EXPECT_FALSE(element.outerBoundary().Enabled);
  element.Add(kField, ParseEntity("L 0,3 1,3"), blInnerBoundary, {});
  EXPECT_THAT(element.innerBoundary().BoundaryEntity, IsBits("L 0,3 1,3"));
  EXPECT_FALSE(element.outerBoundary().Enabled);
}

TEST(TMachineElement_Assign, TakesOverEveryField) {
  TMachineElement source;
  source.Add(kField, ParseEntity("L 0,1 1,1"), blInnerBoundary, {.Density = 8900, .WeightTotal = 3});
  source.Add(kField, ParseEntity("L 0,2 1,2"), blOuterBoundary, {.Density = 8900, .WeightTotal = 3});
  source.ElementArea(4);
  source.ElementVolume(5);
  source.ElementWeight(6);
  TMachineElement copy;
  copy.Assign(source);
  copy.Assign(copy);
  EXPECT_EQ(copy.WeightField(), kField);
  EXPECT_EQ(copy.MaterialsWeightsComponent().WeightTotal, 3);
  EXPECT_EQ(copy.ElementArea(), 4);
  EXPECT_EQ(copy.ElementVolume(), 5);
  EXPECT_EQ(copy.ElementWeight(), 6);
  EXPECT_TRUE(copy.innerBoundary().Enabled);
  EXPECT_THAT(copy.outerBoundary().BoundaryEntity, IsBits("L 0,2 1,2"));
}

TEST(TMachineElement, FieldsAreReadAndWrittenByTheirNames) {
  TMachineElement element;
  element.WeightField(kField);
  element.MaterialsWeightsComponent(
      TMaterialsWeightsComponent{.Density = 1, .Multiplier = 2, .WeightInternal = 3, .WeightTotal = 4});
  element.innerBoundary(TVirtualBoundary{.Enabled = true, .BoundaryEntity = ParseEntity("L 0,1 1,1")});
  element.outerBoundary({true, ParseEntity("L 0,2 1,2")});
  EXPECT_EQ(element.WeightField(), kField);
  EXPECT_EQ(element.MaterialsWeightsComponent().Multiplier, 2);
  EXPECT_EQ(element.MaterialsWeightsComponent().WeightInternal, 3);
  EXPECT_THAT(element.innerBoundary().BoundaryEntity, IsBits("L 0,1 1,1"));
  EXPECT_TRUE(element.outerBoundary().Enabled);
}

}  // namespace
}  // namespace GeometryEngine
