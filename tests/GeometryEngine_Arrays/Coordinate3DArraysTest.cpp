#include "GeometryEngine/GeometryEngine_Arrays/Coordinate3DArrays.h"

#include <gtest/gtest.h>

#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::TSettingsGuard;

TEST(TCoordinate_3D_Array_Helper, AddCoordinate_3DAppendsDuplicatesToo) {
  TCoordinate_3D_Array array;
  AddCoordinate_3D(array, {1, 2, 3});
  AddCoordinate_3D(array, array[0]);
  ASSERT_EQ(array.size(), 2U);
  EXPECT_EQ(array[1].x, 1);
  EXPECT_EQ(array[1].y, 2);
  EXPECT_EQ(array[1].z, 3);
}

TEST(TCoordinate_3D_Array_Helper, IndexOfFindsTheFirstEqualElement) {
  const TSettingsGuard settings;
  const TCoordinate_3D_Array array{{0, 0, 0}, {1, 2, 3}, {1, 2, 3}};
  EXPECT_EQ(IndexOf(array, {1, 2, 3}), 1);
  EXPECT_EQ(IndexOf(array, {1, 2, 4}), kNotFound);
  EXPECT_EQ(IndexOf(TCoordinate_3D_Array{}, {0, 0, 0}), kNotFound);
}

TEST(TCoordinate_3D_Array_Helper, ContainsIsWhetherIndexOfFinds) {
  const TSettingsGuard settings;
  const TCoordinate_3D_Array array{{0, 0, 0}, {1, 2, 3}};
  EXPECT_TRUE(Contains(array, {1, 2, 3}));
  EXPECT_TRUE(TCoordinate_3D_Array_Helper::Contains(array, {1, 2, 3}));
  EXPECT_FALSE(Contains(array, {3, 2, 1}));
}

}  // namespace
}  // namespace GeometryEngine
