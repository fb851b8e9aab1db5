#include "GeometryEngine/GeometryEngine_Definitions/TPolyType.h"

#include <gtest/gtest.h>

namespace GeometryEngine {
namespace {

TEST(TPolyType, HasItsOrdinals) {
  EXPECT_EQ(ptPoint, TPolyType{0});
  EXPECT_EQ(ptPolyLine, TPolyType{1});
  EXPECT_EQ(ptClosed, TPolyType{2});
}

TEST(ToString, NamesThePolyTypes) {
  EXPECT_EQ(ToString(ptPoint), "Single Point");
  EXPECT_EQ(ToString(ptPolyLine), "Unclosed Polyline");
  EXPECT_EQ(ToString(ptClosed), "Closed Region");
}

TEST(ToString, IsEmptyForAnyOtherValue) {
  EXPECT_EQ(ToString(TPolyType{3}), "");
  EXPECT_EQ(TPolyType_Helper::ToString(TPolyType{255}), "");
}

}  // namespace
}  // namespace GeometryEngine
