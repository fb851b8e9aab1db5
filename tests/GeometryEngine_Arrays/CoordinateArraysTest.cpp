#include "GeometryEngine/GeometryEngine_Arrays/CoordinateArrays.h"

#include <cstdint>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::IsNear;
using support::ParseCoordinates;
using support::ParseEntity;
using support::TSettingsGuard;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(TCoordinateArray_Helper, AddCoordinateAppendsDuplicatesToo) {
  TCoordinateArray array;
  AddCoordinate(array, {1, 2});
  AddCoordinate(array, {1, 2});
  AddCoordinate(array, array[0]);
  EXPECT_THAT(array, IsBits("1,2 1,2 1,2"));
}

TEST(TCoordinateArray_Helper, IndexOfFindsACoordinateWithinTheTolerance) {
  TSettingsGuard settings;
  settings.With(Maindataenum::TInputFields::ifLinearTolerance, 0.5);
  const TCoordinateArray array = ParseCoordinates("0,0 4,0 4,4");
  EXPECT_EQ(IndexOf(array, {4.25, -0.25}), 1);
  EXPECT_EQ(IndexOf(array, {4.5, 0}), kNotFound);  // a difference of exactly the tolerance is one
}

TEST(TCoordinateArray_Helper, IndexOfAnswersTheEarliestOfNearDuplicates) {
  TSettingsGuard settings;
  settings.With(Maindataenum::TInputFields::ifLinearTolerance, 0.5);
  EXPECT_EQ(IndexOf(ParseCoordinates("9,9 1.25,0 1,0"), {1, 0}), 1);
}

TEST(TCoordinateArray_Helper, ContainsIsWhetherIndexOfFinds) {
  const TSettingsGuard settings;
  const TCoordinateArray array = ParseCoordinates("0,0 4,0");
  EXPECT_TRUE(Contains(array, {4, 0}));
  EXPECT_TRUE(TCoordinateArray_Helper::Contains(array, {4, 0}));
  EXPECT_FALSE(Contains(array, {4, 4}));
  EXPECT_FALSE(Contains(array, {kNaN, 0}));
  EXPECT_FALSE(Contains(TCoordinateArray{}, {0, 0}));
}

TEST(TCoordinateArray_Helper, GetCoordinateIndex_NextOfTheLastIndexIsTheFirst) {
  const TCoordinateArray three = ParseCoordinates("0,0 4,0 4,4");
  EXPECT_EQ(GetCoordinateIndex_Next(three, 0), 1);
  EXPECT_EQ(GetCoordinateIndex_Next(three, 2), 0);
  EXPECT_EQ(GetCoordinateIndex_Next(ParseCoordinates("7,7"), 0), 0);
}

TEST(TCoordinateArray_Helper, GetCoordinateIndex_NextStepsIndexesOutsideTheArrayWithoutOverflow) {
  const TCoordinateArray three = ParseCoordinates("0,0 4,0 4,4");
  EXPECT_EQ(GetCoordinateIndex_Next(three, 3), 4);
  EXPECT_EQ(GetCoordinateIndex_Next(three, -5), -4);
  EXPECT_EQ(GetCoordinateIndex_Next(three, INT32_MAX), 0);
  EXPECT_EQ(GetCoordinateIndex_Next(TCoordinateArray{}, INT32_MIN), INT32_MIN + 1);
}

TEST(TCoordinateArray_Helper, GetCoordinate_NextByIndexWalksTheRing) {
  const TCoordinateArray array = ParseCoordinates("1,0 4,0 4,4");
  EXPECT_THAT(GetCoordinate_Next(array, 0), IsBits(4, 0));
  EXPECT_THAT(GetCoordinate_Next(array, 2), IsBits(1, 0));
}

TEST(TCoordinateArray_Helper, GetCoordinate_NextByIndexOutsideTheArrayIsTheOrigin) {
  const TCoordinateArray array = ParseCoordinates("1,0 4,0 4,4");
  EXPECT_THAT(GetCoordinate_Next(array, 3), IsBits(0, 0));
  EXPECT_THAT(GetCoordinate_Next(array, -7), IsBits(0, 0));
  EXPECT_THAT(GetCoordinate_Next(TCoordinateArray{}, 0), IsBits(0, 0));
  EXPECT_THAT(GetCoordinate_Next(TCoordinateArray{}, INT32_MAX), IsBits(0, 0));
}

TEST(TCoordinateArray_Helper, GetCoordinate_NextByCoordinateFollowsTheFirstMatch) {
  const TSettingsGuard settings;
  const TCoordinateArray array = ParseCoordinates("1,0 4,0 1,0 4,4");
  EXPECT_THAT(GetCoordinate_Next(array, {1, 0}), IsBits(4, 0));
  EXPECT_THAT(GetCoordinate_Next(array, {4, 4}), IsBits(1, 0));
}

TEST(TCoordinateArray_Helper, GetCoordinate_NextOfAnAbsentCoordinateIsTheOrigin) {
  const TSettingsGuard settings;
  EXPECT_THAT(GetCoordinate_Next(ParseCoordinates("1,1 2,2"), {3, 3}), IsBits(0, 0));
}

TEST(TCoordinateArray_Helper, GetCoordinate_PreviousPrecedesTheFirstMatch) {
  const TSettingsGuard settings;
  const TCoordinateArray array = ParseCoordinates("1,0 4,0 5,0 4,0 4,4");
  EXPECT_THAT(GetCoordinate_Previous(array, {4, 0}), IsBits(1, 0));
  EXPECT_THAT(GetCoordinate_Previous(array, {1, 0}), IsBits(4, 4));
}

TEST(TCoordinateArray_Helper, GetCoordinate_PreviousOfAnAbsentCoordinateIsTheOrigin) {
  const TSettingsGuard settings;
  EXPECT_THAT(GetCoordinate_Previous(ParseCoordinates("1,1 2,2"), {3, 3}), IsBits(0, 0));
  EXPECT_THAT(GetCoordinate_Previous(TCoordinateArray{}, {3, 3}), IsBits(0, 0));
}

TEST(TCoordinateArray_Helper, CopyArrayReplacesWhatWasThere) {
  TCoordinateArray array = ParseCoordinates("9,9 8,8 7,7");
  CopyArray(array, ParseCoordinates("1,2 3,4"));
  EXPECT_THAT(array, IsBits("1,2 3,4"));
}

TEST(TCoordinateArray_Helper, CopyArrayTakesAViewOfItself) {
  TCoordinateArray array = ParseCoordinates("1,1 2,2 3,3");
  CopyArray(array, array);
  EXPECT_THAT(array, IsBits("1,1 2,2 3,3"));
  CopyArray(array, std::span<const TEntityCoordinate>(array).subspan(1));
  EXPECT_THAT(array, IsBits("2,2 3,3"));
}

TEST(TCoordinateArray_Helper, RotateTurnsEveryElementAboutTheOrigin) {
  const TSettingsGuard settings;
  TCoordinateArray array = ParseCoordinates("1,0 2,1");
  Rotate(array, GetRotationMatrix(90));
  EXPECT_THAT(array, IsNear("0,1 -1,2", 1e-15));
}

TEST(TCoordinateArray_Helper, Rotate_AboutPointTurnsEveryElementAboutThePoint) {
  const TSettingsGuard settings;
  TCoordinateArray array = ParseCoordinates("1,0 2,1");
  Rotate_AboutPoint(array, GetRotationMatrix(90), {1, 1});
  EXPECT_THAT(array, IsNear("2,1 1,2", 1e-15));
}

TEST(TCoordinateArray_Helper, Rotate_AboutPointTurnsAboutAnElementWhereItWas) {
  const TSettingsGuard settings;
  TCoordinateArray array = ParseCoordinates("3,0 5,1 4,0");
  Rotate_AboutPoint(array, GetRotationMatrix(180), array[1]);
  EXPECT_THAT(array, IsNear("7,2 5,1 6,2", 1e-14));
}

TEST(TCoordinateArray_Helper, MirrorMirrorsEveryElementAboutALine) {
  const TSettingsGuard settings;
  TCoordinateArray array = ParseCoordinates("3,1 0,5");
  Mirror(array, ParseEntity("L 1,0 1,5"));
  EXPECT_THAT(array, IsBits("-1,1 2,5"));
}

TEST(TCoordinateArray_Helper, MirrorAboutAnythingButALineChangesNothing) {
  const TSettingsGuard settings;
  TCoordinateArray array = ParseCoordinates("3,1 0,5");
  for (const char* mirror : {"A c 0,0 r 1 0..90", "N", "R"}) Mirror(array, ParseEntity(mirror));
  EXPECT_THAT(array, IsBits("3,1 0,5"));
}

TEST(TCoordinateArray_Helper, TranslateMovesEveryElement) {
  TCoordinateArray array = ParseCoordinates("3,1 0,5");
  Translate(array, 0.5, -2);
  EXPECT_THAT(array, IsBits("3.5,-1 0.5,3"));
}

TEST(AddCoordinateToArray, Appends) {
  TCoordinateArray array = ParseCoordinates("1,1");
  AddCoordinateToArray(array, {1, 1});
  EXPECT_THAT(array, IsBits("1,1 1,1"));
}

TEST(RemoveCoordinateFromArray, MovesTheLaterOnesDown) {
  TCoordinateArray array = ParseCoordinates("1,1 2,2 3,3");
  RemoveCoordinateFromArray(array, 1);
  EXPECT_THAT(array, IsBits("1,1 3,3"));
}

TEST(RemoveCoordinateFromArray, DoesNothingOutsideTheArray) {
  TCoordinateArray array = ParseCoordinates("1,1 2,2");
  for (const TIndex index : {-1, 2, INT32_MAX, INT32_MIN}) RemoveCoordinateFromArray(array, index);
  EXPECT_THAT(array, IsBits("1,1 2,2"));
}

TEST(IsCoordinateInArray, IsFalseForAnEmptyArray) {
  const TSettingsGuard settings;
  EXPECT_FALSE(IsCoordinateInArray(TCoordinateArray{}, {0, 0}));
}

TEST(IsCoordinateInArray, FindsACoordinateWithinTheTolerance) {
  TSettingsGuard settings;
  settings.With(Maindataenum::TInputFields::ifLinearTolerance, 0.5);
  const TCoordinateArray array = ParseCoordinates("0,0 4,0");
  EXPECT_TRUE(IsCoordinateInArray(array, {3.75, 0.25}));
  EXPECT_FALSE(IsCoordinateInArray(array, {3.5, 0}));
}

}  // namespace
}  // namespace GeometryEngine
