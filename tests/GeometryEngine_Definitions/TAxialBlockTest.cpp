#include "GeometryEngine/GeometryEngine_Definitions/TAxialBlock.h"

#include <limits>

#include <gtest/gtest.h>

namespace GeometryEngine {
namespace {

TEST(TAxialBlock, HasNoAngleShiftUnlessGiven) {
  const TAxialBlock block{1, 2};
  EXPECT_EQ(block.AngleShift, 0);
}

TEST(TAxialBlock, MoveAlongAxis_AxialMovesBothEnds) {
  TAxialBlock block{1, 3, 5};
  block.MoveAlongAxis_Axial(-2.5);
  EXPECT_EQ(block.AxPos_Start, -1.5);
  EXPECT_EQ(block.AxPos_End, 0.5);
  EXPECT_EQ(block.AngleShift, 5);
}

TEST(TAxialBlock, PositionWithinBlockIncludesBothEnds) {
  const TAxialBlock block{1, 3};
  EXPECT_TRUE(block.PositionWithinBlock(1));
  EXPECT_TRUE(block.PositionWithinBlock(2));
  EXPECT_TRUE(block.PositionWithinBlock(3));
  EXPECT_FALSE(block.PositionWithinBlock(1 - 1e-9));
  EXPECT_FALSE(block.PositionWithinBlock(3 + 1e-9));
}

TEST(TAxialBlock, NothingLiesWithinABlockThatRunsBackwards) {
  EXPECT_FALSE((TAxialBlock{3, 1}.PositionWithinBlock(2)));
  EXPECT_FALSE((TAxialBlock{0, std::numeric_limits<double>::quiet_NaN()}.PositionWithinBlock(0)));
}

TEST(TAxialBlock, EqualityIsExactInTheEndsAndLeavesTheAngleOut) {
  EXPECT_TRUE((TAxialBlock{1, 3, 0} == TAxialBlock{1, 3, 45}));
  EXPECT_FALSE((TAxialBlock{1, 3} == TAxialBlock{1 + 1e-15, 3}));
  EXPECT_FALSE((TAxialBlock{1, 3} == TAxialBlock{1, 3 + 1e-15}));
  EXPECT_TRUE((TAxialBlock{1, 3} != TAxialBlock{1, 4}));
  EXPECT_FALSE((TAxialBlock{1, 3, 0} != TAxialBlock{1, 3, 45}));
}

TEST(ElementsEqual, OfTwoEmptyArraysIsFalseKept) {
  EXPECT_FALSE(ElementsEqual(TAxialBlockArray{}, TAxialBlockArray{}));
}

TEST(ElementsEqual, LeavesTheAngleShiftOut) {
  EXPECT_TRUE(ElementsEqual(TAxialBlockArray{{0, 1, 0}}, TAxialBlockArray{{0, 1, 10}}));
}

TEST(ElementsEqual, TakesLengthAndOrder) {
  const TAxialBlockArray blocks{{0, 1}, {1, 2}};
  EXPECT_TRUE(ElementsEqual(blocks, blocks));
  EXPECT_TRUE(TAxialBlockArray_Helper::ElementsEqual(blocks, blocks));
  EXPECT_FALSE(ElementsEqual(blocks, TAxialBlockArray{{1, 2}, {0, 1}}));
  EXPECT_FALSE(ElementsEqual(blocks, TAxialBlockArray{{0, 1}}));
  EXPECT_FALSE(ElementsEqual(TAxialBlockArray{{0, 1}}, blocks));
  EXPECT_FALSE(ElementsEqual(blocks, TAxialBlockArray{}));
}

TEST(PositionWithinBlock, HoldsWhenAnyBlockContainsIt) {
  const TAxialBlockArray blocks{{0, 1}, {2, 3}};
  EXPECT_TRUE(PositionWithinBlock(blocks, 1));
  EXPECT_TRUE(PositionWithinBlock(blocks, 2.5));
  EXPECT_FALSE(PositionWithinBlock(blocks, 1.5));
  EXPECT_FALSE(PositionWithinBlock(TAxialBlockArray{}, 0));
}

}  // namespace
}  // namespace GeometryEngine
