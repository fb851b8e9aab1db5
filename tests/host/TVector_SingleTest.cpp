#include "GeometryEngine/host/TVector_Single.h"

#include <limits>

#include <gtest/gtest.h>

namespace GeometryEngine {
namespace {

void ExpectVector(const TVector_Single& aVector, float aX, float aY, float aZ) {
  EXPECT_EQ(aVector.x, aX);
  EXPECT_EQ(aVector.y, aY);
  EXPECT_EQ(aVector.z, aZ);
}

TEST(TVector_Single, IsZeroAtFirst) {
  ExpectVector(TVector_Single{}, 0, 0, 0);
}

TEST(TVector_Single, HasALength) {
  EXPECT_EQ((TVector_Single{2, 3, 6}.Length()), 7);
  EXPECT_EQ(TVector_Single{}.Length(), 0);
}

TEST(TVector_Single, ComputesInSinglePrecision) {
  // 16777216 + 1 has no single-precision value of its own.
  EXPECT_EQ((TVector_Single{4096, 1, 0}.Dot({4096, 1, 0})), 16777216.0F);
  EXPECT_EQ((TVector_Single{4096, 1, 0}.Length()), 4096.0F);
  EXPECT_EQ((TVector_Single{1e-30F, 0, 0}.Length()), 0);
  EXPECT_EQ((TVector_Single{1e30F, 0, 0}.Length()), std::numeric_limits<float>::infinity());
}

TEST(TVector_Single, MultipliesWithAnother) {
  EXPECT_EQ((TVector_Single{1, 2, 3}.Dot({4, -5, 6})), 12);
  ExpectVector(TVector_Single{1, 2, 3}.Cross({4, 5, 6}), -3, 6, -3);
  ExpectVector(TVector_Single{1, 0, 0}.Cross({0, 1, 0}), 0, 0, 1);
}

TEST(TVector_Single, IsNormalisedToLengthOne) {
  ExpectVector(TVector_Single{0, 0, -5}.Normalised(), 0, 0, -1);
  ExpectVector(TVector_Single{3, 4, 0}.Normalised(), 0.6F, 0.8F, 0);
}

TEST(TVector_Single, StaysAsItIsWhenNormalisedWithoutLength) {
  ExpectVector(TVector_Single{}.Normalised(), 0, 0, 0);
}

TEST(TVector_Single, AddsNegatesAndScales) {
  ExpectVector(TVector_Single{1, 2, 3} + TVector_Single{4, 5, 6}, 5, 7, 9);
  ExpectVector(-TVector_Single{1, -2, 3}, -1, 2, -3);
  ExpectVector(TVector_Single{1, -2, 3} * 0.5F, 0.5F, -1, 1.5F);
}

TEST(IsZero_Single, HoldsBelowTheResolution) {
  EXPECT_TRUE(IsZero_Single(0));
  EXPECT_TRUE(IsZero_Single(9.9e-8F));
  EXPECT_TRUE(IsZero_Single(-9.9e-8F));
  EXPECT_FALSE(IsZero_Single(1e-7F));
  EXPECT_FALSE(IsZero_Single(-1.1e-7F));
  EXPECT_FALSE(IsZero_Single(std::numeric_limits<float>::quiet_NaN()));
}

}  // namespace
}  // namespace GeometryEngine
