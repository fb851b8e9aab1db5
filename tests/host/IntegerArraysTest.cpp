#include "GeometryEngine/host/IntegerArrays.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace GeometryEngine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(GetIsElementInArray_Integer, FindsFirstMiddleAndLast) {
  const TIntegerArray array{7, -3, 7, 11};
  EXPECT_TRUE(GetIsElementInArray_Integer(array, 7));
  EXPECT_TRUE(GetIsElementInArray_Integer(array, -3));
  EXPECT_TRUE(GetIsElementInArray_Integer(array, 11));
  EXPECT_FALSE(GetIsElementInArray_Integer(array, 3));
}

TEST(GetIsElementInArray_Integer, FindsNothingInAnEmptyArray) {
  EXPECT_FALSE(GetIsElementInArray_Integer(TIntegerArray{}, 0));
}

TEST(RemoveElementFromArray_Integer, RemovesTheFirstAndKeepsTheOrder) {
  TIntegerArray array{7, -3, 7, 11};
  RemoveElementFromArray_Integer(array, 7);
  EXPECT_THAT(array, ElementsAre(-3, 7, 11));
  RemoveElementFromArray_Integer(array, 11);
  EXPECT_THAT(array, ElementsAre(-3, 7));
}

TEST(RemoveElementFromArray_Integer, LeavesAnArrayWithoutTheValueAlone) {
  TIntegerArray array{1, 2};
  RemoveElementFromArray_Integer(array, 3);
  EXPECT_THAT(array, ElementsAre(1, 2));
  TIntegerArray empty;
  RemoveElementFromArray_Integer(empty, 3);
  EXPECT_THAT(empty, IsEmpty());
}

}  // namespace
}  // namespace GeometryEngine
