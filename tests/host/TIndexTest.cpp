#include "GeometryEngine/host/TIndex.h"

#include <gtest/gtest.h>

namespace GeometryEngine {
namespace {

TEST(ToIndex, SaturatesAboveTheRange) {
  EXPECT_EQ(ToIndex(0), 0);
  EXPECT_EQ(ToIndex(2147483647U), INT32_MAX);
  EXPECT_EQ(ToIndex(std::size_t{2147483648U}), INT32_MAX);
  EXPECT_EQ(ToIndex(SIZE_MAX), INT32_MAX);
}

TEST(IsIndexWithin, HoldsFromZeroToTheLast) {
  EXPECT_TRUE(IsIndexWithin(0, 2));
  EXPECT_TRUE(IsIndexWithin(1, 2));
  EXPECT_FALSE(IsIndexWithin(2, 2));
  EXPECT_FALSE(IsIndexWithin(kNotFound, 2));
  EXPECT_FALSE(IsIndexWithin(INT32_MIN, 2));
  EXPECT_FALSE(IsIndexWithin(0, 0));
}

}  // namespace
}  // namespace GeometryEngine
